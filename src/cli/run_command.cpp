#include "cli/run_command.h"

#include <iomanip>

#include "addin/context.h"
#include "addin/project_commands.h"
#include "addin/quillet_handle.h"
#include "basic/strings.h"
#include "cli/caret_setup.h"
#include "cli/diff.h"
#include "cli/tool.h"
#include "hosts/files/file_project.h"
#include "hosts/files/project_error.h"
#include "hosts/memory/memory_host.h"
#include "platform/scripted_platform.h"

namespace quillet::cli {

namespace files = hosts::files;
namespace memory = hosts::memory;

namespace {

std::unique_ptr<files::FileProject> loadProject(const ToolOptions& options,
                                                const std::shared_ptr<memory::MemoryVBE>& vbe) {
    files::LoadOptions load;
    load.codePage = options.codePage;
    std::string project = *options.project;
    return files::FileProject::load(vbe, std::filesystem::path(std::u8string(project.begin(), project.end())), load);
}

void printDiff(const std::vector<files::FileChange>& changes, std::ostream& out) {
    for (const files::FileChange& change : changes) {
        std::string path = files::displayPath(change.path);
        bool created = change.kind == files::FileChange::Kind::Created;
        bool removed = change.kind == files::FileChange::Kind::Removed;
        if (removed && change.oldLines.empty()) {
            out << "Binary file a/" << path << " removed\n";
            continue;
        }
        DiffNames names{created ? "/dev/null" : "a/" + path, removed ? "/dev/null" : "b/" + path};
        out << unifiedDiff(change.oldLines, change.newLines, names);
    }
}

const char* typeName(long type) {
    switch (type) {
        case host::vbext_ct_StdModule: return "Module";
        case host::vbext_ct_ClassModule: return "Class";
        case host::vbext_ct_MSForm: return "UserForm";
        case host::vbext_ct_VBForm: return "Form";
        case host::vbext_ct_VBMDIForm: return "MDIForm";
        case host::vbext_ct_UserControl: return "UserControl";
        case host::vbext_ct_PropPage: return "PropertyPage";
        case host::vbext_ct_DocObject: return "UserDocument";
        case host::vbext_ct_ActiveXDesigner: return "Designer";
        case host::vbext_ct_Document: return "Document";
        default: return "Component";
    }
}

}  // namespace

int runCommand(const ToolOptions& options, std::ostream& out, std::ostream& err) {
    auto vbe = memory::MemoryVBE::create();
    auto project = loadProject(options, vbe);
    auto platform = std::make_shared<platform::ScriptedPlatform>();
    placeCaret(*vbe, *project->project(), options);
    wirePlatform(*platform, vbe);
    for (const Str& answer : options.answers) platform->queueAnswer(answer);

    addin::Context ctx(vbe, platform);
    ctx.reportListener = [&err](const Str& report) { err << basic::toUtf8(report) << "\n"; };
    addin::RegisterScanCommands(ctx);
    addin::QuilletHandle(ctx, options.command, options.type);

    if (options.dryRun) {
        printDiff(project->changes(), out);
        return kExitOk;
    }
    for (const files::FileChange& change : project->save()) out << files::displayPath(change.path) << "\n";
    return kExitOk;
}

int listModules(const ToolOptions& options, std::ostream& out) {
    auto vbe = memory::MemoryVBE::create();
    auto project = loadProject(options, vbe);
    size_t width = 4;
    for (const auto& component : project->project()->components()) {
        width = std::max(width, basic::toUtf8(component->name()).size());
    }
    out << std::left << std::setw(static_cast<int>(width + 2)) << "Name" << std::setw(14) << "Type" << "Lines\n";
    for (const auto& component : project->project()->components()) {
        std::string name = basic::toUtf8(component->name());
        // setw counts bytes; pad by characters so that accented names line up.
        size_t characters = static_cast<size_t>(basic::Len(component->name()));
        out << name << std::string(width + 2 - characters, ' ') << std::setw(14) << typeName(component->Type())
            << component->lines().size() << "\n";
    }
    return kExitOk;
}

}  // namespace quillet::cli
