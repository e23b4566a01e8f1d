#include "fake_object.h"

#include "basic/strings.h"
#include "hosts/com/bstr.h"

namespace quillet::wine {

using hosts::com::Bstr;
using hosts::com::fromWide;

namespace {

VARIANT& deref(VARIANT& v) { return v.vt == (VT_VARIANT | VT_BYREF) ? *v.pvarVal : v; }

ComVariant converted(const VARIANT& v, VARTYPE type) {
    ComVariant result;
    if (FAILED(VariantChangeType(result.get(), const_cast<VARIANT*>(&v), 0, type))) {
        throw basic::VbError::standard(basic::err::TypeMismatch);
    }
    return result;
}

// An error as the editor raises it: DISP_E_EXCEPTION, the number as a control error.
HRESULT raise(const basic::VbError& e, EXCEPINFO* info) {
    if (!info) return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, e.Number());
    *info = EXCEPINFO{};
    info->scode = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, e.Number() & 0xFFFF);
    info->bstrDescription = Bstr(e.Description()).detach();
    info->bstrSource = Bstr(e.Source().empty() ? Str(u"VBE") : e.Source()).detach();
    return DISP_E_EXCEPTION;
}

}  // namespace

bool Args::has(UINT i) const {
    if (i >= count()) return false;
    VARIANT& v = at(i);
    return !(v.vt == VT_ERROR && v.scode == DISP_E_PARAMNOTFOUND);
}

VARIANT& Args::at(UINT i) const {
    if (i >= count()) throw basic::VbError(450, u"Wrong number of arguments or invalid property assignment");
    return deref(params_.rgvarg[params_.cArgs - 1 - i]);
}

long Args::asLong(UINT i) const {
    VARIANT& v = at(i);
    if (v.vt == (VT_I4 | VT_BYREF)) return *v.plVal;
    return converted(v, VT_I4).get()->lVal;
}

bool Args::asBool(UINT i) const {
    VARIANT& v = at(i);
    if (v.vt == (VT_BOOL | VT_BYREF)) return *v.pboolVal != VARIANT_FALSE;
    return converted(v, VT_BOOL).get()->boolVal != VARIANT_FALSE;
}

Str Args::asStr(UINT i) const {
    VARIANT& v = at(i);
    if (v.vt == (VT_BSTR | VT_BYREF)) return hosts::com::fromBstr(*v.pbstrVal);
    return hosts::com::fromBstr(converted(v, VT_BSTR).get()->bstrVal);
}

IDispatch* Args::asDispatch(UINT i) const {
    VARIANT& v = at(i);
    if (v.vt == VT_DISPATCH) return v.pdispVal;
    if (v.vt == (VT_DISPATCH | VT_BYREF)) return *v.ppdispVal;
    if (v.vt == VT_EMPTY) return nullptr;
    throw basic::VbError::standard(basic::err::TypeMismatch);
}

void Args::setLong(UINT i, long value) const {
    VARIANT& v = at(i);
    if (v.vt == (VT_I4 | VT_BYREF)) {
        *v.plVal = value;
    } else if (v.vt == (VT_I2 | VT_BYREF)) {
        *v.piVal = static_cast<SHORT>(value);
    } else {
        // The editor's typed ByRef parameters take nothing else.
        throw basic::VbError::standard(basic::err::TypeMismatch);
    }
}

void Args::setDispatch(UINT i, IDispatch* value) const {
    VARIANT& v = at(i);
    if (v.vt != (VT_DISPATCH | VT_BYREF)) throw basic::VbError::standard(basic::err::TypeMismatch);
    if (*v.ppdispVal) (*v.ppdispVal)->Release();
    *v.ppdispVal = value;
    if (value) value->AddRef();
}

FakeObject::FakeObject(FakeLedger& ledger, Str typeName, std::shared_ptr<void> target)
    : ledger_(ledger), typeName_(std::move(typeName)), target_(std::move(target)) {
    ++ledger_.live;
    ++ledger_.created;
}

FakeObject::~FakeObject() { --ledger_.live; }

