// The Constant Builder's OK: the name check, the value as a literal, the line and its place (an
// Enum member at the caret's block), the records, the parent's call-backs, the clipboard and the
// paste.

#include "builders/frm_const.h"
#include "builders/name_answer.h"
#include "core/command_env.h"
#include "core/err_handler.h"
#include "source/code_placing.h"
#include "source/const_values.h"
#include "source/decl_blocks.h"
#include "source/scan_state.h"
#include "source/type_lists.h"

namespace quillet::builders {

namespace {

bool is(const Str& a, const Str& b) { return basic::StrComp(a, b, basic::Compare::Text) == 0; }

constexpr char16_t kMissingValue[] = u"Missing or incorrect value of Constant.";

template <class C>
bool stringConstantIn(const C& collection, const Str& name) {
    auto* found = collection.Find(name);
    return found && basic::Like((*found)->Type_, u"String", basic::Compare::Text);
}

}  // namespace

bool frmConst::isStringConstant(const Str& name) {
    return (ctx_.Scan.ProjectConsts && stringConstantIn(*ctx_.Scan.ProjectConsts, name)) ||
           stringConstantIn(lists_.ModuleConsts, name) || stringConstantIn(lists_.ProcConsts, name);
}

Str frmConst::ValueFormatted() {
    auto& types = Controls(u"cboDataType");
    long found = source::FindInList(types, typeText());
    if (found < 0) return {};
    return source::ConstValueFormat(Controls(u"txtValue").Text(), types.ItemData(found),
                                    [this](const Str& name) { return isStringConstant(name); });
}

void frmConst::BuildCodeLine(Str& rstrText, long lngBlockLine, const Str& vstrValue, Str& rstrLine) {
    Str name = basic::Trim(Controls(u"txtName").Text());
    Str type = typeText();
    if (lngBlockLine >= 1 && is(type, u"Long")) {
        Str value = Controls(u"txtValue").Text();
        rstrText = value.empty() ? name : name + u" = " + value;
        rstrLine = rstrText;
        return;
    }
    Str keyword = u"Const ";
    if (VarLevel() == 0) {
        if (Accessibility() == 1) keyword = u"Public Const ";
        if (Accessibility() == 2) keyword = u"Private Const ";
    }
    Str text = name;
    if (!type.empty()) text += u" As " + type;
    text += u" = " + vstrValue;
    Str description = basic::Trim(Controls(u"txtDescription").Text());
    if (!description.empty()) text += core::codeEnvOf(ctx_).tabSpaces() + u"'" + description;
    rstrText = text;
    rstrLine = keyword + text;
}

bool frmConst::PressOK(bool vfPaste) {
    long blockLine = source::CaretBlockLine(*ctx_.VBInstance, true);
    Str name = basic::Left(basic::Trim(Controls(u"txtName").Text()), 255);
    Str module = basic::Trim(Controls(u"cboModule").Text());
    nameSet(name);
    if (!nameAnswerAccepted(*this, FocusedControl, DeclarationNameCheck(ctx_, name, lists_))) return false;

    Str value = ValueFormatted();
    auto selected = ctx_.VBInstance->SelectedVBComponent();
    bool member = blockLine >= 1 && selected && is(selected->Name(), module) && is(typeText(), u"Long");
    if (!member) {
        blockLine = 0;
        if (value.empty()) {
            ctx_.Platform().MsgBox(kMissingValue, 48, source::kProductTitle);
            FocusedControl = u"txtValue";
            return false;
        }
    }
    Str text, line;
    BuildCodeLine(text, blockLine, value, line);

    auto pane = ctx_.VBInstance->ActiveCodePane();
    if (!pane) return false;
    auto env = core::codeEnvOf(ctx_);
    long level = VarLevel();
    if (level == 0 && !member && !module.empty() && !source::componentNamed(*ctx_.VBInstance, module)) {
        module = source::TargetModuleResolve(env, module);
        if (module.empty()) return false;
    }
    // The name goes to the caret before the line goes in, while the selection still stands.
    pasteName(name, vfPaste);
    CaretMark mark = CaretMarkGet(*pane);
    if (!source::VarConstCodeAdd(env, line, module, level == 0, false, name, blockLine, false)) return false;
    CaretFollow(*pane, mark);
    recordsAndParent(name, text, module);
    if (!name.empty()) {
        ctx_.Platform().ClipboardClear();
        ctx_.Platform().ClipboardSetText(name);
    }
    return true;
}

// OK & Paste puts the name at the caret inside a procedure; otherwise a picked-up name replaces
// only the selection it came from.
void frmConst::pasteName(const Str& name, bool vfPaste) {
    if (ParentForm || (pickedUpName_.empty() && !vfPaste)) return;
    pasteAtCursor_ = vfPaste && inProcedure_;
    auto pane = ctx_.VBInstance->ActiveCodePane();
    long startLine = 0, startCol = 0, endLine = 0, endCol = 0;
    pane->GetSelection(startLine, startCol, endLine, endCol);
    bool selection = startLine != endLine || startCol != endCol;
    if (pasteAtCursor_ || selection) {
        auto env = core::codeEnvOf(ctx_);
        source::InstanceAdd(env, pane, name);
    }
    pasteAtCursor_ = false;
}

void frmConst::recordsAndParent(const Str& name, const Str& text, const Str& module) {
    auto constant = std::make_shared<source::clsConstant>();
    constant->init(text);
    if (constant->Name.empty()) constant->Name = name;
    auto target = source::componentNamed(*ctx_.VBInstance, module);
    if (Accessibility() == 1 && target && target->Type() == host::vbext_ct_StdModule) {
        constant->ModuleName = target->Name();
        if (!ctx_.Scan.ProjectConsts) ctx_.Scan.ProjectConsts = source::newCollection<source::clsConstant>();
        source::addFirstWins(*ctx_.Scan.ProjectConsts, constant, constant->Name);
    } else if (ParentForm && ParentForm->HasMember(u"AddNewConst")) {
        ParentForm->CallByName(u"AddNewConst", {basic::Variant(constant->Name), basic::Variant(VarLevel() == 0)});
    }
    if (ParentForm && ParentForm->HasMember(u"ArgInsert"))
        ParentForm->CallByName(u"ArgInsert", {basic::Variant(constant->Name)});
}

void OpenConstantBuilder(core::Context& ctx, const std::vector<Str>& args) {
    core::guarded(ctx, u"frmConst.Open", [&] {
        core::ProjectRefresh(ctx);
        dialogs::Form* caller = ctx.Forms->Top();
        auto& form = ctx.Forms->Adopt(std::make_unique<frmConst>(ctx));
        if (caller && caller->HasMember(u"AddNewConst")) form.ParentForm = caller;
        form.Init(args.empty() ? Str() : args[0], false, {}, {});
        form.Show(ctx.ShowMode);
    });
}

}  // namespace quillet::builders
