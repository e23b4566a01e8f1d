// The Variable Builder's rules on the model: the level list, the line and where it goes, the
// object statements, the records and the parent's call-backs, the clipboard and the paste, and
// what Cancel and a refused name leave.

#include "addin/command_handlers.h"
#include "source/code_placing.h"
#include "source/type_lists.h"
#include "var_fixture.h"

namespace quillet::builders {
namespace {

using testing::joinLines;

class VariableBuilder : public testing::VariableFixture {};

const std::vector<Str> kModuleWithSub = {u"Option Explicit", u"", u"Private mlngCount As Long", u"",
                                         u"Public Sub Run()", u"    Debug.Print mlngCount", u"End Sub"};

TEST_F(VariableBuilder, OpensFromTheCommandBarsRoutine) {
    openModule(kModuleWithSub, 6, 5, u"basVars");
    core::RoutineRun(*ctx, u"frmVar");
    ASSERT_NE(ctx->Forms->Top(), nullptr);
    EXPECT_EQ(ctx->Forms->Top()->Name(), u"frmVar");
    EXPECT_EQ(ctx->Forms->Top()->Caption, u"Variable Builder");
}

TEST_F(VariableBuilder, OutsideAProcedureTheLevelListHasThreeEntries) {
    auto& form = openOn(kModuleWithSub, 2);
    auto& list = form.Controls(u"cboAccessibility");
    ASSERT_EQ(list.ListCount(), 3);
    EXPECT_EQ(list.List(0), u"Dim - Module");
    EXPECT_EQ(list.List(1), u"Public");
    EXPECT_EQ(list.List(2), u"Private");
    EXPECT_EQ(list.ItemData(1), 4);
    EXPECT_EQ(form.VarLevel(), 0);
    EXPECT_FALSE(form.Controls(u"fraInterface").Enabled);
}

TEST_F(VariableBuilder, InsideAProcedureItHasSixWithDimProcedureFirst) {
    auto& form = openOn(kModuleWithSub, 6, 5);
    auto& list = form.Controls(u"cboAccessibility");
    std::vector<Str> texts;
    for (long i = 0; i < list.ListCount(); ++i) texts.push_back(list.List(i));
    EXPECT_EQ(texts, (std::vector<Str>{u"Dim - Procedure", u"Dim - Module", u"Interface", u"Public", u"Private", u"Static"}));
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(form.VarLevel(), 1);
    // Level, access and scope of each entry.
    std::vector<std::pair<long, long>> expected = {{1, 0}, {0, 0}, {2, 0}, {0, 1}, {0, 2}, {1, 4}};
    for (long i = 0; i < 6; ++i) {
        level(form, texts[static_cast<size_t>(i)]);
        EXPECT_EQ(form.VarLevel(), expected[static_cast<size_t>(i)].first) << i;
        EXPECT_EQ(form.Accessibility(), expected[static_cast<size_t>(i)].second) << i;
    }
    // The module is the pane's at procedure level, free at module level.
    level(form, u"Dim - Procedure");
    EXPECT_FALSE(form.Controls(u"cboModule").Enabled);
    level(form, u"Dim - Module");
    EXPECT_TRUE(form.Controls(u"cboModule").Enabled);
}

TEST_F(VariableBuilder, AProcedureVariableGoesBehindTheDeclarationsIndented) {
    auto& form = openOn(kModuleWithSub, 6, 5);
    form.ArgInsert(u"Total", {});
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"strTotal");
    click(form, u"cmdOK");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(vars(), joinLines({u"Option Explicit", u"", u"Private mlngCount As Long", u"", u"Public Sub Run()",
                                 u"    Dim strTotal As String", u"    Debug.Print mlngCount", u"End Sub"}));
    EXPECT_EQ(platform->ClipboardGetText(), Str(u"strTotal"));
}

TEST_F(VariableBuilder, LevelStaticWritesALineBeginningDim) {
    auto& form = openOn(kModuleWithSub, 6, 5);
    level(form, u"Static");
    form.ArgInsert(u"Calls", {});
    type(form, u"Long");
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"lngCalls");
    click(form, u"cmdOK");
    EXPECT_EQ(form.IsStatic(), false);
    EXPECT_NE(vars().find(u"\r\n    Dim lngCalls As Long\r\n"), Str::npos) << basic::toUtf8(vars());
}

