#include "source/code_placing.h"

#include "code_fixture.h"
#include "settings/ini_vars.h"

namespace quillet::source {
namespace {

using testing::CodeFixture;
using testing::lines;

class SourceCodePlacing : public CodeFixture {};

TEST_F(SourceCodePlacing, AnEmptyModuleTakesTheDeclarationAtLineOne) {
    openModule(u"basMain", {u"Sub A()", u"End Sub"}, 1, 1);
    project->addComponent(u"basEmpty", host::vbext_ct_StdModule, {});
    auto env = codeEnv();
    EXPECT_TRUE(VarConstCodeAdd(env, u"Dim x As Long", u"basEmpty", true, false, u"x", 0, false));
    EXPECT_EQ(text(u"basEmpty"), u"Dim x As Long");
    project->addComponent(u"basEmpty2", host::vbext_ct_StdModule, {});
    EXPECT_TRUE(VarConstCodeAdd(env, u"Dim y As Long", u"basEmpty2", true, false, u"y", 0, true));
    EXPECT_EQ(text(u"basEmpty2"), u"Dim y As Long");
}

TEST_F(SourceCodePlacing, AtTopTheDeclarationGoesUnderOptionLinesAndComments) {
    openModule(u"basMain", {u"Sub A()", u"End Sub"}, 1, 1);
    project->addComponent(u"basData", host::vbext_ct_StdModule,
                          {u"Option Explicit", u"' Data of the ledger", u"' second note", u"Dim a As Long", u"",
                           u"Sub B()", u"End Sub"});
    auto env = codeEnv();
    EXPECT_TRUE(VarConstCodeAdd(env, u"Private Const cstrModule As String = \"basData\"", u"basData", true, false,
                                u"cstrModule", 0, true));
    EXPECT_EQ(text(u"basData"), lines({u"Option Explicit", u"' Data of the ledger", u"' second note",
                                       u"Private Const cstrModule As String = \"basData\"", u"Dim a As Long", u"",
                                       u"Sub B()", u"End Sub"}));
}

TEST_F(SourceCodePlacing, AtTopWithOnlyOptionLinesTheLineGoesBehindThem) {
    openModule(u"basMain", {u"Sub A()", u"End Sub"}, 1, 1);
    project->addComponent(u"basData", host::vbext_ct_StdModule, {u"Option Explicit", u"Option Compare Text"});
    auto env = codeEnv();
    EXPECT_TRUE(VarConstCodeAdd(env, u"Dim a", u"basData", true, false, u"a", 0, true));
    EXPECT_EQ(text(u"basData"), lines({u"Option Explicit", u"Option Compare Text", u"Dim a"}));
}

TEST_F(SourceCodePlacing, WithoutAtTopTheDeclarationEndsTheDeclarations) {
    openModule(u"basMain", {u"Sub A()", u"End Sub"}, 1, 1);
    project->addComponent(u"basData", host::vbext_ct_StdModule,
                          {u"Option Explicit", u"Dim a As Long", u"", u"Sub B()", u"End Sub"});
    auto env = codeEnv();
    EXPECT_TRUE(VarConstCodeAdd(env, u"Dim b As Long", u"basData", true, false, u"b", 0, false));
    EXPECT_EQ(text(u"basData"), lines({u"Option Explicit", u"Dim a As Long", u"Dim b As Long", u"", u"Sub B()",
                                       u"End Sub"}));
}

TEST_F(SourceCodePlacing, ABlankCaretLineOutsideProceduresTakesTheDeclaration) {
    openModule(u"basMain", {u"Option Explicit", u"", u"Dim a", u"", u"Sub A()", u"End Sub"}, 2, 1);
    auto env = codeEnv();
    EXPECT_TRUE(VarConstCodeAdd(env, u"Dim x As Long", u"basMain", true, false, u"x", 0, false));
    EXPECT_EQ(text(u"basMain"), lines({u"Option Explicit", u"Dim x As Long", u"Dim a", u"", u"Sub A()", u"End Sub"}));
}

TEST_F(SourceCodePlacing, ABlankLineAboveAProcedureBelongsToItAndIsNotTaken) {
    openModule(u"basMain", {u"Option Explicit", u"", u"Sub A()", u"End Sub"}, 2, 1);
    auto env = codeEnv();
    EXPECT_TRUE(VarConstCodeAdd(env, u"Dim x As Long", u"basMain", true, false, u"x", 0, false));
    EXPECT_EQ(text(u"basMain"), lines({u"Option Explicit", u"Dim x As Long", u"", u"Sub A()", u"End Sub"}));
}

TEST_F(SourceCodePlacing, ACaretLineHoldingTheNameIsReplaced) {
    openModule(u"basMain", {u"Option Explicit", u"  mlngCount  ", u"", u"Sub A()", u"End Sub"}, 2, 3);
    auto env = codeEnv();
    EXPECT_TRUE(VarConstCodeAdd(env, u"Private mlngCount As Long", u"basMain", true, false, u"MLNGCOUNT", 0, false));
    EXPECT_EQ(text(u"basMain"), lines({u"Option Explicit", u"Private mlngCount As Long", u"", u"Sub A()",
                                       u"End Sub"}));
}

TEST_F(SourceCodePlacing, ANewModuleIsAskedForAndMade) {
    openModule(u"basMain", {u"Sub A()", u"End Sub"}, 1, 1);
    platform->queueAnswer(u"basNew");
    auto env = codeEnv();
    EXPECT_TRUE(VarConstCodeAdd(env, u"Public gstrName As String", kNewModule, true, false, u"gstrName", 0, false));
    ASSERT_TRUE(project->component(u"basNew"));
    EXPECT_EQ(text(u"basNew"), u"Public gstrName As String");
    ASSERT_FALSE(platform->shownBoxes().empty());
    EXPECT_EQ(platform->shownBoxes().back().prompt, u"Name of Module");
    EXPECT_EQ(platform->shownBoxes().back().title, u"Quillet");
}

TEST_F(SourceCodePlacing, CancellingTheNewModuleWritesNothing) {
    openModule(u"basMain", {u"Sub A()", u"End Sub"}, 1, 1);
    platform->queueAnswer(u"cancel");
    auto env = codeEnv();
    long before = project->VBComponents()->Count();
    EXPECT_FALSE(VarConstCodeAdd(env, u"Dim x", kNewModule, true, false, u"x", 0, false));
    EXPECT_EQ(project->VBComponents()->Count(), before);
    EXPECT_EQ(text(u"basMain"), lines({u"Sub A()", u"End Sub"}));
}

TEST_F(SourceCodePlacing, AnUnknownModuleIsCreatedOnOkAndLeftOnCancel) {
    openModule(u"basMain", {u"Sub A()", u"End Sub"}, 1, 1);
    auto env = codeEnv();
    platform->queueAnswer(u"cancel");
    EXPECT_FALSE(VarConstCodeAdd(env, u"Dim x", u"basLater", true, false, u"x", 0, false));
    EXPECT_FALSE(project->component(u"basLater"));
    EXPECT_EQ(platform->shownBoxes().back().prompt, u"Create module basLater?");
    EXPECT_EQ(platform->shownBoxes().back().buttons, 33);
    platform->queueAnswer(u"ok");
    EXPECT_TRUE(VarConstCodeAdd(env, u"Dim x", u"basLater", true, false, u"x", 0, false));
    EXPECT_EQ(text(u"basLater"), u"Dim x");
}

TEST_F(SourceCodePlacing, ABlockMemberGoesBehindTheBlockLineIndented) {
    openModule(u"basMain", {u"Enum Colour", u"End Enum"}, 1, 1);
    auto env = codeEnv();
    EXPECT_TRUE(VarConstCodeAdd(env, u"Red = 1", u"basMain", true, false, u"Red", 1, false));
    EXPECT_EQ(text(u"basMain"), lines({u"Enum Colour", u"    Red = 1", u"End Enum"}));
    long line = 0, col = 0;
    caret(line, col);
    EXPECT_EQ(line, 1);
    EXPECT_EQ(col, 1);
}

TEST_F(SourceCodePlacing, ABlankBlockLineIsReplaced) {
    openModule(u"basMain", {u"Type Point", u"", u"End Type"}, 1, 1);
    auto env = codeEnv();
    EXPECT_TRUE(VarConstCodeAdd(env, u"X As Long", u"basMain", true, false, u"X", 2, false));
    EXPECT_EQ(text(u"basMain"), lines({u"Type Point", u"    X As Long", u"End Type"}));
}

TEST_F(SourceCodePlacing, AProcedureLevelDeclarationEndsTheDeclarationArea) {
    openModule(u"basMain", {u"Sub A()", u"    Dim a As Long", u"", u"    a = 1", u"End Sub"}, 4, 5);
    auto env = codeEnv();
    EXPECT_TRUE(VarConstCodeAdd(env, u"Dim b As Long", u"basMain", false, false, u"b", 0, false));
    EXPECT_EQ(text(u"basMain"),
              lines({u"Sub A()", u"    Dim a As Long", u"    Dim b As Long", u"", u"    a = 1", u"End Sub"}));
}

TEST_F(SourceCodePlacing, ProcedureLevelOutsideAProcedureFails) {
    openModule(u"basMain", {u"Option Explicit", u"", u"Sub A()", u"End Sub"}, 1, 1);
    auto env = codeEnv();
    EXPECT_FALSE(VarConstCodeAdd(env, u"Dim b", u"basMain", false, false, u"b", 0, false));
    EXPECT_EQ(text(u"basMain"), lines({u"Option Explicit", u"", u"Sub A()", u"End Sub"}));
}

TEST_F(SourceCodePlacing, ProcVariableAddFollowsTheIndentSetting) {
    openModule(u"basMain", {u"Sub A()", u"    ' what A does", u"    A = 1", u"End Sub"}, 3, 1);
    auto env = codeEnv();
    EXPECT_EQ(qltProcVariableAdd(env, u"Dim x As Long"), 3);
    EXPECT_EQ(text(u"basMain"),
              lines({u"Sub A()", u"    ' what A does", u"    Dim x As Long", u"    A = 1", u"End Sub"}));
    settings.IniItemValue[settings::iiDeclarationIndented] = false;
    EXPECT_EQ(qltProcVariableAdd(env, u"Dim y"), 4);
    EXPECT_EQ(project->component(u"basMain")->CodeModule()->Lines(4, 1), u"Dim y");
}

TEST_F(SourceCodePlacing, ProcVariableAddOutsideAProcedureDoesNothing) {
    openModule(u"basMain", {u"Option Explicit", u"Sub A()", u"End Sub"}, 1, 1);
    auto env = codeEnv();
    EXPECT_EQ(qltProcVariableAdd(env, u"Dim x"), 0);
    EXPECT_EQ(text(u"basMain"), lines({u"Option Explicit", u"Sub A()", u"End Sub"}));
}

TEST_F(SourceCodePlacing, ProcVariableAddStaysAboveOnError) {
    openModule(u"basMain", {u"Function F() As Long", u"    Dim a", u"    On Error GoTo HandleError", u"    F = 1",
                            u"End Function"},
               4, 1);
    auto env = codeEnv();
    qltProcVariableAdd(env, u"Dim b");
    EXPECT_EQ(project->component(u"basMain")->CodeModule()->Lines(3, 1), u"    Dim b");
}

TEST_F(SourceCodePlacing, ModuleCreateNamesTheModuleAndGivesTheFocusBack) {
    auto main = openModule(u"basMain", {u"Sub A()", u"End Sub"}, 1, 1);
    vbe->options().newModuleLines = {u"Option Explicit", u""};
    auto env = codeEnv();
    env.expandHeader = [](long kind, const Str& name, const Str&) {
        EXPECT_EQ(kind, KindModuleHeader);
        return u"' Module " + name + u"\r\n";
    };
    EXPECT_EQ(ModuleCreate(env, u"basTools"), u"basTools");
    EXPECT_EQ(text(u"basTools"), lines({u"' Module basTools", u"Option Explicit"}));
    EXPECT_EQ(vbe->ActiveCodePane()->CodeModule()->Parent()->Name(), u"basMain");
}

TEST_F(SourceCodePlacing, ModuleCreateWithANameInUseReportsAndGivesNothing) {
    openModule(u"basMain", {u"Sub A()", u"End Sub"}, 1, 1);
    auto env = codeEnv();
    long before = project->VBComponents()->Count();
    EXPECT_EQ(ModuleCreate(env, u"basMain"), u"");
    EXPECT_EQ(project->VBComponents()->Count(), before);
    ASSERT_EQ(reported.size(), 1u);
    EXPECT_NE(reported[0].find(u"basGlobal.ModuleCreate"), Str::npos);
}

TEST_F(SourceCodePlacing, ModuleCreateMakesAClass) {
    openModule(u"basMain", {u"Sub A()", u"End Sub"}, 1, 1);
    auto env = codeEnv();
    EXPECT_EQ(ModuleCreate(env, u"clsOrder", host::vbext_ct_ClassModule), u"clsOrder");
    EXPECT_EQ(project->component(u"clsOrder")->Type(), host::vbext_ct_ClassModule);
}

TEST_F(SourceCodePlacing, InstanceAddPutsBlanksWhereWordsWouldRunTogether) {
    openModule(u"basMain", {u"Sub A()", u"    x = y", u"    Call F()", u"End Sub"}, 2, 10);
    auto env = codeEnv();
    InstanceAdd(env, nullptr, u"+ 1");
    auto module = project->component(u"basMain")->CodeModule();
    EXPECT_EQ(module->Lines(2, 1), u"    x = y + 1");
    caretAt(2, 8);  // between "x = " and "y + 1": a blank before the caret, a word behind it
    InstanceAdd(env, nullptr, u"z");
    EXPECT_EQ(module->Lines(2, 1), u"    x = z y + 1");
    long line = 0, col = 0;
    caret(line, col);
    EXPECT_EQ(line, 2);
    EXPECT_EQ(col, 10);
    caretAt(3, 12);  // inside the brackets of F()
    InstanceAdd(env, nullptr, u"arg", false, true);
    EXPECT_EQ(module->Lines(3, 1), u"    Call F(arg)");
    ASSERT_FALSE(platform->sentKeys().empty());
    EXPECT_EQ(platform->sentKeys().back(), u" {BACKSPACE}");
}

TEST_F(SourceCodePlacing, CodeReplaceReplacesASelectionOverSeveralLines) {
    openModule(u"basMain", {u"Sub A()", u"    x = 1", u"    y = 2", u"    z = 3", u"End Sub"}, 2, 9);
    caretAt(2, 9, 4, 10);
    auto env = codeEnv();
    CodeReplace(env, u"\"C:\\Data\\file.txt\"");
    EXPECT_EQ(text(u"basMain"), lines({u"Sub A()", u"    x = \"C:\\Data\\file.txt\"", u"End Sub"}));
    long line = 0, col = 0;
    caret(line, col);
    EXPECT_EQ(line, 2);
    EXPECT_EQ(col, 27);
}

TEST_F(SourceCodePlacing, CodeReplaceOnTheLastLineAndWithLineBreaks) {
    openModule(u"basMain", {u"x = "}, 1, 5);
    auto env = codeEnv();
    CodeReplace(env, u"1 _\r\n    + 2");
    EXPECT_EQ(text(u"basMain"), lines({u"x = 1 _", u"    + 2"}));
    long line = 0, col = 0;
    caret(line, col);
    EXPECT_EQ(line, 2);
    EXPECT_EQ(col, 8);
}

TEST_F(SourceCodePlacing, ModuleNameConstantIsFoundOrAdded) {
    openModule(u"basMain", {u"Option Explicit", u"", u"Sub A()", u"    A = 1", u"End Sub"}, 4, 1);
    auto env = codeEnv();
    EXPECT_FALSE(ModuleNameConstantAdd(env, u"basMain", true));
    EXPECT_EQ(text(u"basMain"), lines({u"Option Explicit", u"", u"Sub A()", u"    A = 1", u"End Sub"}));
    EXPECT_TRUE(ModuleNameConstantAdd(env, u"basMain", false));
    EXPECT_EQ(text(u"basMain"), lines({u"Option Explicit", u"Private Const cstrModule As String = \"basMain\"", u"",
                                       u"Sub A()", u"    A = 1", u"End Sub"}));
    EXPECT_TRUE(ModuleNameConstantAdd(env, u"basMain", false));
    EXPECT_TRUE(ModuleNameConstantAdd(env, u"basMain", true));
    EXPECT_EQ(project->component(u"basMain")->CodeModule()->CountOfLines(), 6);
}

TEST_F(SourceCodePlacing, ModuleNameConstantIsAWholeWord) {
    openModule(u"basMain", {u"Private Const cstrModuleName As String = \"x\"", u"Sub A()", u"End Sub"}, 2, 1);
    auto env = codeEnv();
    EXPECT_FALSE(ModuleNameConstantAdd(env, u"basMain", true));
}

}  // namespace
}  // namespace quillet::source
