#include "source/proc_arguments.h"

#include <gtest/gtest.h>

namespace quillet::source {
namespace {

C4_ProcArgument argument(const Str& text) {
    C4_ProcArgument a;
    a.init(text);
    return a;
}

C4_ProcArguments arguments(const Str& signature) {
    C4_ProcArguments a;
    a.init(signature);
    return a;
}

TEST(SourceProcArguments, EmptyParenthesesGiveNoArguments) {
    auto a = arguments(u"Sub A()");
    EXPECT_EQ(a.Count(), 0);
    EXPECT_EQ(a.ShortStringOfArguments(), u"");
    EXPECT_EQ(a.StringOfArguments(), u"");
}

TEST(SourceProcArguments, AOneCharacterListGivesNoArguments) {
    auto a = arguments(u"Sub A(x)");
    EXPECT_EQ(a.Count(), 0);
    EXPECT_EQ(a.StringOfArguments(), u"");
}

TEST(SourceProcArguments, TwoCharactersGiveOneArgument) {
    auto a = arguments(u"Sub A(xy)");
    ASSERT_EQ(a.Count(), 1);
    const auto& xy = *a.Items.Item(1);
    EXPECT_EQ(xy.Name, u"xy");
    EXPECT_FALSE(xy.IsPassedByVal);
    EXPECT_EQ(xy.PassedBy(), u"ByRef");
    EXPECT_EQ(xy.Type_, u"Variant");
    EXPECT_EQ(a.ShortStringOfArguments(), u"xy");
}

TEST(SourceProcArguments, OptionalByValWithDefault) {
    auto n = argument(u"Optional ByVal n As Long = 5");
    EXPECT_TRUE(n.IsOptional);
    EXPECT_TRUE(n.IsPassedByVal);
    EXPECT_EQ(n.PassedBy(), u"ByVal");
    EXPECT_EQ(n.Name, u"n");
    EXPECT_EQ(n.Type_, u"Long");
    EXPECT_EQ(n.DefaultValue, u"5");
    EXPECT_EQ(n.ArgDef(), u"Optional ByVal n As Long = 5");
}

TEST(SourceProcArguments, AOneCharacterDefaultWithoutABlankIsLost) {
    EXPECT_EQ(argument(u"Optional n As Long =5").DefaultValue, u"");
    EXPECT_EQ(argument(u"Optional n As Long =50").DefaultValue, u"50");
    EXPECT_EQ(argument(u"Optional n As Long = 5").DefaultValue, u"5");
    EXPECT_EQ(argument(u"Optional n = 5").DefaultValue, u"5");
    EXPECT_EQ(argument(u"Optional n = 5").Type_, u"Variant");
}

TEST(SourceProcArguments, ParamArray) {
    auto v = argument(u"ParamArray v() As Variant");
    EXPECT_TRUE(v.IsParamArray);
    EXPECT_TRUE(v.IsArray);
    EXPECT_EQ(v.PassedBy(), u"ByRef");
    EXPECT_EQ(v.Name, u"v");
    EXPECT_EQ(v.Type_, u"Variant");
}

TEST(SourceProcArguments, ByRefArraysAndSuffixes) {
    auto r = argument(u"ByRef rcol As Collection");
    EXPECT_FALSE(r.IsPassedByVal);
    EXPECT_EQ(r.Name, u"rcol");
    EXPECT_EQ(r.Type_, u"Collection");
    auto a = argument(u"a(1 To 3) As Long");
    EXPECT_TRUE(a.IsArray);
    EXPECT_EQ(a.Type_, u"Long");
    // Suffixes are not resolved here.
    auto s = argument(u"s$");
    EXPECT_EQ(s.Name, u"s$");
    EXPECT_EQ(s.Type_, u"Variant");
    // Keywords compare binary.
    auto lower = argument(u"optional byval x As Long");
    EXPECT_FALSE(lower.IsOptional);
    EXPECT_EQ(lower.Name, u"optional");
    // Short texts.
    auto b = argument(u"ByVal");
    EXPECT_EQ(b.PassedBy(), u"ByRef");
    EXPECT_EQ(b.Name, u"ByVal");
    auto empty = argument(u"  ");
    EXPECT_EQ(empty.Name, u"");
    EXPECT_EQ(empty.PassedBy(), u"");
}

TEST(SourceProcArguments, AStringDefaultWithACommaIsOneArgument) {
    auto a = arguments(u"Sub A(Optional s = \"a,b\")");
    ASSERT_EQ(a.Count(), 1);
    EXPECT_EQ(a.Items.Item(1)->DefaultValue, u"\"a,b\"");
    EXPECT_EQ(a.ShortStringOfArguments(), u"[s]");
}

TEST(SourceProcArguments, ShortStringMarksOptionalArguments) {
    auto a = arguments(u"Function F(a, Optional b = 1) As Long");
    EXPECT_EQ(a.ShortStringOfArguments(), u"a, [b]");
    EXPECT_EQ(a.StringOfArguments(), u"a, Optional b = 1");
    // A default with a comma outside quotes is cut there.
    auto cut = arguments(u"Sub S(Optional p = Array(1, 2), q)");
    EXPECT_EQ(cut.Count(), 3);
    // A name twice keeps its first place.
    auto twice = arguments(u"Sub S(a As Long, b, a As String)");
    EXPECT_EQ(twice.Count(), 2);
    EXPECT_EQ(twice.Items.Item(u"a")->Type_, u"Long");
    // Parentheses in strings are passed over; the last ")" ends the list.
    auto quoted = arguments(u"Sub S(Optional t = \")(\", u)");
    EXPECT_EQ(quoted.Count(), 2);
    EXPECT_EQ(quoted.Items.Item(1)->DefaultValue, u"\")(\"");
}

}  // namespace
}  // namespace quillet::source
