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

// Whether the quick command does its work in this build: false for an unknown word and for the
// words whose dialogs are not built yet (they are known, and leave the code as it is).
bool quickCommandAvailable(const Str& command);

// The quick commands' words, in the order of the dispatch table.
std::vector<Str> quickCommandWords();

}  // namespace quillet::addin
