#pragma once
// The fonts of the dialogs: the system's message font, which the dialog template names so that
// the dialog units follow it (at 96 and 144 DPI alike), and the code editor's font for boxes that
// hold code, from the editor's settings ("FontFace", "FontHeight" under
// Software\Microsoft\VBA\6.0\Common), Courier New 10 when they are not set.

#include <windows.h>

#include <string>

#include "platform/platform.h"

namespace quillet::win32::view {

struct MessageFont {
    std::wstring face = L"MS Shell Dlg";
    WORD points = 8;
};

// The message font of NONCLIENTMETRICS, in points at the screen's resolution.
MessageFont systemMessageFont() noexcept;

// A font for code boxes; the caller deletes it. Null when none could be made.
HFONT createCodeFont(platform::Platform& platform) noexcept;

// The in-memory template of an empty dialog of a window class (registered with DLGWINDOWEXTRA and
// DefDlgProc): the style, the client size in dialog units, the caption and the message font. The
// controls are made on it afterwards.
std::wstring dialogTemplate(const wchar_t* windowClass, DWORD style, DWORD exStyle, short cx, short cy,
                            const std::wstring& caption, const MessageFont& font);

}  // namespace quillet::win32::view
