// clsApply, clsComboExpand and the two pop-ups as models.

#include <gtest/gtest.h>

#include "support/cls_apply.h"
#include "support/cls_combo_expand.h"
#include "support/pop_ups.h"

namespace quillet::support {
namespace {

using dialogs::ControlKind;

TEST(ClsApply, ChangesEnableApply) {
    dialogs::Form form(u"frmSettings");
    auto& apply = form.AddControl(u"cmdApply", ControlKind::CommandButton);
    auto& text = form.AddControl(u"txtA", ControlKind::TextBox);
    auto& check = form.AddControl(u"chkB", ControlKind::CheckBox);
    auto& combo = form.AddControl(u"cboC", ControlKind::ComboBox);
    for (auto* control : {&text, &check, &combo}) clsApply::init(*control, form);
    for (auto action : {0, 1, 2}) {
        apply.Enabled = false;
        if (action == 0) text.Text(text.Text() + u"x");
        if (action == 1) check.Value(check.Value() ? 0 : 1);
        if (action == 2) combo.Click();
        EXPECT_TRUE(apply.Enabled) << action;
    }
}

class ClsComboExpandTest : public ::testing::Test {
protected:
    ClsComboExpandTest() : form(u"frmProcedure"), combo(form.AddControl(u"cboDataType", ControlKind::ComboBox)) {
        for (const char16_t* entry : {u"Boolean", u"Long", u"LongLong", u"String"}) combo.AddItem(entry);
        form.Handler(u"cboDataType_Click", [this] { ++clicks; });
        clsComboExpand::init(form, combo);
    }
    long press(long key) {
        combo.KeyPress(key);
        return key;
    }
    dialogs::Form form;
    dialogs::Control& combo;
    int clicks = 0;
};

TEST_F(ClsComboExpandTest, TypedKeyCompletesAndSelectsTheRest) {
    EXPECT_EQ(press('l'), 0);
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(combo.Text(), u"Long");
    EXPECT_EQ(combo.SelStart, 1);
    EXPECT_EQ(combo.SelLength, 3);
    EXPECT_EQ(clicks, 1);
    press('o');
    press('n');
    press('g');
    press('L');
    EXPECT_EQ(combo.Text(), u"LongLong");
    EXPECT_EQ(combo.SelStart, 5);
}

TEST_F(ClsComboExpandTest, EnterAndTabPassThrough) {
    EXPECT_EQ(press(13), 13);
    EXPECT_EQ(press(9), 9);
    EXPECT_EQ(clicks, 0);
}

TEST_F(ClsComboExpandTest, NoEntryLetsTheKeyThrough) {
    EXPECT_EQ(press('x'), 'x');
    EXPECT_EQ(combo.ListIndex(), -1);
}

TEST_F(ClsComboExpandTest, BackspaceLooksForAnExactEntry) {
    combo.Text(u"Longs");
    combo.SelStart = 5;
    combo.SelLength = 0;
    EXPECT_EQ(press(8), 0);
    EXPECT_EQ(combo.Text(), u"Long");
    combo.Text(u"Stri");
    combo.SelStart = 4;
    EXPECT_EQ(press(8), 8);
}

TEST_F(ClsComboExpandTest, DeleteTakesOneOffTheRight) {
    combo.Text(u"Longx");
    combo.SelStart = 4;
    combo.SelLength = 0;
    long code = 46;
    combo.KeyDown(code, 0);
    EXPECT_EQ(code, 0);
    EXPECT_EQ(combo.ListIndex(), 1);
}

TEST(FrmList, KeysAndClicks) {
    frmList list;
    list.Form_Activate();
    EXPECT_EQ(list.lstList.ListIndex(), -1);
    list.lstList.AddItem(u"first");
    list.lstList.AddItem(u"second");
    list.Form_Activate();
    EXPECT_EQ(list.lstList.ListIndex(), 0);
    list.lstList.ListIndex(1);
    list.lstList_DblClick();
    EXPECT_EQ(list.Choice, Str(u"second"));
    EXPECT_EQ(list.LastKey, 13);
    EXPECT_FALSE(list.Visible);
    frmList other;
    other.lstList.AddItem(u"x");
    other.Form_Activate();
    other.lstList_KeyPress(9);
    EXPECT_EQ(other.LastKey, 9);
    EXPECT_FALSE(other.Choice);
    other.ClickOutside();
    EXPECT_EQ(other.LastKey, 27);
}

TEST(FrmTextInput, EnterTakesEscapeCancels) {
    frmTextInput input;
    input.init(u"value");
    input.txtInput.Text(u"typed");
    input.txtInput_KeyPress(13);
    EXPECT_EQ(input.Result, Str(u"typed"));
    input.init(u"again");
    input.ClickOutside();
    EXPECT_FALSE(input.Result);
    EXPECT_FALSE(input.Visible);
}

}  // namespace
}  // namespace quillet::support