TEST_F(VariableBuilder, PublicPrivateAndModuleLinesAndTheirPrefixes) {
    for (const auto& [entry, line] : std::vector<std::pair<Str, Str>>{{u"Public", u"Public gstrTitle As String"},
                                                                        {u"Private", u"Private mstrTitle As String"},
                                                                        {u"Dim - Module", u"Dim mstrTitle As String"}}) {
        auto& form = openOn(kModuleWithSub, 6, 5);
        level(form, entry);
        form.ArgInsert(u"Title", {});
        click(form, u"cmdOK");
        EXPECT_EQ(vars(), joinLines({u"Option Explicit", u"", u"Private mlngCount As Long", line, u"",
                                     u"Public Sub Run()", u"    Debug.Print mlngCount", u"End Sub"}))
            << basic::toUtf8(entry);
        project->removeComponent(project->component(u"basVars"));
    }
}

TEST_F(VariableBuilder, APublicVariableOfAStandardModuleJoinsTheProjectsVariables) {
    auto& form = openOn(kModuleWithSub, 6, 5);
    level(form, u"Public");
    form.ArgInsert(u"Title", {});
    click(form, u"cmdOK");
    ASSERT_TRUE(ctx->Scan.ProjectVars);
    ASSERT_TRUE(ctx->Scan.ProjectVars->Exists(u"gstrTitle"));
    EXPECT_EQ(ctx->Scan.ProjectVars->Item(u"gstrTitle")->Type_, u"String");
}

TEST_F(VariableBuilder, FixedLengthStringsAndArrays) {
    auto& form = openOn(kModuleWithSub, 6, 5);
    typeName(form, u"strCode");
    ctx->Forms->Raise([&] { form.Controls(u"txtLength").Text(u"10"); });
    click(form, u"cmdOK");
    EXPECT_NE(vars().find(u"    Dim strCode As String * 10\r\n"), Str::npos);

    auto& again = openVar();
    typeName(again, u"lngDays");
    ctx->Forms->Raise([&] { again.Controls(u"chkArray").Value(1); });
    ctx->Forms->Raise([&] { again.Controls(u"txtDimensions").Text(u"1 To 7"); });
    EXPECT_FALSE(again.Controls(u"txtLength").Enabled);
    ctx->Forms->Raise([&] { again.Controls(u"txtDescription").Text(u"per weekday"); });
    click(again, u"cmdOK");
    EXPECT_NE(vars().find(u"    Dim lngDays(1 To 7) As Long    'per weekday\r\n"), Str::npos) << basic::toUtf8(vars());
}

TEST_F(VariableBuilder, TheLengthTakesDigitsOnly) {
    auto& form = openOn(kModuleWithSub, 6, 5);
    auto& length = form.Controls(u"txtLength");
    for (long key : {long('7'), long('a'), 8L, long(' ')}) {
        long pressed = key;
        length.KeyPress(pressed);
        EXPECT_EQ(pressed, key == '7' ? key : 0) << key;
    }
    // Unticking the array empties its dimensions; another type empties the length.
    ctx->Forms->Raise([&] { form.Controls(u"chkArray").Value(1); });
    ctx->Forms->Raise([&] { form.Controls(u"txtDimensions").Text(u"3"); });
    ctx->Forms->Raise([&] { form.Controls(u"chkArray").Value(0); });
    EXPECT_EQ(form.Controls(u"txtDimensions").Text(), u"");
    ctx->Forms->Raise([&] { length.Text(u"5"); });
    type(form, u"Long");
    EXPECT_EQ(length.Text(), u"");
    EXPECT_FALSE(length.Enabled);
}

