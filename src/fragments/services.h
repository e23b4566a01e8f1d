#pragma once
// Hands the placeholder layer's routines to the commands that place code (the context's
// Fragments): module headers, the error-handling module, error handler templates and their merge
// round the procedure at the caret.

#include "core/context.h"

namespace quillet::fragments {

void FragmentServicesInstall(core::Context& ctx);

}  // namespace quillet::fragments
