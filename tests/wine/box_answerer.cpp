#include "box_answerer.h"

#include <utility>

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

constexpr int kInputTextId = 101;

// The button an answer names, 0 when it names none.
int buttonOf(const std::wstring& answer) {
    const std::pair<const wchar_t*, int> buttons[] = {{L"ok", IDOK},       {L"cancel", IDCANCEL}, {L"yes", IDYES},
                                                      {L"no", IDNO},       {L"abort", IDABORT},   {L"retry", IDRETRY},
                                                      {L"ignore", IDIGNORE}};
    for (const auto& [name, id] : buttons)
        if (lstrcmpiW(answer.c_str(), name) == 0) return id;
    return 0;
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
    if (!queued_.empty()) {
        answer = buttonOf(queued_.front());
        // Any other answer is what the user types into an input box (its text field is 101).
        if (!answer) {
            SetDlgItemTextW(box, kInputTextId, queued_.front().c_str());
            answer = IDOK;
        }
        queued_.pop_front();
    }
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(answer, BN_CLICKED), 0);
}

LRESULT CALLBACK BoxAnswerer::hook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_ACTIVATE && current) current->activated(reinterpret_cast<HWND>(wParam));
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace quillet::wine
