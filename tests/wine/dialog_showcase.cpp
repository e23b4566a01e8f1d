// Pictures of the builders' windows in a typical state, for the user guide, and the time the
// Procedure Builder takes to open on a large project.

#include <algorithm>
#include <vector>

#include "bar_walk.h"
#include "dialog_scenarios.h"
#include "screenshot.h"

namespace quillet::wine {

namespace {

std::shared_ptr<MemoryVBE> editorWithModules(int modules, int linesEach) {
    auto vbe = MemoryVBE::create();
    auto project = vbe->addProject(u"VBAProject", u"C:\\Work\\Orders.xlsm", u"Excel");
    std::shared_ptr<hosts::memory::MemoryComponent> first;
    for (int m = 1; m <= modules; ++m) {
        std::string digits = std::to_string(m);
        Str name = u"basModule" + Str(digits.begin(), digits.end());
        std::vector<Str> lines = {u"Option Explicit", u""};
        for (int p = 0; static_cast<int>(lines.size()) + 4 <= linesEach; ++p) {
            std::string number = std::to_string(p);
            lines.push_back(u"Public Function Value" + Str(number.begin(), number.end()) + u"(ByVal lngIndex As Long) As Long");
            lines.push_back(u"    Value" + Str(number.begin(), number.end()) + u" = lngIndex * 2");
            lines.push_back(u"End Function");
            lines.push_back(u"");
        }
        auto component = project->addComponent(name, host::vbext_ct_StdModule, lines);
        if (!first) first = component;
    }
    vbe->openPane(first)->SetSelection(2, 1, 2, 1);
    return vbe;
}

void picture(Checks& c, const std::wstring& folder, const Str& form, const wchar_t* file) {
    HWND dialog = findDialog(form);
    bool saved = dialog && saveWindowPicture(dialog, folder + L"\\" + file);
    c.check(saved, "a picture of " + narrow(form) + " is taken", narrow(std::wstring(file)));
}

double milliseconds(LARGE_INTEGER from, LARGE_INTEGER to) {
    LARGE_INTEGER frequency;
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(to.QuadPart - from.QuadPart) * 1000.0 / static_cast<double>(frequency.QuadPart);
}

}  // namespace

void takeDialogPictures(Checks& c, BoxAnswerer& boxes, const std::wstring& folder) {
    CreateDirectoryW(folder.c_str(), nullptr);
    Session s(c, editorWithModules(3, 12));
    if (!s.created()) return;
    s.connect(ext_cm_Startup);
    s.focusActiveWindow();
    // A first start writes the default files: give the project watch's first tick more room.
    pump(2 * kFirstTickWait);
    dialogs::UiScriptHooks hooks;
    WindowSurface surface = builderSurface(c, s, boxes, hooks);
    // Each builder filled in as a user would, pictured, then cancelled.
    auto show = [&](const Str& script, const Str& form, const wchar_t* file, const Str& close = u"click cmdCancel\n") {
        auto outcome = dialogs::playUiScript(script, surface, hooks);
        c.check(outcome.passed(), narrow(form) + " is filled for its picture", narrow(outcome.describe()));
        picture(c, folder, form, file);
        outcome = dialogs::playUiScript(close + u"expect-form " + form + u" closed\n", surface, hooks);
        c.check(outcome.passed(), narrow(form) + " closes after its picture", narrow(outcome.describe()));
    };
    // The Class Builder asks before it throws away what was entered.
    const Str discardClass = u"answer yes\nclick cmdCancel\n";
    auto outcome = dialogs::playUiScript(u"open frmProcedure\n"
                                         u"set txtName CustomerName\n"
                                         u"expect chkAddHourglass enabled true\n"
                                         u"select cboAccessibility Public\n"
                                         u"select cboReturnValueType String\n"
                                         u"set txtDescription Gives the name of a customer by its number.\n"
                                         u"click cmdNewArg\n"
                                         u"select cboDataType Long\n"
                                         u"check optByVal(0) 1\n"
                                         u"set txtName lngCustomerID\n"
                                         u"expect txtName text lngCustomerID\n",
                                         surface, hooks);
    c.check(outcome.passed(), "the builders are filled for their pictures", narrow(outcome.describe()));
    picture(c, folder, u"frmArgument", L"argument-builder.bmp");
    outcome = dialogs::playUiScript(u"click cmdOK\n", surface, hooks);
    c.check(outcome.passed(), "the argument is added for the picture", narrow(outcome.describe()));
    show(u"", u"frmProcedure", L"procedure-builder.bmp");
    show(u"open frmVar\n"
         u"select cboDataType Currency\n"
         u"select cboAccessibility Private\n"
         u"set txtName mcurRate\n"
         u"set txtDescription the rate of the invoice being printed\n",
         u"frmVar", L"variable-builder.bmp");
    show(u"open frmConst\n"
         u"set txtName cstrReportTitle\n"
         u"set txtValue Invoices of the month\n"
         u"select cboAccessibility Private\n"
         u"set txtDescription the title of every page\n",
         u"frmConst", L"constant-builder.bmp");
    show(u"open frmProperty\n"
         u"select cboDataType Long\n"
         u"set txtName Quantity\n"
         u"set txtDescription how many of the item are ordered\n",
         u"frmProperty", L"property-builder.bmp");
    show(u"open frmClass\n"
         u"set txtClassName clsInvoice\n"
         u"check chkMakeColClass 1\n",
         u"frmClass", L"class-builder.bmp", discardClass);
    show(u"open frmClass\n"
         u"set txtClassName clsInvoice\n"
         u"select TabMain Properties\n"
         u"click cmdNewProp\n"
         u"set txtName Number\n"
         u"select cboDataType Long\n"
         u"click cmdOK\n"
         u"click cmdNewProp\n"
         u"set txtName Customer\n"
         u"select cboDataType String\n"
         u"click cmdOK\n",
         u"frmClass", L"class-builder-properties.bmp", discardClass);
    show(u"open frmInputBox Const Date\n"
         u"set txtName cdtmFirstDay\n"
         u"set txtValue 1/1/2026\n",
         u"frmInputBox", L"input-box-constant.bmp");
    s.disconnect();
    s.release();
}

void benchDialogOpen(Checks& c, BoxAnswerer& boxes, int rounds, int modules) {
    Session s(c, editorWithModules(modules, 100));
    if (!s.created()) return;
    s.connect(ext_cm_Startup);
    s.focusActiveWindow();
    // The project watch's first scan of a large project takes a while over COM: the timing starts
    // once it has had time to finish, as a user's first click comes later too.
    pump(kFirstTickWait + static_cast<DWORD>(modules) * 4);
    dialogs::UiScriptHooks hooks;
    WindowSurface surface = builderSurface(c, s, boxes, hooks);
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        LARGE_INTEGER start, end;
        QueryPerformanceCounter(&start);
        clickBar(c, s.vbe(), {u"Add P&rocedure..."});
        HWND dialog = findDialog(u"frmProcedure");
        if (dialog) UpdateWindow(dialog);
        QueryPerformanceCounter(&end);
        if (!dialog) break;
        times.push_back(milliseconds(start, end));
        surface.click(u"cmdCancel");
        // A user's next click comes after the editor has caught up with the closing (its posted
        // messages, a tick of the project watch); a click at once would time that work too.
        pump(600);
    }
    c.check(times.size() == static_cast<size_t>(rounds),
            "the Procedure Builder opens each time on " + std::to_string(modules) + " modules");
    if (times.empty()) return;
    std::sort(times.begin(), times.end());
    char line[160];
    std::snprintf(line, sizeof line,
                  "BENCH procedure builder open, %d modules x 100 lines: min %.2f ms, median %.2f ms, max %.2f ms (%d runs)",
                  modules, times.front(), times[times.size() / 2], times.back(), rounds);
    c.note(line);
    s.disconnect();
    s.release();
}

}  // namespace quillet::wine
