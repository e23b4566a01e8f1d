#include "source/project_refresh.h"

#include "code_fixture.h"
#include "hosts/fault/fault_plan.h"
#include "source/scan_project.h"

namespace quillet::source {
namespace {

using testing::CodeFixture;

class SourceProjectRefresh : public CodeFixture {
protected:
    SourceProjectRefresh() {
        openModule(u"basMain", {u"Public gA As Long", u"", u"Public Sub Run()", u"End Sub"});
        project->addComponent(u"basData", host::vbext_ct_StdModule, {u"Public Const cB = 1"});
        project->addComponent(u"clsOrder", host::vbext_ct_ClassModule, {u"Public Enum Status", u"Open", u"End Enum"});
    }
    void setLines(const Str& module, const std::vector<Str>& newLines) {
        auto code = project->component(module)->CodeModule();
        if (code->CountOfLines() > 0) code->DeleteLines(1, code->CountOfLines());
        code->InsertLines(1, basic::Join(newLines, u"\r\n"));
    }
};

TEST_F(SourceProjectRefresh, FirstRefreshScansTheWholeProject) {
    auto env = codeEnv();
    EXPECT_EQ(ProjectRefresh(env), 3);
    EXPECT_TRUE(state.ProjectVars->Exists(u"gA"));
    EXPECT_TRUE(state.ProjectConsts->Exists(u"cB"));
    EXPECT_TRUE(state.ProjectEnums->Exists(u"Status"));
    EXPECT_TRUE(state.ProjectProcs->Exists(u"Run"));
    EXPECT_EQ(state.ScannedProject, u"VBAProject");
}

TEST_F(SourceProjectRefresh, NothingChangedRescansNothing) {
    auto env = codeEnv();
    ProjectRefresh(env);
    EXPECT_EQ(ProjectRefresh(env), 0);
    EXPECT_EQ(state.ProjectVars->Count(), 1);
}

TEST_F(SourceProjectRefresh, AProjectInitializeScanCountsAsTheLastScan) {
    state.ProjectProcs = newCollection<C4_ProcDef>();
    clsScanProject(env()).init({}, true);
    auto env = codeEnv();
    EXPECT_EQ(ProjectRefresh(env), 0);
}

TEST_F(SourceProjectRefresh, OnlyTheChangedModuleIsScannedAgain) {
    auto env = codeEnv();
    ProjectRefresh(env);
    setLines(u"basData", {u"Public Const cC = 2"});
    EXPECT_EQ(ProjectRefresh(env), 1);
    EXPECT_FALSE(state.ProjectConsts->Exists(u"cB"));
    EXPECT_TRUE(state.ProjectConsts->Exists(u"cC"));
    EXPECT_TRUE(state.ProjectVars->Exists(u"gA"));
}

TEST_F(SourceProjectRefresh, AChangeInAProcedureIsSeenToo) {
    auto env = codeEnv();
    ProjectRefresh(env);
    auto code = project->component(u"basMain")->CodeModule();
    code->ReplaceLine(3, u"Public Sub Run(ByVal n As Long)");
    EXPECT_EQ(ProjectRefresh(env), 1);
    EXPECT_EQ(state.ProjectProcs->Item(u"Run")->ProcArguments->Count(), 1);
}

TEST_F(SourceProjectRefresh, NewAndRemovedModules) {
    auto env = codeEnv();
    ProjectRefresh(env);
    project->addComponent(u"basNew", host::vbext_ct_StdModule, {u"Public gNew As String"});
    auto components = project->VBComponents();
    components->Remove(components->Item(u"basData"));
    EXPECT_EQ(ProjectRefresh(env), 1);
    EXPECT_TRUE(state.ProjectVars->Exists(u"gNew"));
    EXPECT_FALSE(state.ProjectConsts->Exists(u"cB"));
    EXPECT_EQ(state.ModuleSignatures.count(signatureKey(u"basData")), 0u);
    EXPECT_EQ(ProjectRefresh(env), 0);
}

TEST_F(SourceProjectRefresh, AnotherProjectIsScannedWhole) {
    auto env = codeEnv();
    ProjectRefresh(env);
    auto other = vbe->addProject(u"Other", u"C:\\Work\\Other.xlsm", u"Excel");
    other->addComponent(u"basOther", host::vbext_ct_StdModule, {u"Public gOther As Long"});
    vbe->setActiveProject(other);
    EXPECT_EQ(ProjectRefresh(env), 1);
    EXPECT_TRUE(state.ProjectVars->Exists(u"gOther"));
    EXPECT_FALSE(state.ProjectVars->Exists(u"gA"));
}

TEST_F(SourceProjectRefresh, TheLibrariesComeFirstWithTheReferencesFlag) {
    auto env = codeEnv();
    std::vector<bool> calls;
    env.librariesRefresh = [&](bool references) { calls.push_back(references); };
    ProjectRefresh(env, true);
    ProjectRefresh(env, false);
    EXPECT_EQ(calls, (std::vector<bool>{true, false}));
}

TEST_F(SourceProjectRefresh, ALockedProjectIsLeftAlone) {
    auto env = codeEnv();
    ProjectRefresh(env);
    project->setProtection(host::vbext_pp_locked);
    EXPECT_EQ(ProjectRefresh(env), 0);
    EXPECT_TRUE(reported.empty());
}

TEST_F(SourceProjectRefresh, AnUnchangedRefreshReadsEachModuleOnce) {
    auto plan = std::make_shared<hosts::fault::FaultPlan>();
    auto wrapped = hosts::fault::wrapVBE(vbe, plan);
    ScanEnv scan{*wrapped, state, env().report};
    CodeEnv code{*wrapped, *platform, settings, state, scan.report, {}, {}, {}, {}, {}};
    ProjectRefresh(code);
    plan->reset();
    ProjectRefresh(code);
    long reads = 0;
    for (const auto& call : plan->log())
        if (call == "CodeModule.Lines") ++reads;
    EXPECT_EQ(reads, 3);
}

}  // namespace
}  // namespace quillet::source
