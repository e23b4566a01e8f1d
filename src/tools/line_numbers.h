#pragma once
// modNumbering: line numbers on the selected lines of the active code pane, for the error
// handlers that report Erl, and off again. Each command reads the module once and writes its
// change in one go; without an active code pane it does nothing. Failures are reported through
// HandleError ("modNumbering.ReplaceLines", "modNumbering.UnReplaceLines").

#include "core/context.h"

namespace quillet::tools {

// ReplaceLines(base): takes the old numbers off the selected lines, then gives line L the number
// base + L (base 0 is taken as, and set to, 1000), or four blanks where no number is allowed.
// The selection stays where it was.
void ReplaceLines(core::Context& ctx, long& base);
// UnReplaceLines: takes the line numbers off the selected lines; the selection stays.
void UnReplaceLines(core::Context& ctx);

}  // namespace quillet::tools
