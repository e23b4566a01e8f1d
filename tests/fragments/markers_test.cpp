// Texts with markers put round a procedure: in the module at the caret, and into a procedure's
// generated text.

#include "fragments/markers.h"

#include "fragments_fixture.h"

namespace quillet::fragments {
namespace {

constexpr char16_t kHandler[] =
    u"    On Error GoTo HandleError\r\n<end_of_top><begin_of_bottom>\r\n\r\nHandleExit:\r\n    Exit Sub\r\n\r\n"
    u"HandleError:\r\n    MsgBox Err.Description\r\n    Resume HandleExit\r\n";

class FragmentMarkers : public testing::FragmentsFixture {
protected:
    void add(Str text) {
        source::clsScanProc scan(ctx->scanEnv());
        FragmentToProcedureAdd(*ctx, text, scan);
    }
    Str merge(Str text, Str body, const Str& type = u"Sub") {
        FragmentToTextOfProcedureAdd(*ctx, text, body, type);
        return body;
    }
    std::pair<long, long> caretAt() {
        long line = 0, col = 0;
        caret(line, col);
        return {line, col};
    }
};

TEST_F(FragmentMarkers, AFragmentWithoutMarkersReplacesABlankLine) {
    openModule({u"Public Sub Foo()", u"    Dim a As Long", u"    ", u"End Sub"}, 3, 5);
    add(u"    a = 1\r\n    a = 2\r\n");
    EXPECT_EQ(moduleText(), u"Public Sub Foo()\r\n    Dim a As Long\r\n    a = 1\r\n    a = 2\r\nEnd Sub");
}

TEST_F(FragmentMarkers, AFragmentWithoutMarkersGoesBelowALineOfCode) {
    openModule({u"Public Sub Foo()", u"    a = 0", u"End Sub"}, 2, 3);
    add(u"    a = 1\r\n    a = 2\r\n");
    EXPECT_EQ(moduleText(), u"Public Sub Foo()\r\n    a = 0\r\n    a = 1\r\n    a = 2\r\nEnd Sub");
}

TEST_F(FragmentMarkers, ASingleLineIsTypedInAtTheCaret) {
    openModule({u"Public Sub Foo()", u"    n = ", u"End Sub"}, 2, 9);
    add(u"Len(s)\r\n");
    EXPECT_EQ(moduleText(), u"Public Sub Foo()\r\n    n = Len(s)\r\nEnd Sub");
    EXPECT_EQ(caretAt(), std::make_pair(2L, 15L));
}

TEST_F(FragmentMarkers, ASingleLineTakesThePlaceOfTheSelection) {
    openModule({u"Public Sub Foo()", u"    n = 10", u"End Sub"}, 2, 9);
    vbe->ActiveCodePane()->SetSelection(2, 9, 2, 11);
    add(u"Len(s)");
    EXPECT_EQ(moduleText(), u"Public Sub Foo()\r\n    n = Len(s)\r\nEnd Sub");
}

TEST_F(FragmentMarkers, TopAndBottomGoRoundTheBody) {
    openModule({u"Public Sub Foo()", u"    Dim a As Long", u"    a = 1", u"End Sub"}, 3, 5);
    add(kHandler);
    EXPECT_EQ(moduleText(), u"Public Sub Foo()\r\n    Dim a As Long\r\n    On Error GoTo HandleError\r\n    a = 1\r\n"
                            u"\r\nHandleExit:\r\n    Exit Sub\r\n\r\nHandleError:\r\n    MsgBox Err.Description\r\n"
                            u"    Resume HandleExit\r\nEnd Sub");
}

TEST_F(FragmentMarkers, TheBottomGoesAboveAnExitLabel) {
    openModule({u"Public Sub Foo()", u"    a = 1", u"HandleExit:", u"    Exit Sub", u"End Sub"}, 2, 5);
    add(u"<begin_of_bottom>\r\n    Set a = Nothing\r\n");
    EXPECT_EQ(moduleText(),
              u"Public Sub Foo()\r\n    a = 1\r\n    Set a = Nothing\r\nHandleExit:\r\n    Exit Sub\r\nEnd Sub");
}

TEST_F(FragmentMarkers, TheRestGoesToTheCaretWhichMovesWithTheTop) {
    openModule({u"Public Sub Foo()", u"    Dim a As Long", u"    ", u"End Sub"}, 3, 5);
    add(u"    Dim b As Long\r\n<end_of_top>\r\n    b = a<cursor>\r\n<begin_of_bottom>\r\n    Debug.Print b\r\n");
    EXPECT_EQ(moduleText(), u"Public Sub Foo()\r\n    Dim a As Long\r\n    Dim b As Long\r\n    b = a\r\n"
                            u"    Debug.Print b\r\nEnd Sub");
    EXPECT_EQ(caretAt(), std::make_pair(4L, 10L));
}

TEST_F(FragmentMarkers, ThreeCursorMarkersLeaveNoneBehind) {
    openModule({u"Public Sub Foo()", u"    ", u"End Sub"}, 2, 5);
    add(u"    a = 1<cursor>\r\n    b = 2<cursor>\r\n    c = 3<cursor>\r\n");
    EXPECT_EQ(moduleText(), u"Public Sub Foo()\r\n    a = 1\r\n    b = 2\r\n    c = 3\r\nEnd Sub");
    EXPECT_EQ(caretAt(), std::make_pair(4L, 10L));
}

TEST_F(FragmentMarkers, OutsideAProcedureNothingHappens) {
    openModule({u"Option Explicit", u"", u"Public Sub Foo()", u"End Sub"}, 1, 1);
    add(u"    a = 1\r\n");
    EXPECT_EQ(moduleText(), u"Option Explicit\r\n\r\nPublic Sub Foo()\r\nEnd Sub");
}

// Into generated text.

constexpr char16_t kBody[] = u"Public Sub Foo()\r\n\r\nEnd Sub\r\n";

TEST_F(FragmentMarkers, AnEmptyTemplateOrBodyChangesNothing) {
    EXPECT_EQ(merge(u"", kBody), kBody);
    EXPECT_EQ(merge(u"    x = 1\r\n", u""), u"");
}

TEST_F(FragmentMarkers, TopAndBottomWrapTheBody) {
    EXPECT_EQ(merge(u"    Screen.MousePointer = 11\r\n<end_of_top><begin_of_bottom>    Screen.MousePointer = 0\r\n", kBody),
              u"Public Sub Foo()\r\n    Screen.MousePointer = 11\r\n\r\n    Screen.MousePointer = 0\r\nEnd Sub\r\n");
}

TEST_F(FragmentMarkers, TheTopGoesBehindTheDeclarations) {
    EXPECT_EQ(merge(u"    a = 1\r\n<begin_of_bottom>    b = 2\r\n",
                    u"Public Sub Foo()\r\n    Const cstrProcedure = \"Foo\"\r\n\r\nEnd Sub\r\n"),
              u"Public Sub Foo()\r\n    Const cstrProcedure = \"Foo\"\r\n    a = 1\r\n\r\n    b = 2\r\nEnd Sub\r\n");
}

TEST_F(FragmentMarkers, WithoutABottomTheWholeTemplateGoesOnTop) {
    EXPECT_EQ(merge(u"    a = 1\r\n    b = 2", kBody), u"Public Sub Foo()\r\n    a = 1\r\n    b = 2\r\n\r\nEnd Sub\r\n");
}

TEST_F(FragmentMarkers, AHandlerTemplateGoesRoundTheBody) {
    EXPECT_EQ(merge(kHandler, kBody),
              u"Public Sub Foo()\r\n    On Error GoTo HandleError\r\n\r\n\r\nHandleExit:\r\n    Exit Sub\r\n\r\n"
              u"HandleError:\r\n    MsgBox Err.Description\r\n    Resume HandleExit\r\nEnd Sub\r\n");
}

TEST_F(FragmentMarkers, BeforeTheExitLabelWhenTheBodyHasOne) {
    Str body = merge(kHandler, kBody);
    EXPECT_EQ(merge(u"<BeforeHandleExitLabel>    Foo = Empty\r\n", body),
              u"Public Sub Foo()\r\n    On Error GoTo HandleError\r\n\r\n\r\n    Foo = Empty\r\nHandleExit:\r\n"
              u"    Exit Sub\r\n\r\nHandleError:\r\n    MsgBox Err.Description\r\n    Resume HandleExit\r\nEnd Sub\r\n");
}

TEST_F(FragmentMarkers, BeforeTheExitLabelIsTheBottomWithoutOne) {
    EXPECT_EQ(merge(u"<BeforeHandleExitLabel>    Foo = Empty\r\n", kBody),
              u"Public Sub Foo()\r\n\r\n    Foo = Empty\r\nEnd Sub\r\n");
    EXPECT_EQ(merge(u"    a = 1\r\n<begin_of_bottom><BeforeHandleExitLabel>    Foo = Empty\r\n", kBody),
              u"Public Sub Foo()\r\n    a = 1\r\n\r\n    Foo = Empty\r\nEnd Sub\r\n");
}

TEST_F(FragmentMarkers, TheEndOfTopMarkerIsDropped) {
    EXPECT_EQ(merge(u"<end_of_top>\r\n    a = 1\r\n<end_of_top>", kBody), u"Public Sub Foo()\r\n    a = 1\r\n\r\nEnd Sub\r\n");
}

TEST_F(FragmentMarkers, TheBottomGoesAboveAnExitWithoutLabel) {
    openModule({u"Public Sub Foo()", u"    a = 1", u"    Exit Sub", u"End Sub"}, 2, 5);
    add(u"<begin_of_bottom>\r\n    a = 2\r\n");
    EXPECT_EQ(moduleText(), u"Public Sub Foo()\r\n    a = 1\r\n    a = 2\r\n    Exit Sub\r\nEnd Sub");
}

TEST_F(FragmentMarkers, AnExitInAOneLineIfIsNoExitSection) {
    openModule({u"Public Sub Foo()", u"    If a Then Exit Sub", u"    a = 1", u"End Sub"}, 3, 5);
    add(u"<begin_of_bottom>\r\n    a = 2\r\n");
    EXPECT_EQ(moduleText(), u"Public Sub Foo()\r\n    If a Then Exit Sub\r\n    a = 1\r\n    a = 2\r\nEnd Sub");
}

TEST_F(FragmentMarkers, InTextTheBottomGoesAboveAnExitWithoutLabel) {
    EXPECT_EQ(merge(u"<begin_of_bottom>    b = 2\r\n", u"Public Sub Foo()\r\n    a = 1\r\n    Exit Sub\r\nEnd Sub\r\n"),
              u"Public Sub Foo()\r\n    a = 1\r\n    b = 2\r\n    Exit Sub\r\nEnd Sub\r\n");
}

}  // namespace
}  // namespace quillet::fragments
