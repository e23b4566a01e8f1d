// Every host call of the line tools failed in turn: the command never throws, reports what
// failed, and leaves the module either with its old text or with the whole change.

#include <gtest/gtest.h>

#include "addin/project_commands.h"
#include "addin/quillet_handle.h"
#include "../addin/fault_sweep.h"
#include "hosts/fault/fault_plan.h"
#include "tools_fixture.h"

namespace quillet::testing {
namespace {

struct ToolScenario {
    const char* name;
    std::vector<Str> module;
    long startLine, startCol, endLine, endCol;
};

void PrintTo(const ToolScenario& s, std::ostream* os) {
    *os << s.name << " on " << s.startLine << ":" << s.startCol << "-" << s.endLine << ":" << s.endCol;
}

const std::vector<Str> kPlain = {u"Option Explicit", u"", u"Public Function Total() As Long", u"    Dim x As Long",
                                 u"    x = 1", u"    If x Then", u"        x = 2", u"    End If", u"End Function"};
const std::vector<Str> kNumbered = {u"Option Explicit", u"", u"Public Function Total() As Long", u"    Dim x As Long",
                                    u"2005    x = 1", u"2006    If x Then", u"2007        x = 2", u"        End If",
                                    u"End Function"};
const std::vector<Str> kCommented = {u"Option Explicit", u"", u"Public Function Total() As Long", u"    Dim x As Long",
                                     u"'    x = 1", u"'    If x Then", u"    '    x = 2", u"    End If",
                                     u"End Function"};

void runTool(core::Context& ctx, const std::string& name) {
    if (name == "LineNumbersAdd") addin::LineNumbers(ctx, 0);
    if (name == "LineNumbersRemove") addin::LineNumbers(ctx, 1);
    if (name == "CommentLinesAdd") addin::QuilletHandle(ctx, u"Comment Lines Add", u"");
    if (name == "CommentLinesRemove") addin::QuilletHandle(ctx, u"Comment Lines Remove", u"");
}

// Runs one tool on a fresh editor seen through the fault host failing at call k (0: none).
SweepOutcome runWithFault(const ToolScenario& s, long k) {
    auto memoryVbe = memory::MemoryVBE::create();
    auto project = memoryVbe->addProject(u"VBAProject", u"C:\\Book1.xlsm", u"Excel");
    auto component = project->addComponent(u"basMain", host::vbext_ct_StdModule, s.module);
    memoryVbe->openPane(component)->SetSelection(s.startLine, s.startCol, s.endLine, s.endCol);
    auto plan = std::make_shared<hosts::fault::FaultPlan>();
    auto platform = std::make_shared<platform::ScriptedPlatform>();
    wirePlatform(*platform, memoryVbe);
    core::Context ctx(hosts::fault::wrapVBE(memoryVbe, plan), platform);
    addin::RegisterScanCommands(ctx);
    tools::ToolsInstall(ctx);
    SweepOutcome run;
    ctx.reportListener = [&](const Str&) { ++run.reports; };
    if (k > 0) plan->failAt(k);
    EXPECT_NO_THROW(runTool(ctx, s.name));
    run.calls = plan->calls();
    auto module = component->CodeModule();
    run.text = module->Lines(1, module->CountOfLines());
    return run;
}

class LineToolReliability : public ::testing::TestWithParam<ToolScenario> {};

TEST_P(LineToolReliability, EachFailingHostCallIsReportedAndLeavesNoHalfChange) {
    const ToolScenario& s = GetParam();
    expectEachFaultLeavesOldTextOrWholeChange([&](long k) { return runWithFault(s, k); }, joinLines(s.module));
}

INSTANTIATE_TEST_SUITE_P(AllLineTools, LineToolReliability,
                         ::testing::Values(ToolScenario{"LineNumbersAdd", kPlain, 3, 1, 9, 13},
                                           ToolScenario{"LineNumbersAdd", kPlain, 5, 3, 5, 3},
                                           ToolScenario{"LineNumbersAdd", kNumbered, 5, 1, 7, 1},
                                           ToolScenario{"LineNumbersRemove", kNumbered, 1, 1, 9, 1},
                                           ToolScenario{"LineNumbersRemove", kNumbered, 6, 2, 6, 2},
                                           ToolScenario{"CommentLinesAdd", kPlain, 5, 5, 7, 9},
                                           ToolScenario{"CommentLinesAdd", kPlain, 5, 5, 5, 5},
                                           ToolScenario{"CommentLinesRemove", kCommented, 4, 1, 8, 1}),
                         [](const ::testing::TestParamInfo<ToolScenario>& info) {
                             return std::string(info.param.name) + "_" + std::to_string(info.index);
                         });

}  // namespace
}  // namespace quillet::testing
