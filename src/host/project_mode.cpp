#include "host/project_mode.h"

namespace quillet::host {

long ProjectMode(VBProject& project) {
    auto* source = dynamic_cast<ProjectModeSource*>(&project);
    return source ? source->Mode() : vbext_vm_Design;
}

}  // namespace quillet::host
