#include "source/const_values.h"

#include "basic/variant.h"
#include "source/literals.h"

namespace quillet::source {

using basic::Compare;
using basic::StrComp;

namespace {

bool is(const Str& a, const char16_t* b) { return StrComp(a, b, Compare::Text) == 0; }

bool isBooleanWord(const Str& text) { return is(text, u"True") || is(text, u"False"); }

bool withinRange(const Str& text, long double low, long double high) {
    auto number = basic::parseNumber(text);
    return number && *number >= low && *number <= high;
}

bool readsAsDate(const Str& text) {
    Str trimmed = basic::Trim(text);
    if (basic::Like(trimmed, u"[#]*[#]")) trimmed = trimmed.substr(1, trimmed.size() - 2);
    return LooksLikeDate(trimmed);
}

// The VarType a Variant would take from the text: 5 a number, 11 True or False, 7 a date, 8 any
// other text, 0 for no text.
long varTypeOfText(const Str& text) {
    if (text.empty()) return 0;
    if (basic::IsNumeric(text)) return 5;
    if (isBooleanWord(basic::Trim(text))) return 11;
    if (readsAsDate(text)) return 7;
    return 8;
}

Str dateValue(const Str& text) {
    if (basic::Like(text, u"[#]*[#]")) return text;
    if (LooksLikeDate(text)) return LiteralFormat(basic::Variant(basic::Trim(text)), {}, true);
    return QuoteValue(text, u"Date");
}

Str stringValue(const Str& text, const std::function<bool(const Str&)>& isStringConstant) {
    for (const char16_t* name : kStringConstantNames)
        if (is(text, name)) return text;
    if (!text.empty() && isStringConstant && isStringConstant(text)) return text;
    return QuoteValue(text, u"String");
}

Str booleanValue(const Str& text) {
    Str trimmed = basic::Trim(text);
    if (isBooleanWord(trimmed)) return is(trimmed, u"True") ? u"True" : u"False";
    auto number = basic::parseNumber(trimmed);
    return number && *number != 0 ? u"True" : u"False";
}

}  // namespace

bool ValueConvertsTo(const Str& text, const Str& type) {
    Str kind = basic::LCase(basic::Trim(type));
    if (kind == u"boolean") return basic::IsNumeric(text) || isBooleanWord(basic::Trim(text));
    if (kind == u"byte") return withinRange(text, -0.5L, 255.5L);
    if (kind == u"integer") return withinRange(text, -32768.5L, 32767.5L);
    if (kind == u"long") return withinRange(text, -2147483648.5L, 2147483647.5L);
    if (kind == u"currency") return withinRange(text, -922337203685477.5808L, 922337203685477.5807L);
    if (kind == u"single") return withinRange(text, -3.402823466e38L, 3.402823466e38L);
    if (kind == u"double" || kind == u"decimal") return basic::IsNumeric(text);
    if (kind == u"date") return basic::IsNumeric(text) || readsAsDate(text);
    return true;
}

Str ConstValueFormat(const Str& text, long varType, const std::function<bool(const Str&)>& isStringConstant) {
    long kind = varType > 0 && varType < 10000 ? varType : varTypeOfText(text);
    switch (kind) {
        case 0: return {};
        case 7: return dateValue(text);
        case 8: return stringValue(text, isStringConstant);
        case 11: return booleanValue(text);
        default: return text;
    }
}

}  // namespace quillet::source
