#include "source/scan_proc.h"

#include "scan_fixture.h"

namespace quillet::source {
namespace {

using testing::ScanFixture;
using V = std::vector<Str>;

class SourceScanProc : public ScanFixture {
protected:
    std::unique_ptr<clsScanProc> scan(bool argToVar = false) {
        auto scanner = std::make_unique<clsScanProc>(env());
        scanner->init(argToVar);
        return scanner;
    }
};

TEST_F(SourceScanProc, VariablesConstantsLabelsAndLines) {
    openModule(u"basMain", {u"Option Explicit",             // 1
                            u"",                            // 2
                            u"' Does the work.",            // 3
                            u"Public Function Work(ByVal n As Long, _",  // 4
                            u"                     s As String) As Long",  // 5
                            u"    Dim i As Long, j, _",     // 6
                            u"        k$",                  // 7
                            u"    Static lngCalls As Long", // 8
                            u"    Const cMax As Long = 10 ' most", // 9
                            u"",                            // 10
                            u"    On Error GoTo ErrHandler",  // 11
                            u"    Dim WithEvents wb As Workbook",  // 12
                            u"10 Dim x As Long",            // 13
                            u"    If n = 0 Then Exit Function",  // 14
                            u"    Select Case n",           // 15
                            u"    Case 1:",                 // 16
                            u"        ' note:",             // 17
                            u"    End Select",              // 18
                            u"    Exit Function",           // 19
                            u"ErrHandler:",                 // 20
                            u"    Resume Next",             // 21
                            u"End Function",                // 22
                            u"",                            // 23
                            u"' trailing"},                 // 24
               13, 3);
    auto s = scan();
    EXPECT_EQ(s->ProcName(), u"Work");
    EXPECT_EQ(s->ProcType(), 0);
    EXPECT_EQ(s->ProcTypeStr(), u"Function");
    EXPECT_EQ(s->ProcRealStartLine(), 4);
    EXPECT_EQ(s->ProcRealEndLine(), 22);
    EXPECT_EQ(s->ProcEndLine(), s->ProcStartLine() + vbe->ActiveCodePane()->CodeModule()->ProcCountLines(u"Work", 0) - 1);
    EXPECT_EQ(names(s->ProcVars), (V{u"i", u"j", u"k", u"lngCalls", u"wb", u"x"}));
    EXPECT_EQ(s->ProcVars.Item(u"k")->Type_, u"String");
    EXPECT_EQ(s->ProcVars.Item(u"wb")->Type_, u"Workbook");
    EXPECT_EQ(names(s->ProcConsts), (V{u"cMax"}));
    EXPECT_EQ(s->ProcConsts.Item(1)->Value, u"10");
    EXPECT_EQ(names(s->ProcLabels), (V{u"ErrHandler"}));
    EXPECT_FALSE(s->ProcLabels.Item(1)->HasReturn);
    EXPECT_EQ(s->ProcExitLine(), 19);
    EXPECT_EQ(s->ProcDefLineCount(), u"2");
    EXPECT_EQ(s->ProcDeclAreaStartLine(), u"6");
    EXPECT_EQ(s->ProcDeclAreaEndLine(), u"12");
    EXPECT_EQ(s->ProcDeclAreaLineCount(), u"7");
    EXPECT_TRUE(reported.empty());
}

TEST_F(SourceScanProc, ArgumentsJoinTheVariablesWhenAsked) {
    openModule(u"basMain", {u"Sub Go(ByVal n As Long, arr() As String)", u"    Dim n As Integer", u"End Sub"}, 2, 1);
    auto s = scan(true);
    EXPECT_EQ(names(s->ProcVars), (V{u"n", u"arr"}));
    EXPECT_EQ(s->ProcVars.Item(u"n")->Type_, u"Integer");
    EXPECT_TRUE(s->ProcVars.Item(u"arr")->IsArray);
    EXPECT_EQ(s->ProcVars.Item(u"arr")->Type_, u"String");
    EXPECT_EQ(s->ProcTypeStr(), u"Sub");
}

TEST_F(SourceScanProc, AReturnMarksTheCurrentLabel) {
    openModule(u"basMain", {u"Sub Go()", u"    GoSub Work", u"    Exit Sub", u"Work:", u"    Dim y", u"    Return",
                            u"Other: x = 1", u"End Sub"},
               2, 1);
    auto s = scan();
    EXPECT_EQ(names(s->ProcLabels), (V{u"Work"}));
    EXPECT_TRUE(s->ProcLabels.Item(1)->HasReturn);
    // "Other: x = 1" is cut at ": ", which leaves "Other" without its colon: no label.
    EXPECT_EQ(names(s->ProcVars), (V{u"y"}));
    EXPECT_EQ(s->ProcExitLine(), 3);
}

TEST_F(SourceScanProc, AProcedureWithNoExitLine) {
    openModule(u"basMain", {u"Property Get Name() As String", u"    Name = \"x\"", u"End Property"}, 2, 1);
    auto s = scan();
    EXPECT_EQ(s->ProcTypeStr(), u"Property");
    EXPECT_EQ(s->ProcType(), host::vbext_pk_Get);
    EXPECT_EQ(s->ProcExitLine(), 3);
    EXPECT_EQ(s->ProcDeclAreaLineCount(), u"0");
}

TEST_F(SourceScanProc, TheDeclarationSectionOrALockedProjectGiveNothing) {
    openModule(u"basMain", {u"Dim a", u"Sub Go()", u"    Dim x", u"End Sub"}, 1, 1);
    auto s = scan();
    EXPECT_EQ(s->ProcName(), u"");
    EXPECT_EQ(s->ProcVars.Count(), 0);
    EXPECT_EQ(s->ProcDeclAreaLineCount(), u"0");
    caretAt(3, 1);
    project->setProtection(host::vbext_pp_locked);
    auto locked = scan();
    EXPECT_EQ(locked->ProcVars.Count(), 0);
    EXPECT_EQ(locked->ProcName(), u"");
}

TEST_F(SourceScanProc, ACommentBehindTheEndHoldingEndStopsTheWalkEarly) {
    openModule(u"basMain", {u"Sub A()", u"End Sub", u"' The End of A", u"Sub B()", u"End Sub"}, 1, 1);
    auto s = scan();
    // When the host counts the comment to A, the walk stops on it.
    long end = s->ProcEndLine();
    EXPECT_EQ(s->ProcRealEndLine(), end >= 3 ? 3 : 2);
}

}  // namespace
}  // namespace quillet::source
