// The line model of a profile file.

#include "settings/profile_document.h"

#include "basic/strings.h"

namespace quillet::settings {

namespace {

const Str kCrLf = u"\r\n";

bool isProfileSpace(char16_t c) { return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n' || c == u'\v' || c == u'\f' || c == 0x1A; }

bool sameName(const Str& a, const Str& b) { return basic::StrComp(a, b, basic::Compare::Text) == 0; }

bool isBlank(const Str& line) { return trimProfileSpace(line).empty(); }

bool isComment(const Str& line) {
    Str t = trimProfileSpace(line);
    return !t.empty() && t.front() == u';';
}

struct Entry {
    Str key;
    std::optional<Str> value;
};

std::optional<Entry> entryOf(const Str& line) {
    Str t = trimProfileSpace(line);
    if (t.empty() || t.front() == u';' || headerName(line)) return std::nullopt;
    size_t eq = t.find(u'=');
    if (eq == Str::npos) return Entry{t, std::nullopt};
    return Entry{trimProfileSpace(t.substr(0, eq)), trimProfileSpace(t.substr(eq + 1))};
}

}  // namespace

Str trimProfileSpace(const Str& text) {
    size_t first = 0, last = text.size();
    while (first < last && isProfileSpace(text[first])) ++first;
    while (last > first && isProfileSpace(text[last - 1])) --last;
    return text.substr(first, last - first);
}

std::optional<Str> headerName(const Str& line) {
    Str t = trimProfileSpace(line);
    if (t.empty() || t.front() != u'[') return std::nullopt;
    size_t close = t.rfind(u']');
    if (close == Str::npos) return std::nullopt;
    return t.substr(1, close - 1);
}

ProfileDocument::Line ProfileDocument::makeLine(Str text, Str eol) {
    Line line{std::move(text), std::move(eol), std::nullopt, std::nullopt};
    line.header = headerName(line.text);
    if (!line.header) {
        if (auto entry = entryOf(line.text)) line.entry = entry->value ? entry->key + u"=" + *entry->value : entry->key;
    }
    return line;
}

ProfileDocument ProfileDocument::parse(const Str& content) {
    ProfileDocument doc;
    size_t pos = 0;
    while (pos < content.size()) {
        size_t nl = content.find(u'\n', pos);
        Line line;
        if (nl == Str::npos) {
            line.text = content.substr(pos);
            pos = content.size();
        } else {
            line.text = content.substr(pos, nl - pos);
            line.eol.assign(1, u'\n');
            if (!line.text.empty() && line.text.back() == u'\r') {
                line.text.pop_back();
                line.eol = kCrLf;
            }
            if (doc.lines_.empty() || doc.newline_.empty()) doc.newline_ = line.eol;
            pos = nl + 1;
        }
        doc.lines_.push_back(makeLine(std::move(line.text), std::move(line.eol)));
    }
    if (doc.newline_.empty()) doc.newline_ = kCrLf;
    return doc;
}

Str ProfileDocument::text() const {
    Str out;
    for (const auto& line : lines_) out += line.text + line.eol;
    return out;
}

std::vector<Str> ProfileDocument::sectionNames() const {
    std::vector<Str> names;
    for (const auto& line : lines_)
        if (line.header) names.push_back(*line.header);
    return names;
}

std::optional<ProfileDocument::Range> ProfileDocument::find(const Str& name) const {
    for (size_t i = 0; i < lines_.size(); ++i) {
        const auto& header = lines_[i].header;
        if (!header || !sameName(*header, name)) continue;
        size_t end = i + 1;
        while (end < lines_.size() && !lines_[end].header) ++end;
        return Range{i, end};
    }
    return std::nullopt;
}

std::optional<std::vector<Str>> ProfileDocument::sectionEntries(const Str& name) const {
    auto range = find(name);
    if (!range) return std::nullopt;
    std::vector<Str> entries;
    for (size_t i = range->header + 1; i < range->end; ++i)
        if (lines_[i].entry) entries.push_back(*lines_[i].entry);
    return entries;
}

size_t ProfileDocument::insertionPoint(const Range& range) const {
    size_t at = range.end;
    while (at > range.header + 1 && isBlank(lines_[at - 1].text)) --at;
    return at;
}

void ProfileDocument::insertLines(size_t at, const std::vector<Str>& lines) {
    if (at > 0 && lines_[at - 1].eol.empty()) lines_[at - 1].eol = newline_;
    std::vector<Line> added;
    for (const auto& text : lines) added.push_back(makeLine(text, newline_));
    lines_.insert(lines_.begin() + static_cast<long>(at), added.begin(), added.end());
}

void ProfileDocument::appendLines(const std::vector<Str>& lines) { insertLines(lines_.size(), lines); }

bool ProfileDocument::deleteSection(const Str& name) {
    auto range = find(name);
    if (!range) return false;
    lines_.erase(lines_.begin() + static_cast<long>(range->header), lines_.begin() + static_cast<long>(range->end));
    return true;
}

bool ProfileDocument::replaceSection(const Str& name, const std::vector<Str>& lines) {
    auto range = find(name);
    if (!range) {
        std::vector<Str> all{u"[" + name + u"]"};
        all.insert(all.end(), lines.begin(), lines.end());
        appendLines(all);
        return true;
    }
    std::vector<Line> body;
    for (size_t i = range->header + 1; i < range->end; ++i)
        if (isComment(lines_[i].text)) body.push_back(makeLine(lines_[i].text, newline_));
    for (const auto& text : lines) body.push_back(makeLine(text, newline_));
    size_t bodyEnd = insertionPoint(*range);
    std::vector<Line> old(lines_.begin() + static_cast<long>(range->header + 1), lines_.begin() + static_cast<long>(bodyEnd));
    bool same = old.size() == body.size();
    for (size_t i = 0; same && i < old.size(); ++i) same = old[i].text == body[i].text;
    if (same) return false;
    if (lines_[range->header].eol.empty()) lines_[range->header].eol = newline_;
    lines_.erase(lines_.begin() + static_cast<long>(range->header + 1), lines_.begin() + static_cast<long>(bodyEnd));
    lines_.insert(lines_.begin() + static_cast<long>(range->header + 1), body.begin(), body.end());
    return true;
}

bool ProfileDocument::setValue(const Str& section, const Str& key, const Str& value) {
    auto range = find(section);
    if (!range) {
        appendLines({u"[" + section + u"]", key + u"=" + value});
        return true;
    }
    for (size_t i = range->header + 1; i < range->end; ++i) {
        auto entry = entryOf(lines_[i].text);
        if (!entry || !sameName(entry->key, key)) continue;
        if (entry->value && *entry->value == value) return false;
        lines_[i] = makeLine(entry->key + u"=" + value, lines_[i].eol);
        return true;
    }
    insertLines(insertionPoint(*range), {key + u"=" + value});
    return true;
}

bool ProfileDocument::deleteKey(const Str& section, const Str& key) {
    auto range = find(section);
    if (!range) return false;
    for (size_t i = range->header + 1; i < range->end; ++i) {
        auto entry = entryOf(lines_[i].text);
        if (entry && sameName(entry->key, key)) {
            lines_.erase(lines_.begin() + static_cast<long>(i));
            return true;
        }
    }
    return false;
}

}  // namespace quillet::settings
