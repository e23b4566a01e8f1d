#pragma once
// A flat picture of a registry subtree: one line per key and per value, sorted, so that two
// pictures compare and their difference prints.

#include <windows.h>

#include <set>
#include <string>
#include <vector>

namespace quillet::wine {

using RegistrySnapshot = std::set<std::wstring>;

RegistrySnapshot snapshot(HKEY root, const std::wstring& rootName, const std::wstring& path);
// Lines only in `a` (prefixed "- ") and only in `b` ("+ ").
std::vector<std::wstring> difference(const RegistrySnapshot& a, const RegistrySnapshot& b);

}  // namespace quillet::wine
