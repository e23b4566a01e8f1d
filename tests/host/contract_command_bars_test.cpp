// Command bars, controls and their click sinks.

#include "host/contract.h"

namespace quillet::host::contract {
namespace {

TEST_P(HostContract, AddedBarIsFoundByName) {
    auto bars = build({})->CommandBars();
    auto count = bars->Count();
    auto bar = bars->Add(u"QuilletTest", msoBarTop, false, true);
    EXPECT_EQ(bars->Count(), count + 1);
    EXPECT_EQ(bars->Item(u"QuilletTest")->Name(), u"QuilletTest");
    EXPECT_EQ(bars->Item(u"quillettest")->Name(), u"QuilletTest");
    bar->Delete();
    EXPECT_EQ(errorOf([&] { bars->Item(u"QuilletTest"); }), 5);
}

TEST_P(HostContract, UnknownBarRaises5) {
    auto bars = build({})->CommandBars();
    EXPECT_EQ(errorOf([&] { bars->Item(u"No Such Bar"); }), 5);
}

TEST_P(HostContract, BarNameTakenRaises5) {
    auto bars = build({})->CommandBars();
    bars->Add(u"QuilletTest", msoBarTop, false, true);
    EXPECT_EQ(errorOf([&] { bars->Add(u"QuilletTest", msoBarTop, false, true); }), 5);
}

TEST_P(HostContract, BarPropertiesKeepTheirValues) {
    auto bar = build({})->CommandBars()->Add(u"QuilletTest", msoBarFloating, false, true);
    bar->Visible(true);
    bar->Enabled(false);
    bar->Position(msoBarTop);
    bar->RowIndex(3);
    bar->Left(40);
    bar->Top(20);
    EXPECT_TRUE(bar->Visible());
    EXPECT_FALSE(bar->Enabled());
    EXPECT_EQ(bar->Position(), msoBarTop);
    EXPECT_EQ(bar->RowIndex(), 3);
    EXPECT_EQ(bar->Left(), 40);
    EXPECT_EQ(bar->Top(), 20);
}

TEST_P(HostContract, ButtonPropertiesKeepTheirValues) {
    auto bar = build({})->CommandBars()->Add(u"QuilletTest", msoBarTop, false, true);
    auto button = bar->Controls()->Add(msoControlButton);
    button->Caption(u"&Procedure");
    button->Tag(u"QuilletProc");
    button->TooltipText(u"Add a procedure");
    button->Style(msoButtonIconAndCaption);
    button->BeginGroup(true);
    button->Enabled(false);
    EXPECT_EQ(button->Type(), msoControlButton);
    EXPECT_EQ(button->Caption(), u"&Procedure");
    EXPECT_EQ(button->Tag(), u"QuilletProc");
    EXPECT_EQ(button->TooltipText(), u"Add a procedure");
    EXPECT_EQ(button->Style(), msoButtonIconAndCaption);
    EXPECT_TRUE(button->BeginGroup());
    EXPECT_FALSE(button->Enabled());
    EXPECT_EQ(button->Index(), 1);
    EXPECT_EQ(bar->Controls()->Item(1)->Tag(), u"QuilletProc");
    EXPECT_EQ(bar->Controls()->Item(u"Procedure")->Tag(), u"QuilletProc");
}

TEST_P(HostContract, PopupHoldsItsOwnControls) {
    auto bar = build({})->CommandBars()->Add(u"QuilletTest", msoBarTop, false, true);
    auto popup = bar->Controls()->Add(msoControlPopup);
    popup->Caption(u"More");
    auto inner = popup->Controls()->Add(msoControlButton);
    inner->Caption(u"Inner");
    EXPECT_EQ(popup->Controls()->Count(), 1);
    EXPECT_EQ(bar->Controls()->Count(), 1);
    EXPECT_EQ(popup->Controls()->Item(1)->Caption(), u"Inner");
}

TEST_P(HostContract, DropDownListHoldsItems) {
    auto bar = build({})->CommandBars()->Add(u"QuilletTest", msoBarTop, false, true);
    auto list = bar->Controls()->Add(msoControlDropdown);
    list->AddItem(u"One");
    list->AddItem(u"Two");
    EXPECT_EQ(list->ListCount(), 2);
    EXPECT_EQ(list->List(2), u"Two");
    list->ListIndex(2);
    EXPECT_EQ(list->ListIndex(), 2);
    EXPECT_EQ(list->Text(), u"Two");
    list->Width(120);
    EXPECT_EQ(list->Width(), 120);
}

TEST_P(HostContract, DeletedControlLeavesItsBar) {
    auto bar = build({})->CommandBars()->Add(u"QuilletTest", msoBarTop, false, true);
    auto a = bar->Controls()->Add(msoControlButton);
    auto b = bar->Controls()->Add(msoControlButton);
    b->Caption(u"B");
    a->Delete();
    EXPECT_EQ(bar->Controls()->Count(), 1);
    EXPECT_EQ(bar->Controls()->Item(1)->Caption(), u"B");
    EXPECT_EQ(b->Index(), 1);
}

TEST_P(HostContract, ExecuteFiresConnectedSinks) {
    auto vbe = build({});
    auto button = vbe->CommandBars()->Add(u"QuilletTest", msoBarTop, false, true)->Controls()->Add(msoControlButton);
    button->Caption(u"Go");
    auto sink = vbe->Events()->CommandBarEvents(button);
    int clicks = 0;
    Str caption;
    sink->Connect([&](const CommandBarControlPtr& control, bool&, bool&) {
        ++clicks;
        caption = control->Caption();
    });
    button->Execute();
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(caption, u"Go");
    sink->Disconnect();
    button->Execute();
    EXPECT_EQ(clicks, 1);
}

TEST_P(HostContract, RunBarHasReset) {
    auto bars = build({})->CommandBars();
    auto reset = bars->Item(u"Run")->Controls()->Item(u"Reset");
    ASSERT_NE(reset, nullptr);
    EXPECT_EQ(bars->FindControl(reset->Type(), reset->Id())->Id(), reset->Id());
    reset->Execute();
}

}  // namespace
}  // namespace quillet::host::contract
