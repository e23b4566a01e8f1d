#pragma once
// One native control bound to the model control of the same name. The binding makes the window
// from its placement, shows the model's state in it, and turns what the user does into the
// model's events through its dialog. It remembers what the window shows, so that only what the
// model changed is written back, and the window's own notifications of those writes are not
// taken for the user's.

#include <windows.h>

#include <vector>

#include "dialogs/layout.h"

namespace quillet::win32::view {

class DialogWindow;

// What a window shows, as last written or read.
struct ShownState {
    std::u16string text;
    long value = -1;
    std::vector<dialogs::ListEntry> entries;
    long listIndex = -2;
    bool enabled = true;
    bool visible = true;
    long selStart = -1;
    long selLength = -1;
    std::u16string toolTip;
};

class ControlBinding {
public:
    ControlBinding(DialogWindow& dialog, const dialogs::Placement& placement, dialogs::ControlKind kind, int id);
    ~ControlBinding();
    ControlBinding(const ControlBinding&) = delete;
    ControlBinding& operator=(const ControlBinding&) = delete;

    // Makes the window on the dialog; false when it could not be made.
    bool create(HWND dialog, HFONT font, HFONT codeFont, bool groupStart, bool tabStop);
    HWND window() const { return window_; }
    int id() const { return id_; }
    const std::u16string& name() const { return placement_.name; }
    dialogs::ControlKind kind() const { return kind_; }
    bool decoration() const { return placement_.decoration; }
    const dialogs::Placement& placement() const { return placement_; }

    // Writes the model's state where the window shows something else. `control` is null for a
    // decoration.
    void show(dialogs::Control* control, HWND toolTips);
    // Copies the window's text selection into the model (before an event the model may read it).
    void readSelection(dialogs::Control& control);
    // A WM_COMMAND notification of this control: the model event it stands for (none when it is
    // the echo of the view's own write).
    void notified(WORD code);
    // Enter or Escape pressed the button.
    void press();

private:
    static LRESULT CALLBACK controlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK editProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT key(HWND window, UINT message, WPARAM wParam, LPARAM lParam, WNDPROC original);
    void showText(dialogs::Control& control);
    void showList(dialogs::Control& control);
    void showSelection(dialogs::Control& control);
    void showToolTip(const std::u16string& text, HWND toolTips);
    std::u16string windowText(HWND window) const;
    void setText(HWND window, const std::u16string& text);
    DWORD style(bool groupStart, bool tabStop) const;
    const wchar_t* windowClass() const;

    DialogWindow& dialog_;
    dialogs::Placement placement_;
    dialogs::ControlKind kind_;
    int id_;
    HWND window_ = nullptr;
    // The edit field of an editable combo box.
    HWND edit_ = nullptr;
    WNDPROC controlOriginal_ = nullptr;
    WNDPROC editOriginal_ = nullptr;
    ShownState shown_;
    bool writing_ = false;
};

}  // namespace quillet::win32::view
