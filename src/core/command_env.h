#pragma once
// The preparation of every quick command and the checks and placing the quick dialogs share:
// initialize takes fresh scans of the module and procedure at the caret, NewNameIsOK checks a
// name against what the scans know, AddCodeLine places a finished declaration or block.

#include "core/context.h"
#include "source/code_env.h"

namespace quillet::core {

// The environment of the code-placing routines over this context.
source::CodeEnv codeEnvOf(Context& ctx);

// ProjectRefresh(blnReferences): brings the project scan up to date (only changed modules are
// scanned again). The number of modules scanned.
long ProjectRefresh(Context& ctx, bool blnReferences = false);

// initialize(command, type): ProjectRefresh, the module scan, the procedure scan when the caret is
// in a procedure, the module's procedures, the word at the caret and the name suggested for it.
void initialize(Context& ctx, const Str& command, const Str& type);

// NewNameIsOK(name, kind): the syntax and keyword checks and, for a variable (10001) or constant
// (10002), the project's public procedures, variables and constants and the module's and
// procedure's lists. 0 when the name may be used, else the answer that stopped it (2 Cancel,
// 7 No, or the number of a missing name).
long NewNameIsOK(Context& ctx, const Str& name, long kind);

// AddCodeLine(text, module, lngBlockLine): an empty module is the active pane's; "<New Module>"
// and an unknown module ask first. With lngBlockLine below 1: into the procedure at the caret
// when there is one, else the module's declarations; otherwise a member of the block at that
// line. True when placed.
bool AddCodeLine(Context& ctx, const Str& text, const Str& module = {}, long lngBlockLine = 0);

// RoutineRun(name, argument): runs the routine registered under that name (a builder's opening),
// when there is one.
void RoutineRun(Context& ctx, const Str& name, const Str& argument = {});

// In Outlook the editor loses its place behind Outlook's reading pane after some calls: closes
// that window and gives the focus back to the editor's first window.
void OutlookStep(Context& ctx);

}  // namespace quillet::core
