#pragma once
// The window of one open form: an empty dialog made from an in-memory template (so that dialog
// units follow the message font as MapDialogRect computes them), with one native control per
// placement of the form's layout. Enter presses the default button and Escape or the title bar's
// close box the cancel button; F1 calls the form's OnHelpKey. A modal form disables its owner
// while it is open. The window holds no logic: every user action becomes the model's event,
// after which every open dialog shows the model again.

#include <windows.h>

#include <functional>
#include <memory>
#include <vector>

#include "dialogs/layout.h"
#include "win32/view/control_binding.h"

namespace quillet::win32::view {

class DialogViews;

// The window class of the dialogs (a dialog class of its own, so that they are told apart from
// message boxes and other dialogs of the thread); DialogViews registers it.
inline constexpr wchar_t kDialogClass[] = L"QuilletDialog";

class DialogWindow {
public:
    DialogWindow(DialogViews& views, dialogs::Form& form, dialogs::FormLayout layout);
    ~DialogWindow();
    DialogWindow(const DialogWindow&) = delete;
    DialogWindow& operator=(const DialogWindow&) = delete;

    // Makes the window over its owner (centred on it), disabling the owner for a modal form, and
    // shows it with the focus on its first control. False when the window could not be made.
    bool open(HINSTANCE instance, HWND owner, HFONT codeFont);
    // Gives the owner back (enabled again when this window disabled it) and hides the window;
    // the window itself goes with the object.
    void close() noexcept;

    HWND window() const { return window_; }
    DialogViews& views() { return views_; }
    dialogs::Form& form() { return form_; }
    const dialogs::Form& form() const { return form_; }

    // Shows the model's state in every control.
    void show();
    // Runs a user's action on the named model control as the model's event.
    void forward(const std::u16string& control, const std::function<void(dialogs::Control&)>& event) noexcept;
    // A keyboard message of this dialog's thread, before the editor's message loop sees it: the
    // dialog's keys (Tab, arrows, access keys, Enter, Escape, F1). True when it was handled.
    bool keyboard(MSG& message) noexcept;

    // The dialog that a window belongs to (itself or one of its controls), or none.
    static DialogWindow* of(HWND window) noexcept;

private:
    void focusAsked();
    static INT_PTR CALLBACK dialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR handle(UINT message, WPARAM wParam, LPARAM lParam);
    void command(WORD id, WORD code);
    void cancel();
    void help();
    void makeControls(HFONT codeFont);
    void centre(HWND owner);
    ControlBinding* binding(WORD id);
    ControlBinding* binding(const std::u16string& name);

    DialogViews& views_;
    dialogs::Form& form_;
    dialogs::FormLayout layout_;
    HWND window_ = nullptr;
    HWND owner_ = nullptr;
    HWND toolTips_ = nullptr;
    bool ownerDisabled_ = false;
    // Closed: the form may be gone; the window only waits to be destroyed.
    bool closed_ = false;
    std::vector<std::unique_ptr<ControlBinding>> controls_;
};

}  // namespace quillet::win32::view
