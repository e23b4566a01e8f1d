#pragma once
// The <cursor> marker: where the caret goes once a text is in the module.

#include "core/context.h"

namespace quillet::fragments {

// Removes every <cursor> (found ignoring case) from line `line` of the module on, and, unless
// keepSelection, puts a plain caret where the last one found stood. The pane is the given one,
// else the active code pane; without one nothing happens. Gives the line of the last marker, 0
// when there was none. Failures are reported.
long SetCursor(core::Context& ctx, long line, bool keepSelection, host::CodePanePtr pane = nullptr);

// The same on a module whose caret stays where it is.
long CursorMarkersRemove(core::Context& ctx, host::CodeModule& module, long line);

}  // namespace quillet::fragments
