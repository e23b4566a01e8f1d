// One dialog window over a form model.

#include "win32/view/dialog_window.h"

#include <commctrl.h>

#include "basic/strings.h"
#include "win32/view/dialog_fonts.h"
#include "win32/view/dialog_views.h"
#include "win32/view/window_names.h"

namespace quillet::win32::view {

using dialogs::ControlKind;
using Str = std::u16string;

namespace {

constexpr wchar_t kDialogProperty[] = L"QuilletDialog";
constexpr int kFirstControlId = 100;
constexpr DWORD kDialogStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;

bool same(const Str& a, const Str& b) { return dialogs::foldedName(a) == dialogs::foldedName(b); }

}  // namespace

DialogWindow::DialogWindow(DialogViews& views, dialogs::Form& form, dialogs::FormLayout layout)
    : views_(views), form_(form), layout_(std::move(layout)) {}

DialogWindow::~DialogWindow() {
    close();
    if (window_) DestroyWindow(window_);
    if (toolTips_) DestroyWindow(toolTips_);
}

DialogWindow* DialogWindow::of(HWND window) noexcept {
    HWND root = window ? GetAncestor(window, GA_ROOT) : nullptr;
    return root ? static_cast<DialogWindow*>(GetPropW(root, kDialogProperty)) : nullptr;
}

bool DialogWindow::open(HINSTANCE instance, HWND owner, HFONT codeFont) {
    owner_ = owner;
    std::wstring caption(form_.Caption.begin(), form_.Caption.end());
    std::wstring dialog = dialogTemplate(kDialogClass, kDialogStyle, WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT,
                                         static_cast<short>(layout_.width), static_cast<short>(layout_.height), caption,
                                         systemMessageFont());
    window_ = CreateDialogIndirectParamW(instance, reinterpret_cast<LPCDLGTEMPLATEW>(dialog.data()), owner,
                                         &DialogWindow::dialogProc, reinterpret_cast<LPARAM>(this));
    if (!window_) return false;
    setWindowName(window_, form_.Name());
    form_.hWnd = reinterpret_cast<long long>(window_);
    // The controls' tool tips: balloons, top-most, their text taken as it is.
    toolTips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_BALLOON | TTS_NOPREFIX,
                                CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, window_, nullptr, instance,
                                nullptr);
    makeControls(codeFont);
    if (binding(static_cast<WORD>(IDOK))) SendMessageW(window_, DM_SETDEFID, IDOK, 0);
    show();
    centre(owner);
    if (form_.IsModal() && owner_ && IsWindowEnabled(owner_)) {
        EnableWindow(owner_, FALSE);
        ownerDisabled_ = true;
    }
    ShowWindow(window_, SW_SHOW);
    HWND first = GetNextDlgTabItem(window_, nullptr, FALSE);
    if (first) SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
    return true;
}

void DialogWindow::makeControls(HFONT codeFont) {
    auto font = reinterpret_cast<HFONT>(SendMessageW(window_, WM_GETFONT, 0, 0));
    int nextId = kFirstControlId;
    const dialogs::Control* previous = nullptr;
    for (const auto& item : layout_.items) {
        ControlKind kind = dialogs::kindOf(item, form_);
        int id = same(item.name, layout_.defaultButton)  ? IDOK
                 : same(item.name, layout_.cancelButton) ? IDCANCEL
                                                         : nextId++;
        const dialogs::Control* control = item.decoration ? nullptr : form_.Find(item.name);
        // Option buttons of one container form a group: the first starts it and alone is a Tab stop.
        bool continuesGroup = kind == ControlKind::OptionButton && previous &&
                              previous->Kind() == ControlKind::OptionButton && control &&
                              same(previous->Container, control->Container);
        bool focusable = dialogs::takesFocus(kind);
        auto binding = std::make_unique<ControlBinding>(*this, item, kind, id);
        if (binding->create(window_, font, codeFont, !continuesGroup, focusable && !continuesGroup))
            controls_.push_back(std::move(binding));
        if (focusable) previous = control;
    }
}

