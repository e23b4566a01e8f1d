#include "source/scan_state.h"

namespace quillet::source {

bool scanAllowed(host::VBE& vbe) {
    if (vbe.VBProjects()->Count() == 0) return false;
    auto project = vbe.ActiveVBProject();
    return project && project->Protection() != host::vbext_pp_locked;
}

Str activeProjectName(host::VBE& vbe) {
    auto project = vbe.ActiveVBProject();
    return project ? project->Name() : Str();
}

}  // namespace quillet::source
