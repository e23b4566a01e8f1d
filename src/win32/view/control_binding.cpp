// Native controls bound to model controls: made from placements, kept in step with the model,
// their notifications and keys forwarded as the model's events.

#include "win32/view/control_binding.h"

#include <commctrl.h>

#include <algorithm>

#include "win32/view/dialog_views.h"
#include "win32/view/dialog_window.h"
#include "win32/view/window_names.h"

namespace quillet::win32::view {

using dialogs::ControlKind;
using Str = std::u16string;

namespace {

constexpr int kDropDownDlu = 96;  // the open list of a combo box, below its field
constexpr wchar_t kBindingProperty[] = L"QuilletBinding";
constexpr long kDeleteKey = 46;

// The size of the tool information that every version of the common controls takes.
constexpr UINT kToolInfoSize = offsetof(TTTOOLINFOW, lParam) + sizeof(LPARAM);

std::wstring wide(const Str& text) { return std::wstring(text.begin(), text.end()); }

ControlBinding* bindingOf(HWND window) { return static_cast<ControlBinding*>(GetPropW(window, kBindingProperty)); }

}  // namespace

ControlBinding::ControlBinding(DialogWindow& dialog, const dialogs::Placement& placement, ControlKind kind, int id)
    : dialog_(dialog), placement_(placement), kind_(kind), id_(id) {}

ControlBinding::~ControlBinding() = default;

const wchar_t* ControlBinding::windowClass() const {
    switch (kind_) {
        case ControlKind::TextBox: return L"EDIT";
        case ControlKind::ComboBox: return L"COMBOBOX";
        case ControlKind::ListBox: return L"LISTBOX";
        case ControlKind::Label: return L"STATIC";
        default: return L"BUTTON";
    }
}

DWORD ControlBinding::style(bool groupStart, bool tabStop) const {
    DWORD style = WS_CHILD | WS_VISIBLE | (groupStart ? WS_GROUP : 0) | (tabStop ? WS_TABSTOP : 0);
    switch (kind_) {
        case ControlKind::TextBox:
            return style | (placement_.multiLine ? ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL : ES_AUTOHSCROLL);
        case ControlKind::ComboBox:
            return style | WS_VSCROLL | CBS_AUTOHSCROLL |
                   (placement_.combo == dialogs::ComboStyle::Editable ? CBS_DROPDOWN : CBS_DROPDOWNLIST);
        case ControlKind::ListBox: return style | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL;
        case ControlKind::CheckBox: return style | BS_3STATE;
        case ControlKind::OptionButton: return style | BS_AUTORADIOBUTTON;
        case ControlKind::CommandButton: return style | (id_ == IDOK ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON);
        case ControlKind::Frame: return style | BS_GROUPBOX;
        case ControlKind::Label: return style | SS_LEFT;
    }
    return style;
}

bool ControlBinding::create(HWND dialog, HFONT font, HFONT codeFont, bool groupStart, bool tabStop) {
    const auto& r = placement_.rect;
    int dropDown = kind_ == ControlKind::ComboBox ? kDropDownDlu : 0;
    RECT area{r.x, r.y, r.right(), r.bottom() + dropDown};
    MapDialogRect(dialog, &area);
    bool sunken = kind_ == ControlKind::TextBox || kind_ == ControlKind::ListBox;
    window_ = CreateWindowExW(sunken ? WS_EX_CLIENTEDGE : 0, windowClass(), L"", style(groupStart, tabStop), area.left,
                              area.top, area.right - area.left, area.bottom - area.top, dialog,
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(id_)), nullptr, nullptr);
    if (!window_) return false;
    SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(placement_.codeFont && codeFont ? codeFont : font), FALSE);
    setWindowName(window_, placement_.name);
    SetPropW(window_, kBindingProperty, this);
    controlOriginal_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ControlBinding::controlProc)));
    if (kind_ == ControlKind::ComboBox && placement_.combo == dialogs::ComboStyle::Editable) {
        COMBOBOXINFO info{};
        info.cbSize = sizeof info;
        if (GetComboBoxInfo(window_, &info) && info.hwndItem) {
            edit_ = info.hwndItem;
            SetPropW(edit_, kBindingProperty, this);
            editOriginal_ = reinterpret_cast<WNDPROC>(
                SetWindowLongPtrW(edit_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ControlBinding::editProc)));
        }
    }
    return true;
}

LRESULT CALLBACK ControlBinding::controlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    ControlBinding* self = bindingOf(window);
    if (!self || !self->controlOriginal_) return DefWindowProcW(window, message, wParam, lParam);
    WNDPROC original = self->controlOriginal_;
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original));
        RemovePropW(window, kBindingProperty);
        clearWindowName(window);
        self->window_ = nullptr;
        return CallWindowProcW(original, window, message, wParam, lParam);
    }
    // A dialog closed by what this message does goes once the message is done with.
    ViewsEntered entered(self->dialog_.views());
    return CallWindowProcW(original, window, message, wParam, lParam);
}

