// Projects, components, references and windows.

#include "host/contract.h"

namespace quillet::host::contract {
namespace {

std::vector<ModuleSpec> someModules() {
    return {ModuleSpec{u"basMain", vbext_ct_StdModule, {u"Option Explicit"}},
            ModuleSpec{u"clsThing", vbext_ct_ClassModule, {u"Option Explicit"}}};
}

TEST_P(HostContract, ActiveProjectHoldsTheModules) {
    auto vbe = build(someModules());
    auto project = vbe->ActiveVBProject();
    ASSERT_NE(project, nullptr);
    EXPECT_EQ(project->Protection(), vbext_pp_none);
    auto components = project->VBComponents();
    EXPECT_EQ(components->Count(), 2);
    EXPECT_EQ(components->Item(u"basMain")->Type(), vbext_ct_StdModule);
    EXPECT_EQ(components->Item(u"clsThing")->Type(), vbext_ct_ClassModule);
}

TEST_P(HostContract, ComponentsByIndexAndByNameIgnoringCase) {
    auto components = build(someModules())->ActiveVBProject()->VBComponents();
    EXPECT_EQ(components->Item(1)->Name(), u"basMain");
    EXPECT_EQ(components->Item(2)->Name(), u"clsThing");
    EXPECT_EQ(components->Item(u"BASMAIN")->Name(), u"basMain");
}

TEST_P(HostContract, UnknownComponentRaises9) {
    auto components = build(someModules())->ActiveVBProject()->VBComponents();
    EXPECT_EQ(errorOf([&] { components->Item(u"basNone"); }), 9);
    EXPECT_EQ(errorOf([&] { components->Item(3); }), 9);
    EXPECT_EQ(errorOf([&] { components->Item(0); }), 9);
}

TEST_P(HostContract, AddGivesAModuleWithAFreshName) {
    auto components = build(someModules())->ActiveVBProject()->VBComponents();
    auto added = components->Add(vbext_ct_StdModule);
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(added->Type(), vbext_ct_StdModule);
    EXPECT_NE(added->Name(), u"basMain");
    EXPECT_EQ(components->Count(), 3);
    EXPECT_EQ(components->Item(added->Name())->Name(), added->Name());
    auto cls = components->Add(vbext_ct_ClassModule);
    EXPECT_EQ(cls->Type(), vbext_ct_ClassModule);
    EXPECT_NE(cls->Name(), added->Name());
}

TEST_P(HostContract, RemoveTakesTheComponentAway) {
    auto components = build(someModules())->ActiveVBProject()->VBComponents();
    components->Remove(components->Item(u"clsThing"));
    EXPECT_EQ(components->Count(), 1);
    EXPECT_EQ(errorOf([&] { components->Item(u"clsThing"); }), 9);
}

TEST_P(HostContract, RenameAComponent) {
    auto components = build(someModules())->ActiveVBProject()->VBComponents();
    auto main = components->Item(u"basMain");
    main->Name(u"basStart");
    EXPECT_EQ(components->Item(u"basStart")->CodeModule()->Name(), u"basStart");
    EXPECT_NE(errorOf([&] { main->Name(u"clsThing"); }), 0);
    EXPECT_EQ(main->Name(), u"basStart");
}

TEST_P(HostContract, ReferencesStartWithVba) {
    auto references = build(someModules())->ActiveVBProject()->References();
    ASSERT_GE(references->Count(), 2);
    EXPECT_EQ(references->Item(1)->Name(), u"VBA");
    EXPECT_FALSE(references->Item(2)->Name().empty());
}

TEST_P(HostContract, WindowsHoldAnImmediateWindow) {
    auto vbe = build(someModules());
    auto windows = vbe->Windows();
    bool immediate = false;
    for (long i = 1; i <= windows->Count(); ++i) immediate = immediate || windows->Item(i)->Type() == vbext_wt_Immediate;
    EXPECT_TRUE(immediate);
    EXPECT_NE(vbe->MainWindow()->hWnd(), 0);
    EXPECT_FALSE(vbe->MainWindow()->Caption().empty());
}

TEST_P(HostContract, CodeWindowIsListedWithItsPane) {
    auto vbe = build(someModules());
    auto before = vbe->Windows()->Count();
    auto pane = factory_->openPane(vbe, u"basMain");
    EXPECT_EQ(vbe->Windows()->Count(), before + 1);
    EXPECT_NE(pane->Window()->Caption().find(u"basMain"), Str::npos);
}

}  // namespace
}  // namespace quillet::host::contract
