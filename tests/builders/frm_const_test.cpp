// The Constant Builder's rules on the model: the level list and what it means, the value as a
// literal of its type, the line and where it goes (an Enum member at the caret's block), the
// records and the parent's call-backs, the clipboard and the paste, and what Cancel, a refused
// name and a missing value leave.

#include "addin/command_handlers.h"
#include "const_fixture.h"
#include "source/type_lists.h"

namespace quillet::builders {
namespace {

using testing::joinLines;

class ConstantBuilder : public testing::ConstantFixture {};

const std::vector<Str> kModule = {u"Option Explicit", u"",          u"Private mlngCount As Long", u"",
                                  u"Public Enum Colour", u"    Red = 1", u"    Green", u"End Enum",
                                  u"",                u"Public Sub Run()", u"    Debug.Print Title",
                                  u"End Sub"};

// The module with `line` put in at (1-based) `at`.
Str withLine(long at, const Str& line) {
    auto lines = kModule;
    lines.insert(lines.begin() + (at - 1), line);
    return joinLines(lines);
}

TEST_F(ConstantBuilder, OpensFromTheCommandBarsRoutine) {
    openModule(kModule, 11, 5, u"basVars");
    core::RoutineRun(*ctx, u"frmConst");
    ASSERT_NE(ctx->Forms->Top(), nullptr);
    EXPECT_EQ(ctx->Forms->Top()->Name(), u"frmConst");
    EXPECT_EQ(ctx->Forms->Top()->Caption, u"Constant Builder");
    EXPECT_EQ(ctx->Forms->Top()->Controls(u"cmdOKAndPaste").Caption, u"OK && &Paste");
}

TEST_F(ConstantBuilder, TheLevelListOfTheCurrentStandardModule) {
    auto& form = openConstOn(kModule, 11, 5);
    EXPECT_EQ(entries(form, u"cboAccessibility"), (std::vector<Str>{u"", u"Private", u"Public"}));
    EXPECT_EQ(form.Controls(u"cboAccessibility").ListIndex(), 0);
    // Inside a procedure the empty entry is the procedure's level.
    EXPECT_EQ(form.Accessibility(), 0);
    EXPECT_EQ(form.VarLevel(), 1);
    form.Accessibility(1);
    EXPECT_EQ(form.Controls(u"cboAccessibility").Text(), u"Public");
    EXPECT_EQ(form.Accessibility(), 1);
    EXPECT_EQ(form.VarLevel(), 0);
    form.Accessibility(2);
    EXPECT_EQ(form.Accessibility(), 2);
    EXPECT_EQ(form.VarLevel(), 0);
    form.Accessibility(7);
    EXPECT_EQ(form.Controls(u"cboAccessibility").ListIndex(), 0);
}

TEST_F(ConstantBuilder, OutsideAProcedureTheEmptyEntryIsTheModulesLevel) {
    auto& form = openConstOn(kModule, 4, 1);
    EXPECT_EQ(form.Accessibility(), 0);
    EXPECT_EQ(form.VarLevel(), 0);
}

TEST_F(ConstantBuilder, AnotherModuleOffersPublicOnlyAndAnotherClassNothing) {
    auto& form = openConstOn(kModule, 11, 5);
    ctx->Forms->Raise([&] { form.Controls(u"cboModule").ListIndex(source::FindInList(form.Controls(u"cboModule"), u"basMain")); });
    EXPECT_EQ(entries(form, u"cboAccessibility"), (std::vector<Str>{u"Public"}));
    EXPECT_EQ(form.Accessibility(), 1);
    ctx->Forms->Raise([&] { form.Controls(u"cboModule").ListIndex(source::FindInList(form.Controls(u"cboModule"), u"clsOrder")); });
    EXPECT_EQ(form.Controls(u"cboAccessibility").ListCount(), 0);
    EXPECT_EQ(form.Accessibility(), 0);
    // "<New Module>" is a standard module still to be made.
    ctx->Forms->Raise([&] { form.Controls(u"cboModule").ListIndex(0); });
    EXPECT_EQ(form.Controls(u"cboModule").Text(), u"<New Module>");
    EXPECT_EQ(entries(form, u"cboAccessibility"), (std::vector<Str>{u"Public"}));
}

TEST_F(ConstantBuilder, AConstantForAnotherClassGoesToItsDeclarationsWithoutKeyword) {
    auto& form = openConstOn(kModule, 11, 5);
    ctx->Forms->Raise([&] { form.Controls(u"cboModule").ListIndex(source::FindInList(form.Controls(u"cboModule"), u"clsOrder")); });
    EXPECT_EQ(form.VarLevel(), 0);
    typeName(form, u"cstrTable");
    setText(form, u"txtValue", u"Orders");
    click(form, u"cmdOK");
    EXPECT_FALSE(constOpen());
    EXPECT_EQ(vars(), joinLines(kModule));
    EXPECT_EQ(moduleText(u"clsOrder"), joinLines({u"Option Explicit", u"Const cstrTable As String = \"Orders\""}));
}

TEST_F(ConstantBuilder, ANewModuleWhoseNameIsCancelledWritesNothing) {
    auto& form = openConstOn(kModule, 11, 5);
    ctx->Forms->Raise([&] { form.Controls(u"cboModule").ListIndex(0); });
    typeName(form, u"gcstrTable");
    setText(form, u"txtValue", u"Orders");
    platform->queueAnswer(u"cancel");
    click(form, u"cmdOK");
    EXPECT_TRUE(constOpen());
    EXPECT_EQ(vars(), joinLines(kModule));
    EXPECT_EQ(project->VBComponents()->Count(), 3);
}

TEST_F(ConstantBuilder, TheTypesAreValueTypesAndVariantWithStringChosen) {
    auto& form = openConstOn(kModule, 11, 5);
    auto types = entries(form, u"cboDataType");
    EXPECT_EQ(types, (std::vector<Str>{u"Byte", u"Boolean", u"Integer", u"Long", u"Single", u"Double", u"Currency",
                                       u"Date", u"String", u"Variant"}));
    EXPECT_EQ(form.Controls(u"cboDataType").Text(), u"String");
    EXPECT_EQ(form.Controls(u"cboDataType").ItemData(7), 7);
}

TEST_F(ConstantBuilder, AProcedureConstantGoesBehindTheDeclarationsIndented) {
    auto& form = openConstOn(kModule, 11, 17);
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"cstrTitle");
    EXPECT_EQ(form.Controls(u"txtValue").Text(), u"Title");
    click(form, u"cmdOK");
    EXPECT_FALSE(constOpen());
    EXPECT_EQ(vars(), withLine(11, u"    Const cstrTitle As String = \"Title\""));
    EXPECT_EQ(platform->ClipboardGetText(), Str(u"cstrTitle"));
}

TEST_F(ConstantBuilder, PublicAndPrivateConstantsGoToTheModulesDeclarations) {
    for (const auto& [level, line] : std::vector<std::pair<long, Str>>{
             {1, u"Public Const gcstrTitle As String = \"Quillet\""}, {2, u"Private Const mcstrTitle As String = \"Quillet\""}}) {
        auto& form = openConstOn(kModule, 11, 17);
        ctx->Forms->Raise([&] { form.Accessibility(level); });
        setText(form, u"txtValue", u"Quillet");
        click(form, u"cmdOK");
        // Behind the module's declarations, the Enum block included.
        EXPECT_EQ(vars(), withLine(9, line)) << level;
        project->removeComponent(project->component(u"basVars"));
    }
}

TEST_F(ConstantBuilder, APublicConstantOfAStandardModuleJoinsTheProjectsConstants) {
    auto& form = openConstOn(kModule, 11, 17);
    ctx->Forms->Raise([&] { form.Accessibility(1); });
    click(form, u"cmdOK");
    ASSERT_TRUE(ctx->Scan.ProjectConsts);
    ASSERT_TRUE(ctx->Scan.ProjectConsts->Exists(u"gcstrTitle"));
    EXPECT_EQ(ctx->Scan.ProjectConsts->Item(u"gcstrTitle")->Type_, u"String");
}

TEST_F(ConstantBuilder, AnEnumMemberOfTypeLongMayHaveNoValue) {
    auto& form = openConstOn(kModule, 7, 10);
    EXPECT_EQ(form.Controls(u"cboDataType").Text(), u"Long");
    typeName(form, u"Blue");
    EXPECT_EQ(form.Controls(u"txtValue").Text(), u"");
    click(form, u"cmdOK");
    EXPECT_FALSE(constOpen());
    EXPECT_EQ(vars(), withLine(8, u"    Blue"));
    EXPECT_TRUE(messages().empty());
}

TEST_F(ConstantBuilder, AnEnumMemberTakesItsValueBare) {
    auto& form = openConstOn(kModule, 7, 10);
    typeName(form, u"Blue");
    setText(form, u"txtValue", u"&H10");
    setText(form, u"txtDescription", u"not written");
    click(form, u"cmdOK");
    EXPECT_EQ(vars(), withLine(8, u"    Blue = &H10"));
}

TEST_F(ConstantBuilder, InAnEnumBlockAnotherTypeWritesAFullConstLine) {
    auto& form = openConstOn(kModule, 7, 10);
    typeName(form, u"Hue");
    type(form, u"String");
    setText(form, u"txtValue", u"Blue");
    click(form, u"cmdOK");
    EXPECT_FALSE(constOpen());
    EXPECT_EQ(vars(), withLine(9, u"Const Hue As String = \"Blue\""));
}

TEST_F(ConstantBuilder, InAnEnumBlockAConstantForAnotherModuleIsAFullConstLine) {
    auto& form = openConstOn(kModule, 7, 10);
    typeName(form, u"Shade");
    ctx->Forms->Raise([&] { form.Controls(u"cboModule").ListIndex(source::FindInList(form.Controls(u"cboModule"), u"basMain")); });
    setText(form, u"txtValue", u"3");
    click(form, u"cmdOK");
    EXPECT_FALSE(constOpen());
    EXPECT_EQ(vars(), joinLines(kModule));
    EXPECT_EQ(moduleText(), joinLines({u"Option Explicit", u"Public Const Shade As Long = 3", u"",
                                       u"Public Sub Existing()", u"End Sub"}));
}

TEST_F(ConstantBuilder, VbCrLfStaysBareAndVbNullCharIsQuoted) {
    auto& form = openConstOn(kModule, 11, 5);
    typeName(form, u"cstrBreak");
    setText(form, u"txtValue", u"vbCrLf");
    EXPECT_EQ(form.ValueFormatted(), u"vbCrLf");
    setText(form, u"txtValue", u"VBCRLF");
    EXPECT_EQ(form.ValueFormatted(), u"VBCRLF");
    setText(form, u"txtValue", u"vbNullChar");
    EXPECT_EQ(form.ValueFormatted(), u"\"vbNullChar\"");
    setText(form, u"txtValue", u"vbCrLf");
    click(form, u"cmdOK");
    EXPECT_EQ(vars(), withLine(11, u"    Const cstrBreak As String = vbCrLf"));
}

TEST_F(ConstantBuilder, AStringConstantTheModuleKnowsStaysBare) {
    auto lines = kModule;
    lines.insert(lines.begin() + 3, u"Private Const mcstrName As String = \"x\"");
    auto& form = openConstOn(lines, 12, 5);
    typeName(form, u"cstrOther");
    setText(form, u"txtValue", u"mcstrName");
    EXPECT_EQ(form.ValueFormatted(), u"mcstrName");
    setText(form, u"txtValue", u"mlngCount");
    EXPECT_EQ(form.ValueFormatted(), u"\"mlngCount\"");
}

TEST_F(ConstantBuilder, ADateIsWrittenBetweenHashSignsOnce) {
    auto& form = openConstOn(kModule, 11, 5);
    typeName(form, u"dtmStart");
    type(form, u"Date");
    setText(form, u"txtValue", u"1/2/2024");
    EXPECT_EQ(form.ValueFormatted(), u"#01/02/2024#");
    setText(form, u"txtValue", u"#1/2/2024#");
    EXPECT_EQ(form.ValueFormatted(), u"#1/2/2024#");
    setText(form, u"txtValue", u"1/2/2024 10:30");
    EXPECT_EQ(form.ValueFormatted(), u"#1/2/2024 10:30#");
    setText(form, u"txtValue", u"2024-12-31");
    click(form, u"cmdOK");
    EXPECT_EQ(vars(), withLine(11, u"    Const dtmStart As Date = #12/31/2024#"));
}

TEST_F(ConstantBuilder, BooleansAreWrittenAsWords) {
    auto& form = openConstOn(kModule, 11, 5);
    type(form, u"Boolean");
    for (const auto& [text, literal] : std::vector<std::pair<Str, Str>>{
             {u"0", u"False"}, {u"-1", u"True"}, {u"2", u"True"}, {u"true", u"True"}, {u"FALSE", u"False"}}) {
        setText(form, u"txtValue", text);
        EXPECT_EQ(form.ValueFormatted(), literal) << basic::toUtf8(text);
    }
}

TEST_F(ConstantBuilder, LongWithAnEmptyValueOutsideAnEnumIsRefused) {
    auto& form = openConstOn(kModule, 11, 5);
    typeName(form, u"lngMax");
    type(form, u"Long");
    setText(form, u"txtValue", u"");
    click(form, u"cmdOK");
    EXPECT_TRUE(constOpen());
    EXPECT_EQ(messages(), (std::vector<Str>{u"Missing or incorrect value of Constant."}));
    EXPECT_EQ(platform->shownBoxes().back().buttons, 48);
    EXPECT_EQ(form.FocusedControl, u"txtValue");
    EXPECT_EQ(vars(), joinLines(kModule));
}

TEST_F(ConstantBuilder, ANameOf300CharactersIsCutTo255BeforeTheCheck) {
    auto& form = openConstOn(kModule, 11, 5);
    Str name = u"c" + Str(299, u'x');
    typeName(form, name);
    setText(form, u"txtValue", u"v");
    click(form, u"cmdOK");
    // 256 characters or more would be refused as invalid: the check saw 255.
    EXPECT_TRUE(messages().empty());
    EXPECT_FALSE(constOpen());
    EXPECT_EQ(vars(), withLine(11, u"    Const " + basic::Left(name, 255) + u" As String = \"v\""));
}

TEST_F(ConstantBuilder, ARefusedNameLeavesTheDialogAndTheModule) {
    auto& form = openConstOn(kModule, 11, 5);
    typeName(form, u"mlngCount");
    setText(form, u"txtValue", u"1");
    platform->queueAnswer(u"no");
    click(form, u"cmdOK");
    EXPECT_TRUE(constOpen());
    EXPECT_EQ(form.FocusedControl, u"txtName");
    EXPECT_EQ(vars(), joinLines(kModule));
}

TEST_F(ConstantBuilder, CancelLeavesTheModuleByteIdentical) {
    auto& form = openConstOn(kModule, 11, 5);
    typeName(form, u"cstrTitle");
    setText(form, u"txtValue", u"x");
    click(form, u"cmdCancel");
    EXPECT_FALSE(constOpen());
    EXPECT_EQ(vars(), joinLines(kModule));
}

TEST_F(ConstantBuilder, ThePickedUpSelectionIsNameAndValueAndIsReplacedByTheName) {
    auto lines = kModule;
    lines[10] = u"    Debug.Print \"Total\"";
    openModule(lines, 11, 17, u"basVars");
    vbe->ActiveCodePane()->SetSelection(11, 17, 11, 24);
    auto& form = openConst();
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"cstrTotal");
    EXPECT_EQ(form.Controls(u"txtValue").Text(), u"\"Total\"");
    click(form, u"cmdOK");
    auto expected = lines;
    expected[10] = u"    Debug.Print cstrTotal";
    expected.insert(expected.begin() + 10, u"    Const cstrTotal As String = \"Total\"");
    EXPECT_EQ(vars(), joinLines(expected));
}

