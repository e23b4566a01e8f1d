// Basic's InputBox: a modal dialog built in memory (no resource needed), with the prompt,
// one text field holding the default, OK and Cancel.

#include <vector>

#include "hosts/com/bstr.h"
#include "platform/win/win_platform.h"

namespace quillet::platform::win {

namespace {

using hosts::com::fromWide;
using hosts::com::toWide;

constexpr WORD kPromptId = 100;
constexpr WORD kTextId = 101;

// A DLGTEMPLATE and its items, laid out as DialogBoxIndirect reads them.
class TemplateWriter {
public:
    void dialog(const std::wstring& title, short items, short cx, short cy) {
        DLGTEMPLATE t{};
        t.style = DS_MODALFRAME | DS_CENTER | DS_SETFONT | WS_POPUP | WS_CAPTION | WS_SYSMENU;
        t.cdit = items;
        t.cx = cx;
        t.cy = cy;
        raw(&t, sizeof t);
        word(0);  // no menu
        word(0);  // standard class
        text(title);
        word(8);  // point size, then the face
        text(L"MS Shell Dlg");
    }
    void item(DWORD style, short x, short y, short cx, short cy, WORD id, WORD classAtom, const std::wstring& caption) {
        align();
        DLGITEMTEMPLATE it{};
        it.style = style | WS_CHILD | WS_VISIBLE;
        it.x = x;
        it.y = y;
        it.cx = cx;
        it.cy = cy;
        it.id = id;
        raw(&it, sizeof it);
        word(0xFFFF);
        word(classAtom);
        text(caption);
        word(0);  // no creation data
    }
    const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(bytes_.data()); }

private:
    void raw(const void* p, size_t n) {
        auto* b = static_cast<const BYTE*>(p);
        bytes_.insert(bytes_.end(), b, b + n);
    }
    void word(WORD w) { raw(&w, sizeof w); }
    void text(const std::wstring& s) { raw(s.c_str(), (s.size() + 1) * sizeof(wchar_t)); }
    void align() {
        while (bytes_.size() % 4) bytes_.push_back(0);
    }
    std::vector<BYTE> bytes_;
};

struct InputState {
    std::wstring prompt;
    std::wstring text;
};

INT_PTR CALLBACK inputProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG: {
        auto* state = reinterpret_cast<InputState*>(lParam);
        SetWindowLongPtrW(dialog, DWLP_USER, lParam);
        SetDlgItemTextW(dialog, kTextId, state->text.c_str());
        SendDlgItemMessageW(dialog, kTextId, EM_SETSEL, 0, -1);
        return TRUE;
    }
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK) {
            auto* state = reinterpret_cast<InputState*>(GetWindowLongPtrW(dialog, DWLP_USER));
            HWND edit = GetDlgItem(dialog, kTextId);
            std::wstring text(static_cast<size_t>(GetWindowTextLengthW(edit)) + 1, L'\0');
            text.resize(static_cast<size_t>(GetWindowTextW(edit, text.data(), static_cast<int>(text.size()))));
            state->text = text;
            EndDialog(dialog, IDOK);
            return TRUE;
        }
        if (LOWORD(wParam) == IDCANCEL) {
            EndDialog(dialog, IDCANCEL);
            return TRUE;
        }
        break;
    default: break;
    }
    return FALSE;
}

}  // namespace

std::optional<Str> showInputBox(HMODULE module, HWND owner, const Str& prompt, const Str& title,
                                const Str& defaultText) {
    constexpr WORD kButton = 0x0080, kEdit = 0x0081, kStatic = 0x0082;
    InputState state{toWide(prompt), toWide(defaultText)};
    TemplateWriter t;
    t.dialog(toWide(title), 4, 240, 90);
    t.item(SS_LEFT, 7, 7, 170, 52, kPromptId, kStatic, state.prompt);
    t.item(BS_DEFPUSHBUTTON | WS_TABSTOP, 184, 7, 50, 14, IDOK, kButton, L"OK");
    t.item(BS_PUSHBUTTON | WS_TABSTOP, 184, 25, 50, 14, IDCANCEL, kButton, L"Cancel");
    t.item(ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, 7, 68, 226, 14, kTextId, kEdit, L"");
    INT_PTR answer = DialogBoxIndirectParamW(module, t.get(), owner, inputProc, reinterpret_cast<LPARAM>(&state));
    if (answer != IDOK) return std::nullopt;
    return fromWide(state.text);
}

}  // namespace quillet::platform::win
