#include "box_answerer.h"

namespace quillet::wine {

namespace {

// The one answerer of the harness's thread, for the hook procedure (a hook has no context).
BoxAnswerer* current = nullptr;

std::wstring textOf(HWND window) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

BOOL CALLBACK collectStatic(HWND child, LPARAM lParam) {
    wchar_t cls[16];
    if (GetClassNameW(child, cls, 16) && lstrcmpiW(cls, L"Static") == 0) {
        auto* text = reinterpret_cast<std::wstring*>(lParam);
        std::wstring part = textOf(child);
        if (!part.empty()) *text += (text->empty() ? L"" : L" ") + part;
    }
    return TRUE;
}

}  // namespace

BoxAnswerer::BoxAnswerer() {
    current = this;
    hook_ = SetWindowsHookExW(WH_CBT, hook, nullptr, GetCurrentThreadId());
}

BoxAnswerer::~BoxAnswerer() {
    if (hook_) UnhookWindowsHookEx(hook_);
    current = nullptr;
}

void BoxAnswerer::activated(HWND box) {
    wchar_t cls[16];
    if (!GetClassNameW(box, cls, 16) || lstrcmpW(cls, L"#32770") != 0) return;
    std::wstring text;
    EnumChildWindows(box, collectStatic, reinterpret_cast<LPARAM>(&text));
    answered_.push_back(textOf(box) + L": " + text);
    int answer = GetDlgItem(box, IDNO) ? IDNO : GetDlgItem(box, IDCANCEL) ? IDCANCEL : IDOK;
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(answer, BN_CLICKED), 0);
}

LRESULT CALLBACK BoxAnswerer::hook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_ACTIVATE && current) current->activated(reinterpret_cast<HWND>(wParam));
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace quillet::wine
