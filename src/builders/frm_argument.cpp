#include "builders/frm_argument.h"

#include "core/err_handler.h"
#include "core/command_env.h"
#include "builders/name_answer.h"
#include "source/literals.h"
#include "source/name_checks.h"
#include "source/prefixes.h"
#include "source/type_lists.h"
#include "support/cls_combo_expand.h"

namespace quillet::builders {

using dialogs::ControlKind;

namespace {

constexpr char16_t kNewConstant[] = u"<New Constant>";

bool is(const Str& a, const Str& b) { return basic::StrComp(a, b, basic::Compare::Text) == 0; }

// The types whose constants are offered by their Type_; an empty filter offers every constant.
bool filtersByConstantType(const Str& type) {
    for (const char16_t* name : {u"Byte", u"Boolean", u"Integer", u"Long", u"Currency", u"Single", u"Double",
                                 u"Decimal", u"Date", u"String"})
        if (is(type, name)) return true;
    return false;
}

bool offersAnyConstant(const Str& type) { return type.empty() || is(type, u"Variant") || is(type, source::kNone); }

}  // namespace

frmArgument::frmArgument(core::Context& ctx) : Form(u"frmArgument"), ctx_(ctx) {
    Caption = u"Argument Builder";
    addControls();
    hookEvents();
    HelpContextID = support::help_topics::ArgumentBuilder;
    help_.init(*this, Controls(u"cmdHelp"), -1, support::basHTMLHelp(ctx_));
}

void frmArgument::Form_Unload() { help_.Terminate(); }

void frmArgument::addControls() {
    AddControl(u"txtName", ControlKind::TextBox);
    AddControl(u"cboDataType", ControlKind::ComboBox);
    AddControl(u"chkOptional", ControlKind::CheckBox).Caption = u"&Optional";
    AddControl(u"chkArray", ControlKind::CheckBox).Caption = u"&Array";
    AddControl(u"chkParamArray", ControlKind::CheckBox).Caption = u"&ParamArray";
    auto pair = AddControlArray(u"optByVal", ControlKind::OptionButton, 2);
    pair[0]->Caption = u"By&Val";
    pair[1]->Caption = u"By&Ref";
    pair[1]->Value(1);
    AddControl(u"lblDefaultValue", ControlKind::Label).Caption = u"&Default value:";
    AddControl(u"cboDefaultValue", ControlKind::ComboBox);
    AddControl(u"cmdOK", ControlKind::CommandButton).Caption = u"OK";
    AddControl(u"cmdOKAndNew", ControlKind::CommandButton).Caption = u"OK && &New";
    AddControl(u"cmdCancel", ControlKind::CommandButton).Caption = u"Cancel";
    AddControl(u"cmdHelp", ControlKind::CommandButton).Caption = u"&Help";
    Controls(u"cboDefaultValue").Enabled = false;
    Controls(u"lblDefaultValue").Enabled = false;
}

void frmArgument::hookEvents() {
    On(u"chkArray_Click", [this] { guard(u"chkArray_Click", [this] { chkArray_Click(); }); });
    On(u"chkOptional_Click", [this] { guard(u"chkOptional_Click", [this] { chkOptional_Click(); }); });
    On(u"chkParamArray_Click", [this] { guard(u"chkParamArray_Click", [this] { chkParamArray_Click(); }); });
    On(u"txtName_Change", [this] { guard(u"txtName_Change", [this] { txtName_Change(); }); });
    On(u"cboDataType_Click", [this] {
        guard(u"cboDataType_Click", [this] {
            DefaultValuesList();
            NameUpdate();
        });
    });
    On(u"cboDataType_Change", [this] { guard(u"cboDataType_Change", [this] { DefaultValuesList(); }); });
    OnIndexed(u"optByVal_Click", [this](int) { guard(u"optByVal_Click", [this] { NameUpdate(); }); });
    On(u"cboDefaultValue_Click", [this] { guard(u"cboDefaultValue_Click", [this] { cboDefaultValue_Click(); }); });
    On(u"cmdOK_Click", [this] {
        guard(u"cmdOK_Click", [this] {
            if (!PressOK()) return;
            ResetControls();
            Hide();
        });
    });
    On(u"cmdOKAndNew_Click", [this] {
        guard(u"cmdOKAndNew_Click", [this] {
            if (PressOK()) ResetControls();
        });
    });
    On(u"cmdCancel_Click", [this] { Hide(); });
    // The Constant Builder reports a new constant by name: it becomes the default value.
    auto takeDefault = [this](const basic::Args& args) {
        Controls(u"cboDefaultValue").Text(basic::CStr(args.at(0)));
        return basic::Variant{};
    };
    Method(u"ArgInsert", takeDefault);
    Method(u"AddNewConst", takeDefault);
    // Type-ahead in the list of types.
    support::clsComboExpand::init(*this, Controls(u"cboDataType"));
}

void frmArgument::guard(const Str& method, const std::function<void()>& statement) {
    core::guarded(ctx_, u"frmArgument." + method, statement);
}

ProcedureOwner& frmArgument::owner() {
    auto* parent = dynamic_cast<ProcedureOwner*>(ParentForm);
    if (!parent) throw basic::VbError::standard(91);
    return *parent;
}

bool frmArgument::chkByVal() { return Controls(u"optByVal(0)").Value() == 1; }

void frmArgument::chkByVal(bool value) { Controls(value ? u"optByVal(0)" : u"optByVal(1)").Value(1); }

void frmArgument::chkByVal_Enabled(bool enabled) {
    Controls(u"optByVal(0)").Enabled = enabled;
    Controls(u"optByVal(1)").Enabled = enabled;
}

void frmArgument::Form_Load() {
    guard(u"Form_Load", [this] {
        InitVariables();
        DefaultValuesList();
        NameUpdate();
    });
}

void frmArgument::Form_Activate() {
    FocusedControl = u"txtName";
    guard(u"Form_Activate", [this] { ArgumentFlagsCheck(); });
}

void frmArgument::InitVariables() {
    scanModule_ = std::make_shared<source::clsScanModule>(ctx_.scanEnv());
    scanModule_->init(u"");
    scanProc_ = std::make_shared<source::clsScanProc>(ctx_.scanEnv());
    scanProc_->init(false);
}

void frmArgument::chkArray_Click() {
    auto& optional = Controls(u"chkOptional");
    auto& paramArray = Controls(u"chkParamArray");
    bool ticked = Controls(u"chkArray").Value() == dialogs::vbChecked;
    if (ticked) {
        chkByVal(false);
        optional.Value(0);
        paramArray.Value(0);
    }
    chkByVal_Enabled(!ticked);
    optional.Enabled = !ticked;
    paramArray.Enabled = !ticked;
    bool defaults = !ticked && optional.Value() == dialogs::vbChecked;
    Controls(u"cboDefaultValue").Enabled = defaults;
    Controls(u"lblDefaultValue").Enabled = defaults;
    ArgumentFlagsCheck();
}

void frmArgument::chkOptional_Click() {
    bool ticked = Controls(u"chkOptional").Value() == dialogs::vbChecked;
    if (ticked) Controls(u"chkParamArray").Value(0);
    Controls(u"chkArray").Enabled = !ticked;
    Controls(u"chkParamArray").Enabled = !ticked;
    Controls(u"cboDefaultValue").Enabled = ticked;
    Controls(u"lblDefaultValue").Enabled = ticked;
    ArgumentFlagsCheck();
}

void frmArgument::chkParamArray_Click() {
    bool ticked = Controls(u"chkParamArray").Value() == dialogs::vbChecked;
    if (ticked) {
        chkByVal(false);
        Controls(u"chkOptional").Value(0);
        Controls(u"chkArray").Value(0);
    }
    chkByVal_Enabled(!ticked);
    Controls(u"chkOptional").Enabled = !ticked;
    Controls(u"chkArray").Enabled = !ticked;
    if (ticked) {
        Controls(u"cboDefaultValue").Enabled = false;
        Controls(u"lblDefaultValue").Enabled = false;
    }
    ArgumentFlagsCheck();
}

void frmArgument::ArgumentFlagsCheck() {
    if (!ParentForm) return;
    for (const auto& argument : owner().Procedure().Arguments().Items) {
        if (argument->IsOptional) {
            Controls(u"chkParamArray").Enabled = false;
            return;
        }
        if (argument->IsParamArray) {
            Controls(u"chkOptional").Enabled = false;
            Controls(u"chkArray").Enabled = false;
            Controls(u"chkParamArray").Enabled = false;
            return;
        }
    }
}

void frmArgument::DefaultValuesList() {
    auto& list = Controls(u"cboDefaultValue");
    Str earlier = list.Text();
    Str type = basic::Trim(Controls(u"cboDataType").Text());
    list.Clear();
    list.AddItem(kNewConstant);
    bool any = offersAnyConstant(type);
    if (any || filtersByConstantType(type)) {
        auto offer = [&](const source::clsConstantPtr& constant) {
            if (any || is(constant->Type_, type)) list.AddItem(constant->Name);
        };
        if (scanModule_)
            for (const auto& constant : scanModule_->ModuleConsts) offer(constant);
        if (ctx_.Scan.ProjectConsts)
            for (const auto& constant : *ctx_.Scan.ProjectConsts) offer(constant);
    } else if (ctx_.Scan.ProjectEnums && ctx_.Scan.ProjectEnums->Exists(type)) {
        for (const auto& member : ctx_.Scan.ProjectEnums->Item(type)->Items) list.AddItem(member->Name);
    }
    if (!earlier.empty()) list.Text(earlier);
}

long frmArgument::scopeCode() { return chkByVal() ? 5 : 4; }

void frmArgument::NameUpdate() {
    auto& name = Controls(u"txtName");
    if (!prefixUpdate_ || basic::Trim(name.Text()).empty()) return;
    long scope = scopeCode();
    Str scopePrefix;
    Str proposal = source::NameWithPrefix(ctx_.Prefixes, basic::Trim(name.Text()), basic::Trim(Controls(u"cboDataType").Text()),
                                          nullptr, scope, false, scopePrefix);
    lastProposal_ = proposal;
    nameQuiet_ = true;
    name.Text(proposal);
    nameQuiet_ = false;
}

void frmArgument::txtName_Change() {
    if (nameQuiet_) return;
    Str text = Controls(u"txtName").Text();
    bool ownProposal = !lastProposal_.empty() && basic::Right(text, basic::Len(lastProposal_)) == lastProposal_;
    if (basic::Len(text) < 6 || !ownProposal) NameUpdate();
}

void frmArgument::cboDefaultValue_Click() {
    auto& list = Controls(u"cboDefaultValue");
    if (!is(list.Text(), kNewConstant)) return;
    Str type = basic::Trim(Controls(u"cboDataType").Text());
    if (is(type, source::kNone)) type.clear();
    if (ctx_.Forms->IsRegistered(u"frmConst")) ctx_.Forms->Open(u"frmConst", {type});
    if (is(list.Text(), kNewConstant)) list.Text(u"");
}

bool frmArgument::PressOK() {
    Str name = basic::Trim(Controls(u"txtName").Text());
    Str type = basic::Trim(Controls(u"cboDataType").Text());
    if (is(type, source::kNone)) type.clear();
    auto& procedure = owner().Procedure();
    auto& arguments = procedure.Arguments();
    long n = arguments.Count();
    source::NameCheckEnv env{*ctx_.VBInstance, ctx_.Platform(), ctx_.Keywords};
    long answer = source::CheckNewNameIsOK(env, name, false, false, {source::lookupIn(arguments.Items)});
    if (!nameAnswerAccepted(*this, FocusedControl, answer)) return false;
    InitVariables();
    bool optional = Controls(u"chkOptional").Value() == dialogs::vbChecked;
    Str value = basic::Trim(Controls(u"cboDefaultValue").Text());
    value = optional && !value.empty() ? source::QuoteValue(value, type) : Str();
    arguments.Add(name, type, optional, value, Controls(u"chkArray").Value() == dialogs::vbChecked,
                  Controls(u"chkParamArray").Value() == dialogs::vbChecked, n + 1, chkByVal(), u"");
    owner().ArgumentsList(n);
    return true;
}

void frmArgument::ResetControls() {
    auto& types = Controls(u"cboDataType");
    long string = source::FindInList(types, u"String");
    if (string >= 0) types.ListIndex(string);
    Controls(u"chkArray").Value(0);
    Controls(u"chkParamArray").Value(0);
    Controls(u"chkOptional").Value(0);
    chkByVal(false);
    Controls(u"cboDefaultValue").Text(u"");
    nameQuiet_ = true;
    Controls(u"txtName").Text(u"");
    nameQuiet_ = false;
    lastProposal_.clear();
    ArgumentFlagsCheck();
    FocusedControl = u"txtName";
}

}  // namespace quillet::builders
