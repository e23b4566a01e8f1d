#pragma once
// Text files as lines: bytes decoded in a code page and split on line ends, keeping what is
// needed to write the same bytes back (the line end the file uses, whether its last line ends
// with one, a UTF-8 byte-order mark).

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "hosts/files/code_page.h"

namespace quillet::hosts::files {

struct TextLayout {
    CodePage codePage = CodePage::Windows1252;
    Str eol = u"\r\n";     // "\r\n", "\n" or "\r": the first line end of the file
    bool finalEol = true;  // the last line is terminated (a final line end adds no empty line)
    bool bom = false;      // the file starts with a UTF-8 byte-order mark (and is read as UTF-8)
};

struct TextLines {
    std::vector<Str> lines;
    TextLayout layout;
};

// Splits on CRLF, LF and CR. Throws ProjectError naming `displayName` for data that is not
// text (a NUL or another control character that text never holds, UTF-16) or that is not valid
// in the code page.
TextLines readTextLines(std::string_view bytes, CodePage codePage, const std::string& displayName);
// The bytes of `lines` laid out as `layout` says.
std::string writeTextLines(const std::vector<Str>& lines, const TextLayout& layout);

// The whole file; ProjectError when it cannot be read.
std::string readFileBytes(const std::filesystem::path& path);
// A path as the tool shows it (UTF-8, with "/").
std::string displayPath(const std::filesystem::path& path);
// Paths and text, through UTF-8 whatever the system's code page.
Str pathText(const std::filesystem::path& path);
std::filesystem::path pathOf(const Str& text);

}  // namespace quillet::hosts::files
