// Every host call of a quick command failed in turn: the command never throws, reports what
// failed, and leaves the module either as it was or with the whole intended change.

#include <gtest/gtest.h>

#include "addin/quillet_handle.h"
#include "addin_fixture.h"
#include "fault_sweep.h"
#include "hosts/fault/fault_plan.h"

namespace quillet::testing {
namespace {

struct Scenario {
    const char16_t* command;
    const char16_t* answer;  // for the input box, or nullptr
    long line;
    long col;
};

const std::vector<Str> kModule = {u"Option Explicit", u"",         u"Public Function Total() As Long",
                                  u"    Dim x As Long", u"    ", u"    x = 1", u"End Function"};

// Runs one command on a fresh editor seen through the fault host failing at call k (0: none).
SweepOutcome runWithFault(const Scenario& s, long k) {
    auto memoryVbe = memory::MemoryVBE::create();
    auto project = memoryVbe->addProject(u"VBAProject", u"C:\\Book1.xlsm", u"Excel");
    auto component = project->addComponent(u"basMain", host::vbext_ct_StdModule, kModule);
    memoryVbe->openPane(component)->SetSelection(s.line, s.col, s.line, s.col);
    auto plan = std::make_shared<hosts::fault::FaultPlan>();
    auto platform = std::make_shared<platform::ScriptedPlatform>();
    wirePlatform(*platform, memoryVbe);
    if (s.answer) platform->queueAnswer(s.answer);
    core::Context ctx(hosts::fault::wrapVBE(memoryVbe, plan), platform);
    SweepOutcome run;
    ctx.reportListener = [&](const Str&) { ++run.reports; };
    if (k > 0) plan->failAt(k);
    EXPECT_NO_THROW(addin::QuilletHandle(ctx, s.command, u""));
    run.calls = plan->calls();
    auto module = component->CodeModule();
    run.text = module->Lines(1, module->CountOfLines());
    return run;
}

class QuickCommandReliability : public ::testing::TestWithParam<Scenario> {};

TEST_P(QuickCommandReliability, EachFailingHostCallIsReportedAndLeavesNoHalfChange) {
    const Scenario& s = GetParam();
    expectEachFaultLeavesOldTextOrWholeChange([&](long k) { return runWithFault(s, k); }, joinLines(kModule));
}

INSTANTIATE_TEST_SUITE_P(
    AllBlockCommands, QuickCommandReliability,
    ::testing::Values(Scenario{u"If Then", nullptr, 4, 10}, Scenario{u"End If", nullptr, 5, 5},
                      Scenario{u"If Then Else", nullptr, 5, 5}, Scenario{u"If Then Else If", u"2", 5, 5},
                      Scenario{u"If Then ElseIf Else", u"1", 6, 3}, Scenario{u"IfDoLoopWhile", nullptr, 5, 5},
                      Scenario{u"IfDoLoopUntil", nullptr, 5, 5}, Scenario{u"ForEachNext", nullptr, 6, 1},
                      Scenario{u"ForNext", nullptr, 5, 5}, Scenario{u"While", nullptr, 5, 5},
                      Scenario{u"On Error Resume Next", nullptr, 5, 5}, Scenario{u"On Error GoTo 0", nullptr, 4, 1},
                      Scenario{u"Resume", nullptr, 5, 5}, Scenario{u"Resume Next", nullptr, 5, 5},
                      Scenario{u"Exit For", nullptr, 5, 5}, Scenario{u"Exit", nullptr, 5, 5},
                      Scenario{u"Exit", nullptr, 6, 10}),
    [](const ::testing::TestParamInfo<Scenario>& info) {
        std::string name;
        for (char16_t c : Str(info.param.command))
            if ((c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9'))
                name += static_cast<char>(c);
        return name + "_" + std::to_string(info.index);
    });

}  // namespace
}  // namespace quillet::testing
