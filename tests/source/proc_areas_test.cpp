#include "source/proc_areas.h"

#include <gtest/gtest.h>

namespace quillet::source {
namespace {

TEST(SourceProcAreas, IsDeclarationLine) {
    EXPECT_TRUE(IsDeclarationLine(u"    dim x", u""));
    EXPECT_TRUE(IsDeclarationLine(u"Const A = 1", u""));
    EXPECT_TRUE(IsDeclarationLine(u"STATIC n", u""));
    EXPECT_TRUE(IsDeclarationLine(u"   ", u""));
    EXPECT_TRUE(IsDeclarationLine(u"k As Long", u"Dim j, _"));
    EXPECT_FALSE(IsDeclarationLine(u"Dimension = 1", u""));
    EXPECT_FALSE(IsDeclarationLine(u"x = 1", u"y = 2 _ "));
}

TEST(SourceProcAreas, LineInsideIfOnlyForAOneLineIf) {
    std::vector<Str> lines{u"If x Then Exit Sub", u"If x Then", u"    Exit Sub", u"End If"};
    EXPECT_TRUE(LineInsideIf(lines, 0));
    EXPECT_TRUE(LineInsideIf(lines, 1));
    EXPECT_FALSE(LineInsideIf(lines, 2));
    EXPECT_FALSE(LineInsideIf(lines, 9));
}

TEST(SourceProcAreas, ProcedureTypeGet) {
    EXPECT_EQ(ProcedureTypeGet(u"Go", u"Public Function Go(a) As Long"), u"Function");
    EXPECT_EQ(ProcedureTypeGet(u"Go", u"Property Let Go(v)"), u"Property");
    EXPECT_EQ(ProcedureTypeGet(u"Go", u"Private Sub Go()"), u"Sub");
    // Only the part up to the name counts.
    EXPECT_EQ(ProcedureTypeGet(u"Go", u"Sub Go(Function_ As Long)"), u"Sub");
    EXPECT_EQ(ProcedureTypeGet(u"RunFunction", u"Sub RunFunction()"), u"Function");
}

TEST(SourceProcAreas, ExitLineOfAText) {
    Str code = u"Sub A()\r\n  If x Then\r\n    Exit Sub\r\n  End If\r\n  y = 1\r\nEnd Sub\r\n";
    // Start 0: the hit comes back as its 0-based index.
    EXPECT_EQ(ProcExitLineGet(0, 0, u"Sub", code, true), 2);
    Str oneLine = u"Sub A()\r\n  If x Then Exit Sub\r\n  y = 1\r\nEnd Sub";
    EXPECT_EQ(ProcExitLineGet(0, 0, u"Sub", oneLine, true), 4);
    EXPECT_EQ(ProcExitLineGet(0, 0, u"Sub", oneLine, false), 1);
    Str commented = u"Sub A()\r\n  ' Exit Sub\r\n  Rem Exit Sub\r\nEnd Sub";
    EXPECT_EQ(ProcExitLineGet(0, 0, u"Sub", commented, true), 4);
    // A hit on the first line keeps the last line.
    Str first = u"Sub A(): Exit Sub\r\nEnd Sub";
    EXPECT_EQ(ProcExitLineGet(0, 0, u"Sub", first, true), 2);
    Str none = u"Function F()\r\nEnd Function";
    EXPECT_EQ(ProcExitLineGet(0, 0, u"Function", none, true), 2);
}

TEST(SourceProcAreas, ExitLineOfModuleLines) {
    auto text = ModuleText::fromText(u"Option Explicit\r\nSub A()\r\n  Exit Sub\r\n  x = 1\r\nEnd Sub");
    Str code;
    EXPECT_EQ(ProcExitLineGet(2, 5, u"Sub", code, true, nullptr, &text), 3);
    EXPECT_EQ(code, u"Sub A()\r\n  Exit Sub\r\n  x = 1\r\nEnd Sub");
}

TEST(SourceProcAreas, DeclarationAreaOfAText) {
    Str code = u"Sub A(a, _\r\n      b)\r\n  ' comment\r\n\r\n  Dim x As Long\r\n\r\n  Static y\r\n\r\n  x = 1\r\nEnd Sub";
    long start = 0, end = 0, defLines = 0;
    ProcDeclAreaGet(start, end, 0, defLines, false, code);
    EXPECT_EQ(defLines, 2);
    EXPECT_EQ(start, 5);
    EXPECT_EQ(end, 7);
}

TEST(SourceProcAreas, DeclarationsBehindOnErrorBelongToTheArea) {
    Str code = u"Sub A()\r\n  Dim x\r\n  On Error GoTo ErrH\r\n  Dim y\r\n\r\n  y = 1\r\nEnd Sub";
    long start = 0, end = 0, defLines = 0;
    ProcDeclAreaGet(start, end, 0, defLines, false, code);
    EXPECT_EQ(start, 2);
    EXPECT_EQ(end, 4);
    Str onlyOnError = u"Sub A()\r\n  Dim x\r\n\r\n  On Error GoTo ErrH\r\n  y = 1\r\nEnd Sub";
    // The On Error line counts itself, then the blank line above it is taken away again.
    ProcDeclAreaGet(start, end, 0, defLines, true, onlyOnError);
    EXPECT_EQ(start, 2);
    EXPECT_EQ(end, 3);
    ProcDeclAreaGet(start, end, 0, defLines, false, onlyOnError);
    EXPECT_EQ(end, 2);
}

TEST(SourceProcAreas, AHeaderOnly) {
    Str code = u"Sub A()";
    long start = -1, end = -1, defLines = -1;
    ProcDeclAreaGet(start, end, 0, defLines, false, code);
    EXPECT_EQ(defLines, 1);
    EXPECT_EQ(start, 2);
    EXPECT_EQ(end, 1);
}

}  // namespace
}  // namespace quillet::source
