// Clicks on the bar's controls: what each kind of handler does, and that nothing escapes a click.

#include "addin/command_handlers.h"

#include <stdexcept>

#include "builders/builder_registry.h"
#include "command_fixture.h"
#include "settings/catalogue.h"
#include "settings/ini_vars.h"

namespace quillet::testing {
namespace {

class CommandHandlers : public CommandBarFixture {
protected:
    // Option Explicit / blank / Public Sub Main() / Dim / indented blank / End Sub
    std::vector<Str> procModule() {
        return {u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long", u"    ", u"End Sub"};
    }
    // Records each call of the routine `name` with its argument.
    void record(const Str& name) {
        ctx->routines[name] = [this, name](core::Context&, const Str& argument) {
            calls.push_back(name + u"(" + argument + u")");
        };
    }
    host::WindowPtr toolWindow(const Str& caption) {
        basic::DispatchPtr doc;
        return vbe->createToolWindow(u"Quillet.doc", caption, doc);
    }

    std::vector<Str> calls;
};

TEST_F(CommandHandlers, ThenUnderIfInsertsTheBlockInTheActiveModule) {
    openModule(procModule(), 4, 10);
    build();
    click(u"&Quillet &If &Then");
    EXPECT_EQ(moduleText(), joinLines({u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long",
                                       u"    If  Then", u"    ", u"End Sub"}));
    EXPECT_TRUE(reports.empty());
}

TEST_F(CommandHandlers, StatementEntriesWriteTheirStatement) {
    openModule(procModule(), 5, 5);
    build();
    click(u"&Quillet &Error On Error Resume &Next");
    EXPECT_EQ(moduleText(), joinLines({u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long",
                                       u"    On Error Resume Next", u"End Sub"}));
}

TEST_F(CommandHandlers, TypeEntriesPassTheirType) {
    openModule(procModule(), 5, 5);
    build();
    click(u"&Quillet &Variable Collectio&n...");
    EXPECT_EQ(ctx->CurrentCommand, u"Dim.Collection");
    click(u"&Quillet &Constant Da&te...");
    EXPECT_EQ(ctx->CurrentCommand, u"Const.Date");
    click(u"&Quillet &Property &Object...");
    EXPECT_EQ(ctx->CurrentCommand, u"Property.Object");
    click(u"&Quillet &Constant Add Constant to En&um...");
    EXPECT_EQ(ctx->CurrentCommand, u"Enum.Item");
}

TEST_F(CommandHandlers, ErrorHandlingPassesTheListsText) {
    ctx->ErrorHandlersList = [] { return std::vector<Str>{u"ErrStandard", u"ErrMessage", u"ErrLog"}; };
    settings::SetDefaults(*ctx->IniSettings);
    ctx->IniSettings->IniItemValue[settings::iiAddErrorHandlingProcedure] = Str(u"ErrMessage");
    openModule(procModule(), 5, 5);
    build();
    auto list = control(u"&Quillet &Error &Add Error Handling");
    list->Execute();
    EXPECT_EQ(ctx->CurrentCommand, u"ErrorHandling.ErrMessage");
    list->ListIndex(3);
    list->Execute();
    EXPECT_EQ(ctx->CurrentCommand, u"ErrorHandling.ErrLog");
}

TEST_F(CommandHandlers, AddItemToUserDefinedTypeOpensItsDialog) {
    openModule(procModule(), 5, 5);
    builders::RegisterBuilders(*ctx);
    build();
    Str before = moduleText();
    click(u"&Quillet &Variable Add Item to User-Defined Data Ty&pe...");
    EXPECT_EQ(ctx->CurrentCommand, u"Type.Item");
    ASSERT_NE(ctx->Forms->Top(), nullptr);
    EXPECT_EQ(ctx->Forms->Top()->Name(), u"frmItemAdd");
    EXPECT_EQ(ctx->Forms->Top()->Caption, u"Add Item to User-Defined Data Type");
    EXPECT_EQ(moduleText(), before);
    EXPECT_TRUE(reports.empty());
}

TEST_F(CommandHandlers, BuildersOpenByTheirFormName) {
    for (const char16_t* name : {u"frmVar", u"frmConst", u"frmProperty", u"frmProcedure", u"frmClass",
                                 u"frmCodeLineTLI", u"frmFragments", u"frmSettings", u"frmAbout"})
        record(name);
    build();
    for (const char16_t* tag : {u"&Add Variable...", u"&Quillet &Variable &Add Variable...", u"&Add Constant...",
                                u"&Quillet &Constant &Add Constant...", u"&Add Property...",
                                u"&Quillet &Property &Add Property...", u"Add P&rocedure...",
                                u"&Quillet Add P&rocedure...", u"Add Cl&ass...", u"&Quillet Add Cl&ass...",
                                u"Insert &Line Of Code...", u"&Quillet Insert &Line Of Code...",
                                u"Insert Fragme&nt...", u"&Quillet Insert Fragme&nt...", u"Hel&p &Settings...",
                                u"Hel&p &About..."})
        click(tag);
    EXPECT_EQ(calls, (std::vector<Str>{u"frmVar()", u"frmVar()", u"frmConst()", u"frmConst()", u"frmProperty()",
                                       u"frmProperty()", u"frmProcedure()", u"frmProcedure()", u"frmClass()",
                                       u"frmClass()", u"frmCodeLineTLI()", u"frmCodeLineTLI()", u"frmFragments()",
                                       u"frmFragments()", u"frmSettings()", u"frmAbout()"}));
}

TEST_F(CommandHandlers, ABuilderThatIsNotThereYetDoesNothing) {
    openModule(procModule(), 5, 5);
    build();
    Str before = moduleText();
    click(u"&Add Variable...");
    click(u"&Quillet I&mport File...");
    EXPECT_EQ(moduleText(), before);
    EXPECT_TRUE(reports.empty());
}

TEST_F(CommandHandlers, ProjectCommandsAndTipsGoToTheirRoutines) {
    for (const char16_t* name : {u"ImportFile", u"ExportFile", u"LineNumbers", u"frmTip"}) record(name);
    build();
    click(u"&Quillet I&mport File...");
    click(u"&Quillet Export File...");
    click(u"&Quillet &Error &Line Numbers &Add");
    click(u"&Quillet &Error &Line Numbers &Remove");
    click(u"Hel&p &Tip of the Day &Quillet...");
    click(u"Hel&p &Tip of the Day &Procedure Builder...");
    EXPECT_EQ(calls, (std::vector<Str>{u"ImportFile()", u"ExportFile()", u"LineNumbers(0)", u"LineNumbers(1)",
                                       u"frmTip(Quillet_Startup)", u"frmTip(ProcBuilder)"}));
}

TEST_F(CommandHandlers, AddControlHandlersAllOpenTheControlBuilder) {
    record(u"ControlsAddFormOpen");
    ctx->TestingMode = true;
    build();
    click(u"&Quillet Add C&ontrol...");
    addin::mnuhQLTAddControl_Click(*ctx);
    addin::mnuhAddControl_Click(*ctx);
    addin::mnuhControlAdd_Click(*ctx);
    EXPECT_EQ(calls.size(), 4u);
}

TEST_F(CommandHandlers, ViewEntriesToggleTheToolWindows) {
    ctx->ShortcutsToolWindow = toolWindow(u"Shortcuts and Search");
    ctx->CodeExplorerToolWindow = toolWindow(u"Code Explorer");
    ctx->ShortcutsToolWindow->Visible(false);
    ctx->CodeExplorerToolWindow->Visible(true);
    build();
    click(u"View &Shortcuts and Search\u2026");
    click(u"View Code &Explorer\u2026");
    EXPECT_TRUE(ctx->ShortcutsToolWindow->Visible());
    EXPECT_FALSE(ctx->CodeExplorerToolWindow->Visible());
    click(u"&Quillet &Tools View &Shortcuts and Search\u2026");
    click(u"&Quillet &Tools View Code &Explorer\u2026");
    EXPECT_FALSE(ctx->ShortcutsToolWindow->Visible());
    EXPECT_TRUE(ctx->CodeExplorerToolWindow->Visible());
}

TEST_F(CommandHandlers, ViewEntryWithoutItsWindowDoesNothing) {
    build();
    click(u"View Code &Explorer\u2026");
    EXPECT_TRUE(reports.empty());
}

TEST_F(CommandHandlers, WebEntriesOpenTheSitesPageKeptInTheTooltip) {
    ctx->WebSite = u"https://example.test";
    build();
    click(u"Hel&p &Website &Technical Support...");
    click(u"Hel&p &Website &VB Directory...");
    auto newVersion = control(u"Hel&p &Website &Check for New Version...");
    newVersion->TooltipText(u"/changed.htm");
    newVersion->Execute();
    EXPECT_EQ(platform->opened(), (std::vector<Str>{u"https://example.test/support.htm",
                                                    u"https://example.test/visual-basic-source-code/index.htm",
                                                    u"https://example.test/changed.htm"}));
}

TEST_F(CommandHandlers, HelpContentsOpensTheHelpFileOnlyWhenItIsThere) {
    build();
    click(u"Hel&p &Contents...");
    EXPECT_TRUE(platform->opened().empty());
    platform->addFile(platform->AddinFolder() + u"Quillet.chm");
    click(u"Hel&p &Contents...");
    EXPECT_EQ(platform->opened(), (std::vector<Str>{platform->AddinFolder() + u"Quillet.chm"}));
}

TEST_F(CommandHandlers, AFailingHandlerIsReportedAndTheClickReturns) {
    ctx->routines[u"frmVar"] = [](core::Context&, const Str&) {
        throw basic::VbError(91, u"Object variable or With block variable not set");
    };
    ctx->routines[u"frmConst"] = [](core::Context&, const Str&) { throw std::runtime_error("broken"); };
    build();
    EXPECT_NO_THROW(click(u"&Add Variable..."));
    EXPECT_NO_THROW(click(u"&Add Constant..."));
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_NE(reports[0].find(u"91: Object variable"), Str::npos);
    EXPECT_NE(reports[0].find(u"Connect.mnuhAddVariable_Click"), Str::npos);
    EXPECT_NE(reports[1].find(u"broken"), Str::npos);
}

TEST_F(CommandHandlers, UnknownHandlerDoesNothing) {
    EXPECT_NO_THROW(addin::CommandClick(*ctx, u"mnuhNoSuchThing", nullptr));
    EXPECT_TRUE(reports.empty());
}

}  // namespace
}  // namespace quillet::testing
