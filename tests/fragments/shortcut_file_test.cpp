// Shortcut files on disk: reading a target, relative links, and the repair of links whose library
// moved.

#include <gtest/gtest.h>

#include "../settings/settings_fixture.h"
#include "fragments/shortcut_file.h"
#include "shell_link_bytes_fixture.h"

namespace quillet::fragments {
namespace {

using settings::testing::SettingsTest;

class ShortcutFile : public SettingsTest {
protected:
    const Str fragments = u"T:\\lib\\Fragments";
};

TEST_F(ShortcutFile, SavedShortcutIsReadBack) {
    writeBytes("lib/Fragments/A/x.bas", "x");
    std::filesystem::create_directories(machine("lib/Fragments/B"));
    ASSERT_EQ(SaveShortcut(settings.Files, fragments + u"\\B\\x.lnk", fragments + u"\\A\\x.bas"), 0);
    ShortcutTarget read = ReadShortcut(settings.Files, fragments + u"\\B\\x.lnk");
    EXPECT_TRUE(read.Ok);
    EXPECT_EQ(read.Target, fragments + u"\\A\\x.bas");
    EXPECT_TRUE(read.Error.empty());
}

TEST_F(ShortcutFile, SavingIntoAMissingFolderGivesItsErrorNumber) {
    EXPECT_NE(SaveShortcut(settings.Files, u"T:\\nowhere\\x.lnk", u"T:\\a.bas"), 0);
}

TEST_F(ShortcutFile, ALinkWithOnlyARelativePathIsTakenFromItsOwnFolder) {
    using namespace testing;
    writeBytes("lib/Fragments/B/x.lnk",
               linkHeader(link_flags::HasRelativePath | link_flags::IsUnicode) + unicodeString(u"..\\A\\.\\x.bas"));
    ShortcutTarget read = ReadShortcut(settings.Files, fragments + u"\\B\\x.lnk");
    EXPECT_TRUE(read.Ok);
    EXPECT_EQ(read.Target, fragments + u"\\A\\x.bas");
}

TEST_F(ShortcutFile, AMissingOrDamagedLinkSaysWhy) {
    ShortcutTarget missing = ReadShortcut(settings.Files, fragments + u"\\none.lnk");
    EXPECT_FALSE(missing.Ok);
    EXPECT_NE(missing.Error.find(u"cannot be read"), Str::npos);
    writeBytes("lib/Fragments/bad.lnk", "not a link at all, but long enough to hold a header of seventy-six bytes..");
    ShortcutTarget bad = ReadShortcut(settings.Files, fragments + u"\\bad.lnk");
    EXPECT_FALSE(bad.Ok);
    EXPECT_NE(bad.Error.find(u"not a shortcut"), Str::npos);
    writeBytes("lib/Fragments/huge.lnk", std::string((1 << 20) + 1, '\0'));
    EXPECT_EQ(ReadShortcut(settings.Files, fragments + u"\\huge.lnk").Error, u"The file is too large to be a shortcut.");
    using namespace testing;
    writeBytes("lib/Fragments/empty.lnk", linkHeader(0));
    EXPECT_EQ(ReadShortcut(settings.Files, fragments + u"\\empty.lnk").Error, u"The shortcut names no target.");
}

TEST_F(ShortcutFile, ALibraryMovedToAnotherDiskHasItsShortcutRepaired) {
    writeBytes("lib/Fragments/Loops/For Each.bas", "For Each");
    std::filesystem::create_directories(machine("lib/Fragments/Mine"));
    const Str link = fragments + u"\\Mine\\For Each.lnk";
    ASSERT_EQ(SaveShortcut(settings.Files, link, u"D:\\Users\\old\\quillet\\Fragments\\Loops\\For Each.bas"), 0);
    ShortcutTarget read = ReadAndRepairShortcut(settings.Files, link, fragments);
    EXPECT_TRUE(read.Ok);
    EXPECT_TRUE(read.Repaired);
    EXPECT_EQ(read.Target, fragments + u"\\Loops\\For Each.bas");
    // Saved: the next reading needs no repair.
    ShortcutTarget again = ReadAndRepairShortcut(settings.Files, link, fragments);
    EXPECT_FALSE(again.Repaired);
    EXPECT_EQ(again.Target, fragments + u"\\Loops\\For Each.bas");
}

TEST_F(ShortcutFile, AReadingThatMustNotWriteFindsTheMovedTargetAndLeavesTheLink) {
    writeBytes("lib/Fragments/Loops/For Each.bas", "For Each");
    std::filesystem::create_directories(machine("lib/Fragments/Mine"));
    const Str link = fragments + u"\\Mine\\For Each.lnk";
    ASSERT_EQ(SaveShortcut(settings.Files, link, u"D:\\Users\\old\\quillet\\Fragments\\Loops\\For Each.bas"), 0);
    std::string before;
    ASSERT_EQ(settings.Files.ReadAll(link, before), 0);
    ShortcutTarget read = ReadAndRepairShortcut(settings.Files, link, fragments, false);
    EXPECT_TRUE(read.Ok);
    EXPECT_TRUE(read.Moved);
    EXPECT_FALSE(read.Repaired);
    EXPECT_EQ(read.Target, fragments + u"\\Loops\\For Each.bas");
    std::string after;
    ASSERT_EQ(settings.Files.ReadAll(link, after), 0);
    EXPECT_EQ(after, before);
}

TEST_F(ShortcutFile, RepairKeepsTheLinksNameAndArguments) {
    writeBytes("lib/Fragments/a.bas", "a");
    ShellLink old = ShellLinkTo(u"C:\\x\\Fragments\\a.bas", u"C:\\x\\Fragments");
    old.Name = u"Kept";
    old.Arguments = u"/k";
    writeBytes("lib/Fragments/a.lnk", WriteShellLink(old));
    ASSERT_TRUE(ReadAndRepairShortcut(settings.Files, fragments + u"\\a.lnk", fragments).Repaired);
    ShellLink read = ParseShellLink(readBytes("lib/Fragments/a.lnk"));
    EXPECT_EQ(read.TargetPath(), fragments + u"\\a.bas");
    EXPECT_EQ(read.Name, u"Kept");
    EXPECT_EQ(read.Arguments, u"/k");
}

TEST_F(ShortcutFile, NoRepairWhenTheMovedFileIsNotInTheLibrary) {
    writeBytes("lib/Fragments/l.lnk", WriteShellLink(ShellLinkTo(u"C:\\x\\Fragments\\gone.bas", u"C:\\x\\Fragments")));
    ShortcutTarget read = ReadAndRepairShortcut(settings.Files, fragments + u"\\l.lnk", fragments);
    EXPECT_TRUE(read.Ok);
    EXPECT_FALSE(read.Repaired);
    EXPECT_EQ(read.Target, u"C:\\x\\Fragments\\gone.bas");
}

TEST_F(ShortcutFile, MovedTargetCandidate) {
    EXPECT_EQ(MovedTargetCandidate(u"C:\\old\\FRAGMENTS\\A\\x.bas", u"T:\\lib\\Fragments"), u"T:\\lib\\Fragments\\A\\x.bas");
    // Behind the last "\Fragments\".
    EXPECT_EQ(MovedTargetCandidate(u"C:\\Fragments\\q\\Fragments\\x.bas", u"T:\\F"), u"T:\\F\\x.bas");
    // Inside the library already, ignoring case.
    EXPECT_EQ(MovedTargetCandidate(u"t:\\LIB\\fragments\\x.bas", u"T:\\lib\\Fragments"), u"");
    // A neighbour whose name only begins like the library's is outside it.
    EXPECT_EQ(MovedTargetCandidate(u"T:\\lib\\Fragments2\\Fragments\\x.bas", u"T:\\lib\\Fragments"),
              u"T:\\lib\\Fragments\\x.bas");
    EXPECT_EQ(MovedTargetCandidate(u"C:\\elsewhere\\x.bas", u"T:\\lib\\Fragments"), u"");
}

TEST(CombinePath, ResolvesDotsAndKeepsServers) {
    EXPECT_EQ(CombinePath(u"C:\\a\\b", u"..\\c\\.\\d.bas"), u"C:\\a\\c\\d.bas");
    EXPECT_EQ(CombinePath(u"C:\\a", u"..\\..\\..\\d.bas"), u"C:\\d.bas");
    EXPECT_EQ(CombinePath(u"\\\\s\\share\\a", u"..\\x.bas"), u"\\\\s\\share\\x.bas");
    EXPECT_EQ(CombinePath(u"C:\\a", u"D:\\x.bas"), u"D:\\x.bas");
}

}  // namespace
}  // namespace quillet::fragments
