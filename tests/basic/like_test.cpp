#include <gtest/gtest.h>

#include <chrono>
#include <random>

#include "basic/strings.h"
#include "basic/test_helpers.h"

namespace quillet::basic {
namespace {

TEST(BasicLike, Wildcards) {
    EXPECT_TRUE(Like(u"aBBBa", u"a*a"));
    EXPECT_TRUE(Like(u"aa", u"a*a"));
    EXPECT_FALSE(Like(u"a", u"a*a"));
    EXPECT_TRUE(Like(u"", u"*"));
    EXPECT_TRUE(Like(u"", u""));
    EXPECT_FALSE(Like(u"a", u""));
    EXPECT_FALSE(Like(u"", u"?"));
    EXPECT_TRUE(Like(u"abc", u"a?c"));
    EXPECT_FALSE(Like(u"ac", u"a?c"));
    EXPECT_TRUE(Like(u"a2a", u"a#a"));
    EXPECT_FALSE(Like(u"aaa", u"a#a"));
    EXPECT_TRUE(Like(u"F", u"F"));
    EXPECT_FALSE(Like(u"f", u"F"));
    EXPECT_TRUE(Like(u"abc", u"***"));
    EXPECT_TRUE(Like(u"x]y", u"x]y"));
}

TEST(BasicLike, CharacterLists) {
    EXPECT_TRUE(Like(u"F", u"[A-Z]"));
    EXPECT_FALSE(Like(u"f", u"[A-Z]"));
    EXPECT_TRUE(Like(u"f", u"[!A-Z]"));
    EXPECT_FALSE(Like(u"F", u"[!A-Z]"));
    EXPECT_TRUE(Like(u"aM5", u"a[L-P]#"));
    EXPECT_TRUE(Like(u"b", u"[abc]"));
    EXPECT_FALSE(Like(u"d", u"[abc]"));
    EXPECT_TRUE(Like(u"x", u"[a-cx-z]"));
    EXPECT_TRUE(Like(u"BAT123khg", u"B?T*"));
    EXPECT_FALSE(Like(u"CAT123khg", u"B?T*"));
    EXPECT_FALSE(Like(u"ab", u"[ab]"));  // a list is one unit
}

TEST(BasicLike, SpecialCharactersInsideLists) {
    EXPECT_TRUE(Like(u"*", u"[*]"));
    EXPECT_FALSE(Like(u"a", u"[*]"));
    EXPECT_TRUE(Like(u"?", u"[?]"));
    EXPECT_TRUE(Like(u"#", u"[#]"));
    EXPECT_FALSE(Like(u"1", u"[#]"));
    EXPECT_TRUE(Like(u"[", u"[[]"));
    EXPECT_TRUE(Like(u"-", u"[-a]"));
    EXPECT_TRUE(Like(u"-", u"[a-]"));
    EXPECT_TRUE(Like(u"a", u"[a-]"));
    EXPECT_FALSE(Like(u"b", u"[a-]"));
    EXPECT_TRUE(Like(u"!", u"[a!]"));
    EXPECT_FALSE(Like(u"!", u"[!!]"));
    EXPECT_TRUE(Like(u"a", u"[!!]"));
    EXPECT_TRUE(Like(u"!", u"!"));
    EXPECT_TRUE(Like(u"a]", u"[a]]"));
}

TEST(BasicLike, EmptyList) {
    EXPECT_TRUE(Like(u"", u"[]"));
    EXPECT_TRUE(Like(u"ab", u"a[]b"));
    EXPECT_FALSE(Like(u"a", u"[]"));
    EXPECT_TRUE(Like(u"a", u"[!]"));
    EXPECT_FALSE(Like(u"", u"[!]"));
}

TEST(BasicLike, InvalidPatterns) {
    EXPECT_EQ(errorNumberOf([] { Like(u"a", u"[a"); }), err::InvalidPattern);
    EXPECT_EQ(errorNumberOf([] { Like(u"a", u"["); }), err::InvalidPattern);
    EXPECT_EQ(errorNumberOf([] { Like(u"a", u"[!"); }), err::InvalidPattern);
    EXPECT_EQ(errorNumberOf([] { Like(u"a", u"[z-a]"); }), err::InvalidPattern);
    EXPECT_EQ(errorNumberOf([] { Like(u"", u"x[b-a]"); }), err::InvalidPattern);
    EXPECT_EQ(errorNumberOf([] { Like(u"zzz", u"a*[z-a]"); }), err::InvalidPattern);
    EXPECT_EQ(VbError::standardDescription(err::InvalidPattern), u"Invalid pattern string");
    EXPECT_EQ(errorNumberOf([] { Like(u"a", u"[a-a]"); }), 0);
}

TEST(BasicLike, TextCompareIgnoresCase) {
    EXPECT_TRUE(Like(u"HELLO", u"h*o", Compare::Text));
    EXPECT_FALSE(Like(u"HELLO", u"h*o", Compare::Binary));
    EXPECT_TRUE(Like(u"f", u"[A-Z]", Compare::Text));
    EXPECT_TRUE(Like(u"F", u"[a-z]", Compare::Text));
    EXPECT_FALSE(Like(u"f", u"[!A-Z]", Compare::Text));
    EXPECT_TRUE(Like(u"\u00C9T\u00C9", u"\u00E9t\u00E9", Compare::Text));
    EXPECT_FALSE(Like(u"\u00C9T\u00C9", u"\u00E9t\u00E9", Compare::Binary));
    EXPECT_TRUE(Like(u"\u0391\u0392", u"[\u03B1]\u03B2", Compare::Text));
}

TEST(BasicLike, SurrogatePairIsTwoUnits) {
    const Str smiley = u"\U0001F600";
    EXPECT_FALSE(Like(smiley, u"?"));
    EXPECT_TRUE(Like(smiley, u"??"));
    EXPECT_TRUE(Like(u"a" + smiley + u"b", u"a*b"));
}

TEST(BasicLike, ManyStarsStayFast) {
    Str text(20000, u'a');
    auto started = std::chrono::steady_clock::now();
    EXPECT_FALSE(Like(text, u"*a*a*a*a*a*a*a*a*b"));
    EXPECT_TRUE(Like(text + u"b", u"*a*a*a*a*a*a*a*a*b"));
    auto elapsed = std::chrono::steady_clock::now() - started;
    EXPECT_LT(std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count(), 1000);
}

// A plain recursive matcher for patterns without lists, written from the operator's definition.
bool referenceLike(const Str& text, size_t t, const Str& pattern, size_t p) {
    if (p == pattern.size()) return t == text.size();
    char16_t c = pattern[p];
    if (c == u'*') {
        for (size_t k = t; k <= text.size(); ++k)
            if (referenceLike(text, k, pattern, p + 1)) return true;
        return false;
    }
    if (t == text.size()) return false;
    bool one = c == u'?' || (c == u'#' ? (text[t] >= u'0' && text[t] <= u'9') : text[t] == c);
    return one && referenceLike(text, t + 1, pattern, p + 1);
}

TEST(BasicLike, AgreesWithReferenceMatcherRandomised) {
    std::mt19937 random(7);
    const Str textAlphabet = u"ab1";
    const Str patternAlphabet = u"ab1*?#";
    for (int round = 0; round < 5000; ++round) {
        Str text, pattern;
        size_t textLength = random() % 9, patternLength = random() % 7;
        for (size_t i = 0; i < textLength; ++i) text += textAlphabet[random() % textAlphabet.size()];
        for (size_t i = 0; i < patternLength; ++i) pattern += patternAlphabet[random() % patternAlphabet.size()];
        EXPECT_EQ(Like(text, pattern), referenceLike(text, 0, pattern, 0))
            << toUtf8(text) << " Like " << toUtf8(pattern);
    }
}

TEST(BasicLike, ListOfOneAgreesWithLiteralRandomised) {
    std::mt19937 random(11);
    const Str alphabet = u"aAbB*?#1";
    for (int round = 0; round < 2000; ++round) {
        Str text;
        for (size_t i = 0, n = random() % 6; i < n; ++i) text += alphabet[random() % alphabet.size()];
        char16_t c = alphabet[random() % alphabet.size()];
        Str bracketed = u"*[" + Str(1, c) + u"]*";
        bool expected = c == u'*' || c == u'?' || c == u'#' ? InStr(text, Str(1, c)) > 0
                                                              : InStr(1, text, Str(1, c), Compare::Text) > 0;
        EXPECT_EQ(Like(text, bracketed, Compare::Text), expected) << toUtf8(text) << " Like " << toUtf8(bracketed);
    }
}

}  // namespace
}  // namespace quillet::basic
