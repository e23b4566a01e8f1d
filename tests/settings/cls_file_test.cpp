// clsFile and clsFolder: whole files and sorted trees.

#include "settings/cls_file.h"
#include "settings/cls_folder.h"

#include "settings_fixture.h"

namespace quillet::settings::testing {
namespace {

using ClsFileTest = SettingsTest;
using ClsFolderTest = SettingsTest;

TEST_F(ClsFileTest, NameParts) {
    clsFile file(settings, u"T:\\a\\b.c\\name.part.bas");
    EXPECT_EQ(file.Path(), u"T:\\a\\b.c");
    EXPECT_EQ(file.NameWithExtension(), u"name.part.bas");
    EXPECT_EQ(file.Name(), u"name.part");
    EXPECT_EQ(file.Extension(), u"bas");
    clsFile bare(settings, u"T:\\a\\README");
    EXPECT_EQ(bare.Name(), u"README");
    EXPECT_EQ(bare.Extension(), u"");
}

TEST_F(ClsFileTest, ContentsRoundTripWithoutAddedLineEnd) {
    clsFile file(settings, u"T:\\f.bas");
    file.Contents(u"Sub A()\r\nEnd Sub");
    EXPECT_EQ(file.Error(), 0);
    EXPECT_EQ(readBytes("f.bas"), "Sub A()\r\nEnd Sub");
    EXPECT_EQ(file.Contents(), u"Sub A()\r\nEnd Sub");
    file.Contents(u"x");
    EXPECT_EQ(readBytes("f.bas"), "x");
}

TEST_F(ClsFileTest, MissingFileSetsErrorAndShowsItUnlessSilent) {
    clsFile file(settings, u"T:\\none.bas");
    EXPECT_EQ(file.Contents(), u"");
    EXPECT_EQ(file.Error(), 53);
    EXPECT_EQ(platform.shownBoxes().size(), 1u);
    file.Silent(true);
    file.Contents();
    EXPECT_EQ(platform.shownBoxes().size(), 1u);
    EXPECT_FALSE(file.Delete());
}

TEST_F(ClsFileTest, ReadOnlyFileIsLeftAsItWas) {
    writeBytes("ro.bas", "old");
    std::filesystem::permissions(machine("ro.bas"), std::filesystem::perms::owner_read);
    clsFile file(settings, u"T:\\ro.bas");
    file.Silent(true);
    file.Contents(u"new");
    EXPECT_EQ(file.Error(), 75);
    EXPECT_EQ(readBytes("ro.bas"), "old");
}

TEST_F(ClsFileTest, DeleteRemovesTheFile) {
    writeBytes("d.bas", "x");
    clsFile file(settings, u"T:\\d.bas");
    EXPECT_TRUE(file.Delete());
    EXPECT_FALSE(exists("d.bas"));
}

TEST_F(ClsFolderTest, FilterWithTwoPatternsKeepsBothSortedByName) {
    writeBytes("f/a.lnk", "");
    writeBytes("f/a.bas", "");
    writeBytes("f/b.txt", "");
    clsFolder folder(settings);
    folder.InitFolder(u"T:\\f\\", u"*.bas;*.lnk");
    EXPECT_EQ(folder.FullPath(), u"T:\\f");
    EXPECT_EQ(folder.Name(), u"f");
    ASSERT_EQ(folder.Files.Count(), 2);
    EXPECT_EQ(folder.Files.Item(1)->NameWithExtension(), u"a.bas");
    EXPECT_EQ(folder.Files.Item(2)->NameWithExtension(), u"a.lnk");
}

TEST_F(ClsFolderTest, FileMatchingTwoPatternsIsKeptOnce) {
    writeBytes("f/a.bas", "");
    clsFolder folder(settings);
    folder.InitFolder(u"T:\\f", u"*.bas; a.*");
    EXPECT_EQ(folder.Files.Count(), 1);
}

TEST_F(ClsFolderTest, TreeIsSortedIgnoringCase) {
    writeBytes("t/Zeta.bas", "");
    writeBytes("t/alpha.bas", "");
    writeBytes("t/Beta.bas", "");
    writeBytes("t/sub B/x.bas", "");
    writeBytes("t/Sub a/y.bas", "");
    writeBytes("t/Sub a/deeper/z.bas", "");
    clsFolder folder(settings);
    folder.InitFolder(u"T:\\t", u"");
    ASSERT_EQ(folder.Files.Count(), 3);
    EXPECT_EQ(folder.Files.Item(1)->Name(), u"alpha");
    EXPECT_EQ(folder.Files.Item(2)->Name(), u"Beta");
    EXPECT_EQ(folder.Files.Item(3)->Name(), u"Zeta");
    ASSERT_EQ(folder.Folders.Count(), 2);
    EXPECT_EQ(folder.Folders.Item(1)->Name(), u"Sub a");
    EXPECT_EQ(folder.Folders.Item(2)->Name(), u"sub B");
    EXPECT_EQ(folder.Folders.Item(1)->Folders.Item(1)->Files.Item(1)->FullName(), u"T:\\t\\Sub a\\deeper\\z.bas");
}

TEST_F(ClsFolderTest, MissingFolderStaysEmpty) {
    clsFolder folder(settings);
    folder.InitFolder(u"T:\\nothing\\");
    EXPECT_EQ(folder.FullPath(), u"T:\\nothing");
    EXPECT_EQ(folder.Files.Count(), 0);
    EXPECT_EQ(folder.Folders.Count(), 0);
}

TEST(FilePattern, StarAndQuestionMarkIgnoringCase) {
    EXPECT_TRUE(MatchesFilePattern(u"A.BAS", u"*.bas"));
    EXPECT_TRUE(MatchesFilePattern(u"README", u"*.*"));
    EXPECT_TRUE(MatchesFilePattern(u"ab.cls", u"a?.cls"));
    EXPECT_FALSE(MatchesFilePattern(u"abc.cls", u"a?.cls"));
    EXPECT_FALSE(MatchesFilePattern(u"a.bas.txt", u"*.bas"));
}

}  // namespace
}  // namespace quillet::settings::testing
