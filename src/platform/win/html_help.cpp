// HTML Help through HHCtrl.ocx, loaded when help is first asked for: a machine without it (or a
// Wine prefix without it) simply gets no help window.
#include "platform/win/win_platform.h"

namespace quillet::platform::win {

namespace {

using HtmlHelpFn = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);

}  // namespace

WinPlatform::~WinPlatform() {
    if (helpLibrary_) FreeLibrary(helpLibrary_);
}

long long WinPlatform::HtmlHelp(long long window, const Str& file, HtmlHelpCommand command, long data) {
    if (!helpLibrary_ && !failedHelpLoad_) {
        helpLibrary_ = LoadLibraryW(L"hhctrl.ocx");
        failedHelpLoad_ = helpLibrary_ == nullptr;
    }
    if (!helpLibrary_) return 0;
    auto htmlHelp = reinterpret_cast<HtmlHelpFn>(reinterpret_cast<void*>(GetProcAddress(helpLibrary_, "HtmlHelpW")));
    if (!htmlHelp) return 0;
    std::wstring path(file.begin(), file.end());
    HWND opened = htmlHelp(reinterpret_cast<HWND>(static_cast<intptr_t>(window)), path.empty() ? nullptr : path.c_str(),
                           static_cast<UINT>(command), static_cast<DWORD_PTR>(data));
    return static_cast<long long>(reinterpret_cast<intptr_t>(opened));
}

void WinPlatform::CloseHelpWindow(long long window) {
    HWND handle = reinterpret_cast<HWND>(static_cast<intptr_t>(window));
    if (handle && IsWindow(handle)) PostMessageW(handle, WM_CLOSE, 0, 0);
}

}  // namespace quillet::platform::win
