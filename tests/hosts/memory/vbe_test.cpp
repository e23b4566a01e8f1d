#include "hosts/memory/vbe.h"

#include <gtest/gtest.h>

#include "hosts/memory/memory_host.h"
#include "hosts/memory/support.h"

namespace quillet::hosts::memory {
namespace {

using testing::errorOf;

class MemoryVBETest : public ::testing::Test {
protected:
    void SetUp() override {
        project_ = vbe_->addProject(u"VBAProject", u"C:\\Book1.xlsm", u"Excel");
        one_ = project_->addComponent(u"basOne", host::vbext_ct_StdModule, {u"Option Explicit", u"Sub A()", u"End Sub"});
        two_ = project_->addComponent(u"basTwo", host::vbext_ct_StdModule, {u"Sub B()", u"End Sub"});
        form_ = project_->addComponent(u"frmMain", host::vbext_ct_MSForm, {});
    }
    std::shared_ptr<MemoryVBE> vbe_ = MemoryVBE::create();
    std::shared_ptr<MemoryProject> project_;
    std::shared_ptr<MemoryComponent> one_, two_, form_;
};

TEST_F(MemoryVBETest, StartsWithoutPaneOrActiveWindow) {
    EXPECT_EQ(vbe_->ActiveCodePane(), nullptr);
    EXPECT_EQ(vbe_->ActiveWindow(), nullptr);
    EXPECT_EQ(vbe_->ActiveVBProject()->Name(), u"VBAProject");
    EXPECT_EQ(vbe_->Version(), u"7.01");
}

TEST_F(MemoryVBETest, OpenPaneByNameAndWithoutActivating) {
    auto pane = vbe_->openPane(u"BASONE", false);
    ASSERT_NE(pane, nullptr);
    EXPECT_EQ(vbe_->ActiveCodePane(), nullptr);
    EXPECT_EQ(vbe_->openPane(u"basNone"), nullptr);
    EXPECT_EQ(vbe_->paneOf(*one_), pane);
    EXPECT_EQ(vbe_->paneOf(*two_), nullptr);
}

TEST_F(MemoryVBETest, ActivatingAPaneSelectsItsComponentAndFocusesIt) {
    auto pane = vbe_->openPane(two_);
    EXPECT_EQ(vbe_->SelectedVBComponent()->Name(), u"basTwo");
    EXPECT_EQ(vbe_->focusedWindow(), pane->window()->hWnd());
    EXPECT_EQ(pane->Window()->Caption(), u"VBAProject - basTwo (Code)");
}

TEST_F(MemoryVBETest, ActiveWindowKinds) {
    vbe_->openPane(one_);
    vbe_->setActiveWindow(ActiveWindowKind::Immediate);
    EXPECT_EQ(vbe_->ActiveWindow()->Type(), host::vbext_wt_Immediate);
    EXPECT_EQ(vbe_->ActiveCodePane()->CodeModule()->Name(), u"basOne");  // the pane stays active
    vbe_->setActiveWindow(ActiveWindowKind::Code);
    EXPECT_EQ(vbe_->ActiveWindow()->Type(), host::vbext_wt_CodeWindow);
    vbe_->setActiveWindow(ActiveWindowKind::Project);
    EXPECT_EQ(vbe_->ActiveWindow()->Type(), host::vbext_wt_ProjectWindow);
    vbe_->setActiveWindow(ActiveWindowKind::None);
    EXPECT_EQ(vbe_->ActiveWindow(), nullptr);
    vbe_->setSelectedComponent(form_);
    vbe_->setActiveWindow(ActiveWindowKind::Designer);
    ASSERT_NE(vbe_->ActiveWindow(), nullptr);
    EXPECT_EQ(vbe_->ActiveWindow()->Type(), host::vbext_wt_Designer);
    EXPECT_EQ(vbe_->ActiveWindow()->Caption(), u"VBAProject - frmMain (UserForm)");
}

TEST_F(MemoryVBETest, SelectedComponentIsSettable) {
    vbe_->setSelectedComponent(two_);
    EXPECT_EQ(vbe_->SelectedVBComponent()->Name(), u"basTwo");
    vbe_->setSelectedComponent(nullptr);
    EXPECT_EQ(vbe_->SelectedVBComponent(), nullptr);
}

TEST_F(MemoryVBETest, SelectionIsClampedOrRaises) {
    auto pane = vbe_->openPane(one_);
    pane->SetSelection(0, 0, 99, 99);
    EXPECT_EQ(pane->selection(), (Selection{1, 1, 3, 8}));
    pane->SetSelection(3, 2, 2, 1);  // reversed: the start comes first
    EXPECT_EQ(pane->selection(), (Selection{2, 1, 3, 2}));
    vbe_->options().selectionOutOfRangeRaises = true;
    EXPECT_EQ(errorOf([&] { pane->SetSelection(1, 1, 1, 99); }), 5);
    pane->SetSelection(1, 1, 1, 16);
    EXPECT_EQ(pane->selection(), (Selection{1, 1, 1, 16}));
}

TEST_F(MemoryVBETest, SelectionScrollsTheTopLine) {
    std::vector<Str> many(100, u"' x");
    auto pane = vbe_->openPane(project_->addComponent(u"basLong", host::vbext_ct_StdModule, many));
    EXPECT_EQ(pane->CountOfVisibleLines(), 40);
    pane->SetSelection(90, 1, 90, 1);
    EXPECT_EQ(pane->TopLine(), 51);
    pane->SetSelection(10, 1, 10, 1);
    EXPECT_EQ(pane->TopLine(), 10);
    EXPECT_EQ(errorOf([&] { pane->TopLine(0); }), 5);
    pane->TopLine(500);
    EXPECT_EQ(pane->TopLine(), 100);
}

TEST_F(MemoryVBETest, ClosingACodeWindowClosesItsPane) {
    auto pane = vbe_->openPane(one_);
    long windows = vbe_->Windows()->Count();
    pane->Window()->Close();
    EXPECT_EQ(vbe_->CodePanes()->Count(), 0);
    EXPECT_EQ(vbe_->ActiveCodePane(), nullptr);
    EXPECT_EQ(vbe_->ActiveWindow(), nullptr);
    EXPECT_EQ(vbe_->Windows()->Count(), windows - 1);
    // The closed pane still answers.
    EXPECT_EQ(pane->CodeModule()->Name(), u"basOne");
}

TEST_F(MemoryVBETest, WindowsListTheFixedOnes) {
    auto windows = vbe_->Windows();
    std::vector<long> types;
    for (long i = 1; i <= windows->Count(); ++i) types.push_back(windows->Item(i)->Type());
    EXPECT_EQ(types, (std::vector<long>{host::vbext_wt_MainWindow, host::vbext_wt_ProjectWindow,
                                        host::vbext_wt_PropertyWindow, host::vbext_wt_Immediate}));
    EXPECT_EQ(errorOf([&] { windows->Item(5); }), 9);
    EXPECT_EQ(vbe_->MainWindow()->Caption(), u"Microsoft Visual Basic for Applications - VBAProject");
}

TEST_F(MemoryVBETest, SetFocusMovesFocusAndActivation) {
    auto onePane = vbe_->openPane(one_);
    vbe_->openPane(two_);
    vbe_->immediateWindow()->SetFocus();
    EXPECT_EQ(vbe_->focusedWindow(), vbe_->immediateWindow()->hWnd());
    EXPECT_EQ(vbe_->ActiveWindow()->Type(), host::vbext_wt_Immediate);
    onePane->Window()->SetFocus();
    EXPECT_EQ(vbe_->ActiveCodePane()->CodeModule()->Name(), u"basOne");
    EXPECT_EQ(vbe_->focusedWindow(), onePane->window()->hWnd());
}

TEST_F(MemoryVBETest, ModalDialogHoldsTheFocus) {
    vbe_->openPane(one_);
    auto before = vbe_->focusedWindow();
    vbe_->setModalDialog(true);
    EXPECT_EQ(vbe_->focusedWindow(), vbe_->modalDialogHandle());
    vbe_->immediateWindow()->SetFocus();
    EXPECT_EQ(vbe_->focusedWindow(), vbe_->modalDialogHandle());
    EXPECT_FALSE(vbe_->pasteIntoFocusedWindow(u"lost"));
    vbe_->setModalDialog(false);
    EXPECT_EQ(vbe_->focusedWindow(), before);
    vbe_->immediateWindow()->SetFocus();
    EXPECT_TRUE(vbe_->pasteIntoFocusedWindow(u"kept"));
    EXPECT_EQ(vbe_->immediateText(), u"kept");
}

TEST_F(MemoryVBETest, ImmediateWindowKeepsWhatIsPasted) {
    vbe_->setFocusedWindow(vbe_->immediateWindow()->hWnd());
    vbe_->pasteIntoFocusedWindow(u"one\r\n");
    vbe_->pasteIntoFocusedWindow(u"two\r\n");
    EXPECT_EQ(vbe_->immediateText(), u"one\r\ntwo\r\n");
    vbe_->clearImmediate();
    EXPECT_EQ(vbe_->immediateText(), u"");
    vbe_->setFocusedWindow(vbe_->mainWindow()->hWnd());
    EXPECT_FALSE(vbe_->pasteIntoFocusedWindow(u"x"));
    EXPECT_EQ(vbe_->windowOf(vbe_->immediateWindow()->hWnd())->Type(), host::vbext_wt_Immediate);
}

TEST_F(MemoryVBETest, ToolWindowsGetTheirDocumentFromTheFactory) {
    auto made = std::make_shared<MemoryDispatch>(u"docCodeExplorer");
    vbe_->registerDocument(u"Quillet.docCodeExplorer", [made] { return made; });
    basic::DispatchPtr doc;
    auto window = vbe_->Windows()->CreateToolWindow(nullptr, u"quillet.doccodeexplorer", u"Code Explorer",
                                                    u"{guid}", doc);
    EXPECT_EQ(doc, made);
    EXPECT_EQ(window->Type(), host::vbext_wt_ToolWindow);
    EXPECT_EQ(window->Caption(), u"Code Explorer");
    EXPECT_FALSE(window->Visible());
    window->Visible(true);
    EXPECT_TRUE(window->Visible());
    basic::DispatchPtr other;
    vbe_->Windows()->CreateToolWindow(nullptr, u"Other.Doc", u"Other", u"{g2}", other);
    ASSERT_NE(other, nullptr);
    other->Put(u"Value", Str(u"x"));
    EXPECT_EQ(std::get<Str>(other->Get(u"value")), u"x");
    EXPECT_EQ(errorOf([&] { other->Get(u"Missing"); }), 438);
    EXPECT_EQ(vbe_->Windows()->Count(), 6);
}

TEST_F(MemoryVBETest, ObjectsKeepTheEditorAlive) {
    host::CodeModulePtr module;
    {
        auto vbe = MemoryVBE::create();
        auto project = vbe->addProject(u"P");
        project->addComponent(u"basX", host::vbext_ct_StdModule, {u"Sub A()", u"End Sub"});
        module = vbe->ActiveVBProject()->VBComponents()->Item(u"basX")->CodeModule();
    }
    EXPECT_EQ(module->Parent()->Name(), u"basX");
    EXPECT_EQ(module->CodePane()->CodeModule()->ProcBodyLine(u"A", 0), 1);
}

TEST_F(MemoryVBETest, ProjectsCanBeSwitchedAndRemoved) {
    auto other = vbe_->addProject(u"Other", u"", u"Access");
    EXPECT_EQ(vbe_->VBProjects()->Count(), 2);
    EXPECT_EQ(vbe_->ActiveVBProject()->Name(), u"VBAProject");
    vbe_->setActiveProject(other);
    EXPECT_EQ(vbe_->ActiveVBProject()->Name(), u"Other");
    EXPECT_EQ(vbe_->VBProjects()->Item(2)->References()->Item(2)->Name(), u"Access");
    EXPECT_EQ(errorOf([&] { vbe_->VBProjects()->Item(3); }), 9);
    vbe_->openPane(one_);
    vbe_->removeProject(project_);
    EXPECT_EQ(vbe_->CodePanes()->Count(), 0);
    EXPECT_EQ(vbe_->ActiveVBProject()->Name(), u"Other");
    EXPECT_EQ(vbe_->project(u"other"), other);
}

}  // namespace
}  // namespace quillet::hosts::memory
