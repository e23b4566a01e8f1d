#include "registry_snapshot.h"

#include <algorithm>

namespace quillet::wine {

namespace {

void walk(HKEY key, const std::wstring& name, RegistrySnapshot& out) {
    out.insert(name);
    DWORD subkeys = 0, maxSubkey = 0, values = 0, maxValueName = 0, maxData = 0;
    if (RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &subkeys, &maxSubkey, nullptr, &values, &maxValueName, &maxData,
                         nullptr, nullptr) != ERROR_SUCCESS) {
        return;
    }
    std::vector<wchar_t> valueName(maxValueName + 2);
    std::vector<BYTE> data(maxData + 2);
    for (DWORD i = 0; i < values; ++i) {
        DWORD nameLength = static_cast<DWORD>(valueName.size()), dataSize = static_cast<DWORD>(data.size()), type = 0;
        if (RegEnumValueW(key, i, valueName.data(), &nameLength, nullptr, &type, data.data(), &dataSize) != ERROR_SUCCESS) {
            continue;
        }
        std::wstring line = name + L" : " + std::wstring(valueName.data(), nameLength) + L" = ";
        if (type == REG_SZ || type == REG_EXPAND_SZ) {
            line += std::wstring(reinterpret_cast<wchar_t*>(data.data()), dataSize / sizeof(wchar_t));
        } else if (type == REG_DWORD && dataSize == 4) {
            line += std::to_wstring(*reinterpret_cast<DWORD*>(data.data()));
        } else {
            line += L"(" + std::to_wstring(type) + L", " + std::to_wstring(dataSize) + L" bytes)";
        }
        out.insert(line);
    }
    std::vector<wchar_t> subkey(maxSubkey + 2);
    for (DWORD i = 0; i < subkeys; ++i) {
        DWORD length = static_cast<DWORD>(subkey.size());
        if (RegEnumKeyExW(key, i, subkey.data(), &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) continue;
        std::wstring child(subkey.data(), length);
        HKEY childKey = nullptr;
        if (RegOpenKeyExW(key, child.c_str(), 0, KEY_READ, &childKey) != ERROR_SUCCESS) continue;
        walk(childKey, name + L"\\" + child, out);
        RegCloseKey(childKey);
    }
}

}  // namespace

RegistrySnapshot snapshot(HKEY root, const std::wstring& rootName, const std::wstring& path) {
    RegistrySnapshot result;
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return result;
    walk(key, rootName + L"\\" + path, result);
    RegCloseKey(key);
    return result;
}

std::vector<std::wstring> difference(const RegistrySnapshot& a, const RegistrySnapshot& b) {
    std::vector<std::wstring> lines;
    for (const auto& line : a) {
        if (!b.count(line)) lines.push_back(L"- " + line);
    }
    for (const auto& line : b) {
        if (!a.count(line)) lines.push_back(L"+ " + line);
    }
    return lines;
}

}  // namespace quillet::wine
