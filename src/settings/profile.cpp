// The portable profile functions over the line model and the file layer.

#include "settings/profile.h"

#include <algorithm>
#include <vector>

#include "settings/ansi_text.h"
#include "settings/profile_document.h"

namespace quillet::settings {

namespace {

// Fills a buffer as the Windows functions do: each string and a NUL, then a closing NUL. When
// the buffer is too small it holds what fits, ended by two NULs, and the result is size - 2.
long fillBuffer(const std::vector<Str>& strings, Str& buffer, long size) {
    buffer.assign(size > 0 ? static_cast<size_t>(size) : 0, u'\0');
    if (size < 2) return 0;
    size_t total = 0;
    for (const auto& s : strings) total += s.size() + 1;
    bool fits = total + 1 <= static_cast<size_t>(size);
    size_t room = fits ? total : static_cast<size_t>(size - 2), at = 0;
    for (const auto& s : strings) {
        if (at >= room) break;
        at += s.copy(buffer.data() + at, std::min(s.size(), room - at)) + 1;  // the NUL is there already
    }
    return static_cast<long>(room);
}

// The lines of a section text: NUL-separated, ended by an empty line or the end of the text.
std::vector<Str> linesOfSectionText(const Str& text) {
    std::vector<Str> lines;
    size_t pos = 0;
    while (pos < text.size()) {
        size_t nul = text.find(u'\0', pos);
        Str line = text.substr(pos, nul == Str::npos ? Str::npos : nul - pos);
        if (line.empty()) break;
        lines.push_back(line);
        if (nul == Str::npos) break;
        pos = nul + 1;
    }
    return lines;
}

}  // namespace

const ProfileDocument* PortableProfile::load(const Str& fileName, int& error) {
    auto stamp = files_.Stamp(fileName);
    if (cache_ && stamp && cache_->fileName == fileName && cache_->stamp == *stamp) {
        error = fserr::None;
        return &cache_->doc;
    }
    cache_.reset();
    std::string bytes;
    error = files_.ReadAll(fileName, bytes);
    if (error != fserr::None) return nullptr;
    cache_ = Cached{fileName, stamp.value_or(std::make_pair(std::uintmax_t{0}, 0LL)), ProfileDocument::parse(fromAnsi(bytes))};
    return &cache_->doc;
}

long PortableProfile::GetPrivateProfileSectionNamesA(Str& buffer, long size, const Str& fileName) {
    int error = 0;
    const ProfileDocument* doc = load(fileName, error);
    return fillBuffer(doc ? doc->sectionNames() : std::vector<Str>{}, buffer, size);
}

long PortableProfile::GetPrivateProfileSectionA(const Str& section, Str& buffer, long size, const Str& fileName) {
    int error = 0;
    const ProfileDocument* doc = load(fileName, error);
    auto entries = doc ? doc->sectionEntries(section) : std::nullopt;
    if (!entries) lastError_ = doc ? fserr::FileNotFound : error;
    return fillBuffer(entries.value_or(std::vector<Str>{}), buffer, size);
}

long PortableProfile::writeChange(const Str& fileName, const std::function<bool(ProfileDocument&)>& change) {
    int error = 0;
    const ProfileDocument* loaded = load(fileName, error);
    if (!loaded && error != fserr::FileNotFound) {
        lastError_ = error;
        return 0;
    }
    ProfileDocument doc = loaded ? *loaded : ProfileDocument{};
    if (!change(doc)) return 1;
    cache_.reset();
    if (int writeError = files_.WriteAll(fileName, toAnsi(doc.text()))) {
        lastError_ = writeError;
        return 0;
    }
    if (auto stamp = files_.Stamp(fileName)) cache_ = Cached{fileName, *stamp, std::move(doc)};
    return 1;
}

long PortableProfile::WritePrivateProfileSectionA(const Str& section, const std::optional<Str>& text,
                                                  const Str& fileName) {
    if (!text) return writeChange(fileName, [&](ProfileDocument& doc) { return doc.deleteSection(section); });
    auto lines = linesOfSectionText(*text);
    return writeChange(fileName, [&](ProfileDocument& doc) { return doc.replaceSection(section, lines); });
}

long PortableProfile::WritePrivateProfileStringA(const Str& section, const std::optional<Str>& key,
                                                 const std::optional<Str>& value, const Str& fileName) {
    return writeChange(fileName, [&](ProfileDocument& doc) {
        if (!key) return doc.deleteSection(section);
        if (!value) return doc.deleteKey(section, *key);
        return doc.setValue(section, *key, *value);
    });
}

}  // namespace quillet::settings
