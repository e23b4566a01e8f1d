#include "hosts/com/dispatch_object.h"

#include <algorithm>

#include "hosts/com/com_error.h"

namespace quillet::hosts::com {

namespace {

ComVariant changed(const ComVariant& v, VARTYPE type, const Str& member) {
    ComVariant result;
    HRESULT hr = VariantChangeType(result.get(), const_cast<VARIANT*>(v.get()), 0, type);
    if (FAILED(hr)) throw basic::VbError::standard(basic::err::TypeMismatch, member);
    return result;
}

}  // namespace

DISPID DispatchObject::idOf(const Str& member) const {
    if (!object_) throw basic::VbError::standard(basic::err::ObjectNotSet, member);
    std::wstring name = toWide(member);
    LPOLESTR names[] = {name.data()};
    DISPID id = DISPID_UNKNOWN;
    HRESULT hr = object_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(hr)) throw errorOf(hr, nullptr, member);
    return id;
}

ComVariant DispatchObject::invoke(const Str& member, WORD flags, ComArgs& args) const {
    DISPID id = idOf(member);
    std::vector<VARIANT> reversed;
    reversed.reserve(args.size() + 1);
    for (auto it = args.rbegin(); it != args.rend(); ++it) reversed.push_back(*it->get());
    DISPID putId = DISPID_PROPERTYPUT;
    DISPPARAMS params{};
    params.cArgs = static_cast<UINT>(reversed.size());
    params.rgvarg = reversed.empty() ? nullptr : reversed.data();
    if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
        params.cNamedArgs = 1;
        params.rgdispidNamedArgs = &putId;
    }
    ComVariant result;
    EXCEPINFO info{};
    UINT argError = 0;
    HRESULT hr = object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &params,
                                 (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) ? nullptr : result.get(),
                                 &info, &argError);
    if (FAILED(hr)) throw errorOf(hr, &info, member);
    return result;
}

ComVariant DispatchObject::get(const Str& member, ComArgs args) const {
    return invoke(member, DISPATCH_PROPERTYGET | DISPATCH_METHOD, args);
}

void DispatchObject::put(const Str& member, ComVariant value, ComArgs args) const {
    args.push_back(std::move(value));
    invoke(member, DISPATCH_PROPERTYPUT, args);
}

void DispatchObject::putRef(const Str& member, ComVariant value, ComArgs args) const {
    args.push_back(std::move(value));
    invoke(member, DISPATCH_PROPERTYPUTREF, args);
}

ComVariant DispatchObject::call(const Str& member, ComArgs args) const {
    return invoke(member, DISPATCH_METHOD, args);
}

long DispatchObject::getLong(const Str& member, ComArgs args) const { return toLong(get(member, std::move(args)), member); }
bool DispatchObject::getBool(const Str& member, ComArgs args) const { return toBool(get(member, std::move(args)), member); }
Str DispatchObject::getStr(const Str& member, ComArgs args) const { return toStr(get(member, std::move(args)), member); }
DispatchObject DispatchObject::getObject(const Str& member, ComArgs args) const {
    return toObject(get(member, std::move(args)), member);
}

long toLong(const ComVariant& v, const Str& member) { return changed(v, VT_I4, member).get()->lVal; }
bool toBool(const ComVariant& v, const Str& member) { return changed(v, VT_BOOL, member).get()->boolVal != VARIANT_FALSE; }
Str toStr(const ComVariant& v, const Str& member) {
    if (v.type() == VT_EMPTY || v.type() == VT_NULL) return Str();
    return fromBstr(changed(v, VT_BSTR, member).get()->bstrVal);
}

DispatchObject toObject(const ComVariant& v, const Str& member) {
    const VARIANT& raw = *v.get();
    switch (raw.vt) {
    case VT_EMPTY:
    case VT_NULL: return DispatchObject();
    case VT_DISPATCH: return DispatchObject(ComPtr<IDispatch>(raw.pdispVal));
    case VT_DISPATCH | VT_BYREF: return DispatchObject(ComPtr<IDispatch>(*raw.ppdispVal));
    case VT_UNKNOWN: {
        ComPtr<IUnknown> unknown(raw.punkVal);
        return DispatchObject(unknown.as<IDispatch>(IID_IDispatch));
    }
    default: throw basic::VbError::standard(basic::err::TypeMismatch, member);
    }
}

}  // namespace quillet::hosts::com
