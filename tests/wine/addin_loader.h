#pragma once
// Loading the add-in the way the editor does: the DLL registers itself, the editor reads its
// add-in key, turns each ProgID with LoadBehavior 3 into a class and creates it in process.

#include <windows.h>

#include <string>
#include <vector>

#include "hosts/com/com_ptr.h"

namespace quillet::wine {

// The editor's add-in key for this process's bitness.
std::wstring editorAddinsKey();

struct AddinListing {
    std::wstring progId;
    std::wstring friendlyName;
    std::wstring description;
    DWORD loadBehavior = 0;
};
// The entries under HKEY_CURRENT_USER\key.
std::vector<AddinListing> readAddins(const std::wstring& key);

// The DLL loaded for its self-registration entry points.
class AddinDll {
public:
    explicit AddinDll(const std::wstring& path);
    ~AddinDll();
    bool loaded() const { return module_ != nullptr; }
    HRESULT registerServer() const { return callExport("DllRegisterServer"); }
    HRESULT unregisterServer() const { return callExport("DllUnregisterServer"); }
    HRESULT canUnloadNow() const { return callExport("DllCanUnloadNow"); }
    bool exports(const char* name) const { return GetProcAddress(module_, name) != nullptr; }

private:
    HRESULT callExport(const char* name) const;
    HMODULE module_ = nullptr;
};

// CLSIDFromProgID then CoCreateInstance in process; the HRESULT of the step that failed.
HRESULT createAddin(const std::wstring& progId, hosts::com::ComPtr<IUnknown>& out);

}  // namespace quillet::wine
