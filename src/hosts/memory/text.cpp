#include "hosts/memory/text.h"

#include <string>

namespace quillet::hosts::memory {

bool sameText(const Str& a, const Str& b) { return basic::StrComp(a, b, basic::Compare::Text) == 0; }

Str foldedKey(const Str& name) { return basic::UCase(name); }

bool isIdentifierChar(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'_' ||
           c >= 0x80;
}

bool isBlankChar(char16_t c) { return c == u' ' || c == u'\t'; }

Str numberText(long n) {
    std::string digits = std::to_string(n);
    return Str(digits.begin(), digits.end());
}

std::vector<Str> splitLines(const Str& text, bool trailingBreakAddsLine) {
    std::vector<Str> lines;
    Str current;
    bool endedWithBreak = false;
    for (size_t i = 0; i < text.size(); ++i) {
        char16_t c = text[i];
        if (c == u'\r' || c == u'\n') {
            if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
            lines.push_back(std::move(current));
            current.clear();
            endedWithBreak = true;
        } else {
            current.push_back(c);
            endedWithBreak = false;
        }
    }
    if (!endedWithBreak || trailingBreakAddsLine || lines.empty()) lines.push_back(std::move(current));
    return lines;
}

Str joinLines(const std::vector<Str>& lines, size_t first, size_t count) {
    Str result;
    for (size_t i = first; i < first + count && i < lines.size(); ++i) {
        if (i > first) result += u"\r\n";
        result += lines[i];
    }
    return result;
}

}  // namespace quillet::hosts::memory
