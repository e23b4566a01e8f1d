#include "tools/comment_lines.h"

#include "core/err_handler.h"
#include "basic/strings.h"
#include "tools/numbering_text.h"
#include "tools/pane_lines.h"

namespace quillet::tools {

namespace {

// The last line the command works on: a selection that ends at column 1 of a later line does not
// take that line.
long lastCountedLine(const PaneLines& edit) {
    long last = edit.endLine;
    if (edit.endCol == 1 && edit.endLine > edit.startLine) --last;
    return std::min(last, edit.count());
}

void focusCodeWindow(const PaneLines& edit) {
    core::ignoringErrors([&] { edit.pane->Window()->SetFocus(); });
}

}  // namespace

void CommentLinesAdd(core::Context& ctx) {
    core::guarded(ctx, u"modNumbering.CommentLinesAdd", [&] {
        auto edit = readPaneLines(ctx);
        if (!edit) return;
        focusCodeWindow(*edit);
        if (edit->count() == 0) {
            edit->module->InsertLines(1, u"'");
        } else {
            long first = std::max(edit->startLine, 1L), last = lastCountedLine(*edit);
            if (last < first) return;
            std::vector<Str> lines = edit->lines;
            for (long n = first; n <= last; ++n) lines[n - 1] = u"'" + lines[n - 1];
            edit->writeBack(lines, first, last);
        }
        auto shifted = [](long col) { return col > 1 ? col + 1 : col; };
        edit->select(shifted(edit->startCol), shifted(edit->endCol));
    });
}

void CommentLinesRemove(core::Context& ctx) {
    core::guarded(ctx, u"modNumbering.CommentLinesRemove", [&] {
        auto edit = readPaneLines(ctx);
        if (!edit) return;
        focusCodeWindow(*edit);
        long first = std::max(edit->startLine, 1L), last = lastCountedLine(*edit);
        if (last < first) return;
        std::vector<Str> lines = edit->lines;
        long startRemoved = 0, endRemoved = 0;
        for (long n = first; n <= last; ++n) {
            long removedAt = 0;
            lines[n - 1] = UncommentedLine(lines[n - 1], removedAt);
            if (n == edit->startLine) startRemoved = removedAt;
            if (n == edit->endLine) endRemoved = removedAt;
        }
        if (!edit->writeBack(lines, first, last)) return;
        // A column behind the apostrophe that went moves back with the text.
        auto shifted = [](long col, long removedAt) { return removedAt > 0 && col > removedAt ? col - 1 : col; };
        edit->select(shifted(edit->startCol, startRemoved), shifted(edit->endCol, endRemoved));
    });
}

}  // namespace quillet::tools
