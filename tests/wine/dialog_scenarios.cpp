// The builders' windows as a user meets them: "Add P&rocedure..." on the bar opens the Procedure
// Builder's window, and each UI script of the headless builder tests is played again on the real
// controls, with the module text compared byte for byte at its end.

#include <algorithm>
#include <fstream>
#include <sstream>

#include "bar_walk.h"
#include "basic/strings.h"
#include "basic/unicode.h"
#include "dialog_scenarios.h"
#include "dialogs/ui_player.h"
#include "session.h"
#include "window_surface.h"

namespace quillet::wine {

namespace {


// The scripts are written for a Procedure Builder with every option off.
void builderOptionsOff() {
    wchar_t appData[MAX_PATH] = {};
    if (!GetEnvironmentVariableW(L"APPDATA", appData, MAX_PATH)) return;
    std::wstring folder = std::wstring(appData) + L"\\Quillet";
    CreateDirectoryW(folder.c_str(), nullptr);
    std::wstring file = folder + L"\\qltusr.ini";
    for (const wchar_t* key : {L"Add Header Procedure", L"Add Procedure Constant", L"Add Module Constant Procedure",
                               L"Add Hourglass Procedure", L"Arguments on Separate Lines", L"Add Return Statement"})
        WritePrivateProfileStringW(L"Procedure Builder", key, L"0", file.c_str());
}

std::vector<std::wstring> scriptFiles(const std::wstring& folder) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found;
    HANDLE search = FindFirstFileW((folder + L"\\*.uis").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do names.push_back(found.cFileName);
    while (FindNextFileW(search, &found));
    FindClose(search);
    std::sort(names.begin(), names.end());
    return names;
}

std::string fileText(const std::wstring& path) {
    std::ifstream in(path.c_str(), std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// A module's text with each line's trailing blanks taken off.
Str withoutTrailingBlanks(const Str& text) {
    std::vector<Str> lines = basic::Split(text, u"\r\n");
    for (Str& line : lines) line = basic::RTrim(line);
    return joinLines(lines);
}

// Closes whatever dialog a failed script left open, from the top.
void closeDialogs() {
    for (int i = 0; i < 5; ++i) {
        HWND dialog = topDialog();
        if (!dialog) return;
        SendMessageW(dialog, WM_CLOSE, 0, 0);
        settle();
        if (IsWindow(dialog) && IsWindowVisible(dialog)) DestroyWindow(dialog);
    }
}

}  // namespace

std::shared_ptr<MemoryVBE> editorForBuilders() {
    auto vbe = MemoryVBE::create();
    auto project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
    auto module = project->addComponent(u"basMain", host::vbext_ct_StdModule,
                                        {u"Option Explicit", u"", u"Public Sub Existing()", u"End Sub"});
    project->addComponent(u"clsOrder", host::vbext_ct_ClassModule, {u"Option Explicit"});
    vbe->openPane(module)->SetSelection(2, 1, 2, 1);
    return vbe;
}

void settleAfterConnection() { pump(kFirstTickWait); }

void connectForDialogs(Session& s) {
    s.connect(ext_cm_Startup);
    s.focusActiveWindow();
    settleAfterConnection();
}

WindowSurface builderSurface(Checks& c, Session& s, BoxAnswerer& boxes, dialogs::UiScriptHooks& hooks) {
    WindowSurface surface;
    surface.addOpener(u"frmProcedure", [&c, &s](const std::vector<Str>&) { clickBar(c, s.vbe(), {u"Add P&rocedure..."}); });
    hooks.answer = [&boxes](const Str& answer) { boxes.queue(std::wstring(answer.begin(), answer.end())); };
    hooks.moduleText = [&s](const Str& module) -> std::optional<Str> {
        if (!s.vbe().activeProject()->component(module)) return std::nullopt;
        return moduleText(s.vbe(), module);
    };
    return surface;
}

void playBuilderScript(Checks& c, BoxAnswerer& boxes, const std::wstring& folder, const std::wstring& name) {
    Session s(c, editorForBuilders());
    if (!s.created()) return;
    connectForDialogs(s);
    dialogs::UiScriptHooks hooks;
    WindowSurface surface = builderSurface(c, s, boxes, hooks);
    auto outcome = dialogs::playUiScript(basic::fromUtf8(fileText(folder + L"\\" + name)), surface, hooks);
    c.check(outcome.passed(), "the windows play " + narrow(name), narrow(outcome.describe()));
    c.check(boxes.pending() == 0, narrow(name) + ": every answer was taken by a box");
    closeDialogs();
    s.disconnect();
    s.release();
    c.check(s.ledger().live == 0, narrow(name) + ": every editor object is released",
            std::to_string(s.ledger().live) + " held");
}

// A refused name (taken by a procedure of the module) keeps the builder open with the focus back
// in the name, its text selected for typing over.
void refusedNameTakesFocus(Checks& c, BoxAnswerer& boxes) {
    Session s(c, editorForBuilders());
    if (!s.created()) return;
    connectForDialogs(s);
    dialogs::UiScriptHooks hooks;
    WindowSurface surface = builderSurface(c, s, boxes, hooks);
    auto outcome = dialogs::playUiScript(u"open frmProcedure\nset txtName Existing\n", surface, hooks);
    HWND dialog = findDialog(u"frmProcedure");
    HWND name = dialog ? findControl(dialog, u"txtName") : nullptr;
    HWND ok = dialog ? findControl(dialog, u"cmdOK") : nullptr;
    c.check(outcome.passed() && name && ok, "the Procedure Builder opens with its name box", narrow(outcome.describe()));
    if (!name || !ok) return;
    SetFocus(ok);
    boxes.queue(L"no");
    surface.click(u"cmdOK");
    DWORD selStart = 0, selEnd = 0;
    SendMessageW(name, EM_GETSEL, reinterpret_cast<WPARAM>(&selStart), reinterpret_cast<LPARAM>(&selEnd));
    c.check(findDialog(u"frmProcedure") && GetFocus() == name && selStart == 0 && selEnd == 8,
            "a refused name keeps the builder open with the focus and selection in the name",
            "focus on " + narrow(std::wstring(GetFocus() == ok ? L"cmdOK" : L"another window")));
    closeDialogs();
    s.disconnect();
    s.release();
}

// A failure injected into each editor call that the Procedure Builder's OK makes: the window
// procedure lets nothing escape, the module holds its old text or the whole procedure, and the
// dialog, when it stays, still answers (its Cancel closes it).
void faultsInTheBuildersOK(Checks& c, BoxAnswerer& boxes) {
    Session s(c, editorForBuilders());
    if (!s.created()) return;
    connectForDialogs(s);
    dialogs::UiScriptHooks hooks;
    WindowSurface surface = builderSurface(c, s, boxes, hooks);
    auto module = s.vbe().activeProject()->component(u"basMain")->CodeModule();
    const Str before = moduleText(s.vbe(), u"basMain");
    auto restore = [&] {
        module->DeleteLines(1, module->CountOfLines());
        module->InsertLines(1, before);
    };
    auto openWithName = [&] {
        surface.open(u"frmProcedure", {});
        if (findDialog(u"frmProcedure")) surface.setText(u"txtName", u"Total");
    };
    openWithName();
    long start = s.ledger().calls;
    surface.click(u"cmdOK");
    long total = s.ledger().calls - start;
    const Str after = moduleText(s.vbe(), u"basMain");
    c.check(after != before && !findDialog(u"frmProcedure"), "the builder's OK writes the procedure and closes");
    long stride = std::max<long>(1, total / 20);
    long runs = 0, bad = 0;
    std::string firstBad;
    for (long k = 1; k <= total; k += stride) {
        restore();
        openWithName();
        s.ledger().calls = 0;
        s.ledger().failAt = k;
        surface.click(u"cmdOK");
        s.ledger().failAt = 0;
        // The caret's indent on the body line is typed after the procedure is in: a failure there
        // leaves the procedure whole with a bare body line.
        Str text = withoutTrailingBlanks(moduleText(s.vbe(), u"basMain"));
        bool whole = text == withoutTrailingBlanks(before) || text == withoutTrailingBlanks(after);
        bool answers = true;
        if (findDialog(u"frmProcedure")) {
            surface.click(u"cmdCancel");
            answers = !findDialog(u"frmProcedure");
        }
        ++runs;
        if ((!whole || !answers) && bad++ == 0) {
            firstBad = "call " + std::to_string(k) + (whole ? "" : ", code not whole") + (answers ? "" : ", dialog stuck");
            if (!whole) c.note("the module after the failure: " + shown(text));
        }
    }
    closeDialogs();
    c.check(runs > 0 && bad == 0,
            "a failure in any of the " + std::to_string(total) + " editor calls of the builder's OK (" +
                std::to_string(runs) + " runs) leaves the code whole and the dialog answering",
            firstBad);
    s.disconnect();
    s.release();
    c.check(s.ledger().live == 0, "after the OK failures every editor object is released",
            std::to_string(s.ledger().live) + " held");
}

void runDialogScenarios(Checks& c, BoxAnswerer& boxes, const std::wstring& scriptsFolder) {
    builderOptionsOff();
    auto names = scriptFiles(scriptsFolder);
    c.check(!names.empty(), "the builders' UI scripts are found", narrow(scriptsFolder));
    for (const auto& name : names) playBuilderScript(c, boxes, scriptsFolder, name);
    refusedNameTakesFocus(c, boxes);
    faultsInTheBuildersOK(c, boxes);
}

}  // namespace quillet::wine
