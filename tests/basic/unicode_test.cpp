#include "basic/unicode.h"

#include <gtest/gtest.h>

#include <random>

#include "basic/test_helpers.h"

namespace quillet::basic {
namespace {

TEST(BasicUnicode, ToUtf8) {
    EXPECT_EQ(toUtf8(u""), "");
    EXPECT_EQ(toUtf8(u"abc"), "abc");
    EXPECT_EQ(toUtf8(u"\u00E9"), "\xC3\xA9");
    EXPECT_EQ(toUtf8(u"\u20AC"), "\xE2\x82\xAC");
    EXPECT_EQ(toUtf8(u"\U0001F600"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(toUtf8(Str(1, u'\0')), std::string(1, '\0'));
}

TEST(BasicUnicode, LoneSurrogatesBecomeReplacement) {
    const std::string replacement = "\xEF\xBF\xBD";
    EXPECT_EQ(toUtf8(Str(1, char16_t(0xD83D))), replacement);
    EXPECT_EQ(toUtf8(Str(1, char16_t(0xDE00))), replacement);
    EXPECT_EQ(toUtf8(Str{char16_t(0xDE00), char16_t(0xD83D)}), replacement + replacement);
    EXPECT_EQ(toUtf8(Str{char16_t(0xD83D), u'a'}), replacement + "a");
    EXPECT_EQ(toUtf8(Str{u'a', char16_t(0xD83D)}), "a" + replacement);
}

TEST(BasicUnicode, FromUtf8) {
    EXPECT_EQ(fromUtf8(""), u"");
    EXPECT_EQ(fromUtf8("abc"), u"abc");
    EXPECT_EQ(fromUtf8("\xC3\xA9"), u"\u00E9");
    EXPECT_EQ(fromUtf8("\xE2\x82\xAC"), u"\u20AC");
    EXPECT_EQ(fromUtf8("\xF0\x9F\x98\x80"), u"\U0001F600");
    EXPECT_EQ(fromUtf8("\xF4\x8F\xBF\xBF"), u"\U0010FFFF");
    EXPECT_EQ(u16("Sub Main()"), u"Sub Main()");
}

TEST(BasicUnicode, InvalidSequencesBecomeOneReplacementEach) {
    EXPECT_EQ(fromUtf8("\x80"), u"\uFFFD");
    EXPECT_EQ(fromUtf8("a\xFFz"), u"a\uFFFDz");
    EXPECT_EQ(fromUtf8("\xC0\xAF"), u"\uFFFD\uFFFD");          // overlong "/"
    EXPECT_EQ(fromUtf8("\xE0\x80\xAF"), u"\uFFFD\uFFFD\uFFFD"); // overlong, second byte out of range
    EXPECT_EQ(fromUtf8("\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD"); // an encoded surrogate
    EXPECT_EQ(fromUtf8("\xF4\x90\x80\x80"), u"\uFFFD\uFFFD\uFFFD\uFFFD");  // past U+10FFFF
    EXPECT_EQ(fromUtf8("\xE2\x82"), u"\uFFFD");                 // cut short at the end
    EXPECT_EQ(fromUtf8("\xE2\x82z"), u"\uFFFDz");               // cut short before a letter
    EXPECT_EQ(fromUtf8("\xF0\x9F\x98"), u"\uFFFD");
    EXPECT_EQ(fromUtf8("\xC3"), u"\uFFFD");
    EXPECT_EQ(fromUtf8("\xC3\xC3\xA9"), u"\uFFFD\u00E9");
}

TEST(BasicUnicode, RoundTripRandomised) {
    std::mt19937 random(3);
    for (int round = 0; round < 1000; ++round) {
        Str text;
        for (int i = 0, n = random() % 10; i < n; ++i) {
            char32_t cp = random() % 4 == 0 ? 0x10000 + random() % 0xFFFFF : random() % 0xD800;
            if (cp < 0x10000) {
                text += static_cast<char16_t>(cp);
            } else {
                cp -= 0x10000;
                text += static_cast<char16_t>(0xD800 + (cp >> 10));
                text += static_cast<char16_t>(0xDC00 + (cp & 0x3FF));
            }
        }
        EXPECT_EQ(fromUtf8(toUtf8(text)), text);
    }
}

TEST(BasicUnicode, ArbitraryBytesNeverFail) {
    std::mt19937 random(5);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes;
        for (int i = 0, n = random() % 8; i < n; ++i) bytes += static_cast<char>(random() % 256);
        Str text = fromUtf8(bytes);
        EXPECT_LE(text.size(), bytes.size());
        EXPECT_EQ(fromUtf8(toUtf8(text)), text);  // what came out is well formed
    }
}

}  // namespace
}  // namespace quillet::basic
