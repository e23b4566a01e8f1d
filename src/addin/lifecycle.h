#pragma once
// Bringing the add-in's state up and down, and taking a fresh picture of the active project.

#include "addin/context.h"

namespace quillet::addin {

// Settings, type prefixes, keywords, the code folders, the fragment services and the builders.
// Never throws.
void AddInInitialize(Context& ctx) noexcept;
// Drops every global object, VBInstance among the last. Never throws.
void AddInTerminate(Context& ctx) noexcept;
// Outlook's main window stands in front of the editor: it is moved out of the way.
void OutlookStep(Context& ctx);
// Scans the active project; unless blnProjectOnly, the libraries too. Never throws.
void ProjectInitialize(Context& ctx, bool blnProjectOnly) noexcept;

}  // namespace quillet::addin
