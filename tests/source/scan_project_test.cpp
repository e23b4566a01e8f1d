#include "source/scan_project.h"

#include "hosts/fault/fault_plan.h"
#include "scan_fixture.h"
#include "suffix_cases.h"

namespace quillet::source {
namespace {

using testing::ScanFixture;
using V = std::vector<Str>;

class SourceScanProject : public ScanFixture {
protected:
    void scan(const Str& module = {}, bool reload = false) { clsScanProject(env()).init(module, reload); }
};

TEST_F(SourceScanProject, PublicDeclarationsOfAStandardModule) {
    openModule(u"basMain", {u"Option Explicit",
                            u"Public Const A = 1, B = 2",
                            u"Global gstrName As String, garr() As Long",
                            u"Public Enum eColor",
                            u"    Red = 1",
                            u"    Green",
                            u"End Enum",
                            u"Public Type tPoint",
                            u"    X As Long",
                            u"End Type",
                            u"Public Declare PtrSafe Sub Sleep Lib \"kernel32\" (ByVal ms As Long)",
                            u"Declare Function GetTickCount Lib \"kernel32\" () As Long",
                            u"Private mlngHidden As Long",
                            u"Dim x As Long",
                            u"",
                            u"Public Sub Run()",
                            u"End Sub",
                            u"Private Sub Hidden()",
                            u"End Sub",
                            u"Function Compute(a) As Long",
                            u"End Function"});
    scan();
    EXPECT_EQ(names(*state.ProjectConsts), (V{u"A", u"B", u"Red", u"Green"}));
    EXPECT_EQ(state.ProjectConsts->Item(u"A")->ModuleName, u"basMain");
    EXPECT_EQ(state.ProjectConsts->Item(u"B")->Value, u"2");
    EXPECT_EQ(names(*state.ProjectVars), (V{u"gstrName", u"garr"}));
    EXPECT_EQ(state.ProjectVars->Item(u"garr")->Type_, u"Long");
    EXPECT_TRUE(state.ProjectVars->Item(u"garr")->IsArray);
    EXPECT_EQ(names(*state.ProjectEnums), (V{u"eColor"}));
    EXPECT_EQ(state.ProjectEnums->Item(1)->Module, u"basMain");
    EXPECT_EQ(names(*state.ProjectTypes), (V{u"tPoint"}));
    EXPECT_EQ(names(*state.ProjectProcs), (V{u"Run", u"Compute", u"Sleep", u"GetTickCount"}));
    EXPECT_NE(state.ProjectProcs->Find(u"VBAProject.Sleep"), nullptr);
    EXPECT_EQ(state.ProjectProcs->Item(u"Compute")->ProcReturnType, u"Long");
    EXPECT_TRUE(reported.empty());
}

TEST_F(SourceScanProject, AClassModuleGivesOnlyItsPublicEnumsAndDeclares) {
    openModule(u"clsThing", {u"Option Explicit",
                             u"Public Const A = 1, B = 2",
                             u"Public x As Long",
                             u"Public Enum eKind",
                             u"    kOne",
                             u"End Enum",
                             u"Public Type tNot",
                             u"    Y As Long",
                             u"End Type",
                             u"Public Declare Sub Beep Lib \"kernel32\" ()",
                             u"",
                             u"Public Sub Method()",
                             u"End Sub"},
               1, 1, host::vbext_ct_ClassModule);
    scan();
    EXPECT_EQ(names(*state.ProjectConsts), (V{u"kOne"}));
    EXPECT_EQ(state.ProjectVars->Count(), 0);
    EXPECT_EQ(names(*state.ProjectEnums), (V{u"eKind"}));
    EXPECT_EQ(state.ProjectTypes->Count(), 0);
    EXPECT_EQ(names(*state.ProjectProcs), (V{u"Beep"}));
}

TEST_F(SourceScanProject, TheModuleScannedFirstKeepsAPublicName) {
    project->addComponent(u"basOne", host::vbext_ct_StdModule, {u"Public Total As Long", u"Public Const Max = 1"});
    project->addComponent(u"basTwo", host::vbext_ct_StdModule, {u"Public Total As String", u"Public Const Max = 2"});
    scan();
    ASSERT_EQ(state.ProjectVars->Count(), 1);
    EXPECT_EQ(state.ProjectVars->Item(u"Total")->ModuleName, u"basOne");
    EXPECT_EQ(state.ProjectConsts->Item(u"Max")->Value, u"1");
    EXPECT_TRUE(reported.empty());
}

TEST_F(SourceScanProject, ProceduresOfALaterModuleReplaceThoseOfTheSameName) {
    project->addComponent(u"basOne", host::vbext_ct_StdModule, {u"Public Sub Go()", u"End Sub"});
    project->addComponent(u"basTwo", host::vbext_ct_StdModule,
                          {u"Public Sub Go()", u"End Sub", u"Property Get P()", u"End Property", u"Property Let P(v)",
                           u"End Property"});
    scan();
    EXPECT_EQ(state.ProjectProcs->Item(u"Go")->ModuleName, u"basTwo");
    // Of a property's Get and Let the later one stays.
    EXPECT_EQ(state.ProjectProcs->Item(u"P")->ProcKind, host::vbext_pk_Let);
}

TEST_F(SourceScanProject, ALockedProjectGivesEmptyCollections) {
    project->addComponent(u"basOne", host::vbext_ct_StdModule, {u"Public Total As Long"});
    project->setProtection(host::vbext_pp_locked);
    scan();
    ASSERT_TRUE(state.ProjectProcs && state.ProjectVars && state.ProjectConsts && state.ProjectEnums && state.ProjectTypes);
    EXPECT_EQ(state.ProjectVars->Count(), 0);
    EXPECT_EQ(state.ProjectProcs->Count(), 0);
    EXPECT_TRUE(reported.empty());
}

TEST_F(SourceScanProject, NoProjectGivesEmptyCollections) {
    vbe->removeProject(project);
    scan();
    ASSERT_TRUE(state.ProjectVars);
    EXPECT_EQ(state.ProjectVars->Count(), 0);
}

TEST_F(SourceScanProject, ReloadStartsAfreshAndAModuleCanBeRemovedAndAdded) {
    auto one = project->addComponent(u"basOne", host::vbext_ct_StdModule,
                                     {u"Public Total As Long", u"Public Enum eA", u"aOne", u"End Enum", u"Public Type tA",
                                      u"x As Long", u"End Type", u"Public Sub Go()", u"End Sub"});
    project->addComponent(u"basTwo", host::vbext_ct_StdModule, {u"Public Count As Long"});
    scan();
    auto vars = state.ProjectVars;
    ModuleRemove(state, u"BASONE");
    EXPECT_EQ(names(*state.ProjectVars), (V{u"Count"}));
    EXPECT_EQ(state.ProjectEnums->Count(), 0);
    EXPECT_EQ(state.ProjectTypes->Count(), 0);
    EXPECT_EQ(state.ProjectProcs->Count(), 0);
    // Enum members carry no module name: they stay.
    EXPECT_EQ(names(*state.ProjectConsts), (V{u"aOne"}));
    one->setLines({u"Public Total As Double"});
    ModuleAdd(env(), u"basOne");
    EXPECT_EQ(names(*state.ProjectVars), (V{u"Count", u"Total"}));
    EXPECT_EQ(state.ProjectVars.get(), vars.get());
    scan({}, true);
    EXPECT_NE(state.ProjectVars.get(), vars.get());
    EXPECT_EQ(names(*state.ProjectVars), (V{u"Total", u"Count"}));
}

TEST_F(SourceScanProject, AnUnknownModuleIsReported) {
    scan(u"basNone");
    ASSERT_EQ(reported.size(), 1u);
    EXPECT_EQ(reported[0].substr(0, 21), u"clsScanProject.init: ");
}

TEST_F(SourceScanProject, AModuleIsReadInOneCall) {
    std::vector<Str> lines{u"Option Explicit", u"Public Total As Long", u""};
    for (int i = 0; i < 20; ++i) {
        Str n(1, static_cast<char16_t>(u'A' + i));
        lines.insert(lines.end(), {u"Public Sub P" + n + u"(a As Long)", u"    Dim x As Long", u"End Sub", u""});
    }
    project->addComponent(u"basBig", host::vbext_ct_StdModule, lines);
    auto plan = std::make_shared<hosts::fault::FaultPlan>();
    host::VBEPtr wrapped = hosts::fault::wrapVBE(vbe, plan);
    ScanEnv counted{*wrapped, state, env().report};
    clsScanProject(counted).init();
    EXPECT_EQ(state.ProjectProcs->Count(), 20);
    long linesCalls = 0, procOfLine = 0;
    for (const auto& call : plan->log()) {
        if (call == "CodeModule.Lines") ++linesCalls;
        if (call == "CodeModule.ProcOfLine") ++procOfLine;
    }
    EXPECT_EQ(linesCalls, 1);
    EXPECT_EQ(procOfLine, 20);
    EXPECT_LT(plan->calls(), 20 * 8);
}

TEST_F(SourceScanProject, EveryFailingHostCallIsReportedAndTheScanGoesOn) {
    project->addComponent(u"basOne", host::vbext_ct_StdModule,
                          {u"Public Total As Long", u"Public Enum eA", u"aOne", u"End Enum", u"Public Sub Go()", u"End Sub"});
    project->addComponent(u"clsTwo", host::vbext_ct_ClassModule, {u"Public Enum eB", u"bOne", u"End Enum"});
    auto plan = std::make_shared<hosts::fault::FaultPlan>();
    host::VBEPtr wrapped = hosts::fault::wrapVBE(vbe, plan);
    {
        ProjectScanState fresh;
        clsScanProject(ScanEnv{*wrapped, fresh, {}}).init();
    }
    long calls = plan->calls();
    ASSERT_GT(calls, 5);
    for (long k = 1; k <= calls; ++k) {
        plan->reset();
        plan->failAt(k);
        ProjectScanState fresh;
        std::vector<Str> seen;
        EXPECT_NO_THROW(clsScanProject(ScanEnv{*wrapped, fresh, [&](const basic::VbError&, const Str& w) {
                                                   seen.push_back(w);
                                               }})
                            .init());
        EXPECT_EQ(seen.size(), 1u) << "call " << k << " " << plan->log()[k - 1];
    }
}

}  // namespace
}  // namespace quillet::source