TEST_F(ConstantBuilder, APickedUpValueThatDoesNotSuitTheTypeIsLeftOut) {
    auto lines = kModule;
    lines[10] = u"    Debug.Print 42";
    openModule(lines, 11, 17, u"basVars");
    auto& form = openConst({u"Date"});
    EXPECT_EQ(form.Controls(u"cboDataType").Text(), u"Date");
    EXPECT_EQ(form.Controls(u"txtValue").Text(), u"42");
    click(form, u"cmdCancel");
    openModule({u"Option Explicit", u"", u"' Total"}, 3, 4, u"basOther");
    auto& again = openConst({u"Long"});
    EXPECT_EQ(again.Controls(u"txtName").Text(), u"mclngTotal");
    EXPECT_EQ(again.Controls(u"txtValue").Text(), u"");
}

TEST_F(ConstantBuilder, OkAndPasteInsideAProcedurePutsTheNameAtTheCaret) {
    auto lines = kModule;
    lines[10] = u"    Debug.Print ";
    auto& form = openConstOn(lines, 11, 17);
    typeName(form, u"cintLimit");
    setText(form, u"txtValue", u"10");
    click(form, u"cmdOKAndPaste");
    auto expected = lines;
    expected[10] = u"    Debug.Print cintLimit";
    expected.insert(expected.begin() + 10, u"    Const cintLimit As Integer = 10");
    EXPECT_EQ(vars(), joinLines(expected));
}

