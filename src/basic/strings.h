#pragma once
// Basic's string functions over UTF-16 text, with Basic's exact semantics:
// positions are 1-based and count UTF-16 units; an invalid argument raises
// VbError 5 as Basic does.

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

// InStr([start,] text, find[, compare]): 0 when not found; start < 1 raises 5; an empty find
// gives start when start <= Len(text) + 1... exactly as Basic: start if start <= Len(text), else 0,
// with InStr("", "") = 1.
long InStr(const Str& text, const Str& find, Compare compare = Compare::Binary);
long InStr(long start, const Str& text, const Str& find, Compare compare = Compare::Binary);
// InStrRev(text, find[, start = -1][, compare]): searches backwards from start (-1: the end).
long InStrRev(const Str& text, const Str& find, long start = -1, Compare compare = Compare::Binary);

// Blanks only (U+0020), as Basic's Trim.
Str Trim(const Str& text);
Str LTrim(const Str& text);
Str RTrim(const Str& text);

Str LCase(const Str& text);
Str UCase(const Str& text);

// Replace(text, find, replacement[, start = 1][, count = -1][, compare]): like Basic, the result
// starts at `start` (the part before it is dropped).
Str Replace(const Str& text, const Str& find, const Str& replacement, long start = 1, long count = -1,
            Compare compare = Compare::Binary);

// Split(text[, delimiter = " "][, limit = -1][, compare]): Split("") gives no elements; an empty
// delimiter gives the whole text as one element.
std::vector<Str> Split(const Str& text, const Str& delimiter = u" ", long limit = -1,
                       Compare compare = Compare::Binary);
Str Join(const std::vector<Str>& parts, const Str& delimiter = u" ");

// -1, 0 or 1.
int StrComp(const Str& a, const Str& b, Compare compare = Compare::Binary);

Str Space(long count);
Str String(long count, char16_t c);

// Basic's IsNumeric on a string: leading and trailing blanks, sign, digits, one decimal point,
// an exponent, &H / &O literals; "" is not numeric.
bool IsNumeric(const Str& text);

// Basic's Like operator: * ? # [abc] [a-z] [!a-z]; Text compare ignores case.
// A malformed pattern (an unclosed "[") raises 93 "Invalid pattern string".
bool Like(const Str& text, const Str& pattern, Compare compare = Compare::Binary);

// Chr and AscW for the code's own use.
Str ChrW(long code);
long AscW(const Str& text);  // raises 5 for ""

// Case folding used by Text compare (the same mapping as UCase), one unit.
char16_t foldCase(char16_t c);

}  // namespace quillet::basic
