// The rules of line numbering on lines in memory: which line gets a number, which four blanks,
// which stays, and how numbers come off again.

#include "tools/numbering_text.h"

#include <gtest/gtest.h>

#include "basic/unicode.h"

namespace quillet::tools {
namespace {

std::vector<Str> numbered(std::vector<Str> lines, long first, long last, long base = 0, long declarations = 0) {
    AddLineNumbers(lines, {first, last, declarations}, base);
    return lines;
}

std::vector<Str> unnumbered(std::vector<Str> lines) {
    RemoveLineNumbers(lines, {1, static_cast<long>(lines.size()), 0});
    return lines;
}

TEST(NumberingText, BothKeywordListsAreThoseOfTheCommand) {
    EXPECT_EQ(basic::Join(kNoNumberWords, u","), u"Dim,Const,Static,End Function");
    EXPECT_EQ(basic::Join(kIndentWords, u","),
              u"Case,Else,End If,End Select,End With,Wend,Next,Exit,End,Resume,GoTo,GoSub,Return,With,Doevents");
}

TEST(NumberingText, AWordNeedsNoBoundaryAndIgnoresCase) {
    EXPECT_TRUE(BeginsWithWordOf(u"Dimension = 1", kNoNumberWords));
    EXPECT_TRUE(BeginsWithWordOf(u"DIM x", kNoNumberWords));
    EXPECT_TRUE(BeginsWithWordOf(u"Without = 1", kIndentWords));
    EXPECT_FALSE(BeginsWithWordOf(u"Loop", kIndentWords));
    EXPECT_FALSE(BeginsWithWordOf(u"Di", kNoNumberWords));
}

TEST(NumberingText, SelectingOnlyADimChangesNothing) {
    EXPECT_EQ(numbered({u"    Dim x"}, 1, 1), std::vector<Str>{u"    Dim x"});
    EXPECT_EQ(numbered({u"    Dimension = 1", u"    Const A = 1", u"    Static n", u"End Function"}, 1, 4),
              (std::vector<Str>{u"    Dimension = 1", u"    Const A = 1", u"    Static n", u"End Function"}));
}

TEST(NumberingText, TheNumberStandsDirectlyBeforeTheIndentOrOneBlankBeforeCodeAtColumnOne) {
    std::vector<Str> lines(42, u"");
    lines[41] = u"    x = 1";
    EXPECT_EQ(numbered(lines, 42, 42)[41], u"1042    x = 1");
    lines[41] = u"x = 1";
    EXPECT_EQ(numbered(lines, 42, 42)[41], u"1042 x = 1");
}

TEST(NumberingText, NumbersFollowTheLinesPlaceWithGapsAndTheFirstLineHasBasePlusOne) {
    EXPECT_EQ(numbered({u"x = 1", u"", u"    Dim y", u"    y = 2"}, 1, 4),
              (std::vector<Str>{u"1001 x = 1", u"", u"    Dim y", u"1004    y = 2"}));
    EXPECT_EQ(numbered({u"x = 1", u"y = 2"}, 1, 2, 500), (std::vector<Str>{u"501 x = 1", u"502 y = 2"}));
}

TEST(NumberingText, AContinuedStatementGetsItsNumberOnTheFirstLineAndFourBlanksOnTheNext) {
    EXPECT_EQ(numbered({u"    x = 1 + _", u"        2", u"    y = 3"}, 1, 3),
              (std::vector<Str>{u"1001    x = 1 + _", u"            2", u"1003    y = 3"}));
}

TEST(NumberingText, AnEmptyLineLeavesTheContinuationAsItWas) {
    EXPECT_EQ(numbered({u"    x = 1 + _", u"", u"        2"}, 1, 3),
              (std::vector<Str>{u"1001    x = 1 + _", u"", u"            2"}));
}

TEST(NumberingText, ASelectionThatStartsInsideAContinuedStatementDoesNotNumberItsContinuation) {
    EXPECT_EQ(numbered({u"    x = 1 + _", u"        2"}, 2, 2), (std::vector<Str>{u"    x = 1 + _", u"            2"}));
}

TEST(NumberingText, EndIfAndNextAreIndentedButLoopIsNumbered) {
    EXPECT_EQ(numbered({u"    End If", u"    Next", u"    Loop"}, 1, 3),
              (std::vector<Str>{u"        End If", u"        Next", u"1003    Loop"}));
}

TEST(NumberingText, EndSubIsIndentedWhileEndFunctionStaysWhole) {
    EXPECT_EQ(numbered({u"End Sub", u"End Function", u"End Property"}, 1, 3),
              (std::vector<Str>{u"    End Sub", u"End Function", u"    End Property"}));
}

TEST(NumberingText, WithIsIndentedAndSoIsAnythingThatBeginsWithIt) {
    EXPECT_EQ(numbered({u"    With x", u"    Without = 1"}, 1, 2),
              (std::vector<Str>{u"        With x", u"        Without = 1"}));
}

TEST(NumberingText, CaseLinesTakeFourBlanksAndNoNumber) {
    EXPECT_EQ(numbered({u"    Case 1", u"    Case Else", u"    Else", u"    ElseIf a Then"}, 1, 4),
              (std::vector<Str>{u"        Case 1", u"        Case Else", u"        Else", u"        ElseIf a Then"}));
}

TEST(NumberingText, EveryWordOfTheIndentListIndents) {
    for (const Str& word : kIndentWords) {
        SCOPED_TRACE(basic::toUtf8(word));
        EXPECT_EQ(numbered({u"  " + word + u" x"}, 1, 1)[0], u"      " + word + u" x");
    }
}

TEST(NumberingText, LabelsDeclarationsAndCommentsStay) {
    std::vector<Str> lines = {u"ErrHandler:",      u"Public Function F(a As Long, _", u"    b As Long) As Long",
                              u"Private Sub S()",  u"Friend Property Get P()",      u"    ' comment",
                              u"Sub Main()",       u"Global Function G()",          u"Public Static Sub T()",
                              u"  '' doubled"};
    EXPECT_EQ(numbered(lines, 1, static_cast<long>(lines.size())), lines);
}

TEST(NumberingText, ALabelAfterBlanksIsNoLabel) {
    EXPECT_EQ(numbered({u"  Again:"}, 1, 1)[0], u"1001  Again:");
}

TEST(NumberingText, TheDeclarationsAndCompilerDirectivesGetNoNumber) {
    EXPECT_EQ(numbered({u"Option Explicit", u"Private m As Long", u"Sub A()", u"#If VBA7 Then", u"x = 1", u"#End If"},
                       1, 6, 0, 2),
              (std::vector<Str>{u"Option Explicit", u"Private m As Long", u"Sub A()", u"#If VBA7 Then", u"1005 x = 1",
                                u"#End If"}));
}

TEST(NumberingText, FindISFunctionKnowsTheDeclarationsInAnyCase) {
    EXPECT_TRUE(FindISFunction(u"sub main()"));
    EXPECT_TRUE(FindISFunction(u"  PUBLIC FUNCTION F() As Long"));
    EXPECT_TRUE(FindISFunction(u"Private Property Let P(v)"));
    EXPECT_FALSE(FindISFunction(u"Submit = 1"));
    EXPECT_FALSE(FindISFunction(u"Public Declare Function F Lib \"k\" ()"));
    EXPECT_FALSE(FindISFunction(u"Call Sub1"));
}

TEST(NumberingText, GetLineWithoutNumberCutsDigitsAColonAndOneBlank) {
    EXPECT_EQ(GetLineWithoutNumber(u"1042 x = 1"), u"x = 1");
    EXPECT_EQ(GetLineWithoutNumber(u"10: x = 1"), u"x = 1");
    EXPECT_EQ(GetLineWithoutNumber(u"10:x = 1"), u"x = 1");
    EXPECT_EQ(GetLineWithoutNumber(u"1042    x = 1"), u"    x = 1");
    EXPECT_EQ(GetLineWithoutNumber(u"1042"), u"");
    EXPECT_EQ(GetLineWithoutNumber(u"    1042 x"), u"    1042 x");
    EXPECT_EQ(GetLineWithoutNumber(u"x = 10"), u"x = 10");
}

TEST(NumberingText, NumbersComeOffButTheBlanksOfIndentedLinesStay) {
    std::vector<Str> lines = {u"1001 x = 1", u"        End If", u"1003    y = 2", u"    z = _", u"2"};
    EXPECT_EQ(unnumbered(lines), (std::vector<Str>{u"x = 1", u"        End If", u"    y = 2", u"    z = _", u"2"}));
}

TEST(NumberingText, ASecondRunGivesTheSameNumbersAndMovesIndentedLinesDeeper) {
    std::vector<Str> lines = {u"Sub A()", u"    x = 1", u"    If x Then", u"    End If", u"End Sub"};
    auto once = numbered(lines, 1, 5);
    auto again = unnumbered(once);
    again = numbered(again, 1, 5);
    EXPECT_EQ(once, (std::vector<Str>{u"Sub A()", u"1002    x = 1", u"1003    If x Then", u"        End If",
                                      u"    End Sub"}));
    EXPECT_EQ(again, (std::vector<Str>{u"Sub A()", u"1002    x = 1", u"1003    If x Then", u"            End If",
                                       u"        End Sub"}));
}

}  // namespace
}  // namespace quillet::tools
