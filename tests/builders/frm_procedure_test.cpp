// The Procedure Builder's rules on the model: options by mode, the questions and messages of its
// checks, the focus after a refused name, the clipboard, the error handler from the settings.

#include "builders/frm_procedure.h"

#include "builder_fixture.h"
#include "addin/command_handlers.h"
#include "fragments/services.h"
#include "settings/code_folders.h"
#include "source/code_placing.h"
#include "source/type_lists.h"

namespace quillet::builders {
namespace {

class ProcedureBuilder : public testing::BuilderFixture {
protected:
    frmProcedure& open(const std::vector<Str>& args = {}) {
        EXPECT_TRUE(ctx->Forms->Open(u"frmProcedure", args));
        return top<frmProcedure>();
    }
    const platform::ShownBox& lastBox() { return platform->shownBoxes().back(); }
};

TEST_F(ProcedureBuilder, OpensFromTheCommandBarsRoutine) {
    EXPECT_TRUE(ctx->Forms->IsRegistered(u"frmProcedure"));
    core::RoutineRun(*ctx, u"frmProcedure");
    ASSERT_NE(ctx->Forms->Top(), nullptr);
    EXPECT_EQ(ctx->Forms->Top()->Name(), u"frmProcedure");
    EXPECT_TRUE(ctx->Forms->Top()->IsModal());
}

TEST_F(ProcedureBuilder, InTestingModeItOpensModeless) {
    ctx->TestingMode = true;
    ctx->ShowMode = dialogs::vbModeless;
    auto& form = open();
    EXPECT_FALSE(form.IsModal());
    EXPECT_TRUE(form.Visible);
    // The Argument Builder stays modal over it.
    ctx->Forms->Raise([&] { form.Controls(u"cmdNewArg").Click(); });
    ASSERT_NE(ctx->Forms->Top(), &form);
    EXPECT_TRUE(ctx->Forms->Top()->IsModal());
}

TEST_F(ProcedureBuilder, ANewProcedureStartsAsAFunctionWithTheListsFilled) {
    auto& form = open();
    EXPECT_EQ(form.Caption, u"Procedure Builder");
    EXPECT_EQ(form.Controls(u"cboProcType").Text(), u"Function");
    EXPECT_EQ(form.Controls(u"cboStatic").ListIndex(), 0);
    EXPECT_EQ(form.Controls(u"cboAccessibility").ListCount(), 3);
    EXPECT_EQ(form.Accessibility(), 0);
    EXPECT_EQ(form.Procedure().AccessibleType, u"");
    auto& modules = form.Controls(u"cboModule");
    EXPECT_GE(source::FindInList(modules, source::kNewModule), 0);
    EXPECT_GE(source::FindInList(modules, source::kNewClassModule), 0);
    EXPECT_EQ(modules.Text(), u"basMain");
    EXPECT_GE(source::FindInList(form.Controls(u"cboReturnValueType"), u"Long"), 0);
}

TEST_F(ProcedureBuilder, MethodModeTakesTheMethodSettings) {
    settings().IniItemValue[settings::iiAddHeaderMethod] = true;
    settings().IniItemValue[settings::iiAddHeaderProcedure] = false;
    auto& method = open({u"method"});
    EXPECT_EQ(method.Caption, u"Method Builder");
    EXPECT_EQ(method.Controls(u"chkAddHeader").Value(), 1);
    EXPECT_EQ(method.Controls(u"cboAccessibility").ListCount(), 4);
    method.Controls(u"cmdCancel").Click();
    auto& procedure = open();
    EXPECT_EQ(procedure.Controls(u"chkAddHeader").Value(), 0);
}

TEST_F(ProcedureBuilder, TheHourglassIsOfferedInItsHostsOnly) {
    EXPECT_TRUE(open().Controls(u"chkAddHourglass").Enabled);
    top<frmProcedure>().Controls(u"cmdCancel").Click();
    ctx->HostName = u"Outlook";
    EXPECT_FALSE(open().Controls(u"chkAddHourglass").Enabled);
}

TEST_F(ProcedureBuilder, TheWordAtTheCaretBecomesTheName) {
    vbe->ActiveCodePane()->SetSelection(3, 13, 3, 13);
    EXPECT_EQ(open().Controls(u"txtName").Text(), u"Existing");
}

TEST_F(ProcedureBuilder, ANameTakenInTheModuleIsAskedAboutAndNoKeepsTheDialog) {
    auto& form = open();
    form.Controls(u"txtName").Text(u"Existing");
    form.FocusedControl.clear();
    platform->queueAnswer(u"no");
    ctx->Forms->Raise([&] { form.Controls(u"cmdOK").Click(); });
    EXPECT_EQ(ctx->Forms->Top(), &form);
    EXPECT_EQ(form.FocusedControl, u"txtName");
    EXPECT_EQ(lastBox().buttons & 7, 3);
    EXPECT_EQ(moduleText(), u"Option Explicit\r\n\r\nPublic Sub Existing()\r\nEnd Sub");
}

TEST_F(ProcedureBuilder, CancelOnTheNameQuestionClosesTheDialog) {
    auto& form = open();
    form.Controls(u"txtName").Text(u"Sub");
    platform->queueAnswer(u"cancel");
    ctx->Forms->Raise([&] { form.Controls(u"cmdOK").Click(); });
    EXPECT_EQ(ctx->Forms->FindOpen(u"frmProcedure"), nullptr);
    EXPECT_EQ(moduleText(), u"Option Explicit\r\n\r\nPublic Sub Existing()\r\nEnd Sub");
}

TEST_F(ProcedureBuilder, AParamArrayBeforeAnotherArgumentIsRefusedWithItsMessage) {
    auto& form = open();
    form.Controls(u"txtName").Text(u"Bad");
    form.Procedure().Arguments().Add(u"v", u"", false, u"", true, true, 1, false);
    form.Procedure().Arguments().Add(u"b", u"Long", false, u"", false, false, 2, false);
    EXPECT_FALSE(form.PressOk());
    EXPECT_EQ(lastBox().prompt,
              u"Please reorder the arguments list.\r\nParamArray argument is used only as the last argument.");
    EXPECT_EQ(lastBox().buttons, 48);
    EXPECT_EQ(moduleText(), u"Option Explicit\r\n\r\nPublic Sub Existing()\r\nEnd Sub");
}

TEST_F(ProcedureBuilder, AnUnknownModuleIsAskedForWithOkAndCancel) {
    auto& form = open();
    form.Controls(u"txtName").Text(u"Helper");
    form.Controls(u"cboModule").Text(u"basTools");
    platform->queueAnswer(u"cancel");
    EXPECT_FALSE(form.PressOk());
    EXPECT_EQ(lastBox().prompt, u"Create module basTools?");
    EXPECT_EQ(lastBox().buttons, 33);
    EXPECT_EQ(lastBox().title, u"Quillet");
    EXPECT_EQ(project->component(u"basTools"), nullptr);
}

TEST_F(ProcedureBuilder, ANewModuleIsNamedInAnInputBox) {
    auto& form = open();
    form.Controls(u"txtName").Text(u"Run");
    form.Controls(u"cboModule").Text(source::kNewClassModule);
    platform->queueAnswer(u"clsRunner");
    EXPECT_TRUE(form.PressOk());
    EXPECT_EQ(platform->shownBoxes().back().prompt, u"Name of Class Module");
    ASSERT_NE(project->component(u"clsRunner"), nullptr);
    EXPECT_EQ(project->component(u"clsRunner")->Type(), host::vbext_ct_ClassModule);
    EXPECT_EQ(moduleText(u"clsRunner"), u"Function Run()\r\n\r\nEnd Function");
}

TEST_F(ProcedureBuilder, AnEmptyModuleMeansTheActiveOne) {
    auto& form = open();
    form.Controls(u"txtName").Text(u"Here");
    form.Controls(u"cboModule").Text(u"");
    EXPECT_TRUE(form.PressOk());
    EXPECT_EQ(platform->shownBoxes().size(), 0u);
    EXPECT_EQ(form.Procedure().ModuleName, u"basMain");
    EXPECT_NE(basic::InStr(moduleText(), u"Function Here()"), 0);
}

TEST_F(ProcedureBuilder, OkPutsTheNameOnTheClipboard) {
    auto& form = open();
    form.Controls(u"txtName").Text(u"  Compute ");
    EXPECT_TRUE(form.PressOk());
    EXPECT_EQ(platform->ClipboardGetText(), u"Compute");
}

TEST_F(ProcedureBuilder, TheErrorHandlerOfTheSettingsIsPreselectedAndMerged) {
    Str folder = settings::ErrorHandlersFolder(settings());
    std::filesystem::create_directories(*settings().Files.machinePath(folder));
    ASSERT_EQ(settings().Files.WriteAll(folder + u"\\Simple.bas",
                                        "    On Error GoTo ErrHandler\r\n<end_of_top><begin_of_bottom>\r\n"
                                        "ErrHandler:\r\n    MsgBox \"{MODULENAME}.{PROCEDURENAME}\"\r\n"),
              0);
    set(settings::iiAddErrorHandlingProcedure, u"Simple");
    fragments::FragmentServicesInstall(*ctx);
    auto& form = open();
    EXPECT_EQ(form.Controls(u"cboAddErrorHandler").Text(), u"Simple");
    EXPECT_TRUE(form.HasErrorHandler());
    form.Controls(u"txtName").Text(u"Guarded");
    form.Controls(u"cboProcType").ListIndex(1);
    EXPECT_TRUE(form.PressOk());
    EXPECT_EQ(form.Procedure().ErrorHandlerFile, u"Simple");
    EXPECT_NE(basic::InStr(moduleText(), u"MsgBox \"basMain.Guarded\""), 0) << basic::toUtf8(moduleText());
}

TEST_F(ProcedureBuilder, TheModuleConstantIsTickedWhereTheModuleLacksIt) {
    auto& form = open();
    auto& box = form.Controls(u"chkAddModuleConstant");
    form.Controls(u"cboModule").ListIndex(source::FindInList(form.Controls(u"cboModule"), u"clsOrder"));
    EXPECT_EQ(box.Value(), 1);
    form.Controls(u"txtName").Text(u"Total");
    form.Controls(u"cboModule").ListIndex(source::FindInList(form.Controls(u"cboModule"), u"basMain"));
    EXPECT_TRUE(form.PressOk());
    EXPECT_NE(basic::InStr(moduleText(), u"Private Const cstrModule As String = \"basMain\""), 0)
        << basic::toUtf8(moduleText());
}

}  // namespace
}  // namespace quillet::builders
