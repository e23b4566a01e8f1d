#pragma once
// The verb play: a UI script run against a project on disk (docs/ui-scripts.md).

#include <ostream>

#include "cli/options.h"

namespace quillet::cli {

// Exit codes as run's, and kExitUsage for a script that cannot be read, kExitScript for one that
// stopped (nothing is written then).
int playScript(const ToolOptions& options, std::ostream& out, std::ostream& err);

}  // namespace quillet::cli
