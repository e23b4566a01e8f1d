#pragma once
// Which procedure the caret of the active code pane is in.

#include "host/objects.h"

namespace quillet::source {

using basic::Str;

// CurrentProcGet(blnFull, name, bodyLine, lastLine, kind). With blnFull False: true when the
// caret's line belongs to a procedure (comments above it included). With blnFull True: true only
// from the last line of the header down to the last line of the body, so that the comments
// above and the blank lines under its End count as outside; `name` is cleared then.
bool CurrentProcGet(host::VBE& vbe, bool blnFull, Str& name, long& bodyLine, long& lastLine, long& kind);

// "Sub", "Function" or "Property": the keyword of a procedure's header line, "" if it is none.
Str ProcTypeStrOf(const Str& headerLine);

}  // namespace quillet::source
