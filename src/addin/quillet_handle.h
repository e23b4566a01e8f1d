#pragma once
// The front door of the quick commands: QuilletHandle(command, type) turns a command word into
// code at the caret of the active code pane. It never throws: failures are reported through
// HandleError and the command goes on or ends as its description says.

#include <vector>

#include "addin/core_names.h"
#include "core/context.h"

namespace quillet::addin {

void QuilletHandle(Context& ctx, const Str& command, const Str& type);

// Whether the word is one of the quick commands' words (matched exactly, trailing blanks included).
bool isQuickCommand(const Str& command);

// Whether the quick command asks its question in a dialog of its own (a list, a name and value),
// which only the editor or a UI script can answer.
bool quickCommandNeedsDialog(const Str& command);

// The quick commands' words, in the order of the dispatch table.
std::vector<Str> quickCommandWords();

}  // namespace quillet::addin
