#include "win32/registration.h"

#include <olectl.h>

#include "win32/class_table.h"
#include "win32/reg_key.h"

namespace quillet::win32 {

namespace {

constexpr wchar_t kClasses[] = L"Software\\Classes\\";
constexpr wchar_t kAddinEntriesStop[] = L"Software\\Microsoft";
// The other build's registry view (the 32-bit view from the 64-bit DLL and the reverse).
constexpr REGSAM kOtherView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

std::wstring clsidKey(const ComClassInfo& c) { return std::wstring(kClasses) + L"CLSID\\" + c.id->text; }
std::wstring progIdKey(const ComClassInfo& c) { return std::wstring(kClasses) + c.progId; }

HRESULT writeClass(HKEY root, const ComClassInfo& c, const std::wstring& dllPath) {
    const std::wstring clsid = clsidKey(c);
    HRESULT results[] = {
        setString(root, clsid, nullptr, c.progId),
        setString(root, clsid + L"\\InprocServer32", nullptr, dllPath),
        setString(root, clsid + L"\\InprocServer32", L"ThreadingModel", L"Apartment"),
        setString(root, clsid + L"\\ProgID", nullptr, c.progId),
        setString(root, progIdKey(c), nullptr, c.progId),
        setString(root, progIdKey(c) + L"\\CLSID", nullptr, c.id->text),
    };
    for (HRESULT hr : results) {
        if (FAILED(hr)) return hr;
    }
    return S_OK;
}

HRESULT writeAddinEntry(const AddinEntry& e) {
    HRESULT results[] = {
        setString(HKEY_CURRENT_USER, e.key, L"FriendlyName", e.friendlyName),
        setString(HKEY_CURRENT_USER, e.key, L"Description", e.description),
        setDword(HKEY_CURRENT_USER, e.key, L"LoadBehavior", e.loadBehavior),
        e.commandLineSafe ? setDword(HKEY_CURRENT_USER, e.key, L"CommandLineSafe", 0) : S_OK,
    };
    for (HRESULT hr : results) {
        if (FAILED(hr)) return hr;
    }
    return S_OK;
}

// Whether the other build has the class registered under `root`.
bool otherBuildRegistered(HKEY root, const ComClassInfo& c) {
    return keyExists(root, clsidKey(c) + L"\\InprocServer32", kOtherView);
}

void removeClass(HKEY root, const ComClassInfo& c) {
    deleteTree(root, clsidKey(c));
    // The ProgID is shared by both builds: it stays while the other one is registered.
    if (!otherBuildRegistered(root, c)) deleteTree(root, progIdKey(c));
    // A fresh profile gets its classes keys from the registration: they go with it.
    deleteEmptyParents(root, clsidKey(c), L"Software");
    deleteEmptyParents(root, progIdKey(c), L"Software");
}

bool sameFile(const std::wstring& a, const std::wstring& b) {
    return CompareStringOrdinal(a.c_str(), -1, b.c_str(), -1, TRUE) == CSTR_EQUAL;
}

bool comSeesPerUserClasses() {
    return keyExists(HKEY_CLASSES_ROOT, std::wstring(L"CLSID\\") + comClasses().front().id->text);
}

}  // namespace

HRESULT registerServer(const std::wstring& dllPath) {
    HRESULT hr = S_OK;
    for (const auto& c : comClasses()) {
        if (SUCCEEDED(hr)) hr = writeClass(HKEY_CURRENT_USER, c, dllPath);
        for (const auto& e : c.addins) {
            if (SUCCEEDED(hr)) hr = writeAddinEntry(e);
        }
    }
    if (FAILED(hr)) {
        unregisterServer(dllPath);
        return SELFREG_E_CLASS;
    }
    if (!comSeesPerUserClasses()) {
        for (const auto& c : comClasses()) writeClass(HKEY_LOCAL_MACHINE, c, dllPath);
    }
    return S_OK;
}

HRESULT unregisterServer(const std::wstring& dllPath) {
    for (const auto& c : comClasses()) {
        // The machine's root holds the class only where registration put it there for COM's sake.
        auto machineServer = readString(HKEY_LOCAL_MACHINE, clsidKey(c) + L"\\InprocServer32", nullptr);
        if (machineServer && sameFile(*machineServer, dllPath)) removeClass(HKEY_LOCAL_MACHINE, c);
        removeClass(HKEY_CURRENT_USER, c);
        for (const auto& e : c.addins) {
            if (e.sharedByBothBuilds && otherBuildRegistered(HKEY_CURRENT_USER, c)) continue;
            deleteTree(HKEY_CURRENT_USER, e.key);
            deleteEmptyParents(HKEY_CURRENT_USER, e.key, kAddinEntriesStop);
        }
    }
    return S_OK;
}

}  // namespace quillet::win32
