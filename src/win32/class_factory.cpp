#include "win32/class_factory.h"

#include <new>

#include "win32/connect_object.h"
#include "win32/connector_object.h"
#include "win32/guids.h"

namespace quillet::win32 {

namespace {

template <class T, class... Args>
IUnknown* make(Args... args) {
    try {
        return static_cast<IDTExtensibility2*>(new T(args...));
    } catch (...) {
        return nullptr;
    }
}

IUnknown* makeConnect() { return make<ConnectObject>(); }
IUnknown* makeExcelConnect() { return make<ConnectorObject>(addin::ConnectorKind::Excel); }
IUnknown* makeWordConnect() { return make<ConnectorObject>(addin::ConnectorKind::Word); }
IUnknown* makeAccessConnect() { return make<ConnectorObject>(addin::ConnectorKind::Access); }

}  // namespace

ObjectMaker makerOf(REFCLSID clsid) {
    if (clsid == kClsidConnect.guid) return makeConnect;
    if (clsid == kClsidExcelConnect.guid) return makeExcelConnect;
    if (clsid == kClsidWordConnect.guid) return makeWordConnect;
    if (clsid == kClsidAccessConnect.guid) return makeAccessConnect;
    return nullptr;
}

HRESULT ClassFactory::QueryInterface(REFIID iid, void** out) {
    if (!out) return E_POINTER;
    if (iid == IID_IUnknown || iid == IID_IClassFactory) {
        *out = static_cast<IClassFactory*>(this);
        AddRef();
        return S_OK;
    }
    *out = nullptr;
    return E_NOINTERFACE;
}

ULONG ClassFactory::Release() {
    ULONG n = --refs_;
    if (n == 0) delete this;
    return n;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** out) {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (outer) return CLASS_E_NOAGGREGATION;
    IUnknown* object = maker_();
    if (!object) return E_OUTOFMEMORY;
    HRESULT hr = object->QueryInterface(iid, out);
    object->Release();
    return hr;
}

HRESULT ClassFactory::LockServer(BOOL lock) {
    module().lock(lock != FALSE);
    return S_OK;
}

}  // namespace quillet::win32
