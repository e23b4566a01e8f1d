#pragma once
// The machine's files seen through the system's paths. The system writes paths as Windows does
// ("C:\Users\me\file.ini", "\\server\share\x"); on Windows they are used as they are, elsewhere a
// drive letter is mapped to a machine folder (Z: is the machine's root, as under Wine) and "\"
// becomes "/". Every whole-file write is atomic: the bytes go to a temporary file beside the
// target, which then replaces it, so a process that dies half-way never leaves a cut file.
//
// Failures come back as Windows error numbers (0 for none), which the profile functions pass on
// as their last error.

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <cstdint>
#include <vector>

namespace quillet::settings {

using Str = std::u16string;

namespace fserr {
constexpr int None = 0;
constexpr int FileNotFound = 2;
constexpr int PathNotFound = 3;
constexpr int AccessDenied = 5;
constexpr int WriteFault = 29;
constexpr int ReadFault = 30;
constexpr int DiskFull = 112;
constexpr int AlreadyExists = 183;
}  // namespace fserr

struct FolderEntry {
    Str name;
    bool isFolder = false;
};

class FileSystem {
public:
    FileSystem();

    // Maps a drive letter ("C") to a machine folder; replaces an earlier mapping.
    void mapDrive(char16_t letter, const std::filesystem::path& machineFolder);
    // The machine path of a system path; none when it names a drive or server the machine lacks.
    std::optional<std::filesystem::path> machinePath(const Str& systemPath) const;
    // The system path of a machine path (the mapped drive with the longest matching folder).
    Str systemPath(const std::filesystem::path& machinePath) const;

    // PathFileExists: a file or a folder.
    bool PathExists(const Str& path) const;
    bool FolderExists(const Str& path) const;
    bool FileExists(const Str& path) const;

    // The size and time of last change of a file, to tell whether it changed; none when missing.
    std::optional<std::pair<std::uintmax_t, long long>> Stamp(const Str& path) const;
    // The whole file's bytes; an error number on failure.
    int ReadAll(const Str& path, std::string& bytes) const;
    // Replaces the file's bytes at once (temporary file and rename); a read-only file is refused.
    int WriteAll(const Str& path, std::string_view bytes) const;
    // Appends to the file, creating it.
    int Append(const Str& path, std::string_view bytes) const;
    // Makes one folder; its parent must exist.
    int CreateFolder(const Str& path) const;
    int DeleteFile(const Str& path) const;
    // The entries of a folder, without "." and "..", in the machine's order.
    std::vector<FolderEntry> List(const Str& folder) const;

private:
    std::map<char16_t, std::filesystem::path> drives_;
};

}  // namespace quillet::settings
