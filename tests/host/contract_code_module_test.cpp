// Reading, writing and searching the text of a code module.

#include "host/contract.h"

namespace quillet::host::contract {
namespace {

const std::vector<Str> kThree = {u"Option Explicit", u"Dim a As Long", u"Dim b As Long"};

TEST_P(HostContract, LinesJoinsWithCrLfWithoutTrailingBreak) {
    auto module = moduleOf(buildModule(u"basT", kThree), u"basT");
    EXPECT_EQ(module->Lines(1, 3), joined(kThree));
    EXPECT_EQ(module->Lines(2, 1), u"Dim a As Long");
    EXPECT_EQ(module->Lines(1, module->CountOfLines()), joined(kThree));
}

TEST_P(HostContract, LinesCountPastTheEndIsClamped) {
    auto module = moduleOf(buildModule(u"basT", kThree), u"basT");
    EXPECT_EQ(module->Lines(2, 99999), u"Dim a As Long\r\nDim b As Long");
}

TEST_P(HostContract, ModuleNameAndParent) {
    auto module = moduleOf(buildModule(u"basT", kThree), u"basT");
    EXPECT_EQ(module->Name(), u"basT");
    EXPECT_EQ(module->Parent()->Name(), u"basT");
}

TEST_P(HostContract, InsertLinesMovesExistingLinesDown) {
    auto module = moduleOf(buildModule(u"basT", kThree), u"basT");
    module->InsertLines(2, u"' new");
    EXPECT_EQ(module->CountOfLines(), 4);
    EXPECT_EQ(module->Lines(1, 4), joined({u"Option Explicit", u"' new", u"Dim a As Long", u"Dim b As Long"}));
}

TEST_P(HostContract, InsertLinesSplitsCrLf) {
    auto module = moduleOf(buildModule(u"basT", kThree), u"basT");
    module->InsertLines(1, u"' one\r\n' two");
    EXPECT_EQ(module->CountOfLines(), 5);
    EXPECT_EQ(module->Lines(1, 2), u"' one\r\n' two");
}

TEST_P(HostContract, InsertLinesAfterTheLastLineAppends) {
    auto module = moduleOf(buildModule(u"basT", kThree), u"basT");
    module->InsertLines(4, u"Dim c As Long");
    EXPECT_EQ(module->Lines(4, 1), u"Dim c As Long");
}

TEST_P(HostContract, InsertLinesIntoEmptyModule) {
    auto module = moduleOf(buildModule(u"basT", {}), u"basT");
    module->InsertLines(1, u"Option Explicit");
    EXPECT_EQ(module->CountOfLines(), 1);
    EXPECT_EQ(module->Lines(1, 1), u"Option Explicit");
}

TEST_P(HostContract, InsertEmptyTextMakesOneEmptyLine) {
    auto module = moduleOf(buildModule(u"basT", kThree), u"basT");
    module->InsertLines(4, u"");
    EXPECT_EQ(module->CountOfLines(), 4);
    EXPECT_EQ(module->Lines(4, 1), u"");
}

TEST_P(HostContract, ReplaceLineReplacesOneLine) {
    auto module = moduleOf(buildModule(u"basT", kThree), u"basT");
    module->ReplaceLine(2, u"Dim z As Long");
    EXPECT_EQ(module->Lines(1, 3), joined({u"Option Explicit", u"Dim z As Long", u"Dim b As Long"}));
}

TEST_P(HostContract, ReplaceLineWithCrLfMakesSeveralLines) {
    auto module = moduleOf(buildModule(u"basT", kThree), u"basT");
    module->ReplaceLine(2, u"Dim x As Long\r\nDim y As Long");
    EXPECT_EQ(module->CountOfLines(), 4);
    EXPECT_EQ(module->Lines(2, 3), u"Dim x As Long\r\nDim y As Long\r\nDim b As Long");
}

TEST_P(HostContract, ReplaceLineOnEmptyModuleRaises) {
    auto module = moduleOf(buildModule(u"basT", {}), u"basT");
    EXPECT_NE(errorOf([&] { module->ReplaceLine(1, u"x"); }), 0);
}

TEST_P(HostContract, DeleteLinesRemovesAndEmpties) {
    auto module = moduleOf(buildModule(u"basT", kThree), u"basT");
    module->DeleteLines(2, 1);
    EXPECT_EQ(module->Lines(1, 2), u"Option Explicit\r\nDim b As Long");
    module->DeleteLines(1, module->CountOfLines());
    EXPECT_EQ(module->CountOfLines(), 0);
}

TEST_P(HostContract, DeleteLinesPastTheEndRaises5) {
    auto module = moduleOf(buildModule(u"basT", kThree), u"basT");
    EXPECT_EQ(errorOf([&] { module->DeleteLines(3, 2); }), 5);
    EXPECT_EQ(module->CountOfLines(), 3);
    auto empty = moduleOf(buildModule(u"basE", {}), u"basE");
    EXPECT_EQ(errorOf([&] { empty->DeleteLines(1, 1); }), 5);
}

TEST_P(HostContract, AddFromStringGoesBeforeTheCommentsOfTheFirstProcedure) {
    auto module = moduleOf(buildModule(u"basT", workedExampleLines()), u"basT");
    module->AddFromString(u"Private n As Long");
    EXPECT_EQ(module->Lines(1, 5),
              joined({u"Option Explicit", u"Private m As Long", u"Private n As Long", u"", u"' Foo does things"}));
    EXPECT_EQ(module->CountOfDeclarationLines(), 3);
    EXPECT_EQ(module->ProcBodyLine(u"Foo", vbext_pk_Proc), 6);
}

TEST_P(HostContract, AddFromStringWithoutProceduresAppends) {
    auto module = moduleOf(buildModule(u"basT", kThree), u"basT");
    module->AddFromString(u"Sub A()\r\nEnd Sub");
    EXPECT_EQ(module->Lines(4, 2), u"Sub A()\r\nEnd Sub");
    EXPECT_EQ(module->ProcBodyLine(u"A", vbext_pk_Proc), 4);
}

TEST_P(HostContract, FindWholeModuleWithZeros) {
    auto module = moduleOf(buildModule(u"basT", workedExampleLines()), u"basT");
    long sl = 0, sc = 0, el = 0, ec = 0;
    ASSERT_TRUE(module->Find(u"Sub Foo", sl, sc, el, ec));
    EXPECT_EQ(sl, 5);
    EXPECT_EQ(sc, 8);
    EXPECT_EQ(el, 5);
    EXPECT_EQ(ec, 15);
}

TEST_P(HostContract, FindIgnoresCaseUnlessMatchCase) {
    auto module = moduleOf(buildModule(u"basT", workedExampleLines()), u"basT");
    long sl = 0, sc = 0, el = 0, ec = 0;
    EXPECT_TRUE(module->Find(u"option explicit", sl, sc, el, ec));
    EXPECT_EQ(sl, 1);
    sl = sc = el = ec = 0;
    EXPECT_FALSE(module->Find(u"option explicit", sl, sc, el, ec, false, true));
}

TEST_P(HostContract, FindRangeIsInclusiveAndStartsWhereTold) {
    auto module = moduleOf(buildModule(u"basT", workedExampleLines()), u"basT");
    long sl = 6, sc = 1, el = -1, ec = -1;
    ASSERT_TRUE(module->Find(u"m", sl, sc, el, ec, true));
    EXPECT_EQ(sl, 6);
    EXPECT_EQ(sc, 5);
    EXPECT_EQ(ec, 6);
    sl = 1, sc = 1, el = 2, ec = 9;  // "Private m" ends at column 9
    ASSERT_TRUE(module->Find(u"Private m", sl, sc, el, ec));
    EXPECT_EQ(sl, 2);
    sl = 1, sc = 1, el = 2, ec = 8;
    EXPECT_FALSE(module->Find(u"Private m", sl, sc, el, ec));
}

TEST_P(HostContract, FindWholeWordSkipsPartsOfWords) {
    auto module = moduleOf(buildModule(u"basT", {u"Dim ab As Long", u"Dim a As Long"}), u"basT");
    long sl = 0, sc = 0, el = 0, ec = 0;
    ASSERT_TRUE(module->Find(u"a", sl, sc, el, ec, true, true));
    EXPECT_EQ(sl, 2);
    EXPECT_EQ(sc, 5);
    EXPECT_EQ(ec, 6);
}

TEST_P(HostContract, FindMissLeavesValuesAlone) {
    auto module = moduleOf(buildModule(u"basT", kThree), u"basT");
    long sl = 1, sc = 2, el = 3, ec = 4;
    EXPECT_FALSE(module->Find(u"nowhere", sl, sc, el, ec));
    EXPECT_EQ(sl, 1);
    EXPECT_EQ(sc, 2);
    EXPECT_EQ(el, 3);
    EXPECT_EQ(ec, 4);
}

TEST_P(HostContract, FindPatternSearch) {
    auto module = moduleOf(buildModule(u"basT", {u"x = 1", u"Dim a9 As Long"}), u"basT");
    long sl = 0, sc = 0, el = 0, ec = 0;
    ASSERT_TRUE(module->Find(u"a#", sl, sc, el, ec, false, false, true));
    EXPECT_EQ(sl, 2);
    EXPECT_EQ(sc, 5);
    EXPECT_EQ(ec, 7);
}

TEST_P(HostContract, FindMatchCaseWithPatternRaises) {
    auto module = moduleOf(buildModule(u"basT", kThree), u"basT");
    long sl = 0, sc = 0, el = 0, ec = 0;
    EXPECT_NE(errorOf([&] { module->Find(u"Dim", sl, sc, el, ec, false, true, true); }), 0);
}

}  // namespace
}  // namespace quillet::host::contract
