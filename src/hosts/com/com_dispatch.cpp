#include "hosts/com/com_dispatch.h"

#include <ocidl.h>

#include "hosts/com/com_error.h"

namespace quillet::hosts::com {

namespace {

ComArgs comArgsOf(const basic::Args& args) {
    ComArgs result;
    result.reserve(args.size());
    for (const auto& a : args) result.push_back(fromBasic(a));
    return result;
}

Str nameOf(ITypeInfo* info) {
    Bstr name;
    if (!info || FAILED(info->GetDocumentation(MEMBERID_NIL, name.put(), nullptr, nullptr, nullptr))) return Str();
    return name.str();
}

}  // namespace

Str ComDispatch::TypeName() const {
    IDispatch* raw = object_.raw();
    if (!raw) return u"Nothing";
    Str name;
    ComPtr<IProvideClassInfo> classInfo = object_.ptr().as<IProvideClassInfo>(IID_IProvideClassInfo);
    ComPtr<ITypeInfo> info;
    if (classInfo && SUCCEEDED(classInfo->GetClassInfo(info.put()))) name = nameOf(info.get());
    if (name.empty() && SUCCEEDED(raw->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.put()))) name = nameOf(info.get());
    // The default interface of a class is named after it with a leading underscore.
    if (!name.empty() && name.front() == u'_') name.erase(0, 1);
    return name.empty() ? Str(u"Object") : name;
}

basic::Variant ComDispatch::Get(const Str& member, const basic::Args& args) {
    return toBasic(*object_.get(member, comArgsOf(args)).get());
}

void ComDispatch::Put(const Str& member, const basic::Variant& value, const basic::Args& args) {
    ComVariant v = fromBasic(value);
    if (v.type() == VT_DISPATCH) {
        object_.putRef(member, std::move(v), comArgsOf(args));
    } else {
        object_.put(member, std::move(v), comArgsOf(args));
    }
}

basic::Variant ComDispatch::Call(const Str& member, const basic::Args& args) {
    return toBasic(*object_.call(member, comArgsOf(args)).get());
}

basic::DispatchPtr wrapDispatch(IDispatch* object) {
    if (!object) return nullptr;
    return std::make_shared<ComDispatch>(DispatchObject(ComPtr<IDispatch>(object)));
}

IDispatch* comObjectOf(const basic::DispatchPtr& object) {
    auto* com = dynamic_cast<ComDispatch*>(object.get());
    return com ? com->object().raw() : nullptr;
}

basic::Variant toBasic(const VARIANT& v) {
    if (v.vt & VT_BYREF) {
        if (v.vt == (VT_VARIANT | VT_BYREF)) return toBasic(*v.pvarVal);
        ComVariant copy;
        if (FAILED(VariantCopyInd(copy.get(), const_cast<VARIANT*>(&v)))) throw basic::VbError::standard(basic::err::TypeMismatch);
        return toBasic(*copy.get());
    }
    switch (v.vt) {
    case VT_EMPTY:
    case VT_NULL: return basic::Empty{};
    case VT_BOOL: return v.boolVal != VARIANT_FALSE;
    case VT_I1: return static_cast<long long>(v.cVal);
    case VT_UI1: return static_cast<long long>(v.bVal);
    case VT_I2: return static_cast<long long>(v.iVal);
    case VT_UI2: return static_cast<long long>(v.uiVal);
    case VT_I4:
    case VT_INT: return static_cast<long long>(v.lVal);
    case VT_UI4:
    case VT_UINT: return static_cast<long long>(v.ulVal);
    case VT_I8: return static_cast<long long>(v.llVal);
    case VT_R4: return static_cast<double>(v.fltVal);
    case VT_R8:
    case VT_DATE: return v.dblVal;
    case VT_BSTR: return fromBstr(v.bstrVal);
    case VT_DISPATCH: return wrapDispatch(v.pdispVal);
    case VT_UNKNOWN: {
        ComPtr<IDispatch> dispatch = ComPtr<IUnknown>(v.punkVal).as<IDispatch>(IID_IDispatch);
        return wrapDispatch(dispatch.get());
    }
    default: {
        ComVariant asDouble;
        if (SUCCEEDED(VariantChangeType(asDouble.get(), const_cast<VARIANT*>(&v), 0, VT_R8))) return asDouble.get()->dblVal;
        throw basic::VbError::standard(basic::err::TypeMismatch);
    }
    }
}

ComVariant fromBasic(const basic::Variant& v) {
    struct Visitor {
        ComVariant operator()(const basic::Empty&) const { return ComVariant(); }
        ComVariant operator()(bool b) const { return ComVariant(b); }
        ComVariant operator()(long long n) const {
            if (n >= LONG_MIN && n <= LONG_MAX) return ComVariant(static_cast<long>(n));
            ComVariant r;
            r.get()->vt = VT_R8;
            r.get()->dblVal = static_cast<double>(n);
            return r;
        }
        ComVariant operator()(double d) const {
            ComVariant r;
            r.get()->vt = VT_R8;
            r.get()->dblVal = d;
            return r;
        }
        ComVariant operator()(const Str& s) const { return ComVariant(s); }
        ComVariant operator()(const basic::DispatchPtr& p) const {
            if (!p) return ComVariant(static_cast<IDispatch*>(nullptr));
            IDispatch* raw = comObjectOf(p);
            if (!raw) throw basic::VbError::standard(basic::err::TypeMismatch);
            return ComVariant(raw);
        }
    };
    return std::visit(Visitor{}, v);
}

}  // namespace quillet::hosts::com
