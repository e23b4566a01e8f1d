// A property's declaration and procedures into its module.

#include "core/err_handler.h"
#include "basic/strings.h"
#include "generators/cls_property.h"
#include "source/current_proc.h"

namespace quillet::generators {

namespace {

constexpr char16_t kCrLf[] = u"\r\n";

// The last line of the procedure at the caret, when the active pane shows `module` and its caret
// stands in a procedure; 0 otherwise.
long procedureAtCaretEnd(core::Context& ctx, const Str& module) {
    auto pane = ctx.VBInstance->ActiveCodePane();
    if (!pane || basic::StrComp(pane->CodeModule()->Parent()->Name(), module, basic::Compare::Text) != 0) return 0;
    Str name;
    long bodyLine = 0, lastLine = 0, kind = 0;
    if (!source::CurrentProcGet(*ctx.VBInstance, true, name, bodyLine, lastLine, kind)) return 0;
    return lastLine;
}

Str withoutLastBreak(const Str& code) {
    return basic::Right(code, 2) == kCrLf ? basic::Left(code, basic::Len(code) - 2) : code;
}

// The code (which ends in a blank line) as it is inserted before `line`: one blank line parts it
// from a line of code that follows; a blank line there, or the module's end, stands in for its own.
Str codeBefore(host::CodeModule& m, long line, const Str& code) {
    Str text = withoutLastBreak(code);
    bool blankFollows = line > m.CountOfLines() || basic::Trim(m.Lines(line, 1)).empty();
    return blankFollows ? withoutLastBreak(text) : text;
}

}  // namespace

bool BuildPropCodeLines(core::Context& ctx, clsProperty& rProperty, bool blnToEndOfModule) {
    bool inserted = false;
    core::guarded(ctx, u"clsProperty.BuildPropCodeLines", [&] {
        auto m = ctx.VBInstance->ActiveVBProject()->VBComponents()->Item(rProperty.ModuleName)->CodeModule();
        Str declaration = rProperty.Declaration();
        Str code;
        rProperty.PropertyProceduresCodeCreate(rProperty.GetPart, rProperty.SetPart, code);
        if (blnToEndOfModule) {
            m->InsertLines(m->CountOfDeclarationLines() + 1, declaration);
            long last = m->CountOfLines();
            // A blank line parts the property from a procedure that ends the module.
            bool blank = last == 0 || basic::Trim(m->Lines(last, 1)).empty();
            m->InsertLines(last + 1, (blank ? Str() : Str(kCrLf)) + codeBefore(*m, last + 1, code));
            inserted = true;
            return;
        }
        long procedureEnd = procedureAtCaretEnd(ctx, rProperty.ModuleName);
        long declarations = m->CountOfDeclarationLines();
        if (procedureEnd == 0) {
            m->InsertLines(declarations + 1, declaration + kCrLf + codeBefore(*m, declarations + 1, code));
            inserted = true;
            return;
        }
        m->InsertLines(declarations + 1, declaration);
        // The procedure moved one line down with the declaration.
        m->InsertLines(procedureEnd + 2, kCrLf + codeBefore(*m, procedureEnd + 2, code));
        inserted = true;
    });
    return inserted;
}

}  // namespace quillet::generators
