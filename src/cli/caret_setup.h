#pragma once
// Sets up the editor in memory as the user would have it when running a command: the module's
// pane active in a code window, the module selected, the caret or selection where the command
// line says, and the platform's focus and paste wired to the editor.

#include <memory>

#include "cli/options.h"
#include "hosts/memory/project.h"
#include "hosts/memory/vbe.h"
#include "platform/scripted_platform.h"

namespace quillet::cli {

// Throws hosts::files::ProjectError when the module, a line or a column does not exist.
void placeCaret(hosts::memory::MemoryVBE& vbe, hosts::memory::MemoryProject& project, const ToolOptions& options);

void wirePlatform(platform::ScriptedPlatform& platform, const std::shared_ptr<hosts::memory::MemoryVBE>& vbe);

}  // namespace quillet::cli
