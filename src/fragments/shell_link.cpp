// Reading shell links: the header, the target ID list, LinkInfo and the strings. Extra data
// blocks behind the strings are not needed and not read.

#include "fragments/shell_link.h"

#include "fragments/shell_link_bytes.h"
#include "fragments/shell_link_idlist.h"

namespace quillet::fragments {

using lnk::ByteReader;

namespace {

constexpr std::uint32_t kHeaderSize = 0x4C;
// {00021401-0000-0000-C000-000000000046} as stored.
constexpr unsigned char kLinkClsid[16] = {0x01, 0x14, 0x02, 0x00, 0x00, 0x00, 0x00, 0x00,
                                          0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46};
constexpr std::uint32_t kVolumeIdAndLocalBasePath = 0x1;
constexpr std::uint32_t kCommonNetworkRelativeLink = 0x2;

[[noreturn]] void notALink(const char* why) { throw ShellLinkError(std::string("The file is not a shortcut: ") + why); }

// Text at offset of the block, ANSI or UTF-16; empty for offset 0.
Str textAt(const ByteReader& block, std::uint32_t offset, bool unicode, const char* part) {
    if (offset == 0) return {};
    ByteReader text = block.sub(0, block.size(), part);
    text.seek(offset);
    return unicode ? text.utf16Z() : text.ansiZ();
}

Str networkName(const ByteReader& info, std::uint32_t offset) {
    ByteReader head = info.sub(offset, info.size() - offset, "network link");
    std::uint32_t size = head.u32();
    ByteReader link = info.sub(offset, size, "network link");
    link.seek(8);
    std::uint32_t netNameOffset = link.u32();
    if (netNameOffset > 0x14) {
        link.seek(0x14);
        return textAt(link, link.u32(), true, "network name");
    }
    return textAt(link, netNameOffset, false, "network name");
}

void readLinkInfo(ByteReader& file, ShellLink& link) {
    std::size_t start = file.pos();
    std::uint32_t size = file.u32();
    if (size < 0x1C) throw ShellLinkError("The shortcut file is damaged: its LinkInfo block is too short.");
    ByteReader info = file.sub(start, size, "LinkInfo block");
    file.skip(size - 4);
    info.seek(4);
    std::uint32_t headerSize = info.u32();
    std::uint32_t flags = info.u32();
    info.u32();  // VolumeID: the drive's kind, serial number and label are not needed
    std::uint32_t localBasePath = info.u32();
    std::uint32_t networkLink = info.u32();
    std::uint32_t suffix = info.u32();
    std::uint32_t localBasePathUnicode = 0, suffixUnicode = 0;
    if (headerSize >= 0x24) {
        localBasePathUnicode = info.u32();
        suffixUnicode = info.u32();
    }
    Str suffixText = suffixUnicode ? textAt(info, suffixUnicode, true, "path suffix")
                                   : textAt(info, suffix, false, "path suffix");
    if (flags & kVolumeIdAndLocalBasePath) {
        Str base = localBasePathUnicode ? textAt(info, localBasePathUnicode, true, "local base path")
                                        : textAt(info, localBasePath, false, "local base path");
        if (!base.empty()) link.LocalBasePath = base + suffixText;
    }
    if ((flags & kCommonNetworkRelativeLink) && networkLink) {
        Str share = networkName(info, networkLink);
        if (!share.empty()) link.NetworkPath = suffixText.empty() ? share : share + u"\\" + suffixText;
    }
}

Str readString(ByteReader& file, bool unicode) {
    std::uint16_t count = file.u16();
    return unicode ? file.utf16(count) : file.ansi(count);
}

void readStrings(ByteReader& file, ShellLink& link) {
    using namespace link_flags;
    bool unicode = link.Flags & IsUnicode;
    if (link.Flags & HasName) link.Name = readString(file, unicode);
    if (link.Flags & HasRelativePath) link.RelativePath = readString(file, unicode);
    if (link.Flags & HasWorkingDir) link.WorkingDir = readString(file, unicode);
    if (link.Flags & HasArguments) link.Arguments = readString(file, unicode);
    if (link.Flags & HasIconLocation) link.IconLocation = readString(file, unicode);
}

}  // namespace

Str ShellLink::TargetPath() const {
    if (!LocalBasePath.empty()) return LocalBasePath;
    if (!NetworkPath.empty()) return NetworkPath;
    return IdListPath;
}

ShellLink ParseShellLink(std::string_view bytes) {
    if (bytes.size() < kHeaderSize) notALink("it is shorter than a shortcut's header.");
    ByteReader file(bytes, "header");
    if (file.u32() != kHeaderSize) notALink("its header has the wrong size.");
    for (unsigned char expected : kLinkClsid)
        if (file.u8() != expected) notALink("its class id is not that of a shell link.");
    ShellLink link;
    link.Flags = file.u32();
    link.FileAttributes = file.u32();
    file.seek(kHeaderSize);
    if (link.Flags & link_flags::HasLinkTargetIDList) {
        std::uint16_t size = file.u16();
        ByteReader items = file.sub(file.pos(), size, "ID list");
        file.skip(size);
        link.IdListPath = lnk::ReadIdListPath(items);
    }
    if ((link.Flags & link_flags::HasLinkInfo) && !(link.Flags & link_flags::ForceNoLinkInfo)) readLinkInfo(file, link);
    else if (link.Flags & link_flags::HasLinkInfo) file.skip(file.sub(file.pos(), 4, "LinkInfo block").u32());
    readStrings(file, link);
    return link;
}

}  // namespace quillet::fragments
