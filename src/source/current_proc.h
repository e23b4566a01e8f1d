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

// A procedure's lines: its header's first and last lines (continuations included) and its last
// line that is not blank; `count` is the module's number of lines.
struct ProcSpan {
    long bodyLine = 0;
    long headerEnd = 0;
    long lastLine = 0;
};
ProcSpan ProcSpanOf(host::CodeModule& module, const Str& name, long kind, long count);

// "Sub", "Function" or "Property": the keyword of a procedure's header line, "" if it is none.
Str ProcTypeStrOf(const Str& headerLine);

}  // namespace quillet::source
