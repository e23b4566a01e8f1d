#include "cli/scan_command.h"

#include "basic/strings.h"
#include "cli/caret_setup.h"
#include "cli/json_writer.h"
#include "cli/scan_output.h"
#include "cli/tool.h"
#include "hosts/files/file_project.h"
#include "hosts/files/project_error.h"
#include "hosts/memory/memory_host.h"
#include "source/scan_module.h"
#include "source/scan_proc.h"
#include "source/scan_project.h"

namespace quillet::cli {

namespace files = hosts::files;
namespace memory = hosts::memory;

namespace {

std::unique_ptr<files::FileProject> loadProject(const ToolOptions& options,
                                                const std::shared_ptr<memory::MemoryVBE>& vbe) {
    files::LoadOptions load;
    load.codePage = options.codePage;
    const std::string& project = *options.project;
    return files::FileProject::load(vbe, std::filesystem::path(std::u8string(project.begin(), project.end())), load);
}

// The caret where the scans look: --at, or line 1 of --module.
void placeScanCaret(memory::MemoryVBE& vbe, memory::MemoryProject& project, const ToolOptions& options) {
    ToolOptions place;
    place.at = options.at ? *options.at : Location{*options.scanModule, 1, 1};
    placeCaret(vbe, project, place);
}

}  // namespace

int scanProject(const ToolOptions& options, std::ostream& out, std::ostream& err) {
    auto vbe = memory::MemoryVBE::create();
    auto project = loadProject(options, vbe);
    vbe->setActiveProject(project->project()->shared_from_this());
    if (options.at || options.scanModule) placeScanCaret(*vbe, *project->project(), options);

    source::ProjectScanState state;
    source::ScanEnv env{*vbe, state, [&err](const basic::VbError& error, const Str& where) {
                            err << "quillet: " << basic::toUtf8(where) << ": error " << error.Number() << ": "
                                << basic::toUtf8(error.Description()) << "\n";
                        }};
    state.ProjectProcs = source::newCollection<source::C4_ProcDef>();
    source::clsScanProject(env).init({}, true);

    ScanOutput output;
    if (options.scanModule) {
        output.module = std::make_unique<source::clsScanModule>(env);
        output.module->init(*options.scanModule);
    } else {
        output.project = &state;
    }
    if (options.at) {
        output.procedure = std::make_unique<source::clsScanProc>(env);
        output.procedure->init();
    }
    if (options.json)
        writeScanJson(output, out);
    else
        writeScanText(output, out);
    return kExitOk;
}

}  // namespace quillet::cli
