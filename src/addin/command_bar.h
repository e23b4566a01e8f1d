#pragma once
// The add-in's command bar "Quillet": created (or found) at connection where it stood last
// time, filled from the command table and wired, saved and removed at disconnection, enabled
// and disabled by the project watch.

#include <vector>

#include "addin/command_table.h"
#include "addin/core_names.h"
#include "core/context.h"

namespace quillet::addin {

inline constexpr char16_t kBarName[] = u"Quillet";

// One control the add-in made, with the row it stands for (none for Access's Add Control).
struct BarControl {
    const CommandRow* row = nullptr;
    host::CommandBarControlPtr control;
};

// What the add-in keeps of its bars while connected: the controls, in order of creation, and
// one click sink per wired control (a sink let go stops firing).
struct CommandBarState {
    std::vector<BarControl> controls;
    std::vector<host::CommandBarEventsPtr> sinks;
};

// The bar state of the connection, made at first use.
CommandBarState& commandBarState(Context& ctx);

// ToolBarCreate(result, host, suffix): the bar on `bars`, at the position kept in the settings
// store under the keys with `suffix` ("" for the editor's own bar).
host::CommandBarPtr ToolBarCreate(Context& ctx, const host::CommandBarsPtr& bars, const Str& suffix);
// ToolBarSave(result, host, suffix): keeps the bar's position, then removes the bar and the
// Code Explorer's pop-up.
void ToolBarSave(Context& ctx, const host::CommandBarsPtr& bars, const Str& suffix);
// CommandBarsEnable(blnEnabled), errors ignored.
void CommandBarsEnable(Context& ctx, bool enabled) noexcept;

// Every row of the command table that applies to this host, on `bar`, then the list of error
// handlers and one click sink per wired control. A row that fails is reported and the others
// are made; the rows of a pop-up that could not be made are left out. Never throws.
void CommandTableCreate(Context& ctx, const host::CommandBarPtr& bar) noexcept;
// Whether a conditional row is made in this connection.
bool commandRowApplies(Context& ctx, const CommandRow& row);
// True when AccessApp is set and its Name is "Microsoft Access", ignoring case.
bool isMicrosoftAccess(Context& ctx);

// ErrorHandlerList(control): fills the drop-down "&Add Error Handling" with the names of the
// error handler templates and selects the one of the setting "Add Error Handling Procedure".
void ErrorHandlerList(Context& ctx, const host::CommandBarControlPtr& control);

// In testing mode, with an Access project active: the bar on Access's own command bars (keys
// suffixed with AccessApp.Name), with "Add C&ontrol..." on it. Never throws.
void AccessToolBarCreate(Context& ctx) noexcept;

// Disconnects and lets go of every click sink and control. Never throws.
void CommandBarEventsRelease(Context& ctx) noexcept;

}  // namespace quillet::addin
