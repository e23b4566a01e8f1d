// Code panes: opening, selection, activation, scrolling.

#include <algorithm>

#include "host/contract.h"

namespace quillet::host::contract {
namespace {

std::vector<ModuleSpec> twoModules() {
    return {ModuleSpec{u"basOne", vbext_ct_StdModule, {u"Option Explicit", u"Sub One()", u"    x = 1", u"End Sub"}},
            ModuleSpec{u"basTwo", vbext_ct_StdModule, {u"Option Explicit", u"Sub Two()", u"End Sub"}}};
}

TEST_P(HostContract, NoPaneOpenWithAProjectOpen) {
    auto vbe = build(twoModules());
    EXPECT_GE(vbe->VBProjects()->Count(), 1);
    EXPECT_EQ(vbe->CodePanes()->Count(), 0);
    EXPECT_EQ(vbe->ActiveCodePane(), nullptr);
}

TEST_P(HostContract, CodePaneOfAModuleWithoutPaneCreatesOne) {
    auto vbe = build(twoModules());
    auto module = moduleOf(vbe, u"basTwo");
    auto pane = module->CodePane();
    ASSERT_NE(pane, nullptr);
    EXPECT_EQ(vbe->CodePanes()->Count(), 1);
    EXPECT_EQ(pane->CodeModule()->Name(), u"basTwo");
    ASSERT_NE(vbe->ActiveCodePane(), nullptr);
    EXPECT_EQ(vbe->ActiveCodePane()->CodeModule()->Parent()->Name(), u"basTwo");
    // Asking again gives the same pane, not a second one.
    module->CodePane();
    EXPECT_EQ(vbe->CodePanes()->Count(), 1);
}

TEST_P(HostContract, CodePanesIdentifyTheirModules) {
    auto vbe = build(twoModules());
    factory_->openPane(vbe, u"basOne");
    factory_->openPane(vbe, u"basTwo");
    auto panes = vbe->CodePanes();
    ASSERT_EQ(panes->Count(), 2);
    std::vector<Str> names;
    for (long i = 1; i <= panes->Count(); ++i) names.push_back(panes->Item(i)->CodeModule()->Parent()->Name());
    EXPECT_NE(std::find(names.begin(), names.end(), u"basOne"), names.end());
    EXPECT_NE(std::find(names.begin(), names.end(), u"basTwo"), names.end());
}

TEST_P(HostContract, OpenedPaneIsActiveInACodeWindow) {
    auto vbe = build(twoModules());
    auto pane = factory_->openPane(vbe, u"basOne");
    ASSERT_NE(vbe->ActiveCodePane(), nullptr);
    EXPECT_EQ(vbe->ActiveCodePane()->CodeModule()->Name(), u"basOne");
    ASSERT_NE(vbe->ActiveWindow(), nullptr);
    EXPECT_EQ(vbe->ActiveWindow()->Type(), vbext_wt_CodeWindow);
    EXPECT_EQ(pane->Window()->Type(), vbext_wt_CodeWindow);
}

TEST_P(HostContract, SelectionOverSeveralLines) {
    auto vbe = build(twoModules());
    auto pane = factory_->openPane(vbe, u"basOne");
    factory_->select(pane, 2, 5, 3, 8);
    long sl = 0, sc = 0, el = 0, ec = 0;
    pane->GetSelection(sl, sc, el, ec);
    EXPECT_EQ(sl, 2);
    EXPECT_EQ(sc, 5);
    EXPECT_EQ(el, 3);
    EXPECT_EQ(ec, 8);
}

TEST_P(HostContract, CaretIsAnEmptySelection) {
    auto vbe = build(twoModules());
    auto pane = factory_->openPane(vbe, u"basOne");
    pane->SetSelection(3, 5, 3, 5);
    long sl = 0, sc = 0, el = 0, ec = 0;
    pane->GetSelection(sl, sc, el, ec);
    EXPECT_EQ(sl, el);
    EXPECT_EQ(sc, ec);
    EXPECT_EQ(sl, 3);
    EXPECT_EQ(sc, 5);
}

TEST_P(HostContract, SetSelectionActivatesThePane) {
    auto vbe = build(twoModules());
    auto one = factory_->openPane(vbe, u"basOne");
    factory_->openPane(vbe, u"basTwo");
    EXPECT_EQ(vbe->ActiveCodePane()->CodeModule()->Name(), u"basTwo");
    one->SetSelection(1, 1, 1, 1);
    EXPECT_EQ(vbe->ActiveCodePane()->CodeModule()->Name(), u"basOne");
}

TEST_P(HostContract, EachPaneKeepsItsOwnSelection) {
    auto vbe = build(twoModules());
    auto one = factory_->openPane(vbe, u"basOne");
    auto two = factory_->openPane(vbe, u"basTwo");
    one->SetSelection(2, 1, 2, 4);
    two->SetSelection(3, 2, 3, 2);
    long sl = 0, sc = 0, el = 0, ec = 0;
    one->GetSelection(sl, sc, el, ec);
    EXPECT_EQ(sl, 2);
    EXPECT_EQ(ec, 4);
    two->GetSelection(sl, sc, el, ec);
    EXPECT_EQ(sl, 3);
    EXPECT_EQ(sc, 2);
}

TEST_P(HostContract, TopLineAndVisibleLines) {
    std::vector<Str> many;
    for (int i = 0; i < 200; ++i) many.push_back(u"' line");
    auto vbe = buildModule(u"basLong", many);
    auto pane = factory_->openPane(vbe, u"basLong");
    EXPECT_GT(pane->CountOfVisibleLines(), 0);
    pane->TopLine(50);
    EXPECT_EQ(pane->TopLine(), 50);
    pane->TopLine(5000);
    EXPECT_LE(pane->TopLine(), 200);
}

TEST_P(HostContract, ShowMakesThePaneActive) {
    auto vbe = build(twoModules());
    auto one = factory_->openPane(vbe, u"basOne");
    factory_->openPane(vbe, u"basTwo");
    one->Show();
    EXPECT_EQ(vbe->ActiveCodePane()->CodeModule()->Name(), u"basOne");
    EXPECT_TRUE(one->Window()->Visible());
}

}  // namespace
}  // namespace quillet::host::contract
