#pragma once
// The error handler templates: their names, their text, and the module the handlers call.

#include "source/code_env.h"

namespace quillet::source {

// The names, less ".bas", of the ".bas" files of the error handlers' folder, in name order.
std::vector<Str> ErrorHandlersList(settings::Settings& settings);
// The text of the template `name` of that folder (".bas" added unless the name ends in it,
// ignoring case); "" when it cannot be read.
Str ErrorHandlerFileRead(settings::Settings& settings, const Str& name);
// Makes sure the module named by the setting ErrorHandle Module is among the active project's
// standard modules, adding it (ErrorHandleModuleAdd) when it is not. True when it was there.
bool ErrorHandleProcedureCheck(CodeEnv& env);
// The platform's temporary folder.
Str GetTempFolder(platform::Platform& platform);

}  // namespace quillet::source
