#include "typelib/cls_scan_library_folder.h"

#include "settings/catalogue.h"
#include "../settings/settings_fixture.h"

namespace quillet::typelib {
namespace {

class ScanLibraryFolderTest : public settings::testing::SettingsTest {
protected:
    void scan(const Str& folder = u"T:\\lib") {
        clsScanLibraryFolder scanner(settings);
        scanner.InitOn(folder, procedures, groups);
        modules = scanner.Modules().Count();
    }
    source::C4_ProcDefPtr proc(const Str& module, const Str& name) {
        auto group = procedures.Group(module + u".Library");
        return group && group->Items.Exists(name) ? group->Items.Item(name) : nullptr;
    }

    LibraryProcedures procedures;
    basic::Collection<clsGroupPtr> groups;
    long modules = 0;
};

TEST_F(ScanLibraryFolderTest, PublicSubsAndFunctionsWithTheirCode) {
    writeBytes("lib/basText.bas",
               "Attribute VB_Name = \"basText\"\r\n"
               "Option Explicit\r\n"
               "Public Function Twice(ByVal n As Long) As Long\r\n"
               "    Twice = n * 2\r\n"
               "End Function\r\n"
               "Private Sub Hidden()\r\n"
               "End Sub\r\n"
               "Sub Hello(Optional who As String = \"you\")\r\n"
               "    MsgBox \"Hello \" & who\r\n"
               "End Sub\r\n"
               "Public Property Get P() As Long\r\n"
               "End Property\r\n"
               "Static Sub S()\r\n"
               "End Sub\r\n"
               "Friend Function Fr()\r\n"
               "End Function\r\n");
    scan();
    EXPECT_EQ(modules, 1);
    ASSERT_TRUE(groups.Exists(u"Library.basText"));
    EXPECT_EQ(groups.Item(u"Library.basText")->Project, u"Library");
    auto group = procedures.Group(u"basText.Library");
    ASSERT_TRUE(group);
    ASSERT_EQ(group->Count(), 2);
    auto twice = proc(u"basText", u"Twice");
    ASSERT_TRUE(twice);
    EXPECT_EQ(twice->ProcCode, u"Public Function Twice(ByVal n As Long) As Long\r\n    Twice = n * 2\r\nEnd Function");
    EXPECT_EQ(twice->ProcReturnType, u"Long");
    EXPECT_TRUE(twice->IsLibraryProcedure);
    EXPECT_EQ(twice->Project, u"Library");
    EXPECT_EQ(twice->GroupName, u"basText");
    EXPECT_EQ(proc(u"basText", u"Hello")->ProcArguments->ShortStringOfArguments(), u"[who]");
}

TEST_F(ScanLibraryFolderTest, AFileWithoutVbNameTakesTheFilesName) {
    writeBytes("lib/Helpers.bas", "Sub A()\r\nEnd Sub\r\n");
    scan();
    EXPECT_TRUE(groups.Exists(u"Library.Helpers"));
    EXPECT_TRUE(proc(u"Helpers", u"A"));
}

TEST_F(ScanLibraryFolderTest, ACommentOrStringHoldingEndSubDoesNotCloseAProcedure) {
    writeBytes("lib/basC.bas",
               "Attribute VB_Name = \"basC\"\r\n"
               "Sub A()\r\n"
               "    ' End Sub is said here\r\n"
               "    Debug.Print \"End Sub\"\r\n"
               "Rem End Sub\r\n"
               "    x = 1 ' End Sub\r\n"
               "End Sub\r\n"
               "Sub B()\r\n"
               "End Sub\r\n");
    scan();
    auto a = proc(u"basC", u"A");
    ASSERT_TRUE(a);
    EXPECT_EQ(a->ProcCountLines, 6);
    EXPECT_TRUE(proc(u"basC", u"B"));
}

TEST_F(ScanLibraryFolderTest, AProcedureLackingAnEndTakesTheRestOfTheFile) {
    writeBytes("lib/basOpen.bas", "Attribute VB_Name = \"basOpen\"\r\nSub A()\r\n    x = 1\r\n    y = 2");
    scan();
    auto a = proc(u"basOpen", u"A");
    ASSERT_TRUE(a);
    EXPECT_EQ(a->ProcCode, u"Sub A()\r\n    x = 1\r\n    y = 2");
}

TEST_F(ScanLibraryFolderTest, FilesInSubFoldersAreScannedToo) {
    writeBytes("lib/sub/deeper/basDeep.bas", "Attribute VB_Name = \"basDeep\"\r\nSub D()\r\nEnd Sub\r\n");
    writeBytes("lib/basTop.bas", "Attribute VB_Name = \"basTop\"\r\nSub T()\r\nEnd Sub\r\n");
    writeBytes("lib/notes.txt", "Sub N()\r\nEnd Sub\r\n");
    scan();
    EXPECT_EQ(modules, 2);
    EXPECT_TRUE(proc(u"basDeep", u"D"));
    EXPECT_TRUE(proc(u"basTop", u"T"));
    // Sub-folders first.
    EXPECT_EQ(groups.Item(1)->Name, u"basDeep");
}

TEST_F(ScanLibraryFolderTest, AnEmptySettingGivesNoGroupsAndNoError) {
    writeBytes("lib/basTop.bas", "Sub T()\r\nEnd Sub\r\n");
    clsScanLibraryFolder scanner(settings);
    settings.IniItemValue.assign(settings::iiLibraryFolder + 1, Str());
    scanner.Init(procedures, groups);
    EXPECT_EQ(groups.Count(), 0);
    EXPECT_EQ(procedures.Count(), 0);
    EXPECT_TRUE(settings.ErrorLog.empty());
    EXPECT_TRUE(platform.shownBoxes().empty());
    scan(u"T:\\missing");
    EXPECT_EQ(groups.Count(), 0);
}

TEST_F(ScanLibraryFolderTest, ATypeSuffixGivesTheReturnType) {
    writeBytes("lib/basS.bas",
               "Attribute VB_Name = \"basS\"\r\n"
               "Function F1$(a As Long)\r\nEnd Function\r\n"
               "Function F2%(a As Long)\r\nEnd Function\r\n"
               "Function F3&(a As Long)\r\nEnd Function\r\n"
               "Function F4!(a As Long)\r\nEnd Function\r\n"
               "Function F5#(a As Long)\r\nEnd Function\r\n"
               "Function F6@(a As Long)\r\nEnd Function\r\n");
    scan();
    const char16_t* types[] = {u"String", u"Integer", u"Long", u"Single", u"Double", u"Currency"};
    for (int i = 0; i < 6; ++i) {
        Str name = u"F" + Str(1, static_cast<char16_t>(u'1' + i));
        auto f = proc(u"basS", name);
        ASSERT_TRUE(f) << basic::toUtf8(name);
        EXPECT_EQ(f->ProcReturnType, types[i]);
    }
}

TEST(ScanLibraryFolderText, ModuleNameAndMarkers) {
    EXPECT_EQ(LibraryModuleName(u"Attribute VB_Name = \"basX\"\r\nSub A()", u"file"), u"basX");
    EXPECT_EQ(LibraryModuleName(u"attribute vb_name = basX\r\n", u"file"), u"file");
    EXPECT_EQ(LibraryModuleName(u"Sub A()", u"file"), u"file");
    EXPECT_TRUE(HoldsMarkerAsCode(u"End Sub", u"End Sub"));
    EXPECT_TRUE(HoldsMarkerAsCode(u"  x = 1: End Sub ' done", u"End Sub"));
    EXPECT_FALSE(HoldsMarkerAsCode(u"' End Sub", u"End Sub"));
    EXPECT_FALSE(HoldsMarkerAsCode(u"s = \"End Sub\"", u"End Sub"));
    EXPECT_FALSE(HoldsMarkerAsCode(u"End Function", u"End Sub"));
}

}  // namespace
}  // namespace quillet::typelib
