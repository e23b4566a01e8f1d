// The procedure generator's text into a module, and the caret into the new body.

#include "generators/cls_procedure.h"

#include "../fragments/fragments_fixture.h"

namespace quillet::generators {
namespace {

// The text's final line break leaves an empty line behind the procedure, as in the editor.
class ProcedureCreate : public testing::FragmentsFixture {
protected:
    clsProcedure procedure(const Str& name, const Str& module = u"basMain") {
        clsProcedure p(*ctx);
        p.AccessibleType = u"Public";
        p.ProcType = u"Sub";
        p.Name = name;
        p.ModuleName = module;
        return p;
    }
    std::pair<long, long> caretAt() {
        long line = 0, col = 0;
        caret(line, col);
        return {line, col};
    }
};

TEST_F(ProcedureCreate, AtTheEndOfTheModuleWithTheCaretInTheBody) {
    openModule({u"Option Explicit", u"", u"Public Sub Old()", u"End Sub"}, 1);
    auto p = procedure(u"Foo");
    p.Create(p.GenerateCode(), project, true, true);
    EXPECT_EQ(moduleText(), u"Option Explicit\r\n\r\nPublic Sub Old()\r\nEnd Sub\r\nPublic Sub Foo()\r\n    \r\nEnd Sub\r\n");
    EXPECT_EQ(caretAt(), std::make_pair(6L, 5L));
}

TEST_F(ProcedureCreate, BehindTheDeclarations) {
    openModule({u"Option Explicit", u"Dim m As Long", u"", u"Public Sub Old()", u"End Sub"}, 1);
    auto p = procedure(u"Foo");
    p.Create(p.GenerateCode(), project, false, true);
    EXPECT_EQ(moduleText(), u"Option Explicit\r\nDim m As Long\r\nPublic Sub Foo()\r\n    \r\nEnd Sub\r\n\r\n"
                            u"Public Sub Old()\r\nEnd Sub");
    EXPECT_EQ(caretAt(), std::make_pair(4L, 5L));
}

TEST_F(ProcedureCreate, TheCaretGoesBehindTheDeclarationArea) {
    openModule({u"Option Explicit"}, 1);
    auto p = procedure(u"Foo");
    p.ProcedureNameConstant = true;
    set(settings::iiProcedureNameConstant, u"cstrProcedure");
    p.Create(p.GenerateCode(), project, true, true);
    EXPECT_EQ(moduleText(), u"Option Explicit\r\nPublic Sub Foo()\r\n    Const cstrProcedure = \"Foo\"\r\n    \r\nEnd Sub\r\n");
    EXPECT_EQ(caretAt(), std::make_pair(4L, 5L));
}

TEST_F(ProcedureCreate, ACursorMarkerInTheTextWins) {
    openModule({u"Option Explicit"}, 1);
    auto p = procedure(u"Foo");
    p.GenerateCode();
    p.Create(u"Public Sub Foo()\r\n\r\n    Debug.Print <cursor>\r\nEnd Sub\r\n", project, true, true);
    EXPECT_EQ(moduleText(), u"Option Explicit\r\nPublic Sub Foo()\r\n    \r\n    Debug.Print \r\nEnd Sub\r\n");
    EXPECT_EQ(caretAt(), std::make_pair(4L, 17L));
}

TEST_F(ProcedureCreate, WithoutSetCursorTheMarkersGoAndTheCaretStays) {
    openModule({u"Option Explicit", u""}, 2, 1);
    auto p = procedure(u"Foo");
    p.Create(u"Public Sub Foo()\r\n    <cursor>\r\nEnd Sub\r\n", project, true, false);
    EXPECT_EQ(moduleText(), u"Option Explicit\r\n\r\nPublic Sub Foo()\r\n    \r\nEnd Sub\r\n");
    EXPECT_EQ(caretAt(), std::make_pair(2L, 1L));
}

TEST_F(ProcedureCreate, AnotherModuleInFrontKeepsItsCaret) {
    openModule({u"Option Explicit"}, 1, 1, u"basOther");
    openModule({u"Option Explicit", u"' here"}, 2, 3);
    auto p = procedure(u"Foo", u"basOther");
    p.Create(p.GenerateCode(), project, true, true);
    EXPECT_EQ(moduleText(u"basOther"), u"Option Explicit\r\nPublic Sub Foo()\r\n\r\nEnd Sub\r\n");
    EXPECT_EQ(caretAt(), std::make_pair(2L, 3L));
    EXPECT_EQ(vbe->ActiveCodePane()->CodeModule()->Parent()->Name(), u"basMain");
}

TEST_F(ProcedureCreate, NothingWithoutCode) {
    openModule({u"Option Explicit"}, 1);
    auto p = procedure(u"Foo");
    p.Create(u"", project, true, true);
    EXPECT_EQ(moduleText(), u"Option Explicit");
}

TEST_F(ProcedureCreate, TheFirstProcedureWithTheSignatureWins) {
    openModule({u"Option Explicit", u"Public Sub Foo()", u"    x = 1", u"", u"End Sub"}, 1);
    auto p = procedure(u"Foo");
    p.Create(p.GenerateCode(), project, true, true);
    EXPECT_EQ(caretAt(), std::make_pair(4L, 5L));
}

}  // namespace
}  // namespace quillet::generators
