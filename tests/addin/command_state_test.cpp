// Which controls show where the caret is: the bar from the project watch, the "&Quillet" pop-up
// when it opens; and that a property is written only when its value changes.

#include "addin/bar_state.h"

#include "addin/project_watch.h"
#include "command_fixture.h"

namespace quillet::testing {
namespace {

class BarState : public CommandBarFixture {
protected:
    // Option Explicit / blank / Public Sub Main() / Dim / indented blank / End Sub
    std::vector<Str> procModule() {
        return {u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long", u"    ", u"End Sub"};
    }
    void caretAt(long line) { vbe->ActiveCodePane()->SetSelection(line, 1, line, 1); }

    // Captions of the visible controls directly under `controls`.
    static std::vector<Str> visibleCaptions(const host::CommandBarControlsPtr& controls) {
        std::vector<Str> captions;
        for (long i = 1; i <= controls->Count(); ++i)
            if (controls->Item(i)->Visible()) captions.push_back(controls->Item(i)->Caption());
        return captions;
    }
    std::vector<Str> visibleOnBar() { return visibleCaptions(bar->Controls()); }
    std::vector<Str> visibleInQuillet() { return visibleCaptions(control(u"&Quillet")->Controls()); }

    long allWrites() {
        long total = 0;
        for (const auto& w : walk())
            total += std::dynamic_pointer_cast<memory::MemoryCommandBarControl>(w.control)->writeCounter().total();
        return total;
    }
    void resetWrites() {
        for (const auto& w : walk())
            std::dynamic_pointer_cast<memory::MemoryCommandBarControl>(w.control)->writeCounter().reset();
    }
};

const std::vector<Str> kWholeBar = {u"&Add Variable...",
                                    u"&Add Constant...",
                                    u"&Add Property...",
                                    u"Insert Varia&ble...",
                                    u"Add P&rocedure...",
                                    u"Add Cl&ass...",
                                    u"Insert &Line Of Code...",
                                    u"Insert Fragme&nt...",
                                    u"View &Shortcuts and Search\u2026",
                                    u"View Code &Explorer\u2026",
                                    u"&Quillet",
                                    u"Hel&p"};

TEST_F(BarState, NoCodeWindowLeavesAddClassThePopupsAndTheViewButtons) {
    project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
    vbe->setActiveWindow(memory::ActiveWindowKind::Project);
    build();
    addin::ToolbarStateSet(*ctx);
    EXPECT_EQ(visibleOnBar(), (std::vector<Str>{u"Add Cl&ass...", u"View &Shortcuts and Search\u2026",
                                                u"View Code &Explorer\u2026", u"&Quillet", u"Hel&p"}));
    EXPECT_TRUE(reports.empty());
}

TEST_F(BarState, NoCodeWindowLeavesAddClassAddControlAndTheProjectEntriesInTheMenu) {
    ctx->TestingMode = true;
    project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
    vbe->setActiveWindow(memory::ActiveWindowKind::Project);
    build();
    addin::MenuStateSet(*ctx);
    EXPECT_EQ(visibleInQuillet(), (std::vector<Str>{u"Add Cl&ass...", u"Add C&ontrol...", u"I&mport File...",
                                                    u"Export File...", u"&Tools"}));
    EXPECT_FALSE(control(u"&Quillet Export File...")->Enabled());  // no component selected
}

TEST_F(BarState, InsideAProcedureTheWholeBarShows) {
    openModule(procModule(), 5, 5);
    build();
    addin::ToolbarStateSet(*ctx);
    EXPECT_EQ(visibleOnBar(), kWholeBar);
}

TEST_F(BarState, OutsideAProcedureTheInsertButtonsHide) {
    openModule(procModule(), 1, 1);
    build();
    addin::ToolbarStateSet(*ctx);
    EXPECT_EQ(visibleOnBar(), (std::vector<Str>{u"&Add Variable...", u"&Add Constant...", u"&Add Property...",
                                                u"Add P&rocedure...", u"Add Cl&ass...",
                                                u"View &Shortcuts and Search\u2026", u"View Code &Explorer\u2026",
                                                u"&Quillet", u"Hel&p"}));
}

TEST_F(BarState, BackInACodeWindowEverythingComesBack) {
    openModule(procModule(), 5, 5);
    vbe->setActiveWindow(memory::ActiveWindowKind::Project);
    build();
    addin::ToolbarStateSet(*ctx);
    vbe->openPane(u"basMain");
    addin::ToolbarStateSet(*ctx);
    EXPECT_EQ(visibleOnBar(), kWholeBar);
}

TEST_F(BarState, APropertyIsWrittenOnlyWhenItsValueChanges) {
    openModule(procModule(), 5, 5);
    build();
    addin::ToolbarStateSet(*ctx);
    resetWrites();
    addin::ToolbarStateSet(*ctx);
    addin::ToolbarStateSet(*ctx);
    EXPECT_EQ(allWrites(), 0);
    caretAt(1);
    addin::ToolbarStateSet(*ctx);
    EXPECT_EQ(allWrites(), 3);  // Insert Variable, Insert Line Of Code, Insert Fragment
    addin::ToolbarStateSet(*ctx);
    EXPECT_EQ(allWrites(), 3);
}

TEST_F(BarState, TheProjectWatchSetsTheBarsState) {
    openModule(procModule(), 1, 1);
    build();
    ctx->TimerForm = addin::TimerFormCreate(*ctx);
    ctx->TimerForm->Timer1_Timer();
    EXPECT_FALSE(control(u"Insert Varia&ble...")->Visible());
    caretAt(5);
    ctx->TimerForm->Timer1_Timer();
    EXPECT_TRUE(control(u"Insert Varia&ble...")->Visible());
}

TEST_F(BarState, WithoutTheBarNothingHappens) {
    openModule(procModule(), 5, 5);
    addin::ToolbarStateSet(*ctx);
    addin::MenuStateSet(*ctx);
    EXPECT_TRUE(reports.empty());
}

TEST_F(BarState, MenuInsideAProcedureShowsAllAndEnablesTheErrorEntries) {
    openModule(procModule(), 5, 5);
    build();
    addin::MenuStateSet(*ctx);
    EXPECT_EQ(visibleInQuillet().size(), static_cast<size_t>(control(u"&Quillet")->Controls()->Count()));
    EXPECT_TRUE(control(u"&Quillet Explicit Arg&ument...")->Enabled());
    EXPECT_TRUE(control(u"&Quillet &Error On &Error GoTo...")->Enabled());
    EXPECT_TRUE(control(u"&Quillet Export File...")->Enabled());
}

TEST_F(BarState, MenuOutsideAProcedureKeepsTheProjectEntriesAndDisablesTheErrorEntries) {
    openModule(procModule(), 1, 1);
    build();
    addin::MenuStateSet(*ctx);
    EXPECT_EQ(visibleInQuillet(), (std::vector<Str>{u"&Variable", u"&Constant", u"Add P&rocedure...",
                                                    u"Add Cl&ass...", u"&Error", u"I&mport File...",
                                                    u"Export File...", u"&Tools"}));
    EXPECT_TRUE(control(u"&Quillet &Error &Comment Lines")->Enabled());
    EXPECT_FALSE(control(u"&Quillet &Error &Line Numbers")->Enabled());
    EXPECT_FALSE(control(u"&Quillet &Error Re&sume")->Enabled());
    EXPECT_FALSE(control(u"&Quillet &Error &Add Error Handling")->Enabled());
}

TEST_F(BarState, ExplicitArgumentIsEnabledOnlyWhenItCanComplete) {
    bool available = false;
    ctx->ExplicitArgumentAvailable = [&] { return available; };
    openModule(procModule(), 5, 5);
    build();
    addin::MenuStateSet(*ctx);
    EXPECT_FALSE(control(u"&Quillet Explicit Arg&ument...")->Enabled());
    available = true;
    addin::MenuStateSet(*ctx);
    EXPECT_TRUE(control(u"&Quillet Explicit Arg&ument...")->Enabled());
}

TEST_F(BarState, OpeningTheQuilletPopupSetsItsEntries) {
    ctx->hostApplications().ExcelApp = officeApplication(u"Microsoft Excel");
    openModule(procModule(), 1, 1);
    build();
    click(u"&Quillet");
    EXPECT_FALSE(control(u"&Quillet &With...")->Visible());
    EXPECT_TRUE(control(u"&Quillet Insert &Objectname...")->Visible());
    resetWrites();
    click(u"&Quillet");
    EXPECT_EQ(allWrites(), 0);
    caretAt(5);
    click(u"&Quillet");
    EXPECT_TRUE(control(u"&Quillet &With...")->Visible());
}

}  // namespace
}  // namespace quillet::testing