void FakeObject::member(const Str& name, Getter get, Putter put) {
    members_.push_back({name, std::move(get), std::move(put)});
}

HRESULT FakeObject::QueryInterface(REFIID iid, void** out) {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (iid == IID_IUnknown || iid == IID_IDispatch) {
        *out = static_cast<IDispatch*>(this);
    } else if (iid == kIidFakeObject) {
        *out = this;
    } else {
        *out = otherInterface(iid);
    }
    if (!*out) return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

ULONG FakeObject::Release() {
    ULONG n = --refs_;
    if (n == 0) delete this;
    return n;
}

HRESULT FakeObject::GetTypeInfoCount(UINT* count) {
    if (count) *count = 0;
    return S_OK;
}

HRESULT FakeObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    if (info) *info = nullptr;
    return TYPE_E_ELEMENTNOTFOUND;
}

HRESULT FakeObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    if (!names || !ids || count == 0) return E_INVALIDARG;
    Str wanted = fromWide(names[0], wcslen(names[0]));
    ids[0] = DISPID_UNKNOWN;
    for (size_t i = 0; i < members_.size(); ++i) {
        if (basic::StrComp(members_[i].name, wanted, basic::Compare::Text) == 0) ids[0] = static_cast<DISPID>(i + 1);
    }
    for (UINT i = 1; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT FakeObject::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result, EXCEPINFO* info,
                           UINT*) {
    if (id < 1 || static_cast<size_t>(id) > members_.size()) return DISP_E_MEMBERNOTFOUND;
    if (++ledger_.calls == ledger_.failAt) {
        ++ledger_.injected;
        ledger_.raised.push_back(std::string(typeName_.begin(), typeName_.end()) + "." +
                                 std::string(members_[id - 1].name.begin(), members_[id - 1].name.end()) + ": injected");
        return raise(basic::VbError(440, u"Automation error (injected)"), info);
    }
    DISPPARAMS none{};
    try {
        return call(members_[id - 1], flags, params ? *params : none, result);
    } catch (const basic::VbError& e) {
        ledger_.raised.push_back(std::string(typeName_.begin(), typeName_.end()) + "." +
                                 std::string(members_[id - 1].name.begin(), members_[id - 1].name.end()) + ": " +
                                 std::to_string(e.Number()));
        return raise(e, info);
    } catch (...) {
        return E_UNEXPECTED;
    }
}

HRESULT FakeObject::call(const Member& m, WORD flags, DISPPARAMS& params, VARIANT* result) {
    if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
        bool named = params.cNamedArgs == 1 && params.rgdispidNamedArgs &&
                     params.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT && params.cArgs >= 1;
        if (!named) {
            ledger_.violations.push_back("property put without DISPID_PROPERTYPUT: " +
                                         std::string(m.name.begin(), m.name.end()));
            return DISP_E_PARAMNOTFOUND;
        }
        if (!m.put) return DISP_E_MEMBERNOTFOUND;
        m.put(Args(params, 1, flags), deref(params.rgvarg[0]));
        return S_OK;
    }
    if (params.cNamedArgs != 0) return DISP_E_NONAMEDARGS;
    ComVariant value = m.get(Args(params, 0, flags));
    if (result) {
        VariantInit(result);
        VariantCopy(result, value.get());
    }
    return S_OK;
}

long longOf(const VARIANT& v) { return converted(v, VT_I4).get()->lVal; }
bool boolOf(const VARIANT& v) { return converted(v, VT_BOOL).get()->boolVal != VARIANT_FALSE; }
Str strOf(const VARIANT& v) { return hosts::com::fromBstr(converted(v, VT_BSTR).get()->bstrVal); }

FakeObject* fakeOf(IDispatch* object) {
    if (!object) return nullptr;
    void* fake = nullptr;
    if (FAILED(object->QueryInterface(kIidFakeObject, &fake))) return nullptr;
    static_cast<FakeObject*>(fake)->Release();
    return static_cast<FakeObject*>(fake);
}

ComVariant owned(IDispatch* fresh) {
    ComVariant v(fresh);
    if (fresh) fresh->Release();
    return v;
}

}  // namespace quillet::wine
