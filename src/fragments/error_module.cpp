// The error-handling module.

#include "fragments/error_module.h"

#include "core/err_handler.h"
#include "basic/strings.h"
#include "fragments/placeholders.h"
#include "settings/catalogue.h"
#include "settings/cls_file.h"
#include "settings/code_folders.h"
#include "source/proc_def.h"
#include "source/scan_state.h"

namespace quillet::fragments {

namespace {

Str settingText(core::Context& ctx, long item) {
    const auto& values = ctx.IniSettings->IniItemValue;
    return item >= 0 && item < static_cast<long>(values.size()) ? settings::ValueText(values[item]) : Str();
}

// The component of that name in the active project, or none.
host::VBComponentPtr componentNamed(core::Context& ctx, const Str& name) {
    auto project = ctx.VBInstance->ActiveVBProject();
    if (!project || name.empty()) return nullptr;
    auto components = project->VBComponents();
    for (long i = 1, count = components->Count(); i <= count; ++i) {
        auto component = components->Item(i);
        if (basic::StrComp(component->Name(), name, basic::Compare::Text) == 0) return component;
    }
    return nullptr;
}

void procedureIndexAdd(core::Context& ctx, const host::VBComponentPtr& component, const Str& procedure) {
    auto& procs = ctx.Scan.ProjectProcs;
    if (!procs) procs = source::newCollection<source::C4_ProcDef>();
    auto def = std::make_shared<source::C4_ProcDef>();
    Str project = ctx.VBInstance->ActiveVBProject()->Name();
    def->init(project, *component->CodeModule(), procedure, 0, project);
    source::addFirstWins(*procs, def, def->Name);
}

void moduleAdd(core::Context& ctx) {
    auto& settings = *ctx.IniSettings;
    Str module = settingText(ctx, settings::iiErrorHandleModule);
    if (componentNamed(ctx, module)) return;
    settings::clsFile source(settings, settings::ErrorHandleFile(settings));
    source.Silent(true);
    Str text = source.FullName().empty() ? Str() : source.Contents();
    if (text.empty()) return;
    Str procedure = settingText(ctx, settings::iiErrorHandleProcedure);
    auto compare = basic::Compare::Text;
    text = basic::Replace(text, u"{MODULENAME}", module, 1, -1, compare);
    text = basic::Replace(text, u"{PROCEDURENAME}", procedure, 1, -1, compare);
    text = basic::Replace(text, u"{PROJECTNAME}", ctx.VBInstance->ActiveVBProject()->Name(), 1, -1, compare);
    text = TabStopsReplace(ctx, text);
    if (basic::InStr(text, u"{MODULEHEADER}", compare) > 0)
        text = basic::Replace(text, u"{MODULEHEADER}", ExpandHeader(ctx, kModuleHeader, module, u""), 1, -1, compare);

    settings::clsFile copy(settings, settings::AddBackslash(ctx.Platform().TempFolder()) + source.NameWithExtension());
    copy.Silent(true);
    if (settings.Files.FileExists(copy.FullName())) copy.Delete();
    copy.Contents(text);
    if (copy.Error()) throw basic::VbError::standard(copy.Error());
    host::VBComponentPtr imported;
    try {
        imported = ctx.VBInstance->ActiveVBProject()->VBComponents()->Import(copy.FullName());
    } catch (...) {
        copy.Delete();
        throw;
    }
    copy.Delete();
    if (imported) procedureIndexAdd(ctx, imported, procedure);
}

}  // namespace

void ErrorHandleProcedureCheck(core::Context& ctx) {
    auto component = componentNamed(ctx, settingText(ctx, settings::iiErrorHandleModule));
    if (!component || component->Type() != host::vbext_ct_StdModule) ErrorHandleModuleAdd(ctx);
}

void ErrorHandleModuleAdd(core::Context& ctx) {
    core::guarded(ctx, u"modPlaceholders.ErrorHandleModuleAdd", [&] { moduleAdd(ctx); });
}

}  // namespace quillet::fragments