namespace quillet::source {
namespace {

// The editor names a procedure without its type-suffix character; the signature's character still
// says the return type.
class SourceScanProjectSuffix : public testing::ScanFixture {};

TEST_F(SourceScanProjectSuffix, ATypeSuffixGivesTheReturnType) {
    const auto& suffixes = testing::typeSuffixCases();
    std::vector<Str> lines;
    for (size_t i = 0; i < suffixes.size(); ++i) {
        Str name = u"F" + Str(1, static_cast<char16_t>(u'0' + i));
        lines.push_back(u"Public Function " + name + suffixes[i].first + u"(a As Long)");
        lines.push_back(u"End Function");
    }
    openModule(u"basMain", lines);
    clsScanProject(env()).init({}, true);
    for (size_t i = 0; i < suffixes.size(); ++i) {
        Str name = u"F" + Str(1, static_cast<char16_t>(u'0' + i));
        ASSERT_TRUE(state.ProjectProcs->Exists(name)) << basic::toUtf8(name);
        EXPECT_EQ(state.ProjectProcs->Item(name)->ProcReturnType, suffixes[i].second) << basic::toUtf8(name);
        EXPECT_TRUE(state.ProjectProcs->Item(name)->ProcIsFunction);
    }
}

}  // namespace
}  // namespace quillet::source
