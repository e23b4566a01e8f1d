// The DLL's entry points: loading, the class objects, and self-registration.

#include <windows.h>

#include <new>

#include "win32/class_factory.h"
#include "win32/module.h"
#include "win32/registration.h"

namespace quillet::win32 {

namespace {

// The one module of the loaded DLL (see module.h).
Module* loadedModule = nullptr;

}  // namespace

Module& module() { return *loadedModule; }

std::wstring Module::path() const {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        DWORD n = GetModuleFileNameW(handle_, path.data(), static_cast<DWORD>(path.size()));
        if (n == 0) return std::wstring();
        if (n < path.size()) {
            path.resize(n);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

}  // namespace quillet::win32

using quillet::win32::module;

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved) {
    using quillet::win32::loadedModule;
    if (reason == DLL_PROCESS_ATTACH) {
        DisableThreadLibraryCalls(instance);
        loadedModule = new (std::nothrow) quillet::win32::Module(instance);
        return loadedModule != nullptr;
    }
    // At process exit (reserved set) nothing is torn down: other DLLs may be gone already.
    if (reason == DLL_PROCESS_DETACH && !reserved) {
        delete loadedModule;
        loadedModule = nullptr;
    }
    return TRUE;
}

extern "C" HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID clsid, REFIID iid, void** out) {
    if (!out) return E_POINTER;
    *out = nullptr;
    auto maker = quillet::win32::makerOf(clsid);
    if (!maker) return CLASS_E_CLASSNOTAVAILABLE;
    auto* factory = new (std::nothrow) quillet::win32::ClassFactory(maker);
    if (!factory) return E_OUTOFMEMORY;
    HRESULT hr = factory->QueryInterface(iid, out);
    factory->Release();
    return hr;
}

extern "C" HRESULT STDAPICALLTYPE DllCanUnloadNow() { return module().canUnload() ? S_OK : S_FALSE; }

extern "C" HRESULT STDAPICALLTYPE DllRegisterServer() {
    try {
        return quillet::win32::registerServer(module().path());
    } catch (...) {
        return E_UNEXPECTED;
    }
}

extern "C" HRESULT STDAPICALLTYPE DllUnregisterServer() {
    try {
        return quillet::win32::unregisterServer(module().path());
    } catch (...) {
        return E_UNEXPECTED;
    }
}
