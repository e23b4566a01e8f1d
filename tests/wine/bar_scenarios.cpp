// The command bar as the editor sees it: built from the command table, clicked through the
// sinks the add-in advised, shown and hidden by the project watch, kept where the user left it.

#include "bar_walk.h"
#include "scenarios.h"
#include "session.h"

#include <olectl.h>

#include <set>

namespace quillet::wine {

namespace {

constexpr DWORD kTickWait = 1500;  // a tick of Timer1 (500 ms), with room for a loaded machine
constexpr wchar_t kSettingsKey[] = L"Software\\VB and VBA Program Settings\\Quillet\\Quillet";

const std::vector<Str> kProcModule = {u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long", u"    ",
                                      u"End Sub"};

std::shared_ptr<MemoryVBE> editorWithProcModule(long line, long col) {
    auto vbe = MemoryVBE::create();
    auto project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
    auto module = project->addComponent(u"basMain", host::vbext_ct_StdModule, kProcModule);
    vbe->openPane(module)->SetSelection(line, col, line, col);
    return vbe;
}

void endSession(Checks& c, Session& s, const std::string& what) {
    HRESULT hr = s.disconnect();
    bool barGone = s.vbe().commandBars()->bar(u"Quillet") == nullptr;
    s.release();
    c.check(hr == S_OK && barGone && s.ledger().live == 0,
            what + ": disconnection removes the bar and releases every object",
            hex(hr) + (barGone ? "" : ", bar left") + ", " + std::to_string(s.ledger().live) + " held");
    c.check(s.ledger().violations.empty(), what + ": every call kept the editor's calling rules",
            s.ledger().violations.empty() ? "" : s.ledger().violations.front());
}

// The size of a picture object's bitmap; 0 by 0 when it is none.
SIZE bitmapSize(IDispatch* picture) {
    SIZE size{0, 0};
    ComPtr<IPicture> p;
    if (!picture || FAILED(picture->QueryInterface(IID_IPicture, reinterpret_cast<void**>(p.put())))) return size;
    SHORT type = 0;
    OLE_HANDLE handle = 0;
    if (FAILED(p->get_Type(&type)) || type != PICTYPE_BITMAP || FAILED(p->get_Handle(&handle))) return size;
    BITMAP bm{};
    if (GetObjectW(reinterpret_cast<HBITMAP>(static_cast<UINT_PTR>(handle)), sizeof bm, &bm)) size = {bm.bmWidth, bm.bmHeight};
    return size;
}

void checkFaces(Checks& c, Session& s, const std::vector<WalkedControl>& walked,
                const std::vector<ExpectedControl>& expected) {
    size_t faced = 0, wrong = 0;
    for (size_t i = 0; i < std::min(walked.size(), expected.size()); ++i) {
        if (expected[i].row->faceId == 0) continue;
        ++faced;
        const void* key = walked[i].control.get();
        SIZE face = bitmapSize(s.ledger().pictures[key].get());
        SIZE mask = bitmapSize(s.ledger().masks[key].get());
        if (face.cx != 16 || face.cy != 16 || mask.cx != 16 || mask.cy != 16) {
            if (wrong++ < 3) c.note("face of \"" + narrow(expected[i].caption) + "\": " + std::to_string(face.cx) + "x" +
                                    std::to_string(face.cy) + ", mask " + std::to_string(mask.cx) + "x" +
                                    std::to_string(mask.cy));
        }
    }
    c.check(faced > 0 && wrong == 0,
            "each of the " + std::to_string(faced) + " controls with a face got a 16x16 bitmap picture and mask",
            std::to_string(wrong) + " without");
}

void barAgainstTable(Checks& c) {
    Session s(c, editorWithProject());
    if (!s.created()) return;
    s.connect(ext_cm_Startup);
    auto walked = walkBar(s.vbe());
    auto expected = expectedBar();
    c.check(walked.size() == expected.size(), "the bar holds one control per row of the command table",
            std::to_string(walked.size()) + " controls, " + std::to_string(expected.size()) + " rows");
    size_t wrong = 0;
    for (size_t i = 0; i < std::min(walked.size(), expected.size()); ++i) {
        const auto& e = expected[i];
        auto& control = *walked[i].control;
        long style = e.row->faceId == 0 ? host::msoButtonAutomatic
                                        : (e.depth == 0 ? host::msoButtonIcon : host::msoButtonIconAndCaption);
        bool ok = walked[i].depth == e.depth && control.Caption() == e.caption && control.Type() == e.row->type &&
                  control.BeginGroup() == e.row->beginGroup && control.Tag() == e.tag &&
                  (e.row->type != host::msoControlButton || control.Style() == style);
        if (!ok && wrong++ < 5) {
            c.note("control " + std::to_string(i + 1) + ": \"" + narrow(control.Caption()) + "\" tagged \"" +
                   narrow(control.Tag()) + "\", the table wants \"" + narrow(e.caption) + "\" tagged \"" +
                   narrow(e.tag) + "\"");
        }
    }
    c.check(wrong == 0, "every control has the table's caption, kind, depth, order, group, style and tag",
            std::to_string(wrong) + " differ");
    std::set<Str> tags;
    for (const auto& w : walked) tags.insert(w.control->Tag());
    c.check(tags.size() == walked.size(), "every control's Tag is unique");
    checkFaces(c, s, walked, expected);
    endSession(c, s, "the table's bar");
}

// The click reaches the add-in through the editor's CommandBarEvents, or, in Office, through the
// button's own Click.
void clickIfThenElse(Checks& c, bool officeButtons) {
    Session s(c, editorWithProcModule(5, 5));
    if (!s.created()) return;
    if (officeButtons) s.officeButtons();
    s.connect(ext_cm_Startup);
    clickBar(c, s.vbe(), {u"&Quillet"});  // the pop-up opening sets its entries
    long buttonClicksBefore = s.ledger().buttonClicks;
    if (clickBar(c, s.vbe(), {u"&Quillet", u"&If", u"Then &Else"})) {
        Str want = joinLines({u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long", u"    If  Then",
                              u"        ", u"    Else", u"        ", u"    End If", u"End Sub"});
        Str got = moduleText(s.vbe(), u"basMain");
        std::string through = officeButtons ? " (Office: the button's own Click)" : "";
        c.check(got == want, "\"&Quillet\" > \"&If\" > \"Then &Else\" on a blank line writes the If block" + through,
                shown(got));
        if (officeButtons)
            c.check(s.ledger().buttonClicks == buttonClicksBefore + 1, "in Office the button's own Click carried it",
                    std::to_string(s.ledger().buttonClicks - buttonClicksBefore) + " button clicks");
        if (got != want) {
            c.note(std::to_string(s.ledger().clicks) + " clicks raised");
            c.note("Immediate window: " + narrow(s.immediateText()));
            for (const auto& e : s.ledger().raised) c.note("the editor raised " + e);
        }
        long sl = 0, sc = 0, el = 0, ec = 0;
        s.vbe().activePane()->GetSelection(sl, sc, el, ec);
        c.check(sl == 5 && sc == 8 && el == 5 && ec == 8, "the caret stands in the condition",
                std::to_string(sl) + ":" + std::to_string(sc));
    }
    endSession(c, s, officeButtons ? "the Office button's click" : "the If click");
}

void clickDeadEntry(Checks& c) {
    Session s(c, editorWithProcModule(5, 5));
    if (!s.created()) return;
    s.connect(ext_cm_Startup);
    Str before = moduleText(s.vbe(), u"basMain");
    if (clickBar(c, s.vbe(), {u"&Quillet", u"&Variable", u"Add Item to User-Defined Data Ty&pe..."})) {
        c.check(moduleText(s.vbe(), u"basMain") == before,
                "\"Add Item to User-Defined Data Ty&pe...\" does nothing when clicked");
    }
    endSession(c, s, "the dead entry");
}

const std::vector<Str> kWholeBar = {u"&Add Variable...", u"&Add Constant...", u"&Add Property...",
                                    u"Insert Varia&ble...", u"Add P&rocedure...", u"Add Cl&ass...",
                                    u"Insert &Line Of Code...", u"Insert Fragme&nt...",
                                    u"View &Shortcuts and Search\u2026", u"View Code &Explorer\u2026", u"&Quillet",
                                    u"Hel&p"};
const std::vector<Str> kOutsideProcedure = {u"&Add Variable...", u"&Add Constant...", u"&Add Property...",
                                            u"Add P&rocedure...", u"Add Cl&ass...",
                                            u"View &Shortcuts and Search\u2026", u"View Code &Explorer\u2026",
                                            u"&Quillet", u"Hel&p"};
const std::vector<Str> kNoCodeWindow = {u"Add Cl&ass...", u"View &Shortcuts and Search\u2026",
                                        u"View Code &Explorer\u2026", u"&Quillet", u"Hel&p"};

void toolbarState(Checks& c) {
    Session s(c, editorWithProcModule(5, 5));
    if (!s.created()) return;
    s.connect(ext_cm_Startup);
    auto shows = [&](const std::vector<Str>& want) { return pump(kTickWait, [&] { return visibleOnBar(s.vbe()) == want; }); };
    c.check(shows(kWholeBar), "inside a procedure the whole bar shows");
    s.vbe().activePane()->SetSelection(1, 1, 1, 1);
    c.check(shows(kOutsideProcedure), "moving the caret out of the procedure hides the insert buttons");
    s.vbe().activePane()->SetSelection(4, 5, 4, 5);
    c.check(shows(kWholeBar), "moving it back in shows them again");
    s.vbe().setActiveWindow(hosts::memory::ActiveWindowKind::Project);
    s.focusActiveWindow();
    c.check(shows(kNoCodeWindow), "with no code window active only Add Class, the pop-ups and the view buttons stay");
    s.vbe().openPane(u"basMain");
    s.focusActiveWindow();
    c.check(shows(kWholeBar), "back in the code window everything comes back");
    endSession(c, s, "the bar's state");
}

std::wstring savedSetting(const wchar_t* name) {
    wchar_t buffer[64];
    DWORD size = sizeof buffer;
    if (RegGetValueW(HKEY_CURRENT_USER, kSettingsKey, name, RRF_RT_REG_SZ, nullptr, buffer, &size) != ERROR_SUCCESS) {
        return L"(none)";
    }
    return buffer;
}

void barPosition(Checks& c) {
    RegDeleteTreeW(HKEY_CURRENT_USER, kSettingsKey);
    {
        Session s(c, editorWithProject());
        if (!s.created()) return;
        s.connect(ext_cm_Startup);
        auto bar = s.vbe().commandBars()->bar(u"Quillet");
        c.check(bar && bar->Position() == host::msoBarTop && bar->RowIndex() == 0 && bar->Visible(),
                "on a first run with no registry values the bar stands on top, in row 0, visible");
        if (bar) {
            bar->Position(host::msoBarFloating);
            bar->Left(310);
            bar->Top(125);
        }
        endSession(c, s, "the moved bar");
    }
    c.check(savedSetting(L"ToolbarPos") == L"4" && savedSetting(L"ToolbarLeft") == L"310" &&
                savedSetting(L"ToolbarTop") == L"125",
            "disconnection keeps the floating bar's position in the registry",
            narrow(savedSetting(L"ToolbarPos") + L" " + savedSetting(L"ToolbarLeft") + L" " + savedSetting(L"ToolbarTop")));
    {
        Session s(c, editorWithProject());
        if (!s.created()) return;
        s.connect(ext_cm_Startup);
        auto bar = s.vbe().commandBars()->bar(u"Quillet");
        c.check(bar && bar->Position() == host::msoBarFloating && bar->Left() == 310 && bar->Top() == 125,
                "the next connection puts the floating bar back where it was",
                bar ? std::to_string(bar->Position()) + " " + std::to_string(bar->Left()) + " " +
                          std::to_string(bar->Top())
                    : "no bar");
        endSession(c, s, "the restored bar");
    }
    RegDeleteTreeW(HKEY_CURRENT_USER, kSettingsKey);
}

}  // namespace

void runBarScenarios(Checks& c) {
    barAgainstTable(c);
    clickIfThenElse(c, false);
    clickIfThenElse(c, true);
    clickDeadEntry(c);
    toolbarState(c);
    barPosition(c);
}

}  // namespace quillet::wine
