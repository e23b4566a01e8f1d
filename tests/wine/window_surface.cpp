#include "window_surface.h"

#include "dialog_finder.h"

#include <vector>

#include "basic/strings.h"
#include "basic/vb_error.h"

namespace quillet::wine {

using dialogs::ControlKind;
using dialogs::ControlSnapshot;

namespace {

std::wstring wide(const Str& text) { return std::wstring(text.begin(), text.end()); }
Str narrowed(const std::wstring& text) { return Str(text.begin(), text.end()); }

bool sameName(const Str& a, const Str& b) { return basic::StrComp(a, b, basic::Compare::Text) == 0; }

Str windowText(HWND window) { return narrowed(finder::windowText(window)); }

using finder::className;

LONG_PTR styleOf(HWND window) { return GetWindowLongPtrW(window, GWL_STYLE); }

ControlKind kindOf(HWND window) {
    std::wstring cls = className(window);
    if (lstrcmpiW(cls.c_str(), L"Edit") == 0) return ControlKind::TextBox;
    if (lstrcmpiW(cls.c_str(), L"ComboBox") == 0) return ControlKind::ComboBox;
    if (lstrcmpiW(cls.c_str(), L"ListBox") == 0) return ControlKind::ListBox;
    if (lstrcmpiW(cls.c_str(), L"Static") == 0) return ControlKind::Label;
    switch (styleOf(window) & BS_TYPEMASK) {
        case BS_CHECKBOX: case BS_AUTOCHECKBOX: case BS_3STATE: case BS_AUTO3STATE: return ControlKind::CheckBox;
        case BS_RADIOBUTTON: case BS_AUTORADIOBUTTON: return ControlKind::OptionButton;
        case BS_GROUPBOX: return ControlKind::Frame;
        default: return ControlKind::CommandButton;
    }
}

std::vector<dialogs::ListEntry> entriesOf(HWND list) {
    std::vector<dialogs::ListEntry> entries;
    std::vector<std::wstring> texts = finder::entries(list);
    for (size_t i = 0; i < texts.size(); ++i) entries.push_back({narrowed(texts[i]), finder::itemData(list, static_cast<long>(i))});
    return entries;
}

void notifyParent(HWND control, WORD code) {
    HWND parent = GetParent(control);
    SendMessageW(parent, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), code), reinterpret_cast<LPARAM>(control));
}

BOOL CALLBACK collectDialog(HWND window, LPARAM lParam) {
    if (IsWindowVisible(window) && !finder::quilletName(window).empty())
        reinterpret_cast<std::vector<HWND>*>(lParam)->push_back(window);
    return TRUE;
}

std::vector<HWND> threadDialogs() {
    std::vector<HWND> dialogs;
    EnumThreadWindows(GetCurrentThreadId(), collectDialog, reinterpret_cast<LPARAM>(&dialogs));
    return dialogs;
}

}  // namespace

HWND findDialog(const Str& formName) { return finder::findDialog(wide(formName)); }

HWND findControl(HWND dialog, const Str& controlName) { return finder::findControl(dialog, wide(controlName)); }

HWND topDialog() {
    std::vector<HWND> dialogs = threadDialogs();
    for (HWND candidate : dialogs) {
        bool ownsAnother = false;
        for (HWND other : dialogs) ownsAnother = ownsAnother || GetWindow(other, GW_OWNER) == candidate;
        if (!ownsAnother) return candidate;
    }
    return nullptr;
}

void settle() {
    MSG msg;
    for (int round = 0; round < 3; ++round) {
        while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&msg);
            DispatchMessageW(&msg);
        }
        Sleep(1);
    }
}

std::optional<Str> WindowSurface::topForm() {
    HWND dialog = topDialog();
    if (!dialog) return std::nullopt;
    return narrowed(finder::quilletName(dialog));
}

Str WindowSurface::formCaption() {
    HWND dialog = topDialog();
    return dialog ? windowText(dialog) : Str();
}

bool WindowSurface::formVisible() { return topDialog() != nullptr; }

