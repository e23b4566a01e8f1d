#include "builders/declaration_context.h"

#include "source/code_env.h"
#include "source/current_proc.h"
#include "source/scan_module.h"
#include "source/scan_proc.h"

namespace quillet::builders {

namespace {

bool is(const Str& a, const Str& b) { return basic::StrComp(a, b, basic::Compare::Text) == 0; }

template <class C>
source::NameLookup lookupInPtr(const C& collection) {
    return [&collection](const Str& key) { return collection && collection->Exists(key); };
}

}  // namespace

CaretPlace CaretPlaceGet(host::VBE& vbe) {
    CaretPlace place;
    auto pane = vbe.ActiveCodePane();
    if (!pane) return place;
    long line = 0, col = 0, endLine = 0, endCol = 0;
    pane->GetSelection(line, col, endLine, endCol);
    auto module = pane->CodeModule();
    long count = module->CountOfLines();
    if (line < 1 || line > count) return place;
    Str name = module->ProcOfLine(line, place.procKind);
    if (name.empty()) return place;
    const source::ProcSpan span = source::ProcSpanOf(*module, name, place.procKind, count);
    if (line < span.bodyLine || line > span.lastLine) return place;
    place.procName = name;
    place.bodyLine = span.bodyLine;
    place.headerEnd = span.headerEnd;
    place.inProcedure = true;
    place.inHeader = line <= span.headerEnd;
    return place;
}

bool DeclarationListsRead(core::Context& ctx, dialogs::Form* parent, const CaretPlace& place, DeclarationLists& lists) {
    if (auto* owner = dynamic_cast<DeclarationOwner*>(parent)) {
        lists.ModuleVars = owner->ModuleVars();
        lists.ModuleConsts = owner->ModuleConsts();
        lists.ProcVars = owner->ProcVars();
        lists.ProcConsts = owner->ProcConsts();
        lists.ModuleProcs = owner->ModuleProcs();
        return true;
    }
    source::clsScanModule module(ctx.scanEnv());
    module.init(u"");
    lists.ModuleVars = std::move(module.ModuleVars);
    lists.ModuleConsts = std::move(module.ModuleConsts);
    lists.ModuleEnums = std::move(module.ModuleEnums);
    lists.ModuleTypes = std::move(module.ModuleTypes);
    lists.ModuleProcs = std::move(module.ModuleProcs);
    if (place.inProcedure) {
        source::clsScanProc proc(ctx.scanEnv());
        proc.init(false);
        lists.ProcVars = std::move(proc.ProcVars);
        lists.ProcConsts = std::move(proc.ProcConsts);
    }
    return false;
}

long DeclarationNameCheck(core::Context& ctx, const Str& name, const DeclarationLists& lists, source::NameLookups extra) {
    source::NameCheckEnv check{*ctx.VBInstance, ctx.Platform(), ctx.Keywords};
    source::NameLookups lookups = {lookupInPtr(ctx.Scan.ProjectProcs),  lookupInPtr(ctx.Scan.ProjectVars),
                                   lookupInPtr(ctx.Scan.ProjectConsts), source::lookupIn(lists.ModuleProcs),
                                   source::lookupIn(lists.ModuleVars),  source::lookupIn(lists.ModuleConsts),
                                   source::lookupIn(lists.ProcVars),    source::lookupIn(lists.ProcConsts)};
    for (auto& lookup : extra) lookups.push_back(std::move(lookup));
    return source::CheckNewNameIsOK(check, name, false, false, lookups);
}

long EntryWithData(const dialogs::Control& list, long data) {
    for (long i = 0; i < list.ListCount(); ++i)
        if (list.ItemData(i) == data) return i;
    return -1;
}

bool HostHasObjectNames(core::Context& ctx) {
    return is(ctx.HostName, u"Excel") || is(ctx.HostName, u"Word") || is(ctx.HostName, u"Access");
}

void ObjectNameOpen(core::Context& ctx, const std::vector<Str>& args) {
    if (ctx.Forms->IsRegistered(u"frmObjectName")) {
        ctx.Forms->Open(u"frmObjectName", args);
        return;
    }
    ctx.Platform().MsgBox(u"The Object Name dialog is not available yet.", 48, source::kProductTitle);
}

void AddObjectNameButton(dialogs::Form& form) {
    auto& button = form.AddControl(u"cmdObjectName", dialogs::ControlKind::CommandButton);
    button.Caption = u"...";
    button.ToolTipText = u"Open Object Name Dialog";
}

void AddOkPasteButtons(dialogs::Form& form) {
    using dialogs::ControlKind;
    form.AddControl(u"cmdOK", ControlKind::CommandButton).Caption = u"OK";
    form.AddControl(u"cmdOKAndPaste", ControlKind::CommandButton).Caption = u"OK && &Paste";
    form.AddControl(u"cmdCancel", ControlKind::CommandButton).Caption = u"Cancel";
    form.AddControl(u"cmdHelp", ControlKind::CommandButton).Caption = u"&Help";
}

void NameSelectedOnFirstShow(dialogs::Form& form, bool& firstShow) {
    if (!firstShow) return;
    firstShow = false;
    auto& name = form.Controls(u"txtName");
    name.SelStart = 0;
    name.SelLength = basic::Len(name.Text());
    form.FocusedControl = u"txtName";
}

CaretMark CaretMarkGet(host::CodePane& pane) {
    CaretMark mark;
    long endLine = 0, endCol = 0;
    pane.GetSelection(mark.line, mark.col, endLine, endCol);
    auto module = pane.CodeModule();
    mark.count = module->CountOfLines();
    if (mark.line >= 1 && mark.line <= mark.count) mark.text = module->Lines(mark.line, 1);
    return mark;
}

void CaretFollow(host::CodePane& pane, const CaretMark& mark) {
    auto module = pane.CodeModule();
    long grown = module->CountOfLines() - mark.count;
    for (long line = mark.line; line <= mark.line + grown && line <= module->CountOfLines(); ++line) {
        if (module->Lines(line, 1) != mark.text) continue;
        pane.SetSelection(line, mark.col, line, mark.col);
        return;
    }
}

}  // namespace quillet::builders
