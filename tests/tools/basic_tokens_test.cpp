// The tokenizer both colourings share: words and their lists, strings, comments, line breaks,
// and the placeholders and markers of fragments.

#include "tools/basic_tokens.h"

#include <gtest/gtest.h>

#include "basic/unicode.h"

namespace quillet::tools {
namespace {

// Each token as "kind:text", with the list of a word ("Int=F", "Dim=K") and its spelling when
// that differs from the text.
std::string show(const Str& text, const TokenizerOptions& options = {}) {
    std::string out;
    for (const BasicToken& token : TokenizeBasic(text, options)) {
        if (!out.empty()) out += " ";
        std::string piece = basic::toUtf8(Str(token.text(text)));
        switch (token.kind) {
            case TokenKind::Word:
                out += piece;
                if (token.wordClass != WordClass::Plain) {
                    out += token.wordClass == WordClass::Keyword ? "=K" : "=F";
                    if (Str(token.canonical) != Str(token.text(text))) out += "(" + basic::toUtf8(Str(token.canonical)) + ")";
                }
                break;
            case TokenKind::String: out += "S:" + piece; break;
            case TokenKind::Comment: out += "C:" + piece; break;
            case TokenKind::LineBreak: out += piece.size() == 2 ? "CRLF" : "CR"; break;
            case TokenKind::LoneLineFeed: out += "LF"; break;
            case TokenKind::Blank: out += "_"; break;
            case TokenKind::Placeholder: out += "P:" + piece; break;
            case TokenKind::Marker: out += "M:" + piece; break;
            case TokenKind::Other: out += piece; break;
        }
    }
    return out;
}

TEST(BasicTokens, IntIsAFunctionAndIntegerAKeyword) {
    EXPECT_EQ(show(u"Int(x) As Integer"), "Int=F ( x ) _ As=K _ Integer=K");
}

TEST(BasicTokens, DigitsAreNoWordCharactersSoInt2IsCutInTwo) {
    EXPECT_EQ(show(u"Int2"), "Int=F 2");
}

TEST(BasicTokens, TheHashIsAWordCharacterButABlankEndsTheWord) {
    EXPECT_EQ(show(u"#If VBA7 Then"), "#If=K _ VBA 7 _ Then=K");
    EXPECT_EQ(show(u"#End If"), "#End _ If=K");
}

TEST(BasicTokens, ListedWordsAreFoundInAnyCaseAndCarryTheirListSpelling) {
    EXPECT_EQ(show(u"DIM s AS STRING"), "DIM=K(Dim) _ s _ AS=K(As) _ STRING=K(String)");
    EXPECT_EQ(show(u"ucase(s)"), "ucase=F(UCase) ( s )");
}

TEST(BasicTokens, RemAndAnApostropheBeginACommentToTheLinesEnd) {
    EXPECT_EQ(show(u"Rem note\r\nx = 1 ' why\r\n"), "C:Rem note CRLF x _ = _ 1 _ C:' why CRLF");
    EXPECT_EQ(show(u"rem"), "C:rem");
}

TEST(BasicTokens, RemoveIsAFunctionNotAComment) {
    EXPECT_EQ(show(u"c.Remove 1"), "c . Remove=F _ 1");
}

TEST(BasicTokens, AnApostropheInsideAStringStaysInTheString) {
    EXPECT_EQ(show(u"s = \"it's\" ' said"), "s _ = _ S:\"it's\" _ C:' said");
}

TEST(BasicTokens, ADoubledQuoteReopensTheString) {
    EXPECT_EQ(show(u"\"a\"\"b\""), "S:\"a\" S:\"b\"");
}

TEST(BasicTokens, AnOpenStringEndsAtItsLinesEnd) {
    EXPECT_EQ(show(u"s = \"open\r\nx"), "s _ = _ S:\"open CRLF x");
}

TEST(BasicTokens, LineEndsAreCrLfCrOrALoneLf) {
    EXPECT_EQ(show(u"a\r\nb\rc\nd"), "a CRLF b CR c LF d");
}

TEST(BasicTokens, PlaceholdersAndMarkersOnlyWithTheMarksOfFragments) {
    Str text = u"x = {Name \"}\"} <cursor>";
    EXPECT_EQ(show(text, TokenizerOptions{true}), "x _ = _ P:{Name \"}\"} _ M:<cursor>");
    EXPECT_EQ(show(text), "x _ = _ { Name=K _ S:\"}\" } _ < cursor >");
    EXPECT_EQ(show(u"{open\r\n<end_of_top><begin_of_bottom><other>", TokenizerOptions{true}),
              "P:{open CRLF M:<end_of_top> M:<begin_of_bottom> < other >");
    EXPECT_EQ(show(u"{a{b}c}d", TokenizerOptions{true}), "P:{a{b}c} d");
}

TEST(BasicTokens, TheTokensCoverTheTextWhole) {
    Str text = u"Sub A()\r\n    x = \"s\" & Chr$(9) ' c\r\nEnd Sub";
    size_t at = 0;
    for (const BasicToken& token : TokenizeBasic(text)) {
        EXPECT_EQ(token.start, at);
        EXPECT_GT(token.length, 0u);
        at += token.length;
    }
    EXPECT_EQ(at, text.size());
    EXPECT_TRUE(TokenizeBasic(u"").empty());
}

TEST(BasicTokens, TheListsAreTheColouringsOwn) {
    EXPECT_EQ(ClassifyWord(u"Timer"), WordClass::Function);
    EXPECT_EQ(ClassifyWord(u"Nothing"), WordClass::Keyword);
    EXPECT_EQ(ClassifyWord(u"Debug"), WordClass::Plain);
    std::u16string_view spelling;
    EXPECT_EQ(ClassifyWord(u"#ELSEIF", &spelling), WordClass::Keyword);
    EXPECT_EQ(Str(spelling), u"#ElseIf");
}

}  // namespace
}  // namespace quillet::tools
