#pragma once
// Texts with markers put round a procedure: a fragment spread over the procedure at the caret, and
// a generator's template merged with the text of a procedure not yet in a module.
//
// A marker that stands at the end of its line takes that line break with it, so that a marker on
// a line of its own leaves no blank line behind.

#include "core/context.h"
#include "source/scan_proc.h"

namespace quillet::fragments {

using basic::Str;

inline constexpr char16_t kCursorMarker[] = u"<cursor>";
inline constexpr char16_t kEndOfTopMarker[] = u"<end_of_top>";
inline constexpr char16_t kBeginOfBottomMarker[] = u"<begin_of_bottom>";
inline constexpr char16_t kBeforeHandleExitLabelMarker[] = u"<BeforeHandleExitLabel>";

// Spreads `text` over the procedure at the caret, which `scan` reads afresh: what stands before
// <end_of_top> goes behind the declaration area, what stands behind <begin_of_bottom> in front of
// the exit section (the exit label above the last "Exit <type>", else that line, else the End
// line), the rest at the caret (over a blank line, below a line of code when it has several
// lines, into the line at the caret when it is one line). Then the <cursor> markers go and the
// caret takes the last one's place. `text` keeps what was left of it at the caret.
void FragmentToProcedureAdd(core::Context& ctx, Str& text, source::clsScanProc& scan);

// Merges the template `text` into `body`, the text of a whole procedure (lines ended by CRLF):
// what stands before <begin_of_bottom> goes behind the declaration area (the "On Error" line
// included), what stands behind it in front of the exit section. <BeforeHandleExitLabel> puts what
// follows it in front of the exit label (the setting ExitHandler) when the body has one, else it
// works as <begin_of_bottom>. <end_of_top> is dropped. An empty template or body changes nothing.
void FragmentToTextOfProcedureAdd(core::Context& ctx, Str& text, Str& body, const Str& procType);

}  // namespace quillet::fragments
