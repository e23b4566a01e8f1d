// Windows-1252 in both directions.

#include "settings/ansi_text.h"

#include <array>

namespace quillet::settings {

namespace {

// The characters of the bytes 0x80 to 0x9F; the five unassigned ones map to the C1 controls.
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char toByte(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<char>(c);
    for (size_t i = 0; i < kHighControls.size(); ++i)
        if (kHighControls[i] == c) return static_cast<char>(0x80 + i);
    return '?';
}

}  // namespace

std::string toAnsi(std::u16string_view text) {
    std::string out;
    out.reserve(text.size());
    for (char16_t c : text) out.push_back(toByte(c));
    return out;
}

Str fromAnsi(std::string_view bytes) {
    Str out;
    out.reserve(bytes.size());
    for (char b : bytes) {
        auto u = static_cast<unsigned char>(b);
        out.push_back(u >= 0x80 && u < 0xA0 ? kHighControls[u - 0x80] : static_cast<char16_t>(u));
    }
    return out;
}

}  // namespace quillet::settings
