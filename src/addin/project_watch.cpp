#include "addin/project_watch.h"

#include "addin/bar_state.h"
#include "addin/command_bar.h"
#include "addin/lifecycle.h"
#include "basic/strings.h"
#include "addin/core_names.h"
#include "core/err_handler.h"

namespace quillet::addin {

namespace {

Str projectFileName(const host::VBProjectPtr& project) {
    Str name;
    ignoringErrors([&] { name = project->FileName(); });
    return name.empty() ? Str(u"NewProject") : name;
}

}  // namespace

void ProjectWatch(Context& ctx) {
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

std::unique_ptr<core::frmTimer> TimerFormCreate(Context& ctx) {
    return std::make_unique<core::frmTimer>(ctx, ProjectWatch);
}

}  // namespace quillet::addin
