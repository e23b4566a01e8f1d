#include "source/literals.h"

#include <gtest/gtest.h>

namespace quillet::source {
namespace {

TEST(SourceLiterals, WrapTextMakesACommentBlock) {
    EXPECT_EQ(WrapText(u"Short line\r\nSecond"), u"'   Short line\r\n'   Second\r\n");
    Str fifty(50, u'x');
    EXPECT_EQ(WrapText(fifty), u"'   " + fifty + u"\r\n");
    // Cut at the first blank at column 50 or beyond; the blank goes.
    Str longLine = Str(49, u'a') + u" bb cc " + Str(60, u'd') + u" e";
    EXPECT_EQ(WrapText(longLine), u"'   " + Str(49, u'a') + u"\r\n'   bb cc " + Str(60, u'd') + u"\r\n'   e\r\n");
    // No blank at 50 or beyond: whole.
    Str noBlank = u"a " + Str(70, u'z');
    EXPECT_EQ(WrapText(noBlank), u"'   " + noBlank + u"\r\n");
    EXPECT_EQ(WrapText(u""), u"");
}

TEST(SourceLiterals, QuoteValueByType) {
    EXPECT_EQ(QuoteValue(u"12.5", u"String"), u"12.5");
    EXPECT_EQ(QuoteValue(u"abc", u"String"), u"\"abc\"");
    EXPECT_EQ(QuoteValue(u"\"abc\"", u"String"), u"\"abc\"");
    EXPECT_EQ(QuoteValue(u"abc", u"Variant"), u"\"abc\"");
    EXPECT_EQ(QuoteValue(u"1/2/2020", u"Date"), u"#1/2/2020#");
    EXPECT_EQ(QuoteValue(u"#1/2/2020#", u"Date"), u"#1/2/2020#");
    EXPECT_EQ(QuoteValue(u"2020-01-02", u"Variant"), u"#2020-01-02#");
    EXPECT_EQ(QuoteValue(u"10:30 PM", u"date"), u"#10:30 PM#");
    EXPECT_EQ(QuoteValue(u"", u"Long"), u"0");
    EXPECT_EQ(QuoteValue(u"", u"String"), u"\"\"");
    EXPECT_EQ(QuoteValue(u"xlUp", u"Long"), u"xlUp");
}

TEST(SourceLiterals, LooksLikeDate) {
    EXPECT_TRUE(LooksLikeDate(u"12/31/1999"));
    EXPECT_TRUE(LooksLikeDate(u"31.12.1999"));
    EXPECT_TRUE(LooksLikeDate(u"1999-12-31 23:59:59"));
    EXPECT_FALSE(LooksLikeDate(u"12/31"));
    EXPECT_FALSE(LooksLikeDate(u"a/b/c"));
    EXPECT_FALSE(LooksLikeDate(u""));
}

TEST(SourceLiterals, LiteralFormatByKind) {
    using basic::Variant;
    EXPECT_EQ(LiteralFormat(Variant(true)), u"True");
    EXPECT_EQ(LiteralFormat(Variant(false)), u"False");
    EXPECT_EQ(LiteralFormat(Variant(42LL)), u"42");
    EXPECT_EQ(LiteralFormat(Variant(0.5)), u"0.5");
    EXPECT_EQ(LiteralFormat(Variant()), u"");
    EXPECT_EQ(LiteralFormat(Variant(Str(u"say \"hi\""))), u"\"say \"\"hi\"\"\"");
    EXPECT_EQ(LiteralFormat(Variant(Str(u"vbCrLf"))), u"vbCrLf");
    EXPECT_EQ(LiteralFormat(Variant(Str(u"vbTab"))), u"vbTab");
    // The entry " vbNullChar" has its blank: the name typed without it is quoted.
    EXPECT_EQ(LiteralFormat(Variant(Str(u"vbNullChar"))), u"\"vbNullChar\"");
    EXPECT_EQ(LiteralFormat(Variant(Str(u" vbNullChar"))), u" vbNullChar");
    auto known = [](const Str& name) { return name == u"cstrTitle"; };
    EXPECT_EQ(LiteralFormat(Variant(Str(u"cstrTitle")), known), u"cstrTitle");
    EXPECT_EQ(LiteralFormat(Variant(Str(u"cstrOther")), known), u"\"cstrOther\"");
    EXPECT_EQ(LiteralFormat(Variant(Str(u"2020-1-2")), {}, true), u"#01/02/2020#");
    EXPECT_EQ(LiteralFormat(Variant(Str(u"3/4/5")), {}, true), u"#03/04/2005#");
    EXPECT_EQ(LiteralFormat(Variant(Str(u"3/4/99")), {}, true), u"#03/04/1999#");
    EXPECT_EQ(LiteralFormat(Variant(Str(u"1/2/2020 10:00")), {}, true), u"#1/2/2020 10:00#");
}

TEST(SourceLiterals, ToBoolean) {
    for (const char16_t* yes : {u"true", u"TRUE", u"Yes", u"-1", u"1"}) EXPECT_TRUE(ToBoolean(yes)) << basic::Str(yes).size();
    for (const char16_t* no : {u"false", u"no", u"0", u"2", u" true"}) EXPECT_FALSE(ToBoolean(no, true));
    EXPECT_TRUE(ToBoolean(u"", true));
    EXPECT_FALSE(ToBoolean(u"", false));
}

}  // namespace
}  // namespace quillet::source
