// Failures injected into the editor's calls: the k-th call the add-in makes raises an error, for
// each k, during the connection (bar building included), a click and a timer tick. Whatever
// fails, the editor gets S_OK back, its process goes on, the code stays whole and every object
// is released at the end.

#include "bar_walk.h"
#include "scenarios.h"
#include "session.h"

namespace quillet::wine {

namespace {

// At most this many runs of a phase; above it, every n-th call is failed. A connection takes
// long under Wine, so fewer of its calls are tried.
constexpr long kMaxRuns = 120;
constexpr long kMaxConnectionRuns = 250;

const std::vector<Str> kProcModule = {u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long", u"    ",
                                      u"End Sub"};

std::shared_ptr<MemoryVBE> editorForFaults() {
    auto vbe = MemoryVBE::create();
    auto project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
    auto module = project->addComponent(u"basMain", host::vbext_ct_StdModule, kProcModule);
    vbe->openPane(module)->SetSelection(5, 5, 5, 5);
    return vbe;
}

long strideFor(long calls, long maxRuns = kMaxRuns) { return calls <= maxRuns ? 1 : (calls + maxRuns - 1) / maxRuns; }

std::vector<Str> moduleLines(MemoryVBE& vbe) {
    auto module = vbe.activeProject()->VBComponents()->Item(u"basMain")->CodeModule();
    std::vector<Str> lines;
    for (long i = 1; i <= module->CountOfLines(); ++i) lines.push_back(module->Lines(i, 1));
    return lines;
}

// Every line the user wrote is still there, in order (a command may add lines between them and
// fill a blank line).
bool codeWhole(MemoryVBE& vbe) {
    std::vector<Str> written;
    for (const auto& line : kProcModule)
        if (!basic::Trim(line).empty()) written.push_back(line);
    size_t at = 0;
    for (const auto& line : moduleLines(vbe))
        if (at < written.size() && line == written[at]) ++at;
    return at == written.size();
}

void restoreModule(MemoryVBE& vbe) {
    auto module = vbe.activeProject()->VBComponents()->Item(u"basMain")->CodeModule();
    module->DeleteLines(1, module->CountOfLines());
    for (size_t i = 0; i < kProcModule.size(); ++i) module->InsertLines(static_cast<long>(i + 1), kProcModule[i]);
    vbe.openPane(u"basMain")->SetSelection(5, 5, 5, 5);
}

void faultsWhileConnecting(Checks& c) {
    long total = 0;
    {
        Session s(c, editorForFaults());
        if (!s.created()) return;
        ULONGLONG start = GetTickCount64();
        s.connect(ext_cm_Startup);
        c.note("a connection takes " + std::to_string(GetTickCount64() - start) + " ms");
        start = GetTickCount64();
        s.disconnect();
        c.note("a disconnection takes " + std::to_string(GetTickCount64() - start) + " ms");
        total = s.ledger().calls;
    }
    // An odd stride, so that the calls tried fall on every kind of call.
    long stride = strideFor(total, kMaxConnectionRuns) | 1;
    long runs = 0, bad = 0;
    std::string firstBad;
    for (long k = 1; k <= total; k += stride) {
        Checks quiet(false);
        Session s(quiet, editorForFaults());
        s.ledger().failAt = k;
        HRESULT connected = s.connect(ext_cm_Startup);
        HRESULT disconnected = s.disconnect();
        s.release();
        ++runs;
        bool ok = connected == S_OK && disconnected == S_OK && s.ledger().live == 0 && s.ledger().injected == 1 &&
                  s.vbe().commandBars()->bar(u"Quillet") == nullptr;
        if (!ok && bad++ == 0) {
            firstBad = "call " + std::to_string(k) + ": " + hex(connected) + " " + hex(disconnected) + ", " +
                       std::to_string(s.ledger().live) + " held, " + std::to_string(s.ledger().injected) + " injected" +
                       (s.ledger().raised.empty() ? std::string() : ", " + s.ledger().raised.back());
        }
    }
    c.check(bad == 0,
            "a failure in any of the " + std::to_string(total) + " editor calls of connection and bar building (" +
                std::to_string(runs) + " runs) returns S_OK, leaves no bar and releases every object",
            firstBad);
}

void faultsInAClick(Checks& c) {
    Session s(c, editorForFaults());
    if (!s.created()) return;
    s.connect(ext_cm_Startup);
    auto control = controlAt(s.vbe(), {u"&Quillet", u"&If", u"Then &Else"});
    c.check(control != nullptr, "the If Then Else entry is there to be clicked");
    if (!control) return;
    long before = s.ledger().calls;
    control->Execute();
    long total = s.ledger().calls - before;
    long stride = strideFor(total);
    long runs = 0, bad = 0;
    std::string firstBad;
    for (long k = 1; k <= total; k += stride) {
        restoreModule(s.vbe());
        s.ledger().calls = 0;
        s.ledger().failAt = k;
        s.ledger().clickResults.clear();
        control->Execute();
        ++runs;
        bool ok = s.ledger().clickResults.empty() && codeWhole(s.vbe());
        if (!ok && bad++ == 0) {
            firstBad = "call " + std::to_string(k) + (s.ledger().clickResults.empty() ? "" : ", Invoke failed") +
                       (codeWhole(s.vbe()) ? "" : ", code not whole");
        }
    }
    s.ledger().failAt = 0;
    c.check(bad == 0,
            "a failure in any of the " + std::to_string(total) + " editor calls of a click (" + std::to_string(runs) +
                " runs) is answered S_OK and leaves the code whole",
            firstBad);
    // Reports reach the Immediate window through the clipboard and Ctrl+V; under Wine's virtual X
    // server the keys do not arrive yet, so what arrived is shown rather than checked.
    c.note("Immediate window after the click failures: " + std::to_string(s.immediateText().size()) + " characters");
}

void faultsInATick(Checks& c) {
    Session s(c, editorForFaults());
    if (!s.created()) return;
    s.connect(ext_cm_Startup);
    HWND timers = FindWindowExW(HWND_MESSAGE, nullptr, L"QuilletTimerWindow", nullptr);
    c.check(timers != nullptr, "the timers' window is there to tick");
    if (!timers) return;
    // The steady tick: the first one after connection also writes the bar's state.
    SendMessageW(timers, WM_TIMER, 1, 0);
    long before = s.ledger().calls;
    SendMessageW(timers, WM_TIMER, 1, 0);
    long total = s.ledger().calls - before;
    long stride = strideFor(total);
    long runs = 0;
    for (long k = 1; k <= total; k += stride) {
        s.ledger().calls = 0;
        s.ledger().failAt = k;
        SendMessageW(timers, WM_TIMER, 1, 0);
        ++runs;
    }
    s.ledger().failAt = 0;
    // A failure may change what the next tick reads, so not every run reaches its call.
    c.check(s.ledger().injected > 0,
            "a failure in any of the " + std::to_string(total) + " editor calls of a Timer1 tick (" +
                std::to_string(runs) + " runs, " + std::to_string(s.ledger().injected) +
                " failures injected) stays inside the timer");
    s.vbe().activePane()->SetSelection(1, 1, 1, 1);
    SendMessageW(timers, WM_TIMER, 1, 0);
    auto shown = visibleOnBar(s.vbe());
    c.check(std::find(shown.begin(), shown.end(), Str(u"Insert &Line Of Code...")) == shown.end(),
            "after the failures the next tick sets the bar's state again");
}

}  // namespace

void runFaultScenarios(Checks& c) {
    faultsWhileConnecting(c);
    faultsInAClick(c);
    faultsInATick(c);
}

}  // namespace quillet::wine
