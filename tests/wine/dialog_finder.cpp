#include "dialog_finder.h"

#include <commctrl.h>

#include <cstddef>

namespace quillet::wine::finder {

namespace {

constexpr wchar_t kNameProperty[] = L"QuilletName";

struct Search {
    std::wstring name;
    HWND found = nullptr;
    std::vector<HWND> all;
};

bool sameName(const std::wstring& a, const std::wstring& b) { return lstrcmpiW(a.c_str(), b.c_str()) == 0; }

BOOL CALLBACK topLevel(HWND window, LPARAM lParam) {
    auto* search = reinterpret_cast<Search*>(lParam);
    if (IsWindowVisible(window) && sameName(quilletName(window), search->name)) {
        search->found = window;
        return FALSE;
    }
    return TRUE;
}

BOOL CALLBACK child(HWND window, LPARAM lParam) {
    auto* search = reinterpret_cast<Search*>(lParam);
    std::wstring name = quilletName(window);
    if (name.empty()) return TRUE;
    search->all.push_back(window);
    if (!search->found && sameName(name, search->name)) search->found = window;
    return TRUE;
}

struct ToolTipSearch {
    HWND dialog, control;
    std::wstring text;
};

BOOL CALLBACK toolTipWindow(HWND window, LPARAM lParam) {
    auto& s = *reinterpret_cast<ToolTipSearch*>(lParam);
    if (lstrcmpiW(className(window).c_str(), TOOLTIPS_CLASSW) != 0 || GetWindow(window, GW_OWNER) != s.dialog) return TRUE;
    wchar_t text[512] = {};
    TTTOOLINFOW info{};
    info.cbSize = offsetof(TTTOOLINFOW, lParam) + sizeof(LPARAM);
    info.hwnd = s.dialog;
    info.uId = reinterpret_cast<UINT_PTR>(s.control);
    info.lpszText = text;
    if (!SendMessageW(window, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&info))) return TRUE;
    s.text = text;
    return FALSE;
}

bool isCombo(HWND window) { return lstrcmpiW(className(window).c_str(), L"ComboBox") == 0; }

}  // namespace

std::wstring quilletName(HWND window) {
    auto atom = static_cast<ATOM>(reinterpret_cast<UINT_PTR>(GetPropW(window, kNameProperty)));
    if (!atom) return {};
    wchar_t text[256] = {};
    UINT length = GlobalGetAtomNameW(atom, text, 256);
    return std::wstring(text, length);
}

HWND findDialog(const std::wstring& formName) {
    Search search;
    search.name = formName;
    EnumWindows(topLevel, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND findControl(HWND dialog, const std::wstring& controlName) {
    if (!dialog) return nullptr;
    Search search;
    search.name = controlName;
    EnumChildWindows(dialog, child, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::vector<HWND> namedControls(HWND dialog) {
    Search search;
    if (dialog) EnumChildWindows(dialog, child, reinterpret_cast<LPARAM>(&search));
    return search.all;
}

std::wstring windowText(HWND window) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

std::wstring className(HWND window) {
    wchar_t name[64] = {};
    int length = GetClassNameW(window, name, 64);
    return std::wstring(name, static_cast<size_t>(length > 0 ? length : 0));
}

std::wstring toolTip(HWND dialog, HWND control) {
    ToolTipSearch search{dialog, control, {}};
    EnumThreadWindows(GetCurrentThreadId(), toolTipWindow, reinterpret_cast<LPARAM>(&search));
    return search.text;
}

void pressButton(HWND button) { SendMessageW(button, BM_CLICK, 0, 0); }

std::vector<std::wstring> entries(HWND list) {
    bool combo = isCombo(list);
    std::vector<std::wstring> all;
    auto count = SendMessageW(list, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        auto length = SendMessageW(list, combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, static_cast<WPARAM>(i), 0);
        std::wstring text(static_cast<size_t>(length > 0 ? length : 0) + 1, L'\0');
        auto got = SendMessageW(list, combo ? CB_GETLBTEXT : LB_GETTEXT, static_cast<WPARAM>(i),
                                reinterpret_cast<LPARAM>(text.data()));
        text.resize(static_cast<size_t>(got > 0 ? got : 0));
        all.push_back(text);
    }
    return all;
}

long itemData(HWND list, long index) {
    return static_cast<long>(SendMessageW(list, isCombo(list) ? CB_GETITEMDATA : LB_GETITEMDATA, static_cast<WPARAM>(index), 0));
}

long selectedIndex(HWND list) { return static_cast<long>(SendMessageW(list, isCombo(list) ? CB_GETCURSEL : LB_GETCURSEL, 0, 0)); }

void pickIndex(HWND list, long index) {
    bool combo = isCombo(list);
    SendMessageW(list, combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    WORD code = combo ? CBN_SELCHANGE : LBN_SELCHANGE;
    SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), code), reinterpret_cast<LPARAM>(list));
}

bool pickEntry(HWND list, const std::wstring& entry) {
    auto all = entries(list);
    for (size_t i = 0; i < all.size(); ++i) {
        if (all[i] != entry) continue;
        pickIndex(list, static_cast<long>(i));
        return true;
    }
    return false;
}

}  // namespace quillet::wine::finder
