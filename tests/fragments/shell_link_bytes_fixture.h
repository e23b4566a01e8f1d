#pragma once
// Shell link bytes laid out as the Windows shell writes them, built by hand for the reader's tests
// (independent of the writer under test).

#include <cstdint>
#include <string>

namespace quillet::fragments::testing {

inline void le16(std::string& out, std::uint32_t v) {
    out.push_back(static_cast<char>(v & 0xFF));
    out.push_back(static_cast<char>((v >> 8) & 0xFF));
}
inline void le32(std::string& out, std::uint32_t v) {
    le16(out, v & 0xFFFF);
    le16(out, v >> 16);
}
inline void utf16le(std::string& out, const std::u16string& text) {
    for (char16_t c : text) le16(out, c);
}

inline std::string linkHeader(std::uint32_t flags) {
    std::string out;
    le32(out, 0x4C);
    const unsigned char clsid[16] = {0x01, 0x14, 0x02, 0, 0, 0, 0, 0, 0xC0, 0, 0, 0, 0, 0, 0, 0x46};
    out.append(reinterpret_cast<const char*>(clsid), 16);
    le32(out, flags);
    le32(out, 0x20);
    out.append(24, '\0');
    le32(out, 1234);
    le32(out, 0);
    le32(out, 1);
    out.append(12, '\0');
    return out;
}

// LinkInfo as Windows writes it for a local file: a 0x1C header, a volume with a label, the ANSI
// base path and an empty suffix.
inline std::string windowsLinkInfo(const std::string& ansiPath) {
    std::string volume;
    le32(volume, 0x10 + 5);
    le32(volume, 3);
    le32(volume, 0x1234ABCD);
    le32(volume, 0x10);
    volume += std::string("DATA") + '\0';
    std::uint32_t volumeOffset = 0x1C, pathOffset = volumeOffset + static_cast<std::uint32_t>(volume.size());
    std::uint32_t suffixOffset = pathOffset + static_cast<std::uint32_t>(ansiPath.size()) + 1;
    std::string out;
    le32(out, suffixOffset + 1);
    le32(out, 0x1C);
    le32(out, 1);
    le32(out, volumeOffset);
    le32(out, pathOffset);
    le32(out, 0);
    le32(out, suffixOffset);
    return out + volume + ansiPath + '\0' + '\0';
}

// A file entry item with an 8.3 primary name and a version 9 extension block holding the long name.
inline std::string fileEntryItem(bool folder, const std::string& shortName, const std::u16string& longName) {
    std::string body;
    body.push_back(folder ? 0x31 : 0x32);
    body.push_back(0);
    le32(body, 0);
    le32(body, 0x5A2B1C3D);
    le16(body, folder ? 0x10 : 0x20);
    body += shortName + '\0';
    if ((body.size() + 2) % 2) body.push_back('\0');
    std::string ext;
    le16(ext, 0);  // size, patched below
    le16(ext, 9);
    le32(ext, 0xBEEF0004);
    le32(ext, 0x5A2B1C3D);
    le32(ext, 0x5A2B1C3D);
    le16(ext, 0x2E);
    le16(ext, 0);
    ext.append(16, '\0');  // file reference and unknown
    le16(ext, 0);          // long string size
    le32(ext, 0);
    le32(ext, 0);
    utf16le(ext, longName + u'\0');
    le16(ext, static_cast<std::uint32_t>(2 + body.size()));  // where the block starts in the item
    ext[0] = static_cast<char>(ext.size() & 0xFF);
    ext[1] = static_cast<char>(ext.size() >> 8);
    std::string item;
    le16(item, static_cast<std::uint32_t>(2 + body.size() + ext.size()));
    return item + body + ext;
}

inline std::string myComputerItem() {
    std::string item;
    le16(item, 20);
    item.push_back(0x1F);
    item.push_back(0x50);
    const unsigned char clsid[16] = {0xE0, 0x4F, 0xD0, 0x20, 0xEA, 0x3A, 0x69, 0x10,
                                     0xA2, 0xD8, 0x08, 0x00, 0x2B, 0x30, 0x30, 0x9D};
    item.append(reinterpret_cast<const char*>(clsid), 16);
    return item;
}

inline std::string volumeItem(const std::string& drive) {
    std::string item;
    le16(item, 25);
    item.push_back(0x2F);
    std::string name = drive;
    name.resize(22, '\0');
    return item + name;
}

inline std::string idList(const std::string& items) {
    std::string out;
    le16(out, static_cast<std::uint32_t>(items.size() + 2));
    return out + items + std::string(2, '\0');
}

inline std::string unicodeString(const std::u16string& text) {
    std::string out;
    le16(out, static_cast<std::uint32_t>(text.size()));
    utf16le(out, text);
    return out;
}

}  // namespace quillet::fragments::testing
