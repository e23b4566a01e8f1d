#pragma once
// The 8-bit text of the settings files: Windows-1252, as the ANSI profile functions read and write
// it. A character that has no byte in the code page is written as "?", as Windows does.

#include <string>
#include <string_view>

namespace quillet::settings {

using Str = std::u16string;

std::string toAnsi(std::u16string_view text);
Str fromAnsi(std::string_view bytes);

}  // namespace quillet::settings
