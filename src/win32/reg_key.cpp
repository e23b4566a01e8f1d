#include "win32/reg_key.h"

#include <vector>

namespace quillet::win32 {

HRESULT setString(HKEY root, const std::wstring& key, const wchar_t* name, const std::wstring& value, REGSAM samExtra) {
    RegKey k;
    LSTATUS status = RegCreateKeyExW(root, key.c_str(), 0, nullptr, 0, KEY_SET_VALUE | samExtra, nullptr, k.put(), nullptr);
    if (status == ERROR_SUCCESS) {
        status = RegSetValueExW(k.get(), name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                                static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
    }
    return HRESULT_FROM_WIN32(status);
}

HRESULT setDword(HKEY root, const std::wstring& key, const wchar_t* name, DWORD value, REGSAM samExtra) {
    RegKey k;
    LSTATUS status = RegCreateKeyExW(root, key.c_str(), 0, nullptr, 0, KEY_SET_VALUE | samExtra, nullptr, k.put(), nullptr);
    if (status == ERROR_SUCCESS) {
        status = RegSetValueExW(k.get(), name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof value);
    }
    return HRESULT_FROM_WIN32(status);
}

std::optional<std::wstring> readString(HKEY root, const std::wstring& key, const wchar_t* name, REGSAM samExtra) {
    RegKey k;
    if (RegOpenKeyExW(root, key.c_str(), 0, KEY_QUERY_VALUE | samExtra, k.put()) != ERROR_SUCCESS) return std::nullopt;
    DWORD type = 0, size = 0;
    if (RegQueryValueExW(k.get(), name, nullptr, &type, nullptr, &size) != ERROR_SUCCESS || type != REG_SZ) {
        return std::nullopt;
    }
    std::vector<wchar_t> data(size / sizeof(wchar_t) + 1, L'\0');
    if (RegQueryValueExW(k.get(), name, nullptr, &type, reinterpret_cast<BYTE*>(data.data()), &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    return std::wstring(data.data());
}

bool keyExists(HKEY root, const std::wstring& key, REGSAM samExtra) {
    RegKey k;
    return RegOpenKeyExW(root, key.c_str(), 0, KEY_READ | samExtra, k.put()) == ERROR_SUCCESS;
}

HRESULT deleteTree(HKEY root, const std::wstring& key, REGSAM samExtra) {
    RegKey k;
    LSTATUS status = RegOpenKeyExW(root, key.c_str(), 0, KEY_ALL_ACCESS | samExtra, k.put());
    if (status == ERROR_FILE_NOT_FOUND) return S_OK;
    if (status != ERROR_SUCCESS) return HRESULT_FROM_WIN32(status);
    status = RegDeleteTreeW(k.get(), nullptr);
    if (status != ERROR_SUCCESS) return HRESULT_FROM_WIN32(status);
    status = RegDeleteKeyExW(root, key.c_str(), samExtra, 0);
    return status == ERROR_FILE_NOT_FOUND ? S_OK : HRESULT_FROM_WIN32(status);
}

namespace {

bool isEmptyKey(HKEY root, const std::wstring& key, REGSAM samExtra) {
    RegKey k;
    if (RegOpenKeyExW(root, key.c_str(), 0, KEY_READ | samExtra, k.put()) != ERROR_SUCCESS) return false;
    DWORD subkeys = 0, values = 0;
    return RegQueryInfoKeyW(k.get(), nullptr, nullptr, nullptr, &subkeys, nullptr, nullptr, &values, nullptr, nullptr,
                            nullptr, nullptr) == ERROR_SUCCESS &&
           subkeys == 0 && values == 0;
}

}  // namespace

void deleteEmptyParents(HKEY root, std::wstring key, const std::wstring& stop, REGSAM samExtra) {
    for (;;) {
        size_t slash = key.find_last_of(L'\\');
        if (slash == std::wstring::npos) return;
        key.resize(slash);
        if (key.size() <= stop.size() || !isEmptyKey(root, key, samExtra)) return;
        if (RegDeleteKeyExW(root, key.c_str(), samExtra, 0) != ERROR_SUCCESS) return;
    }
}

}  // namespace quillet::win32
