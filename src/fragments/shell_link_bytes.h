#pragma once
// Little-endian reading and writing of the bytes of a shell link. The reader checks every read
// against the end of its range and raises ShellLinkError naming the part that was cut short.

#include <cstdint>
#include <string>
#include <string_view>

#include "fragments/shell_link.h"

namespace quillet::fragments::lnk {

class ByteReader {
public:
    ByteReader(std::string_view bytes, const char* part) : bytes_(bytes), part_(part) {}

    // A reader of the range [offset, offset + size) of this one, named after part.
    ByteReader sub(std::size_t offset, std::size_t size, const char* part) const;
    std::size_t pos() const { return pos_; }
    std::size_t size() const { return bytes_.size(); }
    void seek(std::size_t pos);
    void skip(std::size_t count) { seek(pos_ + need(count)); }
    std::uint8_t u8();
    std::uint16_t u16();
    std::uint32_t u32();
    // count bytes, or count UTF-16 units, as text.
    Str ansi(std::size_t count);
    Str utf16(std::size_t count);
    // Text up to a NUL that must lie inside the range; the reader stands behind the NUL.
    Str ansiZ();
    Str utf16Z();

private:
    std::size_t need(std::size_t count) const;

    std::string_view bytes_;
    const char* part_;
    std::size_t pos_ = 0;
};

void putU16(std::string& out, std::uint16_t value);
void putU32(std::string& out, std::uint32_t value);
void putUtf16(std::string& out, const Str& text);
void patchU32(std::string& out, std::size_t at, std::uint32_t value);

}  // namespace quillet::fragments::lnk
