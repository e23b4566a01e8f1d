#include "hosts/files/code_page.h"

#include <array>
#include <cctype>

namespace quillet::hosts::files {

namespace {

// 0x80 to 0x9F; the rest of the bytes map to the character of the same value.
constexpr std::array<char16_t, 32> kCp1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

std::string lowered(std::string_view text) {
    std::string out;
    for (char c : text) out += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return out;
}

// The length of the well-formed UTF-8 sequence at `i`, 0 when it is not one.
size_t utf8SequenceLength(std::string_view bytes, size_t i) {
    unsigned char b = static_cast<unsigned char>(bytes[i]);
    if (b < 0x80) return 1;
    size_t extra = (b >> 5) == 6 ? 1 : (b >> 4) == 14 ? 2 : (b >> 3) == 30 ? 3 : 0;
    if (extra == 0 || i + extra >= bytes.size()) return 0;
    char32_t cp = b & (0x3F >> extra);
    for (size_t k = 1; k <= extra; ++k) {
        unsigned char c = static_cast<unsigned char>(bytes[i + k]);
        if ((c & 0xC0) != 0x80) return 0;
        cp = (cp << 6) | (c & 0x3F);
    }
    static constexpr char32_t minimum[] = {0, 0x80, 0x800, 0x10000};
    if (cp < minimum[extra] || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return 0;
    return extra + 1;
}

}  // namespace

std::optional<CodePage> codePageNamed(std::string_view name) {
    std::string n = lowered(name);
    if (n == "1252" || n == "cp1252" || n == "windows-1252" || n == "ansi") return CodePage::Windows1252;
    if (n == "65001" || n == "utf-8" || n == "utf8") return CodePage::Utf8;
    return std::nullopt;
}

char16_t cp1252ToUnicode(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? kCp1252High[byte - 0x80] : static_cast<char16_t>(byte);
}

std::optional<unsigned char> unicodeToCp1252(char16_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<unsigned char>(c);
    for (size_t k = 0; k < kCp1252High.size(); ++k) {
        if (kCp1252High[k] == c) return static_cast<unsigned char>(0x80 + k);
    }
    return std::nullopt;
}

std::optional<Str> decodeBytes(std::string_view bytes, CodePage codePage, size_t* badOffset) {
    if (codePage == CodePage::Windows1252) {
        Str out(bytes.size(), u'\0');
        for (size_t i = 0; i < bytes.size(); ++i) out[i] = cp1252ToUnicode(static_cast<unsigned char>(bytes[i]));
        return out;
    }
    for (size_t i = 0; i < bytes.size();) {
        size_t length = utf8SequenceLength(bytes, i);
        if (length == 0) {
            if (badOffset) *badOffset = i;
            return std::nullopt;
        }
        i += length;
    }
    return basic::fromUtf8(bytes);
}

std::string encodeText(std::u16string_view text, CodePage codePage) {
    if (codePage == CodePage::Utf8) return basic::toUtf8(text);
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        auto byte = unicodeToCp1252(text[i]);
        out += byte ? static_cast<char>(*byte) : '?';
        // A character outside the basic plane is one "?", not two.
        bool pair = text[i] >= 0xD800 && text[i] <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
                    text[i + 1] <= 0xDFFF;
        if (pair) ++i;
    }
    return out;
}

}  // namespace quillet::hosts::files
