// Bringing the add-in up and down, the host connectors, and the project watch of Timer1.

#include "addin/connect.h"

#include <unistd.h>

#include <filesystem>
#include <string>

#include "addin/project_watch.h"
#include "addin_fixture.h"
#include "settings/catalogue.h"

namespace quillet::testing {
namespace {

class Connection : public ::testing::Test {
protected:
    Connection() {
        vbe = memory::MemoryVBE::create();
        platform = std::make_shared<platform::ScriptedPlatform>();
        wirePlatform(*platform, vbe);
        connect = std::make_unique<addin::Connect>(platform);
        home = std::filesystem::temp_directory_path() /
               ("quillet-connect-" + std::to_string(::getpid()) + "-" +
                ::testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::remove_all(home);
        connect->prepareContext([this](core::Context& c) { c.IniSettings->SettingsFolder = home.string(); });
    }
    ~Connection() override {
        connect.reset();
        std::filesystem::remove_all(home);
    }

    core::Context& ctx() { return *connect->context(); }
    host::CommandBarPtr bar() { return vbe->CommandBars()->Item(u"Quillet"); }
    void tick() { ctx().TimerForm->Timer1_Timer(); }

    std::shared_ptr<memory::MemoryVBE> vbe;
    std::shared_ptr<platform::ScriptedPlatform> platform;
    std::unique_ptr<addin::Connect> connect;
    std::filesystem::path home;
};

TEST_F(Connection, BringsUpStateBarAndToolWindows) {
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    ASSERT_TRUE(connect->connected());
    EXPECT_EQ(ctx().VBInstance, vbe);
    EXPECT_EQ(ctx().ConnectInstance, connect.get());
    EXPECT_FALSE(ctx().TestingMode);
    EXPECT_EQ(ctx().ShowMode, 1);
    EXPECT_EQ(ctx().Keywords.size(), 77u);
    EXPECT_EQ(ctx().Keywords.front(), u"As");
    EXPECT_EQ(ctx().Keywords.back(), u"Rem");
    EXPECT_TRUE(ctx().CurrentProjectFile.empty());
    ASSERT_TRUE(ctx().TimerForm);
    EXPECT_EQ(ctx().TimerForm->Timer1.Interval, 500);
    EXPECT_EQ(ctx().TimerForm->Timer2.Interval, 0);
    EXPECT_EQ(ctx().TimerForm->Timer3.Interval, 0);
    ASSERT_TRUE(ctx().ShortcutsToolWindow);
    ASSERT_TRUE(ctx().CodeExplorerToolWindow);
    EXPECT_EQ(ctx().ShortcutsToolWindow->Caption(), u"Shortcuts and Search");
    EXPECT_EQ(ctx().CodeExplorerToolWindow->Caption(), u"Code Explorer");
    EXPECT_TRUE(bar()->Visible());
    EXPECT_FALSE(platform->hourglassOn());
    EXPECT_GT(ctx().ImmediateWindowHandle, 0);
}

TEST_F(Connection, LoadsTheSettingsAndMakesTheCodeFolders) {
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    auto& settings = *ctx().IniSettings;
    EXPECT_EQ(settings.IniItemValue.size(), static_cast<size_t>(settings::IniItemCount));
    EXPECT_TRUE(std::filesystem::exists(home / "quillet" / "Fragments" / "ErrorHandlers"));
    EXPECT_TRUE(std::filesystem::exists(home / "quillet" / "Templates"));
    EXPECT_FALSE(ctx().ShortcutsToolWindow->Visible());  // the default
}

TEST_F(Connection, InstallsTheServicesOfTheLaterLayers) {
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    EXPECT_TRUE(ctx().Fragments.FragmentToProcedureAdd);
    EXPECT_TRUE(ctx().Fragments.NormalizeErrorHandlerCode);
    EXPECT_TRUE(ctx().Fragments.ExpandHeader);
    EXPECT_TRUE(ctx().ErrorHandlersList);
    EXPECT_FALSE(ctx().routines.empty());
}

TEST_F(Connection, AddInsUpdateLeavesTheWindowsOfAStartupConnection) {
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    ctx().IniSettings->IniItemValue[settings::iiViewQuilletWindow] = true;
    connect->AddinInstance_OnAddInsUpdate();
    EXPECT_FALSE(ctx().ShortcutsToolWindow->Visible());
}

TEST_F(Connection, AddInsUpdateShowsTheWindowsWhenConnectedAfterStartup) {
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_AfterStartup, nullptr);
    ctx().IniSettings->IniItemValue[settings::iiViewQuilletWindow] = true;
    connect->AddinInstance_OnAddInsUpdate();
    EXPECT_TRUE(ctx().ShortcutsToolWindow->Visible());
    EXPECT_FALSE(ctx().CodeExplorerToolWindow->Visible());
}

TEST_F(Connection, FirstRunPutsTheBarOnTopInRowZero) {
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    EXPECT_EQ(bar()->Position(), host::msoBarTop);
    EXPECT_EQ(bar()->RowIndex(), 0);
}

TEST_F(Connection, FloatingBarComesBackWhereItWas) {
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    bar()->Position(host::msoBarFloating);
    bar()->Left(300);
    bar()->Top(120);
    bar()->RowIndex(7);
    connect->AddinInstance_OnDisconnection(0);
    EXPECT_THROW(vbe->CommandBars()->Item(u"Quillet"), basic::VbError);
    EXPECT_EQ(platform->GetSetting(u"Quillet", u"Quillet", u"ToolbarPos", u""), u"4");
    EXPECT_EQ(platform->GetSetting(u"Quillet", u"Quillet", u"ToolbarLeft", u""), u"300");

    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    EXPECT_EQ(bar()->Position(), host::msoBarFloating);
    EXPECT_EQ(bar()->Left(), 300);
    EXPECT_EQ(bar()->Top(), 120);
    EXPECT_EQ(bar()->RowIndex(), 0);  // not touched for a floating bar
}

TEST_F(Connection, TestingMarkerSwitchesDialogsToModeless) {
    platform->addFile(platform->AddinFolder() + u"testing.txt");
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    EXPECT_TRUE(ctx().TestingMode);
    EXPECT_EQ(ctx().ShowMode, 0);
}

TEST_F(Connection, DisconnectionDropsTheState) {
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    connect->AddinInstance_OnDisconnection(0);
    EXPECT_FALSE(connect->connected());
    EXPECT_EQ(vbe.use_count(), 1);  // nothing of the add-in holds the editor any more
}

TEST_F(Connection, NoProjectDisablesTheBarUntilOneOpens) {
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    tick();
    EXPECT_FALSE(bar()->Enabled());
    EXPECT_TRUE(ctx().CurrentProjectFile.empty());
    vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
    tick();
    EXPECT_TRUE(bar()->Enabled());
    EXPECT_EQ(ctx().CurrentProjectFile, u"C:\\Work\\Book1.xlsm");
    EXPECT_EQ(ctx().HostName, u"Excel");
    EXPECT_EQ(ctx().ProjectInitializeRuns, 1);
}

TEST_F(Connection, TwoUnsavedProjectsInARowInitialiseOnce) {
    auto first = vbe->addProject(u"VBAProject", u"", u"Excel");
    auto second = vbe->addProject(u"VBAProject2", u"", u"Excel");
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    tick();
    EXPECT_EQ(ctx().CurrentProjectFile, u"NewProject");
    vbe->setActiveProject(second);
    tick();
    EXPECT_EQ(ctx().ProjectInitializeRuns, 1);
}

TEST_F(Connection, FileNameChangingOnlyInCaseDoesNotReinitialise) {
    auto project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    tick();
    project->setFileName(u"C:\\WORK\\book1.XLSM");
    tick();
    EXPECT_EQ(ctx().ProjectInitializeRuns, 1);
    project->setFileName(u"C:\\Work\\Book2.xlsm");
    tick();
    EXPECT_EQ(ctx().ProjectInitializeRuns, 2);
}

TEST_F(Connection, LockedProjectDisablesTheBarAndIsNotScanned) {
    auto project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Word");
    project->setProtection(host::vbext_pp_locked);
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    tick();
    EXPECT_FALSE(bar()->Enabled());
    EXPECT_EQ(ctx().ProjectInitializeRuns, 0);
    EXPECT_EQ(ctx().HostName, u"Word");
    project->setProtection(host::vbext_pp_none);
    tick();
    EXPECT_TRUE(bar()->Enabled());
    EXPECT_EQ(ctx().ProjectInitializeRuns, 1);
}

TEST_F(Connection, HostNameIsKeptOnceSet) {
    vbe->addProject(u"VBAProject", u"C:\\a.xlsm", u"Excel");
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    tick();
    auto other = vbe->addProject(u"Other", u"C:\\b.mdb", u"Access");
    vbe->setActiveProject(other);
    tick();
    EXPECT_EQ(ctx().HostName, u"Excel");
}

TEST_F(Connection, OutlookIsMovedOutOfTheWayAtEachInitialisation) {
    vbe->addProject(u"VbaProject", u"C:\\VbaProject.OTM", u"Outlook");
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    tick();
    ASSERT_EQ(platform->closedWindowClasses().size(), 1u);
    EXPECT_EQ(platform->closedWindowClasses()[0], u"rctrl_renwnd32");
}

TEST_F(Connection, NoEditorLeavesTheAddinDisconnected) {
    connect->AddinInstance_OnConnection(nullptr, addin::ext_cm_Startup, nullptr);
    EXPECT_FALSE(connect->connected());
    connect->AddinInstance_OnDisconnection(0);
    connect->AddinInstance_OnAddInsUpdate();
}

TEST_F(Connection, ScansTheProjectWhenItComesActive) {
    auto project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
    project->addComponent(u"basMain", host::vbext_ct_StdModule,
                          {u"Public Const APP_NAME As String = \"Invoicing\"", u"Public gCount As Long", u"",
                           u"Public Sub Main()", u"End Sub"});
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    tick();
    ASSERT_TRUE(ctx().Scan.ProjectVars);
    EXPECT_TRUE(ctx().Scan.ProjectVars->Exists(u"gCount"));
    EXPECT_TRUE(ctx().Scan.ProjectConsts->Exists(u"APP_NAME"));
    EXPECT_TRUE(ctx().Scan.ProjectProcs->Exists(u"Main"));
}

TEST_F(Connection, ReconnectingStartsFresh) {
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_AfterStartup, nullptr);
    EXPECT_TRUE(connect->connected());
    EXPECT_EQ(connect->ConnectModeValue(), addin::ext_cm_AfterStartup);
    EXPECT_EQ(vbe->CommandBars()->Item(u"Quillet")->Name(), u"Quillet");
}

// A stand-in for an Office application object.
class FakeApplication : public basic::Dispatch {
public:
    explicit FakeApplication(Str typeName) : typeName_(std::move(typeName)) {}
    Str TypeName() const override { return typeName_; }
    basic::Variant Get(const Str&, const basic::Args&) override { return basic::Empty{}; }
    void Put(const Str&, const basic::Variant&, const basic::Args&) override {}
    basic::Variant Call(const Str&, const basic::Args&) override { return basic::Empty{}; }

private:
    Str typeName_;
};

TEST(HostConnectors, KeepTheApplicationWhileConnected) {
    auto apps = std::make_shared<core::HostApplications>();
    addin::HostConnector excel(addin::ConnectorKind::Excel, apps);
    addin::HostConnector access(addin::ConnectorKind::Access, apps);
    auto application = std::make_shared<FakeApplication>(u"Application");
    excel.AddinInstance_OnConnection(application);
    access.AddinInstance_OnConnection(std::make_shared<FakeApplication>(u"Workbook"));
    EXPECT_EQ(apps->ExcelApp, application);
    EXPECT_FALSE(apps->AccessApp);
    EXPECT_FALSE(apps->WordApp);
    excel.AddinInstance_OnConnection(nullptr);
    EXPECT_EQ(apps->ExcelApp, application);
    excel.AddinInstance_OnDisconnection();
    EXPECT_FALSE(apps->ExcelApp);
}

TEST(HostConnectors, ShareTheirObjectWithTheConnection) {
    auto vbe = memory::MemoryVBE::create();
    auto platform = std::make_shared<platform::ScriptedPlatform>();
    auto apps = std::make_shared<core::HostApplications>();
    addin::HostConnector word(addin::ConnectorKind::Word, apps);
    auto application = std::make_shared<FakeApplication>(u"Application");
    word.AddinInstance_OnConnection(application);
    addin::Connect connect(platform, apps);
    connect.AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    EXPECT_EQ(connect.context()->WordApp(), application);
}

}  // namespace
}  // namespace quillet::testing

