#pragma once
// Shortcuts made in the fragment library: whether a fragment remembered for a shortcut may be
// pasted into a folder, and the making of the shortcut there.

#include <string>

#include "fragments/fragment_library.h"
#include "settings/file_system.h"

namespace quillet::fragments {

// The folder of the tree with that full path (ignoring case); none when it is not shown.
const LibraryFolder* FindLibraryFolder(const LibraryFolder& root, const Str& fullPath);

// The state of the tree's "Paste shortcut to " command.
struct ShortcutPasteOffer {
    Str Caption;
    bool Enabled = false;
};

// remembered: the full name of the fragment remembered for a shortcut (a shortcut's target when a
// shortcut was remembered), empty when none. Not offered into the fragment's own folder, nor into
// a folder that holds a fragment or a shortcut of the fragment's name already.
ShortcutPasteOffer OfferShortcutPaste(const LibraryFolder& folder, const Str& remembered);

// Writes folder + "\" + the fragment's name + ".lnk", pointing at the fragment. Gives a file-system
// error number, 0 on success.
int CreateLibraryShortcut(const settings::FileSystem& files, const Str& folder, const Str& fragment);

}  // namespace quillet::fragments
