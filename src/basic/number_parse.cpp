// Reading numbers out of strings as Basic's run time does for IsNumeric, CDbl and CLng, with the
// en-US conventions ("." decimal point, "," thousands separator, "$" currency) on every machine.

#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>

#include "basic/strings.h"

namespace quillet::basic {

namespace {

bool isBlank(char16_t c) { return c == u' ' || c == u'\t'; }
bool isDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

int digitValue(char16_t c) {
    if (isDigit(c)) return c - u'0';
    if (c >= u'a' && c <= u'f') return c - u'a' + 10;
    if (c >= u'A' && c <= u'F') return c - u'A' + 10;
    return 99;
}

// "&H1F" or "&O17" (the "&" already checked). The value is taken as a signed Integer, Long or
// LongLong, whichever is the narrowest that holds its bits, as Basic reads such literals.
std::optional<long double> parseRadixLiteral(const Str& s) {
    if (s.size() < 3) return std::nullopt;
    char16_t kind = upperCase(s[1]);
    if (kind != u'H' && kind != u'O') return std::nullopt;
    const int base = kind == u'H' ? 16 : 8;
    // 64 bits are 16 hex digits, or 22 octal digits the first of which is 0 or 1.
    const size_t maxDigits = kind == u'H' ? 16 : 22;
    uint64_t value = 0;
    size_t significant = 0;
    int firstDigit = 0;
    for (size_t i = 2; i < s.size(); ++i) {
        int d = digitValue(s[i]);
        if (d >= base) return std::nullopt;
        if (significant == 0 && d == 0) continue;
        if (significant == 0) firstDigit = d;
        if (++significant > maxDigits) return std::nullopt;
        value = value * base + d;
    }
    if (base == 8 && significant == maxDigits && firstDigit > 1) return std::nullopt;
    if (value <= 0xFFFF) return static_cast<long double>(static_cast<int16_t>(value));
    if (value <= 0xFFFFFFFF) return static_cast<long double>(static_cast<int32_t>(value));
    return static_cast<long double>(static_cast<int64_t>(value));
}

// The parts of a decimal number as read: sign, digits with the separators dropped, exponent.
struct Reader {
    const Str& s;
    size_t at = 0;
    bool peek(char16_t c) const { return at < s.size() && s[at] == c; }
    bool take(char16_t c) {
        if (!peek(c)) return false;
        ++at;
        return true;
    }
    bool takeSign(bool& negative) {
        if (take(u'-')) return negative = true;
        return take(u'+');
    }
};

std::optional<long double> parseDecimal(const Str& s) {
    Reader r{s};
    bool negative = false;
    bool parens = r.take(u'(');
    bool currency = r.take(u'$');
    bool sign = r.takeSign(negative);
    if (!currency) currency = r.take(u'$');
    std::string ascii;
    int digits = 0;
    while (r.at < s.size() && (isDigit(s[r.at]) || (s[r.at] == u',' && digits > 0 && !ascii.empty()))) {
        if (s[r.at] != u',') {
            ascii += static_cast<char>(s[r.at]);
            ++digits;
        }
        ++r.at;
    }
    if (r.take(u'.')) {
        ascii += '.';
        while (r.at < s.size() && isDigit(s[r.at])) {
            ascii += static_cast<char>(s[r.at++]);
            ++digits;
        }
    }
    if (digits == 0) return std::nullopt;
    if (r.at < s.size() && (upperCase(s[r.at]) == u'E' || upperCase(s[r.at]) == u'D')) {
        ++r.at;
        ascii += 'e';
        bool negativeExponent = false;
        r.takeSign(negativeExponent);
        if (negativeExponent) ascii += '-';
        if (r.at >= s.size() || !isDigit(s[r.at])) return std::nullopt;
        while (r.at < s.size() && isDigit(s[r.at])) ascii += static_cast<char>(s[r.at++]);
    }
    if (!currency) currency = r.take(u'$');
    if (!sign && !parens) sign = r.takeSign(negative);
    if (!currency) r.take(u'$');
    if (parens && !r.take(u')')) return std::nullopt;
    if (r.at != s.size() || (parens && sign)) return std::nullopt;
    long double value = 0;
    auto [end, ec] = std::from_chars(ascii.data(), ascii.data() + ascii.size(), value);
    if (ec == std::errc::result_out_of_range && end == ascii.data() + ascii.size()) {
        // Only a vanishing exponent gets here harmlessly; an overflow is not a number.
        bool tiny = ascii.find("e-") != std::string::npos;
        if (!tiny) return std::nullopt;
        value = 0;
    } else if (ec != std::errc() || end != ascii.data() + ascii.size()) {
        return std::nullopt;
    }
    if (!std::isfinite(value) || std::fabs(value) > DBL_MAX) return std::nullopt;
    return (negative || parens) ? -value : value;
}

}  // namespace

std::optional<long double> parseNumber(const Str& text) {
    size_t first = 0, last = text.size();
    while (first < last && isBlank(text[first])) ++first;
    while (last > first && isBlank(text[last - 1])) --last;
    if (first == last) return std::nullopt;
    Str s = text.substr(first, last - first);
    if (s[0] == u'&') return parseRadixLiteral(s);
    return parseDecimal(s);
}

bool IsNumeric(const Str& text) { return parseNumber(text).has_value(); }

}  // namespace quillet::basic
