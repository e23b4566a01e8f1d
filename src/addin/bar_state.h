#pragma once
// Which commands show where the caret is. ToolbarStateSet runs from the project watch every
// half second and MenuStateSet when the "&Quillet" pop-up opens; both compare captions exactly
// and write a property only when its value would change, since each write makes the bar flicker.

#include "addin/core_names.h"
#include "core/context.h"

namespace quillet::addin {

// ToolbarStateSet: outside a code window only Add Class, Add Control, the pop-ups and the two
// view buttons stay; in one, Insert Line Of Code, Insert Fragment and Insert Variable show only
// inside a procedure. Nothing happens while the bar is not there. Never throws.
void ToolbarStateSet(Context& ctx) noexcept;

// MenuStateSet: shows, hides, enables and disables the entries of the "&Quillet" pop-up for
// the active window and the caret. Never throws.
void MenuStateSet(Context& ctx) noexcept;

}  // namespace quillet::addin
