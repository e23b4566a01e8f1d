// The remaining members: windows, tool windows, references, forms, and controls' plain properties.

#include "host/contract.h"

namespace quillet::host::contract {
namespace {

TEST_P(HostContract, WindowVisibleAndFocus) {
    auto vbe = buildModule(u"basA", {u"Option Explicit"});
    auto pane = factory_->openPane(vbe, u"basA");
    auto window = pane->Window();
    EXPECT_NE(window->hWnd(), 0);
    window->Visible(true);
    EXPECT_TRUE(window->Visible());
    window->SetFocus();
    EXPECT_EQ(vbe->ActiveCodePane()->CodeModule()->Name(), u"basA");
}

TEST_P(HostContract, CreateToolWindowFillsTheDocument) {
    auto vbe = build({});
    basic::DispatchPtr doc;
    auto window = vbe->Windows()->CreateToolWindow(nullptr, u"Quillet.docTest", u"Test Window",
                                                   u"{5B1D4E3A-7C11-4F2E-9A44-0D6A1B2C3D4E}", doc);
    ASSERT_NE(window, nullptr);
    EXPECT_NE(doc, nullptr);
    EXPECT_EQ(window->Caption(), u"Test Window");
    window->Visible(true);
    EXPECT_TRUE(window->Visible());
    window->Visible(false);
    EXPECT_FALSE(window->Visible());
}

TEST_P(HostContract, ReferenceMembers) {
    auto reference = build({})->ActiveVBProject()->References()->Item(1);
    EXPECT_EQ(reference->GUID().size(), 38u);
    EXPECT_FALSE(reference->FullPath().empty());
    EXPECT_TRUE(reference->BuiltIn());
    EXPECT_FALSE(reference->IsBroken());
    EXPECT_GT(reference->Major(), 0);
    EXPECT_GE(reference->Minor(), 0);
}

TEST_P(HostContract, FormHasCodeAndADesigner) {
    auto vbe = build({ModuleSpec{u"frmMain", vbext_ct_MSForm, {u"Option Explicit"}}});
    auto form = vbe->ActiveVBProject()->VBComponents()->Item(u"frmMain");
    EXPECT_EQ(form->Type(), vbext_ct_MSForm);
    EXPECT_NE(form->Designer(), nullptr);
    EXPECT_EQ(form->CodeModule()->Lines(1, 1), u"Option Explicit");
    EXPECT_EQ(form->DesignerWindow()->Type(), vbext_wt_Designer);
}

TEST_P(HostContract, DeleteLinesDefaultsToOneLine) {
    auto module = moduleOf(buildModule(u"basA", {u"a", u"b", u"c"}), u"basA");
    module->DeleteLines(2);
    EXPECT_EQ(module->Lines(1, 2), u"a\r\nc");
}

TEST_P(HostContract, ControlPlainProperties) {
    auto bar = build({})->CommandBars()->Add(u"QuilletTest", msoBarTop, false, true);
    auto button = bar->Controls()->Add(msoControlButton);
    button->Visible(false);
    EXPECT_FALSE(button->Visible());
    button->Width(60);
    EXPECT_EQ(button->Width(), 60);
    EXPECT_EQ(button->Id(), 1);
    auto list = bar->Controls()->Add(msoControlDropdown);
    list->DropDownWidth(150);
    EXPECT_EQ(list->DropDownWidth(), 150);
    list->AddItem(u"x");
    list->ListIndex(1);
    EXPECT_EQ(list->Text(), u"x");
}

TEST_P(HostContract, ProjectNameCanBeChanged) {
    auto project = build({})->ActiveVBProject();
    project->Name(u"QuilletTest");
    EXPECT_EQ(project->Name(), u"QuilletTest");
}

}  // namespace
}  // namespace quillet::host::contract
