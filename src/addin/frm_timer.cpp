#include "addin/frm_timer.h"

#include "addin/bar_state.h"
#include "addin/command_bar.h"
#include "addin/command_handlers.h"
#include "addin/err_handler.h"
#include "addin/lifecycle.h"
#include "basic/strings.h"

#include <utility>

namespace quillet::addin {

namespace {

// Clears a flag when the scope ends, however it ends.
class ReentranceGuard {
public:
    explicit ReentranceGuard(bool& flag) : flag_(flag) { flag_ = true; }
    ~ReentranceGuard() { flag_ = false; }

private:
    bool& flag_;
};

Str projectFileName(const host::VBProjectPtr& project) {
    Str name;
    ignoringErrors([&] { name = project->FileName(); });
    return name.empty() ? Str(u"NewProject") : name;
}

// One look at the editor: is a project there, is it open to us, has it changed?
void watchProject(Context& ctx) {
    auto& vbe = *ctx.VBInstance;
    if (vbe.VBProjects()->Count() == 0) {
        CommandBarsEnable(ctx, false);
        ctx.CurrentProjectFile.clear();
        return;
    }
    auto project = vbe.ActiveVBProject();
    if (!project) return;
    if (ctx.HostName.empty()) ctx.HostName = project->References()->Item(2)->Name();
    if (project->Protection() == host::vbext_pp_locked) {
        CommandBarsEnable(ctx, false);
        return;
    }
    CommandBarsEnable(ctx, true);
    ToolbarStateSet(ctx);
    Str fileName = projectFileName(project);
    if (basic::StrComp(fileName, ctx.CurrentProjectFile, basic::Compare::Text) != 0) {
        ctx.CurrentProjectFile = fileName;
        ProjectInitialize(ctx, false);
    }
}

}  // namespace

void frmTimer::Timer1_Timer() noexcept {
    if (busy_ || !ctx_.VBInstance) return;
    ReentranceGuard guard(busy_);
    guarded(ctx_, u"frmTimer.Timer1_Timer", [&] { watchProject(ctx_); });
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

}  // namespace quillet::addin
