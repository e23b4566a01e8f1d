#include "builders/frm_procedure.h"

#include "core/err_handler.h"
#include "core/command_env.h"
#include "settings/ini_vars.h"
#include "source/code_placing.h"
#include "source/error_handler_files.h"
#include "source/name_checks.h"
#include "source/scan_module.h"
#include "source/type_lists.h"
#include "source/words.h"
#include "support/cls_combo_expand.h"

namespace quillet::builders {

using dialogs::ControlKind;
using namespace settings;

namespace {

constexpr char16_t kAccessNames[][8] = {u"", u"Public", u"Private", u"Friend"};

bool is(const Str& a, const Str& b) { return basic::StrComp(a, b, basic::Compare::Text) == 0; }

long checkValue(bool on) { return on ? dialogs::vbChecked : dialogs::vbUnchecked; }

}  // namespace

frmProcedure::frmProcedure(core::Context& ctx)
    : Form(u"frmProcedure"), ctx_(ctx), procedure_(std::make_unique<generators::clsProcedure>(ctx)) {
    Caption = u"Procedure Builder";
    addControls();
    hookEvents();
    HelpContextID = support::help_topics::ProcedureBuilder;
    help_.init(*this, Controls(u"cmdHelp"), -1, support::basHTMLHelp(ctx_));
}

void frmProcedure::Form_Unload() { help_.Terminate(); }

frmProcedure::~frmProcedure() = default;

void frmProcedure::addControls() {
    AddControl(u"txtName", ControlKind::TextBox);
    AddControl(u"cboProcType", ControlKind::ComboBox);
    AddControl(u"cboAccessibility", ControlKind::ComboBox);
    AddControl(u"cboStatic", ControlKind::ComboBox);
    AddControl(u"lblReturnValueType", ControlKind::Label).Caption = u"&Return type:";
    AddControl(u"cboReturnValueType", ControlKind::ComboBox);
    AddControl(u"cboModule", ControlKind::ComboBox);
    AddControl(u"lstArguments", ControlKind::ListBox);
    AddControl(u"cmdNewArg", ControlKind::CommandButton).ToolTipText = u"Add a new argument";
    AddControl(u"cmdDelArg", ControlKind::CommandButton).ToolTipText = u"Delete selected argument";
    AddControl(u"cmdUpArg", ControlKind::CommandButton).ToolTipText = u"Move selected argument up";
    AddControl(u"cmdDownArg", ControlKind::CommandButton).ToolTipText = u"Move selected argument down";
    AddControl(u"txtDescription", ControlKind::TextBox);
    AddControl(u"cboAddErrorHandler", ControlKind::ComboBox);
    for (const char16_t* box : {u"chkAddHeader", u"chkAddHourglass", u"chkAddProcedureConstant", u"chkAddModuleConstant",
                                u"chkAddReturnStatement", u"chkArgumentsOnSeparateLine"})
        AddControl(box, ControlKind::CheckBox);
    AddControl(u"cmdOK", ControlKind::CommandButton).Caption = u"OK";
    AddControl(u"cmdCancel", ControlKind::CommandButton).Caption = u"Cancel";
    AddControl(u"cmdHelp", ControlKind::CommandButton).Caption = u"&Help";
}

void frmProcedure::hookEvents() {
    On(u"cboProcType_Click", [this] { guard(u"cboProcType_Click", [this] { SetControlsState(); }); });
    On(u"cboAccessibility_Click", [this] { procedure_->AccessibleType = Controls(u"cboAccessibility").Text(); });
    On(u"cboModule_Click", [this] { guard(u"cboModule_Click", [this] { cboModule_Click(); }); });
    On(u"cboModule_Change", [this] {
        if (!moduleQuiet_) guard(u"cboModule_Change", [this] { AccessibilitySet(); });
    });
    On(u"chkAddReturnStatement_Click", [this] {
        auto& box = Controls(u"chkAddReturnStatement");
        if (box.Enabled) AddReturnStatement_ = box.Value() == dialogs::vbChecked;
    });
    On(u"chkArgumentsOnSeparateLine_Click", [this] {
        auto& box = Controls(u"chkArgumentsOnSeparateLine");
        if (box.Enabled) ArgumentsOnSeparateLine_ = box.Value() == dialogs::vbChecked;
    });
    On(u"cmdNewArg_Click", [this] { guard(u"cmdNewArg_Click", [this] { cmdNewArg_Click(); }); });
    On(u"cmdDelArg_Click", [this] { guard(u"cmdDelArg_Click", [this] { cmdDelArg_Click(); }); });
    On(u"cmdUpArg_Click", [this] { guard(u"cmdUpArg_Click", [this] { moveArgument(-1); }); });
    On(u"cmdDownArg_Click", [this] { guard(u"cmdDownArg_Click", [this] { moveArgument(1); }); });
    On(u"cmdOK_Click", [this] {
        bool done = false;
        guard(u"cmdOK_Click", [this, &done] { done = PressOk(); });
        if (done && Loaded()) Unload();
    });
    On(u"cmdCancel_Click", [this] { Unload(); });
    Method(u"ArgumentsList", [this](const basic::Args& args) {
        ArgumentsList(args.empty() ? -1 : basic::CLng(args.at(0)));
        return basic::Variant{};
    });
    // Type-ahead in the lists that take typed text.
    for (const char16_t* combo : {u"cboReturnValueType", u"cboModule"})
        support::clsComboExpand::init(*this, Controls(combo));
}

void frmProcedure::guard(const Str& method, const std::function<void()>& statement) {
    core::guarded(ctx_, u"frmProcedure." + method, statement);
}

void frmProcedure::Init(bool mfIsMethod) {
    mfIsMethod_ = mfIsMethod;
    guard(u"Init", [this] { GetOptions(); });
    guard(u"Init", [this] { LoadCombos(); });
    auto env = core::codeEnvOf(ctx_);
    guard(u"Init", [&] { source::DataTypeList(env, Controls(u"cboReturnValueType"), true, {}); });
    auto& module = Controls(u"cboModule");
    guard(u"Init", [&] {
        if (mfIsMethod_) {
            methodInit();
            return;
        }
        moduleQuiet_ = true;
        source::qltModulesList(env, module, 0, {}, true, true);
        moduleQuiet_ = false;
    });
    guard(u"Init", [&] {
        Str name = basic::Trim(module.Text());
        if (!mfIsMethod_ && source::componentNamed(*ctx_.VBInstance, name) &&
            source::ModuleNameConstantAdd(env, name, true))
            Controls(u"chkAddModuleConstant").Value(dialogs::vbChecked);
    });
    guard(u"Init", [this] { SetControlsState(); });
    Controls(u"chkAddHourglass").Enabled =
        !ctx_.HostName.empty() && basic::InStr(u"VBRUN,Access,Excel,Word", ctx_.HostName, basic::Compare::Text) > 0;
    auto* owner = mfIsMethod_ ? classOwner() : nullptr;
    if (owner && owner->SelectedMethod()) {
        guard(u"Init", [&] { methodShow(*owner->SelectedMethod()); });
    } else {
        Accessibility(0);
        procedure_->AccessibleType.clear();
    }
    guard(u"Init", [this] { AccessibilitySet(); });
    guard(u"Init", [this] {
        Str word = source::CurrentWordGet(*ctx_.VBInstance);
        if (!word.empty()) Controls(u"txtName").Text(word);
    });
}

void frmProcedure::GetOptions() {
    auto& s = *ctx_.IniSettings;
    bool m = mfIsMethod_;
    Str handler = IniText(s, m ? iiAddErrorHandlingMethod : iiAddErrorHandlingProcedure);
    errorHandlerSetting_ = handler;
    Controls(u"chkAddHeader").Value(checkValue(IniBool(s, m ? iiAddHeaderMethod : iiAddHeaderProcedure)));
    Controls(u"chkAddProcedureConstant").Value(checkValue(IniBool(s, m ? iiAddMethodConstant : iiAddProcedureConstant)));
    Controls(u"chkAddModuleConstant").Value(
        checkValue(IniBool(s, m ? iiAddModuleConstantMethod : iiAddModuleConstantProcedure)));
    Controls(u"chkAddHourglass").Value(checkValue(IniBool(s, m ? iiAddHourglassMethod : iiAddHourglassProcedure)));
    ArgumentsOnSeparateLine_ = IniBool(s, iiArgumentsOnSeparateLines);
    AddReturnStatement_ = IniBool(s, iiAddReturnStatement);
    Controls(u"chkArgumentsOnSeparateLine").Value(checkValue(ArgumentsOnSeparateLine_));
    Controls(u"chkAddReturnStatement").Value(checkValue(AddReturnStatement_));
}

void frmProcedure::LoadCombos() {
    AccessibilityComboBoxFill(true);
    auto& isStatic = Controls(u"cboStatic");
    isStatic.AddItem(u"");
    isStatic.AddItem(u"Static");
    isStatic.ListIndex(0);
    auto& type = Controls(u"cboProcType");
    type.AddItem(u"Function");
    type.AddItem(u"Sub");
    type.ListIndex(0);
    auto& handlers = Controls(u"cboAddErrorHandler");
    handlers.AddItem(u"");
    for (const auto& name : source::ErrorHandlersList(*ctx_.IniSettings)) handlers.AddItem(name);
    const Str& wanted = errorHandlerSetting_;
    long found = wanted.empty() ? 0 : source::FindInList(handlers, wanted);
    handlers.ListIndex(found >= 0 ? found : 0);
}

void frmProcedure::stateOf(const Str& name, bool enabled, bool& remembered) {
    auto& box = Controls(name);
    bool keep = remembered;
    box.Enabled = enabled;
    box.Value(checkValue(enabled && keep));
    remembered = keep;
}

void frmProcedure::SetControlsState() {
    bool function = Controls(u"cboProcType").Text() == u"Function";
    Controls(u"cboReturnValueType").Enabled = function;
    Controls(u"lblReturnValueType").Enabled = function;
    stateOf(u"chkAddReturnStatement", function, AddReturnStatement_);
    stateOf(u"chkArgumentsOnSeparateLine", Controls(u"lstArguments").ListCount() > 0, ArgumentsOnSeparateLine_);
}

bool frmProcedure::friendAllowed() {
    if (mfIsMethod_) return true;
    Str module = basic::Trim(Controls(u"cboModule").Text());
    if (is(module, source::kNewClassModule)) return true;
    if (is(module, source::kNewModule) || module.empty()) return false;
    auto component = source::componentNamed(*ctx_.VBInstance, module);
    return component && component->Type() != host::vbext_ct_StdModule;
}

void frmProcedure::AccessibilitySet() {
    bool fFriend = friendAllowed();
    if (!fFriend && Accessibility() == 3) Accessibility(0);
    AccessibilityComboBoxFill(fFriend);
}

void frmProcedure::AccessibilityComboBoxFill(bool fFriend) {
    auto& list = Controls(u"cboAccessibility");
    long old = list.ListIndex();
    list.Clear();
    for (int i = 0; i < (fFriend ? 4 : 3); ++i) list.AddItem(kAccessNames[i]);
    list.ListIndex(old >= 0 && old < list.ListCount() ? old : 0);
}

long frmProcedure::Accessibility() {
    long index = Controls(u"cboAccessibility").ListIndex();
    return index < 0 ? 0 : index;
}

void frmProcedure::Accessibility(long value) {
    auto& list = Controls(u"cboAccessibility");
    if (value >= 0 && value < list.ListCount()) list.ListIndex(value);
    procedure_->AccessibleType = value >= 0 && value < 4 ? kAccessNames[value] : u"";
}

bool frmProcedure::HasErrorHandler() { return !basic::Trim(Controls(u"cboAddErrorHandler").Text()).empty(); }

bool frmProcedure::IsStatic() { return Controls(u"cboStatic").Text() == u"Static"; }

void frmProcedure::cboModule_Click() {
    if (moduleQuiet_) return;
    AccessibilitySet();
    auto env = core::codeEnvOf(ctx_);
    Str module = basic::Trim(Controls(u"cboModule").Text());
    bool known = source::componentNamed(*ctx_.VBInstance, module) != nullptr;
    bool holds = known && source::ModuleNameConstantAdd(env, module, true);
    Controls(u"chkAddModuleConstant").Value(checkValue(!holds));
}

void frmProcedure::Form_Activate() { FocusedControl = u"txtName"; }

}  // namespace quillet::builders
