#pragma once
// quillet fragments: the fragment library as the Fragment Builder shows it: the folders below the
// fragments folder with their fragments and shortcuts, in order; broken shortcuts marked and not
// counted as entries; with --project, folders tied in qltrefra.ini to a library the project does
// not refer to are left out. As text, or with --json as one JSON object.

#include <ostream>
#include <string>

#include "cli/options.h"

namespace quillet::cli {

std::string fragmentsHelpText();

// Throws hosts::files::ProjectError for a project that cannot be read.
int fragmentsCommand(const ToolOptions& options, std::ostream& out, std::ostream& err);

}  // namespace quillet::cli
