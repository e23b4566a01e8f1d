// frmTimer's timers as the editor's message loop runs them.

#include "scenarios.h"
#include "session.h"

namespace quillet::wine {

namespace {

// Timer1's interval, and how late a tick may come under a loaded machine.
constexpr DWORD kTick = 500;
constexpr DWORD kSlack = 400;

HWND timerWindow() { return FindWindowExW(HWND_MESSAGE, nullptr, L"QuilletTimerWindow", nullptr); }

bool barEnabled(MemoryVBE& vbe) {
    auto bar = vbe.commandBars()->bar(u"Quillet");
    return bar && bar->Enabled();
}

// Milliseconds until `done` holds, pumping messages; -1 when it did not within `limit`.
long millisecondsUntil(DWORD limit, const std::function<bool()>& done) {
    ULONGLONG start = GetTickCount64();
    if (!pump(limit, done)) return -1;
    return static_cast<long>(GetTickCount64() - start);
}

void projectWatch(Checks& c) {
    Session s(c, MemoryVBE::create());
    if (!s.created()) return;
    HRESULT hr = s.connect(ext_cm_Startup);
    c.check(hr == S_OK, "connecting with no project open returns S_OK", hex(hr));
    c.check(s.vbe().commandBars()->bar(u"Quillet") != nullptr, "the bar stands with no project open");
    c.check(timerWindow() != nullptr, "the timers' message-only window exists while connected");
    pump(kTick + kSlack);
    c.check(!barEnabled(s.vbe()), "with no project open the bar is disabled after a tick");

    auto project = s.vbe().addProject(u"VBAProject", u"C:\\Work\\Book2.xlsm", u"Excel");
    auto module = project->addComponent(u"Module1", host::vbext_ct_StdModule, {u"Option Explicit"});
    s.vbe().openPane(module);
    long waited = millisecondsUntil(3 * kTick, [&] { return barEnabled(s.vbe()); });
    c.check(waited >= 0 && waited <= static_cast<long>(kTick + kSlack),
            "opening a project enables the bar within one tick of Timer1", std::to_string(waited) + " ms");

    s.vbe().removeProject(project);
    waited = millisecondsUntil(3 * kTick, [&] { return !barEnabled(s.vbe()); });
    c.check(waited >= 0 && waited <= static_cast<long>(kTick + kSlack),
            "closing the last project disables the bar within one tick", std::to_string(waited) + " ms");

    hr = s.disconnect();
    c.check(hr == S_OK, "disconnecting returns S_OK", hex(hr));
    long created = s.ledger().created;
    pump(2 * kTick);
    c.check(s.ledger().created == created, "no timer reaches the editor after disconnection",
            std::to_string(s.ledger().created - created) + " objects made");
    s.release();
    c.check(timerWindow() == nullptr, "the timers' window is gone with the add-in");
    c.check(s.ledger().live == 0, "every object handed out to the timers was released",
            std::to_string(s.ledger().live));
}

// The watch keeps reading the editor every tick; nothing it does piles up objects.
void steadyTicks(Checks& c) {
    Session s(c, editorWithProject());
    if (!s.created()) return;
    s.connect(ext_cm_Startup);
    pump(kTick + kSlack);
    long live = s.ledger().live;
    long created = s.ledger().created;
    pump(3 * kTick);
    c.check(s.ledger().created > created, "Timer1 keeps watching the editor while connected",
            std::to_string(s.ledger().created - created) + " objects read");
    c.check(s.ledger().live <= live, "ticks release what they read",
            std::to_string(live) + " then " + std::to_string(s.ledger().live));
    c.check(barEnabled(s.vbe()), "with a project open the bar stays enabled");
}

}  // namespace

void runTimerScenarios(Checks& c) {
    projectWatch(c);
    steadyTicks(c);
}

}  // namespace quillet::wine
