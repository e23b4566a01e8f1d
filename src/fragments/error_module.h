#pragma once
// The error-handling module that {ERRORHANDLEPROCEDURE} calls into: imported from its template
// (the setting ErrorHandle File) the first time a handler needs it.

#include "core/context.h"

namespace quillet::fragments {

// Runs ErrorHandleModuleAdd unless the active project has a standard module named by the setting
// ErrorHandle Module.
void ErrorHandleProcedureCheck(core::Context& ctx);

// Imports the error-handling module unless the active project has it: the template with its
// module, procedure and project names, indentation and module header, written under its own file
// name to the temporary folder, imported and deleted again; the procedure joins the project's
// procedure index. A missing or empty template does nothing. Failures are reported.
void ErrorHandleModuleAdd(core::Context& ctx);

}  // namespace quillet::fragments
