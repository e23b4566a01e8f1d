#include "addin/procedure_commands.h"

#include "addin/quillet_handle.h"
#include "core/command_env.h"
#include "scan_fixture.h"

namespace quillet::addin {
namespace {

using testing::joinLines;
using testing::ScanCommandFixture;

class ProcedureCommands : public ScanCommandFixture {
protected:
    ProcedureCommands() {
        ctx->Fragments.FragmentToProcedureAdd = [this](Context&, Str& text, source::clsScanProc& scan) {
            merged.push_back(text);
            mergedInto.push_back(scan.ProcName());
        };
    }
    std::vector<Str> merged, mergedInto;
};

const Str kHandler = u"<end_of_top>\r\n    On Error GoTo HandleError\r\n<begin_of_bottom>\r\nHandleError:\r\n"
                     u"    MsgBox \"{MODULENAME}.{PROCEDURENAME}\"\r\n";

TEST_F(ProcedureCommands, AProcedureWithItsHandlerIsLeftAlone) {
    writeErrorHandler("On Error GoTo HandleError.bas", kHandler);
    std::vector<Str> code = {u"Sub A()", u"    On Error GoTo HandleError", u"    A = 1", u"HandleError:", u"End Sub"};
    openModule(code, 3, 1);
    QuilletHandle(*ctx, u"ErrorHandling", u"");
    EXPECT_EQ(moduleText(), joinLines(code));
    EXPECT_TRUE(merged.empty());
}

TEST_F(ProcedureCommands, TheTemplateBringsTheNameConstantsAndIsMerged) {
    writeErrorHandler("On Error GoTo HandleError.bas", kHandler);
    openModule({u"Option Explicit", u"", u"Sub Book()", u"    Dim n As Long", u"    n = 1", u"End Sub"}, 5, 5);
    QuilletHandle(*ctx, u"ErrorHandling", u"");
    EXPECT_EQ(moduleText(), joinLines({u"Option Explicit", u"Private Const cstrModule As String = \"basMain\"", u"",
                                       u"Sub Book()", u"    Dim n As Long", u"    Const cstrProcedure = \"Book\"",
                                       u"    n = 1", u"End Sub"}));
    ASSERT_EQ(merged.size(), 1u);
    EXPECT_EQ(merged[0], kHandler);
    EXPECT_EQ(mergedInto[0], u"Book");
    EXPECT_TRUE(reports.empty());
}

TEST_F(ProcedureCommands, ANamedTemplateAndSettingsThatMakeNoConstants) {
    writeErrorHandler("ErrLog.bas", u"    On Error GoTo HandleError\r\n");
    openModule({u"Sub A()", u"    A = 1", u"End Sub"}, 2, 1);
    QuilletHandle(*ctx, u"ErrorHandling", u"ErrLog");
    EXPECT_EQ(moduleText(), joinLines({u"Sub A()", u"    A = 1", u"End Sub"}));
    ASSERT_EQ(merged.size(), 1u);
    EXPECT_EQ(merged[0], u"    On Error GoTo HandleError\r\n");
}

TEST_F(ProcedureCommands, ErrorHandlingOutsideAProcedureOrWithoutATemplateDoesNothing) {
    openModule({u"Dim a", u"", u"Sub A()", u"End Sub"}, 2, 1);
    QuilletHandle(*ctx, u"ErrorHandling", u"");
    vbe->ActiveCodePane()->SetSelection(3, 1, 3, 1);
    QuilletHandle(*ctx, u"ErrorHandling", u"Missing");
    EXPECT_TRUE(merged.empty());
    EXPECT_EQ(moduleText(), joinLines({u"Dim a", u"", u"Sub A()", u"End Sub"}));
}

TEST_F(ProcedureCommands, TheErrorHandlingModuleIsAskedFor) {
    writeErrorHandler("Central.bas", u"    Call {ERRORHANDLEPROCEDURE}\r\n");
    int added = 0;
    ctx->Fragments.ErrorHandleModuleAdd = [&](Context&) { ++added; };
    openModule({u"Sub A()", u"    A = 1", u"End Sub"}, 2, 1);
    QuilletHandle(*ctx, u"ErrorHandling", u"Central");
    EXPECT_EQ(added, 1);
    project->addComponent(u"basErrorHandle", host::vbext_ct_StdModule, {u"Sub HandleError()", u"End Sub"});
    QuilletHandle(*ctx, u"ErrorHandling", u"Central.bas");
    EXPECT_EQ(added, 1);
    EXPECT_EQ(merged.size(), 2u);
}

TEST_F(ProcedureCommands, ErrorHandlersListNamesTheTemplates) {
    writeErrorHandler("ErrLog.bas", u"x");
    writeErrorHandler("ErrMessage.bas", u"x");
    writeErrorHandler("notes.txt", u"x");
    EXPECT_EQ(ctx->ErrorHandlersList(), (std::vector<Str>{u"ErrLog", u"ErrMessage"}));
}

class ExplicitArguments : public ScanCommandFixture {
protected:
    void openCall(const Str& line, long col) {
        openModule({u"Sub Book(ByVal amount As Double, Optional note As String)", u"End Sub", u"", u"Sub A()", line,
                    u"End Sub"},
                   5, col);
    }
};

TEST_F(ExplicitArguments, AllArgumentsRightBehindTheName) {
    openCall(u"    Book(", 10);
    initialize(*ctx, u"Explicit Argument", u"");
    auto call = ExplicitArgumentFind(*ctx);
    ASSERT_TRUE(call);
    EXPECT_EQ(call->Procedure, u"Book");
    EXPECT_EQ(call->Names, (std::vector<Str>{u"amount", u"note"}));
}

TEST_F(ExplicitArguments, OnlyTheNamesNotUsedYet) {
    openCall(u"    Book amount:=1, ", 24);
    initialize(*ctx, u"Explicit Argument", u"");
    auto call = ExplicitArgumentFind(*ctx);
    ASSERT_TRUE(call);
    EXPECT_EQ(call->Names, (std::vector<Str>{u"note"}));
}

TEST_F(ExplicitArguments, TheChoiceGoesInWithItsAssignment) {
    openCall(u"    Book amount:=1,", 23);
    platform->queueAnswer(u"note");
    QuilletHandle(*ctx, u"Explicit Argument", u"");
    EXPECT_EQ(project->component(u"basMain")->CodeModule()->Lines(5, 1), u"    Book amount:=1, note:=");
    EXPECT_EQ(platform->shownBoxes().back().title, u"Explicit Argument");
}

TEST_F(ExplicitArguments, TheChoiceByNumberAndCancel) {
    openCall(u"    Book(", 10);
    platform->queueAnswer(u"2");
    QuilletHandle(*ctx, u"Explicit Argument", u"");
    EXPECT_EQ(project->component(u"basMain")->CodeModule()->Lines(5, 1), u"    Book(note:=");
    platform->queueAnswer(u"cancel");
    QuilletHandle(*ctx, u"Explicit Argument", u"");
    EXPECT_EQ(project->component(u"basMain")->CodeModule()->Lines(5, 1), u"    Book(note:=");
}

TEST_F(ExplicitArguments, OverContinuedLinesAndPastStrings) {
    openModule({u"Sub Book(ByVal amount As Double, Optional note As String)", u"End Sub", u"Sub A()",
                u"    Book \"Book(x\", _", u"        ", u"End Sub"},
               5, 9);
    initialize(*ctx, u"Explicit Argument", u"");
    auto call = ExplicitArgumentFind(*ctx);
    ASSERT_TRUE(call);
    EXPECT_EQ(call->Names.size(), 2u);
}

TEST_F(ExplicitArguments, NothingWithoutACallOrWhenTheCallIsClosed) {
    openCall(u"    x = 1 + ", 13);
    initialize(*ctx, u"Explicit Argument", u"");
    EXPECT_FALSE(ExplicitArgumentFind(*ctx));
    EXPECT_FALSE(ctx->ExplicitArgumentAvailable());
    openModule({u"Sub Book(ByVal amount As Double)", u"End Sub", u"Sub A()", u"    y = Book(1) + ", u"End Sub"}, 4,
               19, u"basOther");
    EXPECT_FALSE(ctx->ExplicitArgumentAvailable());
}

TEST_F(ExplicitArguments, AvailableFollowsTheCaret) {
    openCall(u"    Book(", 10);
    EXPECT_TRUE(ctx->ExplicitArgumentAvailable());
    vbe->ActiveCodePane()->SetSelection(5, 1, 5, 1);
    EXPECT_FALSE(ctx->ExplicitArgumentAvailable());
}

TEST_F(ExplicitArguments, AProjectProcedureOfAnotherModule) {
    project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
    project->addComponent(u"basLib", host::vbext_ct_StdModule, {u"Public Function Twice(ByVal n As Long) As Long",
                                                                u"End Function"});
    auto main = project->addComponent(u"basMain", host::vbext_ct_StdModule, {u"Sub A()", u"    x = Twice(", u"End Sub"});
    vbe->openPane(main)->SetSelection(2, 15, 2, 15);
    vbe->setSelectedComponent(main);
    initialize(*ctx, u"Explicit Argument", u"");
    auto call = ExplicitArgumentFind(*ctx);
    ASSERT_TRUE(call);
    EXPECT_EQ(call->Names, (std::vector<Str>{u"n"}));
}

}  // namespace
}  // namespace quillet::addin
