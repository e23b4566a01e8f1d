#include "builders/frm_property.h"

#include "builders/list_choice.h"
#include "core/command_env.h"
#include "core/err_handler.h"
#include "settings/ini_vars.h"
#include "source/char_class.h"
#include "source/code_placing.h"
#include "source/error_handler_files.h"
#include "source/prefixes.h"
#include "source/type_lists.h"
#include "source/words.h"
#include "support/cls_combo_expand.h"

namespace quillet::builders {

using dialogs::ControlKind;
using namespace settings;

namespace {

// The Property Builder's help topic.
constexpr long kPropertyBuilderHelp = 1120;

constexpr char16_t kAccessNames[][8] = {u"", u"Public", u"Private", u"Friend"};

long checkValue(bool on) { return on ? dialogs::vbChecked : dialogs::vbUnchecked; }

// "<New Class Module>" and its kind: entries that name no module yet.
bool isNewEntry(const Str& module) { return basic::Like(module, u"<New*", basic::Compare::Text); }

// A word at the caret that can name a property: a letter, then letters, digits or "_".
bool couldBeName(const Str& word) {
    if (word.empty() || !source::IsCharAlphaA(word[0])) return false;
    for (char16_t c : word)
        if (!source::IsCharAlphaNumericA(c) && c != u'_') return false;
    return true;
}

}  // namespace

void PropertyCopy(const generators::clsProperty& from, generators::clsProperty& to) {
    Str id = to.ID;
    to = from;
    to.ID = id;
}

frmProperty::frmProperty(core::Context& ctx)
    : Form(u"frmProperty"), ctx_(ctx), property_(std::make_unique<generators::clsProperty>(ctx)) {
    Caption = u"Property Builder";
    addControls();
    hookEvents();
    HelpContextID = kPropertyBuilderHelp;
    help_.init(*this, Controls(u"cmdHelp"), -1, support::basHTMLHelp(ctx_));
}

frmProperty::~frmProperty() = default;

void frmProperty::Form_Unload() { help_.Terminate(); }

void frmProperty::Form_Activate() { FocusedControl = u"txtName"; }

void frmProperty::addControls() {
    AddControl(u"txtName", ControlKind::TextBox);
    AddControl(u"lblDataType", ControlKind::Label).Caption = u"&Value Type";
    AddControl(u"cboDataType", ControlKind::ComboBox);
    AddControl(u"cboModule", ControlKind::ComboBox);
    AddControl(u"txtDescription", ControlKind::TextBox);
    AddControl(u"cboAccessibility", ControlKind::ComboBox);
    AddControl(u"cboStatic", ControlKind::ComboBox);
    AddControl(u"chkGet", ControlKind::CheckBox).Caption = u"Ge&t";
    AddControl(u"chkSet", ControlKind::CheckBox).Caption = u"&Let/Set";
    AddControl(u"cboAddErrorHandler", ControlKind::ComboBox);
    for (const char16_t* box : {u"chkAddHeader", u"chkAddHourglass", u"chkAddProcedureConstant", u"chkAddModuleConstant"})
        AddControl(box, ControlKind::CheckBox);
    AddControl(u"cmdOK", ControlKind::CommandButton).Caption = u"OK";
    AddControl(u"cmdOKAndNew", ControlKind::CommandButton).Caption = u"OK && &New";
    AddControl(u"cmdCancel", ControlKind::CommandButton).Caption = u"Cancel";
    AddControl(u"cmdHelp", ControlKind::CommandButton).Caption = u"&Help";
    Controls(u"chkGet").Value(dialogs::vbChecked);
    Controls(u"chkSet").Value(dialogs::vbChecked);
}

void frmProperty::hookEvents() {
    On(u"txtName_Change", [this] { guard(u"txtName_Change", [this] { txtName_Change(); }); });
    On(u"cboDataType_Click", [this] { guard(u"cboDataType_Click", [this] { NameUpdate(); }); });
    On(u"cboDataType_Change", [this] { guard(u"cboDataType_Change", [this] { NameUpdate(); }); });
    On(u"cboModule_Click", [this] { guard(u"cboModule_Click", [this] { cboModule_Click(); }); });
    On(u"cboModule_Change", [this] {
        if (!moduleQuiet_) guard(u"cboModule_Change", [this] { SetControlsState(); });
    });
    On(u"cboAccessibility_Click", [this] { SetAccessibilityInProcedureAndCombo(); });
    On(u"chkGet_Click", [this] { guard(u"chkGet_Click", [this] { SetControlsState(); }); });
    On(u"chkSet_Click", [this] { guard(u"chkSet_Click", [this] { SetControlsState(); }); });
    On(u"cmdOK_Click", [this] {
        bool done = false;
        guard(u"cmdOK_Click", [this, &done] { done = PressOK(); });
        if (done && Loaded()) Unload();
    });
    On(u"cmdOKAndNew_Click", [this] {
        guard(u"cmdOKAndNew_Click", [this] {
            if (PressOK()) ResetControls();
        });
    });
    On(u"cmdCancel_Click", [this] { Unload(); });
    for (const char16_t* combo : {u"cboDataType", u"cboModule"}) support::clsComboExpand::init(*this, Controls(combo));
}

void frmProperty::guard(const Str& method, const std::function<void()>& statement) {
    core::guarded(ctx_, u"frmProperty." + method, statement);
}

PropertyOwner* frmProperty::classOwner() { return dynamic_cast<PropertyOwner*>(ParentForm); }

void frmProperty::Init(const Str& type) {
    auto env = core::codeEnvOf(ctx_);
    auto& types = Controls(u"cboDataType");
    guard(u"Init", [&] { source::DataTypeList(env, types, false, type.empty() ? Str(u"String") : type); });
    guard(u"Init", [this] { GetOptions(); });
    guard(u"Init", [this] { LoadCombos(); });
    auto* owner = classOwner();
    guard(u"Init", [&] {
        if (owner) {
            classInit();
            return;
        }
        auto& module = Controls(u"cboModule");
        moduleQuiet_ = true;
        source::qltModulesList(env, module, 2, {}, false, true);
        moduleQuiet_ = false;
        Str name = basic::Trim(module.Text());
        if (!isNewEntry(name) && source::componentNamed(*ctx_.VBInstance, name) &&
            source::ModuleNameConstantAdd(env, name, true))
            Controls(u"chkAddModuleConstant").Value(dialogs::vbChecked);
    });
    Controls(u"chkAddHourglass").Enabled =
        !ctx_.HostName.empty() && basic::InStr(u"VBRUN,Access,Excel,Word", ctx_.HostName, basic::Compare::Text) > 0;
    if (owner && owner->SelectedProperty()) guard(u"Init", [&] { propertyShow(*owner->SelectedProperty()); });
    guard(u"Init", [this] { SetControlsState(); });
    if (owner) return;
    guard(u"Init", [this] {
        Str word = source::CurrentWordGet(*ctx_.VBInstance);
        if (!couldBeName(word)) return;
        pickedWord_ = word;
        auto pane = ctx_.VBInstance->ActiveCodePane();
        long endLine = 0;
        pane->GetSelection(pickedLine_, pickedStart_, endLine, pickedEnd_);
        pickedPane_ = pane;
        Controls(u"txtName").Text(word);
    });
}

void frmProperty::GetOptions() {
    auto& s = *ctx_.IniSettings;
    errorHandlerSetting_ = IniText(s, iiAddErrorHandlingProperty);
    Controls(u"chkAddProcedureConstant").Value(checkValue(IniBool(s, iiAddPropertyConstant)));
    Controls(u"chkAddModuleConstant").Value(checkValue(IniBool(s, iiAddModuleConstantProperty)));
}

void frmProperty::LoadCombos() {
    AccessibilityComboBoxFill(true);
    Accessibility(1);
    auto& isStatic = Controls(u"cboStatic");
    isStatic.Clear();
    isStatic.AddItem(u"");
    isStatic.AddItem(u"Static");
    isStatic.ListIndex(0);
    auto& handlers = Controls(u"cboAddErrorHandler");
    handlers.Clear();
    handlers.AddItem(u"");
    for (const auto& name : source::ErrorHandlersList(*ctx_.IniSettings)) handlers.AddItem(name);
    long found = errorHandlerSetting_.empty() ? 0 : source::FindInList(handlers, errorHandlerSetting_);
    handlers.ListIndex(found >= 0 ? found : 0);
}

// The Class Builder's class is the only module.
void frmProperty::classInit() {
    auto& module = Controls(u"cboModule");
    moduleQuiet_ = true;
    module.Clear();
    module.AddItem(classOwner()->ClassName());
    module.ListIndex(0);
    moduleQuiet_ = false;
    module.Enabled = false;
}

void frmProperty::propertyShow(const generators::clsProperty& p) {
    PropertyCopy(p, *property_);
    nameQuiet_ = true;
    Controls(u"txtName").Text(p.Name);
    nameQuiet_ = false;
    lastProposal_ = p.Name;
    SelectText(Controls(u"cboDataType"), p.datatype.empty() ? Str(u"Variant") : p.datatype);
    Controls(u"chkGet").Value(checkValue(p.GetPart));
    Controls(u"chkSet").Value(checkValue(p.SetPart));
    Controls(u"txtDescription").Text(p.Description);
    Accessibility(AccessIndex(p.AccessibleType));
    Controls(u"cboStatic").ListIndex(p.IsStatic ? 1 : 0);
    auto& handlers = Controls(u"cboAddErrorHandler");
    long handler = p.IncludeErrorHandler ? source::FindInList(handlers, p.ErrorHandlerFile) : 0;
    handlers.ListIndex(handler >= 0 ? handler : 0);
    Controls(u"chkAddHeader").Value(checkValue(p.IncludeHeader));
    Controls(u"chkAddHourglass").Value(checkValue(p.IncludeHourglass));
    Controls(u"chkAddProcedureConstant").Value(checkValue(p.ProcedureNameConstant));
    Controls(u"chkAddModuleConstant").Value(checkValue(p.ModuleNameConstant));
}

// A property needs a Get or a Let/Set: with neither, there is nothing to write.
void frmProperty::SetControlsState() {
    bool some = Controls(u"chkGet").Value() == dialogs::vbChecked || Controls(u"chkSet").Value() == dialogs::vbChecked;
    Controls(u"cmdOK").Enabled = some;
    Controls(u"cmdOKAndNew").Enabled = some;
    bool fFriend = true;
    if (!classOwner()) {
        Str module = basic::Trim(Controls(u"cboModule").Text());
        if (!isNewEntry(module)) {
            auto component = source::componentNamed(*ctx_.VBInstance, module);
            fFriend = !component || component->Type() != host::vbext_ct_StdModule;
        }
    }
    long access = Accessibility();
    AccessibilityComboBoxFill(fFriend);
    Accessibility(!fFriend && access == 3 ? 0 : access);
}

void frmProperty::SetAccessibilityInProcedureAndCombo() {
    long index = Accessibility();
    property_->AccessibleType = index < 4 ? kAccessNames[index] : u"";
}

void frmProperty::AccessibilityComboBoxFill(bool fFriend) {
    auto& list = Controls(u"cboAccessibility");
    if (list.ListCount() == (fFriend ? 4 : 3)) return;
    long old = list.ListIndex();
    list.Clear();
    for (int i = 0; i < (fFriend ? 4 : 3); ++i) list.AddItem(kAccessNames[i]);
    list.ListIndex(old >= 0 && old < list.ListCount() ? old : 0);
}

long frmProperty::Accessibility() {
    long index = Controls(u"cboAccessibility").ListIndex();
    return index < 0 ? 0 : index;
}

void frmProperty::Accessibility(long value) {
    auto& list = Controls(u"cboAccessibility");
    if (value >= 0 && value < list.ListCount()) list.ListIndex(value);
    SetAccessibilityInProcedureAndCombo();
}

bool frmProperty::HasErrorHandler() { return !basic::Trim(Controls(u"cboAddErrorHandler").Text()).empty(); }

bool frmProperty::IsStatic() { return Controls(u"cboStatic").Text() == u"Static"; }

// The name takes the prefix of its type as long as the user has not typed a name of his own.
void frmProperty::NameUpdate() {
    auto& name = Controls(u"txtName");
    if (basic::Trim(name.Text()).empty()) return;
    long scope = source::ScopeLocal;
    Str scopePrefix;
    Str type = basic::Trim(Controls(u"cboDataType").Text());
    Str proposal =
        source::NameWithPrefix(ctx_.Prefixes, basic::Trim(name.Text()), type, nullptr, scope, false, scopePrefix);
    lastProposal_ = proposal;
    if (proposal == name.Text()) return;
    nameQuiet_ = true;
    name.Text(proposal);
    nameQuiet_ = false;
}

void frmProperty::txtName_Change() {
    if (nameQuiet_) return;
    Str text = Controls(u"txtName").Text();
    bool ownProposal = !lastProposal_.empty() && basic::Right(text, basic::Len(lastProposal_)) == lastProposal_;
    if (basic::Len(text) < 6 || !ownProposal) NameUpdate();
}

void frmProperty::cboModule_Click() {
    if (moduleQuiet_) return;
    SetControlsState();
    auto env = core::codeEnvOf(ctx_);
    Str module = basic::Trim(Controls(u"cboModule").Text());
    bool known = !isNewEntry(module) && source::componentNamed(*ctx_.VBInstance, module) != nullptr;
    Controls(u"chkAddModuleConstant").Value(checkValue(known && source::ModuleNameConstantAdd(env, module, true)));
}

// OK & New: the name, description and Get/Let boxes start afresh; type, module, access and
// options stay for the next property of the same class.
void frmProperty::ResetControls() {
    nameQuiet_ = true;
    Controls(u"txtName").Text(u"");
    nameQuiet_ = false;
    lastProposal_.clear();
    Controls(u"txtDescription").Text(u"");
    Controls(u"chkGet").Value(dialogs::vbChecked);
    Controls(u"chkSet").Value(dialogs::vbChecked);
    FocusedControl = u"txtName";
}

}  // namespace quillet::builders
