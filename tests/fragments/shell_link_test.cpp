// Shell link files: what the writer writes is read back the same, links laid out as the Windows
// shell writes them are read, and damaged files raise a clear error.

#include <gtest/gtest.h>

#include "fragments/shell_link.h"
#include "shell_link_bytes_fixture.h"

namespace quillet::fragments {
namespace {

using namespace testing;

void expectError(const std::string& bytes, const std::string& words) {
    try {
        ParseShellLink(bytes);
        ADD_FAILURE() << "no error for: " << words;
    } catch (const ShellLinkError& error) {
        EXPECT_NE(std::string(error.what()).find(words), std::string::npos) << error.what();
    }
}

TEST(ShellLink, LinkToALocalFileReadsBackItsTargetFolderAndRelativePath) {
    ShellLink link = ShellLinkTo(u"C:\\Users\\ann\\quillet\\Fragments\\Loops\\For Each.bas",
                                 u"C:\\Users\\ann\\quillet\\Fragments\\Favourites");
    ShellLink read = ParseShellLink(WriteShellLink(link));
    EXPECT_EQ(read.TargetPath(), u"C:\\Users\\ann\\quillet\\Fragments\\Loops\\For Each.bas");
    EXPECT_EQ(read.LocalBasePath, read.TargetPath());
    EXPECT_EQ(read.IdListPath, read.TargetPath());
    EXPECT_EQ(read.RelativePath, u"..\\Loops\\For Each.bas");
    EXPECT_EQ(read.WorkingDir, u"C:\\Users\\ann\\quillet\\Fragments\\Loops");
    EXPECT_TRUE(read.Flags & link_flags::IsUnicode);
    EXPECT_TRUE(read.Flags & link_flags::HasLinkInfo);
    EXPECT_TRUE(read.Flags & link_flags::HasLinkTargetIDList);
}

TEST(ShellLink, RelativePathOfATargetInTheLinksOwnFolderStartsWithDot) {
    ShellLink link = ShellLinkTo(u"C:\\F\\a.bas", u"C:\\F");
    EXPECT_EQ(link.RelativePath, u".\\a.bas");
}

TEST(ShellLink, TargetOnAnotherDriveHasNoRelativePath) {
    ShellLink link = ShellLinkTo(u"D:\\F\\a.bas", u"C:\\F");
    EXPECT_TRUE(link.RelativePath.empty());
    EXPECT_EQ(ParseShellLink(WriteShellLink(link)).TargetPath(), u"D:\\F\\a.bas");
}

TEST(ShellLink, NamesWithoutAnsiBytesTravelInUnicodeWithoutAnIdList) {
    const Str target = u"C:\\Fragments\\\u0416\u0443\u0440\u043d\u0430\u043b \u2713.bas";
    ShellLink read = ParseShellLink(WriteShellLink(ShellLinkTo(target, u"C:\\Fragments")));
    EXPECT_EQ(read.TargetPath(), target);
    EXPECT_FALSE(read.Flags & link_flags::HasLinkTargetIDList);
    EXPECT_EQ(read.RelativePath, u".\\\u0416\u0443\u0440\u043d\u0430\u043b \u2713.bas");
}

TEST(ShellLink, AnsiAccentsKeepTheirIdList) {
    const Str target = u"C:\\Fragments\\Caf\u00e9\\R\u00e9sum\u00e9.bas";
    ShellLink read = ParseShellLink(WriteShellLink(ShellLinkTo(target, u"C:\\Other")));
    EXPECT_EQ(read.IdListPath, target);
    EXPECT_EQ(read.LocalBasePath, target);
}

TEST(ShellLink, NetworkTargetReadsBackThroughTheShare) {
    ShellLink link = ShellLinkTo(u"\\\\server\\code\\Fragments\\x.bas", u"\\\\server\\code\\Fragments\\Mine");
    ShellLink read = ParseShellLink(WriteShellLink(link));
    EXPECT_EQ(read.NetworkPath, u"\\\\server\\code\\Fragments\\x.bas");
    EXPECT_TRUE(read.LocalBasePath.empty());
    EXPECT_EQ(read.TargetPath(), u"\\\\server\\code\\Fragments\\x.bas");
    EXPECT_EQ(read.RelativePath, u"..\\x.bas");
}

TEST(ShellLink, NameArgumentsAndIconAreKept) {
    ShellLink link = ShellLinkTo(u"C:\\F\\a.bas", u"C:\\F");
    link.Name = u"A fragment";
    link.Arguments = u"/x";
    link.IconLocation = u"C:\\icons\\a.ico";
    ShellLink read = ParseShellLink(WriteShellLink(link));
    EXPECT_EQ(read.Name, u"A fragment");
    EXPECT_EQ(read.Arguments, u"/x");
    EXPECT_EQ(read.IconLocation, u"C:\\icons\\a.ico");
}

TEST(ShellLink, WritingWithoutATargetIsRefused) { EXPECT_THROW(WriteShellLink(ShellLink{}), ShellLinkError); }

TEST(ShellLink, ReadsWindowsLinkInfoWithAnsiLocalBasePath) {
    std::string bytes = linkHeader(link_flags::HasLinkInfo | link_flags::HasWorkingDir | link_flags::IsUnicode) +
                        windowsLinkInfo("C:\\Users\\Ann\\Fragments\\Caf\xe9.bas") + unicodeString(u"C:\\Users\\Ann");
    ShellLink read = ParseShellLink(bytes);
    EXPECT_EQ(read.TargetPath(), u"C:\\Users\\Ann\\Fragments\\Caf\u00e9.bas");
    EXPECT_EQ(read.WorkingDir, u"C:\\Users\\Ann");
}

TEST(ShellLink, ReadsTheLongNamesOfAWindowsIdList) {
    std::string items = myComputerItem() + volumeItem("C:\\") + fileEntryItem(true, "FRAGME~1", u"Fragments") +
                        fileEntryItem(false, "FOREAC~1.BAS", u"For Each Item.bas");
    std::string bytes = linkHeader(link_flags::HasLinkTargetIDList) + idList(items);
    ShellLink read = ParseShellLink(bytes);
    EXPECT_EQ(read.IdListPath, u"C:\\Fragments\\For Each Item.bas");
    EXPECT_EQ(read.TargetPath(), read.IdListPath);
}

TEST(ShellLink, LinkInfoWinsOverTheIdList) {
    std::string items = myComputerItem() + volumeItem("C:\\") + fileEntryItem(false, "OLD~1.BAS", u"old.bas");
    std::string bytes = linkHeader(link_flags::HasLinkTargetIDList | link_flags::HasLinkInfo) + idList(items) +
                        windowsLinkInfo("C:\\new.bas");
    EXPECT_EQ(ParseShellLink(bytes).TargetPath(), u"C:\\new.bas");
}

TEST(ShellLink, ReadsALinkThatHoldsOnlyARelativePath) {
    std::string bytes = linkHeader(link_flags::HasRelativePath | link_flags::IsUnicode) + unicodeString(u"..\\A\\x.bas");
    ShellLink read = ParseShellLink(bytes);
    EXPECT_TRUE(read.TargetPath().empty());
    EXPECT_EQ(read.RelativePath, u"..\\A\\x.bas");
}

TEST(ShellLink, ReadsANetworkLocationInTheIdList) {
    std::string share;
    le16(share, 5 + 14);
    share += std::string("\x41\0\x80", 3) + std::string("\\\\server\\code") + '\0';  // type, unknown, flags, name
    std::string items = share + fileEntryItem(false, "X~1.BAS", u"x.bas");
    std::string bytes = linkHeader(link_flags::HasLinkTargetIDList) + idList(items);
    EXPECT_EQ(ParseShellLink(bytes).IdListPath, u"\\\\server\\code\\x.bas");
}

TEST(ShellLink, AnIdListItemLongerThanItsListIsReported) {
    std::string item = volumeItem("C:\\");
    item[0] = 60;
    expectError(linkHeader(link_flags::HasLinkTargetIDList) + idList(item), "ID list item runs past");
}

TEST(ShellLink, AnIdListOfAnUnknownItemKindGivesNoPath) {
    std::string item;
    le16(item, 6);
    item += std::string("\x71\0\0\0", 4);
    std::string bytes = linkHeader(link_flags::HasLinkTargetIDList) + idList(item);
    EXPECT_TRUE(ParseShellLink(bytes).IdListPath.empty());
}

TEST(ShellLink, AFileThatIsNotALinkSaysSo) {
    expectError("", "shorter than a shortcut's header");
    expectError(std::string(100, 'x'), "header has the wrong size");
    std::string wrongClass = linkHeader(0);
    wrongClass[5] = 0x77;
    expectError(wrongClass, "class id");
}

TEST(ShellLink, ALinkInfoOffsetPastItsBlockIsReported) {
    std::string info = windowsLinkInfo("C:\\a.bas");
    info[16] = 0x70;  // local base path offset
    expectError(linkHeader(link_flags::HasLinkInfo) + info, "local base path");
}

TEST(ShellLink, AStringLongerThanTheFileIsReported) {
    std::string bytes = linkHeader(link_flags::HasName | link_flags::IsUnicode) + unicodeString(u"abc");
    bytes[0x4C] = 50;
    expectError(bytes, "runs past the end");
}

TEST(ShellLink, EveryCutOfAValidLinkIsReadOrReportedNeverMore) {
    ShellLink link = ShellLinkTo(u"C:\\Users\\ann\\Fragments\\Loops\\x.bas", u"C:\\Users\\ann\\Fragments");
    link.Name = u"n";
    std::string whole = WriteShellLink(link);
    size_t errors = 0;
    for (size_t size = 0; size < whole.size(); ++size) {
        try {
            ParseShellLink(std::string_view(whole).substr(0, size));
        } catch (const ShellLinkError&) {
            ++errors;
        }
    }
    // Only the last four bytes (the empty extra data) may go missing without an error.
    EXPECT_EQ(errors, whole.size() - 4);
}

}  // namespace
}  // namespace quillet::fragments
