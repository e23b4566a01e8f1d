#pragma once
// Per-user registration of the add-in: its COM classes under HKEY_CURRENT_USER\Software\Classes
// and the add-in entries its hosts read. Where COM does not see per-user classes (Wine reads
// classes from the machine's root only), the classes go to the machine's root as well, when
// that is writable. Unregistration removes what registration wrote, and nothing else.

#include <windows.h>

#include <string>

namespace quillet::win32 {

HRESULT registerServer(const std::wstring& dllPath);
HRESULT unregisterServer(const std::wstring& dllPath);

}  // namespace quillet::win32
