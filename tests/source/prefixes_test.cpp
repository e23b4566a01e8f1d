#include "source/prefixes.h"

#include <gtest/gtest.h>

#include "dialogs/control.h"
#include "platform/scripted_platform.h"
#include "settings/catalogue.h"

namespace quillet::source {
namespace {

PrefixTables standardTables(PrefixSettings settings = {}) {
    std::vector<settings::TypePrefixRow> rows{
        {u"Long", u"lng", u"l", u"", u""},
        {u"String", u"str", u"s", u"", u""},
        {u"Boolean", u"bln", u"f", u"", u""},
        {u"Collection", u"col", u"", u"", u""},
        {u"Worksheet", u"wks", u"", u"", u""},
    };
    return PrefixesCollectionsCreate(settings, rows);
}

TEST(SourcePrefixes, CollectionsHoldEveryScopeAndTypePrefix) {
    auto tables = standardTables();
    const PrefixRecord* record = tables.VariablePrefixes.Find(u"mlng");
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->Type, u"Long");
    EXPECT_EQ(record->Scope, ScopeModule);
    EXPECT_EQ(record->ScopePrefix, u"m");
    EXPECT_EQ(tables.VariablePrefixes.Find(u"str")->Scope, ScopeLocal);
    EXPECT_EQ(tables.VariablePrefixes.Find(u"vs")->Scope, ScopeByVal);
    EXPECT_EQ(tables.VariablePrefixes.Find(u"rcol")->Scope, ScopeByRef);
    EXPECT_EQ(tables.VariablePrefixes.Find(u"gbln")->Scope, ScopeGlobal);
    EXPECT_EQ(tables.ConstantPrefixes.Find(u"gclng")->Type, u"Long");
    EXPECT_EQ(tables.ConstantPrefixes.Find(u"cstr")->Scope, ScopeLocal);
    EXPECT_EQ(tables.ConstantPrefixes.Find(u"mlng"), nullptr);
    // Eight type prefixes in five scopes.
    EXPECT_EQ(tables.VariablePrefixes.Count(), 5 * 8);
}

TEST(SourcePrefixes, ConstantTagAfterTheTypePrefix) {
    PrefixSettings settings;
    settings.ConstTagBeforeTypeTag = false;
    auto tables = standardTables(settings);
    EXPECT_NE(tables.ConstantPrefixes.Find(u"mlngc"), nullptr);
    EXPECT_EQ(tables.ConstantPrefixes.Find(u"mclng"), nullptr);
}

TEST(SourcePrefixes, PrefixesCheckTriesTheLongestLowerCaseRunFirst) {
    auto tables = standardTables();
    Str prefix, type, rest, scopePrefix;
    long kind = -1;
    EXPECT_TRUE(PrefixesCheck(tables, u"mlngCount", prefix, type, kind, false, rest, &scopePrefix));
    EXPECT_EQ(prefix, u"mlng");
    EXPECT_EQ(type, u"Long");
    EXPECT_EQ(kind, ScopeModule);
    EXPECT_EQ(rest, u"Count");
    EXPECT_EQ(scopePrefix, u"m");
    // "strName": "str" before "s".
    EXPECT_TRUE(PrefixesCheck(tables, u"strName", prefix, type, kind, false, rest));
    EXPECT_EQ(prefix, u"str");
    EXPECT_EQ(rest, u"Name");
    // "lName": "l" alone.
    EXPECT_TRUE(PrefixesCheck(tables, u"lName", prefix, type, kind, false, rest));
    EXPECT_EQ(type, u"Long");
    EXPECT_EQ(rest, u"Name");
    // Constants look in their own collection.
    EXPECT_TRUE(PrefixesCheck(tables, u"gclngMax", prefix, type, kind, true, rest));
    EXPECT_EQ(kind, ScopeGlobal);
    EXPECT_EQ(rest, u"Max");
    EXPECT_FALSE(PrefixesCheck(tables, u"gclngMax", prefix, type, kind, false, rest));
    EXPECT_EQ(rest, u"gclngMax");
    EXPECT_EQ(prefix, u"");
    EXPECT_EQ(kind, 0);
    EXPECT_FALSE(PrefixesCheck(tables, u"Count", prefix, type, kind, false, rest));
    EXPECT_EQ(rest, u"Count");
    EXPECT_FALSE(PrefixesCheck(tables, u"", prefix, type, kind, false, rest));
}

TEST(SourcePrefixes, WordHasTypePrefix) {
    auto tables = standardTables();
    Str prefix;
    EXPECT_TRUE(WordHasTypePrefix(tables, u"lngCount", u"long", prefix, false));
    EXPECT_EQ(prefix, u"lng");
    EXPECT_TRUE(WordHasTypePrefix(tables, u"lCount", u"Long", prefix, false));
    EXPECT_EQ(prefix, u"l");
    EXPECT_FALSE(WordHasTypePrefix(tables, u"length", u"Long", prefix, false));
    EXPECT_EQ(prefix, u"lng");
    EXPECT_FALSE(WordHasTypePrefix(tables, u"Count", u"Variant", prefix, false));
    EXPECT_EQ(prefix, u"");
    EXPECT_TRUE(WordHasTypePrefix(tables, u"wksData", u"Worksheet", prefix, false));
    EXPECT_FALSE(WordHasTypePrefix(tables, u"wksData", u"Worksheet", prefix, true));
    EXPECT_EQ(prefix, u"");
    EXPECT_EQ(TypePrefixOf(tables, u"STRING"), u"str");
    EXPECT_EQ(TypePrefixOf(tables, u"Date"), u"");
    EXPECT_TRUE(IsBaseType(u"currency"));
    EXPECT_FALSE(IsBaseType(u"Variant"));
    EXPECT_FALSE(IsBaseType(u"Long,String"));
}

TEST(SourcePrefixes, NameWithPrefixGivesTypeAndScopePrefix) {
    auto tables = standardTables();
    long scope = ScopeModule;
    Str scopePrefix;
    EXPECT_EQ(NameWithPrefix(tables, u"Count", u"Long", nullptr, scope, false, scopePrefix), u"mlngCount");
    scope = ScopeLocal;
    EXPECT_EQ(NameWithPrefix(tables, u"Count", u"Long", nullptr, scope, false, scopePrefix), u"lngCount");
    scope = ScopeByVal;
    EXPECT_EQ(NameWithPrefix(tables, u"Name", u"String", nullptr, scope, false, scopePrefix), u"vstrName");
    // A prefix already there is replaced when the type changes; the scope of the name is kept.
    scope = 0;
    EXPECT_EQ(NameWithPrefix(tables, u"mlngCount", u"String", nullptr, scope, false, scopePrefix), u"mstrCount");
    EXPECT_EQ(scope, ScopeModule);
    EXPECT_EQ(scopePrefix, u"m");
    // A scope given wins over the name's.
    scope = ScopeGlobal;
    EXPECT_EQ(NameWithPrefix(tables, u"mlngCount", u"Long", nullptr, scope, false, scopePrefix), u"glngCount");
    // A type without prefixes: only the scope prefix.
    scope = ScopeModule;
    EXPECT_EQ(NameWithPrefix(tables, u"Total", u"Currency", nullptr, scope, false, scopePrefix), u"mTotal");
    // No type: the base name with the scope prefix.
    scope = ScopeModule;
    EXPECT_EQ(NameWithPrefix(tables, u"Total", u"", nullptr, scope, false, scopePrefix), u"mTotal");
}

TEST(SourcePrefixes, NameWithPrefixLeavesNamesAloneWhenTold) {
    PrefixSettings off;
    off.AutoPrefixVariableName = 0;
    long scope = ScopeModule;
    Str scopePrefix;
    EXPECT_EQ(NameWithPrefix(standardTables(off), u"Count", u"Long", nullptr, scope, false, scopePrefix), u"Count");
    auto tables = standardTables();
    EXPECT_EQ(NameWithPrefix(tables, u"", u"", nullptr, scope, false, scopePrefix), u"");
    // Before a capital only: a base name in lower case stays as typed.
    EXPECT_EQ(NameWithPrefix(tables, u"count", u"Long", nullptr, scope, false, scopePrefix), u"count");
    EXPECT_EQ(NameWithPrefix(tables, u"lng", u"Long", nullptr, scope, false, scopePrefix), u"lng");
    PrefixSettings always;
    always.AutoPrefixVariableName = 1;
    scope = ScopeModule;
    EXPECT_EQ(NameWithPrefix(standardTables(always), u"count", u"Long", nullptr, scope, false, scopePrefix),
              u"mlngcount");
}

TEST(SourcePrefixes, NameWithPrefixForConstants) {
    auto tables = standardTables();
    long scope = ScopeModule;
    Str scopePrefix;
    EXPECT_EQ(NameWithPrefix(tables, u"Max", u"Long", nullptr, scope, true, scopePrefix), u"mclngMax");
    PrefixSettings after;
    after.ConstTagBeforeTypeTag = false;
    after.SetPickedUpNameUCASE = true;
    scope = ScopeGlobal;
    EXPECT_EQ(NameWithPrefix(standardTables(after), u"Max", u"Long", nullptr, scope, true, scopePrefix),
              u"glngcMAX");
    scope = 0;
    EXPECT_EQ(NameWithPrefix(tables, u"gclngMax", u"String", nullptr, scope, true, scopePrefix), u"gcstrMax");
}

TEST(SourcePrefixes, NameWithPrefixWithAComboSelectsTheType) {
    auto tables = standardTables();
    dialogs::Control combo(nullptr, u"cboDataType", dialogs::ControlKind::ComboBox);
    combo.AddItem(u"Boolean");
    combo.AddItem(u"Long");
    combo.AddItem(u"String");
    long scope = 0;
    Str scopePrefix;
    EXPECT_EQ(NameWithPrefix(tables, u"mstrName", u"", &combo, scope, false, scopePrefix), u"mstrName");
    EXPECT_EQ(combo.ListIndex(), 2);
    EXPECT_EQ(scope, ScopeModule);
    EXPECT_EQ(scopePrefix, u"m");
    // A type given: the combo is left as it is.
    scope = 0;
    EXPECT_EQ(NameWithPrefix(tables, u"fDone", u"Long", &combo, scope, false, scopePrefix), u"fDone");
    EXPECT_EQ(combo.ListIndex(), 2);
}

TEST(SourcePrefixes, SettingsAreReadFromTheCatalogue) {
    platform::ScriptedPlatform platform;
    settings::Settings store(platform);
    store.IniItemValue.assign(settings::IniItemCount, basic::Variant(Str()));
    store.IniItemValue[settings::iiAutoPrefixVariableName] = Str(u"1");
    store.IniItemValue[settings::iiPrefixGlobal] = Str(u"G_");
    store.IniItemValue[settings::iiPrefixModule] = Str(u"M_");
    store.IniItemValue[settings::iiPrefixByRef] = Str(u"r");
    store.IniItemValue[settings::iiPrefixByVal] = Str(u"v");
    store.IniItemValue[settings::iiConstTag] = Str(u"k");
    store.IniItemValue[settings::iiConstTagBeforeTypeTag] = false;
    store.IniItemValue[settings::iiSetPickedUpNameUCASE] = true;
    auto read = prefixSettingsOf(store);
    EXPECT_EQ(read.AutoPrefixVariableName, 1);
    EXPECT_EQ(read.scopePrefix(ScopeGlobal), u"G_");
    EXPECT_EQ(read.scopePrefix(ScopeModule), u"M_");
    EXPECT_EQ(read.scopePrefix(ScopeLocal), u"");
    EXPECT_EQ(read.ConstTag, u"k");
    EXPECT_FALSE(read.ConstTagBeforeTypeTag);
    EXPECT_TRUE(read.SetPickedUpNameUCASE);
}

}  // namespace
}  // namespace quillet::source
