#pragma once
// The verbs that work on a project: run (a quick command at a place) and list.

#include <ostream>

#include "cli/options.h"

namespace quillet::cli {

// Throw hosts::files::ProjectError for a project that cannot be read or written and for a
// place that does not exist; return the exit code otherwise.
int runCommand(const ToolOptions& options, std::ostream& out, std::ostream& err);
int listModules(const ToolOptions& options, std::ostream& out);

}  // namespace quillet::cli
