#pragma once
// The windows of the add-in's dialogs: follows the context's form stack, making a window for
// each form shown on it (from the form's layout, or a plain one) and taking it away when the
// form closes. A modal form disables its owner (the editor's main window, or the dialog that
// opened it) for as long as it is open; nothing runs a message loop of its own. While a dialog is
// open, a hook on the thread's messages gives the dialog its keys, since the editor's message
// loop does not. Failures inside window procedures and the hook go to HandleError; the editor
// never sees one.

#include <windows.h>

#include <functional>
#include <memory>
#include <vector>

#include "core/context.h"
#include "dialogs/layout.h"

namespace quillet::win32::view {

class DialogWindow;

class DialogViews {
public:
    DialogViews(core::Context& ctx, HINSTANCE instance, dialogs::LayoutCatalog layouts);
    // Every window goes, the owners enabled again, the hook removed and the stack left alone.
    ~DialogViews();
    DialogViews(const DialogViews&) = delete;
    DialogViews& operator=(const DialogViews&) = delete;

    // The window of an open form, or none.
    HWND windowOf(const dialogs::Form& form) const;

    // Used by the windows: runs a user's action as an event of the form's stack, reports its
    // failure, then shows the model again in every open dialog.
    void forward(dialogs::Form& form, const std::u16string& where, const std::function<void()>& event) noexcept;
    // Reports the exception being handled, as a failure of `where`.
    void report(const std::u16string& where) noexcept;
    // Marks a window procedure's run: windows closed inside it go when the outermost one ends.
    void enter() noexcept { ++depth_; }
    void leave() noexcept;

private:
    void shown(dialogs::Form& form);
    void closed(dialogs::Form& form);
    void showAll() noexcept;
    bool alive(const dialogs::Form& form) const;
    HWND ownerFor(dialogs::Form& form) const;
    HWND editorWindow() const;
    void hookKeys(bool on) noexcept;
    void destroyClosed() noexcept;
    static LRESULT CALLBACK keyHook(int code, WPARAM wParam, LPARAM lParam);

    core::Context& ctx_;
    std::shared_ptr<dialogs::FormStack> stack_;
    HINSTANCE instance_;
    dialogs::LayoutCatalog layouts_;
    HFONT codeFont_ = nullptr;
    bool classRegistered_ = false;
    HHOOK hook_ = nullptr;
    int depth_ = 0;
    std::vector<std::unique_ptr<DialogWindow>> open_;
    std::vector<std::unique_ptr<DialogWindow>> closing_;
};

// Marks one run of a window procedure (see DialogViews::enter).
class ViewsEntered {
public:
    explicit ViewsEntered(DialogViews& views) : views_(views) { views_.enter(); }
    ~ViewsEntered() { views_.leave(); }
    ViewsEntered(const ViewsEntered&) = delete;
    ViewsEntered& operator=(const ViewsEntered&) = delete;

private:
    DialogViews& views_;
};

}  // namespace quillet::win32::view
