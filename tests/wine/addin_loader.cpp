#include "addin_loader.h"

namespace quillet::wine {

std::wstring editorAddinsKey() {
    return sizeof(void*) == 8 ? L"Software\\Microsoft\\VBA\\VBE\\6.0\\Addins64" : L"Software\\Microsoft\\VBA\\VBE\\6.0\\Addins";
}

namespace {

std::wstring stringValue(HKEY key, const wchar_t* name) {
    wchar_t buffer[1024];
    DWORD size = sizeof buffer;
    if (RegGetValueW(key, nullptr, name, RRF_RT_REG_SZ, nullptr, buffer, &size) != ERROR_SUCCESS) return {};
    return buffer;
}

}  // namespace

std::vector<AddinListing> readAddins(const std::wstring& key) {
    std::vector<AddinListing> result;
    HKEY addins = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_READ, &addins) != ERROR_SUCCESS) return result;
    wchar_t name[256];
    for (DWORD i = 0;; ++i) {
        DWORD length = 256;
        if (RegEnumKeyExW(addins, i, name, &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
        HKEY entry = nullptr;
        if (RegOpenKeyExW(addins, name, 0, KEY_READ, &entry) != ERROR_SUCCESS) continue;
        AddinListing listing{name, stringValue(entry, L"FriendlyName"), stringValue(entry, L"Description"), 0};
        DWORD size = sizeof listing.loadBehavior;
        RegGetValueW(entry, nullptr, L"LoadBehavior", RRF_RT_REG_DWORD, nullptr, &listing.loadBehavior, &size);
        RegCloseKey(entry);
        result.push_back(listing);
    }
    RegCloseKey(addins);
    return result;
}

AddinDll::AddinDll(const std::wstring& path) : module_(LoadLibraryW(path.c_str())) {}

AddinDll::~AddinDll() {
    if (module_) FreeLibrary(module_);
}

HRESULT AddinDll::callExport(const char* name) const {
    using Entry = HRESULT(STDAPICALLTYPE*)();
    auto entry = reinterpret_cast<Entry>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
    return entry ? entry() : HRESULT_FROM_WIN32(ERROR_PROC_NOT_FOUND);
}

HRESULT createAddin(const std::wstring& progId, hosts::com::ComPtr<IUnknown>& out) {
    CLSID clsid{};
    HRESULT hr = CLSIDFromProgID(progId.c_str(), &clsid);
    if (FAILED(hr)) return hr;
    return CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, reinterpret_cast<void**>(out.put()));
}

}  // namespace quillet::wine
