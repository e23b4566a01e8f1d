// Line numbers on the selected lines of the active code pane, through the command routines the
// "&Line Numbers" entries open, compared byte for byte with golden modules.

#include "tools/line_numbers.h"

#include "addin/command_handlers.h"

#include "tools_fixture.h"

namespace quillet::testing {
namespace {

class LineNumbers : public ToolsFixture {
protected:
    void wholeModule() {
        openModule(goldenLines("numbering_plain.bas"));
        long count = static_cast<long>(goldenLines("numbering_plain.bas").size());
        select(1, 1, count, 8);
    }
};

TEST_F(LineNumbers, TheWholeModuleIsNumberedAsTheGoldenFileShows) {
    wholeModule();
    addin::LineNumbers(*ctx, 0);
    EXPECT_EQ(moduleBytes(), goldenBytes("numbering_numbered.bas"));
    EXPECT_TRUE(reports.empty());
    EXPECT_EQ(selection(), (std::vector<long>{1, 1, 46, 8}));
}

TEST_F(LineNumbers, RemovingTakesTheNumbersOffAndLeavesIndentedLinesDeeper) {
    wholeModule();
    addin::LineNumbers(*ctx, 0);
    addin::LineNumbers(*ctx, 1);
    EXPECT_EQ(moduleBytes(), goldenBytes("numbering_removed.bas"));
    EXPECT_EQ(selection(), (std::vector<long>{1, 1, 46, 8}));
}

TEST_F(LineNumbers, ASecondRunGivesTheSameNumbersAndMovesIndentedLinesDeeperAgain) {
    wholeModule();
    addin::LineNumbers(*ctx, 0);
    addin::LineNumbers(*ctx, 0);
    EXPECT_EQ(moduleBytes(), goldenBytes("numbering_twice.bas"));
}

TEST_F(LineNumbers, ReplaceLinesTakesBaseZeroAsAThousandAndKeepsAnotherBase) {
    openModule({u"Sub A()", u"x = 1", u"End Sub"}, 2, 1);
    long base = 0;
    tools::ReplaceLines(*ctx, base);
    EXPECT_EQ(base, 1000);
    EXPECT_EQ(moduleText(), joinLines({u"Sub A()", u"1002 x = 1", u"End Sub"}));
    base = 20;
    tools::ReplaceLines(*ctx, base);
    EXPECT_EQ(base, 20);
    EXPECT_EQ(moduleText(), joinLines({u"Sub A()", u"22 x = 1", u"End Sub"}));
}

TEST_F(LineNumbers, OnlyTheSelectedLinesChange) {
    openModule(goldenLines("numbering_plain.bas"));
    select(12, 5, 13, 3);
    addin::LineNumbers(*ctx, 0);
    auto lines = goldenLines("numbering_plain.bas");
    lines[11] = u"1012    calls = calls + 1";
    lines[12] = u"1013    result = first + _";
    EXPECT_EQ(moduleText(), joinLines(lines));
}

TEST_F(LineNumbers, SelectingOnlyADimChangesNothing) {
    openModule(goldenLines("numbering_plain.bas"), 8, 5);
    addin::LineNumbers(*ctx, 0);
    EXPECT_EQ(moduleText(), joinLines(goldenLines("numbering_plain.bas")));
}

TEST_F(LineNumbers, ASelectionPastTheModulesEndStopsAtItsLastLine) {
    openModule({u"Sub A()", u"x = 1"}, 2, 1);
    select(2, 1, 9, 1);
    addin::LineNumbers(*ctx, 0);
    EXPECT_EQ(moduleText(), joinLines({u"Sub A()", u"1002 x = 1"}));
    EXPECT_TRUE(reports.empty());
}

TEST_F(LineNumbers, AnEmptyModuleStaysEmpty) {
    openModule({}, 1, 1);
    addin::LineNumbers(*ctx, 0);
    addin::LineNumbers(*ctx, 1);
    EXPECT_EQ(moduleText(), u"");
    EXPECT_TRUE(reports.empty());
}

TEST_F(LineNumbers, WithoutACodePaneNothingHappens) {
    openModule({u"Sub A()", u"x = 1", u"End Sub"}, 2, 1);
    vbe->setActivePane(nullptr);
    addin::LineNumbers(*ctx, 0);
    EXPECT_EQ(moduleText(), joinLines({u"Sub A()", u"x = 1", u"End Sub"}));
    EXPECT_TRUE(reports.empty());
}

TEST_F(LineNumbers, TheRoutineIsWhatTheLineNumbersEntriesOpen) {
    openModule({u"Sub A()", u"x = 1", u"End Sub"}, 2, 1);
    core::RoutineRun(*ctx, u"LineNumbers", u"0");
    EXPECT_EQ(moduleText(), joinLines({u"Sub A()", u"1002 x = 1", u"End Sub"}));
    core::RoutineRun(*ctx, u"LineNumbers", u"1");
    EXPECT_EQ(moduleText(), joinLines({u"Sub A()", u"x = 1", u"End Sub"}));
}

}  // namespace
}  // namespace quillet::testing
