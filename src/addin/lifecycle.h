#pragma once
// Bringing the add-in's state up and down, and taking a fresh picture of the active project.

#include "addin/core_names.h"
#include "core/context.h"

namespace quillet::addin {

// Settings, type prefixes, keywords, the code folders, the fragment services and the builders.
// With firstStartRun, a first start may open the Settings dialog and ask about the tool windows
// (the add-in at connection); the quillet tool asks nothing. Never throws.
void AddInInitialize(Context& ctx, bool firstStartRun = true) noexcept;
// Drops every global object, VBInstance among the last. Never throws.
void AddInTerminate(Context& ctx) noexcept;
// Outlook's main window stands in front of the editor: it is moved out of the way.
// Scans the active project; unless blnProjectOnly, the libraries too. Never throws.
void ProjectInitialize(Context& ctx, bool blnProjectOnly) noexcept;

}  // namespace quillet::addin
