// Sorting, the quiet message box, registry values and the clipboard.

#include <gtest/gtest.h>

#include "platform/scripted_platform.h"
#include "support/bas_registry.h"
#include "support/cls_sort.h"
#include "support/m_msg_box.h"
#include "support/mod_clipboard.h"

namespace quillet::support {
namespace {

using platform::mb::vbDefaultButton2;
using platform::mb::vbQuestion;
using platform::mb::vbYesNo;
using platform::mb::vbYesNoCancel;

TEST(ClsSort, TextualThenBinaryAndStable) {
    std::vector<Str> values{u"beta", u"Alpha", u"alpha", u"ALPHA", u"Beta", u"gamma"};
    clsSort::Sort(values);
    EXPECT_EQ(values, (std::vector<Str>{u"ALPHA", u"Alpha", u"alpha", u"Beta", u"beta", u"gamma"}));
}

struct Named {
    Str name;
    int order;
    const Str& Name() const { return name; }
};

TEST(ClsSort, SortByNameKeepsEqualNamesInOrder) {
    basic::Collection<std::shared_ptr<Named>> objects;
    objects.Add(std::make_shared<Named>(Named{u"b", 1}));
    objects.Add(std::make_shared<Named>(Named{u"a", 2}));
    objects.Add(std::make_shared<Named>(Named{u"b", 3}));
    clsSort::SortByName(objects);
    EXPECT_EQ(objects.Item(1)->order, 2);
    EXPECT_EQ(objects.Item(2)->order, 1);
    EXPECT_EQ(objects.Item(3)->order, 3);
}

TEST(ClsSort, CollectionOfValues) {
    basic::Collection<Str> values;
    values.Add(u"b");
    values.Add(u"A");
    clsSort::Sort(values);
    EXPECT_EQ(values.Item(1), u"A");
}

TEST(MMsgBox, QuietModeTakesTheDefaultButtonAndLogs) {
    platform::ScriptedPlatform platform;
    mMsgBox box(platform);
    std::vector<Str> log;
    box.Logger = [&](const Str& line) { log.push_back(line); };
    EXPECT_EQ(box.MsgBox(u"Sure?", vbYesNo + vbQuestion, u"Q", u"frmX.cmdOK_Click"), platform::mb::vbYes);
    EXPECT_EQ(box.MsgBox(u"Save?", vbYesNoCancel + vbDefaultButton2), platform::mb::vbNo);
    EXPECT_EQ(box.MsgBox(u"Done"), platform::mb::vbOK);
    EXPECT_TRUE(platform.shownBoxes().empty());
    EXPECT_EQ(log, (std::vector<Str>{u"Sure? => vbYes, source = frmX.cmdOK_Click", u"Save? => vbNo, source = ",
                                     u"Done => vbOK, source = "}));
}

TEST(MMsgBox, WithoutLoggerTheBoxIsShown) {
    platform::ScriptedPlatform platform;
    platform.queueAnswer(u"no");
    mMsgBox box(platform);
    EXPECT_EQ(box.MsgBox(u"Sure?", vbYesNo, u"Title"), platform::mb::vbNo);
    ASSERT_EQ(platform.shownBoxes().size(), 1u);
    EXPECT_EQ(platform.shownBoxes()[0].title, u"Title");
}

TEST(MMsgBox, AnswerNames) {
    EXPECT_EQ(mMsgBox::AnswerName(2), u"vbCancel");
    EXPECT_EQ(mMsgBox::AnswerName(3), u"vbAbort");
    EXPECT_EQ(mMsgBox::AnswerName(4), u"vbRetry");
    EXPECT_EQ(mMsgBox::AnswerName(5), u"vbIgnore");
}

TEST(BasRegistry, ValueDefaultAndNulCut) {
    platform::ScriptedPlatform platform;
    platform.setRegistryValue(platform::kEditorSettingsKey, u"FontFace", Str(u"Courier New") + u'\0' + u"junk");
    EXPECT_EQ(RegistryValue(platform, HKEY_CURRENT_USER_ROOT, platform::kEditorSettingsKey, u"FontFace"), u"Courier New");
    EXPECT_EQ(RegistryValue(platform, HKEY_CURRENT_USER_ROOT, platform::kEditorSettingsKey, u"TabWidth", u"4"), u"4");
    EXPECT_EQ(RegistryValue(platform, 0x80000002, platform::kEditorSettingsKey, u"FontFace", u"x"), u"x");
}

TEST(ModClipboard, SetsTheText) {
    platform::ScriptedPlatform platform;
    ClipboardSetText(platform, u"MyProc");
    EXPECT_EQ(platform.ClipboardGetText(), Str(u"MyProc"));
}

}  // namespace
}  // namespace quillet::support
