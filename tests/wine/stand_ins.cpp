#include "stand_ins.h"

namespace quillet::wine {

namespace {

constexpr wchar_t kOwnerProp[] = L"QuilletStandIns";
constexpr wchar_t kFrameTitle[] = L"Quillet harness: the editor";

}  // namespace

StandIns::~StandIns() {
    for (auto& [handle, window] : windows_) DestroyWindow(window);
}

HWND StandIns::frame() {
    if (frame_) return frame_;
    // One frame serves every session of the run: it is made, and activated, once.
    frame_ = FindWindowW(L"Static", kFrameTitle);
    if (frame_) return frame_;
    frame_ = CreateWindowExW(0, L"Static", kFrameTitle, WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0,
                             640, 480, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    if (!frame_) return nullptr;
    // The window manager's activation arrives as messages: wait for it, briefly.
    SetForegroundWindow(frame_);
    const ULONGLONG end = GetTickCount64() + 2000;
    while (GetActiveWindow() != frame_ && GetTickCount64() < end) {
        MSG msg;
        while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&msg);
            DispatchMessageW(&msg);
        }
        Sleep(10);
        SetActiveWindow(frame_);
    }
    return frame_;
}

HWND StandIns::of(host::Window& window) {
    host::WindowHandle handle = window.hWnd();
    auto it = windows_.find(handle);
    if (it != windows_.end()) return it->second;
    const basic::Str title = window.Caption();
    std::wstring caption(title.begin(), title.end());
    HWND parent = frame();
    if (!parent) return nullptr;
    int slot = static_cast<int>(windows_.size());
    HWND hwnd = CreateWindowExW(WS_EX_CLIENTEDGE, L"EDIT", caption.c_str(), WS_CHILD | WS_VISIBLE | ES_MULTILINE,
                                (slot % 4) * 160, (slot / 4) * 120, 150, 110, parent, nullptr,
                                GetModuleHandleW(nullptr), nullptr);
    if (!hwnd) return nullptr;
    SetWindowTextW(hwnd, L"");
    SetPropW(hwnd, kOwnerProp, this);
    SetWindowLongPtrW(hwnd, GWLP_USERDATA, static_cast<LONG_PTR>(handle));
    editProcs_[hwnd] = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(proc)));
    windows_[handle] = hwnd;
    return hwnd;
}

std::wstring StandIns::immediateText() {
    auto vbe = vbe_.lock();
    if (!vbe) return {};
    auto it = windows_.find(vbe->immediateWindow()->hWnd());
    if (it == windows_.end()) return {};
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(it->second)) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(it->second, text.data(), static_cast<int>(text.size()))));
    return text;
}

void StandIns::focused(HWND window) {
    auto vbe = vbe_.lock();
    if (!vbe) return;
    auto handle = static_cast<host::WindowHandle>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (vbe->focusedWindow() == handle) return;
    if (auto editorWindow = vbe->windowOf(handle)) editorWindow->SetFocus();
}

LRESULT CALLBACK StandIns::proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = static_cast<StandIns*>(GetPropW(window, kOwnerProp));
    if (!self) return DefWindowProcW(window, message, wParam, lParam);
    WNDPROC edit = self->editProcs_[window];
    if (message == WM_SETFOCUS) {
        try {
            self->focused(window);
        } catch (...) {
        }
    } else if (message == WM_NCDESTROY) {
        RemovePropW(window, kOwnerProp);
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(edit));
    }
    return CallWindowProcW(edit, window, message, wParam, lParam);
}

}  // namespace quillet::wine
