// The Property Builder's OK: the model filled from the controls, the name and module checked,
// and only then the class module written (or, in class mode, the class's properties updated).

#include "core/err_handler.h"
#include "core/command_env.h"
#include "builders/frm_property.h"
#include "builders/name_answer.h"
#include "source/code_placing.h"
#include "source/error_handler_files.h"
#include "source/name_checks.h"
#include "source/scan_module.h"
#include "source/type_lists.h"

namespace quillet::builders {

namespace {

bool is(const Str& a, const Str& b) { return basic::StrComp(a, b, basic::Compare::Text) == 0; }

bool ticked(dialogs::Form& form, const Str& box) { return form.Controls(box).Value() == dialogs::vbChecked; }

// Whether a member of the list other than `except` has that name.
template <class C>
source::NameLookup namesIn(C& members, const void* except) {
    return [&members, except](const Str& name) {
        for (const auto& member : members.Items)
            if (member.get() != except && is(member->Name, name)) return true;
        return false;
    };
}

}  // namespace

basic::Collection<source::C4_ProcDefPtr> frmProperty::ModuleProcsGet() {
    auto component = source::componentNamed(*ctx_.VBInstance, basic::Trim(Controls(u"cboModule").Text()));
    if (!component) return {};
    return source::ModuleProperProcsGet(ctx_.scanEnv(), component, true);
}

void frmProperty::ErrorHandlerGet() {
    property_->ErrorHandlerFile = Controls(u"cboAddErrorHandler").Text();
    property_->ErrorHandler = source::ErrorHandlerFileRead(*ctx_.IniSettings, property_->ErrorHandlerFile);
}

void frmProperty::fillModel() {
    auto& p = *property_;
    p.Name = basic::Trim(Controls(u"txtName").Text());
    auto& types = Controls(u"cboDataType");
    Str type = basic::Trim(types.Text());
    p.datatype = is(type, source::kNone) ? Str() : type;
    long index = types.ListIndex();
    p.DataType2 = index >= 0 && types.List(index) == types.Text() ? types.ItemData(index) : 0;
    p.GetPart = ticked(*this, u"chkGet");
    p.SetPart = ticked(*this, u"chkSet");
    p.Description = Controls(u"txtDescription").Text();
    SetAccessibilityInProcedureAndCombo();
    p.IsStatic = IsStatic();
    p.IncludeErrorHandler = HasErrorHandler();
    p.IncludeHeader = ticked(*this, u"chkAddHeader");
    p.IncludeHourglass = Controls(u"chkAddHourglass").Enabled && ticked(*this, u"chkAddHourglass");
    p.ProcedureNameConstant = ticked(*this, u"chkAddProcedureConstant");
    p.ModuleNameConstant = ticked(*this, u"chkAddModuleConstant");
    p.ModuleName = basic::Trim(Controls(u"cboModule").Text());
}

bool frmProperty::nameAccepted(const Str& name) {
    source::NameCheckEnv checkEnv{*ctx_.VBInstance, ctx_.Platform(), ctx_.Keywords};
    source::NameLookups lookups;
    basic::Collection<source::C4_ProcDefPtr> moduleProcs;
    if (auto* owner = classOwner()) {
        lookups.push_back(namesIn(owner->Properties(), owner->SelectedProperty()));
        lookups.push_back(namesIn(owner->Methods(), nullptr));
    } else {
        moduleProcs = ModuleProcsGet();
        lookups.push_back(source::lookupIn(moduleProcs));
    }
    long answer = source::CheckNewNameIsOK(checkEnv, name, false, false, lookups);
    return nameAnswerAccepted(*this, FocusedControl, answer);
}

// The class module the property goes to: "<New Class Module>" asks for a name, an unknown name
// asks whether to make it; made now, after every other check has passed.
bool frmProperty::moduleResolved() {
    auto& p = *property_;
    auto env = core::codeEnvOf(ctx_);
    Str m = p.ModuleName;
    if (is(m, source::kNewClassModule)) {
        auto answer = InputBox(u"Name of Class Module", source::kProductTitle);
        if (!answer || basic::Trim(*answer).empty()) return false;
        p.ModuleName = source::ModuleCreate(env, basic::Trim(*answer), host::vbext_ct_ClassModule);
        return !p.ModuleName.empty();
    }
    if (!source::componentNamed(*ctx_.VBInstance, m)) {
        if (MsgBox(u"Create class module " + m + u"?", 33, source::kProductTitle) != 1) return false;
        p.ModuleName = source::ModuleCreate(env, m, host::vbext_ct_ClassModule);
        return !p.ModuleName.empty();
    }
    return true;
}

// The word the dialog took from the caret becomes the property's name where it stands, when
// the caret's pane is still the active one and the word still stands there.
void frmProperty::pickedWordReplace() {
    if (pickedWord_.empty() || !pickedPane_) return;
    Str word = pickedWord_;
    pickedWord_.clear();
    auto active = ctx_.VBInstance->ActiveCodePane();
    if (!active || active->CodeModule()->Parent()->Name() != pickedPane_->CodeModule()->Parent()->Name()) return;
    auto module = active->CodeModule();
    if (pickedLine_ < 1 || pickedLine_ > module->CountOfLines()) return;
    Str line = module->Lines(pickedLine_, 1);
    long start = 0;
    if (pickedEnd_ > pickedStart_) {
        if (basic::Mid(line, pickedStart_, pickedEnd_ - pickedStart_) != word) return;
        start = pickedStart_;
    } else {
        for (long at = basic::InStr(1, line, word); at > 0; at = basic::InStr(at + 1, line, word))
            if (at <= pickedStart_ && pickedStart_ <= at + basic::Len(word)) start = at;
    }
    if (start == 0) return;
    active->SetSelection(pickedLine_, start, pickedLine_, start + basic::Len(word));
    auto env = core::codeEnvOf(ctx_);
    source::InstanceAdd(env, active, property_->Name);
}

bool frmProperty::PressOK() {
    Str name = basic::Trim(Controls(u"txtName").Text());
    if (!nameAccepted(name)) return false;
    auto* owner = classOwner();
    if (!owner && basic::Trim(Controls(u"cboModule").Text()).empty()) {
        MsgBox(u"Missing Class Module Name.", 48, source::kProductTitle);
        FocusedControl = u"cboModule";
        return false;
    }
    fillModel();
    auto& p = *property_;
    if (p.IncludeErrorHandler) ErrorHandlerGet();
    if (owner) {
        auto* edited = owner->SelectedProperty();
        if (edited) {
            PropertyCopy(p, *edited);
        } else {
            auto added = std::make_shared<generators::clsProperty>(ctx_);
            PropertyCopy(p, *added);
            owner->Properties().Add(added);
        }
        owner->PropertiesList(edited == nullptr);
        return true;
    }
    if (!moduleResolved()) return false;
    pickedWordReplace();
    if (p.ModuleNameConstant) {
        auto env = core::codeEnvOf(ctx_);
        source::ModuleNameConstantAdd(env, p.ModuleName, false);
    }
    return generators::BuildPropCodeLines(ctx_, p, AddProcedureToEndOfModule);
}

void OpenPropertyBuilder(core::Context& ctx, const std::vector<Str>& args) {
    core::guarded(ctx, u"frmProperty.Open", [&] {
        core::ProjectRefresh(ctx);
        auto& form = ctx.Forms->Adopt(std::make_unique<frmProperty>(ctx));
        form.Init(args.empty() ? Str() : args[0]);
        form.Show(ctx.ShowMode);
    });
}

}  // namespace quillet::builders
