#include "source/scan_module.h"

#include "scan_fixture.h"
#include "suffix_cases.h"

namespace quillet::source {
namespace {

using testing::ScanFixture;
using V = std::vector<Str>;

class SourceScanModule : public ScanFixture {
protected:
    std::unique_ptr<clsScanModule> scan(const Str& module = {}) {
        auto scanner = std::make_unique<clsScanModule>(env());
        scanner->init(module);
        return scanner;
    }
};

TEST_F(SourceScanModule, PrivateDeclarationsOfAStandardModule) {
    openModule(u"basMain", {u"Option Explicit",
                            u"Dim a, b As Long, c$",
                            u"Private mcol As New Collection, mstrName As String",
                            u"Private Const mcstrTitle As String = \"Title: \" ' the title",
                            u"Const Q = \"it's\"",
                            u"Private Enum eLocal",
                            u"    lOne = 1",
                            u"End Enum",
                            u"Private Type tLocal",
                            u"    X As Long",
                            u"End Type",
                            u"Private Declare Sub Sleep Lib \"kernel32\" (ByVal ms As Long)",
                            u"Public Total As Long",
                            u"Global gTotal As Long",
                            u"Public Enum eShared",
                            u"    sOne",
                            u"End Enum",
                            u"",
                            u"Public Sub Run()",
                            u"End Sub",
                            u"Private Sub Helper()",
                            u"End Sub",
                            u"Private Function Calc() As Long",
                            u"End Function"});
    auto s = scan();
    EXPECT_EQ(names(s->ModuleVars), (V{u"a", u"b", u"c", u"mcol", u"mstrName"}));
    EXPECT_EQ(s->ModuleVars.Item(u"b")->Type_, u"Long");
    EXPECT_EQ(s->ModuleVars.Item(u"c")->Type_, u"String");
    EXPECT_EQ(s->ModuleVars.Item(u"a")->Type_, u"Variant");
    EXPECT_EQ(s->ModuleVars.Item(u"mcol")->Type_, u"New Collection");
    EXPECT_EQ(s->ModuleVars.Item(u"a")->ModuleName, u"");
    EXPECT_EQ(names(s->ModuleConsts), (V{u"mcstrTitle", u"Q", u"lOne"}));
    EXPECT_EQ(s->ModuleConsts.Item(u"mcstrTitle")->Value, u"\"Title: \"");
    // The apostrophe in the string cuts the statement.
    EXPECT_EQ(s->ModuleConsts.Item(u"Q")->Value, u"\"it");
    EXPECT_EQ(names(s->ModuleEnums), (V{u"eLocal"}));
    EXPECT_TRUE(s->ModuleEnums.Item(1)->IsPrivate);
    EXPECT_EQ(names(s->ModuleTypes), (V{u"tLocal"}));
    EXPECT_EQ(names(s->ModuleProcs), (V{u"Helper", u"Calc", u"Sleep"}));
    EXPECT_NE(s->ModuleProcs.Find(u"VBAProject.Sleep"), nullptr);
    EXPECT_FALSE(s->ModuleProcs.Item(u"VBAProject.Sleep")->ProcIsPublic);
    // The public side went to the project's collections.
    EXPECT_EQ(names(*state.ProjectVars), (V{u"Total", u"gTotal"}));
    EXPECT_EQ(names(*state.ProjectEnums), (V{u"eShared"}));
    EXPECT_EQ(names(*state.ProjectProcs), (V{u"Run"}));
    EXPECT_TRUE(reported.empty());
}

TEST_F(SourceScanModule, AClassModuleKeepsItsPublicEnumsAndItsSubs) {
    openModule(u"clsThing", {u"Option Explicit",
                             u"Public x As Long",
                             u"Private mlngCount As Long",
                             u"Public Enum eKind",
                             u"    kOne",
                             u"End Enum",
                             u"Enum eBare",
                             u"    bOne",
                             u"End Enum",
                             u"",
                             u"Private Sub Class_Initialize()",
                             u"End Sub",
                             u"Public Sub Method()",
                             u"End Sub",
                             u"Private Property Get Secret() As Long",
                             u"End Property",
                             u"Public Property Get Count() As Long",
                             u"End Property"},
               1, 1, host::vbext_ct_ClassModule);
    auto s = scan();
    EXPECT_EQ(names(s->ModuleVars), (V{u"mlngCount"}));
    EXPECT_EQ(state.ProjectVars->Count(), 0);
    EXPECT_EQ(names(s->ModuleEnums), (V{u"eKind", u"eBare"}));
    EXPECT_EQ(names(s->ModuleConsts), (V{u"kOne", u"bOne"}));
    EXPECT_EQ(names(s->ModuleProcs), (V{u"Class_Initialize", u"Method"}));
}

TEST_F(SourceScanModule, ALockedProjectGivesEmptyCollections) {
    openModule(u"basMain", {u"Dim a As Long"});
    project->setProtection(host::vbext_pp_locked);
    auto s = scan();
    EXPECT_EQ(s->ModuleVars.Count(), 0);
    EXPECT_EQ(s->ModuleProcs.Count(), 0);
    EXPECT_FALSE(state.ProjectVars);
    EXPECT_TRUE(reported.empty());
}

TEST_F(SourceScanModule, AModuleByNameAndNoPane) {
    project->addComponent(u"basOther", host::vbext_ct_StdModule, {u"Private mlngX As Long", u"Public Sub P()", u"End Sub"});
    openModule(u"basMain", {u"Dim a As Long"});
    auto s = scan(u"basOther");
    EXPECT_EQ(names(s->ModuleVars), (V{u"mlngX"}));
    // The procedures always come from the selected component.
    EXPECT_EQ(s->ModuleProcs.Count(), 0);
    EXPECT_NE(state.ProjectProcs->Find(u"P"), nullptr);
    auto none = scan(u"basMissing");
    EXPECT_EQ(none->ModuleVars.Count(), 0);
    EXPECT_TRUE(reported.empty());
}

TEST_F(SourceScanModule, ModuleProperProcsGetByKindOfModule) {
    auto std = project->addComponent(u"basMain", host::vbext_ct_StdModule,
                                     {u"Public Sub A()", u"End Sub", u"Private Sub B()", u"End Sub", u"Sub A2()", u"End Sub"});
    auto all = ModuleProperProcsGet(env(), std, true);
    EXPECT_EQ(names(all), (V{u"A", u"B", u"A2"}));
    auto privates = ModuleProperProcsGet(env(), std, false);
    EXPECT_EQ(names(privates), (V{u"B"}));
    auto empty = project->addComponent(u"basEmpty", host::vbext_ct_StdModule, {});
    EXPECT_EQ(ModuleProperProcsGet(env(), empty, true).Count(), 0);
    // No component: the active pane's module.
    openModule(u"clsX", {u"Property Get P()", u"End Property", u"Property Let P(v)", u"End Property"}, 1, 1,
               host::vbext_ct_ClassModule);
    auto props = ModuleProperProcsGet(env(), nullptr, true);
    ASSERT_EQ(props.Count(), 1);
    EXPECT_EQ(props.Item(1)->ProcKind, host::vbext_pk_Get);
    EXPECT_EQ(ModuleProperProcsGet(env(), nullptr, false).Count(), 0);
}

TEST_F(SourceScanModule, TheArgumentsOfTheProcedureAtTheCaret) {
    openModule(u"basMain", {u"Option Explicit", u"", u"Sub Go(ByVal n As Long, Optional s)", u"  n = 1", u"End Sub"}, 4, 3);
    Str name;
    long kind = -1;
    auto arguments = CurrentProcArguments(env(), name, kind);
    ASSERT_TRUE(arguments);
    EXPECT_EQ(name, u"Go");
    EXPECT_EQ(kind, 0);
    EXPECT_EQ(arguments->ShortStringOfArguments(), u"n, [s]");
    caretAt(1, 1);
    EXPECT_FALSE(CurrentProcArguments(env(), name, kind));
}

}  // namespace
}  // namespace quillet::source

namespace quillet::source {
namespace {

class SourceScanModuleSuffix : public testing::ScanFixture {};

TEST_F(SourceScanModuleSuffix, ATypeSuffixGivesTheReturnType) {
    const auto& suffixes = testing::typeSuffixCases();
    std::vector<Str> lines;
    for (size_t i = 0; i < suffixes.size(); ++i) {
        lines.push_back(u"Private Function G" + Str(1, static_cast<char16_t>(u'0' + i)) + suffixes[i].first + u"(a As Long)");
        lines.push_back(u"End Function");
    }
    openModule(u"basMain", lines);
    clsScanModule scanner(env());
    scanner.init({});
    ASSERT_EQ(scanner.ModuleProcs.Count(), static_cast<long>(suffixes.size()));
    for (size_t i = 0; i < suffixes.size(); ++i) {
        const C4_ProcDefPtr& proc = scanner.ModuleProcs.Item(static_cast<long>(i + 1));
        EXPECT_EQ(proc->Name, u"G" + Str(1, static_cast<char16_t>(u'0' + i)));
        EXPECT_EQ(proc->ProcReturnType, suffixes[i].second) << basic::toUtf8(proc->Name);
    }
}

}  // namespace
}  // namespace quillet::source
