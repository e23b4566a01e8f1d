#pragma once
// The shortcut files of the fragment library: reading a link's target through the system's file
// paths, writing a link, and the repair of a link whose library has moved.
//
// Repair: a target that does not lie in the current fragments folder is looked for below it, by
// what stands behind the last "\Fragments\" in the target (ignoring case). When that file exists
// the link is rewritten to it. So the links survive a move of the whole library, to another
// folder or another disk.

#include <string>

#include "fragments/shell_link.h"
#include "settings/file_system.h"

namespace quillet::fragments {

struct ShortcutTarget {
    // False when the link could not be read; Error says why.
    bool Ok = false;
    // The absolute target: the one the link holds, else its relative path taken from the link's
    // folder; after a repair, the repaired one.
    Str Target;
    bool Repaired = false;
    // The target was found at its place in the moved library but the link was left as it is
    // (a reading that must not write).
    bool Moved = false;
    // Why the link could not be read, or why a repaired link could not be saved.
    Str Error;
};

// Reads the link; never raises.
ShortcutTarget ReadShortcut(const settings::FileSystem& files, const Str& linkFile);
// Reads the link and repairs it against fragmentsFolder (a system path without final "\"): the
// link is saved with its new target, or, when save is false, only the target is taken (Moved).
ShortcutTarget ReadAndRepairShortcut(const settings::FileSystem& files, const Str& linkFile, const Str& fragmentsFolder,
                                     bool save = true);
// The place a target that lies outside fragmentsFolder would have inside it; empty when the target
// lies inside already or holds no "\Fragments\".
Str MovedTargetCandidate(const Str& target, const Str& fragmentsFolder);
// Writes a link to target at linkFile (atomically), keeping name, arguments and icon of keep when
// given. Gives a file-system error number, 0 on success.
int SaveShortcut(const settings::FileSystem& files, const Str& linkFile, const Str& target, const ShellLink* keep = nullptr);
// folder joined with a relative path, "." and ".." resolved.
Str CombinePath(const Str& folder, const Str& relative);

}  // namespace quillet::fragments