LRESULT CALLBACK ControlBinding::editProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    ControlBinding* self = bindingOf(window);
    if (!self || !self->editOriginal_) return DefWindowProcW(window, message, wParam, lParam);
    WNDPROC original = self->editOriginal_;
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original));
        RemovePropW(window, kBindingProperty);
        self->edit_ = nullptr;
        return CallWindowProcW(original, window, message, wParam, lParam);
    }
    ViewsEntered entered(self->dialog_.views());
    if (message == WM_CHAR || (message == WM_KEYDOWN && wParam == VK_DELETE))
        return self->key(window, message, wParam, lParam, original);
    return CallWindowProcW(original, window, message, wParam, lParam);
}

// A key typed into a combo box's field goes to the model first (KeyPress, or KeyDown for
// Delete), which may change it or swallow it (set to 0).
LRESULT ControlBinding::key(HWND window, UINT message, WPARAM wParam, LPARAM lParam, WNDPROC original) {
    long code = static_cast<long>(wParam);
    bool pressed = message == WM_CHAR;
    long shift = (GetKeyState(VK_SHIFT) < 0 ? 1 : 0) | (GetKeyState(VK_CONTROL) < 0 ? 2 : 0) |
                 (GetKeyState(VK_MENU) < 0 ? 4 : 0);
    if (!pressed) code = kDeleteKey;
    dialog_.forward(placement_.name, [&](dialogs::Control& control) {
        readSelection(control);
        if (pressed)
            control.KeyPress(code);
        else
            control.KeyDown(code, shift);
    });
    if (code == 0) return 0;
    if (pressed) wParam = static_cast<WPARAM>(code);
    return CallWindowProcW(original, window, message, wParam, lParam);
}

Str ControlBinding::windowText(HWND window) const {
    int length = GetWindowTextLengthW(window);
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    int got = GetWindowTextW(window, text.data(), length + 1);
    return Str(text.begin(), text.begin() + got);
}

void ControlBinding::setText(HWND window, const Str& text) { SetWindowTextW(window, wide(text).c_str()); }

