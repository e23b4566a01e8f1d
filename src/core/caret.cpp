#include "core/caret.h"

#include "basic/strings.h"
#include "platform/platform.h"
#include "source/current_proc.h"

namespace quillet::core {

using basic::Len;
using basic::Trim;

namespace {

long leadingBlanks(const Str& text) {
    long n = 0;
    while (n < Len(text) && text[n] == u' ') ++n;
    return n;
}

host::CodePanePtr activePane(Context& ctx) {
    auto pane = ctx.VBInstance->ActiveCodePane();
    if (!pane) throw basic::VbError::standard(basic::err::ObjectNotSet);
    return pane;
}

Str lineOf(host::CodeModule& module, long line) {
    return line >= 1 && line <= module.CountOfLines() ? module.Lines(line, 1) : Str();
}

}  // namespace

bool IsCodeContext(Context& ctx) {
    if (!ctx.VBInstance || ctx.VBInstance->VBProjects()->Count() == 0) return false;
    auto window = ctx.VBInstance->ActiveWindow();
    return window && window->Type() == host::vbext_wt_CodeWindow;
}

Str TabSpaces(Context& ctx) { return basic::Space(platform::editorTabWidth(ctx.Platform())); }

Str CurrentLineGet(Context& ctx, long& line, long& col, bool blnEnd) {
    auto pane = activePane(ctx);
    long startLine = 0, startCol = 0, endLine = 0, endCol = 0;
    pane->GetSelection(startLine, startCol, endLine, endCol);
    line = blnEnd ? endLine : startLine;
    col = blnEnd ? endCol : startCol;
    return lineOf(*pane->CodeModule(), line);
}

long LineIndentGet(Context& ctx, long line) {
    auto module = activePane(ctx)->CodeModule();
    for (long n = std::min(line, module->CountOfLines()); n >= 1; --n) {
        Str text = module->Lines(n, 1);
        if (!Trim(text).empty()) return leadingBlanks(text);
    }
    return 0;
}

long CursorIndentGet(Context& ctx) {
    long line = 0, col = 0;
    Str text = CurrentLineGet(ctx, line, col, false);
    long indent = LineIndentGet(ctx, line);
    if (Trim(text).empty() && col > 1) indent = col - 1;
    if (indent == 0) {
        Str name;
        long body = 0, last = 0, kind = 0;
        if (source::CurrentProcGet(*ctx.VBInstance, true, name, body, last, kind)) indent = Len(TabSpaces(ctx));
    }
    return indent;
}

void writeAtLine(host::CodeModule& module, long line, const Str& text, bool replace) {
    long count = module.CountOfLines();
    if (line <= count) {
        if (replace)
            module.ReplaceLine(line, text);
        else
            module.InsertLines(line, text);
        return;
    }
    // The line does not exist yet: blank lines up to it, then the text, in one call.
    Str padded;
    for (long n = count + 1; n < line; ++n) padded += u"\r\n";
    module.InsertLines(count + 1, padded + text);
}

void LineReplace(Context& ctx, const Str& text, long col) {
    auto pane = activePane(ctx);
    auto module = pane->CodeModule();
    long line = 0, caretCol = 0;
    Str current = CurrentLineGet(ctx, line, caretCol, false);
    bool blank = Trim(current).empty();
    long target = blank ? line : line + 1;
    writeAtLine(*module, target, text, blank);
    if (col > 0) pane->SetSelection(target, col, target, col);
}

}  // namespace quillet::core
