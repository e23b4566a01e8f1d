#pragma once
// Small registry helpers for the registration: an owned HKEY, writes that report failure as
// an HRESULT, and removal of a key with everything under it.

#include <windows.h>

#include <optional>
#include <string>
#include <utility>

namespace quillet::win32 {

class RegKey {
public:
    RegKey() = default;
    RegKey(const RegKey&) = delete;
    RegKey& operator=(const RegKey&) = delete;
    RegKey(RegKey&& other) noexcept : key_(std::exchange(other.key_, nullptr)) {}
    ~RegKey() {
        if (key_) RegCloseKey(key_);
    }
    HKEY get() const { return key_; }
    HKEY* put() { return &key_; }
    explicit operator bool() const { return key_ != nullptr; }

private:
    HKEY key_ = nullptr;
};

// `samExtra` chooses a registry view (KEY_WOW64_32KEY, KEY_WOW64_64KEY) or 0 for the process's own.
HRESULT setString(HKEY root, const std::wstring& key, const wchar_t* name, const std::wstring& value, REGSAM samExtra = 0);
HRESULT setDword(HKEY root, const std::wstring& key, const wchar_t* name, DWORD value, REGSAM samExtra = 0);
std::optional<std::wstring> readString(HKEY root, const std::wstring& key, const wchar_t* name, REGSAM samExtra = 0);
bool keyExists(HKEY root, const std::wstring& key, REGSAM samExtra = 0);
// Removes the key and its subkeys; a key that is not there is no failure.
HRESULT deleteTree(HKEY root, const std::wstring& key, REGSAM samExtra = 0);
// Removes the parents of `key` that are left empty, walking up while the path is longer than `stop`.
void deleteEmptyParents(HKEY root, std::wstring key, const std::wstring& stop, REGSAM samExtra = 0);

}  // namespace quillet::win32
