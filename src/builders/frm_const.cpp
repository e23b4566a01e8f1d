#include "builders/frm_const.h"

#include "core/command_env.h"
#include "core/err_handler.h"
#include "source/code_placing.h"
#include "source/const_values.h"
#include "source/decl_blocks.h"
#include "source/prefixes.h"
#include "source/type_lists.h"
#include "source/words.h"
#include "support/cls_combo_expand.h"

namespace quillet::builders {

using dialogs::ControlKind;

namespace {

bool is(const Str& a, const Str& b) { return basic::StrComp(a, b, basic::Compare::Text) == 0; }

}  // namespace

frmConst::frmConst(core::Context& ctx) : DeclarationDialog(ctx, u"frmConst") {
    Caption = u"Constant Builder";
    addControls();
    hookEvents();
    HelpContextID = support::help_topics::ConstantBuilder;
    help_.init(*this, Controls(u"cmdHelp"), -1, support::basHTMLHelp(ctx_));
}

frmConst::~frmConst() = default;

void frmConst::addControls() {
    AddControl(u"txtName", ControlKind::TextBox);
    AddObjectNameButton(*this);
    AddControl(u"cboDataType", ControlKind::ComboBox);
    AddControl(u"txtValue", ControlKind::TextBox);
    AddControl(u"cboAccessibility", ControlKind::ComboBox);
    AddControl(u"cboModule", ControlKind::ComboBox);
    AddControl(u"txtDescription", ControlKind::TextBox);
    AddOkPasteButtons(*this);
}

void frmConst::hookEvents() {
    On(u"cboAccessibility_Click", [this] {
        if (refreshing_) return;
        guard(u"cboAccessibility_Click", [this] { PrefixRefresh(); });
    });
    On(u"cboModule_Click", [this] { guard(u"cboModule_Click", [this] { cboModule_Change(); }); });
    On(u"cboModule_Change", [this] { guard(u"cboModule_Change", [this] { cboModule_Change(); }); });
    On(u"cboDataType_Click", [this] { guard(u"cboDataType_Click", [this] { cboDataType_Change(); }); });
    On(u"cboDataType_Change", [this] { guard(u"cboDataType_Change", [this] { cboDataType_Change(); }); });
    On(u"txtName_Change", [this] { guard(u"txtName_Change", [this] { txtName_Change(); }); });
    auto ok = [this](const Str& handler, bool paste) {
        On(handler, [this, handler, paste] {
            bool done = false;
            guard(handler, [&] { done = PressOK(paste); });
            if (done && Loaded()) Unload();
        });
    };
    ok(u"cmdOK_Click", false);
    ok(u"cmdOKAndPaste_Click", true);
    On(u"cmdCancel_Click", [this] { Unload(); });
    On(u"cmdObjectName_Click", [this] { guard(u"cmdObjectName_Click", [this] { ObjectNameOpen(ctx_, {u"const"}); }); });
    Method(u"ArgInsert", [this](const basic::Args& args) {
        ArgInsert(args.empty() ? Str() : basic::CStr(args.at(0)), args.size() > 1 ? basic::CStr(args.at(1)) : Str());
        return basic::Variant{};
    });
    support::clsComboExpand::init(*this, Controls(u"cboDataType"));
}

Str frmConst::typeText() { return basic::Trim(Controls(u"cboDataType").Text()); }

long frmConst::Accessibility() {
    Str text = Controls(u"cboAccessibility").Text();
    if (text == u"Public") return 1;
    if (text == u"Private") return 2;
    return 0;
}

void frmConst::Accessibility(long value) {
    auto& list = Controls(u"cboAccessibility");
    long at = -1;
    if (value == 1 || value == 2) {
        Str wanted = value == 1 ? u"Public" : u"Private";
        for (long i = 0; i < list.ListCount() && at < 0; ++i)
            if (list.List(i) == wanted) at = i;
    }
    if (list.ListCount() > 0) list.ListIndex(at >= 0 ? at : 0);
}

// A constant for another module is one of that module, whatever the caret's place.
long frmConst::VarLevel() { return inProcedure_ && targetIsCurrent_ && Accessibility() == 0 ? 1 : 0; }

void frmConst::Form_Activate() { NameSelectedOnFirstShow(*this, firstShow_); }

void frmConst::Form_Unload() { help_.Terminate(); }

void frmConst::Init(const Str& vstrPredeterminedTypes, bool vfOnlyPredeterminedTypes, const Str& vstrPredefinedName,
                    const Str& vstrPredefinedValue) {
    loading_ = true;
    Controls(u"txtValue").Text(u"");
    for (const char16_t* list : {u"cboAccessibility", u"cboModule", u"cboDataType"}) Controls(list).Clear();
    guard(u"Init", [this] {
        auto env = core::codeEnvOf(ctx_);
        source::qltModulesList(env, Controls(u"cboModule"), 0, {}, true, false);
    });
    guard(u"Init", [&] { contextRead(vstrPredefinedName, vstrPredefinedValue); });
    guard(u"Init", [this] {
        AccessibilityComboBoxFill();
        Accessibility(0);
    });
    guard(u"Init", [&] { typesFill(vstrPredeterminedTypes, vfOnlyPredeterminedTypes); });
    guard(u"Init", [this] { namePrefixOnOpen(); });
    Controls(u"cmdObjectName").Enabled = is(typeText(), u"String");
    guard(u"Init", [this] {
        if (pickedUpValue_.empty()) return;
        Str type = typeText();
        if (type.empty() || source::ValueConvertsTo(pickedUpValue_, type)) Controls(u"txtValue").Text(pickedUpValue_);
    });
    Controls(u"cboDataType").Enabled = !vfOnlyPredeterminedTypes;
    Controls(u"cmdOKAndPaste").Enabled = ParentForm == nullptr;
    if (!HostHasObjectNames(ctx_)) Controls(u"cmdObjectName").Visible = false;
    loading_ = false;
}

void frmConst::contextRead(const Str& predefinedName, const Str& predefinedValue) {
    place_ = CaretPlaceGet(*ctx_.VBInstance);
    bool lent = DeclarationListsRead(ctx_, ParentForm, place_, lists_);
    // A constant asked for by another dialog is one of the module.
    inProcedure_ = ParentForm == nullptr && place_.inProcedure;
    if (!predefinedName.empty() || lent || ParentForm) {
        pickedUpName_ = predefinedName;
        pickedUpValue_ = predefinedValue;
        return;
    }
    pickedUpName_ = source::CurrentWordGet(*ctx_.VBInstance);
    pickedUpValue_ = source::SelectedTextGet(*ctx_.VBInstance);
}

// Inside the current module the level can be that of the procedure (the empty entry) or Private;
// a standard module offers Public. A class that is not the current module offers nothing.
void frmConst::AccessibilityComboBoxFill() {
    auto& list = Controls(u"cboAccessibility");
    long old = list.ListIndex();
    Str module = basic::Trim(Controls(u"cboModule").Text());
    long kind = host::vbext_ct_StdModule;
    bool selected = false;
    if (auto component = module.empty() || module == source::kNewModule ? nullptr
                                                                         : source::componentNamed(*ctx_.VBInstance, module)) {
        kind = component->Type();
        auto current = ctx_.VBInstance->SelectedVBComponent();
        selected = current && current->Name() == component->Name();
    }
    targetIsCurrent_ = selected;
    refreshing_ = true;
    list.Clear();
    if (selected) {
        list.AddItem(u"");
        list.AddItem(u"Private");
    }
    if (kind == host::vbext_ct_StdModule) list.AddItem(u"Public");
    refreshing_ = false;
    if (list.ListCount() > 0) list.ListIndex(old >= 0 && old < list.ListCount() ? old : 0);
}

// The value types and Variant; Variant's values take the kind they read as (ItemData 0).
void frmConst::typesFill(const Str& types, bool only) {
    auto env = core::codeEnvOf(ctx_);
    auto& combo = Controls(u"cboDataType");
    typeByProgram_ = true;
    if (only) {
        source::AddTypeItem(combo, types);
        for (long i = 0; i < combo.ListCount(); ++i) combo.ItemData(i, source::VarTypeOf(combo.List(i)));
    } else {
        Str wanted = types;
        if (wanted.empty()) wanted = source::CaretBlockLine(*ctx_.VBInstance, true) > 0 ? u"Long" : u"String";
        source::DataTypeList(env, combo, false, wanted, false, true);
        combo.AddItem(u"Variant");
        combo.ItemData(combo.ListCount() - 1, 0);
        long at = source::FindInList(combo, wanted);
        if (at >= 0) combo.ListIndex(at);
    }
    typeByProgram_ = false;
}

void frmConst::namePrefixOnOpen() {
    Str name = pickedUpName_;
    long scope = 0;
    Str scopePrefix;
    typeByProgram_ = true;
    source::NameWithPrefix(ctx_.Prefixes, name, u"", &Controls(u"cboDataType"), scope, true, scopePrefix);
    typeByProgram_ = false;
    if (scopePrefix.empty()) {
        scope = Accessibility() == 1 ? source::ScopeGlobal
                : Accessibility() == 2 ? source::ScopeModule
                : VarLevel() == 1      ? source::ScopeLocal
                                       : source::ScopeModule;
        Str unused;
        name = source::NameWithPrefix(ctx_.Prefixes, name, typeText(), nullptr, scope, true, unused);
        prefixFollows_ = true;
    }
    if (scope == source::ScopeGlobal) Accessibility(1);
    firstFive_ = basic::Left(basic::Trim(name), 5);
    nameSet(name);
}

void frmConst::nameSet(const Str& name) {
    nameByProgram_ = true;
    Controls(u"txtName").Text(name);
    nameByProgram_ = false;
}

long frmConst::scopeOfLevel() {
    if (Accessibility() == 1) return source::ScopeGlobal;
    return VarLevel() == 1 ? source::ScopeLocal : source::ScopeModule;
}

void frmConst::PrefixRefresh() {
    if (!prefixFollows_ || loading_) return;
    long scope = scopeOfLevel();
    Str unused;
    nameSet(source::NameWithPrefix(ctx_.Prefixes, basic::Trim(Controls(u"txtName").Text()), typeText(), nullptr, scope,
                                   true, unused));
}

void frmConst::ArgInsert(const Str& vstrValue, const Str&) {
    Str name = basic::Trim(Controls(u"txtName").Text());
    Str prefix, type, rest;
    long scope = 0;
    source::PrefixesCheck(ctx_.Prefixes, name, prefix, type, scope, true, rest);
    if (!prefix.empty() && basic::Trim(rest).empty()) nameSet(name + vstrValue);
    Controls(u"txtValue").Text(vstrValue);
}

void frmConst::cboDataType_Change() {
    if (typeByProgram_ || refreshing_ || loading_) return;
    typeChosenByUser_ = true;
    Controls(u"cmdObjectName").Enabled = is(typeText(), u"String");
    PrefixRefresh();
}

void frmConst::cboModule_Change() {
    if (loading_) return;
    AccessibilityComboBoxFill();
    PrefixRefresh();
}

void frmConst::txtName_Change() {
    if (nameByProgram_ || prefixChecking_) return;
    prefixFollows_ = false;
    Str name = basic::Trim(Controls(u"txtName").Text());
    bool examine = basic::Len(name) < 6 || firstFive_.empty() ||
                   !basic::Like(name, firstFive_ + u"*", basic::Compare::Binary);
    if (!examine) return;
    prefixChecking_ = true;
    struct Done {
        bool& flag;
        ~Done() { flag = false; }
    } done{prefixChecking_};
    long scope = 0;
    Str scopePrefix;
    if (!typeChosenByUser_) {
        typeByProgram_ = true;
        source::NameWithPrefix(ctx_.Prefixes, name, u"", &Controls(u"cboDataType"), scope, true, scopePrefix);
        typeByProgram_ = false;
        Controls(u"cmdObjectName").Enabled = is(typeText(), u"String");
    } else {
        Str prefix, type, rest;
        source::PrefixesCheck(ctx_.Prefixes, name, prefix, type, scope, true, rest);
    }
    if (scope == source::ScopeGlobal || scope == source::ScopeModule) {
        refreshing_ = true;
        Accessibility(scope);
        refreshing_ = false;
    }
    firstFive_ = basic::Left(name, 5);
}

}  // namespace quillet::builders
