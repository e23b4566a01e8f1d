#pragma once
// Windows shell link files (".lnk"), read and written without the Windows shell, so that the
// shortcuts of the fragment library work the same on every system.
//
// A link holds its target in up to three places: the LinkInfo block (a local base path, or a
// network share and a path below it), the target ID list (the shell's items from "My Computer"
// down), and the relative path among the link's strings. ParseShellLink reads all of them; the
// target is the first of local path, network path and ID-list path that is present. A file that is
// not a link, or is cut short, raises ShellLinkError with a message that says what is wrong.
//
// WriteShellLink writes a link the shell opens: an ID list for a drive path whose names have
// bytes in the ANSI code page, LinkInfo with the volume and the local base path (ANSI and
// Unicode) or the network share, and Unicode strings.

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quillet::fragments {

using Str = std::u16string;

class ShellLinkError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

namespace link_flags {
constexpr std::uint32_t HasLinkTargetIDList = 0x1;
constexpr std::uint32_t HasLinkInfo = 0x2;
constexpr std::uint32_t HasName = 0x4;
constexpr std::uint32_t HasRelativePath = 0x8;
constexpr std::uint32_t HasWorkingDir = 0x10;
constexpr std::uint32_t HasArguments = 0x20;
constexpr std::uint32_t HasIconLocation = 0x40;
constexpr std::uint32_t IsUnicode = 0x80;
constexpr std::uint32_t ForceNoLinkInfo = 0x100;
}  // namespace link_flags

struct ShellLink {
    std::uint32_t Flags = 0;
    std::uint32_t FileAttributes = 0;
    // From LinkInfo: the local base path with the common path suffix behind it.
    Str LocalBasePath;
    // From LinkInfo: the network share ("\\server\share") and the common path suffix.
    Str NetworkPath;
    // The path the target ID list spells, when its items are drives, folders and files.
    Str IdListPath;
    // The strings (StringData).
    Str Name, RelativePath, WorkingDir, Arguments, IconLocation;

    // The absolute target: the local path, else the network path, else the ID-list path.
    Str TargetPath() const;
};

// Reads a link file's bytes. Raises ShellLinkError for a file that is not a link or is cut short.
ShellLink ParseShellLink(std::string_view bytes);

// A link to target (an absolute path, "C:\..." or "\\server\share\..."), kept in linkFolder: the
// target, its folder as working folder, and the target's path relative to linkFolder when both lie
// on the same drive or share.
ShellLink ShellLinkTo(const Str& target, const Str& linkFolder);

// The bytes of a link to link.TargetPath() (LocalBasePath or NetworkPath) with the link's strings.
std::string WriteShellLink(const ShellLink& link);

}  // namespace quillet::fragments
