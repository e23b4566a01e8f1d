#include "tools/tools_install.h"

#include "tools/comment_lines.h"
#include "tools/line_numbers.h"

namespace quillet::tools {

void ToolsInstall(core::Context& ctx) {
    auto& routines = ctx.routines;
    routines[u"LineNumbersAdd"] = [](core::Context& c, const basic::Str&) {
        long base = 0;
        ReplaceLines(c, base);
    };
    routines[u"LineNumbersRemove"] = [](core::Context& c, const basic::Str&) { UnReplaceLines(c); };
    routines[u"Comment Lines Add"] = [](core::Context& c, const basic::Str&) { CommentLinesAdd(c); };
    routines[u"Comment Lines Remove"] = [](core::Context& c, const basic::Str&) { CommentLinesRemove(c); };
}

}  // namespace quillet::tools
