#include "core/frm_timer.h"

#include "core/command_env.h"
#include "core/err_handler.h"

namespace quillet::core {

namespace {

// Clears a flag when the scope ends, however it ends.
class ReentranceGuard {
public:
    explicit ReentranceGuard(bool& flag) : flag_(flag) { flag_ = true; }
    ~ReentranceGuard() { flag_ = false; }

private:
    bool& flag_;
};

}  // namespace

void frmTimer::Timer1_Timer() noexcept {
    if (busy_ || !ctx_.VBInstance) return;
    ReentranceGuard guard(busy_);
    if (ProjectWatch) guarded(ctx_, u"frmTimer.Timer1_Timer", [&] { ProjectWatch(ctx_); });
}

void frmTimer::Timer2_Timer() noexcept {
    // One shot: spent before the builder opens, so a builder that takes long cannot fire it twice.
    Timer2.Interval = 0;
    Str form = std::exchange(Timer2.Tag, Str());
    Str name = std::exchange(Timer2Name, Str());
    if (form != u"frmVar" && form != u"frmCodeLineTLI") return;
    guarded(ctx_, u"frmTimer.Timer2_Timer", [&] { RoutineRun(ctx_, form, form == u"frmVar" ? name : Str()); });
}

void frmTimer::Timer3_Timer() noexcept {
    if (ReportToImmediate(ctx_, u"", true)) Timer3.Interval = 0;
}

}  // namespace quillet::core
