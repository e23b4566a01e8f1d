// Shortcut files of the fragment library.

#include "fragments/shortcut_file.h"

#include <vector>

#include "basic/strings.h"
#include "basic/unicode.h"

namespace quillet::fragments {

using basic::Compare;

namespace {

// Links are a few hundred bytes; a file far larger is not read whole to find out that it is none.
constexpr std::uintmax_t kLargestShortcut = 1 << 20;

Str folderOf(const Str& file) {
    long slash = basic::InStrRev(file, u"\\");
    return slash > 0 ? basic::Left(file, slash - 1) : Str();
}

bool isAbsolute(const Str& path) {
    return (path.size() >= 3 && path[1] == u':' && path[2] == u'\\') || basic::Left(path, 2) == u"\\\\";
}

Str errorText(int number) {
    switch (number) {
        case settings::fserr::FileNotFound: return u"the file does not exist.";
        case settings::fserr::PathNotFound: return u"its folder does not exist.";
        case settings::fserr::AccessDenied: return u"access is denied.";
        default: return u"error " + basic::fromUtf8(std::to_string(number)) + u".";
    }
}

}  // namespace

Str CombinePath(const Str& folder, const Str& relative) {
    if (isAbsolute(relative)) return relative;
    std::vector<Str> parts;
    for (const Str& part : basic::Split(folder + u"\\" + relative, u"\\")) {
        if (part == u".") continue;
        if (part == u".." && parts.size() > 1) parts.pop_back();
        else if (part != u"..") parts.push_back(part);
    }
    // A server path keeps its two leading separators, which Split made two empty parts.
    Str lead = basic::Left(folder, 2) == u"\\\\" ? Str(u"\\\\") : Str();
    std::vector<Str> named;
    for (const Str& part : parts)
        if (!part.empty()) named.push_back(part);
    return lead + basic::Join(named, u"\\");
}

ShortcutTarget ReadShortcut(const settings::FileSystem& files, const Str& linkFile) {
    ShortcutTarget result;
    auto stamp = files.Stamp(linkFile);
    if (stamp && stamp->first > kLargestShortcut) {
        result.Error = u"The file is too large to be a shortcut.";
        return result;
    }
    std::string bytes;
    if (int error = files.ReadAll(linkFile, bytes)) {
        result.Error = u"The shortcut cannot be read: " + errorText(error);
        return result;
    }
    try {
        ShellLink link = ParseShellLink(bytes);
        result.Target = link.TargetPath();
        if (result.Target.empty() && !link.RelativePath.empty())
            result.Target = CombinePath(folderOf(linkFile), link.RelativePath);
        if (result.Target.empty()) {
            result.Error = u"The shortcut names no target.";
            return result;
        }
        result.Ok = true;
    } catch (const ShellLinkError& error) {
        result.Error = basic::fromUtf8(error.what());
    }
    return result;
}

Str MovedTargetCandidate(const Str& target, const Str& fragmentsFolder) {
    Str folder = fragmentsFolder;
    if (!folder.empty() && folder.back() != u'\\') folder += u'\\';
    if (basic::StrComp(basic::Left(target, basic::Len(folder)), folder, Compare::Text) == 0) return {};
    long at = basic::InStrRev(target, u"\\Fragments\\", -1, Compare::Text);
    if (at == 0) return {};
    return folder + basic::Mid(target, at + 11);
}

ShortcutTarget ReadAndRepairShortcut(const settings::FileSystem& files, const Str& linkFile, const Str& fragmentsFolder,
                                     bool save) {
    ShortcutTarget result = ReadShortcut(files, linkFile);
    if (!result.Ok) return result;
    Str candidate = MovedTargetCandidate(result.Target, fragmentsFolder);
    if (candidate.empty() || !files.FileExists(candidate)) return result;
    if (!save) {
        result.Target = candidate;
        result.Moved = true;
        return result;
    }
    std::string bytes;
    ShellLink old;
    try {
        if (files.ReadAll(linkFile, bytes) == 0) old = ParseShellLink(bytes);
    } catch (const ShellLinkError&) {
    }
    result.Target = candidate;
    result.Repaired = true;
    if (int error = SaveShortcut(files, linkFile, candidate, &old))
        result.Error = u"The repaired shortcut cannot be saved: " + errorText(error);
    return result;
}

int SaveShortcut(const settings::FileSystem& files, const Str& linkFile, const Str& target, const ShellLink* keep) {
    ShellLink link = ShellLinkTo(target, folderOf(linkFile));
    if (keep) {
        link.Name = keep->Name;
        link.Arguments = keep->Arguments;
        link.IconLocation = keep->IconLocation;
    }
    try {
        return files.WriteAll(linkFile, WriteShellLink(link));
    } catch (const ShellLinkError&) {
        return settings::fserr::WriteFault;
    }
}

}  // namespace quillet::fragments
