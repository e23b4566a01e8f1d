// Shortcuts made in the fragment library.

#include "fragments/library_shortcuts.h"

#include "basic/strings.h"
#include "fragments/shortcut_file.h"

namespace quillet::fragments {

namespace {

bool sameText(const Str& a, const Str& b) { return basic::StrComp(a, b, basic::Compare::Text) == 0; }

Str folderOf(const Str& file) {
    long slash = basic::InStrRev(file, u"\\");
    return slash > 0 ? basic::Left(file, slash - 1) : Str();
}

// The file's name less its folder and the text behind its last point.
Str nameOf(const Str& file) {
    Str name = basic::Mid(file, basic::InStrRev(file, u"\\") + 1);
    long point = basic::InStrRev(name, u".");
    return point > 0 ? basic::Left(name, point - 1) : name;
}

bool holdsName(const std::vector<LibraryEntry>& entries, const Str& name) {
    for (const LibraryEntry& entry : entries)
        if (sameText(entry.Name, name)) return true;
    return false;
}

}  // namespace

const LibraryFolder* FindLibraryFolder(const LibraryFolder& root, const Str& fullPath) {
    if (sameText(root.FullPath, fullPath)) return &root;
    for (const LibraryFolder& sub : root.Folders)
        if (const LibraryFolder* found = FindLibraryFolder(sub, fullPath)) return found;
    return nullptr;
}

ShortcutPasteOffer OfferShortcutPaste(const LibraryFolder& folder, const Str& remembered) {
    ShortcutPasteOffer offer{u"Paste shortcut to ", false};
    if (remembered.empty()) return offer;
    Str name = nameOf(remembered);
    offer.Caption += name;
    offer.Enabled = !sameText(folderOf(remembered), folder.FullPath) && !holdsName(folder.Entries, name) &&
                    !holdsName(folder.Skipped, name);
    return offer;
}

int CreateLibraryShortcut(const settings::FileSystem& files, const Str& folder, const Str& fragment) {
    return SaveShortcut(files, folder + u"\\" + nameOf(fragment) + u".lnk", fragment);
}

}  // namespace quillet::fragments
