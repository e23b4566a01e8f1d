#pragma once
// frmTimer's view: a hidden message-only window that runs one Win32 timer for each of the
// form's timers whose Interval is above 0 and calls that timer's method on each tick. The form
// stays a plain model: the intervals are read again after each tick and whenever sync() is
// called (after each call the editor makes into the add-in), so a change the logic makes to an
// Interval is picked up there. Nothing leaves the window procedure as an exception.

#include <windows.h>

#include <array>
#include <functional>

namespace quillet::core {
class frmTimer;
}

namespace quillet::win32 {

class TimerWindow {
public:
    // The form as it is now; null while the add-in is not connected (every timer then stops).
    using FormLocator = std::function<core::frmTimer*()>;

    TimerWindow(HINSTANCE instance, FormLocator locate);
    ~TimerWindow();
    TimerWindow(const TimerWindow&) = delete;
    TimerWindow& operator=(const TimerWindow&) = delete;

    // Whether the window exists (without it no timer runs).
    bool created() const { return window_ != nullptr; }
    // Starts, restarts or stops each timer to match the form's intervals. Never throws.
    void sync() noexcept;
    // The interval timer `number` (1 to 3) runs at now; 0 when stopped.
    unsigned running(int number) const;

private:
    static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void tick(UINT_PTR number) noexcept;

    HINSTANCE instance_;
    FormLocator locate_;
    HWND window_ = nullptr;
    std::array<unsigned, 3> running_{};
};

}  // namespace quillet::win32
