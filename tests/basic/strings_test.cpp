#include "basic/strings.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>

#include "basic/test_helpers.h"

namespace quillet::basic {
namespace {

const Str eAcute = u"\u00E9";
const Str EAcute = u"\u00C9";
const Str smiley = u"\U0001F600";  // one character, two UTF-16 units

TEST(BasicStrings, LenCountsUtf16Units) {
    EXPECT_EQ(Len(u""), 0);
    EXPECT_EQ(Len(u"abc"), 3);
    EXPECT_EQ(Len(eAcute), 1);
    EXPECT_EQ(Len(smiley), 2);
    EXPECT_EQ(Len(u"a" + smiley + u"b"), 4);
}

TEST(BasicStrings, MidWithStartOnly) {
    EXPECT_EQ(Mid(u"abcdef", 1), u"abcdef");
    EXPECT_EQ(Mid(u"abcdef", 3), u"cdef");
    EXPECT_EQ(Mid(u"abcdef", 6), u"f");
    EXPECT_EQ(Mid(u"abcdef", 7), u"");
    EXPECT_EQ(Mid(u"abcdef", 1000), u"");
    EXPECT_EQ(Mid(u"", 1), u"");
    EXPECT_EQ(errorNumberOf([] { Mid(u"abc", 0); }), err::InvalidCall);
    EXPECT_EQ(errorNumberOf([] { Mid(u"abc", -1); }), err::InvalidCall);
}

TEST(BasicStrings, MidWithLength) {
    EXPECT_EQ(Mid(u"abcdef", 2, 3), u"bcd");
    EXPECT_EQ(Mid(u"abcdef", 2, 0), u"");
    EXPECT_EQ(Mid(u"abcdef", 5, 100), u"ef");
    EXPECT_EQ(Mid(u"abcdef", 7, 1), u"");
    EXPECT_EQ(Mid(u"", 1, 0), u"");
    EXPECT_EQ(errorNumberOf([] { Mid(u"abc", 0, 1); }), err::InvalidCall);
    EXPECT_EQ(errorNumberOf([] { Mid(u"abc", 1, -1); }), err::InvalidCall);
    EXPECT_EQ(errorNumberOf([] { Mid(u"abc", 10, -1); }), err::InvalidCall);
    // A surrogate pair is two positions: Mid can split it.
    EXPECT_EQ(Mid(u"a" + smiley, 2, 1), smiley.substr(0, 1));
}

TEST(BasicStrings, LeftAndRight) {
    EXPECT_EQ(Left(u"abcdef", 0), u"");
    EXPECT_EQ(Left(u"abcdef", 2), u"ab");
    EXPECT_EQ(Left(u"abcdef", 6), u"abcdef");
    EXPECT_EQ(Left(u"abcdef", 100), u"abcdef");
    EXPECT_EQ(Right(u"abcdef", 0), u"");
    EXPECT_EQ(Right(u"abcdef", 2), u"ef");
    EXPECT_EQ(Right(u"abcdef", 100), u"abcdef");
    EXPECT_EQ(Right(u"", 1), u"");
    EXPECT_EQ(errorNumberOf([] { Left(u"abc", -1); }), err::InvalidCall);
    EXPECT_EQ(errorNumberOf([] { Right(u"abc", -1); }), err::InvalidCall);
}

TEST(BasicStrings, InStrFindsFirstMatch) {
    EXPECT_EQ(InStr(u"abcabc", u"bc"), 2);
    EXPECT_EQ(InStr(u"abcabc", u"x"), 0);
    EXPECT_EQ(InStr(u"abc", u"abcd"), 0);
    EXPECT_EQ(InStr(3, u"abcabc", u"bc"), 5);
    EXPECT_EQ(InStr(5, u"abcabc", u"bc"), 5);
    EXPECT_EQ(InStr(6, u"abcabc", u"bc"), 0);
    EXPECT_EQ(InStr(4, u"XXpXXpXXPXXP", u"P", Compare::Text), 6);
    EXPECT_EQ(InStr(1, u"XXpXXpXXPXXP", u"P", Compare::Binary), 9);
}

TEST(BasicStrings, InStrBoundaries) {
    EXPECT_EQ(InStr(u"abc", u""), 1);
    EXPECT_EQ(InStr(2, u"abc", u""), 2);
    EXPECT_EQ(InStr(3, u"abc", u""), 3);
    EXPECT_EQ(InStr(4, u"abc", u""), 0);
    EXPECT_EQ(InStr(u"", u""), 0);
    EXPECT_EQ(InStr(u"", u"a"), 0);
    EXPECT_EQ(InStr(4, u"abc", u"c"), 0);
    EXPECT_EQ(InStr(100, u"abc", u"c"), 0);
    EXPECT_EQ(errorNumberOf([] { InStr(0, u"abc", u"a"); }), err::InvalidCall);
    EXPECT_EQ(errorNumberOf([] { InStr(-1, u"abc", u"a"); }), err::InvalidCall);
    EXPECT_EQ(errorNumberOf([] { InStr(0, u"", u""); }), err::InvalidCall);
}

TEST(BasicStrings, InStrTextCompareIgnoresCaseBeyondAscii) {
    EXPECT_EQ(InStr(u"Caf" + EAcute, u"CAF" + eAcute), 0);
    EXPECT_EQ(InStr(1, u"Caf" + EAcute, u"CAF" + eAcute, Compare::Text), 1);
    EXPECT_EQ(InStr(1, u"x\u03A3\u0391", u"\u03C3\u03B1", Compare::Text), 2);  // Greek
    EXPECT_EQ(InStr(1, u"xy\u0416", u"\u0436", Compare::Text), 3);            // Cyrillic
    EXPECT_EQ(InStr(1, u"a" + smiley + u"b", u"b"), 4);
}

TEST(BasicStrings, InStrRevSearchesBackwards) {
    EXPECT_EQ(InStrRev(u"abcabc", u"bc"), 5);
    EXPECT_EQ(InStrRev(u"abcabc", u"bc", -1), 5);
    EXPECT_EQ(InStrRev(u"abcabc", u"bc", 6), 5);
    EXPECT_EQ(InStrRev(u"abcabc", u"bc", 5), 2);
    EXPECT_EQ(InStrRev(u"abcabc", u"bc", 3), 2);
    EXPECT_EQ(InStrRev(u"abcabc", u"bc", 2), 0);
    EXPECT_EQ(InStrRev(u"abcabc", u"x"), 0);
    EXPECT_EQ(InStrRev(u"tttt", u"t", 1), 1);
    EXPECT_EQ(InStrRev(u"etttt", u"t", 1), 0);
    EXPECT_EQ(InStrRev(u"TEST", u"t", 4, Compare::Text), 4);
    EXPECT_EQ(InStrRev(u"TEST", u"t", 4, Compare::Binary), 0);
}

TEST(BasicStrings, InStrRevBoundaries) {
    EXPECT_EQ(InStrRev(u"abc", u"c", 4), 0);
    EXPECT_EQ(InStrRev(u"abc", u"", 2), 2);
    EXPECT_EQ(InStrRev(u"abc", u""), 3);
    EXPECT_EQ(InStrRev(u"abc", u"", 4), 0);
    EXPECT_EQ(InStrRev(u"", u""), 0);
    EXPECT_EQ(InStrRev(u"", u"a"), 0);
    EXPECT_EQ(InStrRev(u"ab", u"abc"), 0);
    EXPECT_EQ(errorNumberOf([] { InStrRev(u"abc", u"a", 0); }), err::InvalidCall);
    EXPECT_EQ(errorNumberOf([] { InStrRev(u"abc", u"a", -2); }), err::InvalidCall);
}

TEST(BasicStrings, TrimRemovesBlanksOnly) {
    EXPECT_EQ(Trim(u"  a b  "), u"a b");
    EXPECT_EQ(LTrim(u"  a b  "), u"a b  ");
    EXPECT_EQ(RTrim(u"  a b  "), u"  a b");
    EXPECT_EQ(Trim(u"    "), u"");
    EXPECT_EQ(Trim(u""), u"");
    EXPECT_EQ(Trim(u"\ta\t"), u"\ta\t");
    EXPECT_EQ(Trim(u"\u00A0a\u00A0"), u"\u00A0a\u00A0");
    EXPECT_EQ(LTrim(u"   "), u"");
    EXPECT_EQ(RTrim(u"   "), u"");
}

TEST(BasicStrings, CaseMapping) {
    EXPECT_EQ(UCase(u"abc xyz 123"), u"ABC XYZ 123");
    EXPECT_EQ(LCase(u"ABC XYZ 123"), u"abc xyz 123");
    EXPECT_EQ(UCase(eAcute), EAcute);
    EXPECT_EQ(LCase(EAcute), eAcute);
    EXPECT_EQ(UCase(u"\u00DF"), u"\u00DF");                 // sharp s stays
    EXPECT_EQ(UCase(u"\u00FF"), u"\u0178");                 // y with diaeresis
    EXPECT_EQ(LCase(u"\u0178"), u"\u00FF");
    EXPECT_EQ(UCase(u"\u00D7\u00F7"), u"\u00D7\u00F7");     // multiplication and division signs
    EXPECT_EQ(UCase(u"\u0101\u0107\u017E"), u"\u0100\u0106\u017D");  // Latin Extended-A
    EXPECT_EQ(LCase(u"\u0100\u0139\u017D"), u"\u0101\u013A\u017E");
    EXPECT_EQ(UCase(u"\u03B1\u03C9\u03C2\u03AC"), u"\u0391\u03A9\u03A3\u0386");  // Greek
    EXPECT_EQ(LCase(u"\u0391\u03A9\u03A3\u0386"), u"\u03B1\u03C9\u03C3\u03AC");
    EXPECT_EQ(UCase(u"\u0430\u044F\u0451"), u"\u0410\u042F\u0401");  // Cyrillic
    EXPECT_EQ(LCase(u"\u0410\u042F\u0401"), u"\u0430\u044F\u0451");
    EXPECT_EQ(UCase(smiley), smiley);
    EXPECT_EQ(UCase(u""), u"");
}

TEST(BasicStrings, CaseMappingRoundTripsOverEveryPair) {
    for (int c = 0; c < 0x530; ++c) {
        char16_t u = static_cast<char16_t>(c);
        char16_t upper = upperCase(u);
        if (upper != u) {
            EXPECT_EQ(lowerCase(upper), c == 0x03C2 ? 0x03C3 : c) << std::hex << c;
        }
        char16_t lower = lowerCase(u);
        if (lower != u) {
            EXPECT_EQ(upperCase(lower), u) << std::hex << c;
        }
        EXPECT_EQ(foldCase(u), upperCase(u));
    }
}

TEST(BasicStrings, ReplaceStartsResultAtStart) {
    EXPECT_EQ(Replace(u"abcabc", u"b", u"X"), u"aXcaXc");
    EXPECT_EQ(Replace(u"abcabc", u"b", u"X", 3), u"caXc");
    EXPECT_EQ(Replace(u"abcabc", u"b", u"X", 1, 1), u"aXcabc");
    EXPECT_EQ(Replace(u"abcabc", u"b", u"X", 1, 0), u"abcabc");
    EXPECT_EQ(Replace(u"abcabc", u"B", u"X", 1, -1, Compare::Text), u"aXcaXc");
    EXPECT_EQ(Replace(u"abcabc", u"B", u"X", 1, -1, Compare::Binary), u"abcabc");
    EXPECT_EQ(Replace(u"aaaa", u"aa", u"a"), u"aa");
    EXPECT_EQ(Replace(u"abc", u"b", u""), u"ac");
    EXPECT_EQ(Replace(u"abc", u"", u"X"), u"abc");
    EXPECT_EQ(Replace(u"abc", u"", u"X", 2), u"bc");
    EXPECT_EQ(Replace(u"", u"a", u"X"), u"");
    EXPECT_EQ(Replace(u"abc", u"c", u"X", 3), u"X");
    EXPECT_EQ(Replace(u"abc", u"a", u"X", 4), u"");
    EXPECT_EQ(errorNumberOf([] { Replace(u"abc", u"a", u"X", 0); }), err::InvalidCall);
    EXPECT_EQ(errorNumberOf([] { Replace(u"abc", u"a", u"X", 1, -2); }), err::InvalidCall);
}

TEST(BasicStrings, TextCompareOnLongTextStaysLinear) {
    Str text = String(200000, u'a');
    auto started = std::chrono::steady_clock::now();
    EXPECT_EQ(Replace(text, u"A", u"b", 1, -1, Compare::Text), String(200000, u'b'));
    EXPECT_EQ(Split(text, u"A", -1, Compare::Text).size(), 200001u);
    auto elapsed = std::chrono::steady_clock::now() - started;
    EXPECT_LT(std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count(), 2000);
}

TEST(BasicStrings, SplitPieces) {
    using V = std::vector<Str>;
    EXPECT_EQ(Split(u"a b c"), (V{u"a", u"b", u"c"}));
    EXPECT_EQ(Split(u"a,,b", u","), (V{u"a", u"", u"b"}));
    EXPECT_EQ(Split(u",", u","), (V{u"", u""}));
    EXPECT_EQ(Split(u""), V{});
    EXPECT_EQ(Split(u"", u","), V{});
    EXPECT_EQ(Split(u"abc", u""), V{u"abc"});
    EXPECT_EQ(Split(u"abc", u","), V{u"abc"});
    EXPECT_EQ(Split(u"a\r\nb\r\n", u"\r\n"), (V{u"a", u"b", u""}));
    EXPECT_EQ(Split(u"a,b,c", u",", 2), (V{u"a", u"b,c"}));
    EXPECT_EQ(Split(u"a,b,c", u",", 1), V{u"a,b,c"});
    EXPECT_EQ(Split(u"a,b,c", u",", 3), (V{u"a", u"b", u"c"}));
    EXPECT_EQ(Split(u"a,b,c", u",", 10), (V{u"a", u"b", u"c"}));
    EXPECT_EQ(Split(u"a,b,c", u",", 0), V{});
    EXPECT_EQ(Split(u"aXbxc", u"x", -1, Compare::Text), (V{u"a", u"b", u"c"}));
    EXPECT_EQ(Split(u"aXbxc", u"x", -1, Compare::Binary), (V{u"aXb", u"c"}));
    EXPECT_EQ(errorNumberOf([] { Split(u"a", u",", -2); }), err::InvalidCall);
}

TEST(BasicStrings, JoinPieces) {
    EXPECT_EQ(Join({}), u"");
    EXPECT_EQ(Join({u"a"}), u"a");
    EXPECT_EQ(Join({u"a", u"b"}), u"a b");
    EXPECT_EQ(Join({u"a", u"", u"b"}, u","), u"a,,b");
    EXPECT_EQ(Join({u"a", u"b"}, u""), u"ab");
    EXPECT_EQ(Join({u"", u""}, u"\r\n"), u"\r\n");
}

TEST(BasicStrings, SplitJoinRoundTripRandomised) {
    std::mt19937 random(20240611);
    const Str alphabet = u"ab,;\u00E9 ";
    const std::vector<Str> delimiters = {u",", u";", u",;", u" ", u"ab"};
    for (int round = 0; round < 2000; ++round) {
        Str text;
        size_t length = random() % 12;
        for (size_t i = 0; i < length; ++i) text += alphabet[random() % alphabet.size()];
        const Str& delimiter = delimiters[random() % delimiters.size()];
        auto parts = Split(text, delimiter);
        EXPECT_EQ(Join(parts, delimiter), text);
        if (!text.empty()) {
            long expected = 1;
            for (long at = InStr(1, text, delimiter); at; at = InStr(at + Len(delimiter), text, delimiter)) {
                ++expected;
                if (at + Len(delimiter) > Len(text)) break;
            }
            EXPECT_EQ(static_cast<long>(parts.size()), expected) << toUtf8(text);
        }
        for (const auto& part : parts) EXPECT_EQ(InStr(part, delimiter), 0);
    }
}

TEST(BasicStrings, StrCompBinaryAndText) {
    EXPECT_EQ(StrComp(u"abc", u"abc"), 0);
    EXPECT_EQ(StrComp(u"abc", u"abd"), -1);
    EXPECT_EQ(StrComp(u"abd", u"abc"), 1);
    EXPECT_EQ(StrComp(u"ab", u"abc"), -1);
    EXPECT_EQ(StrComp(u"abc", u"ab"), 1);
    EXPECT_EQ(StrComp(u"", u""), 0);
    EXPECT_EQ(StrComp(u"", u"a"), -1);
    EXPECT_EQ(StrComp(u"ABC", u"abc"), -1);
    EXPECT_EQ(StrComp(u"ABC", u"abc", Compare::Text), 0);
    EXPECT_EQ(StrComp(u"abc", u"ABD", Compare::Text), -1);
    EXPECT_EQ(StrComp(u"b", u"A", Compare::Text), 1);
    EXPECT_EQ(StrComp(EAcute, eAcute, Compare::Text), 0);
    EXPECT_NE(StrComp(EAcute, eAcute, Compare::Binary), 0);
    EXPECT_EQ(StrComp(u"\u03A3\u03C2", u"\u03C3\u03A3", Compare::Text), 0);
}

TEST(BasicStrings, SpaceAndString) {
    EXPECT_EQ(Space(0), u"");
    EXPECT_EQ(Space(3), u"   ");
    EXPECT_EQ(String(3, u'x'), u"xxx");
    EXPECT_EQ(String(0, u'x'), u"");
    EXPECT_EQ(errorNumberOf([] { Space(-1); }), err::InvalidCall);
    EXPECT_EQ(errorNumberOf([] { String(-1, u'x'); }), err::InvalidCall);
}

TEST(BasicStrings, ChrWAndAscW) {
    EXPECT_EQ(ChrW(65), u"A");
    EXPECT_EQ(ChrW(0x00E9), eAcute);
    EXPECT_EQ(ChrW(0), Str(1, u'\0'));
    EXPECT_EQ(ChrW(65535), u"\uFFFF");
    EXPECT_EQ(ChrW(-1), u"\uFFFF");
    EXPECT_EQ(ChrW(-32768), u"\u8000");
    EXPECT_EQ(errorNumberOf([] { ChrW(65536); }), err::InvalidCall);
    EXPECT_EQ(errorNumberOf([] { ChrW(-32769); }), err::InvalidCall);
    EXPECT_EQ(AscW(u"A"), 65);
    EXPECT_EQ(AscW(u"abc"), 97);
    EXPECT_EQ(AscW(u"\uFFFF"), 65535);
    EXPECT_EQ(AscW(smiley), 0xD83D);
    EXPECT_EQ(errorNumberOf([] { AscW(u""); }), err::InvalidCall);
    for (long code = 0; code < 65536; code += 97) EXPECT_EQ(AscW(ChrW(code)), code);
}

}  // namespace
}  // namespace quillet::basic
