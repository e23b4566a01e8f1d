#include "builders/frm_var.h"

#include "core/err_handler.h"
#include "core/command_env.h"
#include "source/prefixes.h"
#include "source/type_lists.h"
#include "source/words.h"
#include "support/cls_combo_expand.h"

namespace quillet::builders {

using dialogs::ControlKind;

namespace {

bool is(const Str& a, const Str& b) { return basic::StrComp(a, b, basic::Compare::Text) == 0; }

}  // namespace

const std::array<Str, 6>& frmVar::AccessibilityItem() {
    static const std::array<Str, 6> items = {u"Dim - Module", u"Dim - Procedure", u"Interface",
                                             u"Public",       u"Private",         u"Static"};
    return items;
}

frmVar::frmVar(core::Context& ctx) : DeclarationDialog(ctx, u"frmVar") {
    Caption = u"Variable Builder";
    addControls();
    hookEvents();
    HelpContextID = support::help_topics::VariableBuilder;
    help_.init(*this, Controls(u"cmdHelp"), -1, support::basHTMLHelp(ctx_));
}

frmVar::~frmVar() = default;

void frmVar::addControls() {
    AddControl(u"txtName", ControlKind::TextBox);
    AddObjectNameButton(*this);
    AddControl(u"cboDataType", ControlKind::ComboBox);
    AddControl(u"lblLength", ControlKind::Label).Caption = u"&Length:";
    AddControl(u"txtLength", ControlKind::TextBox);
    AddControl(u"cboAccessibility", ControlKind::ComboBox);
    AddControl(u"lblModule", ControlKind::Label).Caption = u"&Module:";
    AddControl(u"cboModule", ControlKind::ComboBox);
    AddControl(u"chkArray", ControlKind::CheckBox).Caption = u"&Is Array";
    AddControl(u"lblDimensions", ControlKind::Label).Caption = u"Arra&y Dimensions";
    AddControl(u"txtDimensions", ControlKind::TextBox);
    AddControl(u"txtDescription", ControlKind::TextBox);
    AddControl(u"fraInterface", ControlKind::Frame).Caption = u"Interface";
    AddControl(u"chkByVal", ControlKind::CheckBox).Caption = u"By&Val";
    AddControl(u"chkOptional", ControlKind::CheckBox).Caption = u"&Optional";
    AddControl(u"chkParamArray", ControlKind::CheckBox).Caption = u"Pa&ramArray";
    AddControl(u"txtDefault", ControlKind::TextBox);
    AddControl(u"lblBefore", ControlKind::Label).Caption = u"Be&fore";
    AddControl(u"cboArgument", ControlKind::ComboBox);
    AddControl(u"fraObject", ControlKind::Frame).Caption = u"Object";
    AddControl(u"chkWith", ControlKind::CheckBox).Caption = u"With &...";
    AddControl(u"chkNothing", ControlKind::CheckBox).Caption = u"Set = Nothin&g";
    AddControl(u"chkNew", ControlKind::CheckBox).Caption = u"Set = N&ew";
    AddOkPasteButtons(*this);
}

void frmVar::hookEvents() {
    auto refresh = [this](const Str& name, bool prefix) {
        On(name, [this, name, prefix] {
            if (refreshing_) return;
            guard(name, [this, prefix] {
                SetControlsState();
                if (prefix) PrefixRefresh();
            });
        });
    };
    refresh(u"cboAccessibility_Click", true);
    refresh(u"chkByVal_Click", true);
    refresh(u"chkArray_Click", false);
    refresh(u"chkParamArray_Click", false);
    refresh(u"cboModule_Click", false);
    refresh(u"cboModule_Change", false);
    On(u"chkOptional_Click", [this] {
        if (refreshing_) return;
        guard(u"chkOptional_Click", [this] {
            if (VarLevel() == 2) OptionalSet();
            SetControlsState();
        });
    });
    On(u"cboArgument_Click", [this] {
        if (refreshing_) return;
        guard(u"cboArgument_Click", [this] {
            cboArgument_Change();
            SetControlsState();
        });
    });
    On(u"cboDataType_Click", [this] { guard(u"cboDataType_Click", [this] { cboDataType_Change(); }); });
    On(u"cboDataType_Change", [this] { guard(u"cboDataType_Change", [this] { cboDataType_Change(); }); });
    On(u"txtName_Change", [this] { guard(u"txtName_Change", [this] { txtName_Change(); }); });
    Controls(u"txtLength").KeyPressHandlers.push_back([this](dialogs::Control&, long& key) { txtLength_KeyPress(key); });
    On(u"cmdOK_Click", [this] {
        bool done = false;
        guard(u"cmdOK_Click", [&] { done = PressOK(false); });
        if (done && Loaded()) Unload();
    });
    On(u"cmdOKAndPaste_Click", [this] {
        bool done = false;
        guard(u"cmdOKAndPaste_Click", [&] { done = PressOK(true); });
        if (done && Loaded()) Unload();
    });
    On(u"cmdCancel_Click", [this] { Unload(); });
    On(u"cmdObjectName_Click", [this] { guard(u"cmdObjectName_Click", [this] { ObjectNameOpen(ctx_); }); });
    Method(u"ArgInsert", [this](const basic::Args& args) {
        ArgInsert(args.empty() ? Str() : basic::CStr(args.at(0)), args.size() > 1 ? basic::CStr(args.at(1)) : Str());
        return basic::Variant{};
    });
    support::clsComboExpand::init(*this, Controls(u"cboDataType"));
}

void frmVar::SetParentForm(dialogs::Form* parent) {
    if (!ParentForm) ParentForm = parent;
}

bool frmVar::isChecked(const Str& box) { return Controls(box).Value() == dialogs::vbChecked; }

Str frmVar::typeText() { return basic::Trim(Controls(u"cboDataType").Text()); }

long frmVar::Accessibility() {
    auto& list = Controls(u"cboAccessibility");
    long index = list.ListIndex();
    if (index < 0) return 0;
    switch (list.ItemData(index)) {
        case 4: return 1;
        case 5: return 2;
        case 6: return 4;
        default: return 0;
    }
}

void frmVar::Accessibility(long index) {
    auto& list = Controls(u"cboAccessibility");
    if (list.ListCount() == 0) return;
    long at = index == 0 ? 0 : EntryWithData(list, index);
    list.ListIndex(at >= 0 ? at : 0);
}

long frmVar::VarLevel() {
    auto& list = Controls(u"cboAccessibility");
    long index = list.ListIndex();
    if (index < 0) return 0;
    switch (list.ItemData(index)) {
        case 2:
        case 6: return 1;
        case 3: return 2;
        default: return 0;
    }
}

// The getter gives 4 for "Static", so a static variable is written with Dim, as it always was.
bool frmVar::IsStatic() { return Accessibility() == 6; }

void frmVar::Form_Activate() { NameSelectedOnFirstShow(*this, firstShow_); }

void frmVar::Form_Unload() {
    help_.Terminate();
    procDef_.reset();
}

void frmVar::Init(const Str& vstrPredeterminedTypes, bool vfOnlyPredeterminedTypes, bool vfForWith,
                  bool vfInsertInstance) {
    loading_ = true;
    insertInstance_ = vfInsertInstance;
    for (const char16_t* list : {u"cboAccessibility", u"cboModule", u"cboDataType", u"cboArgument"})
        Controls(list).Clear();
    guard(u"Init", [this] { contextRead(); });
    guard(u"Init", [this] { LoadCombos(); });
    Controls(u"cmdOKAndPaste").Enabled = ParentForm == nullptr && !insertInstance_;
    guard(u"Init", [&] { typesFill(vstrPredeterminedTypes, vfOnlyPredeterminedTypes, vfForWith); });
    guard(u"Init", [this] {
        auto env = core::codeEnvOf(ctx_);
        source::qltModulesList(env, Controls(u"cboModule"), 0, {}, true, false);
        SetControlsState();
    });
    Str name = pickedUpName_;
    if (place_.inHeader) {
        name.clear();
        Accessibility(3);
    }
    guard(u"Init", [&] {
        long scope = 0;
        Str scopePrefix;
        typeByProgram_ = true;
        source::NameWithPrefix(ctx_.Prefixes, name, u"", &Controls(u"cboDataType"), scope, false, scopePrefix);
        typeByProgram_ = false;
        if (scopePrefix.empty()) {
            scope = scopeOfLevel();
            Str unused;
            name = source::NameWithPrefix(ctx_.Prefixes, name, typeText(), nullptr, scope, false, unused);
            prefixFollows_ = true;
        }
        levelFromScope(scope);
    });
    nameSet(name);
    firstFive_ = basic::Left(basic::Trim(name), 5);
    Controls(u"cboDataType").Enabled = !vfOnlyPredeterminedTypes;
    loading_ = false;
    guard(u"Init", [this] { SetControlsState(); });
    if (Controls(u"cmdObjectName").Visible)
        Controls(u"cmdObjectName").Visible = HostHasObjectNames(ctx_);
}

void frmVar::contextRead() {
    place_ = CaretPlaceGet(*ctx_.VBInstance);
    bool lent = DeclarationListsRead(ctx_, ParentForm, place_, lists_);
    if (place_.inProcedure) CurrentProcArgGet();
    if (!lent) pickedUpName_ = source::CurrentWordGet(*ctx_.VBInstance);
}

void frmVar::LoadCombos() { AccessibilityComboBoxFill(); }

void frmVar::AccessibilityComboBoxFill() {
    auto& list = Controls(u"cboAccessibility");
    long old = list.ListIndex();
    refreshing_ = true;
    list.Clear();
    std::vector<long> order = place_.inProcedure ? std::vector<long>{2, 1, 3, 4, 5, 6} : std::vector<long>{1, 4, 5};
    for (long item : order) {
        list.AddItem(AccessibilityItem()[item - 1]);
        list.ItemData(list.ListCount() - 1, item);
    }
    refreshing_ = false;
    list.ListIndex(old >= 0 && old < list.ListCount() ? old : 0);
}

void frmVar::typesFill(const Str& types, bool only, bool forWith) {
    auto env = core::codeEnvOf(ctx_);
    auto& combo = Controls(u"cboDataType");
    typeByProgram_ = true;
    if (forWith)
        source::DataTypeList(env, combo, false, u"Object", true);
    else if (types.empty())
        source::DataTypeList(env, combo, false, u"String");
    else if (only)
        source::AddTypeItem(combo, types);
    else
        source::DataTypeList(env, combo, false, types);
    typeByProgram_ = false;
}

void frmVar::CurrentProcArgGet() {
    procDef_.reset();
    procFoundInPublicList_ = false;
    if (auto* found = lists_.ModuleProcs.Find(place_.procName)) {
        procDef_ = *found;
    } else if (ctx_.Scan.ProjectProcs) {
        if (auto* pub = ctx_.Scan.ProjectProcs->Find(place_.procName)) {
            procDef_ = *pub;
            procFoundInPublicList_ = true;
        }
    }
    if (!procDef_) procDef_ = procedureRead();
    auto& list = Controls(u"cboArgument");
    list.Clear();
    if (!procDef_) return;
    list.AddItem(u"");
    for (const auto& argument : procDef_->ProcArguments->Items) list.AddItem(argument->Name);
}

// The procedure at the caret read from its module, for one that no scan lists.
source::C4_ProcDefPtr frmVar::procedureRead() {
    auto pane = ctx_.VBInstance->ActiveCodePane();
    if (!pane || place_.procName.empty()) return nullptr;
    auto module = pane->CodeModule();
    auto definition = std::make_shared<source::C4_ProcDef>();
    Str project = source::activeProjectName(*ctx_.VBInstance);
    definition->init(project, *module, place_.procName, place_.procKind, project);
    return definition;
}

void frmVar::nameSet(const Str& name) {
    nameByProgram_ = true;
    Controls(u"txtName").Text(name);
    nameByProgram_ = false;
}

long frmVar::scopeOfLevel() {
    switch (VarLevel()) {
        case 0: return Accessibility() == 1 ? source::ScopeGlobal : source::ScopeModule;
        case 1: return source::ScopeLocal;
        default: return isChecked(u"chkByVal") ? source::ScopeByVal : source::ScopeByRef;
    }
}

void frmVar::levelFromScope(long scope) {
    auto& list = Controls(u"cboAccessibility");
    long at = -1;
    switch (scope) {
        case source::ScopeGlobal: at = EntryWithData(list, 4); break;
        case source::ScopeModule: at = EntryWithData(list, 1); break;
        case source::ScopeByRef:
        case source::ScopeByVal: at = EntryWithData(list, 3); break;
        default: break;
    }
    if (list.ListCount() > 0) list.ListIndex(at >= 0 ? at : 0);
    if (at >= 0 && (scope == source::ScopeByRef || scope == source::ScopeByVal) && Controls(u"chkByVal").Enabled)
        Controls(u"chkByVal").Value(scope == source::ScopeByVal ? dialogs::vbChecked : dialogs::vbUnchecked);
}

void frmVar::PrefixRefresh() {
    if (!prefixFollows_ || loading_) return;
    long scope = scopeOfLevel();
    Str unused;
    nameSet(source::NameWithPrefix(ctx_.Prefixes, basic::Trim(Controls(u"txtName").Text()), typeText(), nullptr, scope,
                                   false, unused));
}

void frmVar::ArgInsert(const Str& vstrName, const Str&) {
    nameSet(vstrName);
    PrefixRefresh();
}

void frmVar::cboDataType_Change() {
    if (typeByProgram_ || refreshing_) return;
    typeChosenByUser_ = true;
    SetControlsState();
    PrefixRefresh();
}

void frmVar::txtName_Change() {
    if (nameByProgram_) return;
    prefixFollows_ = false;
    Str name = basic::Trim(Controls(u"txtName").Text());
    bool examine = basic::Len(name) < 6 || firstFive_.empty() ||
                   !basic::Like(name, firstFive_ + u"*", basic::Compare::Binary);
    if (!examine) return;
    long scope = 0;
    Str scopePrefix;
    if (!typeChosenByUser_) {
        typeByProgram_ = true;
        source::NameWithPrefix(ctx_.Prefixes, name, u"", &Controls(u"cboDataType"), scope, false, scopePrefix);
        typeByProgram_ = false;
        SetControlsState();
    } else {
        Str prefix, type, rest;
        source::PrefixesCheck(ctx_.Prefixes, name, prefix, type, scope, false, rest);
    }
    // A level of the prefix's scope already chosen (Private for "m") stays.
    bool known = scope == 1 || scope == 2 || scope == 4 || scope == 5;
    if (known && scope != scopeOfLevel()) levelFromScope(scope);
    firstFive_ = basic::Left(name, 5);
}

void frmVar::cboArgument_Change() {
    auto& list = Controls(u"cboArgument");
    notOptionalBefore_ = false;
    if (procDef_ && !list.Text().empty()) {
        if (auto* argument = procDef_->ProcArguments->Items.Find(list.Text()))
            notOptionalBefore_ = !(*argument)->IsOptional;
    }
    OptionalSet();
}

void frmVar::OptionalSet() {
    if (!procDef_) return;
    auto& arguments = procDef_->ProcArguments->Items;
    auto& optional = Controls(u"chkOptional");
    long index = Controls(u"cboArgument").ListIndex();
    refreshing_ = true;
    if (index > 1) {
        // The argument in front of the chosen one decides.
        bool before = arguments.Item(index - 1)->IsOptional;
        if (before)
            optional.Value(dialogs::vbChecked);
        else if (optional.Value() == dialogs::vbChecked)
            optional.Value(dialogs::vbUnchecked);
    } else if (index <= 0 && arguments.Count() > 0 && arguments.Item(arguments.Count())->IsOptional &&
               optional.Value() != dialogs::vbChecked) {
        optional.Value(dialogs::vbChecked);
    }
    refreshing_ = false;
}

void frmVar::txtLength_KeyPress(long& keyAscii) {
    if (keyAscii < u'0' || keyAscii > u'9') keyAscii = 0;
}

void frmVar::SetControlsState() {
    if (refreshing_) return;
    refreshing_ = true;
    struct Done {
        bool& flag;
        ~Done() { flag = false; }
    } done{refreshing_};
    auto set = [this](const Str& name, bool enabled) { Controls(name).Enabled = enabled; };
    auto clearIfOff = [this](const Str& name) {
        auto& box = Controls(name);
        if (!box.Enabled && box.Value() != dialogs::vbUnchecked) box.Value(dialogs::vbUnchecked);
    };
    long level = VarLevel();
    bool interface = level == 2;
    if (!isChecked(u"chkArray")) Controls(u"txtDimensions").Text(u"");
    set(u"fraInterface", interface);
    bool paramArray = isChecked(u"chkParamArray");
    set(u"chkByVal", interface && !paramArray);
    set(u"chkOptional", interface && !paramArray && !isChecked(u"chkArray") && !notOptionalBefore_);
    set(u"chkParamArray", interface && Controls(u"cboArgument").Text().empty() && !isChecked(u"chkOptional") &&
                              !isChecked(u"chkArray") && !isChecked(u"chkByVal"));
    set(u"cboArgument", interface && !paramArray);
    set(u"lblBefore", Controls(u"cboArgument").Enabled);
    set(u"txtDefault", interface && isChecked(u"chkOptional"));
    for (const char16_t* box : {u"chkByVal", u"chkOptional", u"chkParamArray"}) clearIfOff(box);
    if (!Controls(u"cboArgument").Enabled && Controls(u"cboArgument").ListIndex() != -1)
        Controls(u"cboArgument").ListIndex(-1);
    if (!Controls(u"txtDefault").Enabled) Controls(u"txtDefault").Text(u"");
    set(u"chkArray", !isChecked(u"chkOptional") && !isChecked(u"chkParamArray"));
    set(u"txtDimensions", isChecked(u"chkArray") && !interface);
    set(u"lblDimensions", Controls(u"txtDimensions").Enabled);
    bool moduleFree = level == 0 || !place_.inProcedure;
    set(u"lblModule", moduleFree);
    set(u"cboModule", moduleFree);
    if (!moduleFree) {
        if (auto pane = ctx_.VBInstance->ActiveCodePane()) Controls(u"cboModule").Text(pane->CodeModule()->Parent()->Name());
    }
    Str type = typeText();
    set(u"txtLength", is(type, u"String") && !interface);
    set(u"lblLength", Controls(u"txtLength").Enabled);
    if (!Controls(u"txtLength").Enabled) Controls(u"txtLength").Text(u"");
    if (!Controls(u"txtDimensions").Enabled) Controls(u"txtDimensions").Text(u"");
    auto known = [](const auto& collection, const auto& project, const Str& name) {
        return collection.Exists(name) || (project && project->Exists(name));
    };
    std::function<bool(const Str&)> isEnum = [&](const Str& n) { return known(lists_.ModuleEnums, ctx_.Scan.ProjectEnums, n); };
    std::function<bool(const Str&)> isType = [&](const Str& n) { return known(lists_.ModuleTypes, ctx_.Scan.ProjectTypes, n); };
    bool object = source::TypeIsObject(type, isEnum, isType) && !interface && place_.inProcedure;
    set(u"fraObject", object && !is(type, u"Object"));
    for (const char16_t* box : {u"chkNew", u"chkNothing", u"chkWith"}) {
        set(box, object && !is(type, u"Object"));
        clearIfOff(box);
    }
}

}  // namespace quillet::builders
