#include "source/signature_edit.h"

#include <vector>

namespace quillet::source {

namespace {

bool isBlank(char16_t c) { return c == u' ' || c == u'\t'; }

// The argument list of a header: its brackets and the top-level commas between them (0-based
// positions in the text).
struct ArgumentList {
    size_t open = Str::npos;
    size_t close = Str::npos;
    std::vector<size_t> commas;
};

ArgumentList argumentListOf(const Str& text) {
    ArgumentList list;
    bool quoted = false;
    long depth = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        char16_t c = text[i];
        if (c == u'"') {
            quoted = !quoted;
            continue;
        }
        if (quoted) continue;
        if (c == u'\'') {
            // A comment runs to the end of its line.
            while (i < text.size() && text[i] != u'\n') ++i;
            continue;
        }
        if (c == u'(') {
            if (list.open == Str::npos) list.open = i;
            ++depth;
        } else if (c == u')' && depth > 0) {
            if (--depth == 0) {
                list.close = i;
                return list;
            }
        } else if (c == u',' && depth == 1) {
            list.commas.push_back(i);
        }
    }
    return {};
}

// Steps over blanks and over " _" + CRLF continuations from `at`; `lineStart` tells whether a
// line break was crossed and `indentAt` where the last line crossed began.
size_t skipSpace(const Str& text, size_t at, size_t end, bool& lineStart, size_t& indentAt) {
    lineStart = false;
    while (at < end) {
        if (isBlank(text[at])) {
            ++at;
        } else if (text[at] == u'_' && at + 2 < text.size() && text[at + 1] == u'\r' && text[at + 2] == u'\n') {
            at += 3;
            lineStart = true;
            indentAt = at;
        } else {
            break;
        }
    }
    return at;
}

// Where the content before `end` stops: blanks and continuations left of it are passed over.
size_t contentEnd(const Str& text, size_t from, size_t end) {
    size_t at = end;
    while (at > from) {
        char16_t c = text[at - 1];
        if (isBlank(c) || c == u'\r' || c == u'\n') {
            --at;
        } else if (c == u'_' && at >= 2 && isBlank(text[at - 2]) && at < text.size() && text[at] == u'\r') {
            --at;
        } else {
            break;
        }
    }
    return at;
}

Str leadingBlanks(const Str& text, size_t from) {
    size_t at = from;
    while (at < text.size() && isBlank(text[at])) ++at;
    return text.substr(from, at - from);
}

}  // namespace

std::optional<Str> SignatureArgumentInsert(const Str& definition, const Str& argument, long before, bool blnNewLine) {
    ArgumentList list = argumentListOf(definition);
    if (list.open == Str::npos || list.close == Str::npos) return std::nullopt;
    bool lineStart = false;
    size_t indentAt = 0;
    size_t first = skipSpace(definition, list.open + 1, list.close, lineStart, indentAt);
    long count = first >= list.close ? 0 : static_cast<long>(list.commas.size()) + 1;
    Str text = definition;
    if (count == 0) return text.insert(list.open + 1, argument);
    if (before >= 1 && before <= count) {
        size_t from = before == 1 ? list.open + 1 : list.commas[static_cast<size_t>(before - 2)] + 1;
        size_t at = skipSpace(definition, from, list.close, lineStart, indentAt);
        if (lineStart) return text.insert(at, argument + u", _\r\n" + leadingBlanks(definition, indentAt));
        return text.insert(at, argument + u", ");
    }
    size_t last = list.commas.empty() ? list.open + 1 : list.commas.back() + 1;
    size_t at = contentEnd(definition, last, list.close);
    if (blnNewLine && definition.find(u"\r\n") != Str::npos) {
        skipSpace(definition, last, list.close, lineStart, indentAt);
        Str indent = lineStart ? leadingBlanks(definition, indentAt) : leadingBlanks(definition, 0);
        return text.insert(at, u", _\r\n" + indent + argument);
    }
    return text.insert(at, u", " + argument);
}

}  // namespace quillet::source
