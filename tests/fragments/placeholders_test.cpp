// Fixed placeholders, their order, the run of four blanks, includes, headers, descriptions and
// variable placeholders.

#include "fragments/placeholders.h"

#include "fragments_fixture.h"

namespace quillet::fragments {
namespace {

class Placeholders : public testing::FragmentsFixture {
protected:
    Str substitute(Str text, Str module = {}, Str procedure = {}, Str type = {}) {
        Substitute(*ctx, text, module, procedure, type);
        return text;
    }
};

TEST_F(Placeholders, FixedPlaceholdersAreReplaced) {
    openModule({u"Sub Foo()", u"End Sub"}, 1);
    EXPECT_EQ(substitute(u"' {AUTHOR} ({INITIALS}), {COMPANYNAME}, {COPYRIGHT}\r\n' {DATE} {TIME}: {DESCRIPTION}.\r\n"
                         u"On Error GoTo {HANDLEERRORLABEL}\r\n{HANDLEEXITLABEL}:\r\n",
                         u"basMain", u"Foo", u"Sub"),
              u"' Ann Smith (AS), Smith & Co, (c) 2024 Smith & Co\r\n' 2024-05-31 14:05:09: .\r\n"
              u"On Error GoTo HandleError\r\nHandleExit:\r\n");
}

TEST_F(Placeholders, CaseDoesNotMatter) {
    EXPECT_EQ(substitute(u"{author} {Initials} {handleExitLabel}"), u"Ann Smith AS HandleExit");
}

TEST_F(Placeholders, SettingsAreReplacedInTheirOrder) {
    // The author comes first, so a placeholder in its value is replaced by a later step, and a
    // placeholder that a later value brings in stays.
    set(settings::iiDeveloper, u"{COPYRIGHT}");
    set(settings::iiCopyright, u"{AUTHOR}");
    EXPECT_EQ(substitute(u"{AUTHOR}|{COPYRIGHT}"), u"{AUTHOR}|{AUTHOR}");
}

TEST_F(Placeholders, UnknownPlaceholdersStay) {
    EXPECT_EQ(substitute(u"x = {STRING1} & {FOO:bar=1} & {}"), u"x = {STRING1} & {FOO:bar=1} & {}");
}

TEST_F(Placeholders, NamesAreLookedUpAndHandedBack) {
    openModule({u"Option Explicit", u"", u"Public Function Total(a As Long) As Long", u"    ", u"End Function"}, 4, 5,
               u"basOrders");
    Str module, procedure, type;
    Str text = u"{MODULENAME}.{PROCEDURENAME} is a {PROCEDURETYPE}";
    Substitute(*ctx, text, module, procedure, type);
    EXPECT_EQ(text, u"basOrders.Total is a Function");
    EXPECT_EQ(module, u"basOrders");
    EXPECT_EQ(procedure, u"Total");
    EXPECT_EQ(type, u"Function");
}

TEST_F(Placeholders, APropertyIsAProperty) {
    openModule({u"Public Property Get Count() As Long", u"    ", u"End Property"}, 2, 5);
    EXPECT_EQ(substitute(u"{PROCEDURETYPE}"), u"Property");
}

TEST_F(Placeholders, NamesGivenAreUsedAndAnEmptyNameRemovesThePlaceholder) {
    EXPECT_EQ(substitute(u"{MODULENAME}.{PROCEDURENAME} {PROCEDURETYPE}", u"basA", u"Bar", u"Sub"), u"basA.Bar Sub");
    EXPECT_EQ(substitute(u"[{MODULENAME}]"), u"[]");  // no code pane
}

TEST_F(Placeholders, RunsOfFourBlanksFollowTheTabWidth) {
    tabWidth(u"2");
    EXPECT_EQ(substitute(u"    a\r\n        b\r\n   c\r\n"), u"  a\r\n    b\r\n   c\r\n");
    EXPECT_EQ(TabStopsReplace(*ctx, u"\t    x"), u"\t  x");
    tabWidth(u"8");
    EXPECT_EQ(substitute(u"    a"), u"        a");
}

TEST_F(Placeholders, IncludesAreExpandedThemselves) {
    write("Fragments/Inner.bas", "' by {AUTHOR}\r\n");
    write("Fragments/Outer.bas", "' outer\r\n{INCLUDE Fragments\\Inner.bas}");
    EXPECT_EQ(substitute(u"{INCLUDE \\Fragments\\Outer.bas}x\r\n{include Fragments\\Inner.bas}"),
              u"' outer\r\n' by Ann Smith\r\nx\r\n' by Ann Smith\r\n");
}

TEST_F(Placeholders, AMissingOrEmptyIncludeStays) {
    write("Empty.bas", "");
    EXPECT_EQ(substitute(u"{INCLUDE Missing.bas}|{INCLUDE Empty.bas}"), u"{INCLUDE Missing.bas}|{INCLUDE Empty.bas}");
}

TEST_F(Placeholders, AnIncludeWithoutItsBraceStaysAndTheNextOneIsExpanded) {
    write("x.bas", "X");
    EXPECT_EQ(substitute(u"{INCLUDE x.bas {INCLUDE x.bas}"), u"{INCLUDE x.bas X");
    EXPECT_EQ(substitute(u"{INCLUDE x.bas}{INCLUDE x.bas"), u"X{INCLUDE x.bas");
}

TEST_F(Placeholders, IncludesNestAsDeepAsTheFilesGo) {
    // No limit is set: a chain of includes is followed to its end (so a file that includes
    // itself would never end, and fragment authors must not write one).
    constexpr int kDepth = 60;
    for (int i = 0; i < kDepth; ++i) {
        std::string next = i + 1 < kDepth ? "{INCLUDE f" + std::to_string(i + 1) + ".bas}" : "end";
        write("f" + std::to_string(i) + ".bas", std::to_string(i) + ">" + next);
    }
    Str text = substitute(u"{INCLUDE f0.bas}");
    EXPECT_EQ(basic::Right(text, 6), u"59>end");
    EXPECT_EQ(basic::InStr(text, u"{INCLUDE"), 0);
}

TEST_F(Placeholders, ProcedureHeaderIsExpanded) {
    set(settings::iiProcedureHeaderFile, u"Templates\\ProcedureHeader.bas");
    write("Templates/ProcedureHeader.bas",
          "    ' {PROCEDURENAME} ({MODULENAME}): {DESCRIPTION}\r\n    ' {DATE} {TIME} {AUTHOR} {initials} {COMPANYNAME} "
          "{COPYRIGHT} {HANDLEEXITLABEL}\r\n    ");
    tabWidth(u"2");
    EXPECT_EQ(ExpandHeader(*ctx, kProcedureHeader, u"Total", u"Adds it up"),
              u"  ' Total (Total): Adds it up\r\n  ' 2024-05-31 14:05:09 Ann Smith AS Smith & Co (c) 2024 Smith & Co "
              u"{HANDLEEXITLABEL}\r\n  \r\n");
}

TEST_F(Placeholders, AModuleHeaderGetsTheModulesNameForProcedureNameToo) {
    set(settings::iiModuleHeaderFile, u"Templates\\ModuleHeader.bas");
    write("Templates/ModuleHeader.bas", "' Module {MODULENAME}, procedure {PROCEDURENAME}");
    EXPECT_EQ(ExpandHeader(*ctx, kModuleHeader, u"basOrders", u""), u"' Module basOrders, procedure basOrders\r\n");
}

TEST_F(Placeholders, AMissingOrEmptyHeaderGivesNothing) {
    EXPECT_EQ(ExpandHeader(*ctx, kProcedureHeader, u"Foo", u""), u"");
    set(settings::iiProcedureHeaderFile, u"Templates\\Missing.bas");
    EXPECT_EQ(ExpandHeader(*ctx, kProcedureHeader, u"Foo", u""), u"");
    set(settings::iiProcedureHeaderFile, u"Templates\\Empty.bas");
    write("Templates/Empty.bas", "");
    EXPECT_EQ(ExpandHeader(*ctx, kProcedureHeader, u"Foo", u""), u"");
    EXPECT_EQ(ExpandHeader(*ctx, 10001, u"Foo", u""), u"");
    EXPECT_TRUE(reports.empty());
}

TEST_F(Placeholders, FormatDescriptionMakesCommentLines) {
    EXPECT_EQ(FormatDescription(u""), u"");
    EXPECT_EQ(FormatDescription(u"Adds it up.\r\nTwice."), u"'   Adds it up.\r\n'   Twice.\r\n");
    Str fifty(50, u'x');
    EXPECT_EQ(FormatDescription(fifty), u"'   " + fifty + u"\r\n");
    // 51 characters with their only blank at 40: the search begins at 50, so the line stays whole.
    Str blankAt40 = Str(39, u'a') + u" " + Str(11, u'b');
    EXPECT_EQ(FormatDescription(blankAt40), u"'   " + blankAt40 + u"\r\n");
    // Wrapped at the first blank from position 50 on; the rest goes on the same way.
    Str words = Str(52, u'a') + u" " + Str(49, u'b') + u" " + Str(60, u'c') + u" d";
    EXPECT_EQ(FormatDescription(words),
              u"'   " + Str(52, u'a') + u"\r\n'   " + Str(49, u'b') + u"\r\n'   " + Str(60, u'c') + u"\r\n'   d\r\n");
    Str blankAt50 = Str(49, u'a') + u" " + Str(5, u'b');
    EXPECT_EQ(FormatDescription(blankAt50), u"'   " + Str(49, u'a') + u"\r\n'   bbbbb\r\n");
}

TEST_F(Placeholders, VariablePlaceholdersAreRecognised) {
    auto plain = ParseVariablePlaceholder(u"{STRING1}");
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->type, u"STRING1");
    EXPECT_EQ(plain->baseType, u"STRING");
    EXPECT_FALSE(plain->hasName);
    auto named = ParseVariablePlaceholder(u"{EXCEL.RANGE:rng}");
    ASSERT_TRUE(named);
    EXPECT_EQ(named->type, u"EXCEL.RANGE");
    EXPECT_EQ(named->baseType, u"EXCEL.RANGE");
    EXPECT_EQ(named->name, u"rng");
    EXPECT_FALSE(named->hasDefault);
    auto withDefault = ParseVariablePlaceholder(u"{LONG2:count=10}");
    ASSERT_TRUE(withDefault);
    EXPECT_EQ(withDefault->baseType, u"LONG");
    EXPECT_EQ(withDefault->name, u"count");
    EXPECT_EQ(withDefault->defaultValue, u"10");
    EXPECT_TRUE(withDefault->hasDefault);
    for (const char16_t* notOne : {u"{}", u"{author}", u"{INCLUDE x.bas}", u"{VARIABLE}", u"{variable (named)}", u"STRING"})
        EXPECT_FALSE(ParseVariablePlaceholder(notOne)) << basic::toUtf8(notOne);
    EXPECT_TRUE(IsFixedPlaceholder(u"{ProcedureType}"));
    EXPECT_FALSE(IsFixedPlaceholder(u"{STRING}"));
}

TEST_F(Placeholders, VariablePlaceholdersOfATextOnceEachInOrder) {
    auto found = VariablePlaceholders(u"Dim {STRING1} As String: {STRING1} = {AUTHOR} & {STRING2:s=\"a\"} {LONG");
    ASSERT_EQ(found.size(), 2u);
    EXPECT_EQ(found[0].text, u"{STRING1}");
    EXPECT_EQ(found[1].text, u"{STRING2:s=\"a\"}");
    EXPECT_EQ(found[1].defaultValue, u"\"a\"");
}

}  // namespace
}  // namespace quillet::fragments
