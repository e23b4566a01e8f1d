#pragma once
// The fragment library as the Fragment Builder shows it: the tree of folders below <fragments>,
// each with its entries in order of name (ignoring case). An entry is a fragment file (".bas"), or
// a shortcut (".lnk") to a fragment elsewhere, shown by the shortcut's own name and keyed by its
// target. A shortcut whose target is missing, or whose file cannot be read, is not shown: it is
// kept among the folder's skipped entries, with the reason.
//
// A folder is shown only when it is applicable: qltrefra.ini ties folder names to libraries
// (section "fragments/reference", one line per folder name), and a folder any part of whose path
// below <fragments> is tied to a library the project does not refer to is hidden with everything
// below it. Without a project there is nothing to compare with, and every folder is shown.

#include <optional>
#include <string>
#include <vector>

#include "basic/collection.h"
#include "host/objects.h"
#include "settings/settings.h"

namespace quillet::fragments {

using Str = std::u16string;

enum class LibraryEntryKind { Fragment, Shortcut, BrokenShortcut };

struct LibraryEntry {
    LibraryEntryKind Kind = LibraryEntryKind::Fragment;
    // The text shown: the file's name less its extension.
    Str Name;
    // The entry's key: the fragment's full name; for a shortcut its target's.
    Str FullName;
    // For a shortcut: the link file's full name (the entry's Tag).
    Str ShortcutFile;
    // For a broken shortcut: why it is not shown.
    Str Problem;
    // The shortcut's target was repaired (the library had moved) and the link saved.
    bool Repaired = false;
    // The library had moved and the target was found at its new place, the link left as it is
    // (an opening that does not repair).
    bool Moved = false;
};

struct LibraryFolder {
    Str Name;
    Str FullPath;
    std::vector<LibraryEntry> Entries;
    std::vector<LibraryEntry> Skipped;
    // The applicable subfolders, in order of name.
    std::vector<LibraryFolder> Folders;
};

// Folder names tied to libraries: the lines of "fragments/reference" in qltrefra.ini.
using FolderReferences = basic::Collection<Str>;

struct FragmentLibrary {
    Str FragmentsFolder;
    bool Exists = false;
    LibraryFolder Root;
    // Folders hidden because their library is not referred to (full paths).
    std::vector<Str> HiddenFolders;
    // False when every folder was taken as applicable for want of a project.
    bool ReferencesKnown = false;
};

// The names of the active project's references; none without an active project, or when the host
// cannot give them.
std::optional<std::vector<Str>> ActiveProjectReferences(host::VBE& vbe);

// The section "fragments/reference" of qltrefra.ini; empty when there is none.
FolderReferences ReadFolderReferences(settings::Settings& settings);

// Whether the folder (a full path below fragmentsFolder) is shown: every part of its path below
// fragmentsFolder that has a line in folderReferences needs its library among references. Without
// references every folder is applicable.
bool FolderIsApplicable(const Str& path, const Str& fragmentsFolder, FolderReferences& folderReferences,
                        const std::optional<std::vector<Str>>& references);

// Reads the whole library below <fragments>: folders, entries and shortcuts, with shortcuts
// repaired when their library has moved (unless repair is false). Never raises.
FragmentLibrary OpenFragmentLibrary(settings::Settings& settings, const std::optional<std::vector<Str>>& references,
                                    bool repair = true);

}  // namespace quillet::fragments
