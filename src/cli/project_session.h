#pragma once
// What every verb that changes code starts and ends with: the project on disk loaded into the
// editor in memory, the caret or selection placed, the scripted platform wired to the editor with
// the --answer values queued; at the end, a diff (--dry-run) or the changed files written.

#include <memory>
#include <ostream>

#include "core/context.h"
#include "cli/options.h"
#include "hosts/files/file_project.h"
#include "hosts/memory/vbe.h"
#include "platform/scripted_platform.h"

namespace quillet::cli {

struct ProjectSession {
    std::shared_ptr<hosts::memory::MemoryVBE> vbe;
    std::unique_ptr<hosts::files::FileProject> project;
    std::shared_ptr<platform::ScriptedPlatform> platform;
};

// The project of --project (in its --code-page) loaded into the editor; throws
// hosts::files::ProjectError when it cannot be read.
std::unique_ptr<hosts::files::FileProject> loadProjectFiles(const ToolOptions& options,
                                                            const std::shared_ptr<hosts::memory::MemoryVBE>& vbe);

// Throws hosts::files::ProjectError for a project that cannot be read and a place that does not exist.
ProjectSession openSession(const ToolOptions& options);

// What the add-in does at connection, for the tool: reports go to `err`, the settings come from
// --settings (or the usual folders), then the project is scanned.
void startAddin(core::Context& ctx, const ToolOptions& options, std::ostream& err);

// --dry-run: prints a unified diff of the changes. Otherwise writes the changed files and prints
// their names, one a line.
void finishSession(ProjectSession& session, const ToolOptions& options, std::ostream& out);

}  // namespace quillet::cli
