#include "source/statements.h"

#include <gtest/gtest.h>

#include "source/char_class.h"

namespace quillet::source {
namespace {

using V = std::vector<Str>;

TEST(SourceStatements, LineContinuesOnTrailingUnderscore) {
    EXPECT_TRUE(LineContinues(u"Dim a As Long, _"));
    EXPECT_TRUE(LineContinues(u"  x = 1 _   "));
    EXPECT_TRUE(LineContinues(u"_"));
    EXPECT_FALSE(LineContinues(u"my_name"));
    EXPECT_FALSE(LineContinues(u""));
    EXPECT_FALSE(LineContinues(u"   "));
    // A tab is no blank: the line does not end in "_" once trimmed.
    EXPECT_FALSE(LineContinues(u"x _\t"));
}

TEST(SourceStatements, SplitArgumentsCutsAtCommasOutsideStrings) {
    EXPECT_EQ(SplitArguments(u"a, b As Long, c$"), (V{u"a", u"b As Long", u"c$"}));
    EXPECT_EQ(SplitArguments(u"A = \"x,y\", B = 2"), (V{u"A = \"x,y\"", u"B = 2"}));
    EXPECT_EQ(SplitArguments(u"a,"), (V{u"a"}));
    EXPECT_EQ(SplitArguments(u"a, ,b"), (V{u"a", u"", u"b"}));
    EXPECT_EQ(SplitArguments(u""), V{});
    EXPECT_EQ(SplitArguments(u"   "), V{});
    // Parentheses are not counted.
    EXPECT_EQ(SplitArguments(u"x(1, 2)"), (V{u"x(1", u"2)"}));
}

TEST(SourceStatements, LineDisjunctionWithoutColonBlankKeepsTheWholeText) {
    EXPECT_EQ(LineDisjunction(u"  Function F(a) As Collection ' note  "), (V{u"Function F(a) As Collection ' note"}));
    EXPECT_EQ(LineDisjunction(u"a:b"), (V{u"a:b"}));
    EXPECT_EQ(LineDisjunction(u""), (V{u""}));
}

TEST(SourceStatements, LineDisjunctionSplitsAtColonsAndDropsTheComment) {
    EXPECT_EQ(LineDisjunction(u"x = 1: y = 2"), (V{u"x = 1", u"y = 2"}));
    EXPECT_EQ(LineDisjunction(u"x = \"a: b\": y = 2 ' c: d"), (V{u"x = \"a: b\"", u"y = 2"}));
    EXPECT_EQ(LineDisjunction(u"ErrHandler: x = 1"), (V{u"ErrHandler", u"x = 1"}));
    EXPECT_EQ(LineDisjunction(u"a: b:"), (V{u"a", u"b"}));
    // A comment at once gives one empty statement.
    EXPECT_EQ(LineDisjunction(u"' x: y"), (V{u""}));
    EXPECT_EQ(LineDisjunction(u"a: ' x"), (V{u"a", u""}));
}

TEST(SourceStatements, TypeCharToNameKnowsTheSixSuffixes) {
    EXPECT_EQ(TypeCharToName(u"!"), u"Single");
    EXPECT_EQ(TypeCharToName(u"#"), u"Double");
    EXPECT_EQ(TypeCharToName(u"$"), u"String");
    EXPECT_EQ(TypeCharToName(u"%"), u"Integer");
    EXPECT_EQ(TypeCharToName(u"&"), u"Long");
    EXPECT_EQ(TypeCharToName(u"@"), u"Currency");
    EXPECT_EQ(TypeCharToName(u"^"), u"");
    EXPECT_EQ(TypeCharToName(u""), u"");
    for (char16_t c : Str(u"!#$%&@")) EXPECT_TRUE(IsTypeSuffix(c));
    EXPECT_FALSE(IsTypeSuffix(u'^'));
    EXPECT_FALSE(IsTypeSuffix(u'\0'));
}

TEST(SourceStatements, RemoveCharsAndNameEnd) {
    EXPECT_EQ(RemoveChars(u"a.b(c)", u".()"), u"abc");
    EXPECT_EQ(nameEnd(u"abc(1)"), 3u);
    EXPECT_EQ(nameEnd(u"abc\tx"), 3u);
    EXPECT_EQ(nameEnd(u"abc"), 3u);
    EXPECT_EQ(nameEnd(u""), 0u);
}

TEST(SourceCharClass, LettersAndDigitsOfTheAnsiCodePage) {
    EXPECT_TRUE(IsCharAlphaA(u'a'));
    EXPECT_TRUE(IsCharAlphaA(u'Z'));
    EXPECT_TRUE(IsCharAlphaA(u'\u00e9'));  // é
    EXPECT_TRUE(IsCharAlphaA(u'\u0160'));  // Š (0x8A)
    EXPECT_TRUE(IsCharAlphaA(u'\u00ff'));  // ÿ
    EXPECT_FALSE(IsCharAlphaA(u'\u00d7'));  // ×
    EXPECT_FALSE(IsCharAlphaA(u'\u00f7'));  // ÷
    EXPECT_FALSE(IsCharAlphaA(u'\u0416'));  // Cyrillic: no byte in the code page
    EXPECT_FALSE(IsCharAlphaA(u'1'));
    EXPECT_FALSE(IsCharAlphaA(u'_'));
    EXPECT_TRUE(IsCharAlphaNumericA(u'7'));
    EXPECT_TRUE(IsCharAlphaNumericA(u'\u00b2'));
    EXPECT_FALSE(IsCharAlphaNumericA(u'_'));
    EXPECT_FALSE(IsCharAlphaNumericA(u' '));
}

}  // namespace
}  // namespace quillet::source
