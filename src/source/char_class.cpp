#include "source/char_class.h"

namespace quillet::source {

namespace {

// The letters of Windows-1252 above 0x7F, by their Unicode value: those of the 0x80-0x9F block
// (ƒ ˆ Š Œ Ž š œ ž Ÿ) and of Latin-1 (ª µ º, À-Ö, Ø-ö, ø-ÿ).
bool isHighLetter(char16_t c) {
    switch (c) {
    case 0x0192: case 0x02C6: case 0x0160: case 0x0152: case 0x017D:
    case 0x0161: case 0x0153: case 0x017E: case 0x0178:
    case 0x00AA: case 0x00B5: case 0x00BA:
        return true;
    default:
        break;
    }
    return (c >= 0x00C0 && c <= 0x00FF) && c != 0x00D7 && c != 0x00F7;
}

// Superscript one, two and three count as digits for the character-type table.
bool isDigit(char16_t c) { return (c >= u'0' && c <= u'9') || c == 0x00B2 || c == 0x00B3 || c == 0x00B9; }

}  // namespace

bool IsCharAlphaA(char16_t c) { return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || isHighLetter(c); }

bool IsCharAlphaNumericA(char16_t c) { return IsCharAlphaA(c) || isDigit(c); }

}  // namespace quillet::source
