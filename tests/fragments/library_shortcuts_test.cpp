// Shortcuts made in the fragment library: where pasting is offered, and the made shortcut.

#include <gtest/gtest.h>

#include "../settings/settings_fixture.h"
#include "fragments/library_shortcuts.h"
#include "fragments/shell_link.h"
#include "settings/ini_vars.h"

namespace quillet::fragments {
namespace {

class LibraryShortcuts : public settings::testing::SettingsTest {
protected:
    LibraryShortcuts() {
        settings::SetDefaults(settings);
        for (const char* file : {"Loops/For Each.bas", "Mine/Other.bas", "Taken/For Each.bas", "Empty/.keep.bas"})
            writeBytes(std::string("root/quillet/Fragments/") + file, "x");
        writeBytes("root/quillet/Fragments/Linked/For Each.lnk",
                   WriteShellLink(ShellLinkTo(fragments + u"\\Loops\\For Each.bas", fragments + u"\\Linked")));
    }
    const LibraryFolder& folder(const Str& name) {
        library = OpenFragmentLibrary(settings, std::nullopt);
        const LibraryFolder* found = FindLibraryFolder(library.Root, fragments + u"\\" + name);
        EXPECT_NE(found, nullptr);
        return found ? *found : library.Root;
    }

    const Str fragments = u"T:\\root\\quillet\\Fragments";
    const Str remembered = fragments + u"\\Loops\\For Each.bas";
    FragmentLibrary library;
};

TEST_F(LibraryShortcuts, NothingRememberedOffersNothing) {
    ShortcutPasteOffer offer = OfferShortcutPaste(folder(u"Mine"), Str());
    EXPECT_EQ(offer.Caption, u"Paste shortcut to ");
    EXPECT_FALSE(offer.Enabled);
}

TEST_F(LibraryShortcuts, PastingIntoAnotherFolderIsOfferedByTheFragmentsName) {
    ShortcutPasteOffer offer = OfferShortcutPaste(folder(u"Mine"), remembered);
    EXPECT_EQ(offer.Caption, u"Paste shortcut to For Each");
    EXPECT_TRUE(offer.Enabled);
}

TEST_F(LibraryShortcuts, PastingIntoTheFragmentsOwnFolderIsNotOffered) {
    ShortcutPasteOffer offer = OfferShortcutPaste(folder(u"Loops"), remembered);
    EXPECT_EQ(offer.Caption, u"Paste shortcut to For Each");
    EXPECT_FALSE(offer.Enabled);
    EXPECT_FALSE(OfferShortcutPaste(folder(u"LOOPS"), remembered).Enabled);
}

TEST_F(LibraryShortcuts, AFolderHoldingAFragmentOrShortcutOfThatNameIsNotOffered) {
    EXPECT_FALSE(OfferShortcutPaste(folder(u"Taken"), remembered).Enabled);
    EXPECT_FALSE(OfferShortcutPaste(folder(u"Linked"), remembered).Enabled);
}

TEST_F(LibraryShortcuts, TheMadeShortcutShowsInItsFolder) {
    ASSERT_EQ(CreateLibraryShortcut(settings.Files, fragments + u"\\Mine", remembered), 0);
    const LibraryFolder& mine = folder(u"Mine");
    ASSERT_EQ(mine.Entries.size(), 2u);
    EXPECT_EQ(mine.Entries[0].Name, u"For Each");
    EXPECT_EQ(mine.Entries[0].Kind, LibraryEntryKind::Shortcut);
    EXPECT_EQ(mine.Entries[0].FullName, remembered);
    EXPECT_EQ(mine.Entries[0].ShortcutFile, fragments + u"\\Mine\\For Each.lnk");
    // Once there, a second paste is not offered.
    EXPECT_FALSE(OfferShortcutPaste(mine, remembered).Enabled);
}

TEST_F(LibraryShortcuts, FindLibraryFolderGivesNoneForAFolderNotShown) {
    library = OpenFragmentLibrary(settings, std::nullopt);
    EXPECT_EQ(FindLibraryFolder(library.Root, fragments + u"\\Nowhere"), nullptr);
    EXPECT_EQ(FindLibraryFolder(library.Root, fragments), &library.Root);
}

}  // namespace
}  // namespace quillet::fragments
