#include "basic/variant.h"

#include <gtest/gtest.h>

#include <cmath>

#include "basic/dispatch.h"
#include "basic/test_helpers.h"

namespace quillet::basic {
namespace {

class FakeWorkbook : public Dispatch {
public:
    Str TypeName() const override { return u"Workbook"; }
    Variant Get(const Str&, const Args&) override { return Str(u"Book1"); }
    void Put(const Str&, const Variant&, const Args&) override {}
    Variant Call(const Str&, const Args&) override { return Empty{}; }
};

TEST(BasicVariant, CStrOfEveryKind) {
    EXPECT_EQ(CStr(Empty{}), u"");
    EXPECT_EQ(CStr(true), u"True");
    EXPECT_EQ(CStr(false), u"False");
    EXPECT_EQ(CStr(42LL), u"42");
    EXPECT_EQ(CStr(-9223372036854775807LL - 1), u"-9223372036854775808");
    EXPECT_EQ(CStr(Str(u"abc")), u"abc");
    EXPECT_EQ(errorNumberOf([] { CStr(DispatchPtr(std::make_shared<FakeWorkbook>())); }), err::TypeMismatch);
}

TEST(BasicVariant, CStrOfDoublePrintsLikeBasic) {
    EXPECT_EQ(CStr(1.5), u"1.5");
    EXPECT_EQ(CStr(0.1), u"0.1");
    EXPECT_EQ(CStr(0.0), u"0");
    EXPECT_EQ(CStr(-0.0), u"0");
    EXPECT_EQ(CStr(3.0), u"3");
    EXPECT_EQ(CStr(-2.25), u"-2.25");
    EXPECT_EQ(CStr(1e20), u"1E+20");
    EXPECT_EQ(CStr(1e15), u"1E+15");
    EXPECT_EQ(CStr(123456789012345.0), u"123456789012345");
    EXPECT_EQ(CStr(1.0 / 3.0), u"0.333333333333333");
    EXPECT_EQ(CStr(2.0 / 3.0), u"0.666666666666667");
    EXPECT_EQ(CStr(0.0001), u"0.0001");
    EXPECT_EQ(CStr(0.00001), u"1E-05");
    EXPECT_EQ(CStr(1.5e-300), u"1.5E-300");
    EXPECT_EQ(CStr(0.1 + 0.2), u"0.3");
}

TEST(BasicVariant, CLngRoundsHalfToEven) {
    EXPECT_EQ(CLng(0.5), 0);
    EXPECT_EQ(CLng(1.5), 2);
    EXPECT_EQ(CLng(2.5), 2);
    EXPECT_EQ(CLng(3.5), 4);
    EXPECT_EQ(CLng(-0.5), 0);
    EXPECT_EQ(CLng(-1.5), -2);
    EXPECT_EQ(CLng(-2.5), -2);
    EXPECT_EQ(CLng(2.4999), 2);
    EXPECT_EQ(CLng(2.5001), 3);
    EXPECT_EQ(CLng(-2.6), -3);
}

TEST(BasicVariant, CLngOfOtherKinds) {
    EXPECT_EQ(CLng(Empty{}), 0);
    EXPECT_EQ(CLng(true), -1);
    EXPECT_EQ(CLng(false), 0);
    EXPECT_EQ(CLng(77LL), 77);
    EXPECT_EQ(CLng(Str(u" 12 ")), 12);
    EXPECT_EQ(CLng(Str(u"2.5")), 2);
    EXPECT_EQ(CLng(Str(u"1,000")), 1000);
    EXPECT_EQ(CLng(Str(u"&HFF")), 255);
    EXPECT_EQ(CLng(Str(u"9223372036854775807")), 9223372036854775807LL);
    EXPECT_EQ(errorNumberOf([] { CLng(Str(u"abc")); }), err::TypeMismatch);
    EXPECT_EQ(errorNumberOf([] { CLng(Str(u"")); }), err::TypeMismatch);
    EXPECT_EQ(errorNumberOf([] { CLng(1e19); }), err::Overflow);
    EXPECT_EQ(errorNumberOf([] { CLng(-1e19); }), err::Overflow);
    EXPECT_EQ(errorNumberOf([] { CLng(std::nan("")); }), err::Overflow);
    EXPECT_EQ(errorNumberOf([] { CLng(DispatchPtr()); }), err::TypeMismatch);
}

TEST(BasicVariant, CBool) {
    EXPECT_FALSE(CBool(Empty{}));
    EXPECT_TRUE(CBool(true));
    EXPECT_TRUE(CBool(-1LL));
    EXPECT_TRUE(CBool(2LL));
    EXPECT_FALSE(CBool(0LL));
    EXPECT_TRUE(CBool(0.1));
    EXPECT_FALSE(CBool(0.0));
    EXPECT_TRUE(CBool(Str(u"True")));
    EXPECT_TRUE(CBool(Str(u"tRUE")));
    EXPECT_FALSE(CBool(Str(u"FALSE")));
    EXPECT_FALSE(CBool(Str(u" false ")));
    EXPECT_TRUE(CBool(Str(u"1")));
    EXPECT_TRUE(CBool(Str(u"-1")));
    EXPECT_FALSE(CBool(Str(u"0")));
    EXPECT_FALSE(CBool(Str(u"0.0")));
    EXPECT_EQ(errorNumberOf([] { CBool(Str(u"yes")); }), err::TypeMismatch);
    EXPECT_EQ(errorNumberOf([] { CBool(Str(u"")); }), err::TypeMismatch);
    EXPECT_EQ(errorNumberOf([] { CBool(DispatchPtr()); }), err::TypeMismatch);
}

TEST(BasicVariant, CDbl) {
    EXPECT_EQ(CDbl(Empty{}), 0.0);
    EXPECT_EQ(CDbl(true), -1.0);
    EXPECT_EQ(CDbl(5LL), 5.0);
    EXPECT_EQ(CDbl(2.75), 2.75);
    EXPECT_EQ(CDbl(Str(u"2.75")), 2.75);
    EXPECT_EQ(CDbl(Str(u"0.1")), 0.1);
    EXPECT_EQ(CDbl(Str(u"1E3")), 1000.0);
    EXPECT_EQ(CDbl(Str(u"-1,234.5")), -1234.5);
    EXPECT_EQ(errorNumberOf([] { CDbl(Str(u"1.2.3")); }), err::TypeMismatch);
    EXPECT_EQ(errorNumberOf([] { CDbl(DispatchPtr()); }), err::TypeMismatch);
}

TEST(BasicVariant, CObj) {
    auto book = std::make_shared<FakeWorkbook>();
    EXPECT_EQ(CObj(DispatchPtr(book)), book);
    EXPECT_EQ(CObj(DispatchPtr()), nullptr);
    EXPECT_EQ(errorNumberOf([] { CObj(Empty{}); }), err::ObjectRequired);
    EXPECT_EQ(errorNumberOf([] { CObj(Str(u"x")); }), err::ObjectRequired);
    EXPECT_EQ(errorNumberOf([] { CObj(1LL); }), err::ObjectRequired);
}

TEST(BasicVariant, TypeName) {
    EXPECT_EQ(TypeName(Empty{}), u"Empty");
    EXPECT_EQ(TypeName(true), u"Boolean");
    EXPECT_EQ(TypeName(1LL), u"Long");
    EXPECT_EQ(TypeName(1.0), u"Double");
    EXPECT_EQ(TypeName(Str()), u"String");
    EXPECT_EQ(TypeName(DispatchPtr()), u"Nothing");
    EXPECT_EQ(TypeName(DispatchPtr(std::make_shared<FakeWorkbook>())), u"Workbook");
}

TEST(BasicVariant, StringRoundTripOfDoubles) {
    for (double d : {1.5, -0.125, 1e-3, 12345.678, 1e100, 3.14159265358979}) {
        EXPECT_EQ(CDbl(CStr(d)), d) << d;
    }
}

}  // namespace
}  // namespace quillet::basic
