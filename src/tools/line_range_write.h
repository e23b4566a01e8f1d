#pragma once
// Writing a changed range of a module's lines back as one change: the module ends up with all of
// the new lines or, when the editor refuses a call on the way, with its old text.

#include <vector>

#include "host/objects.h"

namespace quillet::tools {

using basic::Str;

// Writes `newLines` over the lines that held `oldLines`, from line `first` on (both lists the
// same length). Only the span from the first to the last line that differs is touched: one
// ReplaceLine when that is one line; otherwise the new lines go in before the old ones, which are
// then deleted, and a failed delete takes the new lines out again before the error goes on.
// True when something was written.
bool ReplaceLineRange(host::CodeModule& module, long first, const std::vector<Str>& oldLines,
                      const std::vector<Str>& newLines);

}  // namespace quillet::tools
