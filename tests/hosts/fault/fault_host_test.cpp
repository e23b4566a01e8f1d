#include "hosts/fault/fault_plan.h"

#include <gtest/gtest.h>

#include "host/contract.h"
#include "hosts/memory/memory_host.h"

namespace quillet::hosts::fault {
namespace {

using memory::MemoryVBE;

using host::contract::errorOf;

class FaultHostTest : public ::testing::Test {
protected:
    void SetUp() override {
        auto project = memory_->addProject(u"VBAProject");
        project->addComponent(u"basMain", host::vbext_ct_StdModule, {u"Option Explicit", u"Sub A()", u"End Sub"});
        project->addComponent(u"basOther", host::vbext_ct_StdModule, {u"' other"});
        memory_->openPane(u"basMain");
        vbe_ = wrapVBE(memory_, plan_);
    }
    // Reads the line under the caret, as a command would.
    Str lineAtCaret() {
        auto pane = vbe_->ActiveCodePane();
        long sl = 0, sc = 0, el = 0, ec = 0;
        pane->GetSelection(sl, sc, el, ec);
        return pane->CodeModule()->Lines(sl, 1);
    }

    std::shared_ptr<MemoryVBE> memory_ = MemoryVBE::create();
    std::shared_ptr<FaultPlan> plan_ = std::make_shared<FaultPlan>();
    host::VBEPtr vbe_;
};

TEST_F(FaultHostTest, CountsEveryCall) {
    EXPECT_EQ(lineAtCaret(), u"Option Explicit");
    EXPECT_EQ(plan_->calls(), 4);
    EXPECT_EQ(plan_->log(), (std::vector<std::string>{"VBE.ActiveCodePane", "CodePane.GetSelection",
                                                      "CodePane.CodeModule", "CodeModule.Lines"}));
    plan_->reset();
    EXPECT_EQ(plan_->calls(), 0);
    EXPECT_TRUE(plan_->log().empty());
}

TEST_F(FaultHostTest, FailsEachCallInTurn) {
    lineAtCaret();
    long n = plan_->calls();
    for (long k = 1; k <= n; ++k) {
        SCOPED_TRACE(k);
        plan_->reset();
        plan_->failAt(k);
        try {
            lineAtCaret();
            ADD_FAILURE() << "no error";
        } catch (const basic::VbError& e) {
            EXPECT_EQ(e.Number(), 440);
            EXPECT_EQ(e.Description(), u"Automation error");
        }
        EXPECT_EQ(plan_->calls(), k);
        EXPECT_EQ(plan_->failures(), 1);
    }
    plan_->clearFaults();
    plan_->reset();
    EXPECT_EQ(lineAtCaret(), u"Option Explicit");
}

TEST_F(FaultHostTest, FailedCallDoesNotReachTheEditor) {
    auto module = vbe_->ActiveCodePane()->CodeModule();
    plan_->reset();
    plan_->failAt(1, 1004, u"Application-defined or object-defined error");
    EXPECT_EQ(errorOf([&] { module->InsertLines(1, u"' new"); }), 1004);
    EXPECT_EQ(memory_->activeProject()->component(u"basMain")->codeModule()->CountOfLines(), 3);
    module->InsertLines(1, u"' new");  // only the first call failed
    EXPECT_EQ(memory_->activeProject()->component(u"basMain")->codeModule()->CountOfLines(), 4);
}

TEST_F(FaultHostTest, FailFromStopsEverythingAfter) {
    plan_->failFrom(2);
    auto pane = vbe_->ActiveCodePane();
    EXPECT_EQ(errorOf([&] { pane->TopLine(); }), 440);
    EXPECT_EQ(errorOf([&] { pane->TopLine(); }), 440);
    EXPECT_EQ(plan_->failures(), 2);
}

TEST_F(FaultHostTest, ZeroNeverFails) {
    plan_->failAt(0);
    for (int i = 0; i < 5; ++i) lineAtCaret();
    EXPECT_EQ(plan_->failures(), 0);
}

TEST_F(FaultHostTest, OneObjectKeepsOneWrapper) {
    auto a = vbe_->ActiveCodePane();
    auto b = vbe_->CodePanes()->Item(1);
    EXPECT_EQ(a, b);
    EXPECT_NE(a, memory_->activePane());
}

TEST_F(FaultHostTest, ErrorsOfTheEditorPassThrough) {
    auto components = vbe_->ActiveVBProject()->VBComponents();
    EXPECT_EQ(errorOf([&] { components->Item(u"basNone"); }), 9);
    EXPECT_EQ(errorOf([&] { vbe_->ActiveCodePane()->CodeModule()->ProcBodyLine(u"Z", 0); }), 35);
}

TEST_F(FaultHostTest, ObjectsPassedInAreUnwrapped) {
    auto components = vbe_->ActiveVBProject()->VBComponents();
    components->Remove(components->Item(u"basOther"));
    EXPECT_EQ(components->Count(), 1);
}

TEST_F(FaultHostTest, ByRefArgumentsComeBack) {
    auto module = vbe_->ActiveCodePane()->CodeModule();
    long kind = -1;
    EXPECT_EQ(module->ProcOfLine(2, kind), u"A");
    EXPECT_EQ(kind, 0);
    long sl = 0, sc = 0, el = 0, ec = 0;
    EXPECT_TRUE(module->Find(u"Sub", sl, sc, el, ec));
    EXPECT_EQ(sl, 2);
    EXPECT_EQ(ec, 4);
    basic::DispatchPtr doc;
    vbe_->Windows()->CreateToolWindow(nullptr, u"X.Y", u"Tool", u"{g}", doc);
    EXPECT_NE(doc, nullptr);
}

TEST_F(FaultHostTest, ClickHandlersGetWrappedControls) {
    auto button = vbe_->CommandBars()->Add(u"Quillet", host::msoBarTop, false, true)->Controls()->Add(
        host::msoControlButton);
    button->Caption(u"Go");
    auto sink = vbe_->Events()->CommandBarEvents(button);
    host::CommandBarControlPtr seen;
    Str caption;
    sink->Connect([&](const host::CommandBarControlPtr& control, bool&, bool&) {
        seen = control;
        caption = control->Caption();
    });
    plan_->reset();
    button->Execute();
    EXPECT_EQ(seen, button);
    EXPECT_EQ(caption, u"Go");
    EXPECT_EQ(plan_->log(), (std::vector<std::string>{"CommandBarControl.Execute", "CommandBarControl.Caption"}));
    plan_->reset();
    plan_->failAt(2);
    EXPECT_EQ(errorOf([&] { button->Execute(); }), 440);  // the handler's own call failed
}

// The whole host contract, through the wrapper with no fault planned.
class WrappedMemoryFactory : public host::contract::HostFactory {
public:
    host::VBEPtr build(const std::vector<host::contract::ModuleSpec>& modules) override {
        auto memory = MemoryVBE::create();
        auto project = memory->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
        for (const auto& m : modules) project->addComponent(m.name, m.type, m.lines);
        return wrapVBE(memory, std::make_shared<FaultPlan>());
    }
    host::CodePanePtr openPane(const host::VBEPtr& vbe, const Str& moduleName) override {
        vbe->ActiveVBProject()->VBComponents()->Item(moduleName)->Activate();
        return vbe->ActiveCodePane();
    }
};

using host::contract::HostContract;

INSTANTIATE_TEST_SUITE_P(Fault, HostContract,
                         ::testing::Values(host::contract::FactoryParam{
                             "WrappedMemory", [] { return std::make_shared<WrappedMemoryFactory>(); }}),
                         host::contract::factoryName);

}  // namespace
}  // namespace quillet::hosts::fault
