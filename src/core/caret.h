#pragma once
// The caret and line routines on which all insertion at the cursor rests. They work on the
// active code pane, taken afresh at each call.

#include "core/context.h"

namespace quillet::core {

// True with a project open and a code window active.
bool IsCodeContext(Context& ctx);
// The indent unit: as many blanks as the editor's tab width (4 when unknown).
Str TabSpaces(Context& ctx);
// The text of the caret's line (start of the selection, or its end with blnEnd); "" past the
// module's end. line and col are filled in.
Str CurrentLineGet(Context& ctx, long& line, long& col, bool blnEnd);
// Leading blanks of the line, or of the nearest line above it that has text.
long LineIndentGet(Context& ctx, long line);
// The indent for new code at the caret.
long CursorIndentGet(Context& ctx);
// Puts `text` (lines joined by "\r\n") in place of a blank caret line, or below a used one, and
// puts the caret on its first line at column `col` (0: leave the caret).
void LineReplace(Context& ctx, const Str& text, long col);

// Writes `text` over line `line` (replace) or before it (insert), in one host call, padding an
// empty or short module with blank lines first so the line exists.
void writeAtLine(host::CodeModule& module, long line, const Str& text, bool replace);

}  // namespace quillet::core
