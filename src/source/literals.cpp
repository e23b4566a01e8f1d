#include "source/literals.h"

#include <string>
#include <vector>

namespace quillet::source {

using basic::Compare;
using basic::Len;
using basic::Like;
using basic::Mid;
using basic::StrComp;

namespace {

bool isDigits(const Str& text, size_t most) {
    if (text.empty() || text.size() > most) return false;
    for (char16_t c : text)
        if (c < u'0' || c > u'9') return false;
    return true;
}

// A date's three parts, split at one kind of separator.
bool dateParts(const Str& text, std::vector<Str>& parts) {
    for (const char16_t* separator : {u"/", u"-", u"."}) {
        parts = basic::Split(text, separator);
        if (parts.size() != 3) continue;
        bool ok = true;
        for (const auto& part : parts) ok = ok && isDigits(part, 4);
        if (ok) return true;
    }
    return false;
}

bool isTime(Str text) {
    text = basic::Trim(text);
    for (const char16_t* suffix : {u" AM", u" PM", u"AM", u"PM"}) {
        long n = Len(suffix);
        if (Len(text) > n && StrComp(basic::Right(text, n), suffix, Compare::Text) == 0) {
            text = basic::Trim(basic::Left(text, Len(text) - n));
            break;
        }
    }
    auto parts = basic::Split(text, u":");
    if (parts.size() < 2 || parts.size() > 3) return false;
    for (const auto& part : parts)
        if (!isDigits(part, 2)) return false;
    return true;
}

Str twoDigits(const Str& digits) { return digits.size() == 1 ? u"0" + digits : digits; }

// mm/dd/yyyy from m/d/y or y-m-d; the text unchanged when it is no such date.
Str usDate(const Str& text) {
    std::vector<Str> parts;
    if (!dateParts(basic::Trim(text), parts)) return text;
    Str month = parts[0], day = parts[1], year = parts[2];
    if (parts[0].size() == 4) {
        year = parts[0];
        month = parts[1];
        day = parts[2];
    }
    if (year.size() <= 2) {
        // Basic's window for two-digit years: 00 to 29 are 2000s, 30 to 99 1900s.
        long value = std::stol(std::string(year.begin(), year.end()));
        year = (value < 30 ? u"20" : u"19") + twoDigits(year);
    }
    return twoDigits(month) + u"/" + twoDigits(day) + u"/" + year;
}

bool inQuotes(const Str& value) { return Len(value) >= 2 && value.front() == u'"' && value.back() == u'"'; }

}  // namespace

Str WrapText(const Str& text) {
    Str out;
    for (Str line : basic::Split(text, u"\r\n")) {
        while (Len(line) > 50) {
            long blank = basic::InStr(50, line, u" ");
            if (blank == 0) break;
            out += u"'   " + basic::Left(line, blank - 1) + u"\r\n";
            line = Mid(line, blank + 1);
        }
        out += u"'   " + line + u"\r\n";
    }
    return out;
}

bool LooksLikeDate(const Str& text) {
    Str trimmed = basic::Trim(text);
    if (trimmed.empty()) return false;
    std::vector<Str> parts;
    if (dateParts(trimmed, parts) || isTime(trimmed)) return true;
    long blank = basic::InStr(trimmed, u" ");
    return blank > 0 && dateParts(basic::Left(trimmed, blank - 1), parts) && isTime(Mid(trimmed, blank + 1));
}

Str QuoteValue(const Str& value, const Str& type) {
    if (basic::IsNumeric(value)) return value;
    bool isVariant = StrComp(type, u"Variant", Compare::Text) == 0;
    if (isVariant || StrComp(type, u"Date", Compare::Text) == 0) {
        if (Like(value, u"[#]*[#]")) return value;
        if (LooksLikeDate(value)) return u"#" + value + u"#";
    }
    if (isVariant || StrComp(type, u"String", Compare::Text) == 0) return inQuotes(value) ? value : u"\"" + value + u"\"";
    return value.empty() ? Str(u"0") : value;
}

Str LiteralFormat(const basic::Variant& value, const std::function<bool(const Str&)>& isStringConstant, bool isDate) {
    if (basic::isEmpty(value)) return {};
    if (const bool* flag = std::get_if<bool>(&value)) return *flag ? u"True" : u"False";
    if (!std::holds_alternative<Str>(value)) return basic::CStr(value);
    const Str& text = std::get<Str>(value);
    if (isDate) return u"#" + (basic::InStr(text, u":") == 0 ? usDate(text) : text) + u"#";
    for (const char16_t* name : kStringConstantNames)
        if (text == name) return text;
    if (isStringConstant && isStringConstant(text)) return text;
    return u"\"" + basic::Replace(text, u"\"", u"\"\"") + u"\"";
}

bool ToBoolean(const Str& text, bool defaultValue) {
    if (text.empty()) return defaultValue;
    Str lower = basic::LCase(text);
    return lower == u"true" || lower == u"yes" || lower == u"-1" || lower == u"1";
}

}  // namespace quillet::source
