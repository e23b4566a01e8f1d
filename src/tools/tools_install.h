#pragma once
// Registers the source tools' commands in the context, by the names the command table and the
// quick commands open them with: "LineNumbersAdd", "LineNumbersRemove", "Comment Lines Add" and
// "Comment Lines Remove".

#include "core/context.h"

namespace quillet::tools {

void ToolsInstall(core::Context& ctx);

}  // namespace quillet::tools
