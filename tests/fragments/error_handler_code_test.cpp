// Error handler templates made ready for one procedure.

#include "fragments/error_handler_code.h"

#include "fragments_fixture.h"

namespace quillet::fragments {
namespace {

class ErrorHandlerCode : public testing::FragmentsFixture {
protected:
    ErrorHandlerCode() {
        set(settings::iiModuleNameConstant, u"cstrModule");
        set(settings::iiProcedureNameConstant, u"cstrProcedure");
    }
    Str normalize(Str text, bool moduleConst, bool procConst) {
        NormalizeErrorHandlerCode(*ctx, text, u"basMain", u"Foo", u"Sub", moduleConst, procConst);
        return text;
    }
};

constexpr char16_t kReport[] = u"    {ERRORHANDLEPROCEDURE} Err.Number, \"{MODULENAME}.{PROCEDURENAME}\"";

TEST_F(ErrorHandlerCode, BothConstantsMakeAnExpression) {
    openModule({u"Sub Foo()", u"End Sub"}, 1);
    EXPECT_EQ(normalize(u"Resume {HANDLEEXITLABEL}\r\n\"{MODULENAME}.{PROCEDURENAME}\"", true, true),
              u"Resume HandleExit\r\ncstrModule & \".\" & cstrProcedure");
}

TEST_F(ErrorHandlerCode, TheModuleConstantAlone) {
    openModule({u"Sub Foo()", u"End Sub"}, 1);
    EXPECT_EQ(normalize(u"\"{MODULENAME}.{PROCEDURENAME}\"", true, false), u"cstrModule & \".Foo\"");
}

TEST_F(ErrorHandlerCode, TheProcedureConstantAlone) {
    openModule({u"Sub Foo()", u"End Sub"}, 1);
    EXPECT_EQ(normalize(u"\"{MODULENAME}.{PROCEDURENAME}\"", false, true), u"\"basMain.\" & cstrProcedure");
    EXPECT_EQ(normalize(u"MsgBox \"{PROCEDURENAME} failed\"", false, true), u"MsgBox cstrProcedure & \" failed\"");
}

TEST_F(ErrorHandlerCode, WithoutConstantsThePlaceholdersAreReplaced) {
    openModule({u"Sub Foo()", u"End Sub"}, 1);
    EXPECT_EQ(normalize(u"Exit {PROCEDURETYPE}: \"{MODULENAME}.{PROCEDURENAME}\"", false, false),
              u"Exit Sub: \"basMain.Foo\"");
}

TEST_F(ErrorHandlerCode, TheNamesAreFoundIgnoringCase) {
    openModule({u"Sub Foo()", u"End Sub"}, 1);
    EXPECT_EQ(normalize(u"\"BASMAIN.foo\"", true, true), u"cstrModule & \".\" & cstrProcedure");
}

TEST_F(ErrorHandlerCode, TheErrorProcedureBringsItsModule) {
    openModule({u"Sub Foo()", u"End Sub"}, 1);
    set(settings::iiErrorHandleFile, u"");
    Str text = kReport;
    NormalizeErrorHandlerCode(*ctx, text, u"basMain", u"Foo", u"Sub", true, true);
    EXPECT_EQ(text, u"    ErrorReport Err.Number, cstrModule & \".\" & cstrProcedure");
}

}  // namespace
}  // namespace quillet::fragments
