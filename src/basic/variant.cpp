// Basic's conversions between the kinds of value a Variant holds.

#include "basic/variant.h"

#include <charconv>
#include <cmath>
#include <string>

#include "basic/dispatch.h"
#include "basic/strings.h"
#include "basic/unicode.h"

namespace quillet::basic {

namespace {

[[noreturn]] void typeMismatch() { throw VbError::standard(err::TypeMismatch); }

// A Double the way Basic prints it: up to 15 significant digits, trailing zeros dropped, and the
// scientific form ("1E+20", "1E-05") outside 1E-5 .. 1E+15.
Str doubleText(double d) {
    if (d == 0) return u"0";
    char buffer[64];
    auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, d, std::chars_format::general, 15);
    std::string text(buffer, ec == std::errc() ? end : buffer);
    size_t e = text.find('e');
    if (e != std::string::npos) text[e] = 'E';
    return fromUtf8(text);
}

// Rounds half to even as Basic's CLng does, within 64 bits.
long long roundToWhole(long double value) {
    if (std::isnan(value)) throw VbError::standard(err::Overflow);
    long double whole = std::floor(value);
    long double fraction = value - whole;
    if (fraction > 0.5L || (fraction == 0.5L && std::fmod(whole, 2.0L) != 0)) whole += 1;
    if (whole < -9223372036854775808.0L || whole >= 9223372036854775808.0L) throw VbError::standard(err::Overflow);
    return static_cast<long long>(whole);
}

long double numberOf(const Str& text) {
    auto value = parseNumber(text);
    if (!value) typeMismatch();
    return *value;
}

}  // namespace

Str CStr(const Variant& v) {
    if (isEmpty(v)) return {};
    if (auto b = std::get_if<bool>(&v)) return *b ? u"True" : u"False";
    if (auto n = std::get_if<long long>(&v)) return fromUtf8(std::to_string(*n));
    if (auto d = std::get_if<double>(&v)) return doubleText(*d);
    if (auto s = std::get_if<Str>(&v)) return *s;
    typeMismatch();
}

long long CLng(const Variant& v) {
    if (isEmpty(v)) return 0;
    if (auto b = std::get_if<bool>(&v)) return *b ? -1 : 0;
    if (auto n = std::get_if<long long>(&v)) return *n;
    if (auto d = std::get_if<double>(&v)) return roundToWhole(*d);
    if (auto s = std::get_if<Str>(&v)) return roundToWhole(numberOf(*s));
    typeMismatch();
}

bool CBool(const Variant& v) {
    if (isEmpty(v)) return false;
    if (auto b = std::get_if<bool>(&v)) return *b;
    if (auto n = std::get_if<long long>(&v)) return *n != 0;
    if (auto d = std::get_if<double>(&v)) return *d != 0;
    if (auto s = std::get_if<Str>(&v)) {
        Str word = Trim(*s);
        if (StrComp(word, u"True", Compare::Text) == 0) return true;
        if (StrComp(word, u"False", Compare::Text) == 0) return false;
        return numberOf(*s) != 0;
    }
    typeMismatch();
}

double CDbl(const Variant& v) {
    if (isEmpty(v)) return 0;
    if (auto b = std::get_if<bool>(&v)) return *b ? -1 : 0;
    if (auto n = std::get_if<long long>(&v)) return static_cast<double>(*n);
    if (auto d = std::get_if<double>(&v)) return *d;
    if (auto s = std::get_if<Str>(&v)) return static_cast<double>(numberOf(*s));
    typeMismatch();
}

DispatchPtr CObj(const Variant& v) {
    if (auto p = std::get_if<DispatchPtr>(&v)) return *p;
    throw VbError::standard(err::ObjectRequired);
}

Str TypeName(const Variant& v) {
    if (isEmpty(v)) return u"Empty";
    if (std::holds_alternative<bool>(v)) return u"Boolean";
    if (std::holds_alternative<long long>(v)) return u"Long";
    if (std::holds_alternative<double>(v)) return u"Double";
    if (std::holds_alternative<Str>(v)) return u"String";
    const auto& p = std::get<DispatchPtr>(v);
    return p ? p->TypeName() : u"Nothing";
}

}  // namespace quillet::basic
