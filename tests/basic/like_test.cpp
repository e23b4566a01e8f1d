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

// A plain recursive matcher written from the operator's definition; -1 for an invalid pattern.
int referenceLike(const Str& text, size_t t, const Str& pattern, size_t p) {
    if (p == pattern.size()) return t == text.size();
    char16_t c = pattern[p];
    if (c == u'*') {
        int result = 0;
        for (size_t k = t; k <= text.size() && result == 0; ++k) result = referenceLike(text, k, pattern, p + 1);
        return result;
    }
    if (c == u'[') {
        size_t close = pattern.find(u']', p + 1);
        if (close == Str::npos) return -1;
        Str list = pattern.substr(p + 1, close - p - 1);
        bool negated = !list.empty() && list[0] == u'!';
        if (negated) list.erase(0, 1);
        bool in = false;
        for (size_t k = 0; k < list.size(); ++k) {
            bool range = k + 2 < list.size() && list[k + 1] == u'-';
            char16_t low = list[k], high = range ? list[k + 2] : list[k];
            if (high < low) return -1;
            if (t < text.size() && text[t] >= low && text[t] <= high) in = true;
            if (range) k += 2;
        }
        if (list.empty() && !negated) return referenceLike(text, t, pattern, close + 1);
        // The rest of the pattern must be valid even where this unit does not match.
        int rest = referenceLike(text, t + (t < text.size()), pattern, close + 1);
        if (rest < 0) return -1;
        return t < text.size() && in != negated ? rest : 0;
    }
    if (t == text.size()) return referenceLike(Str(), 0, pattern.substr(p + 1), 0) < 0 ? -1 : 0;
    bool one = c == u'?' || (c == u'#' ? (text[t] >= u'0' && text[t] <= u'9') : text[t] == c);
    int rest = referenceLike(text, t + 1, pattern, p + 1);
    if (rest < 0) return -1;
    return one ? rest : 0;
}

int likeOutcome(const Str& text, const Str& pattern) {
    try {
        return Like(text, pattern) ? 1 : 0;
    } catch (const VbError& e) {
        EXPECT_EQ(e.Number(), err::InvalidPattern);
        return -1;
    }
}

TEST(BasicLike, AgreesWithReferenceMatcherRandomised) {
    std::mt19937 random(7);
    const Str textAlphabet = u"ab1-!";
    const Str patternAlphabet = u"ab1*?#[]!-";
    int valid = 0;
    for (int round = 0; round < 20000; ++round) {
        Str text, pattern;
        size_t textLength = random() % 9, patternLength = random() % 8;
        for (size_t i = 0; i < textLength; ++i) text += textAlphabet[random() % textAlphabet.size()];
        for (size_t i = 0; i < patternLength; ++i) pattern += patternAlphabet[random() % patternAlphabet.size()];
        int expected = referenceLike(text, 0, pattern, 0);
        valid += expected >= 0;
        EXPECT_EQ(likeOutcome(text, pattern), expected) << toUtf8(text) << " Like " << toUtf8(pattern);
    }
    EXPECT_GT(valid, 10000);  // the draw exercises matching, not only pattern errors
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
