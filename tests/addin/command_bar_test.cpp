// The bar itself: where it comes back, the bar left by a crash, a control the editor refuses,
// the list of error handlers, Access's own bar, and the bar's life over a connection.

#include "addin/command_handlers.h"
#include "addin/connect.h"

#include "command_fixture.h"
#include "settings/catalogue.h"
#include "settings/ini_vars.h"

namespace quillet::testing {
namespace {

using addin::commandBarState;

// Controls of a bar that refuse the n-th Add (counting from 1), as an editor refuses a control.
class RefusingControls : public host::CommandBarControls {
public:
    RefusingControls(host::CommandBarControlsPtr inner, long refused) : inner_(std::move(inner)), refused_(refused) {}
    long Count() override { return inner_->Count(); }
    host::CommandBarControlPtr Item(long index) override { return inner_->Item(index); }
    host::CommandBarControlPtr Item(const Str& caption) override { return inner_->Item(caption); }
    host::CommandBarControlPtr Add(long type, long id, bool temporary) override {
        if (++adds_ == refused_) throw basic::VbError::standard(basic::err::InvalidCall);
        return inner_->Add(type, id, temporary);
    }

private:
    host::CommandBarControlsPtr inner_;
    long refused_;
    long adds_ = 0;
};

class RefusingBar : public host::CommandBar {
public:
    RefusingBar(host::CommandBarPtr inner, long refused)
        : inner_(inner), controls_(std::make_shared<RefusingControls>(inner->Controls(), refused)) {}
    Str Name() override { return inner_->Name(); }
    long Position() override { return inner_->Position(); }
    void Position(long v) override { inner_->Position(v); }
    long RowIndex() override { return inner_->RowIndex(); }
    void RowIndex(long v) override { inner_->RowIndex(v); }
    long Left() override { return inner_->Left(); }
    void Left(long v) override { inner_->Left(v); }
    long Top() override { return inner_->Top(); }
    void Top(long v) override { inner_->Top(v); }
    bool Visible() override { return inner_->Visible(); }
    void Visible(bool v) override { inner_->Visible(v); }
    bool Enabled() override { return inner_->Enabled(); }
    void Enabled(bool v) override { inner_->Enabled(v); }
    void Delete() override { inner_->Delete(); }
    host::CommandBarControlsPtr Controls() override { return controls_; }

private:
    host::CommandBarPtr inner_;
    std::shared_ptr<RefusingControls> controls_;
};

// The command bars of an Office application, reached late-bound through its CommandBars.
class ApplicationBars : public basic::Dispatch, public host::CommandBars {
public:
    explicit ApplicationBars(std::shared_ptr<memory::MemoryCommandBars> inner) : inner_(std::move(inner)) {}
    Str TypeName() const override { return u"CommandBars"; }
    basic::Variant Get(const Str&, const basic::Args&) override { throw notSupported(); }
    void Put(const Str&, const basic::Variant&, const basic::Args&) override { throw notSupported(); }
    basic::Variant Call(const Str&, const basic::Args&) override { throw notSupported(); }
    long Count() override { return inner_->Count(); }
    host::CommandBarPtr Item(long index) override { return inner_->Item(index); }
    host::CommandBarPtr Item(const Str& name) override { return inner_->Item(name); }
    host::CommandBarPtr Add(const Str& name, long position, bool menuBar, bool temporary) override {
        return inner_->Add(name, position, menuBar, temporary);
    }
    host::CommandBarControlPtr FindControl(long type, long id) override { return inner_->FindControl(type, id); }

private:
    static basic::VbError notSupported() { return basic::VbError::standard(basic::err::NotSupported); }
    std::shared_ptr<memory::MemoryCommandBars> inner_;
};

class CommandBar : public CommandBarFixture {
protected:
    long writes(const char* property) {
        return std::dynamic_pointer_cast<memory::MemoryCommandBar>(bar)->writeCounter().writes(property);
    }
    void setting(const Str& key, const Str& value) { platform->SaveSetting(u"Quillet", u"Quillet", key, value); }
    Str saved(const Str& key) { return platform->GetSetting(u"Quillet", u"Quillet", key, u"(none)"); }
};

TEST_F(CommandBar, FirstRunWithoutRegistryValuesPutsTheBarOnTopInRowZero) {
    build();
    EXPECT_EQ(bar->Position(), host::msoBarTop);
    EXPECT_EQ(bar->RowIndex(), 0);
    EXPECT_EQ(bar->Left(), 0);
    EXPECT_TRUE(bar->Visible());
}

TEST_F(CommandBar, FloatingBarGetsLeftAndTopBackAndRowIndexIsNotTouched) {
    setting(u"ToolbarPos", u"4");
    setting(u"ToolbarIndex", u"3");
    setting(u"ToolbarLeft", u"310");
    setting(u"ToolbarTop", u"125");
    build();
    EXPECT_EQ(bar->Position(), host::msoBarFloating);
    EXPECT_EQ(bar->Left(), 310);
    EXPECT_EQ(bar->Top(), 125);
    EXPECT_EQ(writes("RowIndex"), 0);
    EXPECT_EQ(bar->RowIndex(), 0);
}

TEST_F(CommandBar, BarOnTheLeftGetsRowAndTopButNotLeft) {
    setting(u"ToolbarPos", u"0");
    setting(u"ToolbarIndex", u"2");
    setting(u"ToolbarLeft", u"50");
    setting(u"ToolbarTop", u"80");
    build();
    EXPECT_EQ(bar->Position(), host::msoBarLeft);
    EXPECT_EQ(bar->RowIndex(), 2);
    EXPECT_EQ(bar->Top(), 80);
    EXPECT_EQ(writes("Left"), 0);
}

TEST_F(CommandBar, SaveKeepsThePositionAndRemovesTheBars) {
    build();
    vbe->CommandBars()->Add(u"CodeExplorerPopUp", host::msoBarPopup, false, true);
    bar->Position(host::msoBarBottom);
    bar->RowIndex(1);
    bar->Left(40);
    addin::ToolBarSave(*ctx, vbe->CommandBars(), u"");
    EXPECT_EQ(saved(u"ToolbarPos"), u"3");
    EXPECT_EQ(saved(u"ToolbarIndex"), u"1");
    EXPECT_EQ(saved(u"ToolbarLeft"), u"40");
    EXPECT_EQ(saved(u"ToolbarTop"), u"0");
    EXPECT_FALSE(vbe->commandBars()->bar(u"Quillet"));
    EXPECT_FALSE(vbe->commandBars()->bar(u"CodeExplorerPopUp"));
}

TEST_F(CommandBar, BarLeftByACrashIsFoundAndGetsTheNewControls) {
    auto old = vbe->CommandBars()->Add(u"Quillet", host::msoBarTop, false, true);
    old->Controls()->Add(host::msoControlButton)->Caption(u"left over");
    long barsBefore = vbe->CommandBars()->Count();
    build();
    EXPECT_EQ(bar, old);
    EXPECT_EQ(vbe->CommandBars()->Count(), barsBefore);
    ASSERT_EQ(bar->Controls()->Count(), 13);
    EXPECT_EQ(bar->Controls()->Item(1)->Caption(), u"left over");
    EXPECT_EQ(bar->Controls()->Item(2)->Caption(), u"&Add Variable...");
    EXPECT_EQ(bar->Controls()->Item(13)->Caption(), u"Hel&p");
    EXPECT_TRUE(bar->Visible());
}

TEST_F(CommandBar, AControlTheEditorRefusesLeavesTheOthersInPlace) {
    auto real = addin::ToolBarCreate(*ctx, vbe->CommandBars(), u"");
    addin::CommandTableCreate(*ctx, std::make_shared<RefusingBar>(real, 3));
    bar = real;
    EXPECT_EQ(bar->Controls()->Count(), 11);
    EXPECT_FALSE(tagged(u"&Add Property..."));
    EXPECT_TRUE(tagged(u"Insert Varia&ble..."));
    EXPECT_TRUE(tagged(u"&Quillet &Error &Debug.Print... "));
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_NE(reports[0].find(u"5: Invalid procedure call or argument"), Str::npos);
}

TEST_F(CommandBar, APopupTheEditorRefusesTakesOnlyItsOwnEntries) {
    auto real = addin::ToolBarCreate(*ctx, vbe->CommandBars(), u"");
    addin::CommandTableCreate(*ctx, std::make_shared<RefusingBar>(real, 11));  // "&Quillet"
    bar = real;
    EXPECT_EQ(bar->Controls()->Count(), 11);
    EXPECT_FALSE(tagged(u"&Quillet"));
    EXPECT_EQ(walk().size(), 11u + 14u);  // Hel&p and its entries stay
    EXPECT_EQ(reports.size(), 1u);
}

TEST_F(CommandBar, EveryWiredControlHasItsSink) {
    build();
    size_t wired = 0;
    for (const auto& made : commandBarState(*ctx).controls)
        if (made.row && !made.row->handler.empty()) ++wired;
    EXPECT_EQ(commandBarState(*ctx).sinks.size(), wired);
    EXPECT_EQ(wired, walk().size() - 14);  // pop-ups but "&Quillet" have none
}

TEST_F(CommandBar, ErrorHandlerListSelectsTheSettingIgnoringCase) {
    ctx->ErrorHandlersList = [] { return std::vector<Str>{u"ErrStandard", u"ErrMessage", u"ErrLog"}; };
    settings::SetDefaults(*ctx->IniSettings);
    ctx->IniSettings->IniItemValue[settings::iiAddErrorHandlingProcedure] = Str(u"errmessage");
    build();
    auto list = control(u"&Quillet &Error &Add Error Handling");
    ASSERT_EQ(list->ListCount(), 3);
    EXPECT_EQ(list->List(1), u"ErrStandard");
    EXPECT_EQ(list->List(3), u"ErrLog");
    EXPECT_EQ(list->ListIndex(), 2);
    EXPECT_EQ(list->Text(), u"ErrMessage");
    EXPECT_EQ(list->Width(), 377);
    EXPECT_EQ(list->DropDownWidth(), 240);
}

TEST_F(CommandBar, ErrorHandlerListSelectsTheSettingsDefault) {
    ctx->ErrorHandlersList = [] { return std::vector<Str>{u"ErrStandard", u"On Error GoTo HandleError"}; };
    build();
    EXPECT_EQ(control(u"&Quillet &Error &Add Error Handling")->ListIndex(), 2);
}

TEST_F(CommandBar, ErrorHandlerListWithoutNamesIsEmptyAndSized) {
    build();
    auto list = control(u"&Quillet &Error &Add Error Handling");
    EXPECT_EQ(list->ListCount(), 0);
    EXPECT_EQ(list->ListIndex(), 0);
    EXPECT_EQ(list->Width(), 377);
    EXPECT_EQ(list->DropDownWidth(), 240);
}

TEST_F(CommandBar, EnableReachesTheBarAndTheCodeWindowsInsertEntry) {
    build();
    auto insert = vbe->CommandBars()->Item(u"Code Window")->Controls()->Add(host::msoControlButton);
    insert->Caption(u"Quillet Insert");
    addin::CommandBarsEnable(*ctx, false);
    EXPECT_FALSE(bar->Enabled());
    EXPECT_FALSE(insert->Enabled());
    addin::CommandBarsEnable(*ctx, true);
    EXPECT_TRUE(bar->Enabled());
    EXPECT_TRUE(insert->Enabled());
}

class AccessBar : public CommandBar {
protected:
    AccessBar() {
        accessEditor = memory::MemoryVBE::create();
        access = officeApplication(u"Microsoft Access");
        access->Put(u"CommandBars", basic::DispatchPtr(std::make_shared<ApplicationBars>(accessEditor->commandBars())));
        ctx->hostApplications().AccessApp = access;
        ctx->TestingMode = true;
        project = vbe->addProject(u"Database1", u"C:\\Work\\Db1.accdb", u"Access");
    }
    std::shared_ptr<memory::MemoryCommandBar> accessBar() { return accessEditor->commandBars()->bar(u"Quillet"); }