TEST_F(VariableBuilder, ATypedPrefixChoosesTheTypeAndTheLevel) {
    auto& form = openOn(kModuleWithSub, 6, 5);
    typeName(form, u"glngTotal");
    EXPECT_EQ(form.Controls(u"cboDataType").Text(), u"Long");
    EXPECT_EQ(form.Controls(u"cboAccessibility").Text(), u"Public");
    typeName(form, u"vdtmWhen");
    EXPECT_EQ(form.Controls(u"cboDataType").Text(), u"Date");
    EXPECT_EQ(form.Controls(u"cboAccessibility").Text(), u"Interface");
    EXPECT_EQ(form.Controls(u"chkByVal").Value(), 1);
}

TEST_F(VariableBuilder, APickedUpSelectionIsReplacedByThePrefixedNameOnOK) {
    openModule({u"Option Explicit", u"", u"Public Sub Run()", u"    Total = 5", u"End Sub"}, 4, 5, u"basVars");
    vbe->ActiveCodePane()->SetSelection(4, 5, 4, 10);
    auto& form = openVar();
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"strTotal");
    type(form, u"Long");
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"lngTotal");
    click(form, u"cmdOK");
    EXPECT_EQ(vars(), joinLines({u"Option Explicit", u"", u"Public Sub Run()", u"    Dim lngTotal As Long",
                                 u"    lngTotal = 5", u"End Sub"}));
    long line = 0, col = 0;
    caret(line, col);
    EXPECT_EQ(line, 5);
    EXPECT_EQ(col, 13);
}

TEST_F(VariableBuilder, OKAndPastePutsTheNameAtTheCaret) {
    openModule({u"Public Sub Run()", u"    Debug.Print ", u"End Sub"}, 2, 17, u"basVars");
    auto& form = openVar();
    typeName(form, u"strText");
    EXPECT_TRUE(form.Controls(u"cmdOKAndPaste").Enabled);
    click(form, u"cmdOKAndPaste");
    EXPECT_EQ(vars(), joinLines({u"Public Sub Run()", u"    Dim strText As String", u"    Debug.Print strText",
                                 u"End Sub"}));
}

TEST_F(VariableBuilder, ObjectStatementsForAClassButNotForPlainObject) {
    auto& form = openOn(kModuleWithSub, 6, 5);
    type(form, u"Object");
    for (const char16_t* box : {u"chkNew", u"chkWith", u"chkNothing"}) EXPECT_FALSE(form.Controls(box).Enabled) << basic::toUtf8(box);
    EXPECT_FALSE(form.Controls(u"fraObject").Enabled);
    type(form, u"clsOrder");
    for (const char16_t* box : {u"chkNew", u"chkWith", u"chkNothing"}) EXPECT_TRUE(form.Controls(box).Enabled) << basic::toUtf8(box);
    // Not at module level outside a procedure, nor for a value type.
    type(form, u"Long");
    EXPECT_FALSE(form.Controls(u"chkNew").Enabled);
}

TEST_F(VariableBuilder, NewWithAndNothingGoWhereTheyBelong) {
    auto& form = openOn({u"Public Sub Run()", u"    Dim lngCount As Long", u"", u"    lngCount = 1", u"End Sub"}, 4, 5);
    typeName(form, u"Order");
    type(form, u"clsOrder");
    for (const char16_t* box : {u"chkNew", u"chkWith", u"chkNothing"})
        ctx->Forms->Raise([&] { form.Controls(box).Value(1); });
    click(form, u"cmdOK");
    EXPECT_EQ(vars(), joinLines({u"Public Sub Run()", u"    Dim lngCount As Long", u"    Dim Order As clsOrder",
                                 u"    Set Order = New clsOrder", u"    With Order", u"        ", u"    End With", u"",
                                 u"    lngCount = 1", u"    Set Order = Nothing", u"End Sub"}));
    long line = 0, col = 0;
    caret(line, col);
    EXPECT_EQ(line, 6);
    EXPECT_EQ(col, 9);
}

