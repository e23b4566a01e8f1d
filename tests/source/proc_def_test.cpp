#include "source/proc_def.h"

#include "source/proc_defs.h"
#include "source_fixture.h"

namespace quillet::source {
namespace {

using testing::SourceFixture;

C4_ProcDef library(const Str& code) {
    C4_ProcDef def;
    def.Init2(code, u"basLib");
    return def;
}

TEST(SourceProcDef, Init2ReadsASignatureWithoutAModule) {
    auto def = library(u"Public Function Total(ByVal a As Long, Optional b) As Double\r\n  Total = a\r\nEnd Function");
    EXPECT_EQ(def.Project, u"Library");
    EXPECT_EQ(def.ModuleName, u"basLib");
    EXPECT_EQ(def.GroupName, u"basLib");
    EXPECT_EQ(def.Name, u"Total");
    EXPECT_EQ(def.ProcKind, 0);
    EXPECT_EQ(def.ProcKindStr, u"Sub/Function");
    EXPECT_EQ(def.ProcStartLine, 1);
    EXPECT_EQ(def.ProcBodyLine, 1);
    EXPECT_EQ(def.ProcCountLines, 3);
    EXPECT_TRUE(def.ProcIsFunction);
    EXPECT_TRUE(def.ProcIsPublic);
    EXPECT_FALSE(def.ProcIsStatic);
    EXPECT_EQ(def.ProcReturnType, u"Double");
    EXPECT_EQ(def.ProcDefCountOfLines, 1);
    EXPECT_EQ(def.ProcArguments->ShortStringOfArguments(), u"a, [b]");
    EXPECT_TRUE(def.IsLibraryProcedure);
    EXPECT_FALSE(def.IsDeclarationSection());
}

TEST(SourceProcDef, ASuffixNamesTheReturnType) {
    auto def = library(u"Function F$(a As Long)");
    EXPECT_EQ(def.Name, u"F");
    EXPECT_TRUE(def.ProcIsFunction);
    EXPECT_EQ(def.ProcReturnType, u"String");
}

TEST(SourceProcDef, ACommentWithoutColonStaysOnTheSignature) {
    auto def = library(u"Function F(a) As Collection ' note");
    EXPECT_EQ(def.OneLineProcDef, u"Function F(a) As Collection ' note");
    EXPECT_EQ(def.ProcReturnType, u"Collection ' note");
    auto split = library(u"Function G(a) As Collection: ' note: more");
    EXPECT_EQ(split.OneLineProcDef, u"Function G(a) As Collection");
    EXPECT_EQ(split.ProcReturnType, u"Collection");
}

TEST(SourceProcDef, APropertyGetIsNoFunction) {
    auto def = library(u"Public Property Get P() As Long");
    EXPECT_FALSE(def.ProcIsFunction);
    EXPECT_EQ(def.ProcReturnType, u"");
    EXPECT_EQ(def.Name, u"P");
}

TEST(SourceProcDef, ASignatureOverThreeLines) {
    auto def = library(u"Private Sub Long_(ByVal a As Long, _\r\n    b As String, _\r\n    c)\r\n  Debug.Print a\r\nEnd Sub");
    EXPECT_EQ(def.ProcDefCountOfLines, 3);
    EXPECT_EQ(def.ProcDef, u"Private Sub Long_(ByVal a As Long, _\r\n    b As String, _\r\n    c)");
    EXPECT_EQ(def.OneLineProcDef, u"Private Sub Long_(ByVal a As Long,b As String,c)");
    EXPECT_FALSE(def.ProcIsPublic);
    EXPECT_EQ(def.ProcArguments->Count(), 3);
    EXPECT_EQ(def.ProcArguments->ShortStringOfArguments(), u"a, b, c");
}

TEST(SourceProcDef, EmptyLinesInsideTheSignatureAreCounted) {
    auto def = library(u"Sub S(a, _\r\n\r\n  b)");
    EXPECT_EQ(def.ProcDefCountOfLines, 3);
    EXPECT_EQ(def.OneLineProcDef, u"Sub S(a,b)");
}

TEST(SourceProcDef, AccessWords) {
    EXPECT_FALSE(library(u"Static Sub S()").ProcIsPublic);
    EXPECT_TRUE(library(u"Static Sub S()").ProcIsStatic);
    EXPECT_TRUE(library(u"Friend Sub S()").ProcIsPublic);
    EXPECT_TRUE(library(u"Sub S()").ProcIsPublic);
    EXPECT_FALSE(library(u"Private Static Sub S()").ProcIsStatic);
    EXPECT_TRUE(library(u"Public Static Sub S()").ProcIsPublic);
    // Keywords compare binary.
    EXPECT_TRUE(library(u"private Sub S()").ProcIsPublic);
}

TEST(SourceProcDef, FunctionInTheSignatureMakesAFunction) {
    EXPECT_TRUE(library(u"Sub RunFunction (a)").ProcIsFunction);
    EXPECT_FALSE(library(u"Sub RunFunction(a)").ProcIsFunction);
    // No "(": no name is taken.
    EXPECT_EQ(library(u"Sub S").Name, u"");
}

TEST(SourceProcDef, KindNames) {
    EXPECT_EQ(ProcKindStrOf(0), u"Sub/Function");
    EXPECT_EQ(ProcKindStrOf(1), u"Property Let");
    EXPECT_EQ(ProcKindStrOf(2), u"Property Set");
    EXPECT_EQ(ProcKindStrOf(3), u"Property Get");
    EXPECT_EQ(ProcKindStrOf(4), u"");
}

class SourceProcDefs : public SourceFixture {
protected:
    std::vector<Str> classLines() {
        return {u"Option Explicit",
                u"Private mlngCount As Long",
                u"",
                u"' The count.",
                u"Public Property Get Count() As Long",
                u"    Count = mlngCount",
                u"End Property",
                u"",
                u"Public Property Let Count(ByVal vlngCount As Long)",
                u"    mlngCount = vlngCount",
                u"End Property",
                u"",
                u"Private Sub Reset(Optional ByVal n As Long = 0, _",
                u"                  Optional s As String = \"a,b\")",
                u"    mlngCount = n",
                u"End Sub",
                u"",
                u"Function Twice(a) As Long",
                u"    Twice = a * 2",
                u"End Function",
                u"",
                u"Static Sub Keep()",
                u"End Sub"};
    }
};

TEST_F(SourceProcDefs, RecordsFromAModuleInOrderKeyedByNameAndKind) {
    auto component = openModule(u"clsCounter", classLines(), 1, 1, host::vbext_ct_ClassModule);
    auto module = component->CodeModule();
    C4_ProcDefs defs;
    defs.init(u"VBAProject", *module, u"vbaproject");
    EXPECT_EQ(defs.ModuleName, u"clsCounter");
    EXPECT_EQ(defs.ModuleType, 1);
    EXPECT_EQ(defs.ModuleTypeStr, u"Class module");
    for (long line = 1; line <= module->CountOfLines(); ++line) defs.Add(*module, line, false);
    ASSERT_EQ(defs.Count(), 5);
    EXPECT_EQ(defs.Items.Item(1)->Name, u"Count");
    EXPECT_EQ(defs.Items.Item(1)->ProcKind, 3);
    EXPECT_NE(defs.Items.Find(u"Count*3"), nullptr);
    EXPECT_NE(defs.Items.Find(u"Count*1"), nullptr);
    EXPECT_NE(defs.Items.Find(u"Reset*0"), nullptr);
    EXPECT_TRUE(defs.ProcExists(u"count", 1));
    EXPECT_FALSE(defs.ProcExists(u"Count", 2));
    EXPECT_EQ(C4_ProcDefs::ProcKey(u"Foo", 3), u"Foo*3");

    const auto& get = *defs.Items.Item(u"Count*3");
    EXPECT_EQ(get.Project, u"VBAProject");
    EXPECT_EQ(get.GroupName, u"VBAProject");
    EXPECT_EQ(get.ModuleName, u"clsCounter");
    EXPECT_EQ(get.ProcKindStr, u"Property Get");
    EXPECT_EQ(get.ProcStartLine, 3);
    EXPECT_EQ(get.ProcBodyLine, 5);
    EXPECT_EQ(get.ProcDefStartLine, 5);
    EXPECT_EQ(get.ProcCode.substr(0, 36), u"Public Property Get Count() As Long\r");

    const auto& reset = *defs.Items.Item(u"Reset*0");
    EXPECT_FALSE(reset.ProcIsPublic);
    EXPECT_EQ(reset.ProcDefCountOfLines, 2);
    EXPECT_EQ(reset.ProcArguments->ShortStringOfArguments(), u"[n], [s]");
    EXPECT_EQ(reset.ProcArguments->Items.Item(u"s")->DefaultValue, u"\"a,b\"");

    const auto& twice = *defs.Items.Item(u"Twice*0");
    EXPECT_TRUE(twice.ProcIsFunction);
    EXPECT_EQ(twice.ProcReturnType, u"Long");
}

TEST_F(SourceProcDefs, OnlyPublicLeavesPrivateAndStaticOut) {
    auto component = openModule(u"basMain", classLines());
    auto module = component->CodeModule();
    C4_ProcDefs defs;
    defs.init(u"Other", *module, u"VBAProject");
    EXPECT_EQ(defs.ModuleType, 0);
    EXPECT_EQ(defs.ModuleTypeStr, u"Standard module");
    for (long line = 1; line <= module->CountOfLines(); ++line) defs.Add(*module, line, true);
    EXPECT_EQ(defs.Count(), 3);
    EXPECT_EQ(defs.Items.Find(u"Reset*0"), nullptr);
    EXPECT_EQ(defs.Items.Find(u"Keep*0"), nullptr);
    // Another project than the active one: no group.
    EXPECT_EQ(defs.Items.Item(1)->GroupName, u"");
}

TEST_F(SourceProcDefs, AddAllGivesWhatAddForEveryLineGives) {
    auto lines = classLines();
    lines.push_back(u"");
    lines.push_back(u"' trailing comment");
    auto component = openModule(u"basMain", lines);
    auto module = component->CodeModule();
    for (bool onlyPublic : {false, true}) {
        C4_ProcDefs perLine, all;
        perLine.init(u"VBAProject", *module, u"VBAProject");
        all.init(u"VBAProject", *module, u"VBAProject");
        for (long line = 1; line <= module->CountOfLines(); ++line) perLine.Add(*module, line, onlyPublic);
        all.AddAll(*module, onlyPublic);
        ASSERT_EQ(perLine.Count(), all.Count());
        for (long i = 1; i <= all.Count(); ++i) {
            const auto& a = *perLine.Items.Item(i);
            const auto& b = *all.Items.Item(i);
            EXPECT_EQ(a.Name, b.Name);
            EXPECT_EQ(a.ProcKind, b.ProcKind);
            EXPECT_EQ(a.ProcCode, b.ProcCode);
            EXPECT_EQ(a.ProcDef, b.ProcDef);
            EXPECT_EQ(a.ProcStartLine, b.ProcStartLine);
            EXPECT_EQ(a.ProcCountLines, b.ProcCountLines);
        }
    }
}

TEST_F(SourceProcDefs, AddProcPassesOverATakenKey) {
    auto first = std::make_shared<C4_ProcDef>();
    first->Name = u"A";
    auto second = std::make_shared<C4_ProcDef>();
    second->Name = u"B";
    std::vector<Str> reported;
    C4_ProcDefs defs;
    defs.Report = [&](const basic::VbError& e, const Str& where) { reported.push_back(where + u" " + e.Description()); };
    defs.AddProc(first, u"K");
    defs.AddProc(second, u"k");
    defs.AddProc(second, u"");
    EXPECT_EQ(defs.Count(), 2);
    EXPECT_EQ(defs.Items.Item(u"K")->Name, u"A");
    EXPECT_TRUE(reported.empty());
}

TEST_F(SourceProcDefs, AHostFailureIsReportedAndTheRecordKeepsWhatItHas) {
    auto component = openModule(u"basMain", {u"Sub A()", u"End Sub"});
    auto module = component->CodeModule();
    std::vector<Str> reported;
    C4_ProcDef def;
    def.Report = [&](const basic::VbError&, const Str& where) { reported.push_back(where); };
    def.init(u"VBAProject", *module, u"Missing", 0, u"VBAProject");
    ASSERT_EQ(reported.size(), 1u);
    EXPECT_EQ(reported[0], u"C4_ProcDef.ProcedureParameters");
    EXPECT_EQ(def.ModuleName, u"basMain");
    EXPECT_EQ(def.Name, u"Missing");
    EXPECT_EQ(def.ProcCode, u"");
}

}  // namespace
}  // namespace quillet::source