    std::shared_ptr<memory::MemoryVBE> accessEditor;
    std::shared_ptr<memory::MemoryDispatch> access;
};

TEST_F(AccessBar, TestingModeWithAnAccessProjectPutsAddControlOnAccesssOwnBar) {
    setting(u"ToolbarPosMicrosoft Access", u"4");
    setting(u"ToolbarLeft" u"Microsoft Access", u"77");
    long opened = 0;
    ctx->routines[u"ControlsAddFormOpen"] = [&](core::Context&, const Str&) { ++opened; };
    addin::AccessToolBarCreate(*ctx);
    auto onAccess = accessBar();
    ASSERT_TRUE(onAccess);
    EXPECT_EQ(onAccess->Position(), host::msoBarFloating);
    EXPECT_EQ(onAccess->Left(), 77);
    ASSERT_EQ(onAccess->Controls()->Count(), 1);
    auto addControl = onAccess->Controls()->Item(1);
    EXPECT_EQ(addControl->Caption(), u"Add C&ontrol...");
    EXPECT_EQ(addControl->Tag(), u"Add C&ontrol...");
    EXPECT_EQ(faceOf(*addControl), 183);
    addControl->Execute();
    EXPECT_EQ(opened, 1);
    addin::AccessToolBarCreate(*ctx);  // the next project initialisation
    EXPECT_EQ(onAccess->Controls()->Count(), 1);
    EXPECT_TRUE(reports.empty());
}

TEST_F(AccessBar, OutsideTestingModeNothingHappens) {
    ctx->TestingMode = false;
    addin::AccessToolBarCreate(*ctx);
    EXPECT_FALSE(accessBar());
}

TEST_F(AccessBar, AProjectOfAnotherHostGetsNoAccessBar) {
    vbe->removeProject(project);
    project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
    addin::AccessToolBarCreate(*ctx);
    EXPECT_FALSE(accessBar());
    EXPECT_TRUE(reports.empty());
}

class CommandBarConnection : public ::testing::Test {
protected:
    CommandBarConnection() {
        vbe = memory::MemoryVBE::create();
        platform = std::make_shared<platform::ScriptedPlatform>();
        wirePlatform(*platform, vbe);
        wireFaces(*platform, vbe);
        connect = std::make_unique<addin::Connect>(platform);
    }
    std::shared_ptr<memory::MemoryVBE> vbe;
    std::shared_ptr<platform::ScriptedPlatform> platform;
    std::unique_ptr<addin::Connect> connect;
};

TEST_F(CommandBarConnection, ConnectionBuildsAndWiresTheTableAndDisconnectionLetsGo) {
    auto project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
    auto module = project->addComponent(u"basMain", host::vbext_ct_StdModule,
                                        {u"Public Sub Main()", u"    ", u"End Sub"});
    connect->AddinInstance_OnConnection(vbe, addin::ext_cm_Startup, nullptr);
    vbe->openPane(module)->SetSelection(2, 5, 2, 5);
    auto bar = vbe->CommandBars()->Item(u"Quillet");
    EXPECT_EQ(bar->Controls()->Count(), 12);
    EXPECT_FALSE(commandBarState(*connect->context()).sinks.empty());
    auto ifThen = bar->Controls()->Item(u"&Quillet")->Controls()->Item(u"&If")->Controls()->Item(u"&Then");
    ifThen->Execute();
    auto code = module->CodeModule();
    EXPECT_EQ(code->Lines(2, 1), u"    If  Then");

    connect->AddinInstance_OnDisconnection(0);
    long lines = code->CountOfLines();
    ifThen->Execute();  // the sink was let go: nothing answers
    EXPECT_EQ(code->CountOfLines(), lines);
    EXPECT_THROW(vbe->CommandBars()->Item(u"Quillet"), basic::VbError);
}

}  // namespace
}  // namespace quillet::testing
