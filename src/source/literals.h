#pragma once
// Values written as Basic literals, comment blocks, and Booleans read from text.

#include <functional>

#include "basic/strings.h"
#include "basic/variant.h"

namespace quillet::source {

using basic::Str;

// Each line of the text as a comment line "'   " & line & "\r\n"; a line longer than 50
// characters is cut at its first blank at column 50 or beyond (the blank goes), and the rest is
// treated again; a line with no such blank stays whole.
Str WrapText(const Str& text);

// A value as a literal of the type: a numeric value stays; for "Date" or "Variant" a date gets
// "#" round it unless it is already like "[#]*[#]"; for "String" or "Variant" a value not already
// in quotes gets them; an empty value of another type becomes "0".
Str QuoteValue(const Str& value, const Str& type);

// Whether the text reads as a date or a time: m/d/y, y-m-d or d.m.y (1 to 4 digits each), a time
// h:m[:s] with an optional AM or PM, or a date followed by a time.
bool LooksLikeDate(const Str& text);

// The names of the string constants that stand as they are, without quotes. " vbNullChar" keeps
// its leading blank, so a name typed without it is quoted.
inline constexpr const char16_t* kStringConstantNames[] = {
    u"vbNullString", u"vbBack", u"vbCr", u"vbCrLf", u"vbFormFeed", u"vbLf",
    u"vbNewLine", u" vbNullChar", u"vbTab", u"vbVerticalTab"};

// A value as a literal by its kind: Booleans True or False, numbers as Basic prints them, a date
// (isDate) with "#" round it, formatted mm/dd/yyyy when it holds no ":", a string in quotes (inner
// quotes doubled) unless it is one of kStringConstantNames or a known String constant
// (isStringConstant), Empty as "".
Str LiteralFormat(const basic::Variant& value, const std::function<bool(const Str&)>& isStringConstant = {},
                  bool isDate = false);

// "true", "yes", "-1" and "1", in any case, are True; "" gives the default; the rest is False.
bool ToBoolean(const Str& text, bool defaultValue = false);

}  // namespace quillet::source
