#pragma once
// The front door of the quick commands: QuilletHandle(command, type) turns a command word into
// code at the caret of the active code pane. It never throws: failures are reported through
// HandleError and the command goes on or ends as its description says.

#include "addin/core_names.h"
#include "core/context.h"

namespace quillet::addin {

void QuilletHandle(Context& ctx, const Str& command, const Str& type);

// Whether the word is one of the quick commands' words (matched exactly, trailing blanks included).
bool isQuickCommand(const Str& command);

}  // namespace quillet::addin
