// The <cursor> marker: every one removed, the caret on the last.

#include "fragments/set_cursor.h"

#include "fragments_fixture.h"

namespace quillet::fragments {
namespace {

class FragmentCursor : public testing::FragmentsFixture {};

TEST_F(FragmentCursor, ThreeMarkersLeaveNoneAndTheCaretOnTheLast) {
    openModule({u"Sub Foo()", u"    a = 1<cursor>", u"    b = <cursor>2 <cursor>", u"    c = 3<Cursor>", u"End Sub"}, 1);
    EXPECT_EQ(SetCursor(*ctx, 1, false), 4);
    EXPECT_EQ(moduleText(), u"Sub Foo()\r\n    a = 1\r\n    b = 2 \r\n    c = 3\r\nEnd Sub");
    long line = 0, col = 0;
    caret(line, col);
    EXPECT_EQ(line, 4);
    EXPECT_EQ(col, 10);
}

TEST_F(FragmentCursor, KeepSelectionRemovesTheMarkersOnly) {
    openModule({u"Sub Foo()", u"    a = 1<cursor>", u"End Sub"}, 3, 4);
    EXPECT_EQ(SetCursor(*ctx, 1, true), 2);
    EXPECT_EQ(moduleText(), u"Sub Foo()\r\n    a = 1\r\nEnd Sub");
    long line = 0, col = 0;
    caret(line, col);
    EXPECT_EQ(line, 3);
    EXPECT_EQ(col, 4);
}

TEST_F(FragmentCursor, WithoutAMarkerTheCaretStays) {
    openModule({u"Sub Foo()", u"    a = 1", u"End Sub"}, 2, 3);
    EXPECT_EQ(SetCursor(*ctx, 1, false), 0);
    long line = 0, col = 0;
    caret(line, col);
    EXPECT_EQ(line, 2);
    EXPECT_EQ(col, 3);
    EXPECT_EQ(moduleText(), u"Sub Foo()\r\n    a = 1\r\nEnd Sub");
}

TEST_F(FragmentCursor, TheSearchBeginsAtTheGivenLine) {
    openModule({u"' <cursor> above", u"Sub Foo()", u"    <cursor>", u"End Sub"}, 1);
    EXPECT_EQ(SetCursor(*ctx, 2, false), 3);
    EXPECT_EQ(moduleText(), u"' <cursor> above\r\nSub Foo()\r\n    \r\nEnd Sub");
    long line = 0, col = 0;
    caret(line, col);
    EXPECT_EQ(line, 3);
    EXPECT_EQ(col, 5);
}

TEST_F(FragmentCursor, WithoutAPaneNothingHappens) { EXPECT_EQ(SetCursor(*ctx, 1, false), 0); }

TEST_F(FragmentCursor, MarkersGoFromAModuleWithoutItsPane) {
    auto component = openModule({u"Sub Foo()", u"<cursor>End Sub"}, 1);
    EXPECT_EQ(CursorMarkersRemove(*ctx, *component->CodeModule(), 1), 2);
    EXPECT_EQ(moduleText(), u"Sub Foo()\r\nEnd Sub");
}

}  // namespace
}  // namespace quillet::fragments
