// The scanners over a few hundred generated modules: nothing fails, and what the project scan
// must find is there.

#include "basic_generator.h"
#include "scan_fixture.h"
#include "source/scan_module.h"
#include "source/scan_proc.h"
#include "source/scan_project.h"

namespace quillet::source {
namespace {

using testing::BasicGenerator;
using testing::GeneratedModule;

class SourceGeneratedScan : public testing::ScanFixture {
protected:
    std::vector<GeneratedModule> load(int count) {
        BasicGenerator generator(20240531);
        std::vector<GeneratedModule> modules;
        for (int i = 0; i < count; ++i) {
            modules.push_back(generator.module(i, 60 + (i % 7) * 20));
            std::vector<Str> lines;
            for (const auto& line : modules.back().lines) lines.push_back(basic::fromUtf8(line));
            project->addComponent(basic::fromUtf8(modules.back().name),
                                  modules.back().isClass ? host::vbext_ct_ClassModule : host::vbext_ct_StdModule, lines);
        }
        return modules;
    }
};

TEST_F(SourceGeneratedScan, ThreeHundredModulesScanWithoutAFailure) {
    auto modules = load(300);
    state.ProjectProcs = newCollection<C4_ProcDef>();
    clsScanProject scan(env());
    scan.init({}, true);
    EXPECT_EQ(scan.ModulesScanned, 300);
    EXPECT_TRUE(reported.empty()) << basic::toUtf8(reported.front());
    for (const auto& m : modules) {
        for (const auto& n : m.publicVariables) EXPECT_TRUE(state.ProjectVars->Exists(basic::fromUtf8(n))) << n;
        for (const auto& n : m.publicConstants) EXPECT_TRUE(state.ProjectConsts->Exists(basic::fromUtf8(n))) << n;
        for (const auto& n : m.publicEnums) EXPECT_TRUE(state.ProjectEnums->Exists(basic::fromUtf8(n))) << n;
        for (const auto& n : m.publicProcedures) EXPECT_TRUE(state.ProjectProcs->Exists(basic::fromUtf8(n))) << n;
    }
}

TEST_F(SourceGeneratedScan, ModuleAndProcedureScansAtEveryProcedure) {
    auto modules = load(40);
    state.ProjectProcs = newCollection<C4_ProcDef>();
    clsScanProject(env()).init({}, true);
    for (const auto& m : modules) {
        auto component = project->component(basic::fromUtf8(m.name));
        auto pane = vbe->openPane(component);
        vbe->setSelectedComponent(component);
        clsScanModule moduleScan(env());
        moduleScan.init();
        for (long line = 1; line <= static_cast<long>(m.lines.size()); line += 3) {
            pane->SetSelection(line, 1, line, 1);
            clsScanProc procScan(env());
            procScan.init(true);
            if (procScan.ProcName().empty()) continue;
            EXPECT_GE(procScan.ProcRealEndLine(), procScan.ProcRealStartLine());
            if (!procScan.ProcVars.Exists(u"calls")) continue;  // a Property Let
            EXPECT_TRUE(procScan.ProcLabels.Exists(u"HandleError")) << m.name << ":" << line;
            ASSERT_TRUE(procScan.ProcLabels.Exists(u"Again")) << m.name << ":" << line;
            EXPECT_TRUE(procScan.ProcLabels.Item(u"Again")->HasReturn);
            EXPECT_TRUE(procScan.ProcConsts.Exists(u"cstrProcedure"));
        }
    }
    EXPECT_TRUE(reported.empty()) << basic::toUtf8(reported.front());
}

}  // namespace
}  // namespace quillet::source
