#pragma once
// The COM object behind every class the hosts load: IUnknown, IDispatch (no type library:
// the five names map to DISPIDs 1 to 5 and Invoke forwards to the vtable methods) and
// _IDTExtensibility2. QueryInterface gives the same pointer for all three, as the editor,
// which asks for IDispatch too, expects.

#include "win32/extensibility.h"
#include "win32/module.h"

namespace quillet::win32 {

class ExtensibilityObject : public IDTExtensibility2 {
public:
    ExtensibilityObject() = default;
    ExtensibilityObject(const ExtensibilityObject&) = delete;
    ExtensibilityObject& operator=(const ExtensibilityObject&) = delete;
    virtual ~ExtensibilityObject() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID lcid, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID lcid, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID lcid, WORD flags, DISPPARAMS* params, VARIANT* result,
                                     EXCEPINFO* info, UINT* argError) override;

    // The methods a class does not need answer S_OK.
    HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) override;
    HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) override;
    HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) override;

private:
    HRESULT invokeMethod(DISPID id, DISPPARAMS& params);

    ModuleObject counted_;
    std::atomic<ULONG> refs_{1};
};

}  // namespace quillet::win32
