// The <cursor> marker.

#include "fragments/set_cursor.h"

#include "core/err_handler.h"
#include "basic/strings.h"
#include "fragments/markers.h"

namespace quillet::fragments {

namespace {

// Removes the markers from `line` on; each one found puts the caret there when a pane is given.
long removeMarkers(host::CodeModule& module, long line, host::CodePane* pane) {
    long last = 0;
    const long from = std::max(line, 1L);
    while (from <= module.CountOfLines()) {
        long startLine = from, startCol = 1, endLine = -1, endCol = -1;
        if (!module.Find(kCursorMarker, startLine, startCol, endLine, endCol, false, false, false)) break;
        Str text = module.Lines(startLine, 1);
        Str cleaned = basic::Replace(text, kCursorMarker, u"", 1, -1, basic::Compare::Text);
        if (cleaned == text) break;  // a hit the line does not show: nothing more to remove
        module.ReplaceLine(startLine, cleaned);
        if (pane) pane->SetSelection(startLine, startCol, startLine, startCol);
        last = startLine;
    }
    return last;
}

}  // namespace

long SetCursor(core::Context& ctx, long line, bool keepSelection, host::CodePanePtr pane) {
    long last = 0;
    core::guarded(ctx, u"modPlaceholders.SetCursor", [&] {
        if (!pane) pane = ctx.VBInstance->ActiveCodePane();
        if (!pane) return;
        auto module = pane->CodeModule();
        last = removeMarkers(*module, line, keepSelection ? nullptr : pane.get());
    });
    return last;
}

long CursorMarkersRemove(core::Context& ctx, host::CodeModule& module, long line) {
    long last = 0;
    core::guarded(ctx, u"modPlaceholders.SetCursor", [&] { last = removeMarkers(module, line, nullptr); });
    return last;
}

}  // namespace quillet::fragments
