// Adding one constant to an Enum or one member to a Type: the captions of each kind, the list of
// blocks and the one at the caret, where the line goes (before "End", or the caret's blank line
// inside that block), the comment, OK & New, and what an empty choice, a taken item and a refused
// name leave.

#include "addin/quillet_handle.h"
#include "builders/frm_item_add.h"
#include "builders/list_choice.h"
#include "enum_fixture.h"

namespace quillet::builders {
namespace {

using testing::joinLines;

class ItemAdd : public testing::EnumTypeFixture {
protected:
    frmItemAdd& openItemOn(const Str& kind, long line, long col = 1) {
        openModule(kModule, line, col, u"basVars");
        EXPECT_TRUE(ctx->Forms->Open(u"frmItemAdd", {kind}));
        return top<frmItemAdd>();
    }
    bool itemOpen() { return ctx->Forms->FindOpen(u"frmItemAdd") != nullptr; }

    const std::vector<Str> kModule = {u"Option Explicit",
                                      u"' Enum Colour in a comment",
                                      u"Public Enum Colour",
                                      u"    Red = 1",
                                      u"",
                                      u"    Green",
                                      u"End Enum",
                                      u"Private Type Point",
                                      u"    X As Long",
                                      u"End Type",
                                      u"",
                                      u"Public Sub Run()",
                                      u"End Sub"};
    Str withLines(long at, const std::vector<Str>& added, long replaced = 0) {
        auto lines = kModule;
        lines.erase(lines.begin() + (at - 1), lines.begin() + (at - 1) + replaced);
        lines.insert(lines.begin() + (at - 1), added.begin(), added.end());
        return joinLines(lines);
    }
};

TEST_F(ItemAdd, EachKindHasItsCaptions) {
    auto& form = openItemOn(u"Enum", 12);
    EXPECT_EQ(form.Caption, u"Add const to enum");
    EXPECT_EQ(form.Controls(u"lblList").Caption, u"&List of Enums");
    EXPECT_EQ(form.Controls(u"lblName").Caption, u"&Name of Const");
    EXPECT_EQ(form.Controls(u"cmdNext").Caption, u"OK && Ne&w");
    EXPECT_EQ(entries(form, u"cboList"), (std::vector<Str>{u"Colour"}));
    click(form, u"cmdCancel");
    ASSERT_TRUE(ctx->Forms->Open(u"frmItemAdd", {u"Type"}));
    auto& types = top<frmItemAdd>();
    EXPECT_EQ(types.Caption, u"Add Item to User-Defined Data Type");
    EXPECT_EQ(types.Controls(u"lblList").Caption, u"&List of Types");
    EXPECT_EQ(types.Controls(u"lblName").Caption, u"&Name of Item");
    EXPECT_EQ(entries(types, u"cboList"), (std::vector<Str>{u"Point"}));
}

TEST_F(ItemAdd, TheItemGoesInBeforeTheEndLineWithItsComment) {
    auto& form = openItemOn(u"Enum", 12);
    EXPECT_EQ(form.Controls(u"cboList").Text(), u"");
    SelectText(form.Controls(u"cboList"), u"Colour");
    setText(form, u"txtName", u" Blue = 4 ");
    setText(form, u"txtDescription", u"the sky");
    click(form, u"cmdOk");
    EXPECT_FALSE(itemOpen());
    EXPECT_EQ(vars(), withLines(7, {u"    Blue = 4    'the sky"}));
    ASSERT_TRUE(ctx->Scan.ProjectConsts);
    EXPECT_TRUE(ctx->Scan.ProjectConsts->Exists(u"Blue"));
}

TEST_F(ItemAdd, InsideThatBlockTheCaretsBlankLineIsTaken) {
    auto& form = openItemOn(u"Enum", 5, 5);
    EXPECT_EQ(form.Controls(u"cboList").Text(), u"Colour");
    setText(form, u"txtName", u"Amber");
    click(form, u"cmdOk");
    EXPECT_EQ(vars(), withLines(5, {u"    Amber"}, 1));
}

TEST_F(ItemAdd, OkAndNewStaysOpenForTheNextItem) {
    auto& form = openItemOn(u"Type", 9, 5);
    EXPECT_EQ(form.Controls(u"cboList").Text(), u"Point");
    setText(form, u"txtName", u"Y As Long");
    setText(form, u"txtDescription", u"down");
    click(form, u"cmdNext");
    EXPECT_TRUE(itemOpen());
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"");
    EXPECT_EQ(form.Controls(u"txtDescription").Text(), u"");
    EXPECT_EQ(form.FocusedControl, u"txtName");
    setText(form, u"txtName", u"Z As Long");
    click(form, u"cmdOk");
    EXPECT_FALSE(itemOpen());
    EXPECT_EQ(vars(), withLines(10, {u"    Y As Long    'down", u"    Z As Long"}));
}

TEST_F(ItemAdd, NoBlockChosenSaysSoAndChangesNothing) {
    auto& form = openItemOn(u"Enum", 12);
    setText(form, u"txtName", u"Blue");
    click(form, u"cmdOk");
    EXPECT_TRUE(itemOpen());
    EXPECT_EQ(messages(), (std::vector<Str>{u"Choose Object Name."}));
    EXPECT_EQ(platform->shownBoxes().back().buttons, 16);
    EXPECT_EQ(form.FocusedControl, u"cboList");
    EXPECT_EQ(vars(), joinLines(kModule));
}

TEST_F(ItemAdd, AnItemTheBlockHasIsRefused) {
    auto& form = openItemOn(u"Type", 9, 5);
    setText(form, u"txtName", u"x As Integer");
    click(form, u"cmdOk");
    EXPECT_TRUE(itemOpen());
    EXPECT_EQ(messages(), (std::vector<Str>{u"Item exist."}));
    EXPECT_EQ(vars(), joinLines(kModule));
}

TEST_F(ItemAdd, AKeywordAsNameIsRefused) {
    auto& form = openItemOn(u"Enum", 4, 5);
    setText(form, u"txtName", u"Loop = 2");
    platform->queueAnswer(u"no");
    click(form, u"cmdOk");
    EXPECT_TRUE(itemOpen());
    EXPECT_EQ(form.FocusedControl, u"txtName");
    EXPECT_EQ(vars(), joinLines(kModule));
}

TEST_F(ItemAdd, TheQuickCommandsOpenIt) {
    openModule(kModule, 12, 1, u"basVars");
    addin::QuilletHandle(*ctx, u"Enum", u"Item");
    ASSERT_TRUE(itemOpen());
    EXPECT_EQ(top<frmItemAdd>().Kind(), 10003);
    click(top<frmItemAdd>(), u"cmdCancel");
    addin::QuilletHandle(*ctx, u"Type", u"Item");
    ASSERT_TRUE(itemOpen());
    EXPECT_EQ(top<frmItemAdd>().Kind(), 10004);
}

}  // namespace
}  // namespace quillet::builders
