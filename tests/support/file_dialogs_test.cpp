// The file dialogs and the folder browser over the scripted platform.

#include <gtest/gtest.h>

#include "platform/scripted_platform.h"
#include "support/com_dlg.h"
#include "support/mod_folder_choose.h"

namespace quillet::support {
namespace {

using platform::ShownBox;

TEST(ComDlg, ParsesTheFilterIntoPairs) {
    auto pairs = ComDlg::ParseFilter(u"Basic Files (*.bas)|*.bas|VB Files|*.bas;*.cls;*.frm|*.txt");
    ASSERT_EQ(pairs.size(), 3u);
    EXPECT_EQ(pairs[0], (std::pair<Str, Str>{u"Basic Files (*.bas)", u"*.bas"}));
    EXPECT_EQ(pairs[1], (std::pair<Str, Str>{u"VB Files", u"*.bas;*.cls;*.frm"}));
    EXPECT_EQ(pairs[2], (std::pair<Str, Str>{u"*.txt", u"*.txt"}));
    EXPECT_TRUE(ComDlg::ParseFilter(u"").empty());
}

TEST(ComDlg, ShowOpenReadsTheChoiceBack) {
    platform::ScriptedPlatform platform;
    platform.queueAnswer(u"C:\\Work\\Lib\\basText.bas");
    ComDlg dlg(platform);
    dlg.DialogTitle = u"Import File";
    dlg.Filter = u"Basic Files (*.bas)|*.bas|All Files (*.*)|*.*";
    dlg.FilterIndex = 2;
    dlg.Directory = u"C:\\Work";
    ASSERT_TRUE(dlg.ShowOpen());
    EXPECT_EQ(dlg.FileName, u"C:\\Work\\Lib\\basText.bas");
    EXPECT_EQ(dlg.FileTitle(), u"basText.bas");
    EXPECT_EQ(dlg.Extension(), u"bas");
    EXPECT_EQ(dlg.Directory, u"C:\\Work\\Lib");
    EXPECT_EQ(dlg.FileNames(), (std::vector<Str>{u"C:\\Work\\Lib\\basText.bas"}));
    EXPECT_EQ(dlg.FilterIndex, 2);

    ASSERT_EQ(platform.fileDialogs().size(), 1u);
    const auto& request = platform.fileDialogs()[0];
    EXPECT_EQ(request.title, u"Import File");
    EXPECT_EQ(request.filters.size(), 2u);
    EXPECT_EQ(request.filterIndex, 2);
    EXPECT_EQ(request.initialFolder, u"C:\\Work");
    // Open with ExistFlags: the path and the file must exist; no change of folder; no check box.
    EXPECT_EQ(request.flags, 0x800 | 0x1000 | 0x8 | 0x4);
    EXPECT_EQ(platform.shownBoxes().back().kind, ShownBox::Kind::OpenFile);
}

TEST(ComDlg, CancelAndAnEmptyQueueLeaveEverythingAsItWas) {
    platform::ScriptedPlatform platform;
    ComDlg dlg(platform);
    dlg.FileName = u"Proposed.bas";
    dlg.Directory = u"C:\\Start";
    EXPECT_FALSE(dlg.ShowOpen());
    platform.queueAnswer(u"cancel");
    EXPECT_FALSE(dlg.ShowSave());
    platform.queueAnswer(u"");
    EXPECT_FALSE(dlg.ShowSave());
    EXPECT_EQ(dlg.FileName, u"Proposed.bas");
    EXPECT_EQ(dlg.Directory, u"C:\\Start");
    EXPECT_TRUE(dlg.FileNames().empty());
    EXPECT_EQ(dlg.FileTitle(), u"");
    EXPECT_EQ(dlg.Extension(), u"");
    EXPECT_EQ(platform.fileDialogs().size(), 3u);
}

TEST(ComDlg, OkTakesTheProposedNameInTheStartFolder) {
    platform::ScriptedPlatform platform;
    platform.queueAnswer(u"ok");
    ComDlg dlg(platform);
    dlg.DialogTitle = u"Export File";
    dlg.FileName = u"basMain.bas";
    dlg.Directory = u"C:\\Export\\";
    ASSERT_TRUE(dlg.ShowSave());
    EXPECT_EQ(dlg.FileName, u"C:\\Export\\basMain.bas");
    // Save with ExistFlags asks before replacing a file.
    EXPECT_EQ(platform.fileDialogs()[0].flags, 0x2 | 0x8 | 0x4);
    EXPECT_EQ(platform.shownBoxes().back().kind, ShownBox::Kind::SaveFile);
    EXPECT_EQ(platform.shownBoxes().back().title, u"Export File");
}

TEST(ComDlg, MultipleChoiceOnlyWhenAllowed) {
    platform::ScriptedPlatform platform;
    platform.queueAnswer(u"C:\\a\\one.bas|C:\\a\\two.cls");
    platform.queueAnswer(u"C:\\a\\one.bas|C:\\a\\two.cls");
    ComDlg dlg(platform);
    dlg.AllowMultiSelect = true;
    ASSERT_TRUE(dlg.ShowOpen());
    EXPECT_EQ(dlg.FileTitles(), (std::vector<Str>{u"one.bas", u"two.cls"}));
    EXPECT_EQ(dlg.FileName, u"C:\\a\\one.bas");
    dlg.AllowMultiSelect = false;
    ASSERT_TRUE(dlg.ShowOpen());
    EXPECT_EQ(dlg.FileNames().size(), 1u);
}

TEST(ComDlg, ReadOnlyCheckBoxAndNoExistFlags) {
    platform::ScriptedPlatform platform;
    platform.queueAnswer(u"C:\\x.txt");
    ComDlg dlg(platform);
    dlg.CheckBoxVisible = true;
    dlg.CheckBoxSelected = true;
    dlg.ExistFlags = false;
    dlg.RestoreCurDir = false;
    ASSERT_TRUE(dlg.ShowOpen());
    EXPECT_EQ(platform.fileDialogs()[0].flags, 0x1);
    EXPECT_TRUE(platform.fileDialogs()[0].checkBoxVisible);
    EXPECT_TRUE(dlg.CheckBoxSelected);
    EXPECT_EQ(dlg.Extension(), u"txt");
}

TEST(ComDlg, AnswersGoInOrderWithTheMessageBoxes) {
    platform::ScriptedPlatform platform;
    platform.queueAnswer(u"no");
    platform.queueAnswer(u"C:\\f.bas");
    EXPECT_EQ(platform.MsgBox(u"Go on?", platform::mb::vbYesNo, u""), platform::mb::vbNo);
    ComDlg dlg(platform);
    ASSERT_TRUE(dlg.ShowOpen());
    EXPECT_EQ(dlg.FileName, u"C:\\f.bas");
    EXPECT_EQ(platform.pendingAnswers(), 0u);
}

TEST(ModFolderChoose, GivesTheFolderOrEmptyForCancel) {
    platform::ScriptedPlatform platform;
    EXPECT_EQ(BrowseForFolder(platform, u"Select Folder", u"C:\\Start"), u"");
    platform.queueAnswer(u"D:\\Projects\\Invoices");
    EXPECT_EQ(BrowseForFolder(platform, u"Select Folder", u"C:\\Start"), u"D:\\Projects\\Invoices");
    platform.queueAnswer(u"ok");
    EXPECT_EQ(BrowseForFolder(platform, u"Select Folder", u"C:\\Start"), u"C:\\Start");
    platform.queueAnswer(u"cancel");
    EXPECT_EQ(BrowseForFolder(platform, u"Select Folder", u"C:\\Start"), u"");
    const auto& shown = platform.shownBoxes();
    ASSERT_EQ(shown.size(), 4u);
    EXPECT_EQ(shown[1].kind, ShownBox::Kind::Folder);
    EXPECT_EQ(shown[1].title, u"Select Folder");
    EXPECT_EQ(shown[1].defaultText, u"C:\\Start");
}

TEST(ModFolderChoose, CutsTheAnswerAtItsFirstNul) {
    platform::ScriptedPlatform platform;
    platform.queueAnswer(Str(u"C:\\Data") + u'\0' + u"garbage");
    EXPECT_EQ(BrowseForFolder(platform, u"", u""), u"C:\\Data");
}

}  // namespace
}  // namespace quillet::support