namespace quillet::testing {
namespace {

class TimerTwo : public AddinFixture {
protected:
    TimerTwo() {
        ctx->TimerForm = addin::TimerFormCreate(*ctx);
        ctx->routines[u"frmVar"] = [this](core::Context&, const Str& arg) { opened.push_back(u"frmVar:" + arg); };
        ctx->routines[u"frmCodeLineTLI"] = [this](core::Context&, const Str& arg) {
            opened.push_back(u"frmCodeLineTLI:" + arg);
        };
    }
    std::vector<Str> opened;
};

TEST_F(TimerTwo, OpensTheVariableBuilderWithTheKeptNameOnce) {
    auto& timer = *ctx->TimerForm;
    timer.Timer2.Interval = 50;
    timer.Timer2.Tag = u"frmVar";
    timer.Timer2Name = u"strCustomer";
    timer.Timer2_Timer();
    EXPECT_EQ(timer.Timer2.Interval, 0);
    EXPECT_EQ(opened, std::vector<Str>{u"frmVar:strCustomer"});
    timer.Timer2_Timer();  // spent
    EXPECT_EQ(opened.size(), 1u);
}

TEST_F(TimerTwo, OpensTheLineOfCodeBuilderAndNothingElse) {
    auto& timer = *ctx->TimerForm;
    timer.Timer2 = {50, u"frmCodeLineTLI"};
    timer.Timer2Name = u"ignored";
    timer.Timer2_Timer();
    timer.Timer2 = {50, u"frmSomethingElse"};
    timer.Timer2_Timer();
    EXPECT_EQ(opened, std::vector<Str>{u"frmCodeLineTLI:"});
    EXPECT_EQ(timer.Timer2.Interval, 0);
}

TEST_F(TimerTwo, AFailingBuilderIsReported) {
    ctx->routines[u"frmVar"] = [](core::Context&, const Str&) { throw basic::VbError(5, u"Invalid procedure call or argument"); };
    ctx->TimerForm->Timer2 = {50, u"frmVar"};
    ctx->TimerForm->Timer2_Timer();
    EXPECT_EQ(reports.size(), 1u);
}

}  // namespace
}  // namespace quillet::testing
