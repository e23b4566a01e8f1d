#include "cli/run_command.h"

#include <iomanip>

#include "core/context.h"
#include "addin/quillet_handle.h"
#include "basic/strings.h"
#include "cli/project_session.h"
#include "cli/tool.h"
#include "hosts/files/file_project.h"
#include "hosts/files/project_error.h"
#include "hosts/memory/memory_host.h"
#include "platform/scripted_platform.h"

namespace quillet::cli {

namespace files = hosts::files;
namespace memory = hosts::memory;

namespace {

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
    ProjectSession session = openSession(options);
    core::Context ctx(session.vbe, session.platform);
    startAddin(ctx, options, err);
    addin::QuilletHandle(ctx, options.command, options.type);
    // A command that opens a dialog waits for a user the tool does not have: nothing is written.
    if (dialogs::Form* dialog = ctx.Forms->Top()) {
        err << "quillet: " << basic::toUtf8(options.command) << " opens the dialog " << basic::toUtf8(dialog->Name())
            << " (" << basic::toUtf8(dialog->Caption) << "); drive it with a UI script: quillet play SCRIPT\n";
        return kExitUsage;
    }
    finishSession(session, options, out);
    return kExitOk;
}

int listModules(const ToolOptions& options, std::ostream& out) {
    auto project = loadProjectFiles(options, memory::MemoryVBE::create());
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
