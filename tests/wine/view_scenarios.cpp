// The dialogs' windows of the add-in: the Procedure Builder opened from the bar as a real
// window, its controls found by name, user input reaching the model and the model's state shown,
// the Argument Builder over it, Escape through the keyboard hook, OK writing the procedure and
// Cancel writing nothing, and every window gone at disconnection.

#include <algorithm>

#include "bar_walk.h"
#include "dialog_scenarios.h"
#include "dialog_finder.h"
#include "scenarios.h"
#include "session.h"

namespace quillet::wine {

namespace {

using namespace finder;

constexpr DWORD kWindowWait = 3000;
const std::vector<Str> kModule = {u"Option Explicit", u"", u"Public Sub Existing()", u"End Sub"};



HWND waitForDialog(const std::wstring& form) {
    HWND found = nullptr;
    pump(kWindowWait, [&] { return (found = findDialog(form)) != nullptr; });
    return found;
}

bool waitGone(HWND dialog) {
    return pump(kWindowWait, [&] { return !IsWindow(dialog) || !IsWindowVisible(dialog); });
}

void setText(HWND control, const std::wstring& text) {
    SendMessageW(control, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
    pump(50);
}

// The Procedure Builder opened by the bar's button; none (and a failed check) when no window came.
HWND openProcedureBuilder(Checks& c, Session& s) {
    if (!clickBar(c, s.vbe(), {u"Add P&rocedure..."})) return nullptr;
    HWND dialog = waitForDialog(L"frmProcedure");
    c.check(dialog != nullptr, "\"Add P&rocedure...\" opens a window named frmProcedure",
            "Immediate window: " + narrow(s.immediateText()));
    return dialog;
}

void endSession(Checks& c, Session& s, const std::string& what) {
    HRESULT hr = s.disconnect();
    pump(100);
    bool noWindows = !findDialog(L"frmProcedure") && !findDialog(L"frmArgument");
    s.release();
    c.check(hr == S_OK && noWindows && s.ledger().live == 0,
            what + ": disconnection leaves no dialog window and releases every object",
            hex(hr) + (noWindows ? "" : ", a window left") + ", " + std::to_string(s.ledger().live) + " held");
    // The names' atoms went with their windows.
    bool atomsGone = true;
    for (const wchar_t* name : {L"frmProcedure", L"frmArgument", L"txtName", L"cmdOK", L"optByVal(1)"})
        atomsGone = atomsGone && GlobalFindAtomW(name) == 0;
    c.check(atomsGone, what + ": no window name is left in the global atom table");
}

void checkControls(Checks& c, HWND dialog) {
    const std::pair<const wchar_t*, const wchar_t*> expected[] = {
        {L"txtName", L"Edit"},           {L"cboProcType", L"ComboBox"},     {L"cboAccessibility", L"ComboBox"},
        {L"cboStatic", L"ComboBox"},     {L"cboReturnValueType", L"ComboBox"}, {L"cboModule", L"ComboBox"},
        {L"lstArguments", L"ListBox"},   {L"cmdNewArg", L"Button"},         {L"cmdDownArg", L"Button"},
        {L"txtDescription", L"Edit"},    {L"cboAddErrorHandler", L"ComboBox"}, {L"chkAddHeader", L"Button"},
        {L"chkArgumentsOnSeparateLine", L"Button"}, {L"lblReturnValueType", L"Static"}, {L"cmdOK", L"Button"},
        {L"cmdCancel", L"Button"},       {L"cmdHelp", L"Button"}};
    int wrong = 0;
    for (const auto& [name, cls] : expected) {
        HWND control = findControl(dialog, name);
        if (control && lstrcmpiW(className(control).c_str(), cls) == 0) continue;
        if (wrong++ < 3) c.note(narrow(std::wstring(name)) + (control ? " is a " + narrow(className(control)) : " is missing"));
    }
    c.check(wrong == 0, "the Procedure Builder's controls carry their model names, each a native control of its kind");
    c.check(namedControls(dialog).size() >= 24, "every control of the model has its window",
            std::to_string(namedControls(dialog).size()) + " named");
    auto types = entries(findControl(dialog, L"cboProcType"));
    c.check(types == std::vector<std::wstring>{L"Function", L"Sub"}, "cboProcType lists the model's \"Function\", \"Sub\"");
    c.check(windowText(findControl(dialog, L"cmdNewArg")) == L"Ne&w...", "cmdNewArg shows the layout's caption \"Ne&w...\"");
    std::wstring tip = toolTip(dialog, findControl(dialog, L"cmdNewArg"));
    c.check(tip == L"Add a new argument", "cmdNewArg's tool tip is the model's \"Add a new argument\"", narrow(tip));
}

// Keys typed into an editable combo box's field reach the model first: its type-ahead selects the
// first entry that starts with them, and the swallowed keys never reach the field.
void typeAhead(Checks& c, HWND combo) {
    HWND edit = FindWindowExW(combo, nullptr, L"Edit", nullptr);
    SendMessageW(combo, CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
    for (wchar_t key : {L'L', L'o'}) PostMessageW(edit, WM_CHAR, key, 1);
    pump(200);
    std::wstring text = windowText(combo);
    auto selection = static_cast<DWORD>(SendMessageW(combo, CB_GETEDITSEL, 0, 0));
    auto listed = entries(combo);
    bool isEntry = std::find(listed.begin(), listed.end(), text) != listed.end();
    c.check(text.rfind(L"Lo", 0) == 0 && isEntry && LOWORD(selection) == 2 && HIWORD(selection) == text.size(),
            "\"Lo\" typed into the return type completes to an entry with the rest selected",
            narrow(text) + " selected " + std::to_string(LOWORD(selection)) + " to " + std::to_string(HIWORD(selection)));
}

// The window with the keyboard focus, as a control of the dialog: a combo box for its field.
HWND focusedControl() {
    HWND focus = GetFocus();
    HWND parent = focus ? GetParent(focus) : nullptr;
    if (parent && lstrcmpiW(className(parent).c_str(), L"ComboBox") == 0) return parent;
    return focus;
}

void postKey(HWND window, UINT message, WPARAM key, LPARAM flags) {
    PostMessageW(window, message, key, flags);
    PostMessageW(window, message + 1, key, flags | 0xC0000001);
    pump(100);
}

// Tab and an access key move the focus through the dialog as its layout orders it; the keys come
// through the editor's message loop, so they reach the dialog only through the add-in's hook.
void keysMoveTheFocus(Checks& c, HWND dialog) {
    SetForegroundWindow(dialog);
    pump(50);
    HWND name = findControl(dialog, L"txtName");
    c.check(focusedControl() == name, "the focus starts in txtName, first in Tab order",
            narrow(quilletName(focusedControl())));
    postKey(name, WM_KEYDOWN, VK_TAB, 1);
    c.check(focusedControl() == findControl(dialog, L"cboProcType"), "Tab moves it to cboProcType",
            narrow(quilletName(focusedControl())));
    postKey(GetFocus(), WM_SYSKEYDOWN, 'M', 0x20000001);
    c.check(focusedControl() == findControl(dialog, L"cboModule"), "Alt+M (the label \"&Module:\") moves it to cboModule",
            narrow(quilletName(focusedControl())));
}

void cancelWritesNothing(Checks& c) {
    Session s(c, editorForBuilders());
    if (!s.created()) return;
    s.connect(ext_cm_Startup);
    HWND dialog = openProcedureBuilder(c, s);
    if (dialog) {
        c.check(windowText(dialog) == L"Procedure Builder", "the window's caption is \"Procedure Builder\"",
                narrow(windowText(dialog)));
        checkControls(c, dialog);
        HWND owner = GetWindow(dialog, GW_OWNER);
        c.check(owner && !IsWindowEnabled(owner), "the modal builder disables the editor's window while it is open");

        keysMoveTheFocus(c, dialog);
        HWND returnType = findControl(dialog, L"cboReturnValueType");
        typeAhead(c, returnType);
        bool before = IsWindowEnabled(returnType);
        pickEntry(findControl(dialog, L"cboProcType"), L"Sub");
        pump(50);
        c.check(before && !IsWindowEnabled(returnType) && !IsWindowEnabled(findControl(dialog, L"chkAddReturnStatement")),
                "choosing \"Sub\" reaches the model, whose disabled return type the window shows");
        setText(findControl(dialog, L"txtName"), L"DoWork");

        // The Argument Builder over it, closed with Escape through the dialogs' keyboard hook.
        pressButton(findControl(dialog, L"cmdNewArg"));
        HWND argument = waitForDialog(L"frmArgument");
        c.check(argument && GetWindow(argument, GW_OWNER) == dialog && !IsWindowEnabled(dialog),
                "\"New...\" opens the Argument Builder owned by the Procedure Builder, which it disables");
        if (argument) {
            c.check(windowText(argument) == L"Argument Builder", "its caption is \"Argument Builder\"");
            HWND name = findControl(argument, L"txtName");
            PostMessageW(name, WM_KEYDOWN, VK_ESCAPE, 0x00010001);
            PostMessageW(name, WM_KEYUP, VK_ESCAPE, 0xC0010001);
            c.check(waitGone(argument) && IsWindowEnabled(dialog),
                    "Escape closes the Argument Builder and gives the Procedure Builder back");
        }
        // Again, closed by the title bar's close box, which counts as Cancel.
        pressButton(findControl(dialog, L"cmdNewArg"));
        if (HWND again = waitForDialog(L"frmArgument")) {
            SendMessageW(again, WM_SYSCOMMAND, SC_CLOSE, 0);
            c.check(waitGone(again) && IsWindowEnabled(dialog), "the close box closes the Argument Builder as Cancel does");
        }
        pressButton(findControl(dialog, L"cmdCancel"));
        c.check(waitGone(dialog) && !IsWindow(dialog), "Cancel closes the Procedure Builder's window");
        c.check(owner && IsWindowEnabled(owner), "the editor's window is enabled again");
    }
    Str text = moduleText(s.vbe(), u"basMain");
    c.check(text == joinLines(kModule), "Cancel leaves the module as it was", shown(text));
    c.check(s.immediateText().empty(), "nothing was reported", narrow(s.immediateText()));
    endSession(c, s, "the cancelled builder");
}

// Every option box that is ticked is unticked, as a user clicks it.
void untickOptions(HWND dialog) {
    for (const wchar_t* name : {L"chkAddHeader", L"chkAddHourglass", L"chkAddProcedureConstant", L"chkAddModuleConstant",
                                L"chkAddReturnStatement", L"chkArgumentsOnSeparateLine"}) {
        HWND box = findControl(dialog, name);
        if (box && IsWindowEnabled(box) && SendMessageW(box, BM_GETCHECK, 0, 0) != BST_UNCHECKED) pressButton(box);
    }
}

void okWritesTheProcedure(Checks& c) {
    Session s(c, editorForBuilders());
    if (!s.created()) return;
    s.connect(ext_cm_Startup);
    HWND dialog = openProcedureBuilder(c, s);
    if (!dialog) return endSession(c, s, "the builder's OK");
    untickOptions(dialog);
    bool unticked = SendMessageW(findControl(dialog, L"chkAddHeader"), BM_GETCHECK, 0, 0) == BST_UNCHECKED;
    c.check(unticked, "a click on a check box goes to the model and its value comes back");
    pickEntry(findControl(dialog, L"cboAddErrorHandler"), L"");
    pickEntry(findControl(dialog, L"cboProcType"), L"Sub");
    setText(findControl(dialog, L"txtName"), L"DoWork");

    std::wstring argumentEntry;
    pressButton(findControl(dialog, L"cmdNewArg"));
    if (HWND argument = waitForDialog(L"frmArgument")) {
        setText(findControl(argument, L"txtName"), L"Count");
        std::wstring typed = windowText(findControl(argument, L"txtName"));
        c.note("the Argument Builder's name after typing \"Count\": " + narrow(typed));
        // Enter in the name presses the default button, OK.
        postKey(findControl(argument, L"txtName"), WM_KEYDOWN, VK_RETURN, 1);
        c.check(waitGone(argument), "Enter presses OK, which closes the Argument Builder");
        auto listed = entries(findControl(dialog, L"lstArguments"));
        c.check(listed.size() == 1 && listed[0].find(typed) == 0,
                "the argument typed in the Argument Builder's window is listed by the Procedure Builder's",
                listed.empty() ? "none" : narrow(listed[0]));
        if (!listed.empty()) argumentEntry = listed[0];
    }
    pressButton(findControl(dialog, L"cmdOK"));
    c.check(waitGone(dialog), "OK closes the Procedure Builder");
    Str argument(argumentEntry.begin(), argumentEntry.end());
    Str want = joinLines({u"Option Explicit", u"Sub DoWork(" + argument + u")", u"    ", u"End Sub", u"",
                       u"Public Sub Existing()", u"End Sub"});
    Str text = moduleText(s.vbe(), u"basMain");
    c.check(text == want, "OK writes the procedure typed into the window, byte for byte", shown(text));
    c.check(s.immediateText().empty(), "nothing was reported", narrow(s.immediateText()));
    endSession(c, s, "the builder's OK");
}

void disconnectionTakesTheWindows(Checks& c) {
    Session s(c, editorForBuilders());
    if (!s.created()) return;
    s.connect(ext_cm_Startup);
    HWND dialog = openProcedureBuilder(c, s);
    HWND owner = dialog ? GetWindow(dialog, GW_OWNER) : nullptr;
    endSession(c, s, "a builder open at disconnection");
    c.check(!dialog || (!IsWindow(dialog) && (!owner || IsWindowEnabled(owner))),
            "the open builder's window goes with the connection and its owner is enabled again");
}

}  // namespace

void runViewScenarios(Checks& c) {
    cancelWritesNothing(c);
    okWritesTheProcedure(c);
    disconnectionTakesTheWindows(c);
}

}  // namespace quillet::wine
