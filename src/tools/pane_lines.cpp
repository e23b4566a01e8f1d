#include "tools/pane_lines.h"

#include "source/module_text.h"
#include "tools/line_range_write.h"

namespace quillet::tools {

std::optional<PaneLines> readPaneLines(core::Context& ctx) {
    PaneLines out;
    out.pane = ctx.VBInstance->ActiveCodePane();
    if (!out.pane) return std::nullopt;
    out.module = out.pane->CodeModule();
    out.pane->GetSelection(out.startLine, out.startCol, out.endLine, out.endCol);
    source::ModuleText text(*out.module);
    out.lines.reserve(static_cast<size_t>(text.CountOfLines()));
    for (long n = 1; n <= text.CountOfLines(); ++n) out.lines.push_back(text.line(n));
    return out;
}

bool PaneLines::writeBack(const std::vector<Str>& changed, long first, long last) {
    if (first < 1 || last < first || last > count()) return false;
    auto from = static_cast<long>(first - 1), to = static_cast<long>(last);
    std::vector<Str> before(lines.begin() + from, lines.begin() + to);
    std::vector<Str> after(changed.begin() + from, changed.begin() + to);
    return ReplaceLineRange(*module, first, before, after);
}

void PaneLines::select(long startColumn, long endColumn) {
    pane->SetSelection(startLine, startColumn, endLine, endColumn);
}

}  // namespace quillet::tools
