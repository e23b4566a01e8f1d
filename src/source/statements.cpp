#include "source/statements.h"

namespace quillet::source {

using basic::Trim;

bool LineContinues(const Str& line) {
    Str trimmed = Trim(line);
    return !trimmed.empty() && trimmed.back() == u'_';
}

std::vector<Str> SplitArguments(const Str& text) {
    std::vector<Str> pieces;
    Str piece;
    bool inString = false;
    for (char16_t c : text) {
        if (c == u'"') inString = !inString;
        if (c == u',' && !inString) {
            pieces.push_back(Trim(piece));
            piece.clear();
        } else {
            piece += c;
        }
    }
    Str last = Trim(piece);
    if (!last.empty()) pieces.push_back(last);
    return pieces;
}

std::vector<Str> LineDisjunction(const Str& text) {
    if (basic::InStr(text, u": ") == 0) return {Trim(text)};
    std::vector<Str> statements;
    Str gathered;
    bool inQuotes = false;
    for (char16_t c : text) {
        if (c == u'"') inQuotes = !inQuotes;
        if (!inQuotes && c == u'\'') {
            statements.push_back(Trim(gathered));
            return statements;
        }
        if (!inQuotes && c == u':') {
            statements.push_back(Trim(gathered));
            gathered.clear();
            continue;
        }
        gathered += c;
    }
    if (!gathered.empty()) statements.push_back(Trim(gathered));
    return statements;
}

bool IsTypeSuffix(char16_t c) {
    for (const char16_t* p = kTypeSuffixChars; *p; ++p)
        if (*p == c) return true;
    return false;
}

Str TypeCharToName(const Str& suffix) {
    if (suffix == u"!") return u"Single";
    if (suffix == u"#") return u"Double";
    if (suffix == u"$") return u"String";
    if (suffix == u"%") return u"Integer";
    if (suffix == u"&") return u"Long";
    if (suffix == u"@") return u"Currency";
    return {};
}

Str RemoveChars(const Str& text, const Str& chars) {
    Str out;
    out.reserve(text.size());
    for (char16_t c : text)
        if (chars.find(c) == Str::npos) out += c;
    return out;
}

size_t nameEnd(const Str& text) {
    size_t i = 0;
    while (i < text.size()) {
        char16_t c = text[i];
        if (c == u'(' || c == u' ' || c == u'\t' || c == u'\r' || c == u'\n') break;
        ++i;
    }
    return i;
}

}  // namespace quillet::source
