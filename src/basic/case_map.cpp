// LCase, UCase and the case folding of Text compare: a fixed table of case pairs (ASCII, Latin-1
// Supplement, Latin Extended-A, Greek, Cyrillic), the same on every machine whatever its locale.
// Characters without a single-unit partner (German sharp s, dotless i, long s) stay as they are.

#include "basic/strings.h"

namespace quillet::basic {

namespace {

// Blocks where upper and lower case alternate: the even unit is upper when `upperEven`.
struct AlternatingBlock {
    char16_t first;
    char16_t last;
    bool upperEven;
};

constexpr AlternatingBlock alternating[] = {
    {0x0100, 0x012F, true},  {0x0132, 0x0137, true},  {0x0139, 0x0148, false}, {0x014A, 0x0177, true},
    {0x0179, 0x017E, false}, {0x0460, 0x0481, true},  {0x048A, 0x04BF, true},  {0x04C1, 0x04CE, false},
    {0x04D0, 0x052F, true},
};

// Blocks where a run of upper case letters maps to a run of lower case ones at a fixed distance.
struct ShiftedBlock {
    char16_t upperFirst;
    char16_t upperLast;
    char16_t lowerFirst;
};

constexpr ShiftedBlock shifted[] = {
    {u'A', u'Z', u'a'},      {0x00C0, 0x00D6, 0x00E0}, {0x00D8, 0x00DE, 0x00F8}, {0x0391, 0x03A1, 0x03B1},
    {0x03A3, 0x03AB, 0x03C3}, {0x0388, 0x038A, 0x03AD}, {0x038E, 0x038F, 0x03CD}, {0x0410, 0x042F, 0x0430},
    {0x0400, 0x040F, 0x0450},
};

// Single pairs outside the blocks above.
struct Pair {
    char16_t upper;
    char16_t lower;
};

constexpr Pair pairs[] = {{0x0178, 0x00FF}, {0x0386, 0x03AC}, {0x038C, 0x03CC}, {0x04C0, 0x04CF}};

char16_t upperOf(char16_t c) {
    if (c < 0x80) return (c >= u'a' && c <= u'z') ? static_cast<char16_t>(c - 32) : c;
    if (c == 0x03C2) return 0x03A3;  // final sigma
    for (const auto& b : shifted) {
        int span = b.upperLast - b.upperFirst;
        if (c >= b.lowerFirst && c <= b.lowerFirst + span) return static_cast<char16_t>(c - b.lowerFirst + b.upperFirst);
    }
    for (const auto& b : alternating) {
        if (c >= b.first && c <= b.last && ((c % 2 == 0) != b.upperEven)) return static_cast<char16_t>(c - 1);
    }
    for (const auto& p : pairs)
        if (c == p.lower) return p.upper;
    return c;
}

char16_t lowerOf(char16_t c) {
    if (c < 0x80) return (c >= u'A' && c <= u'Z') ? static_cast<char16_t>(c + 32) : c;
    for (const auto& b : shifted) {
        if (c >= b.upperFirst && c <= b.upperLast) return static_cast<char16_t>(c - b.upperFirst + b.lowerFirst);
    }
    for (const auto& b : alternating) {
        if (c >= b.first && c <= b.last && ((c % 2 == 0) == b.upperEven)) return static_cast<char16_t>(c + 1);
    }
    for (const auto& p : pairs)
        if (c == p.upper) return p.lower;
    return c;
}

}  // namespace

char16_t foldCase(char16_t c) { return upperOf(c); }

char16_t lowerCase(char16_t c) { return lowerOf(c); }

char16_t upperCase(char16_t c) { return upperOf(c); }

Str LCase(const Str& text) {
    Str out(text);
    for (auto& c : out) c = lowerOf(c);
    return out;
}

Str UCase(const Str& text) {
    Str out(text);
    for (auto& c : out) c = upperOf(c);
    return out;
}

}  // namespace quillet::basic
