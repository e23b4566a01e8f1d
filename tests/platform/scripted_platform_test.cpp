// The scripted platform: answers in order, defaults when none is left, and the editor's settings.

#include "platform/scripted_platform.h"

#include <gtest/gtest.h>

namespace quillet::platform {
namespace {

TEST(MessageBoxAnswers, DefaultButtonOfEachSet) {
    EXPECT_EQ(defaultAnswer(mb::vbOKOnly), mb::vbOK);
    EXPECT_EQ(defaultAnswer(mb::vbOKCancel + mb::vbQuestion), mb::vbOK);
    EXPECT_EQ(defaultAnswer(mb::vbYesNoCancel + mb::vbExclamation), mb::vbYes);
    EXPECT_EQ(defaultAnswer(mb::vbYesNo + mb::vbDefaultButton2), mb::vbNo);
    EXPECT_EQ(defaultAnswer(mb::vbYesNoCancel + mb::vbDefaultButton3), mb::vbCancel);
    EXPECT_EQ(defaultAnswer(mb::vbAbortRetryIgnore + mb::vbDefaultButton2), mb::vbRetry);
    EXPECT_EQ(defaultAnswer(mb::vbRetryCancel), mb::vbRetry);
    // A default button the set does not have falls back to the first.
    EXPECT_EQ(defaultAnswer(mb::vbOKOnly + mb::vbDefaultButton3), mb::vbOK);
}

TEST(MessageBoxAnswers, WhichAnswersFitWhichButtons) {
    EXPECT_TRUE(answerFits(51, mb::vbYes));
    EXPECT_TRUE(answerFits(51, mb::vbCancel));
    EXPECT_FALSE(answerFits(51, mb::vbOK));
    EXPECT_TRUE(answerFits(33, mb::vbCancel));
    EXPECT_FALSE(answerFits(36, mb::vbCancel));
    EXPECT_FALSE(answerFits(48, mb::vbNo));
}

TEST(ScriptedPlatformBoxes, AnswersAreTakenInOrder) {
    ScriptedPlatform p;
    p.queueAnswer(u"no");
    p.queueAnswer(u"Cancel");
    EXPECT_EQ(p.MsgBox(u"Save?", 36, u"Quillet"), mb::vbNo);
    EXPECT_EQ(p.MsgBox(u"Go on?", 33, u"Quillet"), mb::vbCancel);
    EXPECT_EQ(p.pendingAnswers(), 0u);
    ASSERT_EQ(p.shownBoxes().size(), 2u);
    EXPECT_EQ(p.shownBoxes()[0].prompt, u"Save?");
    EXPECT_EQ(p.shownBoxes()[0].buttons, 36);
    EXPECT_EQ(p.shownBoxes()[0].answer, Str(u"no"));
}

TEST(ScriptedPlatformBoxes, NoAnswerLeftTakesTheDefaultButton) {
    ScriptedPlatform p;
    EXPECT_EQ(p.MsgBox(u"?", 51, u""), mb::vbYes);
    EXPECT_EQ(p.MsgBox(u"?", 36 + mb::vbDefaultButton2, u""), mb::vbNo);
}

TEST(ScriptedPlatformBoxes, AnAnswerTheBoxCannotGiveIsSpentAndTheDefaultTaken) {
    ScriptedPlatform p;
    p.queueAnswer(u"retry");
    p.queueAnswer(u"yes");
    EXPECT_EQ(p.MsgBox(u"?", 33, u""), mb::vbOK);
    EXPECT_EQ(p.MsgBox(u"?", 36, u""), mb::vbYes);
}

TEST(ScriptedPlatformBoxes, InputBoxTakesTextOkOrCancel) {
    ScriptedPlatform p;
    p.queueAnswer(u"3");
    p.queueAnswer(u"ok");
    p.queueAnswer(u"cancel");
    EXPECT_EQ(p.InputBox(u"Number of 'ElseIf'", u"If", u""), Str(u"3"));
    EXPECT_EQ(p.InputBox(u"Name of Module", u"Quillet", u"Module1"), Str(u"Module1"));
    EXPECT_EQ(p.InputBox(u"Name", u"Quillet", u"x"), std::nullopt);
    EXPECT_EQ(p.InputBox(u"Name", u"Quillet", u"x"), std::nullopt);  // none left: Cancel
    ASSERT_EQ(p.shownBoxes().size(), 4u);
    EXPECT_EQ(p.shownBoxes()[1].defaultText, u"Module1");
}

TEST(ScriptedPlatformClipboard, KeepsTextAndPastesItOnControlV) {
    ScriptedPlatform p;
    Str pasted;
    p.pasteSink = [&](const Str& text) { pasted += text; };
    p.SendKeys(u"^v", true);
    EXPECT_TRUE(pasted.empty());  // nothing on the clipboard
    p.ClipboardSetText(u"report");
    EXPECT_EQ(p.ClipboardGetText(), Str(u"report"));
    p.SendKeys(u"^v", true);
    p.SendKeys(u" ", true);
    EXPECT_EQ(pasted, u"report");
    p.ClipboardClear();
    EXPECT_EQ(p.ClipboardGetText(), std::nullopt);
    EXPECT_EQ(p.sentKeys(), (std::vector<Str>{u"^v", u"^v", u" "}));
}

TEST(ScriptedPlatformSettings, RegistryAndSettingsStore) {
    ScriptedPlatform p;
    EXPECT_EQ(p.RegistryValue(kEditorSettingsKey, u"TabWidth"), std::nullopt);
    p.setRegistryValue(kEditorSettingsKey, u"TabWidth", u"2");
    EXPECT_EQ(p.RegistryValue(u"software\\microsoft\\vba\\6.0\\common", u"tabwidth"), Str(u"2"));
    EXPECT_EQ(p.GetSetting(u"Quillet", u"Quillet", u"ToolbarPos", u"1"), u"1");
    p.SaveSetting(u"Quillet", u"Quillet", u"ToolbarPos", u"4");
    EXPECT_EQ(p.GetSetting(u"quillet", u"QUILLET", u"toolbarpos", u"1"), u"4");
}

TEST(ScriptedPlatformFiles, ExistIgnoringCase) {
    ScriptedPlatform p;
    p.addFile(u"C:\\Quillet\\testing.txt");
    EXPECT_TRUE(p.FileExists(u"c:\\quillet\\TESTING.TXT"));
    p.removeFile(u"C:\\QUILLET\\testing.txt");
    EXPECT_FALSE(p.FileExists(u"C:\\Quillet\\testing.txt"));
}

TEST(EditorSettings, TabWidthDefaultsToFour) {
    ScriptedPlatform p;
    EXPECT_EQ(editorTabWidth(p), 4);
    for (const char16_t* bad : {u"", u"abc", u"0", u"-2", u"99999"}) {
        p.setRegistryValue(kEditorSettingsKey, u"TabWidth", bad);
        EXPECT_EQ(editorTabWidth(p), 4);
    }
    p.setRegistryValue(kEditorSettingsKey, u"TabWidth", u"8");
    EXPECT_EQ(editorTabWidth(p), 8);
}

TEST(EditorSettings, FontFaceOnlyWhenItIsCourierNew) {
    ScriptedPlatform p;
    EXPECT_EQ(editorFontFace(p), std::nullopt);
    p.setRegistryValue(kEditorSettingsKey, u"FontFace", u"Consolas");
    EXPECT_EQ(editorFontFace(p), std::nullopt);
    p.setRegistryValue(kEditorSettingsKey, u"FontFace", u"Courier New Baltic");
    EXPECT_EQ(editorFontFace(p), Str(u"Courier New Baltic"));
    EXPECT_EQ(editorFontHeight(p), std::nullopt);
    p.setRegistryValue(kEditorSettingsKey, u"FontHeight", u"10");
    EXPECT_EQ(editorFontHeight(p), 10);
}

}  // namespace
}  // namespace quillet::platform
