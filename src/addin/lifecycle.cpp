#include "addin/lifecycle.h"

#include "addin/core_names.h"
#include "core/err_handler.h"
#include "core/frm_timer.h"
#include "addin/project_commands.h"
#include "basic/strings.h"
#include "settings/code_folders.h"
#include "settings/ini_vars.h"
#include "addin/command_bar.h"
#include "builders/builder_registry.h"
#include "fragments/services.h"
#include "source/keywords.h"
#include "source/scan_project.h"
#include "tools/tools_install.h"

namespace quillet::addin {

void AddInInitialize(Context& ctx, bool firstStartRun) noexcept {
    const Str where = u"basGlobal.AddInInitialize";
    auto& settings = *ctx.IniSettings;
    settings.ReportError = [&ctx](const basic::VbError& error, const Str& source) {
        HandleError(ctx, error, 0, source);
    };
    guarded(ctx, where, [&] { settings::InitializeGlobalVars(settings, firstStartRun); });
    guarded(ctx, where, [&] { settings::TypePrefixFromIniFile(settings); });
    guarded(ctx, where, [&] {
        ctx.Prefixes = source::PrefixesCollectionsCreate(source::prefixSettingsOf(settings), settings.TypePrefixes);
    });
    guarded(ctx, where, [&] { ctx.Keywords = source::keywordList(); });
    guarded(ctx, where, [&] { settings::MakeCodeFolders(settings); });
    guarded(ctx, where, [&] { RegisterScanCommands(ctx); });
    guarded(ctx, where, [&] { fragments::FragmentServicesInstall(ctx); });
    guarded(ctx, where, [&] { builders::RegisterBuilders(ctx); });
    guarded(ctx, where, [&] { tools::ToolsInstall(ctx); });
}

void AddInTerminate(Context& ctx) noexcept {
    ctx.ShortcutsDoc.reset();
    ctx.CodeExplorerDoc.reset();
    ctx.ShortcutsToolWindow.reset();
    ctx.CodeExplorerToolWindow.reset();
    ctx.TimerForm.reset();
    ctx.hostApplications() = HostApplications{};
    ctx.Keywords.clear();
    ctx.Scan = source::ProjectScanState{};
    ctx.Prefixes = source::PrefixTables{};
    if (ctx.IniSettings) ctx.IniSettings->ReportError = nullptr;
    ctx.VBInstance.reset();
}

void ProjectInitialize(Context& ctx, bool /*blnProjectOnly*/) noexcept {
    const Str where = u"basGlobal.ProjectInitialize";
    guarded(ctx, where, [&] { OutlookStep(ctx); });
    if (ctx.TestingMode) guarded(ctx, where, [&] { AccessToolBarCreate(ctx); });
    guarded(ctx, where, [&] {
        ctx.Scan.ProjectProcs = source::newCollection<source::C4_ProcDef>();
        source::clsScanProject(ctx.scanEnv()).init({}, true);
    });
    ++ctx.ProjectInitializeRuns;
}

}  // namespace quillet::addin
