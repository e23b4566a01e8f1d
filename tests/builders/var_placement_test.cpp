// Where the Variable Builder's line goes: never inside another statement, whatever the module
// holds around the caret; and the argument it adds to the procedure's header.

#include "var_fixture.h"

namespace quillet::builders {
namespace {

using testing::joinLines;

class VariablePlacement : public testing::VariableFixture {
protected:
    // Opens the builder, names the variable strName (String) at the level, and presses OK.
    Str declare(const std::vector<Str>& lines, long line, const Str& entry) {
        auto& form = openOn(lines, line);
        level(form, entry);
        typeName(form, u"strName");
        click(form, u"cmdOK");
        EXPECT_FALSE(isOpen());
        return vars();
    }
};

TEST_F(VariablePlacement, BehindDeclarationsThatEndInAContinuedLine) {
    std::vector<Str> lines = {u"Option Explicit", u"Private Declare PtrSafe Function GetTickCount Lib \"kernel32\" _",
                              u"    () As Long", u"", u"Public Sub Run()", u"End Sub"};
    EXPECT_EQ(declare(lines, 5, u"Dim - Module"),
              joinLines({u"Option Explicit", u"Private Declare PtrSafe Function GetTickCount Lib \"kernel32\" _",
                         u"    () As Long", u"Dim strName As String", u"", u"Public Sub Run()", u"End Sub"}));
}

TEST_F(VariablePlacement, BehindAProcedureDeclarationContinuedOverTwoLines) {
    std::vector<Str> lines = {u"Public Sub Run()", u"    Dim lngA As Long, _", u"        lngB As Long", u"",
                              u"    lngA = 1", u"End Sub"};
    EXPECT_EQ(declare(lines, 5, u"Dim - Procedure"),
              joinLines({u"Public Sub Run()", u"    Dim lngA As Long, _", u"        lngB As Long",
                         u"    Dim strName As String", u"", u"    lngA = 1", u"End Sub"}));
}

TEST_F(VariablePlacement, BehindAProcedureHeaderOverSeveralLines) {
    std::vector<Str> lines = {u"Public Function Total(ByVal lngA As Long, _", u"                      ByVal lngB As Long) _",
                              u"                      As Long", u"    Total = lngA + lngB", u"End Function"};
    EXPECT_EQ(declare(lines, 4, u"Dim - Procedure"),
              joinLines({u"Public Function Total(ByVal lngA As Long, _", u"                      ByVal lngB As Long) _",
                         u"                      As Long", u"    Dim strName As String", u"    Total = lngA + lngB",
                         u"End Function"}));
}

TEST_F(VariablePlacement, DeclarationsThatEndInCommentsKeepTheirComments) {
    std::vector<Str> lines = {u"Option Explicit", u"Private mlngCount As Long", u"' Run counts the calls.",
                              u"Public Sub Run()", u"End Sub"};
    EXPECT_EQ(declare(lines, 5, u"Dim - Module"),
              joinLines({u"Option Explicit", u"Private mlngCount As Long", u"Dim strName As String",
                         u"' Run counts the calls.", u"Public Sub Run()", u"End Sub"}));
}

TEST_F(VariablePlacement, BehindAConditionalBlockOfDeclarations) {
    std::vector<Str> lines = {u"Option Explicit",
                              u"#If VBA7 Then",
                              u"Private Declare PtrSafe Sub Sleep Lib \"kernel32\" (ByVal ms As Long)",
                              u"#Else",
                              u"Private Declare Sub Sleep Lib \"kernel32\" (ByVal ms As Long)",
                              u"#End If",
                              u"",
                              u"Public Sub Run()",
                              u"End Sub"};
    Str expected = joinLines({u"Option Explicit", u"#If VBA7 Then",
                              u"Private Declare PtrSafe Sub Sleep Lib \"kernel32\" (ByVal ms As Long)", u"#Else",
                              u"Private Declare Sub Sleep Lib \"kernel32\" (ByVal ms As Long)", u"#End If",
                              u"Dim strName As String", u"", u"Public Sub Run()", u"End Sub"});
    EXPECT_EQ(declare(lines, 9, u"Dim - Module"), expected);
}

TEST_F(VariablePlacement, NotOnABlankLineInsideAConditionalBlock) {
    std::vector<Str> lines = {u"Option Explicit", u"#If VBA7 Then", u"", u"#End If"};
    EXPECT_EQ(declare(lines, 3, u"Dim - Module"),
              joinLines({u"Option Explicit", u"#If VBA7 Then", u"", u"#End If", u"Dim strName As String"}));
}

TEST_F(VariablePlacement, NotOnABlankLineInsideAnEnum) {
    std::vector<Str> lines = {u"Option Explicit", u"Private Enum Colour", u"    Red", u"", u"End Enum"};
    EXPECT_EQ(declare(lines, 4, u"Dim - Module"),
              joinLines({u"Option Explicit", u"Private Enum Colour", u"    Red", u"", u"End Enum", u"Dim strName As String"}));
}

TEST_F(VariablePlacement, OnTheBlankCaretLineOfTheDeclarations) {
    std::vector<Str> lines = {u"Option Explicit", u"", u"Private mlngCount As Long", u"", u"Public Sub Run()", u"End Sub"};
    EXPECT_EQ(declare(lines, 2, u"Private"),
              joinLines({u"Option Explicit", u"Private strName As String", u"Private mlngCount As Long", u"",
                         u"Public Sub Run()", u"End Sub"}));
}

TEST_F(VariablePlacement, AModuleWithoutDeclarations) {
    std::vector<Str> lines = {u"Public Sub Run()", u"    Run", u"End Sub"};
    EXPECT_EQ(declare(lines, 2, u"Dim - Module"),
              joinLines({u"Dim strName As String", u"Public Sub Run()", u"    Run", u"End Sub"}));
}

TEST_F(VariablePlacement, AnEmptyModule) {
    EXPECT_EQ(declare({}, 1, u"Dim - Module"), u"Dim strName As String");
}

// The interface route: the argument goes into the header, which may run over several lines.
class VariableInterface : public testing::VariableFixture {
protected:
    frmVar& openInterface(const std::vector<Str>& lines, long line) {
        auto& form = openOn(lines, line);
        level(form, u"Interface");
        return form;
    }
    void before(frmVar& form, const Str& argument) {
        auto& list = form.Controls(u"cboArgument");
        long index = argument.empty() ? 0 : source::FindInList(list, argument);
        ASSERT_GE(index, 0);
        ctx->Forms->Raise([&] { list.ListIndex(index); });
    }
};

const std::vector<Str> kTwoLineSub = {u"Public Sub Save(ByVal strPath As String, _", u"                lngMode As Long)",
                                      u"    Debug.Print strPath", u"End Sub"};

TEST_F(VariableInterface, AtTheEndOfAOneLineHeader) {
    auto& form = openInterface({u"Sub Run(ByVal lngA As Long)", u"    lngA = 1", u"End Sub"}, 2);
    typeName(form, u"strName");
    click(form, u"cmdOK");
    EXPECT_EQ(vars(), joinLines({u"Sub Run(ByVal lngA As Long, strName As String)", u"    lngA = 1", u"End Sub"}));
}

TEST_F(VariableInterface, EachArgumentOnANewLineLeavesAOneLineHeaderOnOneLine) {
    settings().IniItemValue[settings::iiEachArgumentOnANewLine] = true;
    auto& form = openInterface({u"Sub Run(ByVal lngA As Long)", u"    lngA = 1", u"End Sub"}, 2);
    typeName(form, u"strName");
    click(form, u"cmdOK");
    EXPECT_EQ(vars(), joinLines({u"Sub Run(ByVal lngA As Long, strName As String)", u"    lngA = 1", u"End Sub"}));
}

TEST_F(VariableInterface, EachArgumentOnANewLineInAHeaderOverTwoLines) {
    settings().IniItemValue[settings::iiEachArgumentOnANewLine] = true;
    auto& form = openInterface(kTwoLineSub, 3);
    typeName(form, u"blnQuiet");
    ctx->Forms->Raise([&] { form.Controls(u"chkByVal").Value(1); });
    click(form, u"cmdOK");
    EXPECT_EQ(vars(), joinLines({u"Public Sub Save(ByVal strPath As String, _", u"                lngMode As Long, _",
                                 u"                ByVal blnQuiet As Boolean)", u"    Debug.Print strPath", u"End Sub"}));
}

TEST_F(VariableInterface, BeforeAnArgumentOnAContinuationLine) {
    auto& form = openInterface(kTwoLineSub, 3);
    before(form, u"lngMode");
    typeName(form, u"blnQuiet");
    ctx->Forms->Raise([&] { form.Controls(u"txtDescription").Text(u"no messages"); });
    click(form, u"cmdOK");
    EXPECT_EQ(vars(), joinLines({u"Public Sub Save(ByVal strPath As String, _", u"                blnQuiet As Boolean, _",
                                 u"                lngMode As Long)", u"'blnQuiet: no messages", u"    Debug.Print strPath",
                                 u"End Sub"}));
}

TEST_F(VariableInterface, BeforeTheFirstArgumentOnTheHeaderLine) {
    auto& form = openInterface(kTwoLineSub, 3);
    before(form, u"strPath");
    typeName(form, u"lngCount");
    click(form, u"cmdOK");
    EXPECT_EQ(vars(), joinLines({u"Public Sub Save(lngCount As Long, ByVal strPath As String, _",
                                 u"                lngMode As Long)", u"    Debug.Print strPath", u"End Sub"}));
}

TEST_F(VariableInterface, AnEmptyArgumentListTakesTheArgumentAsItIs) {
    auto& form = openInterface({u"Function Total() As Long", u"    Total = 1", u"End Function"}, 2);
    typeName(form, u"lngStart");
    click(form, u"cmdOK");
    EXPECT_EQ(vars(), joinLines({u"Function Total(lngStart As Long) As Long", u"    Total = 1", u"End Function"}));
}

TEST_F(VariableInterface, BeforeAMandatoryArgumentOptionalCannotBeSet) {
    auto& form = openInterface({u"Sub Run(lngA As Long, Optional lngB As Long = 2)", u"    lngA = 1", u"End Sub"}, 2);
    before(form, u"lngA");
    EXPECT_FALSE(form.Controls(u"chkOptional").Enabled);
    EXPECT_EQ(form.Controls(u"chkOptional").Value(), 0);
    // Behind an optional argument the new one must be optional too.
    before(form, u"");
    EXPECT_EQ(form.Controls(u"chkOptional").Value(), 1);
    EXPECT_TRUE(form.Controls(u"txtDefault").Enabled);
    EXPECT_FALSE(form.Controls(u"chkParamArray").Enabled);
    typeName(form, u"strTitle");
    ctx->Forms->Raise([&] { form.Controls(u"txtDefault").Text(u"Report"); });
    click(form, u"cmdOK");
    EXPECT_EQ(vars(), joinLines({u"Sub Run(lngA As Long, Optional lngB As Long = 2, Optional strTitle As String = \"Report\")",
                                 u"    lngA = 1", u"End Sub"}));
}

TEST_F(VariableInterface, ParamArrayOnlyAtTheEndAndAlone) {
    auto& form = openInterface({u"Sub Run(lngA As Long)", u"End Sub"}, 2);
    auto& paramArray = form.Controls(u"chkParamArray");
    EXPECT_TRUE(paramArray.Enabled);
    ctx->Forms->Raise([&] { paramArray.Value(1); });
    EXPECT_FALSE(form.Controls(u"chkByVal").Enabled);
    EXPECT_FALSE(form.Controls(u"chkOptional").Enabled);
    EXPECT_FALSE(form.Controls(u"cboArgument").Enabled);
    EXPECT_FALSE(form.Controls(u"chkArray").Enabled);
    typeName(form, u"varItems");
    type(form, u"Variant");
    click(form, u"cmdOK");
    EXPECT_EQ(vars(), joinLines({u"Sub Run(lngA As Long, ParamArray varItems())", u"End Sub"}));
}

TEST_F(VariableInterface, AnArgumentNameTakenByTheProcedureIsRefused) {
    auto& form = openInterface({u"Sub Run(lngA As Long)", u"End Sub"}, 2);
    Str before = vars();
    typeName(form, u"lngA");
    platform->queueAnswer(u"no");
    click(form, u"cmdOK");
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(form.FocusedControl, u"txtName");
    EXPECT_EQ(vars(), before);
}

}  // namespace
}  // namespace quillet::builders
