#include "basic/unicode.h"

namespace quillet::basic {

namespace {

void appendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

void appendUtf16(Str& out, char32_t cp) {
    if (cp < 0x10000) {
        out += static_cast<char16_t>(cp);
    } else {
        cp -= 0x10000;
        out += static_cast<char16_t>(0xD800 + (cp >> 10));
        out += static_cast<char16_t>(0xDC00 + (cp & 0x3FF));
    }
}

}  // namespace

std::string toUtf8(std::u16string_view text) {
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
            text[i + 1] <= 0xDFFF) {
            c = 0x10000 + ((c - 0xD800) << 10) + (text[i + 1] - 0xDC00);
            ++i;
        } else if (c >= 0xD800 && c <= 0xDFFF) {
            c = 0xFFFD;
        }
        appendUtf8(out, c);
    }
    return out;
}

namespace {

// A lead byte's sequence length and the range its second byte must fall in (which rules out
// overlong forms, surrogates and code points past U+10FFFF); 0 for a byte that cannot lead.
struct Lead {
    int length;
    unsigned char low;
    unsigned char high;
};

Lead leadOf(unsigned char b) {
    if (b < 0x80) return {1, 0, 0};
    if (b >= 0xC2 && b <= 0xDF) return {2, 0x80, 0xBF};
    if (b == 0xE0) return {3, 0xA0, 0xBF};
    if (b == 0xED) return {3, 0x80, 0x9F};
    if (b >= 0xE1 && b <= 0xEF) return {3, 0x80, 0xBF};
    if (b == 0xF0) return {4, 0x90, 0xBF};
    if (b >= 0xF1 && b <= 0xF3) return {4, 0x80, 0xBF};
    if (b == 0xF4) return {4, 0x80, 0x8F};
    return {0, 0, 0};
}

}  // namespace

// Each maximal ill-formed part (a bad lead byte, or a sequence cut short) becomes one U+FFFD,
// the practice the Unicode standard recommends.
Str fromUtf8(std::string_view text) {
    Str out;
    out.reserve(text.size());
    size_t i = 0;
    while (i < text.size()) {
        unsigned char b = static_cast<unsigned char>(text[i]);
        Lead lead = leadOf(b);
        if (lead.length == 1) {
            out += static_cast<char16_t>(b);
            ++i;
            continue;
        }
        if (lead.length == 0) {
            out += u'\uFFFD';
            ++i;
            continue;
        }
        char32_t cp = b & (0x7F >> lead.length);
        size_t k = 1;
        for (; k < static_cast<size_t>(lead.length) && i + k < text.size(); ++k) {
            unsigned char c = static_cast<unsigned char>(text[i + k]);
            unsigned char low = k == 1 ? lead.low : 0x80;
            unsigned char high = k == 1 ? lead.high : 0xBF;
            if (c < low || c > high) break;
            cp = (cp << 6) | (c & 0x3F);
        }
        if (k < static_cast<size_t>(lead.length)) {
            out += u'\uFFFD';
        } else {
            appendUtf16(out, cp);
        }
        i += k;
    }
    return out;
}

}  // namespace quillet::basic
