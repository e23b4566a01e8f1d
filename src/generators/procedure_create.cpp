// The procedure model's text into a module, and the caret into its body.

#include "core/caret.h"
#include "core/err_handler.h"
#include "basic/strings.h"
#include "fragments/set_cursor.h"
#include "generators/cls_procedure.h"
#include "source/scan_proc.h"

namespace quillet::generators {

namespace {

// The component of the active pane's module, none without a pane.
host::VBComponentPtr activeComponent(core::Context& ctx) {
    auto pane = ctx.VBInstance->ActiveCodePane();
    return pane ? pane->CodeModule()->Parent() : nullptr;
}

long lineNumber(const Str& decimal) {
    auto value = basic::parseNumber(decimal);
    return value ? static_cast<long>(*value) : 0;
}

}  // namespace

void clsProcedure::Create(const Str& strCode, const host::VBProjectPtr& objVBProject, bool blnToEndOfModule,
                          bool blnSetCursor) {
    core::guarded(*ctx_, u"clsProcedure.Create", [&] {
        if (strCode.empty() || !objVBProject || objVBProject->VBComponents()->Count() == 0) return;
        auto cm = objVBProject->VBComponents()->Item(ModuleName)->CodeModule();
        if (blnToEndOfModule)
            cm->InsertLines(cm->CountOfLines() + 1, strCode);
        else
            cm->AddFromString(strCode);
        if (blnSetCursor) {
            auto active = activeComponent(*ctx_);
            if (!active || !basic::Like(active->Name(), ModuleName, basic::Compare::Text)) {
                fragments::CursorMarkersRemove(*ctx_, *cm, 1);
                return;
            }
            CursorPositionSet(objVBProject);
            fragments::SetCursor(*ctx_, 1, false, cm->CodePane());
        } else {
            fragments::CursorMarkersRemove(*ctx_, *cm, 1);
        }
    });
}

void clsProcedure::CursorPositionSet(const host::VBProjectPtr& objVBProject) {
    core::guarded(*ctx_, u"clsProcedure.CursorPositionSet", [&] {
        if (ProcDefinition_.empty()) return;
        auto cm = objVBProject->VBComponents()->Item(ModuleName)->CodeModule();
        auto active = activeComponent(*ctx_);
        if (!active || cm->Parent()->Name() != active->Name()) return;
        Str first = basic::Trim(basic::Split(ProcDefinition_, u"\r\n")[0]);
        long line = 1, col = 1, endLine = -1, endCol = -1;
        if (!cm->Find(first, line, col, endLine, endCol, false, false, false)) return;
        auto pane = cm->CodePane();
        pane->SetSelection(line, 1, line, 1);
        source::clsScanProc scan(ctx_->scanEnv());
        scan.init(true);
        long n = lineNumber(scan.ProcDeclAreaEndLine());
        for (;;) {
            long kind = 0;
            if (!basic::Like(cm->ProcOfLine(n, kind), scan.ProcName(), basic::Compare::Text) ||
                n >= cm->CountOfLines())
                return;
            if (basic::Trim(cm->Lines(n, 1)).empty()) break;
            ++n;
        }
        Str indent = core::TabSpaces(*ctx_);
        cm->ReplaceLine(n, indent);
        long c = basic::Len(indent) + 1;
        pane->SetSelection(n, c, n, c);
    });
}

}  // namespace quillet::generators
