#pragma once
// The names that tie windows to models: every dialog window carries its form's name and every
// control window its model control's name, as the window property "QuilletName" holding a
// global atom, so that tools outside the add-in (the Wine harness) find them by name. The atom
// goes when the window does (clearWindowName at WM_NCDESTROY).

#include <windows.h>

#include <string>

namespace quillet::win32::view {

inline constexpr wchar_t kNameProperty[] = L"QuilletName";

void setWindowName(HWND window, const std::u16string& name) noexcept;
void clearWindowName(HWND window) noexcept;
// The name a window carries; empty when none.
std::wstring windowName(HWND window);

}  // namespace quillet::win32::view
