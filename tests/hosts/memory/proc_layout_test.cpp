#include "hosts/memory/proc_layout.h"

#include <gtest/gtest.h>

namespace quillet::hosts::memory {
namespace {

struct Row {
    const char16_t* name;
    long kind, start, body, end;
};

void expectProcs(const ProcLayout& layout, const std::vector<Row>& rows) {
    ASSERT_EQ(layout.procs.size(), rows.size());
    for (size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(layout.procs[i].name, rows[i].name);
        EXPECT_EQ(layout.procs[i].kind, rows[i].kind);
        EXPECT_EQ(layout.procs[i].startLine, rows[i].start);
        EXPECT_EQ(layout.procs[i].bodyLine, rows[i].body);
        EXPECT_EQ(layout.procs[i].endLine, rows[i].end);
    }
}

TEST(MemoryProcLayout, ScopeAndStaticPrefixes) {
    auto layout = computeProcLayout({u"Public Static Sub A()", u"End Sub", u"Private Function B$()", u"End Function",
                                     u"Friend Property Set C(ByVal v As Object)", u"End Property",
                                     u"Static Function D()", u"End Function"});
    expectProcs(layout, {{u"A", 0, 1, 1, 2}, {u"B", 0, 3, 3, 4}, {u"C", 2, 5, 5, 6}, {u"D", 0, 7, 7, 8}});
    EXPECT_EQ(layout.countOfDeclarationLines, 0);
}

TEST(MemoryProcLayout, KeywordsIgnoreCaseAndTabs) {
    auto layout = computeProcLayout({u"\tpublic   sub  Lower()", u"end sub", u"PROPERTY LET X(v)", u"END PROPERTY"});
    expectProcs(layout, {{u"Lower", 0, 1, 1, 2}, {u"X", 1, 3, 3, 4}});
}

TEST(MemoryProcLayout, ContinuedSignatureCountsPhysicalLines) {
    auto layout = computeProcLayout({u"Option Explicit", u"Private Sub A(ByVal x As Long, _", u"    ByVal y As Long, _",
                                     u"    ByVal z As Long)", u"End Sub"});
    expectProcs(layout, {{u"A", 0, 2, 2, 5}});
    EXPECT_EQ(layout.procs[0].headerEnd, 4);
    EXPECT_EQ(layout.procs[0].countLines(), 4);
}

TEST(MemoryProcLayout, ContinuedDeclarationEndsTheDeclarations) {
    auto layout = computeProcLayout({u"Private Declare PtrSafe Function F Lib \"k\" _", u"    (ByVal a As Long) As Long", u"",
                                     u"Sub A()", u"End Sub"});
    EXPECT_EQ(layout.countOfDeclarationLines, 2);
    expectProcs(layout, {{u"A", 0, 3, 4, 5}});
}

TEST(MemoryProcLayout, SingleLineProcedures) {
    auto layout = computeProcLayout({u"Sub X(): End Sub", u"Function Y() As Long: Y = 1: End Function ' done", u"",
                                     u"Sub Z()", u"End Sub"});
    expectProcs(layout, {{u"X", 0, 1, 1, 1}, {u"Y", 0, 2, 2, 2}, {u"Z", 0, 3, 4, 5}});
}

TEST(MemoryProcLayout, HeaderLookalikesInsideAProcedureDoNotCount) {
    auto layout = computeProcLayout({u"Sub A()", u"    s = \"Sub B()\"", u"    ' Sub C()", u"    ' End Sub",
                                     u"    Static n As Long", u"    Call Sub_D", u"10  x = 1", u"End Sub   ' end of A",
                                     u"Sub E()", u"End Sub"});
    expectProcs(layout, {{u"A", 0, 1, 1, 8}, {u"E", 0, 9, 9, 10}});
}

TEST(MemoryProcLayout, LabelInFrontOfAHeaderIsNotAHeader) {
    auto layout = computeProcLayout({u"Option Explicit", u"10 Sub A()", u"Label: Sub B()"});
    EXPECT_TRUE(layout.procs.empty());
    EXPECT_EQ(layout.countOfDeclarationLines, 3);
}

TEST(MemoryProcLayout, EndFollowedByCodeIsNotAnEnd) {
    auto layout = computeProcLayout({u"Sub A()", u"    End", u"End Sub x", u"End Sub", u"Sub B()", u"End Sub"});
    expectProcs(layout, {{u"A", 0, 1, 1, 4}, {u"B", 0, 5, 5, 6}});
}

TEST(MemoryProcLayout, EventAndDeclareAreDeclarations) {
    auto layout = computeProcLayout({u"Public Event Changed(ByVal v As Long)", u"Declare Sub Sleep Lib \"k\" (ByVal n As Long)",
                                     u"Sub A()", u"End Sub"});
    EXPECT_EQ(layout.countOfDeclarationLines, 2);
    expectProcs(layout, {{u"A", 0, 3, 3, 4}});
}

TEST(MemoryProcLayout, OnlyCommentsBeforeTheFirstProcedure) {
    auto layout = computeProcLayout({u"' header", u"' more", u"", u"Sub A()", u"End Sub"});
    EXPECT_EQ(layout.countOfDeclarationLines, 0);
    expectProcs(layout, {{u"A", 0, 1, 4, 5}});
}

TEST(MemoryProcLayout, ModuleOfOnlyComments) {
    auto layout = computeProcLayout({u"' one", u"Rem two", u""});
    EXPECT_TRUE(layout.procs.empty());
    EXPECT_EQ(layout.countOfDeclarationLines, 3);
}

TEST(MemoryProcLayout, CommentsBetweenProceduresBelongToTheNext) {
    auto layout = computeProcLayout({u"Sub A()", u"End Sub", u"' about B", u"", u"Sub B()", u"End Sub", u"", u"' tail"});
    expectProcs(layout, {{u"A", 0, 1, 1, 2}, {u"B", 0, 3, 5, 8}});
}

TEST(MemoryProcLayout, HeaderWithoutEndRunsToTheNextHeader) {
    auto layout = computeProcLayout({u"Sub A()", u"    x = 1", u"' about B", u"Sub B()", u"    y = 2"});
    expectProcs(layout, {{u"A", 0, 1, 1, 3}, {u"B", 0, 4, 4, 5}});
}

TEST(MemoryProcLayout, IfBlockAroundDeclarationsIsDeclarations) {
    std::vector<Str> lines = {u"#If VBA7 Then", u"Private Declare PtrSafe Sub S Lib \"k\" ()", u"#Else",
                              u"Private Declare Sub S Lib \"k\" ()", u"#End If", u"", u"Sub A()", u"End Sub"};
    EXPECT_EQ(computeProcLayout(lines).countOfDeclarationLines, 5);
    LayoutRules rules;
    rules.endIfClosingDeclarationsIsDeclaration = false;
    EXPECT_EQ(computeProcLayout(lines, rules).countOfDeclarationLines, 4);
}

TEST(MemoryProcLayout, IfBlockAroundProceduresBelongsToThem) {
    auto layout = computeProcLayout({u"Option Explicit", u"#If VBA7 Then", u"Sub A()", u"End Sub", u"#Else", u"Sub A()",
                                     u"End Sub", u"#End If"});
    EXPECT_EQ(layout.countOfDeclarationLines, 1);
    ASSERT_EQ(layout.procs.size(), 2u);
    EXPECT_EQ(layout.procs[0].startLine, 2);
    EXPECT_EQ(layout.procs[1].startLine, 5);
    EXPECT_EQ(layout.procs[1].endLine, 8);
}

TEST(MemoryProcLayout, ConstDirectiveBeforeTheFirstProcedure) {
    std::vector<Str> lines = {u"Option Explicit", u"#Const DEBUGGING = 1", u"Sub A()", u"End Sub"};
    EXPECT_EQ(computeProcLayout(lines).countOfDeclarationLines, 1);
    LayoutRules rules;
    rules.constBeforeProcIsDeclaration = true;
    EXPECT_EQ(computeProcLayout(lines, rules).countOfDeclarationLines, 2);
}

TEST(MemoryProcLayout, ConstDirectiveAmongDeclarations) {
    auto layout = computeProcLayout({u"#Const X = 1", u"Dim a As Long", u"Sub A()", u"End Sub"});
    EXPECT_EQ(layout.countOfDeclarationLines, 2);
}

TEST(MemoryProcLayout, CommentEndingInContinuationContinues) {
    auto layout = computeProcLayout({u"' comment _", u"Sub NotAHeader()", u"Sub A()", u"End Sub"});
    ASSERT_EQ(layout.procs.size(), 1u);
    EXPECT_EQ(layout.procs[0].bodyLine, 3);
}

TEST(MemoryProcLayout, UnderscoreInANameIsNoContinuation) {
    EXPECT_FALSE(continuesOnNextLine(u"x = my_"));
    EXPECT_TRUE(continuesOnNextLine(u"x = a _"));
    EXPECT_TRUE(continuesOnNextLine(u"x = a _  "));
    EXPECT_TRUE(continuesOnNextLine(u"x = a\t_"));
}

TEST(MemoryProcLayout, FindAndOfLine) {
    auto layout = computeProcLayout({u"Dim a", u"Sub A()", u"End Sub", u"Property Get P()", u"End Property"});
    ASSERT_NE(layout.find(u"p", 3), nullptr);
    EXPECT_EQ(layout.find(u"p", 1), nullptr);
    EXPECT_EQ(layout.ofLine(1), nullptr);
    EXPECT_EQ(layout.ofLine(5)->name, u"P");
    EXPECT_EQ(layout.ofLine(6), nullptr);
}

TEST(MemoryProcLayout, ClassifiesLines) {
    EXPECT_EQ(classifyLogicalLine(u"   ").role, LineRole::Blank);
    EXPECT_EQ(classifyLogicalLine(u"  ' x").role, LineRole::Comment);
    EXPECT_EQ(classifyLogicalLine(u"Rem x").role, LineRole::Comment);
    EXPECT_EQ(classifyLogicalLine(u"Remove = 1").role, LineRole::Code);
    EXPECT_EQ(classifyLogicalLine(u"#If A Then").role, LineRole::IfDirective);
    EXPECT_EQ(classifyLogicalLine(u"#End If").role, LineRole::EndIfDirective);
    EXPECT_EQ(classifyLogicalLine(u"#Else").role, LineRole::Directive);
    EXPECT_EQ(classifyLogicalLine(u"#Const A = 1").role, LineRole::ConstDirective);
    EXPECT_EQ(classifyLogicalLine(u"End Function 'x").role, LineRole::End);
    EXPECT_EQ(classifyLogicalLine(u"Public Property Foo").role, LineRole::Code);
    EXPECT_EQ(classifyLogicalLine(u"Sub").role, LineRole::Code);
    EXPECT_EQ(classifyLogicalLine(u"Private Sub Foo_Click()").name, u"Foo_Click");
}

}  // namespace
}  // namespace quillet::hosts::memory
