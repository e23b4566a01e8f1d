#pragma once
// Conversions between the system's UTF-16 text and the machine's byte strings.

#include <string>
#include <string_view>

namespace quillet::basic {

using Str = std::u16string;

// UTF-16 to UTF-8; a lone surrogate becomes U+FFFD.
std::string toUtf8(std::u16string_view text);
// UTF-8 to UTF-16; an invalid sequence becomes U+FFFD.
Str fromUtf8(std::string_view text);
// Plain ASCII (or UTF-8) literal to text, for the code's own constants.
inline Str u16(std::string_view text) { return fromUtf8(text); }

}  // namespace quillet::basic
