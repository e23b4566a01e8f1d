#pragma once
// The commands "Comment Lines Add" and "Comment Lines Remove": an apostrophe before each selected
// line, or the first apostrophe of each commented one taken off, written back in one change, with
// the selection's columns moved along with the text. A selection that ends at column 1 of a
// later line leaves that line out; a caret alone works on its own line. Without an active code
// pane they do nothing; failures are reported through HandleError.

#include "core/context.h"

namespace quillet::tools {

void CommentLinesAdd(core::Context& ctx);
void CommentLinesRemove(core::Context& ctx);

}  // namespace quillet::tools
