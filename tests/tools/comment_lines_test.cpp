// "Comment Lines Add" and "Comment Lines Remove" through the quick commands' front door: the
// apostrophes, the lines a selection takes, and the selection moved with the text.

#include "tools/comment_lines.h"
#include "tools/numbering_text.h"

#include "addin/quillet_handle.h"
#include "tools_fixture.h"

namespace quillet::testing {
namespace {

class CommentLines : public ToolsFixture {
protected:
    void add() { addin::QuilletHandle(*ctx, u"Comment Lines Add", u""); }
    void remove() { addin::QuilletHandle(*ctx, u"Comment Lines Remove", u""); }
    std::vector<Str> procedure() { return {u"Sub A()", u"    x = 1", u"    ' said", u"  y = 2", u"End Sub"}; }
};

TEST_F(CommentLines, TheWholeModuleIsCommentedAsTheGoldenFileShowsAndComesBackWhole) {
    auto plain = goldenLines("numbering_plain.bas");
    openModule(plain);
    select(1, 1, static_cast<long>(plain.size()), 8);
    add();
    EXPECT_EQ(moduleBytes(), goldenBytes("comment_added.bas"));
    EXPECT_EQ(selection(), (std::vector<long>{1, 1, 46, 9}));
    remove();
    EXPECT_EQ(moduleBytes(), goldenBytes("numbering_plain.bas"));
    EXPECT_EQ(selection(), (std::vector<long>{1, 1, 46, 8}));
    EXPECT_TRUE(reports.empty());
}

TEST_F(CommentLines, TheApostropheGoesAtColumnOneAndTheColumnsMoveByOne) {
    openModule(procedure());
    select(2, 5, 4, 3);
    add();
    EXPECT_EQ(moduleText(), joinLines({u"Sub A()", u"'    x = 1", u"'    ' said", u"'  y = 2", u"End Sub"}));
    EXPECT_EQ(selection(), (std::vector<long>{2, 6, 4, 4}));
}

TEST_F(CommentLines, ASelectionEndingAtColumnOneLeavesItsLastLineOut) {
    openModule(procedure());
    select(2, 1, 4, 1);
    add();
    EXPECT_EQ(moduleText(), joinLines({u"Sub A()", u"'    x = 1", u"'    ' said", u"  y = 2", u"End Sub"}));
    EXPECT_EQ(selection(), (std::vector<long>{2, 1, 4, 1}));
}

TEST_F(CommentLines, ACaretAloneWorksOnItsLine) {
    openModule(procedure(), 2, 1);
    add();
    EXPECT_EQ(moduleText(), joinLines({u"Sub A()", u"'    x = 1", u"    ' said", u"  y = 2", u"End Sub"}));
    EXPECT_EQ(selection(), (std::vector<long>{2, 1, 2, 1}));
}

TEST_F(CommentLines, AnEmptyModuleGetsOneCommentLine) {
    openModule({}, 1, 1);
    add();
    EXPECT_EQ(moduleText(), u"'");
    EXPECT_TRUE(reports.empty());
}

TEST_F(CommentLines, RemoveTakesOnlyTheFirstApostropheWhateverTheIndentation) {
    openModule({u"'x = 1", u"    'y = 2", u"  '' twice", u"z = 3 ' trailing", u"", u"Rem kept"});
    select(1, 1, 6, 9);
    remove();
    EXPECT_EQ(moduleText(), joinLines({u"x = 1", u"    y = 2", u"  ' twice", u"z = 3 ' trailing", u"", u"Rem kept"}));
    EXPECT_EQ(selection(), (std::vector<long>{1, 1, 6, 9}));
}

TEST_F(CommentLines, RemoveMovesAColumnBackOnlyWhenItStoodBehindTheApostrophe) {
    openModule({u"    'y = 2", u"    'z = 3"});
    select(1, 3, 2, 8);
    remove();
    EXPECT_EQ(moduleText(), joinLines({u"    y = 2", u"    z = 3"}));
    EXPECT_EQ(selection(), (std::vector<long>{1, 3, 2, 7}));
}

TEST_F(CommentLines, RemoveOnLinesWithoutCommentsChangesNothing) {
    openModule(procedure());
    select(1, 1, 2, 5);
    remove();
    EXPECT_EQ(moduleText(), joinLines(procedure()));
    EXPECT_EQ(selection(), (std::vector<long>{1, 1, 2, 5}));
    EXPECT_TRUE(reports.empty());
}

TEST_F(CommentLines, WithoutACodePaneNothingHappens) {
    openModule(procedure(), 2, 1);
    vbe->setActivePane(nullptr);
    add();
    tools::CommentLinesAdd(*ctx);
    EXPECT_EQ(moduleText(), joinLines(procedure()));
    EXPECT_TRUE(reports.empty());
}

TEST(UncommentedLine, SaysWhereTheApostropheWas) {
    long at = 0;
    EXPECT_EQ(tools::UncommentedLine(u"  'x", at), u"  x");
    EXPECT_EQ(at, 3);
    EXPECT_EQ(tools::UncommentedLine(u"x 'y", at), u"x 'y");
    EXPECT_EQ(at, 0);
    EXPECT_EQ(tools::UncommentedLine(u"", at), u"");
    EXPECT_EQ(at, 0);
}

}  // namespace
}  // namespace quillet::testing