TEST_F(ConstantBuilder, ArgInsertCompletesABarePrefixAndSetsTheValue) {
    auto& form = openConstOn(kModule, 11, 5);
    typeName(form, u"cstr");
    form.ArgInsert(u"Sheet1");
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"cstrSheet1");
    EXPECT_EQ(form.Controls(u"txtValue").Text(), u"Sheet1");
    form.ArgInsert(u"Sheet2");
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"cstrSheet1");
    EXPECT_EQ(form.Controls(u"txtValue").Text(), u"Sheet2");
}

TEST_F(ConstantBuilder, TheObjectNameButtonIsForStringsAndSaysItIsNotThereYet) {
    auto& form = openConstOn(kModule, 11, 5);
    EXPECT_TRUE(form.Controls(u"cmdObjectName").Visible);
    EXPECT_TRUE(form.Controls(u"cmdObjectName").Enabled);
    type(form, u"Long");
    EXPECT_FALSE(form.Controls(u"cmdObjectName").Enabled);
    type(form, u"String");
    ASSERT_TRUE(form.Controls(u"cmdObjectName").Enabled);
    click(form, u"cmdObjectName");
    EXPECT_EQ(messages(), (std::vector<Str>{u"The Object Name dialog is not available yet."}));
    EXPECT_TRUE(constOpen());
    EXPECT_TRUE(reports.empty());
}

