// The portable file layer: path mapping and whole-file access with atomic replacement.

#include "settings/file_system.h"

#include <cerrno>
#include <fstream>
#include <random>
#include <system_error>

#include "basic/unicode.h"

namespace quillet::settings {

namespace fs = std::filesystem;

namespace {

char16_t upperDrive(char16_t c) { return (c >= u'a' && c <= u'z') ? static_cast<char16_t>(c - 32) : c; }

#ifndef _WIN32
// Windows maps drive letters itself; elsewhere they map to the folders given to mapDrive.
bool hasDrive(const Str& path) {
    return path.size() >= 2 && path[1] == u':' && ((path[0] >= u'A' && path[0] <= u'Z') || (path[0] >= u'a' && path[0] <= u'z'));
}
#endif

fs::path fromSystemText(const Str& text) {
#ifdef _WIN32
    return fs::path(std::wstring(text.begin(), text.end()));
#else
    return fs::path(basic::toUtf8(text));
#endif
}

Str toSystemText(const fs::path& path) {
#ifdef _WIN32
    auto w = path.wstring();
    return Str(w.begin(), w.end());
#else
    return basic::fromUtf8(path.string());
#endif
}

int errorOf(const std::error_code& ec) {
    if (!ec) return fserr::None;
    if (ec == std::errc::permission_denied || ec == std::errc::operation_not_permitted ||
        ec == std::errc::read_only_file_system)
        return fserr::AccessDenied;
    if (ec == std::errc::no_such_file_or_directory || ec == std::errc::not_a_directory) return fserr::PathNotFound;
    if (ec == std::errc::no_space_on_device) return fserr::DiskFull;
    if (ec == std::errc::file_exists) return fserr::AlreadyExists;
    return fserr::WriteFault;
}

bool isReadOnly(const fs::path& path) {
    std::error_code ec;
    auto st = fs::status(path, ec);
    if (ec || !fs::exists(st)) return false;
    return (st.permissions() & fs::perms::owner_write) == fs::perms::none;
}

fs::path temporaryBeside(const fs::path& target) {
    std::random_device rd;
    auto name = target.filename().string() + ".~" + std::to_string(rd() % 1000000) + ".tmp";
    return target.parent_path() / name;
}

int writeFile(const fs::path& path, std::string_view bytes, std::ios::openmode mode) {
    std::ofstream out(path, std::ios::binary | mode);
    if (!out) return errno == EACCES || errno == EROFS ? fserr::AccessDenied : fserr::PathNotFound;
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.flush();
    if (!out) return errno == ENOSPC ? fserr::DiskFull : fserr::WriteFault;
    return fserr::None;
}

}  // namespace

FileSystem::FileSystem() {
#ifndef _WIN32
    drives_[u'Z'] = fs::path("/");
#endif
}

void FileSystem::mapDrive(char16_t letter, const fs::path& machineFolder) { drives_[upperDrive(letter)] = machineFolder; }

std::optional<fs::path> FileSystem::machinePath(const Str& systemPath) const {
    if (systemPath.empty()) return std::nullopt;
#ifdef _WIN32
    return fromSystemText(systemPath);
#else
    Str rest = systemPath;
    fs::path base;
    if (hasDrive(systemPath)) {
        auto it = drives_.find(upperDrive(systemPath[0]));
        if (it == drives_.end()) return std::nullopt;
        base = it->second;
        rest = systemPath.substr(2);
    } else if (systemPath.rfind(u"\\\\", 0) == 0) {
        return std::nullopt;  // no servers here
    }
    for (auto& c : rest)
        if (c == u'\\') c = u'/';
    if (base.empty()) return fromSystemText(rest);
    while (!rest.empty() && rest.front() == u'/') rest.erase(0, 1);
    return rest.empty() ? base : base / fromSystemText(rest);
#endif
}

Str FileSystem::systemPath(const fs::path& machinePath) const {
#ifdef _WIN32
    return toSystemText(machinePath);
#else
    Str text = toSystemText(machinePath.lexically_normal());
    const std::pair<const char16_t, fs::path>* best = nullptr;
    size_t bestLength = 0;
    for (const auto& drive : drives_) {
        Str folder = toSystemText(drive.second.lexically_normal());
        while (folder.size() > 1 && folder.back() == u'/') folder.pop_back();
        bool inside = text == folder || (text.rfind(folder, 0) == 0 && (folder == u"/" || text[folder.size()] == u'/'));
        if (inside && (!best || folder.size() > bestLength)) {
            best = &drive;
            bestLength = folder.size();
        }
    }
    Str rest = best ? text.substr(bestLength == 1 ? 0 : bestLength) : text;
    for (auto& c : rest)
        if (c == u'/') c = u'\\';
    if (!best) return rest;
    if (rest.empty() || rest.front() != u'\\') rest.insert(0, 1, u'\\');
    return Str{best->first, u':'} + rest;
#endif
}

bool FileSystem::PathExists(const Str& path) const {
    auto p = machinePath(path);
    std::error_code ec;
    return p && !path.empty() && fs::exists(*p, ec);
}

bool FileSystem::FolderExists(const Str& path) const {
    auto p = machinePath(path);
    std::error_code ec;
    return p && !path.empty() && fs::is_directory(*p, ec);
}

bool FileSystem::FileExists(const Str& path) const {
    auto p = machinePath(path);
    std::error_code ec;
    return p && !path.empty() && fs::is_regular_file(*p, ec);
}

std::optional<std::pair<std::uintmax_t, long long>> FileSystem::Stamp(const Str& path) const {
    auto p = machinePath(path);
    std::error_code ec;
    if (!p || !fs::is_regular_file(*p, ec)) return std::nullopt;
    auto size = fs::file_size(*p, ec);
    if (ec) return std::nullopt;
    auto time = fs::last_write_time(*p, ec);
    if (ec) return std::nullopt;
    return std::make_pair(size, static_cast<long long>(time.time_since_epoch().count()));
}

int FileSystem::ReadAll(const Str& path, std::string& bytes) const {
    bytes.clear();
    auto p = machinePath(path);
    if (!p) return fserr::PathNotFound;
    std::error_code ec;
    if (!fs::is_regular_file(*p, ec)) return fs::exists(p->parent_path(), ec) ? fserr::FileNotFound : fserr::PathNotFound;
    std::ifstream in(*p, std::ios::binary);
    if (!in) return fserr::AccessDenied;
    bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    return in.bad() ? fserr::ReadFault : fserr::None;
}

int FileSystem::WriteAll(const Str& path, std::string_view bytes) const {
    auto p = machinePath(path);
    if (!p) return fserr::PathNotFound;
    std::error_code ec;
    if (!fs::is_directory(p->parent_path().empty() ? fs::path(".") : p->parent_path(), ec)) return fserr::PathNotFound;
    if (isReadOnly(*p) || fs::is_directory(*p, ec)) return fserr::AccessDenied;
    auto temporary = temporaryBeside(*p);
    if (int error = writeFile(temporary, bytes, std::ios::trunc)) {
        fs::remove(temporary, ec);
        return error;
    }
    auto st = fs::status(*p, ec);
    if (!ec && fs::exists(st)) fs::permissions(temporary, st.permissions(), ec);
    fs::rename(temporary, *p, ec);
    if (ec) {
        std::error_code ignored;
        fs::remove(temporary, ignored);
        return errorOf(ec);
    }
    return fserr::None;
}

int FileSystem::Append(const Str& path, std::string_view bytes) const {
    auto p = machinePath(path);
    if (!p) return fserr::PathNotFound;
    if (isReadOnly(*p)) return fserr::AccessDenied;
    return writeFile(*p, bytes, std::ios::app);
}

int FileSystem::CreateFolder(const Str& path) const {
    auto p = machinePath(path);
    if (!p) return fserr::PathNotFound;
    std::error_code ec;
    if (fs::exists(*p, ec)) return fserr::AlreadyExists;
    fs::create_directory(*p, ec);
    return errorOf(ec);
}

int FileSystem::DeleteFile(const Str& path) const {
    auto p = machinePath(path);
    if (!p) return fserr::PathNotFound;
    std::error_code ec;
    if (!fs::is_regular_file(*p, ec)) return fserr::FileNotFound;
    fs::remove(*p, ec);
    return errorOf(ec);
}

std::vector<FolderEntry> FileSystem::List(const Str& folder) const {
    std::vector<FolderEntry> entries;
    auto p = machinePath(folder);
    std::error_code ec;
    if (!p || !fs::is_directory(*p, ec)) return entries;
    for (fs::directory_iterator it(*p, ec), end; !ec && it != end; it.increment(ec)) {
        std::error_code typeError;
        entries.push_back({toSystemText(it->path().filename()), it->is_directory(typeError)});
    }
    return entries;
}

}  // namespace quillet::settings
