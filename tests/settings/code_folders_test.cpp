// The code folders: root folder sources, symbolic names, path joining and the folder tree.

#include "settings/code_folders.h"

#include "settings/catalogue.h"
#include "settings/ini_vars.h"
#include "settings_fixture.h"

namespace quillet::settings::testing {
namespace {

class CodeFoldersTest : public SettingsTest {
protected:
    CodeFoldersTest() { SetDefaults(settings); }
};

TEST_F(CodeFoldersTest, RootFolderComesFromTheSettingsOptionFirst) {
    EXPECT_EQ(RootFolder(settings), u"T:\\root");
}

TEST_F(CodeFoldersTest, RootFolderFromQuilletHomeIsMadeWhenMissing) {
    settings.SettingsFolder.reset();
    std::string home = (dir / "home" / "q").string();
    settings.Environment = [home](const std::string& name) -> std::optional<std::string> {
        if (name == "QUILLET_HOME") return home;
        return std::nullopt;
    };
    EXPECT_EQ(RootFolder(settings), u"T:\\home\\q");
    EXPECT_TRUE(std::filesystem::is_directory(machine("home/q")));
}

#ifndef _WIN32
TEST_F(CodeFoldersTest, RootFolderFallsBackToTheUsersConfigFolder) {
    settings.SettingsFolder.reset();
    std::string home = (dir / "user").string();
    settings.Environment = [home](const std::string& name) -> std::optional<std::string> {
        if (name == "HOME") return home;
        return std::nullopt;
    };
    EXPECT_EQ(RootFolder(settings), u"T:\\user\\.config\\quillet");
}
#endif

TEST_F(CodeFoldersTest, RootFolderIsKeptOnceKnown) {
    Str first = RootFolder(settings);
    settings.SettingsFolder = (dir / "other").string();
    EXPECT_EQ(RootFolder(settings), first);
}

TEST_F(CodeFoldersTest, MakePathJoinsWithExactlyOneSeparator) {
    EXPECT_EQ(MakePath({u"C:\\a\\\\", u"\\\\b\\", u"c.txt"}), u"C:\\a\\b\\c.txt");
    EXPECT_EQ(MakePath({u"C:\\a", u"b"}), u"C:\\a\\b");
    EXPECT_EQ(MakePath({u"", u"C:\\a", u""}), u"C:\\a");
    EXPECT_EQ(MakePath({u"\\\\server\\share", u"\\x\\"}), u"\\\\server\\share\\x\\");
}

TEST_F(CodeFoldersTest, AddBackslashOnlyWhereMissing) {
    EXPECT_EQ(AddBackslash(u""), u"");
    EXPECT_EQ(AddBackslash(u"C:\\a"), u"C:\\a\\");
    EXPECT_EQ(AddBackslash(u"C:\\a\\"), u"C:\\a\\");
}

TEST_F(CodeFoldersTest, DefaultFoldersLieBelowTheRoot) {
    EXPECT_EQ(CodeFolder(settings), u"T:\\root\\quillet\\");
    EXPECT_EQ(LibraryFolder(settings), u"T:\\root\\quillet\\Library\\");
    EXPECT_EQ(FragmentsFolder(settings), u"T:\\root\\quillet\\Fragments");
    EXPECT_EQ(ClassesFolder(settings), u"T:\\root\\quillet\\Classes");
    EXPECT_EQ(TemplatesFolder(settings), u"T:\\root\\quillet\\Templates");
    EXPECT_EQ(ErrorHandlersFolder(settings), u"T:\\root\\quillet\\Fragments\\ErrorHandlers");
}

TEST_F(CodeFoldersTest, FragmentsNameExpandsWithOneSeparator) {
    EXPECT_EQ(ExpandFolderNames(settings, u"<fragments>\\x.bas"), u"T:\\root\\quillet\\Fragments\\x.bas");
    EXPECT_EQ(ExpandFolderNames(settings, u"<fragments>x.bas"), u"T:\\root\\quillet\\Fragments\\x.bas");
}

TEST_F(CodeFoldersTest, BaseFolderWithADriveStandsAsItIs) {
    settings.IniItemValue[iiBaseFolder] = Str(u"C:\\my\\");
    EXPECT_EQ(CodeFolder(settings), u"C:\\my\\");
    EXPECT_EQ(ClassesFolder(settings), u"C:\\my\\Classes");
    settings.IniItemValue[iiBaseFolder] = Str(u"\\quillet\\");
    EXPECT_EQ(CodeFolder(settings), u"T:\\root\\quillet\\");
}

TEST_F(CodeFoldersTest, ServerPathCountsAsAbsolute) {
    EXPECT_TRUE(IsAbsolutePath(u"\\\\s\\share\\x"));
    EXPECT_EQ(ResolvePath(settings, u"\\\\s\\share\\x"), u"\\\\s\\share\\x");
    settings.IniItemValue[iiLibraryFolder] = Str(u"\\\\s\\share\\lib");
    EXPECT_EQ(LibraryFolder(settings), u"\\\\s\\share\\lib");
    EXPECT_FALSE(IsAbsolutePath(u"\\quillet\\"));
}

TEST_F(CodeFoldersTest, SecondRootNameStaysAsText) {
    EXPECT_EQ(ExpandFolderNames(settings, u"<root>\\a\\<root>\\b"), u"T:\\root\\a\\<root>\\b");
}

TEST_F(CodeFoldersTest, ResolvePathPutsRelativePathsBelowTheRoot) {
    EXPECT_EQ(ResolvePath(settings, u"\\quillet\\ErrorHandlers\\basErrorHandle.bas"),
              u"T:\\root\\quillet\\ErrorHandlers\\basErrorHandle.bas");
    EXPECT_EQ(ResolvePath(settings, u"t:\\ROOT\\x.ini"), u"t:\\ROOT\\x.ini");
    EXPECT_EQ(ResolvePath(settings, u"D:\\x.ini"), u"D:\\x.ini");
    EXPECT_EQ(ResolvePath(settings, u"x.ini", u"E:\\base"), u"E:\\base\\x.ini");
    EXPECT_EQ(ResolvePath(settings, u"<classes>\\c.cls"), u"T:\\root\\quillet\\Classes\\c.cls");
}

TEST_F(CodeFoldersTest, FileSettingsResolve) {
    EXPECT_EQ(ErrorHandleFile(settings), u"T:\\root\\quillet\\ErrorHandlers\\basErrorHandle.bas");
    EXPECT_EQ(PrefixStandardsFile(settings), u"T:\\root\\qlttp.ini");
    EXPECT_EQ(ModuleHeaderFile(settings), u"T:\\root\\quillet\\Fragments\\Headers And Comments\\ModuleHeader.bas");
    EXPECT_EQ(ProcedureHeaderFile(settings), u"T:\\root\\quillet\\Fragments\\Headers And Comments\\ProcedureHeader.bas");
    EXPECT_EQ(CollectionClassTemplate(settings), u"T:\\root\\quillet\\Templates\\CollectionClass\\CollectionClass.cls");
    settings.IniItemValue[iiModuleHeaderFile] = Str(u"D:\\h.bas");
    EXPECT_EQ(ModuleHeaderFile(settings), u"D:\\h.bas");
}

TEST_F(CodeFoldersTest, MakeCodeFoldersMakesTheTree) {
    EXPECT_TRUE(MakeCodeFolders(settings));
    for (const char* folder : {"root/quillet", "root/quillet/Library", "root/quillet/Fragments", "root/quillet/Classes",
                               "root/quillet/Templates", "root/quillet/Fragments/ErrorHandlers"})
        EXPECT_TRUE(std::filesystem::is_directory(machine(folder))) << folder;
}

TEST_F(CodeFoldersTest, MakeCodeFoldersLeavesAFolderWithAMissingParent) {
    settings.IniItemValue[iiLibraryFolder] = Str(u"\\missing\\lib\\");
    EXPECT_TRUE(MakeCodeFolders(settings));
    EXPECT_FALSE(exists("root/missing"));
    EXPECT_TRUE(std::filesystem::is_directory(machine("root/quillet/Classes")));
}

}  // namespace
}  // namespace quillet::settings::testing
