// Sorted folder trees.

#include "settings/cls_folder.h"

#include <algorithm>

#include "basic/strings.h"

namespace quillet::settings {

using basic::Compare;

namespace {

bool matchFrom(const Str& name, size_t n, const Str& pattern, size_t p) {
    while (p < pattern.size()) {
        if (pattern[p] == u'*') {
            for (size_t k = n; k <= name.size(); ++k)
                if (matchFrom(name, k, pattern, p + 1)) return true;
            return false;
        }
        if (n >= name.size()) return false;
        if (pattern[p] != u'?' && basic::foldCase(pattern[p]) != basic::foldCase(name[n])) return false;
        ++p;
        ++n;
    }
    return n == name.size();
}

// 1-based place before the first entry whose name compares higher, or 0 for the end.
template <class T, class NameOf>
long sortedPlace(basic::Collection<T>& list, const Str& name, NameOf nameOf) {
    long place = 1;
    for (auto& entry : list) {
        if (basic::StrComp(nameOf(entry), name, Compare::Text) > 0) return place;
        ++place;
    }
    return 0;
}

}  // namespace

bool MatchesFilePattern(const Str& name, const Str& pattern) {
    if (pattern == u"*.*" || pattern == u"*") return true;
    return matchFrom(name, 0, pattern, 0);
}

Str clsFolder::Name() const {
    long slash = basic::InStrRev(fullPath_, u"\\");
    return basic::Mid(fullPath_, slash + 1);
}

void clsFolder::addFile(const Str& fullName) {
    if (Files.Exists(fullName)) return;
    auto file = std::make_shared<clsFile>(settings_, fullName);
    file->Silent(true);
    long before = sortedPlace(Files, file->Name(), [](const std::shared_ptr<clsFile>& f) { return f->Name(); });
    Files.Add(file, fullName, before);
}

void clsFolder::addFolder(const std::shared_ptr<clsFolder>& folder) {
    if (Folders.Exists(folder->FullPath())) return;
    long before = sortedPlace(Folders, folder->Name(), [](const std::shared_ptr<clsFolder>& f) { return f->Name(); });
    Folders.Add(folder, folder->FullPath(), before);
}

void clsFolder::InitFolder(const Str& path, const Str& filter, bool recursive) {
    fullPath_ = path;
    if (!fullPath_.empty() && fullPath_.back() == u'\\') fullPath_.pop_back();
    if (!settings_.Files.FolderExists(fullPath_)) return;
    auto entries = settings_.Files.List(fullPath_);
    std::sort(entries.begin(), entries.end(), [](const FolderEntry& a, const FolderEntry& b) { return a.name < b.name; });
    for (const Str& raw : basic::Split(filter.empty() ? Str(u"*.*") : filter, u";")) {
        Str pattern = basic::Trim(raw);
        if (pattern.empty()) continue;
        for (const auto& entry : entries)
            if (!entry.isFolder && MatchesFilePattern(entry.name, pattern)) addFile(fullPath_ + u"\\" + entry.name);
    }
    if (!recursive) return;
    for (const auto& entry : entries) {
        if (!entry.isFolder || entry.name == u"." || entry.name == u"..") continue;
        auto folder = std::make_shared<clsFolder>(settings_);
        folder->InitFolder(fullPath_ + u"\\" + entry.name, filter, recursive);
        addFolder(folder);
    }
}

}  // namespace quillet::settings
