#pragma once
// quillet typelib FILE: what the library scan makes of one type library, as text or with --json
// as one JSON object.

#include <ostream>

#include "cli/options.h"

namespace quillet::cli {

// A library that cannot be read is reported on `err` with exit code kExitProject.
int typelibCommand(const ToolOptions& options, std::ostream& out, std::ostream& err);

}  // namespace quillet::cli
