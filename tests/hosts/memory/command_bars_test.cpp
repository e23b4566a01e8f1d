#include "hosts/memory/command_bars.h"

#include <gtest/gtest.h>

#include "hosts/memory/memory_host.h"
#include "hosts/memory/support.h"

namespace quillet::hosts::memory {
namespace {

using testing::errorOf;

class MemoryCommandBarsTest : public ::testing::Test {
protected:
    std::shared_ptr<MemoryVBE> vbe_ = MemoryVBE::create();
    host::CommandBarsPtr bars_ = vbe_->CommandBars();
    host::CommandBarControlPtr button() {
        return bars_->Add(u"Quillet", host::msoBarTop, false, true)->Controls()->Add(host::msoControlButton);
    }
};

TEST_F(MemoryCommandBarsTest, EditorBarsAreSeeded) {
    for (const char16_t* name : {u"Menu Bar", u"Standard", u"Code Window", u"Run"}) EXPECT_EQ(bars_->Item(name)->Name(), name);
    EXPECT_EQ(bars_->Item(u"Code Window")->Position(), host::msoBarPopup);
    EXPECT_EQ(bars_->Item(u"Menu Bar")->Controls()->Item(u"Tools")->Type(), host::msoControlPopup);
    EXPECT_EQ(errorOf([&] { bars_->Item(u"Menu Bar")->Delete(); }), 5);
    EXPECT_EQ(errorOf([&] { bars_->Item(99L); }), 5);
}

TEST_F(MemoryCommandBarsTest, ResetIsRecordedWhenExecuted) {
    bars_->Item(u"Run")->Controls()->Item(u"Reset")->Execute();
    EXPECT_EQ(vbe_->commandBars()->executedBuiltIns(), (std::vector<Str>{u"Reset"}));
    auto found = bars_->FindControl(host::msoControlButton, kResetControlId);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->Caption(), u"&Reset");
    EXPECT_EQ(bars_->FindControl(host::msoControlButton, 987654), nullptr);
    EXPECT_EQ(bars_->FindControl(host::msoControlPopup, kResetControlId), nullptr);
}

TEST_F(MemoryCommandBarsTest, CancelDefaultStopsTheBuiltInAction) {
    auto cut = bars_->FindControl(host::msoControlButton, kCutControlId);
    auto sink = vbe_->Events()->CommandBarEvents(cut);
    sink->Connect([](const host::CommandBarControlPtr&, bool& handled, bool& cancel) {
        handled = true;
        cancel = true;
    });
    cut->Execute();
    EXPECT_TRUE(vbe_->commandBars()->executedBuiltIns().empty());
}

TEST_F(MemoryCommandBarsTest, AddCopiesABuiltInControlById) {
    auto bar = bars_->Add(u"Quillet", host::msoBarTop, false, true);
    auto copy = bar->Controls()->Add(host::msoControlButton, kCopyControlId);
    EXPECT_EQ(copy->Caption(), u"&Copy");
    EXPECT_EQ(copy->Id(), kCopyControlId);
    copy->Execute();
    EXPECT_EQ(vbe_->commandBars()->executedBuiltIns(), (std::vector<Str>{u"Copy"}));
    EXPECT_EQ(errorOf([&] { bar->Controls()->Add(host::msoControlButton, 424242); }), 5);
    EXPECT_EQ(errorOf([&] { bar->Controls()->Add(7); }), 5);
}

TEST_F(MemoryCommandBarsTest, NewBarIsHiddenAndCustom) {
    auto bar = bars_->Add(u"Quillet", host::msoBarFloating, false, true);
    EXPECT_FALSE(bar->Visible());
    EXPECT_TRUE(bar->Enabled());
    auto unnamed = bars_->Add(u"", host::msoBarTop, false, true);
    EXPECT_EQ(unnamed->Name(), u"Custom 1");
    EXPECT_EQ(errorOf([&] { bars_->Add(u"Run", host::msoBarTop, false, true); }), 5);
    EXPECT_EQ(errorOf([&] { bars_->Add(u"Bad", 9, false, true); }), 5);
}

TEST_F(MemoryCommandBarsTest, WritesAreCounted) {
    auto b = button();
    auto memory = std::dynamic_pointer_cast<MemoryCommandBarControl>(b);
    ASSERT_NE(memory, nullptr);
    b->Caption(u"A");
    b->Caption(u"A");
    b->Enabled(true);
    EXPECT_EQ(memory->writeCounter().writes("Caption"), 2);
    EXPECT_EQ(memory->writeCounter().writes("Enabled"), 1);
    EXPECT_EQ(memory->writeCounter().total(), 3);
    b->Caption();
    EXPECT_EQ(memory->writeCounter().total(), 3);
    auto bar = std::dynamic_pointer_cast<MemoryCommandBar>(bars_->Item(u"Quillet"));
    bar->Visible(true);
    EXPECT_EQ(bar->writeCounter().writes("Visible"), 1);
}

TEST_F(MemoryCommandBarsTest, FacesAndTheFaceSlot) {
    auto a = button();
    auto b = bars_->Item(u"Quillet")->Controls()->Add(host::msoControlButton);
    EXPECT_EQ(errorOf([&] { b->PasteFace(); }), 5);
    auto picture = std::make_shared<MemoryDispatch>(u"Picture");
    auto mask = std::make_shared<MemoryDispatch>(u"Picture");
    a->Picture(picture);
    a->Mask(mask);
    EXPECT_EQ(a->Picture(), picture);
    a->CopyFace();
    b->PasteFace();
    EXPECT_EQ(b->Picture(), picture);
    EXPECT_EQ(b->Mask(), mask);
}

TEST_F(MemoryCommandBarsTest, OldOfficeHasNoPictureOrMask) {
    vbe_->options().oldOfficeFaces = true;
    auto a = button();
    EXPECT_EQ(errorOf([&] { a->Picture(); }), 438);
    EXPECT_EQ(errorOf([&] { a->Picture(nullptr); }), 438);
    EXPECT_EQ(errorOf([&] { a->Mask(); }), 438);
    a->CopyFace();
    a->PasteFace();
}

TEST_F(MemoryCommandBarsTest, MembersOfOtherKindsRaise438) {
    auto b = button();
    EXPECT_EQ(errorOf([&] { b->Controls(); }), 438);
    EXPECT_EQ(errorOf([&] { b->AddItem(u"x"); }), 438);
    EXPECT_EQ(errorOf([&] { b->Text(); }), 438);
    auto popup = bars_->Item(u"Quillet")->Controls()->Add(host::msoControlPopup);
    EXPECT_EQ(errorOf([&] { popup->Picture(); }), 438);
    EXPECT_EQ(errorOf([&] { popup->Style(1); }), 438);
}

TEST_F(MemoryCommandBarsTest, DropDownList) {
    auto list = bars_->Add(u"Quillet", host::msoBarTop, false, true)->Controls()->Add(host::msoControlDropdown);
    list->AddItem(u"b");
    list->AddItem(u"a", 1);
    list->AddItem(u"c", 3);
    EXPECT_EQ(list->ListCount(), 3);
    EXPECT_EQ(list->List(1), u"a");
    EXPECT_EQ(list->List(3), u"c");
    EXPECT_EQ(list->ListIndex(), 0);
    list->Text(u"b");
    EXPECT_EQ(list->ListIndex(), 2);
    list->ListIndex(0);
    EXPECT_EQ(list->Text(), u"b");
    list->Text(u"typed");
    EXPECT_EQ(list->ListIndex(), 0);
    EXPECT_EQ(list->Text(), u"typed");
    EXPECT_EQ(errorOf([&] { list->List(4); }), 5);
    EXPECT_EQ(errorOf([&] { list->ListIndex(4); }), 5);
    EXPECT_EQ(errorOf([&] { list->AddItem(u"x", 9); }), 5);
    list->DropDownWidth(200);
    EXPECT_EQ(list->DropDownWidth(), 200);
}

TEST_F(MemoryCommandBarsTest, ExecuteFiresOnlyTheSinksOfThatControl) {
    auto a = button();
    auto b = bars_->Item(u"Quillet")->Controls()->Add(host::msoControlButton);
    int aClicks = 0, bClicks = 0;
    auto sinkA = vbe_->Events()->CommandBarEvents(a);
    auto sinkA2 = vbe_->Events()->CommandBarEvents(a);
    auto sinkB = vbe_->Events()->CommandBarEvents(b);
    sinkA->Connect([&](const host::CommandBarControlPtr&, bool&, bool&) { ++aClicks; });
    sinkA2->Connect([&](const host::CommandBarControlPtr&, bool&, bool&) { ++aClicks; });
    sinkB->Connect([&](const host::CommandBarControlPtr&, bool&, bool&) { ++bClicks; });
    a->Execute();
    EXPECT_EQ(aClicks, 2);
    EXPECT_EQ(bClicks, 0);
    sinkA2.reset();  // a released sink fires no more
    a->Execute();
    EXPECT_EQ(aClicks, 3);
}

TEST_F(MemoryCommandBarsTest, DisabledControlCannotExecute) {
    auto b = button();
    b->Enabled(false);
    EXPECT_EQ(errorOf([&] { b->Execute(); }), 5);
}

TEST_F(MemoryCommandBarsTest, EventsNeedAControlOfThisEditor) {
    EXPECT_EQ(errorOf([&] { vbe_->Events()->CommandBarEvents(nullptr); }), 91);
}

TEST_F(MemoryCommandBarsTest, DeletedControlHasNoIndex) {
    auto b = button();
    b->Delete();
    EXPECT_EQ(errorOf([&] { b->Index(); }), 5);
    EXPECT_EQ(errorOf([&] { b->Delete(); }), 5);
    EXPECT_EQ(bars_->Item(u"Quillet")->Controls()->Count(), 0);
}

TEST_F(MemoryCommandBarsTest, ControlsByCaptionIgnoreTheAccessKey) {
    auto b = button();
    b->Caption(u"&Add Procedure");
    auto controls = bars_->Item(u"Quillet")->Controls();
    EXPECT_EQ(controls->Item(u"add procedure")->Caption(), u"&Add Procedure");
    EXPECT_EQ(errorOf([&] { controls->Item(u"Missing"); }), 5);
    EXPECT_EQ(errorOf([&] { controls->Item(2L); }), 5);
}

}  // namespace
}  // namespace quillet::hosts::memory
