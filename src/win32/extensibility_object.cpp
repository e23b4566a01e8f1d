#include "win32/extensibility_object.h"

#include "win32/guids.h"

namespace quillet::win32 {

namespace {

struct MethodName {
    const wchar_t* name;
    DISPID id;
};
constexpr MethodName kMethods[] = {
    {L"OnConnection", kDispOnConnection},           {L"OnDisconnection", kDispOnDisconnection},
    {L"OnAddInsUpdate", kDispOnAddInsUpdate},       {L"OnStartupComplete", kDispOnStartupComplete},
    {L"OnBeginShutdown", kDispOnBeginShutdown},
};

// Argument `index` (first is 0) of `params`, which holds them last first; null when absent.
VARIANT* argAt(DISPPARAMS& params, UINT index) {
    if (index >= params.cArgs) return nullptr;
    VARIANT* v = &params.rgvarg[params.cArgs - 1 - index];
    return v->vt == (VT_VARIANT | VT_BYREF) ? v->pvarVal : v;
}

IDispatch* dispatchArg(DISPPARAMS& params, UINT index) {
    VARIANT* v = argAt(params, index);
    if (!v) return nullptr;
    if (v->vt == VT_DISPATCH) return v->pdispVal;
    if (v->vt == (VT_DISPATCH | VT_BYREF)) return *v->ppdispVal;
    return nullptr;
}

long longArg(DISPPARAMS& params, UINT index) {
    VARIANT* v = argAt(params, index);
    VARIANT converted;
    VariantInit(&converted);
    if (!v || FAILED(VariantChangeType(&converted, v, 0, VT_I4))) return 0;
    return converted.lVal;
}

}  // namespace

HRESULT ExtensibilityObject::QueryInterface(REFIID iid, void** out) {
    if (!out) return E_POINTER;
    if (iid == IID_IUnknown || iid == IID_IDispatch || iid == kIidExtensibility2.guid) {
        *out = static_cast<IDTExtensibility2*>(this);
        AddRef();
        return S_OK;
    }
    *out = nullptr;
    return E_NOINTERFACE;
}

ULONG ExtensibilityObject::AddRef() { return ++refs_; }

ULONG ExtensibilityObject::Release() {
    ULONG n = --refs_;
    if (n == 0) delete this;
    return n;
}

HRESULT ExtensibilityObject::GetTypeInfoCount(UINT* count) {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT ExtensibilityObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    if (info) *info = nullptr;
    return TYPE_E_ELEMENTNOTFOUND;
}

HRESULT ExtensibilityObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    if (!names || !ids) return E_POINTER;
    HRESULT hr = S_OK;
    for (UINT i = 0; i < count; ++i) {
        ids[i] = DISPID_UNKNOWN;
        for (const auto& m : kMethods) {
            if (i == 0 && names[i] && CompareStringOrdinal(names[i], -1, m.name, -1, TRUE) == CSTR_EQUAL) ids[i] = m.id;
        }
        if (ids[i] == DISPID_UNKNOWN) hr = DISP_E_UNKNOWNNAME;
    }
    return hr;
}

HRESULT ExtensibilityObject::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                                    EXCEPINFO*, UINT*) {
    if (!(flags & DISPATCH_METHOD)) return DISP_E_MEMBERNOTFOUND;
    if (result) VariantInit(result);
    DISPPARAMS none{};
    return invokeMethod(id, params ? *params : none);
}

HRESULT ExtensibilityObject::invokeMethod(DISPID id, DISPPARAMS& params) {
    switch (id) {
    case kDispOnConnection:
        return OnConnection(dispatchArg(params, 0), longArg(params, 1), dispatchArg(params, 2), nullptr);
    case kDispOnDisconnection: return OnDisconnection(longArg(params, 0), nullptr);
    case kDispOnAddInsUpdate: return OnAddInsUpdate(nullptr);
    case kDispOnStartupComplete: return OnStartupComplete(nullptr);
    case kDispOnBeginShutdown: return OnBeginShutdown(nullptr);
    default: return DISP_E_MEMBERNOTFOUND;
    }
}

HRESULT ExtensibilityObject::OnAddInsUpdate(SAFEARRAY**) { return S_OK; }
HRESULT ExtensibilityObject::OnStartupComplete(SAFEARRAY**) { return S_OK; }
HRESULT ExtensibilityObject::OnBeginShutdown(SAFEARRAY**) { return S_OK; }

}  // namespace quillet::win32