TEST_F(VariableBuilder, CancelLeavesEveryModuleAsItWas) {
    auto& form = openOn(kModuleWithSub, 6, 5);
    Str main = moduleText(), own = vars();
    form.ArgInsert(u"Title", {});
    level(form, u"Public");
    click(form, u"cmdCancel");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(moduleText(), main);
    EXPECT_EQ(vars(), own);
    EXPECT_EQ(moduleText(u"clsOrder"), u"Option Explicit");
}

TEST_F(VariableBuilder, ARefusedNameKeepsTheDialogWithTheFocusOnTheName) {
    auto& form = openOn(kModuleWithSub, 6, 5);
    Str own = vars();
    // A name the module uses, and an invalid one, each answered No.
    for (const char16_t* name : {u"mlngCount", u"1st"}) {
        typeName(form, name);
        form.FocusedControl.clear();
        platform->queueAnswer(u"no");
        click(form, u"cmdOK");
        EXPECT_TRUE(isOpen()) << basic::toUtf8(name);
        EXPECT_EQ(form.FocusedControl, u"txtName");
    }
    EXPECT_EQ(vars(), own);
}

TEST_F(VariableBuilder, ANewModuleWithAnEmptyNameWritesNothingAndStaysOpen) {
    auto& form = openOn(kModuleWithSub, 2);
    typeName(form, u"strTitle");
    ctx->Forms->Raise([&] { form.Controls(u"cboModule").Text(source::kNewModule); });
    Str own = vars();
    long count = vbe->ActiveVBProject()->VBComponents()->Count();
    platform->queueAnswer(u"");
    click(form, u"cmdOK");
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(vars(), own);
    EXPECT_EQ(vbe->ActiveVBProject()->VBComponents()->Count(), count);
}

TEST_F(VariableBuilder, ANewModuleByNameTakesTheDeclaration) {
    auto& form = openOn(kModuleWithSub, 2);
    typeName(form, u"gstrTitle");
    ctx->Forms->Raise([&] { form.Controls(u"cboModule").Text(source::kNewModule); });
    platform->queueAnswer(u"basGlobals");
    click(form, u"cmdOK");
    EXPECT_FALSE(isOpen());
    ASSERT_TRUE(project->component(u"basGlobals"));
    EXPECT_NE(moduleText(u"basGlobals").find(u"Public gstrTitle As String"), Str::npos) << basic::toUtf8(moduleText(u"basGlobals"));
}

// A parent that lends its lists and records what the builder reports back.
class ParentForm : public dialogs::Form, public DeclarationOwner {
public:
    explicit ParentForm(const Str& name) : Form(name) {
        for (const char16_t* method : {u"AddNewVar", u"ArgInsert", u"NewVariable"}) {
            Str word = method;
            Method(word, [this, word](const basic::Args& args) {
                Str call = word;
                for (const auto& arg : args) call += u" " + basic::CStr(arg);
                calls.push_back(call);
                return basic::Variant{};
            });
        }
    }
    basic::Collection<source::clsVariablePtr>& ModuleVars() override { return vars; }
    basic::Collection<source::clsConstantPtr>& ModuleConsts() override { return consts; }
    basic::Collection<source::clsVariablePtr>& ProcVars() override { return vars; }
    basic::Collection<source::clsConstantPtr>& ProcConsts() override { return consts; }
    basic::Collection<source::C4_ProcDefPtr>& ModuleProcs() override { return procs; }

    basic::Collection<source::clsVariablePtr> vars;
    basic::Collection<source::clsConstantPtr> consts;
    basic::Collection<source::C4_ProcDefPtr> procs;
    std::vector<Str> calls;
};

