#include <gtest/gtest.h>

#include "basic/strings.h"
#include "basic/test_helpers.h"

namespace quillet::basic {
namespace {

TEST(BasicIsNumeric, PlainNumbers) {
    for (const char16_t* text : {u"0", u"1", u"123", u"-5", u"+5", u"1.5", u".5", u"5.", u"-.5", u"007"})
        EXPECT_TRUE(IsNumeric(text)) << toUtf8(Str(text));
}

TEST(BasicIsNumeric, BlanksAroundAreIgnored) {
    EXPECT_TRUE(IsNumeric(u" 1"));
    EXPECT_TRUE(IsNumeric(u"1 "));
    EXPECT_TRUE(IsNumeric(u"  1.5  "));
    EXPECT_TRUE(IsNumeric(u"\t1\t"));
    EXPECT_FALSE(IsNumeric(u"1 2"));
    EXPECT_FALSE(IsNumeric(u"- 1"));
}

TEST(BasicIsNumeric, EmptyAndBlankAreNot) {
    EXPECT_FALSE(IsNumeric(u""));
    EXPECT_FALSE(IsNumeric(u" "));
    EXPECT_FALSE(IsNumeric(u"   "));
    EXPECT_FALSE(IsNumeric(u"."));
    EXPECT_FALSE(IsNumeric(u"-"));
    EXPECT_FALSE(IsNumeric(u"+"));
    EXPECT_FALSE(IsNumeric(u"$"));
    EXPECT_FALSE(IsNumeric(u"()"));
}

TEST(BasicIsNumeric, Exponents) {
    EXPECT_TRUE(IsNumeric(u"1E5"));
    EXPECT_TRUE(IsNumeric(u"1e5"));
    EXPECT_TRUE(IsNumeric(u"1.5E+10"));
    EXPECT_TRUE(IsNumeric(u"1.5e-10"));
    EXPECT_TRUE(IsNumeric(u"1D5"));
    EXPECT_TRUE(IsNumeric(u"2d-3"));
    EXPECT_TRUE(IsNumeric(u"1E-400"));
    EXPECT_FALSE(IsNumeric(u"1E"));
    EXPECT_FALSE(IsNumeric(u"1E+"));
    EXPECT_FALSE(IsNumeric(u"E5"));
    EXPECT_FALSE(IsNumeric(u"1E5.5"));
    EXPECT_FALSE(IsNumeric(u"1E400"));
    EXPECT_FALSE(IsNumeric(u"1E99999999999999999999"));
    EXPECT_TRUE(IsNumeric(u"1.7976931348623157E+308"));
}

TEST(BasicIsNumeric, OnePointOneSign) {
    EXPECT_FALSE(IsNumeric(u"1.2.3"));
    EXPECT_FALSE(IsNumeric(u"--1"));
    EXPECT_FALSE(IsNumeric(u"+-1"));
    EXPECT_FALSE(IsNumeric(u"-1-"));
    EXPECT_TRUE(IsNumeric(u"1-"));
    EXPECT_TRUE(IsNumeric(u"1+"));
    EXPECT_TRUE(IsNumeric(u"(1)"));
    EXPECT_FALSE(IsNumeric(u"(-1)"));
    EXPECT_FALSE(IsNumeric(u"(1"));
    EXPECT_FALSE(IsNumeric(u"1)"));
}

TEST(BasicIsNumeric, ThousandsSeparatorsAndCurrency) {
    EXPECT_TRUE(IsNumeric(u"1,000"));
    EXPECT_TRUE(IsNumeric(u"1,000,000.25"));
    EXPECT_TRUE(IsNumeric(u"-1,000"));
    EXPECT_FALSE(IsNumeric(u",1"));
    EXPECT_FALSE(IsNumeric(u"1.000,5"));
    EXPECT_TRUE(IsNumeric(u"$1"));
    EXPECT_TRUE(IsNumeric(u"$1,000.50"));
    EXPECT_TRUE(IsNumeric(u"-$1"));
    EXPECT_TRUE(IsNumeric(u"$-1"));
    EXPECT_TRUE(IsNumeric(u"1$"));
    EXPECT_FALSE(IsNumeric(u"$$1"));
    EXPECT_FALSE(IsNumeric(u"\u20AC1"));
}

TEST(BasicIsNumeric, HexAndOctalLiterals) {
    EXPECT_TRUE(IsNumeric(u"&H1F"));
    EXPECT_TRUE(IsNumeric(u"&hff"));
    EXPECT_TRUE(IsNumeric(u" &H10 "));
    EXPECT_TRUE(IsNumeric(u"&O17"));
    EXPECT_TRUE(IsNumeric(u"&o7"));
    EXPECT_TRUE(IsNumeric(u"&HFFFFFFFFFFFFFFFF"));
    EXPECT_TRUE(IsNumeric(u"&H0000000000000000001"));
    EXPECT_FALSE(IsNumeric(u"&H10000000000000000"));
    EXPECT_TRUE(IsNumeric(u"&O1777777777777777777777"));
    EXPECT_FALSE(IsNumeric(u"&O2000000000000000000000"));
    EXPECT_FALSE(IsNumeric(u"&H"));
    EXPECT_FALSE(IsNumeric(u"&O"));
    EXPECT_FALSE(IsNumeric(u"&HG"));
    EXPECT_FALSE(IsNumeric(u"&O8"));
    EXPECT_FALSE(IsNumeric(u"&X1"));
    EXPECT_FALSE(IsNumeric(u"-&H1"));
    EXPECT_FALSE(IsNumeric(u"&H1.5"));
}

TEST(BasicIsNumeric, WordsAreNot) {
    for (const char16_t* text : {u"abc", u"1a", u"a1", u"True", u"1 000", u"0x1F", u"1%", u"\uFF11", u"1\u00A0"})
        EXPECT_FALSE(IsNumeric(text)) << toUtf8(Str(text));
}

TEST(BasicParseNumber, Values) {
    EXPECT_EQ(parseNumber(u" 1,234.5 "), 1234.5L);
    EXPECT_EQ(parseNumber(u"-2.5E2"), -250.0L);
    EXPECT_EQ(parseNumber(u"(3)"), -3.0L);
    EXPECT_EQ(parseNumber(u"4-"), -4.0L);
    EXPECT_EQ(parseNumber(u"$5"), 5.0L);
    EXPECT_EQ(parseNumber(u"&H1F"), 31.0L);
    EXPECT_EQ(parseNumber(u"&O17"), 15.0L);
    EXPECT_EQ(parseNumber(u"&HFFFF"), -1.0L);
    EXPECT_EQ(parseNumber(u"&H8000"), -32768.0L);
    EXPECT_EQ(parseNumber(u"&H10000"), 65536.0L);
    EXPECT_EQ(parseNumber(u"&HFFFFFFFF"), -1.0L);
    EXPECT_EQ(parseNumber(u"&H7FFFFFFF"), 2147483647.0L);
    EXPECT_EQ(parseNumber(u"&HFFFFFFFFFFFFFFFF"), -1.0L);
    EXPECT_EQ(parseNumber(u"9223372036854775807"), 9223372036854775807.0L);
    EXPECT_FALSE(parseNumber(u"x").has_value());
}

}  // namespace
}  // namespace quillet::basic
