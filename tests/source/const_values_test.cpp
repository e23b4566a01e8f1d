// A constant's value as a literal of its type, and whether a picked-up value suits a type.

#include <gtest/gtest.h>

#include "source/const_values.h"

namespace quillet::source {
namespace {

TEST(ConstValueFormat, StringConstantsOfBasicStayBareInAnyCase) {
    for (const char16_t* name : {u"vbNullString", u"vbBack", u"vbCr", u"vbCrLf", u"vbFormFeed", u"vbLf", u"vbNewLine",
                                 u"vbTab", u"vbVerticalTab", u"VBCRLF"})
        EXPECT_EQ(ConstValueFormat(name, 8), Str(name));
}

TEST(ConstValueFormat, VbNullCharIsQuotedUnlessWrittenWithTheLeadingBlank) {
    EXPECT_EQ(ConstValueFormat(u"vbNullChar", 8), u"\"vbNullChar\"");
    EXPECT_EQ(ConstValueFormat(u" vbNullChar", 8), u" vbNullChar");
}

TEST(ConstValueFormat, KnownStringConstantsStayBareOthersAreQuoted) {
    auto known = [](const Str& name) { return name == u"gcstrApp"; };
    EXPECT_EQ(ConstValueFormat(u"gcstrApp", 8, known), u"gcstrApp");
    EXPECT_EQ(ConstValueFormat(u"Hello", 8, known), u"\"Hello\"");
    EXPECT_EQ(ConstValueFormat(u"\"Hello\"", 8, known), u"\"Hello\"");
    EXPECT_EQ(ConstValueFormat(u"", 8, known), u"\"\"");
    EXPECT_EQ(ConstValueFormat(u"12", 8, known), u"12");
}

TEST(ConstValueFormat, DatesGoBetweenHashSignsOnce) {
    EXPECT_EQ(ConstValueFormat(u"3/4/2025", 7), u"#03/04/2025#");
    EXPECT_EQ(ConstValueFormat(u"#3/4/2025#", 7), u"#3/4/2025#");
    EXPECT_EQ(ConstValueFormat(u"10:30", 7), u"#10:30#");
    EXPECT_EQ(ConstValueFormat(u"45000", 7), u"45000");
    EXPECT_EQ(ConstValueFormat(u"", 7), u"0");
}

TEST(ConstValueFormat, BooleansFollowTheirNumber) {
    EXPECT_EQ(ConstValueFormat(u"0", 11), u"False");
    EXPECT_EQ(ConstValueFormat(u"-1", 11), u"True");
    EXPECT_EQ(ConstValueFormat(u"5", 11), u"True");
    EXPECT_EQ(ConstValueFormat(u"tRuE", 11), u"True");
    EXPECT_EQ(ConstValueFormat(u"", 11), u"False");
}

TEST(ConstValueFormat, OtherTypesTakeTheTextAsItIs) {
    EXPECT_EQ(ConstValueFormat(u"42", 3), u"42");
    EXPECT_EQ(ConstValueFormat(u"&HFF", 3), u"&HFF");
    EXPECT_EQ(ConstValueFormat(u"", 3), u"");
    EXPECT_EQ(ConstValueFormat(u"1.5", 5), u"1.5");
}

TEST(ConstValueFormat, AVariantTakesTheKindItsTextReadsAs) {
    EXPECT_EQ(ConstValueFormat(u"42", 0), u"42");
    EXPECT_EQ(ConstValueFormat(u"", 0), u"");
    EXPECT_EQ(ConstValueFormat(u"true", 0), u"True");
    EXPECT_EQ(ConstValueFormat(u"1/2/2020", 0), u"#01/02/2020#");
    EXPECT_EQ(ConstValueFormat(u"abc", 0), u"\"abc\"");
    EXPECT_EQ(ConstValueFormat(u"abc", 10009), u"\"abc\"");
}

TEST(ValueConvertsTo, NumbersWithinTheTypesRange) {
    EXPECT_TRUE(ValueConvertsTo(u"255", u"Byte"));
    EXPECT_FALSE(ValueConvertsTo(u"256", u"byte"));
    EXPECT_FALSE(ValueConvertsTo(u"-1", u"Byte"));
    EXPECT_TRUE(ValueConvertsTo(u"-32768", u"Integer"));
    EXPECT_FALSE(ValueConvertsTo(u"32768", u"Integer"));
    EXPECT_TRUE(ValueConvertsTo(u"2147483647", u"LONG"));
    EXPECT_FALSE(ValueConvertsTo(u"2147483648", u"Long"));
    EXPECT_FALSE(ValueConvertsTo(u"abc", u"Long"));
    EXPECT_TRUE(ValueConvertsTo(u"1.5E+30", u"Single"));
    EXPECT_FALSE(ValueConvertsTo(u"1E+39", u"Single"));
    EXPECT_TRUE(ValueConvertsTo(u"1E+39", u"Double"));
    EXPECT_TRUE(ValueConvertsTo(u"12.34", u"Currency"));
    EXPECT_TRUE(ValueConvertsTo(u"12.34", u"Decimal"));
}

TEST(ValueConvertsTo, BooleansDatesAndStrings) {
    EXPECT_TRUE(ValueConvertsTo(u"False", u"Boolean"));
    EXPECT_TRUE(ValueConvertsTo(u"0", u"Boolean"));
    EXPECT_FALSE(ValueConvertsTo(u"maybe", u"Boolean"));
    EXPECT_TRUE(ValueConvertsTo(u"12/31/2024", u"Date"));
    EXPECT_TRUE(ValueConvertsTo(u"#12/31/2024#", u"Date"));
    EXPECT_FALSE(ValueConvertsTo(u"Total", u"Date"));
    EXPECT_TRUE(ValueConvertsTo(u"anything at all", u"String"));
    EXPECT_TRUE(ValueConvertsTo(u"anything", u"Variant"));
}

}  // namespace
}  // namespace quillet::source
