#pragma once
// quillet html: a module of the project as a page of coloured HTML, on standard output or in
// --output FILE (written atomically).

#include <ostream>

#include "cli/options.h"

namespace quillet::cli {

// Exit 2 for a project that cannot be read, a module it lacks, or a file that cannot be written.
int htmlPage(const ToolOptions& options, std::ostream& out, std::ostream& err);

}  // namespace quillet::cli
