#pragma once
// Late binding by member name over IDispatch: GetIDsOfNames, then Invoke with the arguments
// reversed and, for a property put, the one named argument DISPID_PROPERTYPUT. A failure
// raises VbError (see com_error.h).

#include <vector>

#include "hosts/com/com_ptr.h"
#include "hosts/com/com_variant.h"

namespace quillet::hosts::com {

using ComArgs = std::vector<ComVariant>;

class DispatchObject {
public:
    DispatchObject() = default;
    // A null pointer gives an object whose every call raises 91 (Object variable not set).
    explicit DispatchObject(ComPtr<IDispatch> object) : object_(std::move(object)) {}

    IDispatch* raw() const { return object_.get(); }
    const ComPtr<IDispatch>& ptr() const { return object_; }
    explicit operator bool() const { return static_cast<bool>(object_); }

    // object.member(args) as a property read (or a method with a result).
    ComVariant get(const Str& member, ComArgs args = {}) const;
    // object.member(args) = value
    void put(const Str& member, ComVariant value, ComArgs args = {}) const;
    // Set object.member(args) = value
    void putRef(const Str& member, ComVariant value, ComArgs args = {}) const;
    // object.member args, the result dropped or returned.
    ComVariant call(const Str& member, ComArgs args = {}) const;

    // Typed reads; a value that does not convert raises 13.
    long getLong(const Str& member, ComArgs args = {}) const;
    bool getBool(const Str& member, ComArgs args = {}) const;
    Str getStr(const Str& member, ComArgs args = {}) const;
    // The object read, or a null object for Nothing (and for Empty).
    DispatchObject getObject(const Str& member, ComArgs args = {}) const;

private:
    DISPID idOf(const Str& member) const;
    ComVariant invoke(const Str& member, WORD flags, ComArgs& args) const;

    ComPtr<IDispatch> object_;
};

// Conversions of a result.
long toLong(const ComVariant& v, const Str& member);
bool toBool(const ComVariant& v, const Str& member);
Str toStr(const ComVariant& v, const Str& member);
DispatchObject toObject(const ComVariant& v, const Str& member);

}  // namespace quillet::hosts::com
