#pragma once
// The add-in's command bar "Quillet": created (or found) at connection where it stood last
// time, saved and removed at disconnection, enabled and disabled by the project watch.

#include "addin/context.h"

namespace quillet::addin {

inline constexpr char16_t kBarName[] = u"Quillet";

// ToolBarCreate(result, host, suffix): the bar on `bars`, at the position kept in the settings
// store under the keys with `suffix` ("" for the editor's own bar).
host::CommandBarPtr ToolBarCreate(Context& ctx, const host::CommandBarsPtr& bars, const Str& suffix);
// ToolBarSave(result, host, suffix): keeps the bar's position, then removes the bar and the
// Code Explorer's pop-up.
void ToolBarSave(Context& ctx, const host::CommandBarsPtr& bars, const Str& suffix);
// CommandBarsEnable(blnEnabled), errors ignored.
void CommandBarsEnable(Context& ctx, bool enabled) noexcept;

}  // namespace quillet::addin
