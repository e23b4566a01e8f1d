#pragma once
// The value of a constant as a literal of its type, and whether a picked-up value suits a type.

#include <functional>

#include "basic/strings.h"

namespace quillet::source {

using basic::Str;

// Whether the text converts to the type, checked as Basic's conversion functions would: Boolean,
// Byte, Currency, Date, Decimal, Double, Integer, Long, Single (each in its range) and String; a
// type of another name takes any text.
bool ValueConvertsTo(const Str& text, const Str& type);

// The text as the value of a constant whose type has the VarType `varType` (7 Date, 8 String,
// 11 Boolean ...; 0, or a kind code of the type list, takes the kind the text reads as):
// - a Date that reads as a date is written mm/dd/yyyy when it holds no ":" and goes between "#";
// - a String stays bare when it is one of kStringConstantNames or a known String constant
//   (isStringConstant), else it is quoted;
// - a Boolean is False for 0 (or "False"), True for any other number (or "True");
// - any other type takes the text as it is; a text of no kind (empty) gives "".
// "" means there is no value to write.
Str ConstValueFormat(const Str& text, long varType, const std::function<bool(const Str&)>& isStringConstant = {});

}  // namespace quillet::source
