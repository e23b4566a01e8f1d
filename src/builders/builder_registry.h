#pragma once
// The builders by their form names. A registered builder opens by name from both sides: from a UI
// script's `open FORM ARG ...` (the context's form stack) and from the command bar's handlers (the
// context's routines, whose one argument, when not empty, is the opener's only argument).

#include "core/context.h"
#include "dialogs/form_stack.h"

namespace quillet::builders {

using basic::Str;

void RegisterBuilder(core::Context& ctx, const Str& formName, dialogs::FormStack::Opener opener);

// Registers every builder of the add-in; the connection and the quillet tool call it once.
void RegisterBuilders(core::Context& ctx);

}  // namespace quillet::builders
