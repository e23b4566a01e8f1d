#include "tools/line_numbers.h"

#include "core/err_handler.h"
#include "tools/numbering_text.h"
#include "tools/pane_lines.h"

namespace quillet::tools {

namespace {

NumberingRange selectionRange(const PaneLines& edit) { return {edit.startLine, edit.lastLine(), 0}; }

}  // namespace

void ReplaceLines(core::Context& ctx, long& base) {
    core::guarded(ctx, u"modNumbering.ReplaceLines", [&] {
        auto edit = readPaneLines(ctx);
        if (!edit) return;
        if (base == 0) base = 1000;
        NumberingRange range = selectionRange(*edit);
        if (range.first >= 1 && range.first <= range.last) {
            range.declarationLines = edit->module->CountOfDeclarationLines();
            std::vector<Str> lines = edit->lines;
            RemoveLineNumbers(lines, range);
            AddLineNumbers(lines, range, base);
            edit->writeBack(lines, range.first, range.last);
        }
        edit->select(edit->startCol, edit->endCol);
    });
}

void UnReplaceLines(core::Context& ctx) {
    core::guarded(ctx, u"modNumbering.UnReplaceLines", [&] {
        auto edit = readPaneLines(ctx);
        if (!edit) return;
        NumberingRange range = selectionRange(*edit);
        if (range.first >= 1 && range.first <= range.last) {
            std::vector<Str> lines = edit->lines;
            RemoveLineNumbers(lines, range);
            edit->writeBack(lines, range.first, range.last);
        }
        edit->select(edit->startCol, edit->endCol);
    });
}

}  // namespace quillet::tools
