#pragma once
// Keeping the project scan in step with what the user changed: each module is read once, its
// signature compared with the one of its last scan, and only a module that is new or changed is
// scanned again; a module that is gone leaves the collections.

#include "source/code_env.h"

namespace quillet::source {

// ProjectRefresh(blnReferences): the libraries first, then the modules. A scan of another
// project, or none yet, is replaced by a full scan. The number of modules scanned.
long ProjectRefresh(CodeEnv& env, bool blnReferences = false);

}  // namespace quillet::source
