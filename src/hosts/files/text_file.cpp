#include "hosts/files/text_file.h"

#include <fstream>
#include <sstream>

#include "hosts/files/project_error.h"

namespace quillet::hosts::files {

namespace {

constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";

bool startsWith(std::string_view bytes, std::string_view prefix) {
    return bytes.substr(0, prefix.size()) == prefix;
}

// Control characters a Basic source file may hold: tab, line ends, form feed, and the
// end-of-file mark old editors appended.
bool allowedControl(unsigned char byte) {
    return byte == '\t' || byte == '\n' || byte == '\r' || byte == '\f' || byte == 0x1A;
}

void checkIsText(std::string_view bytes, const std::string& displayName) {
    if (startsWith(bytes, "\xFF\xFE") || startsWith(bytes, "\xFE\xFF")) {
        throw ProjectError(displayName + ": is UTF-16 text; save it as ANSI (Windows-1252) or UTF-8");
    }
    for (size_t i = 0; i < bytes.size(); ++i) {
        unsigned char byte = static_cast<unsigned char>(bytes[i]);
        if (byte < 0x20 && !allowedControl(byte)) {
            std::ostringstream message;
            message << displayName << ": is not Basic source: binary data (byte 0x" << std::hex
                    << static_cast<int>(byte) << std::dec << " at offset " << i << ")";
            throw ProjectError(message.str());
        }
    }
}

}  // namespace

TextLines readTextLines(std::string_view bytes, CodePage codePage, const std::string& displayName) {
    checkIsText(bytes, displayName);
    TextLines result;
    result.layout.codePage = codePage;
    if (startsWith(bytes, kUtf8Bom)) {
        result.layout.bom = true;
        result.layout.codePage = CodePage::Utf8;
        bytes.remove_prefix(kUtf8Bom.size());
    }
    size_t badOffset = 0;
    auto text = decodeBytes(bytes, result.layout.codePage, &badOffset);
    if (!text) {
        throw ProjectError(displayName + ": cannot be decoded as UTF-8 (invalid byte at offset " +
                           std::to_string(badOffset + (result.layout.bom ? kUtf8Bom.size() : 0)) + ")");
    }
    bool eolSeen = false;
    size_t start = 0;
    result.layout.finalEol = false;
    for (size_t i = 0; i < text->size(); ++i) {
        char16_t c = (*text)[i];
        if (c != u'\r' && c != u'\n') continue;
        size_t length = c == u'\r' && i + 1 < text->size() && (*text)[i + 1] == u'\n' ? 2 : 1;
        if (!eolSeen) {
            result.layout.eol = text->substr(i, length);
            eolSeen = true;
        }
        result.lines.push_back(text->substr(start, i - start));
        i += length - 1;
        start = i + 1;
    }
    if (start < text->size()) {
        result.lines.push_back(text->substr(start));
    } else {
        result.layout.finalEol = !result.lines.empty();
    }
    return result;
}

std::string writeTextLines(const std::vector<Str>& lines, const TextLayout& layout) {
    Str text;
    for (size_t i = 0; i < lines.size(); ++i) {
        text += lines[i];
        if (i + 1 < lines.size() || layout.finalEol) text += layout.eol;
    }
    std::string bytes = layout.bom ? std::string(kUtf8Bom) : std::string();
    return bytes + encodeText(text, layout.codePage);
}

std::string readFileBytes(const std::filesystem::path& path) {
    std::error_code ec;
    if (!std::filesystem::exists(path, ec)) throw ProjectError(displayPath(path) + ": file not found");
    if (std::filesystem::is_directory(path, ec)) throw ProjectError(displayPath(path) + ": is a folder, not a file");
    std::ifstream in(path, std::ios::binary);
    if (!in) throw ProjectError(displayPath(path) + ": cannot be opened");
    std::ostringstream content;
    content << in.rdbuf();
    if (in.bad()) throw ProjectError(displayPath(path) + ": cannot be read");
    return content.str();
}

std::string displayPath(const std::filesystem::path& path) {
    std::u8string text = path.generic_u8string();
    return std::string(text.begin(), text.end());
}

Str pathText(const std::filesystem::path& path) {
    std::u8string text = path.u8string();
    return basic::fromUtf8(std::string(text.begin(), text.end()));
}

std::filesystem::path pathOf(const Str& text) {
    std::string bytes = basic::toUtf8(text);
    return std::filesystem::path(std::u8string(bytes.begin(), bytes.end()));
}

}  // namespace quillet::hosts::files
