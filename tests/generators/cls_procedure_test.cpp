// The procedure generator's text: the fixed order, arguments, header, name constant, error
// handler, return line and hourglass.

#include "generators/cls_procedure.h"

#include "../fragments/fragments_fixture.h"
#include "generators/hourglass.h"

namespace quillet::generators {
namespace {

constexpr char16_t kHandler[] =
    u"    On Error GoTo {HANDLEERRORLABEL}\r\n<end_of_top><begin_of_bottom>\r\n\r\n{HANDLEEXITLABEL}:\r\n"
    u"    Exit {PROCEDURETYPE}\r\n\r\n{HANDLEERRORLABEL}:\r\n"
    u"    {ERRORHANDLEPROCEDURE} Err.Number, Err.Description, \"{MODULENAME}.{PROCEDURENAME}\"\r\n"
    u"    Resume {HANDLEEXITLABEL}\r\n";

class ProcedureGenerator : public testing::FragmentsFixture {
protected:
    ProcedureGenerator() {
        set(settings::iiProcedureNameConstant, u"cstrProcedure");
        set(settings::iiModuleNameConstant, u"cstrModule");
        openModule({u"Option Explicit"}, 1);
    }
    clsProcedure procedure(const Str& access, const Str& type, const Str& name, const Str& returnType = {}) {
        clsProcedure p(*ctx);
        p.AccessibleType = access;
        p.ProcType = type;
        p.Name = name;
        p.ReturnValueType = returnType;
        p.ModuleName = u"basMain";
        return p;
    }
    static void argument(clsProcedure& p, const Str& name, const Str& type, long number, bool optional = false,
                         bool paramArray = false) {
        p.Arguments().Add(name, type, optional, u"", paramArray, paramArray, number, false);
    }
};

TEST_F(ProcedureGenerator, APublicSubWithoutArguments) {
    auto p = procedure(u"Public", u"Sub", u"Foo");
    EXPECT_EQ(p.GenerateCode(), u"Public Sub Foo()\r\n\r\nEnd Sub\r\n");
    EXPECT_EQ(p.ProcDefinition(), u"Public Sub Foo()");
}

TEST_F(ProcedureGenerator, APrivateFunctionWithAnArgument) {
    auto p = procedure(u"Private", u"Function", u"Bar", u"Long");
    argument(p, u"a", u"String", 1);
    EXPECT_EQ(p.GenerateCode(), u"Private Function Bar(a As String) As Long\r\n\r\nEnd Function\r\n");
}

TEST_F(ProcedureGenerator, APropertyGet) {
    auto p = procedure(u"Public", u"Property", u"P", u"Long");
    p.PropertyType = u"Get";
    EXPECT_EQ(p.GenerateCode(), u"Public Property Get P() As Long\r\n\r\nEnd Property\r\n");
}

TEST_F(ProcedureGenerator, AStaticSub) {
    auto p = procedure(u"Public", u"Sub", u"Foo");
    p.IsStatic = true;
    EXPECT_EQ(p.GenerateCode(), u"Public Static Sub Foo()\r\n\r\nEnd Sub\r\n");
}

TEST_F(ProcedureGenerator, NoAccessWordWhenNoneIsGiven) {
    auto p = procedure(u"", u"Sub", u"Foo");
    EXPECT_EQ(p.GenerateCode(), u"Sub Foo()\r\n\r\nEnd Sub\r\n");
}

TEST_F(ProcedureGenerator, APropertyWithoutItsKind) {
    auto p = procedure(u"Public", u"Property", u"P");
    EXPECT_EQ(p.GenerateCode(), u"Public Property P()\r\n\r\nEnd Property\r\n");
}

TEST_F(ProcedureGenerator, TheProcedureNameConstantHasNoType) {
    auto p = procedure(u"Public", u"Sub", u"Foo");
    p.ProcedureNameConstant = true;
    EXPECT_EQ(p.GenerateCode(), u"Public Sub Foo()\r\n    Const cstrProcedure = \"Foo\"\r\n\r\nEnd Sub\r\n");
}

TEST_F(ProcedureGenerator, TheIndentFollowsTheTabWidth) {
    tabWidth(u"2");
    auto p = procedure(u"Public", u"Sub", u"Foo");
    p.ProcedureNameConstant = true;
    EXPECT_EQ(p.GenerateCode(), u"Public Sub Foo()\r\n  Const cstrProcedure = \"Foo\"\r\n\r\nEnd Sub\r\n");
}

TEST_F(ProcedureGenerator, ArgumentsOnSeparateLinesAlignUnderTheFirst) {
    auto p = procedure(u"Public", u"Sub", u"Foo");
    p.ArgumentsOnSeparateLine = true;
    argument(p, u"b", u"String", 2);
    argument(p, u"a", u"Long", 1);
    EXPECT_EQ(p.GenerateCode(), u"Public Sub Foo(a As Long, _\r\n               b As String)\r\n\r\nEnd Sub\r\n");
}

TEST_F(ProcedureGenerator, ArgumentsOnSeparateLinesWithOneArgument) {
    auto p = procedure(u"Public", u"Sub", u"Foo");
    p.ArgumentsOnSeparateLine = true;
    argument(p, u"a", u"Long", 1);
    EXPECT_EQ(p.GenerateCode(), u"Public Sub Foo(a As Long)\r\n\r\nEnd Sub\r\n");
}

TEST_F(ProcedureGenerator, ArgumentsGoByTheirNumber) {
    auto p = procedure(u"Public", u"Sub", u"Foo");
    argument(p, u"c", u"Variant", 3);
    argument(p, u"a", u"Long", 1);
    argument(p, u"b", u"", 2);
    Str text;
    p.GetArgString(0, text);
    EXPECT_EQ(text, u"a As Long, b, c As Variant");
    p.ArgumentsOnSeparateLine = true;
    p.GetArgString(0, text);
    EXPECT_EQ(text, u"a As Long, b, c As Variant");
}

TEST_F(ProcedureGenerator, AGapInTheNumbersGivesAnEmptyEntry) {
    auto p = procedure(u"Public", u"Sub", u"Foo");
    argument(p, u"a", u"Long", 1);
    p.Arguments().Add(u"b", u"Long", false, u"", false, false, 1, false);
    Str text = u"old";
    p.GetArgString(0, text);
    EXPECT_EQ(text, u"b As Long, ");
}

TEST_F(ProcedureGenerator, NoArgumentsGiveNoText) {
    auto p = procedure(u"Public", u"Sub", u"Foo");
    Str text = u"old";
    p.GetArgString(15, text);
    EXPECT_EQ(text, u"");
}

TEST_F(ProcedureGenerator, APresetTextIsGivenAsItIs) {
    auto p = procedure(u"Public", u"Sub", u"Foo");
    p.ProcContent(u"Sub Preset()\r\nEnd Sub\r\n");
    EXPECT_EQ(p.GenerateCode(), u"Sub Preset()\r\nEnd Sub\r\n");
    EXPECT_EQ(p.ProcDefinition(), u"");
}

TEST_F(ProcedureGenerator, AMissingHeaderFileGivesNoHeader) {
    set(settings::iiProcedureHeaderFile, u"Templates\\Missing.bas");
    auto p = procedure(u"Public", u"Sub", u"Foo");
    p.IncludeComment = true;
    EXPECT_EQ(p.GenerateCode(), u"Public Sub Foo()\r\n\r\nEnd Sub\r\n");
}

TEST_F(ProcedureGenerator, TheHeaderStandsAboveTheConstant) {
    set(settings::iiProcedureHeaderFile, u"Templates\\ProcedureHeader.bas");
    write("Templates/ProcedureHeader.bas", "    '---\r\n    ' {PROCEDURENAME}: {DESCRIPTION}\r\n    ");
    auto p = procedure(u"Public", u"Sub", u"Foo");
    p.IncludeComment = true;
    p.ProcedureNameConstant = true;
    p.Description = u"Does it";
    EXPECT_EQ(p.GenerateCode(), u"Public Sub Foo()\r\n    '---\r\n    ' Foo: Does it\r\n    \r\n"
                                u"    Const cstrProcedure = \"Foo\"\r\n\r\nEnd Sub\r\n");
}

TEST_F(ProcedureGenerator, AnObjectIsReturnedAsNothing) {
    auto p = procedure(u"Public", u"Function", u"Bar", u"Collection");
    p.AddReturnStatement = true;
    EXPECT_EQ(p.GenerateCode(), u"Public Function Bar() As Collection\r\n\r\n    Set Bar = Nothing\r\nEnd Function\r\n");
}

TEST_F(ProcedureGenerator, AValueIsReturnedAsEmpty) {
    auto p = procedure(u"Public", u"Function", u"Bar", u"string");
    p.AddReturnStatement = true;
    EXPECT_EQ(p.GenerateCode(), u"Public Function Bar() As string\r\n\r\n    Bar = Empty\r\nEnd Function\r\n");
}

TEST_F(ProcedureGenerator, ASubWithAReturnLineGetsEmpty) {
    auto p = procedure(u"Public", u"Sub", u"Foo");
    p.AddReturnStatement = true;
    EXPECT_EQ(p.GenerateCode(), u"Public Sub Foo()\r\n\r\n    Foo = Empty\r\nEnd Sub\r\n");
}

TEST_F(ProcedureGenerator, TheErrorHandlerGoesRoundTheBody) {
    auto p = procedure(u"Public", u"Sub", u"Foo");
    p.IncludeErrorHandler = true;
    p.ErrorHandler = kHandler;
    EXPECT_EQ(p.GenerateCode(), u"Public Sub Foo()\r\n    On Error GoTo HandleError\r\n\r\n\r\nHandleExit:\r\n    Exit Sub\r\n\r\n"
                                u"HandleError:\r\n    ErrorReport Err.Number, Err.Description, \"basMain.Foo\"\r\n"
                                u"    Resume HandleExit\r\nEnd Sub\r\n");
}

TEST_F(ProcedureGenerator, TheErrorHandlerUsesTheNameConstants) {
    auto p = procedure(u"Private", u"Function", u"Bar", u"Long");
    p.IncludeErrorHandler = true;
    p.ErrorHandler = kHandler;
    p.ModuleNameConstant = true;
    p.ProcedureNameConstant = true;
    EXPECT_EQ(p.GenerateCode(), u"Private Function Bar() As Long\r\n    Const cstrProcedure = \"Bar\"\r\n"
                                u"    On Error GoTo HandleError\r\n\r\n\r\nHandleExit:\r\n    Exit Function\r\n\r\n"
                                u"HandleError:\r\n    ErrorReport Err.Number, Err.Description, cstrModule & \".\" & cstrProcedure\r\n"
                                u"    Resume HandleExit\r\nEnd Function\r\n");
}

TEST_F(ProcedureGenerator, AnEmptyHandlerTemplateLeavesTheText) {
    auto p = procedure(u"Public", u"Sub", u"Foo");
    p.IncludeErrorHandler = true;
    EXPECT_EQ(p.GenerateCode(), u"Public Sub Foo()\r\n\r\nEnd Sub\r\n");
}

TEST_F(ProcedureGenerator, TheHourglassPerHost) {
    const struct {
        const char16_t *host, *on, *off;
    } table[] = {
        {u"Access", u"Screen.MousePointer = 11", u"Screen.MousePointer = 0"},
        {u"VBRUN", u"Screen.MousePointer = 11", u"Screen.MousePointer = 0"},
        {u"Excel", u"Application.Cursor=xlWait", u"Application.Cursor=xlDefault"},
        {u"Word", u"System.Cursor=wdCursorWait", u"System.Cursor=wdCursorNormal"},
    };
    for (const auto& row : table) {
        EXPECT_EQ(HourglassStatement(row.host, true), row.on);
        EXPECT_EQ(HourglassStatement(row.host, false), row.off);
        ctx->HostName = row.host;
        auto p = procedure(u"Public", u"Sub", u"Foo");
        p.IncludeHourglass = true;
        EXPECT_EQ(p.GenerateCode(), u"Public Sub Foo()\r\n    " + Str(row.on) + u"\r\n\r\n    " + row.off + u"\r\nEnd Sub\r\n");
    }
    EXPECT_EQ(HourglassStatement(u"excel", true), u"");
    EXPECT_EQ(HourglassStatement(u"Outlook", false), u"");
}

TEST_F(ProcedureGenerator, NoHourglassInAnotherHost) {
    ctx->HostName = u"Outlook";
    auto p = procedure(u"Public", u"Sub", u"Foo");
    p.IncludeHourglass = true;
    EXPECT_EQ(p.GenerateCode(), u"Public Sub Foo()\r\n\r\nEnd Sub\r\n");
}

TEST_F(ProcedureGenerator, TheHourglassWrapsHandlerAndReturnLine) {
    ctx->HostName = u"Excel";
    auto p = procedure(u"Public", u"Function", u"Bar", u"Long");
    p.IncludeErrorHandler = true;
    p.ErrorHandler = kHandler;
    p.AddReturnStatement = true;
    p.IncludeHourglass = true;
    EXPECT_EQ(p.GenerateCode(),
              u"Public Function Bar() As Long\r\n    On Error GoTo HandleError\r\n    Application.Cursor=xlWait\r\n\r\n\r\n"
              u"    Bar = Empty\r\n    Application.Cursor=xlDefault\r\nHandleExit:\r\n    Exit Function\r\n\r\n"
              u"HandleError:\r\n    ErrorReport Err.Number, Err.Description, \"basMain.Bar\"\r\n"
              u"    Resume HandleExit\r\nEnd Function\r\n");
}

TEST_F(ProcedureGenerator, ArgumentOrder) {
    auto p = procedure(u"Public", u"Sub", u"Foo");
    EXPECT_EQ(p.ArgumentsOrderIsBad(), 0);
    argument(p, u"b", u"Long", 2, true);
    argument(p, u"a", u"Long", 1);
    EXPECT_EQ(p.ArgumentsOrderIsBad(), 0);
    argument(p, u"c", u"Long", 3);
    EXPECT_EQ(p.ArgumentsOrderIsBad(), 1);

    auto q = procedure(u"Public", u"Sub", u"Foo");
    argument(q, u"values", u"Variant", 1, false, true);
    argument(q, u"a", u"Long", 2);
    EXPECT_EQ(q.ArgumentsOrderIsBad(), 2);
    q.Arguments().Item(1)->Number = 2;
    q.Arguments().Item(2)->Number = 1;
    EXPECT_EQ(q.ArgumentsOrderIsBad(), 0);
}

TEST_F(ProcedureGenerator, ArgumentsBehindADeletedOneMoveUp) {
    auto p = procedure(u"Public", u"Sub", u"Foo");
    argument(p, u"a", u"Long", 1);
    argument(p, u"c", u"Long", 3);
    argument(p, u"d", u"Long", 4);
    p.ArgumentsRenumber(2);
    EXPECT_EQ(p.Arguments().Item(1)->Number, 1);
    EXPECT_EQ(p.Arguments().Item(2)->Number, 2);
    EXPECT_EQ(p.Arguments().Item(3)->Number, 3);
    EXPECT_EQ(p.GenerateCode(), u"Public Sub Foo(a As Long, c As Long, d As Long)\r\n\r\nEnd Sub\r\n");
}

TEST_F(ProcedureGenerator, ABadNumberIsReportedAndTheTextGoesOn) {
    auto p = procedure(u"Public", u"Sub", u"Foo");
    argument(p, u"a", u"Long", 5);
    EXPECT_EQ(p.GenerateCode(), u"Public Sub Foo()\r\n\r\nEnd Sub\r\n");
    EXPECT_EQ(p.ArgumentsOrderIsBad(), 0);
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_NE(reports[0].find(u"clsProcedure.GetArgString"), Str::npos);
    EXPECT_NE(reports[1].find(u"clsProcedure.ArgumentsOrderIsBad"), Str::npos);
}

TEST_F(ProcedureGenerator, ProceduresOfOneNameLiveSideBySide) {
    colProcedures procedures;
    auto get = std::make_shared<clsProcedure>(procedure(u"Public", u"Property", u"Count", u"Long"));
    auto let = std::make_shared<clsProcedure>(procedure(u"Public", u"Property", u"Count"));
    procedures.Add(get);
    procedures.Add(let);
    EXPECT_EQ(procedures.Count(), 2);
    EXPECT_NE(get->ID, let->ID);
    EXPECT_EQ(basic::Left(get->ID, 5), u"Count");
    procedures.Remove(get->ID);
    EXPECT_EQ(procedures.Item(1), let);
}

}  // namespace
}  // namespace quillet::generators
