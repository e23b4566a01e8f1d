// The Procedure Builder's argument list and its OK: the model filled from the controls, every
// check, and only then the module.

#include <map>

#include "core/err_handler.h"
#include "core/command_env.h"
#include "builders/frm_procedure.h"
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

source::clsArgumentPtr argumentNumbered(source::colArguments& arguments, long number) {
    for (auto& argument : arguments.Items)
        if (argument->Number == number) return argument;
    return nullptr;
}

}  // namespace

void frmProcedure::ArgumentsList(long lngIndex) {
    auto& list = Controls(u"lstArguments");
    list.Clear();
    auto& arguments = procedure_->Arguments();
    std::vector<Str> byNumber(arguments.Count());
    for (const auto& argument : arguments.Items)
        if (argument->Number >= 1 && argument->Number <= arguments.Count())
            byNumber[argument->Number - 1] = argument->ArgumentString();
    for (const auto& entry : byNumber) list.AddItem(entry);
    if (lngIndex >= 0 && lngIndex < list.ListCount()) list.ListIndex(lngIndex);
    SetControlsState();
}

void frmProcedure::cmdNewArg_Click() {
    if (!argumentForm_) {
        argumentForm_ = std::make_unique<frmArgument>(ctx_);
        argumentForm_->ParentForm = this;
        auto& source = Controls(u"cboReturnValueType");
        auto& target = argumentForm_->Controls(u"cboDataType");
        for (const auto& entry : source.Entries()) {
            target.AddItem(entry.text);
            target.ItemData(target.ListCount() - 1, entry.itemData);
        }
        long string = source::FindInList(target, u"String");
        if (string >= 0) target.ListIndex(string);
    }
    argumentForm_->Show(dialogs::vbModal);
}

void frmProcedure::cmdDelArg_Click() {
    auto& list = Controls(u"lstArguments");
    long index = list.ListIndex();
    if (index < 0) return;
    if (MsgBox(u"Delete '" + list.List(index) + u"'?", 36, source::kProductTitle) != 6) return;
    auto& arguments = procedure_->Arguments();
    auto argument = argumentNumbered(arguments, index + 1);
    if (!argument) return;
    arguments.Remove(argument->ID);
    procedure_->ArgumentsRenumber(index + 1);
    ArgumentsList(std::min(index, arguments.Count() - 1));
}

void frmProcedure::moveArgument(long step) {
    long index = Controls(u"lstArguments").ListIndex();
    if (index < 0) return;
    auto& arguments = procedure_->Arguments();
    auto argument = argumentNumbered(arguments, index + 1);
    auto neighbour = argumentNumbered(arguments, index + 1 + step);
    if (!argument || !neighbour) return;
    std::swap(argument->Number, neighbour->Number);
    ArgumentsList(index + step);
}

void frmProcedure::fillModel() {
    auto& p = *procedure_;
    p.Name = basic::Trim(Controls(u"txtName").Text());
    p.ModuleName = basic::Trim(Controls(u"cboModule").Text());
    auto& returnType = Controls(u"cboReturnValueType");
    Str type = basic::Trim(returnType.Text());
    p.ReturnValueType = returnType.Enabled && !is(type, source::kNone) ? type : Str();
    p.ProcType = Controls(u"cboProcType").Text();
    p.PropertyType.clear();
    p.AccessibleType = Controls(u"cboAccessibility").Text();
    p.IncludeComment = ticked(*this, u"chkAddHeader");
    p.IncludeHourglass = Controls(u"chkAddHourglass").Enabled && ticked(*this, u"chkAddHourglass");
    p.ModuleNameConstant = ticked(*this, u"chkAddModuleConstant");
    p.ProcedureNameConstant = ticked(*this, u"chkAddProcedureConstant");
    p.AddReturnStatement = ticked(*this, u"chkAddReturnStatement");
    p.ArgumentsOnSeparateLine = ticked(*this, u"chkArgumentsOnSeparateLine");
    p.IncludeErrorHandler = HasErrorHandler();
    p.IsStatic = IsStatic();
    p.Description = Controls(u"txtDescription").Text();
}

