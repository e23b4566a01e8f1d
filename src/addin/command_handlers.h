#pragma once
// The click handlers of the command bar (mnuh..._Click) and their wiring: each wired control
// has one CommandBarEvents sink, kept while the add-in is connected, whose Click runs the
// control's handler under the standard error handler. No exception leaves a click.

#include "addin/core_names.h"
#include "core/context.h"

namespace quillet::addin {

// Connects a click sink of `control` to the handler named `handler` (mnuhAddVariable ...) and
// keeps it in the bar state.
void CommandEventsConnect(Context& ctx, const host::CommandBarControlPtr& control, const Str& handler);

// Runs the handler named `handler` for the clicked control. An unknown name does nothing.
// Never throws.
void CommandClick(Context& ctx, const Str& handler, const host::CommandBarControlPtr& control) noexcept;

// Runs a routine of a later layer by name (a builder by its form name), if one is registered.

// The handlers that are called by name elsewhere. mnuhAddControl_Click (used by the Access
// bar) and mnuhControlAdd_Click do what mnuhQLTAddControl_Click does.
void mnuhQuillet_Click(Context& ctx) noexcept;
void mnuhQLTAddControl_Click(Context& ctx) noexcept;
void mnuhAddControl_Click(Context& ctx) noexcept;
void mnuhControlAdd_Click(Context& ctx) noexcept;

}  // namespace quillet::addin
