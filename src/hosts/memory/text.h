#pragma once
// Small text helpers of the in-memory editor.

#include <vector>

#include "basic/strings.h"

namespace quillet::hosts::memory {

using basic::Str;

// Equal ignoring case, as the editor compares names.
bool sameText(const Str& a, const Str& b);
// The form of a name used as a map key (names compared ignoring case).
Str foldedKey(const Str& name);
// A letter, digit or "_" (letters include everything outside ASCII).
bool isIdentifierChar(char16_t c);
bool isBlankChar(char16_t c);  // space or tab
// A whole number as decimal text.
Str numberText(long n);

// Splits text into lines at CRLF, CR or LF. With trailingBreakAddsLine, "a\r\n" gives "a" and
// ""; without, a final break only ends the last line. "" gives one empty line.
std::vector<Str> splitLines(const Str& text, bool trailingBreakAddsLine);
// count lines from index first, joined by CRLF.
Str joinLines(const std::vector<Str>& lines, size_t first, size_t count);

}  // namespace quillet::hosts::memory
