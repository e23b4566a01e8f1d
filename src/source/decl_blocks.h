#pragma once
// Where a declaration may stand: the Enum and Type blocks of a module's declarations, the
// conditional-compilation blocks and the continued lines that a new line must not break into.

#include "host/objects.h"

namespace quillet::source {

using basic::Str;

// The Enum (blnEnum) or Type block of the module's declarations that holds line `line`, its
// header and End line included: the line just before its "End Enum" or "End Type"; 0 when the
// line is in no such block.
long DeclarationBlockLine(host::CodeModule& module, long line, bool blnEnum);

// The same for the caret of the active code pane; 0 without a pane.
long CaretBlockLine(host::VBE& vbe, bool blnEnum);

// The Enum (blnEnum) or Type block named `name` in the module's declarations: its header's line
// and its "End" line; a header behind a comment mark does not count. False when there is none.
bool DeclarationBlockFind(host::CodeModule& module, const Str& name, bool blnEnum, long& header, long& endLine);

// True when a line put in at `line` (in place of a blank one) would stand inside another
// statement: within an Enum or Type block, between "#If" and "#End If", or behind a line that
// continues with " _".
bool LineInsideStatement(host::CodeModule& module, long line);

// The first line from `line` on at which a new line stands inside no other statement.
long LineOutsideStatements(host::CodeModule& module, long line);

}  // namespace quillet::source
