// The builders' windows as a user meets them: "Add P&rocedure..." on the bar opens the Procedure
// Builder's window, and each UI script of the headless builder tests is played again on the real
// controls, with the module text compared byte for byte at its end.

#include <algorithm>
#include <fstream>
#include <sstream>

#include "../builders/script_setups.h"
#include "bar_walk.h"
#include "basic/strings.h"
#include "basic/unicode.h"
#include "dialog_scenarios.h"
#include "dialogs/ui_player.h"
#include "hosts/files/file_project.h"
#include "session.h"
#include "window_surface.h"

namespace quillet::wine {

namespace {


std::wstring wide(const Str& text) { return std::wstring(text.begin(), text.end()); }

void writeSetting(const std::wstring& folder, long item, const basic::Variant& value) {
    const settings::ItemPlace place = settings::ItemPlaceOf(item);
    WritePrivateProfileStringW(wide(place.section).c_str(), wide(place.key).c_str(),
                               wide(settings::ValueText(value)).c_str(), (folder + L"\\" + wide(place.file)).c_str());
}

std::wstring settingsFolder() {
    wchar_t appData[MAX_PATH] = {};
    if (!GetEnvironmentVariableW(L"APPDATA", appData, MAX_PATH)) return {};
    std::wstring folder = std::wstring(appData) + L"\\Quillet";
    CreateDirectoryW(folder.c_str(), nullptr);
    return folder;
}

// Writes a script folder's settings and prefix standard into the files the add-in reads at its
// connection, as a user's Settings dialog would have left them.
void writeSetup(const testing::ScriptSetup& setup) {
    const std::wstring folder = settingsFolder();
    if (folder.empty()) return;
    for (const auto& [item, value] : testing::builderSettings()) writeSetting(folder, item, value);
    for (const auto& [item, value] : setup.settings) writeSetting(folder, item, value);
    const std::wstring prefixFile = folder + L"\\qlttp.ini";
    WritePrivateProfileStringW(L"Prefix", nullptr, nullptr, prefixFile.c_str());
    for (const auto& row : setup.prefixes) {
        Str prefixes;
        for (size_t i = 1; i < row.size(); ++i)
            if (!row[i].empty()) prefixes += (prefixes.empty() ? u"" : u",") + row[i];
        WritePrivateProfileStringW(L"Prefix", wide(row[0]).c_str(), wide(prefixes).c_str(), prefixFile.c_str());
    }
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
    // VBComponents.Import and Export over module files, as the editor's own.
    hosts::files::installFileImportExport(*vbe);
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

namespace {

// Each builder opens as a user opens it: through its bar entry.
void addBuilderOpeners(WindowSurface& surface, Checks& c, Session& s) {
    surface.addOpener(u"frmProcedure", [&c, &s](const std::vector<Str>&) { clickBar(c, s.vbe(), {u"Add P&rocedure..."}); });
    surface.addOpener(u"frmVar", [&c, &s](const std::vector<Str>&) { clickBar(c, s.vbe(), {u"&Add Variable..."}); });
    surface.addOpener(u"frmConst", [&c, &s](const std::vector<Str>&) { clickBar(c, s.vbe(), {u"&Add Constant..."}); });
    surface.addOpener(u"frmClass", [&c, &s](const std::vector<Str>&) { clickBar(c, s.vbe(), {u"Add Cl&ass..."}); });
}

// The dialogs opened with a type or a kind: an entry of a pop-up of the bar's "&Quillet".
void addPopupOpeners(WindowSurface& surface, Checks& c, Session& s) {
    // The Property Builder with a type, and the input box of a kind and type: the entry of that
    // type on the pop-up of the kind.
    auto typedEntry = [&c, &s](const Str& popup, const Str& type) {
        clickBar(c, s.vbe(), {u"&Quillet"});  // the pop-up opening sets its entries
        clickBar(c, s.vbe(), {u"&Quillet", popup, type});
    };
    surface.addOpener(u"frmProperty", [&c, &s, typedEntry](const std::vector<Str>& args) {
        if (args.empty()) clickBar(c, s.vbe(), {u"&Add Property..."});
        else typedEntry(u"&Property", args[0]);
    });
    surface.addOpener(u"frmInputBox", [&c, typedEntry](const std::vector<Str>& args) {
        const Str kind = args.empty() ? Str() : args[0];
        const Str popup = kind == u"Dim" ? u"&Variable" : kind == u"Const" ? u"&Constant" : Str();
        c.check(!popup.empty() && args.size() == 2, "the input box is opened by a Dim or Const entry of a type");
        if (!popup.empty() && args.size() == 2) typedEntry(popup, args[1]);
    });
    // The Enum and Type dialogs: an entry of the "&Constant" or "&Variable" pop-up by the kind.
    struct KindEntry {
        const char16_t* form;
        const char16_t* kind;
        const char16_t* popup;
        const char16_t* entry;
    };
    static const KindEntry kKindEntries[] = {
        {u"frmEnumOrType", u"Enum", u"&Constant", u"New &Enum..."},
        {u"frmEnumOrType", u"Type", u"&Variable", u"New &User-Defined Data Type..."},
        {u"frmItemAdd", u"Enum", u"&Constant", u"Add Constant to En&um..."},
        {u"frmItemAdd", u"Type", u"&Variable", u"Add Item to User-Defined Data Ty&pe..."},
    };
    for (const Str form : {u"frmEnumOrType", u"frmItemAdd"}) {
        surface.addOpener(form, [&c, typedEntry, form](const std::vector<Str>& args) {
            for (const auto& entry : kKindEntries)
                if (form == entry.form && !args.empty() && args[0] == entry.kind) return typedEntry(entry.popup, entry.entry);
            c.check(false, "the " + narrow(form) + " is opened by the Enum or Type entry of a pop-up");
        });
    }
}

}  // namespace

WindowSurface builderSurface(Checks& c, Session& s, BoxAnswerer& boxes, dialogs::UiScriptHooks& hooks) {
    WindowSurface surface;
    addBuilderOpeners(surface, c, s);
    addPopupOpeners(surface, c, s);
    hooks.answer = [&boxes](const Str& answer) { boxes.queue(std::wstring(answer.begin(), answer.end())); };
    hooks.moduleText = [&s](const Str& module) -> std::optional<Str> {
        if (!s.vbe().activeProject()->component(module)) return std::nullopt;
        return moduleText(s.vbe(), module);
    };
    return surface;
}

// The builders' project with the folder's module, if it has one, holding the caret of the
// script's "# at" line.
std::shared_ptr<MemoryVBE> editorForScript(const testing::ScriptSetup& setup, const std::string& script) {
    auto vbe = editorForBuilders();
    std::string module;
    long line = 1, col = 1;
    if (setup.module.empty() || !testing::scriptCaret(script, module, line, col)) return vbe;
    auto component = vbe->activeProject()->addComponent(basic::fromUtf8(module), host::vbext_ct_StdModule, setup.module);
    vbe->openPane(component)->SetSelection(line, col, line, col);
    vbe->setSelectedComponent(component);
    return vbe;
}

void playBuilderScript(Checks& c, BoxAnswerer& boxes, const testing::ScriptSetup& setup, const std::wstring& folder,
                       const std::wstring& name) {
    const std::string script = fileText(folder + L"\\" + name);
    Session s(c, editorForScript(setup, script));
    if (!s.created()) return;
    connectForDialogs(s);
    dialogs::UiScriptHooks hooks;
    WindowSurface surface = builderSurface(c, s, boxes, hooks);
    auto outcome = dialogs::playUiScript(basic::fromUtf8(script), surface, hooks);
    c.check(outcome.passed(), "the windows play " + narrow(name), narrow(outcome.describe()));
    c.check(boxes.pending() == 0, narrow(name) + ": every answer was taken by a box");
    closeDialogs();
    s.disconnect();
    s.release();
    c.check(s.ledger().live == 0, narrow(name) + ": every editor object is released",
            std::to_string(s.ledger().live) + " held");
}

// Every script of a folder, on the settings and project the folder's scripts assume.
void playScriptFolder(Checks& c, BoxAnswerer& boxes, const testing::ScriptSetup& setup, const std::wstring& folder) {
    writeSetup(setup);
    auto names = scriptFiles(folder);
    c.check(!names.empty(), "the builders' UI scripts are found", narrow(folder));
    for (const auto& name : names) playBuilderScript(c, boxes, setup, folder, name);
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
    playScriptFolder(c, boxes, {}, scriptsFolder);
    playScriptFolder(c, boxes, testing::variableScriptSetup(), scriptsFolder + L"\\variable");
    playScriptFolder(c, boxes, testing::variableScriptSetup(), scriptsFolder + L"\\constant");
    playScriptFolder(c, boxes, testing::variableScriptSetup(), scriptsFolder + L"\\enum");
    playScriptFolder(c, boxes, testing::propertyScriptSetup(), scriptsFolder + L"\\property");
    playScriptFolder(c, boxes, testing::classScriptSetup(), scriptsFolder + L"\\class");
    // The scenarios and pictures that follow expect the builders' settings alone.
    writeSetup({});
    refusedNameTakesFocus(c, boxes);
    faultsInTheBuildersOK(c, boxes);
}

}  // namespace quillet::wine
