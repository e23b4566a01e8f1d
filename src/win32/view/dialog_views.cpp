// The dialogs' windows following the form stack.

#include "win32/view/dialog_views.h"

#include <commctrl.h>

#include <algorithm>

#include "core/err_handler.h"
#include "win32/view/dialog_fonts.h"
#include "win32/view/dialog_window.h"

namespace quillet::win32::view {

DialogViews::DialogViews(core::Context& ctx, HINSTANCE instance, dialogs::LayoutCatalog layouts)
    : ctx_(ctx), stack_(ctx.Forms), instance_(instance), layouts_(std::move(layouts)) {
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
    InitCommonControlsEx(&controls);
    codeFont_ = createCodeFont(ctx_.Platform());
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.style = CS_DBLCLKS;
    windowClass.lpfnWndProc = DefDlgProcW;
    windowClass.cbWndExtra = DLGWINDOWEXTRA;
    windowClass.hInstance = instance_;
    windowClass.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
    windowClass.lpszClassName = kDialogClass;
    // Another connection may have it registered already.
    classRegistered_ = RegisterClassExW(&windowClass) != 0;
    stack_->shown = [this](dialogs::Form& form) {
        core::guarded(ctx_, form.Name() + u".Show", [&] { shown(form); });
    };
    stack_->closed = [this](dialogs::Form& form) {
        core::guarded(ctx_, form.Name() + u".Hide", [&] { closed(form); });
    };
}

DialogViews::~DialogViews() {
    stack_->shown = nullptr;
    stack_->closed = nullptr;
    // The last opened goes first, so each owner is enabled again in turn.
    for (auto it = open_.rbegin(); it != open_.rend(); ++it) {
        if (alive((*it)->form())) (*it)->form().hWnd = 0;
        (*it)->close();
    }
    while (!open_.empty()) open_.pop_back();
    closing_.clear();
    hookKeys(false);
    if (codeFont_) DeleteObject(codeFont_);
    if (classRegistered_) UnregisterClassW(kDialogClass, instance_);
}

HWND DialogViews::windowOf(const dialogs::Form& form) const {
    for (const auto& window : open_)
        if (&window->form() == &form) return window->window();
    return nullptr;
}

bool DialogViews::alive(const dialogs::Form& form) const {
    const auto& open = stack_->OpenForms();
    return std::find(open.begin(), open.end(), &form) != open.end();
}

HWND DialogViews::editorWindow() const {
    HWND window = nullptr;
    core::ignoringErrors([&] {
        if (ctx_.VBInstance) window = reinterpret_cast<HWND>(static_cast<INT_PTR>(ctx_.VBInstance->MainWindow()->hWnd()));
    });
    if (!window || !IsWindow(window)) window = GetForegroundWindow();
    if (window) window = GetAncestor(window, GA_ROOT);
    // Another thread's window cannot own ours without tying the two threads together.
    if (window && GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId()) window = GetActiveWindow();
    return window;
}

HWND DialogViews::ownerFor(dialogs::Form& form) const {
    if (form.ParentForm)
        if (HWND parent = windowOf(*form.ParentForm)) return parent;
    // Else the dialog that is open on top, then the editor.
    for (auto it = open_.rbegin(); it != open_.rend(); ++it)
        if (&(*it)->form() != &form && (*it)->window()) return (*it)->window();
    return editorWindow();
}

void DialogViews::shown(dialogs::Form& form) {
    if (HWND window = windowOf(form)) {
        // Shown again while open: to the front, as the model is now.
        SetForegroundWindow(window);
        showAll();
        return;
    }
    auto layout = layouts_.Find(form.Name());
    auto view = std::make_unique<DialogWindow>(*this, form, layout ? *layout : dialogs::FallbackLayout(form));
    DialogWindow& made = *view;
    open_.push_back(std::move(view));
    hookKeys(true);
    if (!made.open(instance_, ownerFor(form), codeFont_)) {
        DWORD failure = GetLastError();
        open_.pop_back();
        hookKeys(!open_.empty());
        throw basic::VbError(static_cast<long>(failure ? failure : 1), u"The dialog's window could not be made",
                             u"Quillet");
    }
}

void DialogViews::closed(dialogs::Form& form) {
    auto it = std::find_if(open_.begin(), open_.end(), [&](const auto& window) { return &window->form() == &form; });
    if (it == open_.end()) return;
    form.hWnd = 0;
    (*it)->close();
    closing_.push_back(std::move(*it));
    open_.erase(it);
    if (depth_ == 0) destroyClosed();
}

void DialogViews::forward(dialogs::Form& form, const std::u16string& where, const std::function<void()>& event) noexcept {
    ViewsEntered entered(*this);
    if (!alive(form)) return;
    try {
        stack_->Raise(event);
    } catch (...) {
        report(where);
    }
    showAll();
}

void DialogViews::report(const std::u16string& where) noexcept {
    core::HandleError(ctx_, core::errorOf(std::current_exception()), 0, where);
}

void DialogViews::showAll() noexcept {
    // A form that went without closing (its owner dropped it) takes its window with it.
    for (size_t i = 0; i < open_.size();) {
        if (alive(open_[i]->form())) {
            ++i;
            continue;
        }
        open_[i]->close();
        closing_.push_back(std::move(open_[i]));
        open_.erase(open_.begin() + static_cast<long>(i));
    }
    for (auto& window : open_) {
        try {
            window->show();
        } catch (...) {
            report(window->form().Name() + u".Refresh");
        }
    }
    if (depth_ == 0) destroyClosed();
}

void DialogViews::leave() noexcept {
    if (--depth_ == 0 && !closing_.empty()) destroyClosed();
}

void DialogViews::destroyClosed() noexcept {
    auto closing = std::move(closing_);
    closing_.clear();
    closing.clear();
    hookKeys(!open_.empty());
}

void DialogViews::hookKeys(bool on) noexcept {
    if (on && !hook_) hook_ = SetWindowsHookExW(WH_GETMESSAGE, &DialogViews::keyHook, nullptr, GetCurrentThreadId());
    if (!on && hook_) {
        UnhookWindowsHookEx(hook_);
        hook_ = nullptr;
    }
}

// Keyboard messages of a Quillet dialog go through the dialog's keys before the editor's loop
// sees them; one that the dialog handled reaches the loop as WM_NULL.
LRESULT CALLBACK DialogViews::keyHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && wParam == PM_REMOVE && lParam) {
        auto* message = reinterpret_cast<MSG*>(lParam);
        if (message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST) {
            if (DialogWindow* dialog = DialogWindow::of(message->hwnd)) {
                ViewsEntered entered(dialog->views());
                if (dialog->keyboard(*message)) {
                    message->message = WM_NULL;
                    message->wParam = 0;
                    message->lParam = 0;
                }
            }
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace quillet::win32::view
