// The fragment library's tree: folders and entries in order, shortcuts, broken shortcuts, folders
// tied to libraries, a missing library, and a moved one.

#include <gtest/gtest.h>

#include "../settings/settings_fixture.h"
#include "fragments/fragment_library.h"
#include "fragments/shortcut_file.h"
#include "hosts/memory/memory_host.h"
#include "settings/ini_vars.h"

namespace quillet::fragments {
namespace {

using settings::testing::SettingsTest;

class FragmentLibraryTest : public SettingsTest {
protected:
    FragmentLibraryTest() { settings::SetDefaults(settings); }

    const Str fragments = u"T:\\root\\quillet\\Fragments";
    void fragment(const std::string& relative) { writeBytes("root/quillet/Fragments/" + relative, "Dim x\r\n"); }
    void folder(const std::string& relative) { std::filesystem::create_directories(machine("root/quillet/Fragments/" + relative)); }
    void shortcut(const std::string& relative, const Str& target) {
        writeBytes("root/quillet/Fragments/" + relative, WriteShellLink(ShellLinkTo(target, fragments)));
    }
    void tieFolders(const std::string& lines) { writeBytes("root/qltrefra.ini", "[fragments/reference]\r\n" + lines); }

    static std::vector<Str> names(const std::vector<LibraryEntry>& entries) {
        std::vector<Str> result;
        for (const auto& e : entries) result.push_back(e.Name);
        return result;
    }
    static std::vector<Str> names(const std::vector<LibraryFolder>& folders) {
        std::vector<Str> result;
        for (const auto& f : folders) result.push_back(f.Name);
        return result;
    }
    FragmentLibrary open(const std::optional<std::vector<Str>>& references = std::nullopt) {
        return OpenFragmentLibrary(settings, references);
    }
};

TEST_F(FragmentLibraryTest, FoldersAndFragmentsAreInOrderOfNameIgnoringCase) {
    fragment("b/Zeta.bas");
    fragment("b/alpha.bas");
    fragment("b/Beta.bas");
    fragment("B2/x.bas");
    folder("a");
    fragment("top.bas");
    writeBytes("root/quillet/Fragments/b/notes.txt", "not a fragment");
    FragmentLibrary library = open();
    EXPECT_TRUE(library.Exists);
    EXPECT_EQ(library.Root.FullPath, fragments);
    EXPECT_EQ(names(library.Root.Folders), (std::vector<Str>{u"a", u"b", u"B2"}));
    EXPECT_EQ(names(library.Root.Entries), (std::vector<Str>{u"top"}));
    const LibraryFolder& b = library.Root.Folders[1];
    EXPECT_EQ(b.FullPath, fragments + u"\\b");
    EXPECT_EQ(names(b.Entries), (std::vector<Str>{u"alpha", u"Beta", u"Zeta"}));
    EXPECT_EQ(b.Entries[0].FullName, fragments + u"\\b\\alpha.bas");
    EXPECT_EQ(b.Entries[0].Kind, LibraryEntryKind::Fragment);
}

TEST_F(FragmentLibraryTest, AShortcutShowsItsOwnNameAndIsKeyedByItsTarget) {
    fragment("Loops/For Each.bas");
    shortcut("Mine/Each.lnk", fragments + u"\\Loops\\For Each.bas");
    shortcut("Mine/Each.bas.lnk", fragments + u"\\Loops\\For Each.bas");
    fragment("Mine/Each.bas");
    FragmentLibrary library = open();
    const LibraryFolder& mine = library.Root.Folders[1];
    ASSERT_EQ(mine.Entries.size(), 3u);
    // A fragment and a shortcut of the same name: the fragment first.
    EXPECT_EQ(mine.Entries[0].Kind, LibraryEntryKind::Fragment);
    EXPECT_EQ(mine.Entries[1].Name, u"Each");
    EXPECT_EQ(mine.Entries[1].Kind, LibraryEntryKind::Shortcut);
    EXPECT_EQ(mine.Entries[1].FullName, fragments + u"\\Loops\\For Each.bas");
    EXPECT_EQ(mine.Entries[1].ShortcutFile, fragments + u"\\Mine\\Each.lnk");
    EXPECT_EQ(mine.Entries[2].Name, u"Each.bas");
}

TEST_F(FragmentLibraryTest, BrokenAndDamagedShortcutsAreSkippedWithTheirReason) {
    fragment("A/kept.bas");
    shortcut("A/gone.lnk", fragments + u"\\A\\deleted.bas");
    writeBytes("root/quillet/Fragments/A/damaged.lnk", std::string(10, '\x4c'));
    FragmentLibrary library = open();
    const LibraryFolder& a = library.Root.Folders[0];
    EXPECT_EQ(names(a.Entries), (std::vector<Str>{u"kept"}));
    ASSERT_EQ(a.Skipped.size(), 2u);
    EXPECT_EQ(a.Skipped[0].Name, u"damaged");
    EXPECT_EQ(a.Skipped[0].Kind, LibraryEntryKind::BrokenShortcut);
    EXPECT_NE(a.Skipped[0].Problem.find(u"not a shortcut"), Str::npos);
    EXPECT_EQ(a.Skipped[1].Name, u"gone");
    EXPECT_EQ(a.Skipped[1].Problem, u"The shortcut's target does not exist.");
}

TEST_F(FragmentLibraryTest, AFolderTiedToALibraryTheProjectLacksIsHiddenWithAllBelowIt) {
    fragment("Access/Recordsets/Loop.bas");
    fragment("Excel/Ranges.bas");
    fragment("General/x.bas");
    tieFolders("Access=Access\r\nExcel=Excel\r\n");
    FragmentLibrary library = open(std::vector<Str>{u"VBA", u"EXCEL"});
    EXPECT_TRUE(library.ReferencesKnown);
    EXPECT_EQ(names(library.Root.Folders), (std::vector<Str>{u"Excel", u"General"}));
    EXPECT_EQ(library.HiddenFolders, (std::vector<Str>{fragments + u"\\Access"}));
}

TEST_F(FragmentLibraryTest, ATieOnAFolderDeeperDownHidesOnlyThatFolder) {
    fragment("Data/DAO/a.bas");
    fragment("Data/ADO/b.bas");
    tieFolders("DAO=DAO\r\nADO=ADODB\r\n");
    FragmentLibrary library = open(std::vector<Str>{u"VBA", u"ADODB"});
    ASSERT_EQ(library.Root.Folders.size(), 1u);
    EXPECT_EQ(names(library.Root.Folders[0].Folders), (std::vector<Str>{u"ADO"}));
}

TEST_F(FragmentLibraryTest, WithoutAProjectEveryFolderIsShown) {
    fragment("Access/a.bas");
    tieFolders("Access=Access\r\n");
    FragmentLibrary library = open(std::nullopt);
    EXPECT_FALSE(library.ReferencesKnown);
    EXPECT_EQ(names(library.Root.Folders), (std::vector<Str>{u"Access"}));
}

TEST_F(FragmentLibraryTest, FolderIsApplicableLooksAtEveryPartBelowTheLibrary) {
    FolderReferences tied;
    tied.Add(u"Access", u"Access");
    tied.Add(u"", u"Empty");
    std::optional<std::vector<Str>> refs = std::vector<Str>{u"VBA"};
    EXPECT_TRUE(FolderIsApplicable(fragments, fragments, tied, refs));
    EXPECT_FALSE(FolderIsApplicable(fragments + u"\\access", fragments, tied, refs));
    EXPECT_FALSE(FolderIsApplicable(fragments + u"\\x\\Access\\y", fragments, tied, refs));
    EXPECT_TRUE(FolderIsApplicable(fragments + u"\\Empty", fragments, tied, refs));
    EXPECT_TRUE(FolderIsApplicable(fragments + u"\\Other", fragments, tied, refs));
}

TEST_F(FragmentLibraryTest, AMissingLibraryGivesAnEmptyTree) {
    FragmentLibrary library = open();
    EXPECT_FALSE(library.Exists);
    EXPECT_TRUE(library.Root.Folders.empty());
    EXPECT_TRUE(library.Root.Entries.empty());
}

TEST_F(FragmentLibraryTest, ALibraryMovedToAnotherDiskHasItsShortcutsRepairedOnOpening) {
    fragment("Loops/For.bas");
    shortcut("Mine/For.lnk", u"E:\\Old Profile\\quillet\\Fragments\\Loops\\For.bas");
    FragmentLibrary library = open();
    const LibraryFolder& mine = library.Root.Folders[1];
    ASSERT_EQ(mine.Entries.size(), 1u);
    EXPECT_TRUE(mine.Entries[0].Repaired);
    EXPECT_EQ(mine.Entries[0].FullName, fragments + u"\\Loops\\For.bas");
    EXPECT_EQ(ParseShellLink(readBytes("root/quillet/Fragments/Mine/For.lnk")).TargetPath(),
              fragments + u"\\Loops\\For.bas");
}

TEST_F(FragmentLibraryTest, WithoutRepairAMovedShortcutShowsItsNewPlaceAndItsFileIsLeftAlone) {
    fragment("Loops/For.bas");
    shortcut("Mine/For.lnk", u"E:\\Old\\Fragments\\Loops\\For.bas");
    std::string before = readBytes("root/quillet/Fragments/Mine/For.lnk");
    FragmentLibrary library = OpenFragmentLibrary(settings, std::nullopt, false);
    const LibraryFolder& mine = library.Root.Folders[1];
    EXPECT_TRUE(mine.Skipped.empty());
    ASSERT_EQ(mine.Entries.size(), 1u);
    EXPECT_EQ(mine.Entries[0].Kind, LibraryEntryKind::Shortcut);
    EXPECT_TRUE(mine.Entries[0].Moved);
    EXPECT_FALSE(mine.Entries[0].Repaired);
    EXPECT_EQ(readBytes("root/quillet/Fragments/Mine/For.lnk"), before);
}

TEST(ActiveProjectReferencesTest, NamesTheActiveProjectsReferences) {
    auto vbe = hosts::memory::MemoryVBE::create();
    EXPECT_FALSE(ActiveProjectReferences(*vbe).has_value());
    vbe->addProject(u"VBAProject", u"C:\\Book1.xlsm", u"Excel");
    auto refs = ActiveProjectReferences(*vbe);
    ASSERT_TRUE(refs.has_value());
    EXPECT_EQ(*refs, (std::vector<Str>{u"VBA", u"Excel"}));
}

}  // namespace
}  // namespace quillet::fragments