void DialogWindow::centre(HWND owner) {
    RECT mine{}, around{};
    GetWindowRect(window_, &mine);
    HMONITOR monitor = MonitorFromWindow(owner ? owner : window_, MONITOR_DEFAULTTONEAREST);
    MONITORINFO info{};
    info.cbSize = sizeof info;
    GetMonitorInfoW(monitor, &info);
    if (!owner || !IsWindowVisible(owner) || IsIconic(owner) || !GetWindowRect(owner, &around)) around = info.rcWork;
    int width = mine.right - mine.left, height = mine.bottom - mine.top;
    int x = around.left + ((around.right - around.left) - width) / 2;
    int y = around.top + ((around.bottom - around.top) - height) / 2;
    const RECT& work = info.rcWork;
    x = std::max<int>(work.left, std::min<int>(x, work.right - width));
    y = std::max<int>(work.top, std::min<int>(y, work.bottom - height));
    SetWindowPos(window_, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void DialogWindow::close() noexcept {
    closed_ = true;
    if (ownerDisabled_ && owner_ && IsWindow(owner_)) EnableWindow(owner_, TRUE);
    ownerDisabled_ = false;
    // The owner is enabled first, so that it is the window activated as this one hides.
    if (window_) ShowWindow(window_, SW_HIDE);
}

void DialogWindow::show() {
    for (auto& binding : controls_)
        binding->show(binding->decoration() ? nullptr : form_.Find(binding->name()), toolTips_);
    Str caption = form_.Caption;
    int length = GetWindowTextLengthW(window_);
    std::wstring now(static_cast<size_t>(length) + 1, L'\0');
    now.resize(static_cast<size_t>(GetWindowTextW(window_, now.data(), length + 1)));
    if (Str(now.begin(), now.end()) != caption) SetWindowTextW(window_, std::wstring(caption.begin(), caption.end()).c_str());
    focusAsked();
}

// The focus goes where the form asks for it, with an edit's text selected for typing over.
void DialogWindow::focusAsked() {
    if (form_.FocusedControl.empty()) return;
    ControlBinding* target = binding(form_.FocusedControl);
    form_.FocusedControl.clear();
    if (!target || !target->window() || !IsWindowEnabled(target->window())) return;
    SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(target->window()), TRUE);
}

void DialogWindow::forward(const Str& control, const std::function<void(dialogs::Control&)>& event) noexcept {
    if (closed_) return;
    views_.forward(form_, form_.Name() + u"." + control, [&] {
        for (auto& binding : controls_)
            if (!binding->decoration()) {
                if (dialogs::Control* c = form_.Find(binding->name())) binding->readSelection(*c);
            }
        if (dialogs::Control* c = form_.Find(control)) event(*c);
    });
}

ControlBinding* DialogWindow::binding(WORD id) {
    for (auto& b : controls_)
        if (b->id() == id) return b.get();
    return nullptr;
}

ControlBinding* DialogWindow::binding(const Str& name) {
    for (auto& b : controls_)
        if (same(b->name(), name)) return b.get();
    return nullptr;
}

void DialogWindow::command(WORD id, WORD code) {
    ControlBinding* target = binding(id);
    if (target) {
        target->notified(code);
    } else if (id == IDCANCEL) {
        cancel();
    }
}

// Escape without a cancel button, and the close box: the cancel button when there is one, else
// the form unloads.
void DialogWindow::cancel() {
    if (ControlBinding* button = binding(layout_.cancelButton)) {
        button->press();
        return;
    }
    views_.forward(form_, form_.Name() + u".Form_Unload", [this] { form_.Unload(); });
}

void DialogWindow::help() {
    if (!form_.OnHelpKey) return;
    views_.forward(form_, form_.Name() + u".OnHelpKey", [this] {
        auto onHelp = form_.OnHelpKey;
        onHelp();
    });
}

bool DialogWindow::keyboard(MSG& message) noexcept {
    try {
        if (closed_ || !window_ || !IsWindowEnabled(window_)) return false;
        if (message.message == WM_KEYDOWN && message.wParam == VK_F1) {
            help();
            return true;
        }
        return IsDialogMessageW(window_, &message) != FALSE;
    } catch (...) {
        views_.report(form_.Name() + u".KeyPreview");
        return true;
    }
}

INT_PTR CALLBACK DialogWindow::dialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        auto* self = reinterpret_cast<DialogWindow*>(lParam);
        SetPropW(window, kDialogProperty, self);
        self->window_ = window;
        return FALSE;
    }
    auto* self = static_cast<DialogWindow*>(GetPropW(window, kDialogProperty));
    if (!self) return FALSE;
    if (self->closed_ && message != WM_NCDESTROY) return FALSE;
    if (message == WM_NCDESTROY) {
        RemovePropW(window, kDialogProperty);
        clearWindowName(window);
        self->window_ = nullptr;
        // The tool tips went with their owner.
        self->toolTips_ = nullptr;
        return FALSE;
    }
    ViewsEntered entered(self->views_);
    try {
        return self->handle(message, wParam, lParam);
    } catch (...) {
        self->views_.report(self->form_.Name() + u".WindowProc");
        return FALSE;
    }
}

INT_PTR DialogWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            command(LOWORD(wParam), HIWORD(wParam));
            return TRUE;
        case WM_CLOSE:
            cancel();
            return TRUE;
        case WM_HELP:
            help();
            return TRUE;
        default: (void)lParam; return FALSE;
    }
}

}  // namespace quillet::win32::view
