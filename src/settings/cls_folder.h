#pragma once
// A folder tree (clsFolder): its files that match a filter and its subfolders, each list kept in
// order of name ignoring case, read whole by InitFolder.

#include <memory>
#include <string>

#include "basic/collection.h"
#include "settings/cls_file.h"
#include "settings/settings.h"

namespace quillet::settings {

class clsFolder {
public:
    explicit clsFolder(Settings& settings) : settings_(settings) {}

    // Files keyed by FullName, folders keyed by FullPath; both sorted by Name.
    basic::Collection<std::shared_ptr<clsFile>> Files;
    basic::Collection<std::shared_ptr<clsFolder>> Folders;

    // The last part of the path.
    Str Name() const;
    const Str& FullPath() const { return fullPath_; }
    // Reads the folder: filter is a ";" list of patterns ("*.bas;*.lnk"), empty for all files;
    // with recursive, every subfolder is read the same way.
    void InitFolder(const Str& path, const Str& filter = {}, bool recursive = true);

private:
    void addFile(const Str& fullName);
    void addFolder(const std::shared_ptr<clsFolder>& folder);

    Settings& settings_;
    Str fullPath_;
};

// Whether a file name matches a pattern of "*" and "?", ignoring case; "*.*" matches every name.
bool MatchesFilePattern(const Str& name, const Str& pattern);

}  // namespace quillet::settings