void ControlBinding::readSelection(dialogs::Control& control) {
    if (!window_ || (kind_ != ControlKind::TextBox && kind_ != ControlKind::ComboBox)) return;
    DWORD start = 0, end = 0;
    if (kind_ == ControlKind::TextBox) {
        SendMessageW(window_, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    } else {
        if (!edit_) return;
        DWORD both = static_cast<DWORD>(SendMessageW(window_, CB_GETEDITSEL, 0, 0));
        start = LOWORD(both);
        end = HIWORD(both);
    }
    control.SelStart = static_cast<long>(start);
    control.SelLength = static_cast<long>(end >= start ? end - start : 0);
    shown_.selStart = control.SelStart;
    shown_.selLength = control.SelLength;
}

void ControlBinding::notified(WORD code) {
    if (writing_ || !window_) return;
    switch (kind_) {
        case ControlKind::TextBox:
            if (code != EN_CHANGE) return;
            shown_.text = windowText(window_);
            dialog_.forward(placement_.name, [this](dialogs::Control& c) { c.Text(shown_.text); });
            return;
        case ControlKind::ComboBox:
            if (code == CBN_EDITCHANGE) {
                shown_.text = windowText(window_);
                dialog_.forward(placement_.name, [this](dialogs::Control& c) { c.Text(shown_.text); });
            } else if (code == CBN_SELCHANGE) {
                long index = static_cast<long>(SendMessageW(window_, CB_GETCURSEL, 0, 0));
                shown_.listIndex = index;
                if (index >= 0 && index < static_cast<long>(shown_.entries.size())) shown_.text = shown_.entries[index].text;
                dialog_.forward(placement_.name, [index](dialogs::Control& c) { c.ListIndex(index); });
            }
            return;
        case ControlKind::ListBox:
            if (code != LBN_SELCHANGE) return;
            shown_.listIndex = static_cast<long>(SendMessageW(window_, LB_GETCURSEL, 0, 0));
            dialog_.forward(placement_.name, [this](dialogs::Control& c) { c.ListIndex(shown_.listIndex); });
            return;
        case ControlKind::CheckBox:
            if (code == BN_CLICKED)
                dialog_.forward(placement_.name, [](dialogs::Control& c) {
                    c.Value(c.Value() == dialogs::vbChecked ? dialogs::vbUnchecked : dialogs::vbChecked);
                });
            return;
        case ControlKind::OptionButton:
            if (code == BN_CLICKED) dialog_.forward(placement_.name, [](dialogs::Control& c) { c.Value(1); });
            return;
        case ControlKind::CommandButton:
            if (code == BN_CLICKED) press();
            return;
        default: return;
    }
}

void ControlBinding::press() {
    dialog_.forward(placement_.name, [](dialogs::Control& c) {
        if (c.Enabled && c.Visible) c.Click();
    });
}

void ControlBinding::show(dialogs::Control* control, HWND toolTips) {
    if (!window_) return;
    writing_ = true;
    try {
        if (!control) {
            Str caption = placement_.caption;
            if (caption != shown_.text) setText(window_, shown_.text = caption);
        } else {
            showText(*control);
            if (control->Enabled != shown_.enabled) EnableWindow(window_, shown_.enabled = control->Enabled);
            if (control->Visible != shown_.visible)
                ShowWindow(window_, (shown_.visible = control->Visible) ? SW_SHOWNA : SW_HIDE);
            showToolTip(control->ToolTipText, toolTips);
        }
    } catch (...) {
        writing_ = false;
        throw;
    }
    writing_ = false;
}

void ControlBinding::showText(dialogs::Control& control) {
    switch (kind_) {
        case ControlKind::TextBox:
            if (control.Text() != shown_.text) setText(window_, shown_.text = control.Text());
            showSelection(control);
            return;
        case ControlKind::ComboBox:
        case ControlKind::ListBox: showList(control); return;
        case ControlKind::CheckBox:
        case ControlKind::OptionButton:
            if (control.Value() != shown_.value) {
                shown_.value = control.Value();
                WPARAM check = shown_.value == dialogs::vbGrayed ? BST_INDETERMINATE
                                                                 : (shown_.value ? BST_CHECKED : BST_UNCHECKED);
                SendMessageW(window_, BM_SETCHECK, check, 0);
            }
            [[fallthrough]];
        default: {
            Str caption = control.Caption.empty() ? placement_.caption : control.Caption;
            if (caption != shown_.text) setText(window_, shown_.text = caption);
        }
    }
}

void ControlBinding::showList(dialogs::Control& control) {
    bool combo = kind_ == ControlKind::ComboBox;
    const auto& entries = control.Entries();
    bool sameEntries = entries.size() == shown_.entries.size() &&
                       std::equal(entries.begin(), entries.end(), shown_.entries.begin(), [](const auto& a, const auto& b) {
                           return a.text == b.text && a.itemData == b.itemData;
                       });
    if (!sameEntries) {
        SendMessageW(window_, combo ? CB_RESETCONTENT : LB_RESETCONTENT, 0, 0);
        for (const auto& entry : entries) {
            auto at = SendMessageW(window_, combo ? CB_ADDSTRING : LB_ADDSTRING, 0,
                                   reinterpret_cast<LPARAM>(wide(entry.text).c_str()));
            if (at >= 0)
                SendMessageW(window_, combo ? CB_SETITEMDATA : LB_SETITEMDATA, static_cast<WPARAM>(at),
                             static_cast<LPARAM>(entry.itemData));
        }
        shown_.entries = entries;
        shown_.listIndex = -2;
        shown_.text.clear();
    }
    if (control.ListIndex() != shown_.listIndex) {
        shown_.listIndex = control.ListIndex();
        SendMessageW(window_, combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(shown_.listIndex), 0);
        if (combo) shown_.text = windowText(window_);
    }
    if (combo && edit_ && control.Text() != shown_.text) setText(window_, shown_.text = control.Text());
    if (combo) showSelection(control);
}

void ControlBinding::showSelection(dialogs::Control& control) {
    if (control.SelStart == shown_.selStart && control.SelLength == shown_.selLength) return;
    shown_.selStart = control.SelStart;
    shown_.selLength = control.SelLength;
    long start = std::max(0L, control.SelStart), end = start + std::max(0L, control.SelLength);
    if (kind_ == ControlKind::TextBox)
        SendMessageW(window_, EM_SETSEL, static_cast<WPARAM>(start), static_cast<LPARAM>(end));
    else if (edit_)
        SendMessageW(window_, CB_SETEDITSEL, 0, MAKELPARAM(start, end));
}

void ControlBinding::showToolTip(const Str& text, HWND toolTips) {
    if (!toolTips || text == shown_.toolTip) return;
    TTTOOLINFOW tool{};
    tool.cbSize = kToolInfoSize;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = GetParent(window_);
    tool.uId = reinterpret_cast<UINT_PTR>(window_);
    std::wstring wideText = wide(text);
    tool.lpszText = wideText.data();
    if (shown_.toolTip.empty())
        SendMessageW(toolTips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    else if (text.empty())
        SendMessageW(toolTips, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    else
        SendMessageW(toolTips, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
    shown_.toolTip = text;
}

}  // namespace quillet::win32::view
