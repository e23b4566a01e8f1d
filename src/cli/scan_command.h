#pragma once
// quillet scan: what the scanners see of a project on disk. Without options, the five
// project-wide collections; with --module NAME, that module's scan; with --at MODULE:LINE, the
// procedure scan at that place too. As text for reading, or with --json as one JSON object
// whose keys are the collections' names and whose records use the records' field names.

#include <ostream>

#include "cli/options.h"

namespace quillet::cli {

// Throws hosts::files::ProjectError for a project that cannot be read or a place that does not
// exist; failures of the scan itself are reported on `err` and the scan goes on.
int scanProject(const ToolOptions& options, std::ostream& out, std::ostream& err);

}  // namespace quillet::cli
