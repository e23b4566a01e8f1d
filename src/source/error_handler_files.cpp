#include "source/error_handler_files.h"

#include "basic/strings.h"
#include "settings/catalogue.h"
#include "settings/cls_file.h"
#include "settings/cls_folder.h"
#include "settings/code_folders.h"
#include "settings/ini_vars.h"
#include "source/code_placing.h"

namespace quillet::source {

using basic::Compare;

namespace {

bool endsInBas(const Str& name) { return basic::StrComp(basic::Right(name, 4), u".bas", Compare::Text) == 0; }

}  // namespace

std::vector<Str> ErrorHandlersList(settings::Settings& settings) {
    std::vector<Str> names;
    settings::clsFolder folder(settings);
    folder.InitFolder(settings::ErrorHandlersFolder(settings), u"*.bas", false);
    for (const auto& file : folder.Files)
        if (endsInBas(file->NameWithExtension())) names.push_back(file->Name());
    return names;
}

Str ErrorHandlerFileRead(settings::Settings& settings, const Str& name) {
    Str fileName = endsInBas(name) ? name : name + u".bas";
    settings::clsFile file(settings, settings::MakePath({settings::ErrorHandlersFolder(settings), fileName}));
    file.Silent(true);
    return file.Contents();
}

bool ErrorHandleProcedureCheck(CodeEnv& env) {
    bool present = false;
    reportedStep(env.report, u"basGlobal.ErrorHandleProcedureCheck", [&] {
        Str module = settings::IniText(env.settings, settings::iiErrorHandleModule);
        auto component = componentNamed(env.vbe, module);
        present = component && component->Type() == host::vbext_ct_StdModule;
        if (!present && env.errorHandleModuleAdd) env.errorHandleModuleAdd();
    });
    return present;
}

Str GetTempFolder(platform::Platform& platform) { return platform.TempFolder(); }

}  // namespace quillet::source
