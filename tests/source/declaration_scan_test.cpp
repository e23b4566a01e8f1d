#include "source/declaration_scan.h"

#include "scan_fixture.h"

namespace quillet::source {
namespace {

using V = std::vector<Str>;

std::vector<Str> statementsOf(const Str& text, long declarationLines) {
    std::vector<Str> out;
    ModuleDeclarationLines(ModuleText::fromText(text), declarationLines, out);
    return out;
}

TEST(SourceDeclarationScan, StatementsJoinContinuationsAndCutComments) {
    Str text = u"Option Explicit\r\n"
               u"' a comment\r\n"
               u"Private mlngA As Long, _\r\n"
               u"        mstrB As String ' the name\r\n"
               u"\r\n"
               u"Const A = 1: Const B = 2\r\n"
               u"Const Q = \"it's\"\r\n"
               u"Dim x _\r\n"
               u"\r\n"
               u"Dim y _";
    EXPECT_EQ(statementsOf(text, 10), (V{u"Option Explicit", u"Private mlngA As Long, mstrB As String", u"Const A = 1",
                                          u"Const B = 2", u"Const Q = \"it", u"Dim x"}));
    // Only the declaration lines are read.
    EXPECT_EQ(statementsOf(text, 1), (V{u"Option Explicit"}));
    EXPECT_EQ(statementsOf(text, 0), V{});
}

TEST(SourceDeclarationScan, WordsOfAStatement) {
    EXPECT_EQ(wordOf(u"Public Const A = 1", 0), u"Public");
    EXPECT_EQ(wordOf(u"Public Const A = 1", 1), u"Const");
    EXPECT_EQ(wordOf(u"Public", 1), u"");
    EXPECT_EQ(wordOf(u"Public  Const", 1), u"");
}

TEST(SourceDeclarationScan, EnumAddReadsMembersUpToEndEnum) {
    V statements{u"Public Enum eColor", u"Red = 1", u"Green", u"  Blue = 4", u"END ENUM", u"Other"};
    basic::Collection<clsEnumPtr> enums;
    basic::Collection<clsConstantPtr> consts;
    auto taken = std::make_shared<clsConstant>();
    taken->Name = u"Green";
    consts.Add(taken, Str(u"Green"));
    EnumAdd(u"eColor", statements, 1, enums, consts, u"basMain", false, u"VBAProject");
    ASSERT_EQ(enums.Count(), 1);
    const auto& e = *enums.Item(1);
    EXPECT_EQ(e.Name, u"eColor");
    EXPECT_EQ(e.Project, u"VBAProject");
    EXPECT_EQ(e.Module, u"basMain");
    EXPECT_FALSE(e.IsPrivate);
    ASSERT_EQ(e.Count(), 3);
    EXPECT_EQ(e.Items.Item(u"eColor.Blue")->Name, u"Blue");
    const auto& red = *e.Items.Item(1);
    EXPECT_EQ(red.Type_, u"Long");
    EXPECT_EQ(red.Value, u"");
    EXPECT_EQ(red.EnumName(), u"eColor");
    EXPECT_TRUE(red.EnumMember());
    EXPECT_EQ(red.Project, u"VBAProject");
    EXPECT_EQ(red.ModuleName, u"");
    // The first constant of a name stays.
    EXPECT_EQ(consts.Count(), 3);
    EXPECT_EQ(consts.Item(u"Green"), taken);
    // Without an End Enum the members run to the end; an empty module name is not stored.
    basic::Collection<clsEnumPtr> more;
    EnumAdd(u"eOpen", V{u"Enum eOpen", u"A"}, 1, more, consts, u"", true, u"P");
    EXPECT_EQ(more.Item(1)->Count(), 1);
    EXPECT_EQ(more.Item(1)->Module, u"");
    EXPECT_TRUE(more.Item(1)->IsPrivate);
}

TEST(SourceDeclarationScan, TypeAddKeepsNoMembers) {
    basic::Collection<clsTypePtr> types;
    TypeAdd(u"tPoint", types, u"basGeo", true, u"VBAProject");
    TypeAdd(u"TPOINT", types, u"basOther", true, u"VBAProject");
    ASSERT_EQ(types.Count(), 1);
    EXPECT_EQ(types.Item(1)->Module, u"basGeo");
    EXPECT_EQ(types.Item(1)->Count(), 0);
}

TEST(SourceDeclarationScan, DeclaredProcedures) {
    basic::Collection<C4_ProcDefPtr> procs;
    DeclaredProcAdd(u"Function GetTickCount& Lib \"kernel32\" ()", procs, u"basApi", true, u"VBAProject");
    DeclaredProcAdd(u"PtrSafe Function FindWindowA Lib \"user32\" (ByVal lpClassName As String, "
                    u"ByVal lpWindowName As String) As LongPtr",
                    procs, u"basApi", false, u"VBAProject");
    DeclaredProcAdd(u"Sub Sleep Lib \"kernel32\" (ByVal dwMilliseconds As Long)", procs, u"basApi", true, u"VBAProject");
    ASSERT_EQ(procs.Count(), 3);
    const auto& tick = *procs.Item(u"VBAProject.GetTickCount");
    EXPECT_TRUE(tick.ProcIsFunction);
    EXPECT_EQ(tick.ProcReturnType, u"Long");
    EXPECT_EQ(tick.GroupName, u"VBAProject");
    EXPECT_EQ(tick.ModuleName, u"basApi");
    EXPECT_TRUE(tick.ProcIsPublic);
    const auto& find = *procs.Item(u"VBAProject.FindWindowA");
    EXPECT_EQ(find.ProcReturnType, u"LongPtr");
    EXPECT_FALSE(find.ProcIsPublic);
    EXPECT_EQ(find.ProcArguments->ShortStringOfArguments(), u"lpClassName, lpWindowName");
    const auto& sleep = *procs.Item(u"VBAProject.Sleep");
    EXPECT_FALSE(sleep.ProcIsFunction);
    EXPECT_EQ(sleep.ProcArguments->Count(), 1);
}

}  // namespace
}  // namespace quillet::source
