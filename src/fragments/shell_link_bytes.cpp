// Little-endian bytes of shell links.

#include "fragments/shell_link_bytes.h"

#include "settings/ansi_text.h"

namespace quillet::fragments::lnk {

namespace {

[[noreturn]] void cutShort(const char* part) {
    throw ShellLinkError(std::string("The shortcut file is damaged: its ") + part + " runs past the end of its data.");
}

}  // namespace

ByteReader ByteReader::sub(std::size_t offset, std::size_t size, const char* part) const {
    if (offset > bytes_.size() || size > bytes_.size() - offset) cutShort(part);
    return ByteReader(bytes_.substr(offset, size), part);
}

std::size_t ByteReader::need(std::size_t count) const {
    if (count > bytes_.size() - pos_) cutShort(part_);
    return count;
}

void ByteReader::seek(std::size_t pos) {
    if (pos > bytes_.size()) cutShort(part_);
    pos_ = pos;
}

std::uint8_t ByteReader::u8() {
    need(1);
    return static_cast<std::uint8_t>(bytes_[pos_++]);
}

std::uint16_t ByteReader::u16() {
    std::uint16_t low = u8();
    return static_cast<std::uint16_t>(low | (u8() << 8));
}

std::uint32_t ByteReader::u32() {
    std::uint32_t low = u16();
    return low | (static_cast<std::uint32_t>(u16()) << 16);
}

Str ByteReader::ansi(std::size_t count) {
    need(count);
    Str text = settings::fromAnsi(bytes_.substr(pos_, count));
    pos_ += count;
    return text;
}

Str ByteReader::utf16(std::size_t count) {
    if (count > (bytes_.size() - pos_) / 2) cutShort(part_);
    Str text;
    text.reserve(count);
    for (std::size_t i = 0; i < count; ++i) text.push_back(static_cast<char16_t>(u16()));
    return text;
}

Str ByteReader::ansiZ() {
    std::size_t end = bytes_.find('\0', pos_);
    if (end == std::string_view::npos) cutShort(part_);
    Str text = ansi(end - pos_);
    ++pos_;
    return text;
}

Str ByteReader::utf16Z() {
    Str text;
    for (char16_t unit = static_cast<char16_t>(u16()); unit != 0; unit = static_cast<char16_t>(u16())) text.push_back(unit);
    return text;
}

void putU16(std::string& out, std::uint16_t value) {
    out.push_back(static_cast<char>(value & 0xFF));
    out.push_back(static_cast<char>(value >> 8));
}

void putU32(std::string& out, std::uint32_t value) {
    putU16(out, static_cast<std::uint16_t>(value & 0xFFFF));
    putU16(out, static_cast<std::uint16_t>(value >> 16));
}

void putUtf16(std::string& out, const Str& text) {
    for (char16_t unit : text) putU16(out, static_cast<std::uint16_t>(unit));
}

void patchU32(std::string& out, std::size_t at, std::uint32_t value) {
    for (int i = 0; i < 4; ++i) out[at + i] = static_cast<char>((value >> (8 * i)) & 0xFF);
}

}  // namespace quillet::fragments::lnk