TEST_F(ConstantBuilder, TheObjectNameButtonIsHiddenOutsideExcelWordAndAccess) {
    ctx->HostName = u"Outlook";
    auto& form = openConstOn(kModule, 11, 5);
    EXPECT_FALSE(form.Controls(u"cmdObjectName").Visible);
}

// A dialog that asks for a constant and takes it back by name, as the Argument Builder does.
class ConstantAsker : public dialogs::Form {
public:
    ConstantAsker() : Form(u"frmAsker") {
        Method(u"AddNewConst", [this](const basic::Args& args) {
            calls.push_back(u"AddNewConst " + basic::CStr(args.at(0)));
            return basic::Variant{};
        });
        Method(u"ArgInsert", [this](const basic::Args& args) {
            calls.push_back(u"ArgInsert " + basic::CStr(args.at(0)));
            return basic::Variant{};
        });
    }
    std::vector<Str> calls;
};

TEST_F(ConstantBuilder, AParentDialogGetsTheNewConstantBack) {
    openModule(kModule, 11, 5, u"basVars");
    auto& asker = ctx->Forms->Adopt(std::make_unique<ConstantAsker>());
    asker.Show(dialogs::vbModeless);
    auto& form = openConst({u"Integer"});
    EXPECT_EQ(form.ParentForm, &asker);
    EXPECT_FALSE(form.Controls(u"cmdOKAndPaste").Enabled);
    EXPECT_EQ(form.Controls(u"cboDataType").Text(), u"Integer");
    // A constant asked for by a dialog is one of the module.
    EXPECT_EQ(form.VarLevel(), 0);
    typeName(form, u"cintSize");
    setText(form, u"txtValue", u"4");
    click(form, u"cmdOK");
    EXPECT_EQ(asker.calls, (std::vector<Str>{u"AddNewConst cintSize", u"ArgInsert cintSize"}));
    EXPECT_EQ(vars(), withLine(9, u"Const cintSize As Integer = 4"));
}

}  // namespace
}  // namespace quillet::builders
