#pragma once
// The quick commands that work on the procedure at the caret: error handling and the names of
// the arguments of the procedure being called.

#include <optional>
#include <vector>

#include "addin/core_names.h"
#include "core/context.h"

namespace quillet::addin {

// ErrorHandlingAdd(file): adds the error handler template `file` (the setting Default Error
// Handle when empty) to the procedure at the caret, unless it already has "On Error GoTo " and
// the handler's label; makes the module and procedure name constants the template asks for.
void ErrorHandlingAdd(Context& ctx, const Str& file);
// The last step of ErrorHandlingAdd: the template's top and bottom go round the procedure's body.
void ErrorHandlerMerge(Context& ctx, Str& text, source::clsScanProc& scan);

// The procedure being called at the caret and the argument names still free, as the walk back
// over the text before the caret finds them; none when there is no such call.
struct ExplicitArgumentCall {
    Str Procedure;
    std::vector<Str> Names;
};
std::optional<ExplicitArgumentCall> ExplicitArgumentFind(Context& ctx);
// Offers the free argument names and writes the choice as name & ":=" at the caret.
void ExplicitArgumentAdd(Context& ctx);
// Whether ExplicitArgumentAdd would offer anything at the caret.
bool ExplicitArgumentAvailable(Context& ctx);

// A choice from the list: ctx.SelectFromList, or an input box that lists the entries.
std::optional<Str> SelectFromList(Context& ctx, const Str& title, const std::vector<Str>& items);

}  // namespace quillet::addin
