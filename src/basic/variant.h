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
Str CStr(const Variant& v);
long long CLng(const Variant& v);
bool CBool(const Variant& v);
double CDbl(const Variant& v);
// The object in a Variant, or 424 (Object required).
DispatchPtr CObj(const Variant& v);
// Basic's TypeName: "Empty", "Boolean", "Long", "Double", "String", or the object's own name.
Str TypeName(const Variant& v);

}  // namespace quillet::basic
