// Procedure boundaries through the CodeModule, on the worked example and its neighbours.

#include "host/contract.h"

namespace quillet::host::contract {
namespace {

struct Expected {
    const char16_t* name;
    long kind;
    long start;
    long body;
    long count;
};

TEST_P(HostContract, WorkedExampleCounts) {
    auto vbe = buildModule(u"basExample", workedExampleLines());
    auto module = moduleOf(vbe, u"basExample");
    EXPECT_EQ(module->CountOfLines(), 19);
    EXPECT_EQ(module->CountOfDeclarationLines(), 2);
}

TEST_P(HostContract, WorkedExampleProcedureTable) {
    auto module = moduleOf(buildModule(u"basExample", workedExampleLines()), u"basExample");
    const Expected table[] = {
        {u"Foo", vbext_pk_Proc, 3, 5, 5},
        {u"Bar", vbext_pk_Get, 8, 10, 5},
        {u"Bar", vbext_pk_Let, 13, 14, 7},
    };
    for (const Expected& e : table) {
        SCOPED_TRACE(std::to_string(e.kind));
        EXPECT_EQ(module->ProcStartLine(e.name, e.kind), e.start);
        EXPECT_EQ(module->ProcBodyLine(e.name, e.kind), e.body);
        EXPECT_EQ(module->ProcCountLines(e.name, e.kind), e.count);
    }
}

TEST_P(HostContract, WorkedExampleProcOfLineOnEveryLine) {
    auto module = moduleOf(buildModule(u"basExample", workedExampleLines()), u"basExample");
    for (long line = 1; line <= 19; ++line) {
        SCOPED_TRACE(line);
        long kind = -7;
        Str name = module->ProcOfLine(line, kind);
        if (line <= 2) {
            EXPECT_EQ(name, u"");
        } else if (line <= 7) {
            EXPECT_EQ(name, u"Foo");
            EXPECT_EQ(kind, vbext_pk_Proc);
        } else if (line <= 12) {
            EXPECT_EQ(name, u"Bar");
            EXPECT_EQ(kind, vbext_pk_Get);
        } else {
            EXPECT_EQ(name, u"Bar");
            EXPECT_EQ(kind, vbext_pk_Let);
        }
    }
}

TEST_P(HostContract, WorkedExampleNamedLines) {
    auto module = moduleOf(buildModule(u"basExample", workedExampleLines()), u"basExample");
    long kind = -1;
    EXPECT_EQ(module->ProcOfLine(3, kind), u"Foo");
    EXPECT_EQ(kind, vbext_pk_Proc);
    EXPECT_EQ(module->ProcOfLine(9, kind), u"Bar");
    EXPECT_EQ(kind, vbext_pk_Get);
    EXPECT_EQ(module->ProcOfLine(18, kind), u"Bar");
    EXPECT_EQ(kind, vbext_pk_Let);
}

TEST_P(HostContract, WorkedExampleUnknownProceduresRaise35) {
    auto module = moduleOf(buildModule(u"basExample", workedExampleLines()), u"basExample");
    EXPECT_EQ(errorOf([&] { module->ProcStartLine(u"Bar", vbext_pk_Set); }), 35);
    EXPECT_EQ(errorOf([&] { module->ProcStartLine(u"m", vbext_pk_Proc); }), 35);
    EXPECT_EQ(errorOf([&] { module->ProcBodyLine(u"Nothing", vbext_pk_Proc); }), 35);
    EXPECT_EQ(errorOf([&] { module->ProcCountLines(u"Foo", vbext_pk_Get); }), 35);
}

TEST_P(HostContract, ProcedureNamesIgnoreCase) {
    auto module = moduleOf(buildModule(u"basExample", workedExampleLines()), u"basExample");
    EXPECT_EQ(module->ProcStartLine(u"FOO", vbext_pk_Proc), 3);
    EXPECT_EQ(module->ProcBodyLine(u"bar", vbext_pk_Let), 14);
}

TEST_P(HostContract, ProcOfLineInDeclarationsIsEmpty) {
    auto module = moduleOf(buildModule(u"basDecl", {u"Option Explicit", u"Dim x As Long", u"Sub A()", u"End Sub"}),
                           u"basDecl");
    long kind = 0;
    EXPECT_EQ(module->ProcOfLine(1, kind), u"");
    EXPECT_EQ(module->ProcOfLine(2, kind), u"");
    EXPECT_EQ(module->ProcOfLine(3, kind), u"A");
}

TEST_P(HostContract, ModuleWithoutProceduresIsAllDeclarations) {
    auto module = moduleOf(buildModule(u"basDecl", {u"Option Explicit", u"", u"Public x As Long", u"' note"}),
                           u"basDecl");
    EXPECT_EQ(module->CountOfDeclarationLines(), 4);
    EXPECT_EQ(module->CountOfLines(), 4);
}

TEST_P(HostContract, EmptyModuleHasNoLines) {
    auto module = moduleOf(buildModule(u"basEmpty", {}), u"basEmpty");
    EXPECT_EQ(module->CountOfLines(), 0);
    EXPECT_EQ(module->CountOfDeclarationLines(), 0);
}

TEST_P(HostContract, FunctionAndSubAreKindZero) {
    auto module = moduleOf(buildModule(u"basF", {u"Private Function F() As Long", u"End Function", u"Sub S()",
                                                 u"End Sub"}),
                           u"basF");
    EXPECT_EQ(module->ProcBodyLine(u"F", vbext_pk_Proc), 1);
    EXPECT_EQ(module->ProcBodyLine(u"S", vbext_pk_Proc), 3);
    EXPECT_EQ(module->ProcStartLine(u"S", vbext_pk_Proc), 3);
}

TEST_P(HostContract, PropertySetIsItsOwnProcedure) {
    auto module = moduleOf(buildModule(u"clsX", {u"Private mo As Object", u"Property Get O() As Object",
                                                 u"Set O = mo", u"End Property", u"Property Set O(ByVal v As Object)",
                                                 u"Set mo = v", u"End Property"}),
                           u"clsX");
    EXPECT_EQ(module->ProcBodyLine(u"O", vbext_pk_Get), 2);
    EXPECT_EQ(module->ProcBodyLine(u"O", vbext_pk_Set), 5);
    EXPECT_EQ(errorOf([&] { module->ProcBodyLine(u"O", vbext_pk_Let); }), 35);
    long kind = 0;
    EXPECT_EQ(module->ProcOfLine(6, kind), u"O");
    EXPECT_EQ(kind, vbext_pk_Set);
}

TEST_P(HostContract, ContinuedHeaderBodyLineIsItsFirstLine) {
    auto module = moduleOf(buildModule(u"basC", {u"Option Explicit", u"", u"Public Function Sum(ByVal a As Long, _",
                                                 u"                    ByVal b As Long) As Long", u"    Sum = a + b",
                                                 u"End Function"}),
                           u"basC");
    EXPECT_EQ(module->ProcBodyLine(u"Sum", vbext_pk_Proc), 3);
    EXPECT_EQ(module->ProcStartLine(u"Sum", vbext_pk_Proc), 2);
    EXPECT_EQ(module->ProcCountLines(u"Sum", vbext_pk_Proc), 5);
}

TEST_P(HostContract, DeclareIsNotAProcedure) {
    auto module = moduleOf(buildModule(u"basD", {u"Private Declare PtrSafe Function GetTickCount Lib \"kernel32\" () As Long",
                                                 u"", u"Sub A()", u"End Sub"}),
                           u"basD");
    EXPECT_EQ(module->CountOfDeclarationLines(), 1);
    EXPECT_EQ(errorOf([&] { module->ProcBodyLine(u"GetTickCount", vbext_pk_Proc); }), 35);
    EXPECT_EQ(module->ProcStartLine(u"A", vbext_pk_Proc), 2);
}

}  // namespace
}  // namespace quillet::host::contract
