#pragma once
// Basic's string functions over UTF-16 text, with Basic's exact semantics:
// positions are 1-based and count UTF-16 units; an invalid argument raises
// VbError 5 as Basic does.

#include <optional>
#include <string>
#include <vector>

#include "basic/vb_error.h"

namespace quillet::basic {

using Str = std::u16string;

// Basic's Option Compare: Binary compares code units; Text ignores case.
enum class Compare { Binary = 0, Text = 1 };

long Len(const Str& text);

// Mid(text, start[, length]): start < 1 or length < 0 raises 5; start past the end gives "".
Str Mid(const Str& text, long start);
Str Mid(const Str& text, long start, long length);
// Left and Right: a negative count raises 5; a count past the length gives the whole text.
Str Left(const Str& text, long count);
Str Right(const Str& text, long count);

// InStr([start,] text, find[, compare]): the position of the first match at or after start, 0
// when not found. As Basic: start < 1 raises 5; an empty text gives 0 (so InStr("", "") = 0);
// start > Len(text) gives 0; an empty find gives start.
long InStr(const Str& text, const Str& find, Compare compare = Compare::Binary);
long InStr(long start, const Str& text, const Str& find, Compare compare = Compare::Binary);
// InStrRev(text, find[, start = -1][, compare]): the last match that ends at or before start
// (-1: the end). start 0 or below -1 raises 5; an empty text gives 0; start > Len(text) gives 0;
// an empty find gives start (Len(text) for -1).
long InStrRev(const Str& text, const Str& find, long start = -1, Compare compare = Compare::Binary);

// Blanks only (U+0020), as Basic's Trim.
Str Trim(const Str& text);
Str LTrim(const Str& text);
Str RTrim(const Str& text);

Str LCase(const Str& text);
Str UCase(const Str& text);

// Replace(text, find, replacement[, start = 1][, count = -1][, compare]): like Basic, the result
// starts at `start` (the part before it is dropped): start past the end gives "", an empty find
// or a count of 0 gives Mid(text, start). start < 1 or count < -1 raises 5.
Str Replace(const Str& text, const Str& find, const Str& replacement, long start = 1, long count = -1,
            Compare compare = Compare::Binary);

// Split(text[, delimiter = " "][, limit = -1][, compare]): Split("") gives no elements; an empty
// delimiter gives the whole text as one element; limit n gives at most n elements, the last one
// holding the rest of the text; limit 0 gives no elements; limit < -1 raises 5.
std::vector<Str> Split(const Str& text, const Str& delimiter = u" ", long limit = -1,
                       Compare compare = Compare::Binary);
Str Join(const std::vector<Str>& parts, const Str& delimiter = u" ");

// -1, 0 or 1. Text compare compares the case-folded units (foldCase) by value.
int StrComp(const Str& a, const Str& b, Compare compare = Compare::Binary);

// A negative count raises 5.
Str Space(long count);
Str String(long count, char16_t c);

// Basic's IsNumeric on a string: leading and trailing blanks, sign, digits, one decimal point,
// an exponent, &H / &O literals; "" is not numeric.
// Accepted, as the en-US Basic runtime does: blanks and tabs around the number; a sign before or
// after it, or parentheses around it, for a negative number; a "$" before or after; "," thousands
// separators in the whole part; "." decimal point; exponent E or D with an optional sign;
// &H (hex) and &O (octal) literals of up to 16 hex or 22 octal digits. A number that overflows a
// Double is not numeric.
bool IsNumeric(const Str& text);
// The value of a string IsNumeric accepts, nothing otherwise. &H and &O literals take the sign of
// the Integer (up to 4 hex digits), Long (up to 8) or LongLong they fit in, as Basic's literals do.
std::optional<long double> parseNumber(const Str& text);

// Basic's Like operator: * ? # [abc] [a-z] [!a-z]; Text compare ignores case.
// A malformed pattern (an unclosed "[", a range with descending bounds) raises 93 "Invalid pattern
// string". Inside a list "[" is literal, "-" first or last is literal, "!" not first is literal;
// "[]" matches the zero-length string and "[!]" any one unit. "?" and "[...]" match one UTF-16
// unit. The matcher runs in O(Len(text) * Len(pattern)) whatever the pattern.
bool Like(const Str& text, const Str& pattern, Compare compare = Compare::Binary);

// Chr and AscW for the code's own use. ChrW takes -32768 to 65535 (a negative code is taken
// plus 65536), otherwise raises 5; AscW gives the first unit, 0 to 65535, and raises 5 for "".
Str ChrW(long code);
long AscW(const Str& text);

// Case folding used by Text compare (the same mapping as UCase), one unit.
char16_t foldCase(char16_t c);
// One unit as LCase and UCase map it.
char16_t lowerCase(char16_t c);
char16_t upperCase(char16_t c);

}  // namespace quillet::basic
