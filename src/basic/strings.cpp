// Basic's string functions: lengths, pieces, searches, replacing, splitting and comparing.

#include "basic/strings.h"

#include <algorithm>

namespace quillet::basic {

namespace {

[[noreturn]] void invalidCall() { throw VbError::standard(err::InvalidCall); }

Str folded(const Str& text) {
    Str out(text);
    for (auto& c : out) c = foldCase(c);
    return out;
}

// Finds `find` in `text` repeatedly. Text compare searches case-folded copies made once; the
// indexes are the same as in the original text, since folding maps one unit to one unit.
class Finder {
public:
    Finder(const Str& text, const Str& find, Compare compare) : text_(&text), find_(&find) {
        if (compare == Compare::Text) {
            foldedText_ = folded(text);
            foldedFind_ = folded(find);
            text_ = &foldedText_;
            find_ = &foldedFind_;
        }
    }
    Finder(const Finder&) = delete;
    Finder& operator=(const Finder&) = delete;
    // The 0-based index of the first match at or after `from`, or npos.
    size_t next(size_t from) const { return text_->find(*find_, from); }
    // The 0-based index of the last match starting at or before `from`, or npos.
    size_t last(size_t from) const { return text_->rfind(*find_, from); }

private:
    const Str* text_;
    const Str* find_;
    Str foldedText_;
    Str foldedFind_;
};

}  // namespace

long Len(const Str& text) { return static_cast<long>(text.size()); }

Str Mid(const Str& text, long start) {
    if (start < 1) invalidCall();
    if (static_cast<size_t>(start) > text.size()) return {};
    return text.substr(start - 1);
}

Str Mid(const Str& text, long start, long length) {
    if (start < 1 || length < 0) invalidCall();
    if (static_cast<size_t>(start) > text.size()) return {};
    return text.substr(start - 1, length);
}

Str Left(const Str& text, long count) {
    if (count < 0) invalidCall();
    return text.substr(0, count);
}

Str Right(const Str& text, long count) {
    if (count < 0) invalidCall();
    if (static_cast<size_t>(count) >= text.size()) return text;
    return text.substr(text.size() - count);
}

long InStr(const Str& text, const Str& find, Compare compare) { return InStr(1, text, find, compare); }

long InStr(long start, const Str& text, const Str& find, Compare compare) {
    if (start < 1) invalidCall();
    if (text.empty() || start > Len(text)) return 0;
    if (find.empty()) return start;
    size_t at = Finder(text, find, compare).next(start - 1);
    return at == Str::npos ? 0 : static_cast<long>(at) + 1;
}

long InStrRev(const Str& text, const Str& find, long start, Compare compare) {
    if (start == 0 || start < -1) invalidCall();
    if (text.empty()) return 0;
    if (start == -1) start = Len(text);
    if (start > Len(text)) return 0;
    if (find.empty()) return start;
    if (Len(find) > start) return 0;
    size_t at = Finder(text, find, compare).last(start - Len(find));
    return at == Str::npos ? 0 : static_cast<long>(at) + 1;
}

Str LTrim(const Str& text) {
    size_t first = text.find_first_not_of(u' ');
    return first == Str::npos ? Str() : text.substr(first);
}

Str RTrim(const Str& text) {
    size_t last = text.find_last_not_of(u' ');
    return last == Str::npos ? Str() : text.substr(0, last + 1);
}

Str Trim(const Str& text) { return LTrim(RTrim(text)); }

Str Replace(const Str& text, const Str& find, const Str& replacement, long start, long count, Compare compare) {
    if (start < 1 || count < -1) invalidCall();
    if (static_cast<size_t>(start) > text.size()) return {};
    Str rest = text.substr(start - 1);
    if (find.empty() || count == 0) return rest;
    Finder finder(rest, find, compare);
    Str out;
    size_t from = 0;
    for (long done = 0; count == -1 || done < count; ++done) {
        size_t at = finder.next(from);
        if (at == Str::npos) break;
        out.append(rest, from, at - from);
        out += replacement;
        from = at + find.size();
    }
    out.append(rest, from, Str::npos);
    return out;
}

std::vector<Str> Split(const Str& text, const Str& delimiter, long limit, Compare compare) {
    if (limit < -1) invalidCall();
    std::vector<Str> parts;
    if (text.empty() || limit == 0) return parts;
    if (delimiter.empty()) return {text};
    Finder finder(text, delimiter, compare);
    size_t from = 0;
    while (limit == -1 || static_cast<long>(parts.size()) < limit - 1) {
        size_t at = finder.next(from);
        if (at == Str::npos) break;
        parts.push_back(text.substr(from, at - from));
        from = at + delimiter.size();
    }
    parts.push_back(text.substr(from));
    return parts;
}

Str Join(const std::vector<Str>& parts, const Str& delimiter) {
    Str out;
    for (size_t i = 0; i < parts.size(); ++i) {
        if (i) out += delimiter;
        out += parts[i];
    }
    return out;
}

int StrComp(const Str& a, const Str& b, Compare compare) {
    size_t n = std::min(a.size(), b.size());
    for (size_t i = 0; i < n; ++i) {
        char16_t x = compare == Compare::Text ? foldCase(a[i]) : a[i];
        char16_t y = compare == Compare::Text ? foldCase(b[i]) : b[i];
        if (x != y) return x < y ? -1 : 1;
    }
    if (a.size() == b.size()) return 0;
    return a.size() < b.size() ? -1 : 1;
}

Str Space(long count) { return String(count, u' '); }

Str String(long count, char16_t c) {
    if (count < 0) invalidCall();
    return Str(static_cast<size_t>(count), c);
}

Str ChrW(long code) {
    if (code < -32768 || code > 65535) invalidCall();
    return Str(1, static_cast<char16_t>(code < 0 ? code + 65536 : code));
}

long AscW(const Str& text) {
    if (text.empty()) invalidCall();
    return text[0];
}

}  // namespace quillet::basic
