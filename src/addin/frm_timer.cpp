#include "addin/frm_timer.h"

#include "addin/bar_state.h"
#include "addin/command_bar.h"
#include "addin/err_handler.h"
#include "addin/lifecycle.h"
#include "basic/strings.h"

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
    // The builders that a Select block hands over to open here once they exist; the shot is
    // spent either way.
    Timer2.Interval = 0;
    Timer2.Tag.clear();
}

void frmTimer::Timer3_Timer() noexcept {
    if (ReportToImmediate(ctx_, u"", true)) Timer3.Interval = 0;
}

}  // namespace quillet::addin
