// The life of a form on the stack: Show, Hide, Unload, modal callbacks, events by name,
// methods by name, boxes through the platform, openers by name.

#include "dialogs/form_stack.h"

#include <gtest/gtest.h>

#include "basic/vb_error.h"
#include "platform/scripted_platform.h"
#include "test_forms.h"

namespace quillet::dialogs {
namespace {

using testing::frmChild;
using testing::frmTest;

class DialogFormStack : public ::testing::Test {
protected:
    std::shared_ptr<platform::ScriptedPlatform> platform = std::make_shared<platform::ScriptedPlatform>();
    FormStack forms{platform};
};

TEST_F(DialogFormStack, ShowPutsTheFormOnTopAndHideTakesItOff) {
    frmTest form(&forms);
    EXPECT_EQ(forms.Top(), nullptr);
    form.Show(vbModeless);
    EXPECT_TRUE(form.Visible);
    EXPECT_TRUE(form.Loaded());
    EXPECT_EQ(forms.Top(), &form);
    form.Hide();
    EXPECT_FALSE(form.Visible);
    EXPECT_TRUE(form.Loaded());
    EXPECT_EQ(forms.Top(), nullptr);
}

TEST_F(DialogFormStack, FormLoadRunsOncePerLoad) {
    frmChild child(&forms);
    child.Show(vbModal);
    child.Hide();
    child.Show(vbModal);
    EXPECT_EQ(child.loads, 1);
    child.Unload();
    EXPECT_FALSE(child.Loaded());
    child.Show(vbModal);
    EXPECT_EQ(child.loads, 2);
}

TEST_F(DialogFormStack, ModalCallbackRunsAfterTheClosingEventEnds) {
    frmTest form(&forms);
    std::vector<std::string> order;
    form.Show(vbModal, [&] { order.push_back("after"); });
    form.Handler(u"cmdCancel_Click", nullptr);
    form.Controls(u"cmdCancel").ClickHandlers.clear();
    form.On(u"cmdCancel_Click", [&] {
        form.Hide();
        order.push_back("rest of the click");
    });
    form.Controls(u"cmdCancel").Click();
    EXPECT_EQ(order, (std::vector<std::string>{"rest of the click", "after"}));
}

TEST_F(DialogFormStack, ModelessCallbackRunsAtOnce) {
    frmTest form(&forms);
    bool after = false;
    form.Show(vbModeless, [&] { after = true; });
    EXPECT_TRUE(after);
    EXPECT_TRUE(form.Visible);
}

TEST_F(DialogFormStack, ShowingAnOpenFormModallyOrAModelessOneOverAModalOneFails) {
    frmTest form(&forms);
    frmChild child(&forms);
    form.Show(vbModal);
    try {
        form.Show(vbModal);
        FAIL();
    } catch (const basic::VbError& e) {
        EXPECT_EQ(e.Number(), 400);
    }
    try {
        child.Show(vbModeless);
        FAIL();
    } catch (const basic::VbError& e) {
        EXPECT_EQ(e.Number(), 401);
    }
    EXPECT_EQ(forms.OpenForms().size(), 1u);
}

TEST_F(DialogFormStack, ChildOpensModallyOverItsParentAndCallsBackByName) {
    frmTest form(&forms);
    form.Show(vbModal);
    form.Controls(u"cmdNewArg").Click();
    ASSERT_NE(form.child, nullptr);
    EXPECT_EQ(forms.Top(), form.child.get());
    EXPECT_EQ(form.child->Stack(), &forms);
    form.child->Controls(u"txtArg").Text(u"a As Long");
    form.child->Controls(u"cmdOK").Click();
    EXPECT_EQ(forms.Top(), &form);
    EXPECT_EQ(form.Controls(u"lstArguments").List(0), u"a As Long");
    EXPECT_EQ(form.afterChild, std::vector<long>{1});
}

TEST_F(DialogFormStack, EventsOfControlArraysCarryTheIndex) {
    frmTest form(&forms);
    form.Controls(u"optByVal(1)").Value(1);
    EXPECT_EQ(form.passing, 1);
    form.Controls(u"optByVal(0)").Value(1);
    EXPECT_EQ(form.passing, 0);
    EXPECT_EQ(form.Controls(u"optByVal(1)").Value(), 0);
    form.CallByName(u"OPTBYVAL_CLICK", {1LL});
    EXPECT_EQ(form.passing, 1);
    EXPECT_EQ(controlBaseName(u"optByVal(12)"), u"optByVal");
    EXPECT_EQ(controlIndex(u"optByVal(12)"), 12);
    EXPECT_EQ(controlIndex(u"txtName"), -1);
}

TEST_F(DialogFormStack, CallByNameReachesMethodsAndHandlersAndRefusesOthers) {
    frmTest form(&forms);
    form.CallByName(u"argInsert", {Str(u"b")});
    EXPECT_EQ(form.Controls(u"lstArguments").ListCount(), 1);
    EXPECT_TRUE(form.HasMember(u"chkHeader_Click"));
    form.CallByName(u"chkHeader_Click");
    EXPECT_EQ(form.headerClicks, 1);
    try {
        form.CallByName(u"AddNewVar", {Str(u"x")});
        FAIL();
    } catch (const basic::VbError& e) {
        EXPECT_EQ(e.Number(), 438);
    }
}

TEST_F(DialogFormStack, BoxesGoThroughThePlatform) {
    frmTest form(&forms);
    auto& args = form.Controls(u"lstArguments");
    args.AddItem(u"a");
    args.AddItem(u"b");
    args.ListIndex(1);
    platform->queueAnswer(u"no");
    form.Controls(u"cmdDelArg").Click();
    EXPECT_EQ(args.ListCount(), 2);
    platform->queueAnswer(u"yes");
    form.Controls(u"cmdDelArg").Click();
    EXPECT_EQ(args.ListCount(), 1);
    ASSERT_EQ(platform->shownBoxes().size(), 2u);
    EXPECT_EQ(platform->shownBoxes()[1].prompt, u"Delete 'b'?");
    EXPECT_EQ(platform->shownBoxes()[1].buttons, 36);
    EXPECT_FALSE(form.Controls(u"cmdDelArg").Enabled);
}

TEST_F(DialogFormStack, AFormOnNoStackCannotAsk) {
    frmTest form;
    try {
        form.MsgBox(u"?");
        FAIL();
    } catch (const basic::VbError& e) {
        EXPECT_EQ(e.Number(), 91);
    }
}

TEST_F(DialogFormStack, OpenersByNameAndAdoptedFormsLiveUntilTheNextOpen) {
    Str result;
    testing::registerTestForm(forms, &result);
    EXPECT_TRUE(forms.IsRegistered(u"FRMTEST"));
    EXPECT_FALSE(forms.Open(u"frmNothing"));
    ASSERT_TRUE(forms.Open(u"frmTest", {u"Foo"}));
    Form* top = forms.Top();
    ASSERT_NE(top, nullptr);
    EXPECT_EQ(top->Name(), u"frmTest");
    EXPECT_EQ(forms.FindOpen(u"FrmTest"), top);
    EXPECT_TRUE(top->Controls(u"cmdOK").Enabled);
    top->Controls(u"cmdOK").Click();
    EXPECT_EQ(result, u"Foo");
    EXPECT_EQ(forms.Top(), nullptr);
    EXPECT_FALSE(top->Loaded());  // still readable until the next Open
    ASSERT_TRUE(forms.Open(u"frmTest"));
    EXPECT_EQ(forms.OpenForms().size(), 1u);
}

TEST_F(DialogFormStack, ViewsFollowTheStack) {
    std::vector<Str> seen;
    forms.shown = [&](Form& form) { seen.push_back(u"shown " + form.Name() + (form.Visible ? u" visible" : u"")); };
    forms.closed = [&](Form& form) { seen.push_back(u"closed " + form.Name()); };
    frmTest form(&forms);
    form.Show(vbModal);
    form.Controls(u"cmdNewArg").Click();
    form.child->Controls(u"cmdCancel").Click();
    form.Unload();
    EXPECT_EQ(seen, (std::vector<Str>{u"shown frmTest visible", u"shown frmChild visible", u"closed frmChild",
                                      u"closed frmTest"}));
}

TEST_F(DialogFormStack, AFormDestroyedWhileOpenLeavesTheStack) {
    {
        frmTest form(&forms);
        form.Show(vbModal, [] { FAIL() << "no callback for a destroyed form"; });
    }
    EXPECT_EQ(forms.Top(), nullptr);
}

}  // namespace
}  // namespace quillet::dialogs
