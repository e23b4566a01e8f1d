// The Variable Builder's OK: the checks, the declaration line and its place, the argument added
// to the procedure's header, the object statements, the records, the parent's call-backs, the
// clipboard and the paste.

#include "core/err_handler.h"
#include "core/command_env.h"
#include "builders/frm_var.h"
#include "builders/name_answer.h"
#include "fragments/set_cursor.h"
#include "settings/ini_vars.h"
#include "source/code_placing.h"
#include "source/decl_blocks.h"
#include "source/literals.h"
#include "source/name_checks.h"
#include "source/signature_edit.h"
#include "source/type_lists.h"

namespace quillet::builders {

namespace {

bool is(const Str& a, const Str& b) { return basic::StrComp(a, b, basic::Compare::Text) == 0; }

long number(const Str& text) {
    long value = 0;
    for (char16_t c : text) {
        if (c < u'0' || c > u'9') break;
        value = value * 10 + (c - u'0');
    }
    return value;
}

}  // namespace

void frmVar::BuildCodeLine(Str& rstrText, Str& rstrLine) {
    Str keyword;
    if (VarLevel() != 0)
        keyword = IsStatic() ? u"Static " : u"Dim ";
    else
        keyword = Accessibility() == 1 ? u"Public " : Accessibility() == 2 ? u"Private " : u"Dim ";
    Str text = basic::Trim(Controls(u"txtName").Text());
    if (isChecked(u"chkArray")) text += u"(" + Controls(u"txtDimensions").Text() + u")";
    Str type = typeText();
    if (!type.empty()) text += u" As " + type;
    Str length = basic::Trim(Controls(u"txtLength").Text());
    if (!length.empty()) text += u" * " + length;
    Str description = basic::Trim(Controls(u"txtDescription").Text());
    if (!description.empty()) text += core::codeEnvOf(ctx_).tabSpaces() + u"'" + description;
    rstrText = text;
    rstrLine = keyword + text;
}

bool frmVar::PressOK(bool vfPaste) {
    Str name = basic::Trim(Controls(u"txtName").Text());
    Str module = basic::Trim(Controls(u"cboModule").Text());
    // An argument may not take the name of another argument of its procedure.
    source::NameLookups extra;
    if (VarLevel() == 2 && procDef_) extra.push_back(source::lookupIn(procDef_->ProcArguments->Items));
    long answer = DeclarationNameCheck(ctx_, name, lists_, std::move(extra));
    if (!nameAnswerAccepted(*this, FocusedControl, answer)) return false;

    auto env = core::codeEnvOf(ctx_);
    auto pane = ctx_.VBInstance->ActiveCodePane();
    if (!pane) return false;
    long level = VarLevel();
    Str text, line;
    long blockLine = 0;
    if (level != 2) {
        BuildCodeLine(text, line);
        auto selected = ctx_.VBInstance->SelectedVBComponent();
        if (selected && is(selected->Name(), module)) blockLine = source::CaretBlockLine(*ctx_.VBInstance, false);
        if (blockLine > 0) line = text;
        if (level == 1 && blockLine == 0 && !place_.inProcedure) return false;
        if (level == 0 && blockLine == 0 && !module.empty() && !source::componentNamed(*ctx_.VBInstance, module)) {
            module = source::TargetModuleResolve(env, module);
            if (module.empty()) return false;
        }
    } else if (!procDef_) {
        return false;
    }

    // The name goes to the caret before any line goes in, while the selection still stands.
    long startLine = 0, startCol = 0, endLine = 0, endCol = 0;
    pane->GetSelection(startLine, startCol, endLine, endCol);
    bool selection = startLine != endLine || startCol != endCol;
    if (insertInstance_)
        source::InstanceAdd(env, pane, name + u" ");
    else if (vfPaste)
        source::InstanceAdd(env, pane, name);
    else if (!ParentForm && !pickedUpName_.empty() && selection)
        source::InstanceAdd(env, pane, name);
    CaretMark mark = CaretMarkGet(*pane);

    if (level == 2) {
        ArgumentAdd(name);
        CaretFollow(*pane, mark);
    } else {
        if (!source::VarConstCodeAdd(env, line, module, level == 0, true, name, blockLine, false)) return false;
        CaretFollow(*pane, mark);
        if (blockLine == 0) recordsAndParent(name, module);
        ObjectStatementsAdd(name);
    }
    if (!name.empty()) {
        ctx_.Platform().ClipboardClear();
        ctx_.Platform().ClipboardSetText(name);
    }
    return true;
}

void frmVar::recordsAndParent(const Str& name, const Str& module) {
    Str type = typeText();
    auto variable = std::make_shared<source::clsVariable>();
    Str definition = name;
    if (isChecked(u"chkArray")) definition += u"(" + Controls(u"txtDimensions").Text() + u")";
    if (!type.empty()) definition += u" As " + type;
    variable->init(definition);
    if (variable->Name.empty()) variable->Name = name;
    auto target = source::componentNamed(*ctx_.VBInstance, module);
    if (!target) {
        if (auto pane = ctx_.VBInstance->ActiveCodePane()) target = pane->CodeModule()->Parent();
    }
    bool fromList = ParentForm && basic::Like(ParentForm->Name(), u"frmSelectFromList", basic::Compare::Text);
    if (Accessibility() == 1 && target && target->Type() == host::vbext_ct_StdModule) {
        variable->ModuleName = target->Name();
        if (!ctx_.Scan.ProjectVars) ctx_.Scan.ProjectVars = source::newCollection<source::clsVariable>();
        source::addFirstWins(*ctx_.Scan.ProjectVars, variable, variable->Name);
    } else if (ParentForm && !fromList && ParentForm->HasMember(u"AddNewVar")) {
        ParentForm->CallByName(u"AddNewVar", {basic::Variant(variable->Name), basic::Variant(type),
                                              basic::Variant(VarLevel() == 0)});
    }
    if (!ParentForm) return;
    long found = source::FindInList(Controls(u"cboDataType"), type);
    if (fromList && found >= 0 && ParentForm->HasMember(u"NewVariable"))
        ParentForm->CallByName(u"NewVariable", {basic::Variant(name), basic::Variant(Controls(u"cboDataType").ItemData(found))});
    else if (ParentForm->HasMember(u"ArgInsert"))
        ParentForm->CallByName(u"ArgInsert", {basic::Variant(name), basic::Variant(type)});
}

void frmVar::ObjectStatementsAdd(const Str& name) {
    bool fNew = isChecked(u"chkNew"), fWith = isChecked(u"chkWith"), fNothing = isChecked(u"chkNothing");
    if (!fNew && !fWith && !fNothing) return;
    auto pane = ctx_.VBInstance->ActiveCodePane();
    if (!pane) return;
    auto module = pane->CodeModule();
    source::clsScanProc scan(ctx_.scanEnv());
    scan.init(false);
    if (scan.ProcName().empty()) return;
    Str indent = core::codeEnvOf(ctx_).tabSpaces();
    long start = number(scan.ProcDeclAreaLineCount()) > 0
                     ? number(scan.ProcDeclAreaEndLine()) + 1
                     : scan.ProcRealStartLine() + number(scan.ProcDefLineCount());
    long added = 0;
    if (fNew) {
        module->InsertLines(start, indent + u"Set " + name + u" = New " + typeText());
        ++added;
    }
    long withLine = 0;
    if (fWith) {
        withLine = start + added;
        module->InsertLines(withLine, indent + u"With " + name + u"\r\n" + indent + indent + u"<cursor>\r\n" + indent +
                                          u"End With");
        added += 3;
    }
    if (fNothing) module->InsertLines(scan.ProcExitLine() + added, indent + u"Set " + name + u" = Nothing");
    if (withLine > 0) fragments::SetCursor(ctx_, withLine, false, pane);
}

void frmVar::ArgumentAdd(const Str& name) {
    auto pane = ctx_.VBInstance->ActiveCodePane();
    if (!pane || !procDef_) return;
    auto module = pane->CodeModule();
    long kind = place_.procKind;
    long body = module->ProcBodyLine(place_.procName, kind);
    long count = module->CountOfLines();
    long last = body;
    auto continued = [](const Str& text) {
        Str trimmed = basic::Trim(text);
        return !trimmed.empty() && trimmed.back() == u'_';
    };
    while (last < count && continued(module->Lines(last, 1))) ++last;
    Str definition = module->Lines(body, last - body + 1);

    source::clsArgument argument;
    Str type = typeText();
    argument.Name = name;
    argument.ValueType = type;
    argument.IsArray = isChecked(u"chkArray");
    argument.IsByVal = isChecked(u"chkByVal");
    argument.IsOptional = isChecked(u"chkOptional");
    argument.IsParamArray = isChecked(u"chkParamArray");
    Str value = basic::Trim(Controls(u"txtDefault").Text());
    if (argument.IsOptional && !value.empty()) argument.DefaultValue = source::QuoteValue(value, type);
    Str text = argument.ArgumentString();

    long before = Controls(u"cboArgument").ListIndex();
    bool newLine = settings::IniBool(*ctx_.IniSettings, settings::iiEachArgumentOnANewLine);
    auto changed = source::SignatureArgumentInsert(definition, text, before > 0 ? before : 0, newLine);
    if (!changed) return;
    module->DeleteLines(body, last - body + 1);
    module->InsertLines(body, *changed);
    long lines = static_cast<long>(basic::Split(*changed, u"\r\n").size());
    Str description = basic::Trim(Controls(u"txtDescription").Text());
    if (!description.empty()) module->InsertLines(body + lines, u"'" + name + u": " + description);

    auto record = std::make_shared<source::C4_ProcArgument>();
    record->init(text);
    procDef_->ProcArguments->Add(record);
}

void OpenVariableBuilder(core::Context& ctx, const std::vector<Str>& args) {
    core::guarded(ctx, u"frmVar.Open", [&] {
        core::ProjectRefresh(ctx);
        auto& form = ctx.Forms->Adopt(std::make_unique<frmVar>(ctx));
        bool forWith = !args.empty() && is(args[0], u"with");
        bool instance = !args.empty() && is(args[0], u"instance");
        form.Init(u"", false, forWith, instance);
        form.Show(ctx.ShowMode);
    });
}

}  // namespace quillet::builders
