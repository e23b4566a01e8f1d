#include "win32/view/window_names.h"

namespace quillet::win32::view {

void setWindowName(HWND window, const std::u16string& name) noexcept {
    std::wstring text(name.begin(), name.end());
    ATOM atom = GlobalAddAtomW(text.c_str());
    if (!atom) return;
    if (!SetPropW(window, kNameProperty, reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(atom)))) GlobalDeleteAtom(atom);
}

void clearWindowName(HWND window) noexcept {
    auto atom = static_cast<ATOM>(reinterpret_cast<UINT_PTR>(RemovePropW(window, kNameProperty)));
    if (atom) GlobalDeleteAtom(atom);
}

std::wstring windowName(HWND window) {
    auto atom = static_cast<ATOM>(reinterpret_cast<UINT_PTR>(GetPropW(window, kNameProperty)));
    if (!atom) return {};
    wchar_t text[256] = {};
    UINT length = GlobalGetAtomNameW(atom, text, 256);
    return std::wstring(text, length);
}

}  // namespace quillet::win32::view
