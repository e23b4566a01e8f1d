#pragma once
// Prefixes of names: the type prefix of the prefix standards (lng, str ...), the scope prefix of
// the settings (g, m, r, v) and the constant tag (c). The two prefix collections are built from
// them once and read by PrefixesCheck; NameWithPrefix gives a name the prefix of its type and
// scope.

#include <vector>

#include "basic/collection.h"
#include "basic/strings.h"
#include "settings/settings.h"

namespace quillet::dialogs {
class Control;
}

namespace quillet::source {

using basic::Str;

// Scope codes.
enum ScopeCode : long { ScopeNone = 0, ScopeGlobal = 1, ScopeModule = 2, ScopeLocal = 3, ScopeByRef = 4, ScopeByVal = 5 };

// The settings the prefixes follow.
struct PrefixSettings {
    long AutoPrefixVariableName = 2;  // 0 No Auto Prefix, 1 Always, 2 before a capital character
    Str PrefixGlobal = u"g";
    Str PrefixModule = u"m";
    Str PrefixByRef = u"r";
    Str PrefixByVal = u"v";
    Str ConstTag = u"c";
    bool ConstTagBeforeTypeTag = true;
    bool SetPickedUpNameUCASE = false;

    // The scope prefix of a scope code; "" for local and unknown codes.
    Str scopePrefix(long scope) const;
};

// The current values of the settings.
PrefixSettings prefixSettingsOf(settings::Settings& settings);

// One entry of a prefix collection: the whole prefix text is its key.
struct PrefixRecord {
    Str Type;         // the type's name as the standards write it
    long Scope = 0;   // scope code 1 to 5
    Str ScopePrefix;  // "g", "m", "", "r", "v" by the settings
    Str TypePrefix;   // the type prefix (with the constant tag for constants)
};

// Everything the prefix routines read: the settings, TypePrefixes and the two collections.
struct PrefixTables {
    PrefixSettings Settings;
    std::vector<settings::TypePrefixRow> TypePrefixes;
    basic::Collection<PrefixRecord> VariablePrefixes;  // keyed by prefix text
    basic::Collection<PrefixRecord> ConstantPrefixes;  // keyed by prefix text
};

// Builds the two collections: for each scope code 1 to 5 and each prefix of each type, in the
// table's order, the scope prefix and the type prefix (for constants with the constant tag
// before or after it, as the settings say). The first record of a prefix text wins.
PrefixTables PrefixesCollectionsCreate(const PrefixSettings& settings, const std::vector<settings::TypePrefixRow>& typePrefixes);

// The built-in types NameWithPrefix prefers: ",Byte,Boolean,Integer,Long,Single,Double,Currency,Date,String,".
bool IsBaseType(const Str& type);

// The first prefix the standards list for the type (ignoring case), "" when none.
Str TypePrefixOf(const PrefixTables& tables, const Str& type);

// True when the word begins with one of the type's prefixes (followed by anything but a lower-case
// letter); `prefix` is that prefix. Otherwise False, and `prefix` is the type's first prefix, or
// "" when the standards know none for it (with blnBaseTypesOnly: when it is not a built-in type).
bool WordHasTypePrefix(const PrefixTables& tables, const Str& word, const Str& type, Str& prefix, bool blnBaseTypesOnly);

// Splits a name into its prefix and the rest: the name's leading lower-case letters are tried,
// longest first, against the prefix collection (of constants with blnConst). A hit gives the
// prefix, the type, the scope code (`kind`), the scope prefix and the rest; no hit leaves them
// empty (0) with the whole name as the rest.
bool PrefixesCheck(const PrefixTables& tables, const Str& name, Str& prefix, Str& type, long& kind, bool blnConst,
                   Str& rest, Str* scopePrefix = nullptr);

// The name with the prefix for its type and scope. `scope` and `scopePrefix` come back from the
// prefix the name already had when `scope` was 0. With a combo: a prefix that names a type
// selects that type in it when no type was given, and the name comes back unchanged.
Str NameWithPrefix(const PrefixTables& tables, const Str& name, const Str& type, dialogs::Control* combo, long& scope,
                   bool vfConst, Str& scopePrefix);

}  // namespace quillet::source
