// The dialog-model controls and forms.

#include "dialogs/form.h"

#include <gtest/gtest.h>

#include "basic/vb_error.h"

namespace quillet::dialogs {
namespace {

TEST(DialogForm, ControlsAreFoundIgnoringCase) {
    Form form(u"frmTest");
    auto& text = form.AddControl(u"txtName", ControlKind::TextBox);
    EXPECT_EQ(form.Find(u"TXTNAME"), &text);
    EXPECT_EQ(form.Find(u"txtOther"), nullptr);
    EXPECT_THROW(form.AddControl(u"TxtName", ControlKind::Label), basic::VbError);
    try {
        form.Controls(u"cmdMissing");
        FAIL();
    } catch (const basic::VbError& e) {
        EXPECT_EQ(e.Number(), 730);
        EXPECT_EQ(e.Description(), u"Control 'cmdMissing' not found");
    }
}

TEST(DialogForm, TextRaisesChangeOnlyWhenItChanges) {
    Form form(u"f");
    auto& text = form.AddControl(u"txtA", ControlKind::TextBox);
    int changes = 0;
    text.ChangeHandlers.push_back([&](Control&) { ++changes; });
    text.Text(u"a");
    text.Text(u"a");
    text.Text(u"b");
    EXPECT_EQ(changes, 2);
}

TEST(DialogForm, ListWithItemDataAndListIndex) {
    Form form(u"f");
    auto& list = form.AddControl(u"lstA", ControlKind::ListBox);
    int clicks = 0;
    list.ClickHandlers.push_back([&](Control&) { ++clicks; });
    list.AddItem(u"one");
    list.AddItem(u"zero", 0);
    list.ItemData(1, 10001);
    EXPECT_EQ(list.List(0), u"zero");
    EXPECT_EQ(list.ItemData(1), 10001);
    EXPECT_EQ(list.ListIndex(), -1);
    list.ListIndex(1);
    EXPECT_EQ(list.Text(), u"one");
    EXPECT_EQ(clicks, 1);
    list.AddItem(u"first", 0);
    EXPECT_EQ(list.ListIndex(), 2);
    list.RemoveItem(2);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_THROW(list.ListIndex(5), basic::VbError);
    EXPECT_THROW(list.List(9), basic::VbError);
}

TEST(DialogForm, ComboTakesTheEntryTextAndClicks) {
    Form form(u"f");
    auto& combo = form.AddControl(u"cboA", ControlKind::ComboBox);
    std::vector<std::string> events;
    combo.ChangeHandlers.push_back([&](Control&) { events.push_back("change"); });
    combo.ClickHandlers.push_back([&](Control&) { events.push_back("click"); });
    combo.AddItem(u"Long");
    combo.ListIndex(0);
    EXPECT_EQ(combo.Text(), u"Long");
    EXPECT_EQ(events, (std::vector<std::string>{"change", "click"}));
    combo.Clear();
    EXPECT_EQ(combo.Text(), u"");
}

TEST(DialogForm, CheckBoxClicksAndOptionButtonsExcludeEachOtherByContainer) {
    Form form(u"f");
    auto& check = form.AddControl(u"chkA", ControlKind::CheckBox);
    int clicks = 0;
    check.ClickHandlers.push_back([&](Control&) { ++clicks; });
    check.Value(vbChecked);
    check.Value(vbChecked);
    EXPECT_EQ(clicks, 1);
    auto& a = form.AddControl(u"optA", ControlKind::OptionButton);
    auto& b = form.AddControl(u"optB", ControlKind::OptionButton);
    auto& c = form.AddControl(u"optC", ControlKind::OptionButton);
    c.Container = u"fraOther";
    a.Value(1);
    c.Value(1);
    b.Value(1);
    EXPECT_EQ(a.Value(), 0);
    EXPECT_EQ(b.Value(), 1);
    EXPECT_EQ(c.Value(), 1);
}

TEST(DialogForm, HandlersByName) {
    Form form(u"f");
    int called = 0;
    form.Handler(u"cboModule_Click", [&] { ++called; });
    EXPECT_TRUE(form.CallHandler(u"CBOMODULE_CLICK"));
    EXPECT_FALSE(form.CallHandler(u"cboOther_Click"));
    EXPECT_EQ(called, 1);
}

TEST(DialogForm, KeyPressHandlersCanSwallowTheKey) {
    Form form(u"f");
    auto& text = form.AddControl(u"txtA", ControlKind::TextBox);
    int later = 0;
    text.KeyPressHandlers.push_back([](Control&, long& key) { key = 0; });
    text.KeyPressHandlers.push_back([&](Control&, long&) { ++later; });
    long key = 'a';
    text.KeyPress(key);
    EXPECT_EQ(key, 0);
    EXPECT_EQ(later, 0);
}

}  // namespace
}  // namespace quillet::dialogs
