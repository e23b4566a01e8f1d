#include "win32/timer_window.h"

#include "core/frm_timer.h"

namespace quillet::win32 {

namespace {

constexpr wchar_t kClassName[] = L"QuilletTimerWindow";
constexpr int kTimerCount = 3;

core::frmTimer::Timer& timerOf(core::frmTimer& form, int number) {
    switch (number) {
    case 1: return form.Timer1;
    case 2: return form.Timer2;
    default: return form.Timer3;
    }
}

void fire(core::frmTimer& form, int number) {
    switch (number) {
    case 1: return form.Timer1_Timer();
    case 2: return form.Timer2_Timer();
    default: return form.Timer3_Timer();
    }
}

bool registerClass(HINSTANCE instance, WNDPROC proc) {
    WNDCLASSEXW wc{};
    wc.cbSize = sizeof wc;
    wc.lpfnWndProc = proc;
    wc.hInstance = instance;
    wc.lpszClassName = kClassName;
    return RegisterClassExW(&wc) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

}  // namespace

TimerWindow::TimerWindow(HINSTANCE instance, FormLocator locate) : instance_(instance), locate_(std::move(locate)) {
    if (!registerClass(instance_, windowProc)) return;
    window_ = CreateWindowExW(0, kClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, instance_, this);
}

TimerWindow::~TimerWindow() {
    if (window_) {
        for (int number = 1; number <= kTimerCount; ++number) KillTimer(window_, number);
        DestroyWindow(window_);
    }
    // A class a DLL registers outlives the DLL unless it goes explicitly; this fails harmlessly
    // while another of its windows exists.
    UnregisterClassW(kClassName, instance_);
}

unsigned TimerWindow::running(int number) const {
    return number >= 1 && number <= kTimerCount ? running_[number - 1] : 0;
}

void TimerWindow::sync() noexcept {
    if (!window_) return;
    core::frmTimer* form = nullptr;
    try {
        form = locate_ ? locate_() : nullptr;
    } catch (...) {
        form = nullptr;
    }
    for (int number = 1; number <= kTimerCount; ++number) {
        long interval = form ? timerOf(*form, number).Interval : 0;
        unsigned wanted = interval > 0 ? static_cast<unsigned>(interval) : 0;
        unsigned& current = running_[number - 1];
        if (wanted == current) continue;
        if (wanted == 0) {
            KillTimer(window_, number);
        } else if (!SetTimer(window_, number, wanted, nullptr)) {
            wanted = 0;
        }
        current = wanted;
    }
}

void TimerWindow::tick(UINT_PTR number) noexcept {
    if (number < 1 || number > kTimerCount || running_[number - 1] == 0) return;
    try {
        if (core::frmTimer* form = locate_ ? locate_() : nullptr) fire(*form, static_cast<int>(number));
    } catch (...) {
        // A timer never lets an error into the editor's message loop.
    }
    sync();
}

LRESULT CALLBACK TimerWindow::windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* create = reinterpret_cast<CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    } else if (message == WM_TIMER) {
        if (auto* self = reinterpret_cast<TimerWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA))) {
            self->tick(wParam);
        }
        return 0;
    } else if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace quillet::win32