bool WindowSurface::formOpen(const Str& formName) { return findDialog(formName) != nullptr; }

bool WindowSurface::canOpen(const Str& formName) {
    for (const auto& [name, opener] : openers_)
        if (sameName(name, formName)) return true;
    return false;
}

std::optional<ControlSnapshot> WindowSurface::control(const Str& name) {
    HWND dialog = topDialog();
    HWND window = dialog ? findControl(dialog, name) : nullptr;
    if (!window) return std::nullopt;
    ControlSnapshot shot;
    shot.kind = kindOf(window);
    shot.enabled = IsWindowEnabled(window) != FALSE;
    shot.visible = (styleOf(window) & WS_VISIBLE) != 0;
    shot.toolTip = narrowed(finder::toolTip(dialog, window));
    switch (shot.kind) {
        case ControlKind::ComboBox:
        case ControlKind::ListBox: {
            shot.entries = entriesOf(window);
            shot.listIndex = finder::selectedIndex(window);
            if (shot.kind == ControlKind::ComboBox) shot.text = windowText(window);
            else if (shot.listIndex >= 0 && shot.listIndex < static_cast<long>(shot.entries.size()))
                shot.text = shot.entries[static_cast<size_t>(shot.listIndex)].text;
            break;
        }
        case ControlKind::TextBox: shot.text = windowText(window); break;
        case ControlKind::CheckBox:
        case ControlKind::OptionButton:
            shot.caption = windowText(window);
            shot.value = static_cast<long>(SendMessageW(window, BM_GETCHECK, 0, 0));
            break;
        default: shot.caption = windowText(window); break;
    }
    return shot;
}

HWND WindowSurface::existing(const Str& name) {
    HWND dialog = topDialog();
    HWND window = dialog ? findControl(dialog, name) : nullptr;
    if (!window) throw basic::VbError(730, u"Control '" + name + u"' not found");
    return window;
}

void WindowSurface::open(const Str& formName, const std::vector<Str>& args) {
    for (const auto& [name, opener] : openers_) {
        if (!sameName(name, formName)) continue;
        opener(args);
        settle();
        return;
    }
    throw basic::VbError(5, u"No opener for " + formName);
}

void WindowSurface::setText(const Str& name, const Str& text) {
    HWND window = existing(name);
    std::wstring value = wide(text);
    if (kindOf(window) == ControlKind::ComboBox) {
        // Typed over the whole text of the combo box's own edit control, whose EN_CHANGE the
        // combo box passes on as CBN_EDITCHANGE (WM_SETTEXT there notifies nobody).
        HWND edit = FindWindowExW(window, nullptr, L"Edit", nullptr);
        if (!edit) throw basic::VbError(5, u"The list of " + name + u" takes no typed text");
        SendMessageW(edit, EM_SETSEL, 0, -1);
        SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(value.c_str()));
    } else if (GetWindowLongW(window, GWL_STYLE) & ES_MULTILINE) {
        // A multi-line edit control tells no EN_CHANGE for WM_SETTEXT: typed over instead.
        SendMessageW(window, EM_SETSEL, 0, -1);
        SendMessageW(window, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(value.c_str()));
    } else {
        SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(value.c_str()));
    }
    settle();
}

void WindowSurface::selectEntry(const Str& name, long index) {
    finder::pickIndex(existing(name), index);
    settle();
}

void WindowSurface::setValue(const Str& name, long value) {
    HWND window = existing(name);
    long now = static_cast<long>(SendMessageW(window, BM_GETCHECK, 0, 0));
    if (now == value) return;
    // A click turns a check box over and an option button on, as the user's click does.
    if (kindOf(window) == ControlKind::OptionButton && value == 0)
        throw basic::VbError(5, u"An option button is turned off by turning another one on");
    notifyParent(window, BN_CLICKED);
    settle();
}

void WindowSurface::click(const Str& name) {
    HWND window = existing(name);
    notifyParent(window, BN_CLICKED);
    settle();
}

}  // namespace quillet::wine