bool frmProcedure::PressOk() {
    fillModel();
    if (!ProcBuild()) return false;
    auto& p = *procedure_;
    if (!mfIsMethod_) {
        p.Create(strProcedureText_, ctx_.VBInstance->ActiveVBProject(), AddProcedureToEndOfModule,
                 SetCursorToProcedure);
        if (p.ModuleNameConstant) {
            auto env = core::codeEnvOf(ctx_);
            source::ModuleNameConstantAdd(env, p.ModuleName, false);
        }
    }
    if (!p.Name.empty()) {
        ctx_.Platform().ClipboardClear();
        ctx_.Platform().ClipboardSetText(p.Name);
    }
    return true;
}

bool frmProcedure::ProcBuild() {
    auto& p = *procedure_;
    Str name = basic::Trim(Controls(u"txtName").Text());
    source::NameCheckEnv checkEnv{*ctx_.VBInstance, ctx_.Platform(), ctx_.Keywords};
    basic::Collection<source::C4_ProcDefPtr> moduleProcs;
    if (auto component = source::componentNamed(*ctx_.VBInstance, basic::Trim(Controls(u"cboModule").Text())))
        moduleProcs = source::ModuleProperProcsGet(ctx_.scanEnv(), component, true);
    source::NameLookups lookups{source::lookupIn(moduleProcs)};
    if (ctx_.Scan.ProjectProcs) lookups.push_back(source::lookupIn(*ctx_.Scan.ProjectProcs));
    long answer = source::CheckNewNameIsOK(checkEnv, name, false, false, lookups);
    if (!nameAnswerAccepted(*this, FocusedControl, answer)) return false;
    if (long order = p.ArgumentsOrderIsBad(); order != 0) {
        Str second = order == 1 ? u"After the optional argument all subsequent arguments must also be optional."
                                : u"ParamArray argument is used only as the last argument.";
        MsgBox(u"Please reorder the arguments list.\r\n" + second, 48, source::kProductTitle);
        return false;
    }
    if (HasErrorHandler()) {
        p.ErrorHandlerFile = Controls(u"cboAddErrorHandler").Text();
        p.ErrorHandler = source::ErrorHandlerFileRead(*ctx_.IniSettings, p.ErrorHandlerFile);
    }
    if (mfIsMethod_) return methodBuild();
    if (!moduleResolved()) return false;
    strProcedureText_ = p.GenerateCode();
    return !strProcedureText_.empty();
}

// The target module: a new one is named and made now, after every other check has passed.
bool frmProcedure::moduleResolved() {
    auto& p = *procedure_;
    auto env = core::codeEnvOf(ctx_);
    Str m = basic::Trim(Controls(u"cboModule").Text());
    if (m.empty()) {
        // No module named: the procedure goes to the module the user works in.
        auto active = ctx_.VBInstance->SelectedVBComponent();
        if (!active) return false;
        p.ModuleName = m = active->Name();
    }
    bool standard = is(m, source::kNewModule);
    if (standard || is(m, source::kNewClassModule)) {
        auto answer = InputBox(standard ? u"Name of Module" : u"Name of Class Module", source::kProductTitle);
        if (!answer || basic::Trim(*answer).empty()) return false;
        p.ModuleName = source::ModuleCreate(env, basic::Trim(*answer), standard ? 1 : 2);
        return !p.ModuleName.empty();
    }
    if (!source::componentNamed(*ctx_.VBInstance, m)) {
        if (MsgBox(u"Create module " + m + u"?", 33, source::kProductTitle) != 1) return false;
        p.ModuleName = source::ModuleCreate(env, m, 1);
        return !p.ModuleName.empty();
    }
    return true;
}

void OpenProcedureBuilder(core::Context& ctx, const std::vector<Str>& args) {
    core::guarded(ctx, u"frmProcedure.Open", [&] {
        core::ProjectRefresh(ctx);
        auto& form = ctx.Forms->Adopt(std::make_unique<frmProcedure>(ctx));
        form.Init(!args.empty() && is(args[0], u"method"));
        // Modal, except in testing mode, where the add-in's own tests drive it modeless.
        form.Show(ctx.ShowMode);
    });
}

}  // namespace quillet::builders
