#pragma once
// Pictures of windows as they stand on the screen, written as 24-bit BMP files.

#include <windows.h>

#include <string>

namespace quillet::wine {

// Paints the window and its children, then copies its screen area to a BMP file; false when the
// picture could not be taken or written.
bool saveWindowPicture(HWND window, const std::wstring& path);

}  // namespace quillet::wine
