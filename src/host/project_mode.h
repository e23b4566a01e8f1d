#pragma once
// The editor's mode for a project (VBProject.Mode): code may be added to a project only while
// it is in design. Not every host's project object tells it; one that does implements
// ProjectModeSource beside VBProject.

#include "host/objects.h"

namespace quillet::host {

// vbext_VBAMode
enum VBAMode : long { vbext_vm_Run = 0, vbext_vm_Break = 1, vbext_vm_Design = 2 };

class ProjectModeSource {
public:
    virtual ~ProjectModeSource() = default;
    virtual long Mode() = 0;
};

// The project's mode as its host tells it; design for a host that cannot tell (its code cannot
// be running). A failing read raises as the host raised.
long ProjectMode(VBProject& project);

}  // namespace quillet::host
