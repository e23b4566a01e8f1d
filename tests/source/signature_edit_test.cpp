// An argument put into a procedure's header, one line or several.

#include "source/signature_edit.h"

#include <gtest/gtest.h>

namespace quillet::source {
namespace {

Str insert(const Str& header, long before, bool newLine = false) {
    return SignatureArgumentInsert(header, u"x As Long", before, newLine).value_or(u"<none>");
}

TEST(SignatureEdit, BehindTheLastArgument) {
    EXPECT_EQ(insert(u"Sub A(a, b)", 0), u"Sub A(a, b, x As Long)");
    EXPECT_EQ(insert(u"Sub A()", 0), u"Sub A(x As Long)");
    EXPECT_EQ(insert(u"Function F(a) As Byte()", 0), u"Function F(a, x As Long) As Byte()");
    EXPECT_EQ(insert(u"Sub A(Optional s As String = \"(,)\")", 0), u"Sub A(Optional s As String = \"(,)\", x As Long)");
    EXPECT_EQ(insert(u"Sub A(a() As Long) ' (note, here)", 0), u"Sub A(a() As Long, x As Long) ' (note, here)");
}

TEST(SignatureEdit, BeforeAChosenArgument) {
    EXPECT_EQ(insert(u"Sub A(a, b)", 1), u"Sub A(x As Long, a, b)");
    EXPECT_EQ(insert(u"Sub A(a, b)", 2), u"Sub A(a, x As Long, b)");
    EXPECT_EQ(insert(u"Sub A(a, b)", 3), u"Sub A(a, b, x As Long)");
}

TEST(SignatureEdit, HeadersOverSeveralLines) {
    Str header = u"Sub A(a, _\r\n      b)";
    EXPECT_EQ(insert(header, 2), u"Sub A(a, _\r\n      x As Long, _\r\n      b)");
    EXPECT_EQ(insert(header, 0), u"Sub A(a, _\r\n      b, x As Long)");
    EXPECT_EQ(insert(header, 0, true), u"Sub A(a, _\r\n      b, _\r\n      x As Long)");
    EXPECT_EQ(insert(u"Sub A(a)", 0, true), u"Sub A(a, x As Long)");
    EXPECT_EQ(insert(u"Sub A( _\r\n    a _\r\n)", 0), u"Sub A( _\r\n    a, x As Long _\r\n)");
}

TEST(SignatureEdit, NoArgumentListGivesNothing) {
    EXPECT_FALSE(SignatureArgumentInsert(u"Sub A", u"x", 0, false));
    EXPECT_FALSE(SignatureArgumentInsert(u"Sub A(a, \"b)", u"x", 0, false));
    EXPECT_FALSE(SignatureArgumentInsert(u"", u"x", 0, false));
}

}  // namespace
}  // namespace quillet::source