frmVar& openUnder(core::Context& ctx, ParentForm& parent) {
    auto& form = ctx.Forms->Adopt(std::make_unique<frmVar>(ctx));
    form.SetParentForm(&parent);
    ParentForm other(u"frmOther");
    form.SetParentForm(&other);  // a second parent is ignored
    form.Init(u"", false, false, false);
    form.Show(dialogs::vbModeless);
    return form;
}

TEST_F(VariableBuilder, AParentHearsOfTheNewVariable) {
    openModule(kModuleWithSub, 6, 5, u"basVars");
    ParentForm parent(u"frmLineOfCode");
    auto variable = std::make_shared<source::clsVariable>();
    variable->Name = u"strTaken";
    parent.vars.Add(variable, u"strTaken");
    auto& form = openUnder(*ctx, parent);
    EXPECT_EQ(form.ParentForm, &parent);
    EXPECT_FALSE(form.Controls(u"cmdOKAndPaste").Enabled);
    EXPECT_TRUE(form.Lists().ModuleVars.Exists(u"strTaken"));
    typeName(form, u"strName");
    click(form, u"cmdOK");
    EXPECT_EQ(parent.calls, (std::vector<Str>{u"AddNewVar strName String False", u"ArgInsert strName String"}));
}

TEST_F(VariableBuilder, TheSelectCaseListHearsOfANewVariableWithItsTypesCode) {
    openModule(kModuleWithSub, 6, 5, u"basVars");
    ParentForm parent(u"frmSelectFromList");
    auto& form = openUnder(*ctx, parent);
    typeName(form, u"lngChoice");
    click(form, u"cmdOK");
    EXPECT_EQ(parent.calls, (std::vector<Str>{u"NewVariable lngChoice 3"}));
}

TEST_F(VariableBuilder, InATypeBlockTheLineIsAMemberWithoutKeywordAndNoRecord) {
    openModule({u"Option Explicit", u"Private Type Point", u"    X As Long", u"", u"End Type", u"", u"Sub Run()",
                u"End Sub"},
               4, 1, u"basVars");
    ParentForm parent(u"frmLineOfCode");
    auto& form = openUnder(*ctx, parent);
    typeName(form, u"Y");
    type(form, u"Long");
    click(form, u"cmdOK");
    EXPECT_EQ(vars(), joinLines({u"Option Explicit", u"Private Type Point", u"    X As Long", u"    Y As Long",
                                 u"End Type", u"", u"Sub Run()", u"End Sub"}));
    EXPECT_TRUE(parent.calls.empty());
}

TEST_F(VariableBuilder, OpenedForWithItOffersObjectTypesOnly) {
    openModule(kModuleWithSub, 6, 5, u"basVars");
    auto& form = openVar({u"with"});
    EXPECT_EQ(form.Controls(u"cboDataType").Text(), u"Object");
    EXPECT_LT(source::FindInList(form.Controls(u"cboDataType"), u"Long"), 0);
    EXPECT_GE(source::FindInList(form.Controls(u"cboDataType"), u"clsOrder"), 0);
}

TEST_F(VariableBuilder, OnTheProcedureHeaderTheLevelIsInterface) {
    auto& form = openOn(kModuleWithSub, 5, 12);
    EXPECT_EQ(form.Controls(u"cboAccessibility").Text(), u"Interface");
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"");
    EXPECT_TRUE(form.Controls(u"fraInterface").Enabled);
}

TEST_F(VariableBuilder, OnlyPredeterminedTypesLockTheTypeList) {
    openModule(kModuleWithSub, 6, 5, u"basVars");
    auto& form = ctx->Forms->Adopt(std::make_unique<frmVar>(*ctx));
    form.Init(u"(Long, Double)", true, false, false);
    auto& types = form.Controls(u"cboDataType");
    EXPECT_EQ(types.ListCount(), 2);
    EXPECT_EQ(types.Text(), u"Long");
    EXPECT_FALSE(types.Enabled);
}

}  // namespace
}  // namespace quillet::builders
