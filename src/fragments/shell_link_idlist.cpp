// The shell items of a link's target ID list.
//
// Items read: the root folder (a class id, "My Computer" and the like, which adds nothing to the
// path), a volume ("C:\"), a network location ("\\server\share"), and file entries (a folder or a
// file). A file entry holds a primary name (the short 8.3 name on Windows, in ANSI or, with flag
// 0x04, in UTF-16) and may carry an extension block 0xBEEF0004 with the long name, which wins.

#include "fragments/shell_link_idlist.h"

#include <vector>

#include "settings/ansi_text.h"

namespace quillet::fragments::lnk {

namespace {

constexpr std::uint8_t kRootFolder = 0x1F;
constexpr std::uint32_t kFileEntryExtension = 0xBEEF0004;
// {20D04FE0-3AEA-1069-A2D8-08002B30309D}, "My Computer", as stored.
constexpr unsigned char kMyComputer[16] = {0xE0, 0x4F, 0xD0, 0x20, 0xEA, 0x3A, 0x69, 0x10,
                                           0xA2, 0xD8, 0x08, 0x00, 0x2B, 0x30, 0x30, 0x9D};

// Where the long name starts in a 0xBEEF0004 block, by the block's version.
std::size_t longNameOffset(std::uint16_t version) {
    if (version >= 9) return 46;
    if (version == 8) return 42;
    if (version == 7) return 38;
    return 20;
}

// The long name from the extension blocks that start at from; empty when there is none.
Str longName(const ByteReader& item, std::size_t from) {
    std::size_t pos = from;
    while (pos + 8 <= item.size()) {
        ByteReader head = item.sub(pos, item.size() - pos, "file entry extension");
        std::uint16_t size = head.u16();
        std::uint16_t version = head.u16();
        std::uint32_t signature = head.u32();
        if (size < 8 || size > item.size() - pos) return {};
        if (signature == kFileEntryExtension && version >= 3) {
            ByteReader block = item.sub(pos, size, "file entry extension");
            if (longNameOffset(version) >= size) return {};
            block.seek(longNameOffset(version));
            return block.utf16Z();
        }
        pos += size;
    }
    return {};
}

Str fileEntryName(ByteReader& item, std::uint8_t type) {
    item.seek(14);  // size, type, unknown, file size, date and time, attributes
    Str primary = (type & 0x04) ? item.utf16Z() : item.ansiZ();
    std::size_t extensions = item.pos() + (item.pos() % 2);
    Str full = longName(item, extensions);
    return full.empty() ? primary : full;
}

Str join(const Str& path, const Str& name) {
    if (path.empty() || path.back() == u'\\') return path + name;
    return path + u"\\" + name;
}

}  // namespace

Str ReadIdListPath(ByteReader items) {
    Str path;
    while (true) {
        std::uint16_t size = items.u16();
        if (size == 0) return path;
        if (size < 3) throw ShellLinkError("The shortcut file is damaged: an item of its ID list is too short.");
        ByteReader item = items.sub(items.pos() - 2, size, "ID list item");
        items.skip(size - 2);
        item.seek(2);
        std::uint8_t type = item.u8();
        if (type == kRootFolder) continue;
        switch (type & 0x70) {
            case 0x20:  // volume: "C:\"
                path = item.ansiZ();
                break;
            case 0x30:  // file entry: a folder or a file
                path = join(path, fileEntryName(item, type));
                break;
            case 0x40:  // network location: flags, then the location's name
                item.skip(2);
                path = item.ansiZ();
                break;
            default:
                return {};
        }
    }
}

bool WriteIdList(std::string& out, const Str& drivePath) {
    if (drivePath.size() < 4 || drivePath[1] != u':' || drivePath[2] != u'\\') return false;
    char16_t drive = drivePath[0];
    if (!((drive >= u'A' && drive <= u'Z') || (drive >= u'a' && drive <= u'z'))) return false;
    std::vector<std::string> names;
    std::size_t start = 3;
    while (start <= drivePath.size()) {
        std::size_t end = drivePath.find(u'\\', start);
        if (end == Str::npos) end = drivePath.size();
        Str name = drivePath.substr(start, end - start);
        std::string bytes = settings::toAnsi(name);
        if (name.empty() || settings::fromAnsi(bytes) != name) return false;
        names.push_back(bytes);
        start = end + 1;
    }
    std::string items;
    putU16(items, 20);  // My Computer
    items.push_back(static_cast<char>(kRootFolder));
    items.push_back(0x50);
    items.append(reinterpret_cast<const char*>(kMyComputer), 16);
    std::string volume = settings::toAnsi(drivePath.substr(0, 3));
    volume.resize(22, '\0');
    putU16(items, 25);
    items.push_back(0x2F);
    items += volume;
    for (std::size_t i = 0; i < names.size(); ++i) {
        bool folder = i + 1 < names.size();
        std::string name = names[i] + '\0';
        if (name.size() % 2) name.push_back('\0');
        putU16(items, static_cast<std::uint16_t>(14 + name.size()));
        items.push_back(folder ? 0x31 : 0x32);
        items.push_back(0);
        putU32(items, 0);                    // file size
        putU32(items, 0);                    // date and time
        putU16(items, folder ? 0x10 : 0x20);  // directory or archive
        items += name;
    }
    putU16(items, 0);
    if (items.size() > 0xFFFF) return false;
    putU16(out, static_cast<std::uint16_t>(items.size()));
    out += items;
    return true;
}

}  // namespace quillet::fragments::lnk
