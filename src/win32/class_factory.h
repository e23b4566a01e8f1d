#pragma once
// The class factory of each class: makes a new object on each CreateInstance.

#include <windows.h>
#include <unknwn.h>

#include "win32/module.h"

namespace quillet::win32 {

// A new object of the class, with one reference, or null.
using ObjectMaker = IUnknown* (*)();

class ClassFactory : public IClassFactory {
public:
    explicit ClassFactory(ObjectMaker maker) : maker_(maker) {}
    virtual ~ClassFactory() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++refs_; }
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** out) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

private:
    ObjectMaker maker_;
    ModuleObject counted_;
    std::atomic<ULONG> refs_{1};
};

// The maker of the class `clsid` of this DLL, or null.
ObjectMaker makerOf(REFCLSID clsid);

}  // namespace quillet::win32
