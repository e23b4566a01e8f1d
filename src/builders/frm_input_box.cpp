#include "builders/frm_input_box.h"

#include "builders/declaration_context.h"
#include "builders/name_answer.h"
#include "core/command_env.h"
#include "core/err_handler.h"
#include "source/code_placing.h"
#include "source/const_values.h"
#include "source/decl_blocks.h"
#include "source/literals.h"
#include "source/prefixes.h"
#include "source/type_lists.h"

namespace quillet::builders {

using dialogs::ControlKind;

namespace {

bool is(const Str& a, const Str& b) { return basic::StrComp(a, b, basic::Compare::Text) == 0; }

Str kindCaption(long kind) {
    switch (kind) {
        case source::KindConstant: return u"Constant";
        case source::KindProperty: return u"Property";
        default: return u"Variable";
    }
}

long kindOfCommand(const Str& command) {
    if (is(command, u"Const")) return source::KindConstant;
    if (is(command, u"Property")) return source::KindProperty;
    return source::KindVariable;
}

// A constant's value: the literal of its type, a number's 0 for no value at all.
Str constantValue(const Str& value, const Str& type) {
    Str literal = source::ConstValueFormat(value, source::VarTypeOf(type));
    return literal.empty() ? source::QuoteValue(value, type) : literal;
}

}  // namespace

frmInputBox::frmInputBox(core::Context& ctx) : Form(u"frmInputBox"), ctx_(ctx) {
    AddControl(u"lblName", ControlKind::Label).Caption = u"&Name:";
    AddControl(u"txtName", ControlKind::TextBox);
    AddControl(u"lblValue", ControlKind::Label).Caption = u"&Value:";
    AddControl(u"txtValue", ControlKind::TextBox);
    AddControl(u"cmdOK", ControlKind::CommandButton).Caption = u"OK";
    AddControl(u"cmdCancel", ControlKind::CommandButton).Caption = u"Cancel";
    AddControl(u"cmdHelp", ControlKind::CommandButton).Caption = u"&Help";
    On(u"cmdOK_Click", [this] { core::guarded(ctx_, u"frmInputBox.cmdOK_Click", [this] { PressOK(); }); });
    On(u"cmdCancel_Click", [this] { Unload(); });
    HelpContextID = support::help_topics::ConstantBuilder;
    help_.init(*this, Controls(u"cmdHelp"), -1, support::basHTMLHelp(ctx_));
}

frmInputBox::~frmInputBox() = default;

void frmInputBox::Form_Activate() { NameSelectedOnFirstShow(*this, firstShow_); }

void frmInputBox::Form_Unload() { help_.Terminate(); }

void frmInputBox::Init(long vType, const Str& rstrName, const Str& vstrTypeName, const Str& rstrValue) {
    kind_ = vType;
    typeName_ = basic::Trim(vstrTypeName);
    Caption = kindCaption(kind_) + (typeName_.empty() ? Str() : u" (" + typeName_ + u")");
    tall_ = kind_ == source::KindConstant;
    Controls(u"lblValue").Enabled = tall_;
    Controls(u"txtValue").Enabled = tall_;
    Controls(u"txtValue").Text(u"");
    if (tall_ && !rstrValue.empty() && (typeName_.empty() || source::ValueConvertsTo(rstrValue, typeName_)))
        Controls(u"txtValue").Text(rstrValue);
    Str name = rstrName;
    if (ctx_.Prefixes.Settings.AutoPrefixVariableName > 0 && kind_ != source::KindProperty) {
        long scope = source::ScopeGlobal;
        if (kind_ == source::KindVariable)
            scope = CaretPlaceGet(*ctx_.VBInstance).inProcedure ? source::ScopeNone : source::ScopeModule;
        Str unused;
        name = source::NameWithPrefix(ctx_.Prefixes, name, typeName_, nullptr, scope, kind_ == source::KindConstant,
                                      unused);
    }
    auto& box = Controls(u"txtName");
    box.Text(name);
    box.SelStart = 0;
    box.SelLength = basic::Len(name);
    FocusedControl = u"txtName";
}

bool frmInputBox::PressOK() {
    Str name = basic::Trim(Controls(u"txtName").Text());
    Str value = basic::Trim(Controls(u"txtValue").Text());
    if (!nameAnswerAccepted(*this, FocusedControl, core::NewNameIsOK(ctx_, name, kind_))) return false;
    long kind = kind_;
    Str type = typeName_;
    auto& ctx = ctx_;
    // The dialog goes first: the code is written with the editor's pane in front again.
    Unload();
    VarConstCodeInsert(ctx, name, type, kind, value);
    return true;
}

void VarConstCodeInsert(core::Context& ctx, const Str& name, const Str& type, long kind, const Str& value) {
    core::guarded(ctx, u"basQuillet.VarConstCodeInsert", [&] {
        auto pane = ctx.VBInstance->ActiveCodePane();
        if (!pane) return;
        if (kind == source::KindProperty) {
            core::RoutineRun(ctx, u"frmProperty", type);
            if (auto* form = ctx.Forms->FindOpen(u"frmProperty"))
                ctx.Forms->Raise([&] { form->Controls(u"txtName").Text(name); });
            return;
        }
        Str asType = type.empty() ? Str() : u" As " + type;
        if (kind == source::KindVariable) {
            long block = source::CaretBlockLine(*ctx.VBInstance, false);
            core::AddCodeLine(ctx, (block > 0 ? Str() : Str(u"Dim ")) + name + asType, {}, block);
            return;
        }
        long block = source::CaretBlockLine(*ctx.VBInstance, true);
        if (block > 0 && is(type, u"Long")) {
            core::AddCodeLine(ctx, value.empty() ? name : name + u" = " + value, {}, block);
            return;
        }
        bool inProcedure = CaretPlaceGet(*ctx.VBInstance).inProcedure;
        bool standard = pane->CodeModule()->Parent()->Type() == host::vbext_ct_StdModule;
        Str keyword = standard && !inProcedure ? u"Public Const " : u"Const ";
        core::AddCodeLine(ctx, keyword + name + asType + u" = " + constantValue(value, type));
    });
}

void OpenInputBox(core::Context& ctx, const std::vector<Str>& args) {
    core::guarded(ctx, u"frmInputBox.Open", [&] {
        Str command = args.empty() ? Str(u"Dim") : args[0];
        Str type = args.size() > 1 ? args[1] : Str();
        core::initialize(ctx, command, type);
        long kind = kindOfCommand(command);
        auto& form = ctx.Forms->Adopt(std::make_unique<frmInputBox>(ctx));
        Str word = ctx.Quick.CurrentWord;
        form.Init(kind, word, type, kind == source::KindConstant ? word : Str());
        form.Show(ctx.ShowMode);
    });
}

}  // namespace quillet::builders
