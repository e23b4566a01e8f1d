#pragma once
// An error handler template made ready for one procedure.

#include "core/context.h"

namespace quillet::fragments {

using basic::Str;

// Substitutes the placeholders for the procedure, then, with fModuleConst and fProcConst, writes
// the module and procedure names inside strings as the name constants (the settings Module Name
// Constant and Procedure Name Constant): "basMain.Foo" becomes cstrModule & "." & cstrProcedure.
void NormalizeErrorHandlerCode(core::Context& ctx, Str& rstrText, const Str& vstrModule, const Str& vstrProc,
                               const Str& vstrType, bool fModuleConst, bool fProcConst);

}  // namespace quillet::fragments
