#pragma once
// Basic's Variant as the system uses it: Empty, Boolean, a whole number, a floating number,
// a string, or an object reference.

#include <memory>
#include <string>
#include <variant>

namespace quillet::basic {

using Str = std::u16string;
class Dispatch;
using DispatchPtr = std::shared_ptr<Dispatch>;

struct Empty {
    bool operator==(const Empty&) const = default;
};

using Variant = std::variant<Empty, bool, long long, double, Str, DispatchPtr>;

inline bool isEmpty(const Variant& v) { return std::holds_alternative<Empty>(v); }

// Basic's conversions; a value that does not convert raises 13 (Type mismatch).
// CStr prints a Double as Basic does: up to 15 significant digits ("0.1", "0.333333333333333"),
// the E form outside 1E-5 to 1E+15 ("1E+20", "1E-05"). CLng rounds half to even, reads strings
// as IsNumeric accepts them (13 otherwise), True is -1, and a value outside 64 bits raises 6.
// CBool reads "True" and "False" in any case, or a numeric string.
Str CStr(const Variant& v);
long long CLng(const Variant& v);
bool CBool(const Variant& v);
double CDbl(const Variant& v);
// The object in a Variant, or 424 (Object required).
DispatchPtr CObj(const Variant& v);
// Basic's TypeName: "Empty", "Boolean", "Long", "Double", "String", or the object's own name.
Str TypeName(const Variant& v);

}  // namespace quillet::basic
