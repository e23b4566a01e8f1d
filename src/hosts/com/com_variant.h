#pragma once
// An owned VARIANT, and the conversions between VARIANT and the system's Variant.

#include <windows.h>
#include <oleauto.h>

#include "basic/variant.h"
#include "hosts/com/bstr.h"

namespace quillet::hosts::com {

class ComVariant {
public:
    ComVariant() { VariantInit(&v_); }
    explicit ComVariant(long value) : ComVariant() {
        v_.vt = VT_I4;
        v_.lVal = value;
    }
    explicit ComVariant(bool value) : ComVariant() {
        v_.vt = VT_BOOL;
        v_.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    }
    explicit ComVariant(const Str& value) : ComVariant() {
        v_.vt = VT_BSTR;
        v_.bstrVal = Bstr(value).detach();
    }
    explicit ComVariant(const char16_t* value) : ComVariant(Str(value)) {}
    // Holds its own reference on the object; null gives Nothing.
    explicit ComVariant(IDispatch* value) : ComVariant() {
        v_.vt = VT_DISPATCH;
        v_.pdispVal = value;
        if (value) value->AddRef();
    }
    // By reference: the callee writes into the caller's variable.
    static ComVariant byRef(long& target) {
        ComVariant v;
        v.v_.vt = VT_I4 | VT_BYREF;
        v.v_.plVal = &target;
        return v;
    }
    static ComVariant byRef(IDispatch*& target) {
        ComVariant v;
        v.v_.vt = VT_DISPATCH | VT_BYREF;
        v.v_.ppdispVal = &target;
        return v;
    }
    // An optional argument left out.
    static ComVariant missing() {
        ComVariant v;
        v.v_.vt = VT_ERROR;
        v.v_.scode = DISP_E_PARAMNOTFOUND;
        return v;
    }

    ComVariant(const ComVariant& other) : ComVariant() { VariantCopy(&v_, const_cast<VARIANT*>(&other.v_)); }
    ComVariant(ComVariant&& other) noexcept : v_(other.v_) { VariantInit(&other.v_); }
    ComVariant& operator=(ComVariant other) noexcept {
        std::swap(v_, other.v_);
        return *this;
    }
    ~ComVariant() { VariantClear(&v_); }

    VARIANT* get() { return &v_; }
    const VARIANT* get() const { return &v_; }
    VARTYPE type() const { return v_.vt; }

private:
    VARIANT v_;
};

// The system's value of a VARIANT (by-reference values are read through); an object becomes a
// late-bound Dispatch over it. A type the system has no place for raises 13.
basic::Variant toBasic(const VARIANT& v);
// The VARIANT of a system value; an object that is not a COM object raises 13.
ComVariant fromBasic(const basic::Variant& v);

}  // namespace quillet::hosts::com
