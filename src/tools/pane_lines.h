#pragma once
// What the line tools start from: the active code pane, its module's lines read in one call, and
// the selection; and what they end with: the changed lines written back as one change and the
// selection set again.

#include <optional>
#include <vector>

#include "core/context.h"

namespace quillet::tools {

using basic::Str;

struct PaneLines {
    host::CodePanePtr pane;
    host::CodeModulePtr module;
    long startLine = 0, startCol = 0, endLine = 0, endCol = 0;
    std::vector<Str> lines;  // the whole module; index 0 is line 1

    long count() const { return static_cast<long>(lines.size()); }
    // The selection's last line, not past the module's end.
    long lastLine() const { return std::min(endLine, count()); }
    // Writes lines first..last of `changed` (the whole module, changed) over the module's, as one
    // change; true when something was written.
    bool writeBack(const std::vector<Str>& changed, long first, long last);
    // Puts the selection back, with the columns given.
    void select(long startColumn, long endColumn);
};

// None without an active code pane.
std::optional<PaneLines> readPaneLines(core::Context& ctx);

}  // namespace quillet::tools
