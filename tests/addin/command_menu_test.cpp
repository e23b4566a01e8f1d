// AddMenuCommand: caption, the two ways a face gets on a control, copied faces, style, tag
// and tool tip.

#include "addin/menu_commands.h"

#include "command_fixture.h"

namespace quillet::testing {
namespace {

using addin::AddMenuCommand;

class AddMenuCommandTest : public CommandBarFixture {
protected:
    AddMenuCommandTest() { bar = vbe->CommandBars()->Add(u"Quillet", host::msoBarTop, false, true); }

    memory::WriteCounter& writes(const host::CommandBarControlPtr& control) {
        return std::dynamic_pointer_cast<memory::MemoryCommandBarControl>(control)->writeCounter();
    }
    host::CommandBarControlPtr popupOnBar() {
        return AddMenuCommand(*ctx, bar, 122, host::msoControlPopup, true);
    }
};

TEST_F(AddMenuCommandTest, PictureAndMaskWhereOfficeHasThem) {
    auto control = AddMenuCommand(*ctx, bar, 103, host::msoControlButton, false, 103);
    EXPECT_EQ(control->Caption(), u"&Add Variable...");
    EXPECT_EQ(faceOf(*control), 103);
    auto mask = std::dynamic_pointer_cast<platform::ScriptedPicture>(control->Mask());
    ASSERT_TRUE(mask);
    EXPECT_TRUE(mask->isMask());
    EXPECT_EQ(writes(control).writes("Face"), 0);  // no PasteFace
    EXPECT_EQ(platform->clipboardFace(), 0);      // the clipboard was not touched
    EXPECT_EQ(control->Style(), host::msoButtonIcon);
}

TEST_F(AddMenuCommandTest, OldOfficeGetsTheFaceThroughTheClipboardWithoutMask) {
    vbe->options().oldOfficeFaces = true;
    auto control = AddMenuCommand(*ctx, bar, 101, host::msoControlButton, false, 101);
    auto memoryControl = std::dynamic_pointer_cast<memory::MemoryCommandBarControl>(control);
    EXPECT_EQ(memoryControl->writeCounter().writes("Face"), 1);
    EXPECT_EQ(platform->clipboardFace(), 101);
    vbe->options().oldOfficeFaces = false;  // to look at what was pasted
    EXPECT_EQ(faceOf(*control), 101);
    EXPECT_FALSE(control->Mask());
    EXPECT_EQ(control->Caption(), u"Add P&rocedure...");
    EXPECT_TRUE(reports.empty());
}

TEST_F(AddMenuCommandTest, AFaceThatIsNotThereLeavesTheControlWithoutOne) {
    auto control = AddMenuCommand(*ctx, bar, 139, host::msoControlButton, false, 139);
    ASSERT_TRUE(control);
    EXPECT_EQ(faceOf(*control), 0);
    EXPECT_EQ(control->Caption(), u"&With...");
    EXPECT_TRUE(reports.empty());
}

TEST_F(AddMenuCommandTest, CopiedFaceComesFromTheEditorsControl) {
    auto cut = vbe->CommandBars()->FindControl(0, memory::kCutControlId);
    cut->Picture(platform->FacePicture(111, false));
    auto control = AddMenuCommand(*ctx, bar, 139, host::msoControlButton, false, 0, nullptr, {}, true,
                                  memory::kCutControlId);
    EXPECT_EQ(faceOf(*control), 111);
    EXPECT_EQ(control->Style(), host::msoButtonIconAndCaption);
}

TEST_F(AddMenuCommandTest, CopiedFaceOnTheBarWithoutCaptionKeepsTheStyle) {
    auto control = AddMenuCommand(*ctx, bar, 139, host::msoControlButton, false, 0, nullptr, {}, false,
                                  memory::kCutControlId);
    EXPECT_EQ(control->Style(), host::msoButtonAutomatic);
}

TEST_F(AddMenuCommandTest, CopyFromAControlThatIsNotThereIsReportedAndTheRestDone) {
    auto control = AddMenuCommand(*ctx, bar, 139, host::msoControlButton, true, 0, nullptr, {}, false, 4242);
    ASSERT_TRUE(control);
    EXPECT_EQ(control->Caption(), u"&With...");
    EXPECT_TRUE(control->BeginGroup());
    EXPECT_EQ(control->Tag(), u"&With...");
    EXPECT_EQ(reports.size(), 1u);
}

TEST_F(AddMenuCommandTest, WithCaptionOnTheBarShowsIconAndCaption) {
    auto control = AddMenuCommand(*ctx, bar, 104, host::msoControlButton, false, 104, nullptr, {}, true);
    EXPECT_EQ(control->Style(), host::msoButtonIconAndCaption);
}

TEST_F(AddMenuCommandTest, FaceUnderAPopupShowsIconAndCaption) {
    auto popup = popupOnBar();
    auto control = AddMenuCommand(*ctx, bar, 104, host::msoControlButton, false, 104, popup);
    EXPECT_EQ(control->Style(), host::msoButtonIconAndCaption);
    EXPECT_EQ(popup->Controls()->Count(), 1);
    EXPECT_EQ(bar->Controls()->Count(), 1);
}

TEST_F(AddMenuCommandTest, NoFaceLeavesTheStyleAlone) {
    auto control = AddMenuCommand(*ctx, bar, 139);
    EXPECT_EQ(control->Style(), host::msoButtonAutomatic);
    EXPECT_EQ(writes(control).writes("Style"), 0);
}

TEST_F(AddMenuCommandTest, TagIsTheCaptionOnTheBarAndTheParentsTagUnderAPopup) {
    auto popup = popupOnBar();
    auto variable = AddMenuCommand(*ctx, bar, 123, host::msoControlPopup, false, 0, popup);
    auto text = AddMenuCommand(*ctx, bar, 127, host::msoControlButton, false, 0, variable);
    EXPECT_EQ(popup->Tag(), u"&Quillet");
    EXPECT_EQ(variable->Tag(), u"&Quillet &Variable");
    EXPECT_EQ(text->Tag(), u"&Quillet &Variable &String...");
}

TEST_F(AddMenuCommandTest, NumericTooltipIsAStringResource) {
    auto control = AddMenuCommand(*ctx, bar, 111, host::msoControlButton, false, 0, nullptr, u"116");
    EXPECT_EQ(control->TooltipText(), u"&About...");
}

TEST_F(AddMenuCommandTest, TextTooltipIsKeptAsItIs) {
    auto control = AddMenuCommand(*ctx, bar, 119, host::msoControlButton, false, 0, nullptr, u"/support.htm");
    EXPECT_EQ(control->TooltipText(), u"/support.htm");
}

TEST_F(AddMenuCommandTest, NoTooltipWritesNone) {
    auto control = AddMenuCommand(*ctx, bar, 119);
    EXPECT_EQ(writes(control).writes("TooltipText"), 0);
}

TEST_F(AddMenuCommandTest, AControlThatCannotBeAddedRaises) {
    EXPECT_THROW(AddMenuCommand(*ctx, bar, 119, 99), basic::VbError);
    EXPECT_EQ(bar->Controls()->Count(), 0);
}

}  // namespace
}  // namespace quillet::testing
