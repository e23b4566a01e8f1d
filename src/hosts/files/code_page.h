#pragma once
// The code pages module files are read and written in. The editor writes ANSI text in the
// system's code page: Windows-1252 unless told otherwise. UTF-8 is offered for projects kept
// in that form by other tools.

#include <optional>
#include <string>
#include <string_view>

#include "basic/unicode.h"

namespace quillet::hosts::files {

using basic::Str;

enum class CodePage { Windows1252 = 1252, Utf8 = 65001 };

// The code page of a number ("1252", "65001") or a name ("windows-1252", "cp1252", "utf-8").
std::optional<CodePage> codePageNamed(std::string_view name);

// Bytes to text. Windows-1252 maps every byte (0x81, 0x8D, 0x8F, 0x90 and 0x9D to the control
// characters of the same value, as Windows does). UTF-8 must be well formed: otherwise there is
// no result and `badOffset` gets the offset of the first bad byte.
std::optional<Str> decodeBytes(std::string_view bytes, CodePage codePage, size_t* badOffset = nullptr);
// Text to bytes. A character the code page cannot hold becomes "?", as in the editor.
std::string encodeText(std::u16string_view text, CodePage codePage);

// One Windows-1252 byte as text, and the byte of a character (none when it has none).
char16_t cp1252ToUnicode(unsigned char byte);
std::optional<unsigned char> unicodeToCp1252(char16_t c);

}  // namespace quillet::hosts::files
