// The Procedure Builder in Method Builder mode: the class the Class Builder builds is the target,
// a selected method is shown for editing and written back, a new one joins the class's methods.

#include "core/err_handler.h"
#include "builders/frm_procedure.h"
#include "builders/list_choice.h"
#include "source/type_lists.h"

namespace quillet::builders {

namespace {

long checkValue(bool on) { return on ? dialogs::vbChecked : dialogs::vbUnchecked; }

}  // namespace

void ProcedureCopy(generators::clsProcedure& from, generators::clsProcedure& to) {
    Str id = to.ID;
    to.Name = from.Name;
    to.AccessibleType = from.AccessibleType;
    to.ProcType = from.ProcType;
    to.PropertyType = from.PropertyType;
    to.ReturnValueType = from.ReturnValueType;
    to.IsStatic = from.IsStatic;
    to.ModuleName = from.ModuleName;
    to.ModuleType = from.ModuleType;
    to.IncludeComment = from.IncludeComment;
    to.IncludeErrorHandler = from.IncludeErrorHandler;
    to.ErrorHandlerFile = from.ErrorHandlerFile;
    to.ErrorHandler = from.ErrorHandler;
    to.IncludeHourglass = from.IncludeHourglass;
    to.Description = from.Description;
    to.ModuleNameConstant = from.ModuleNameConstant;
    to.ProcedureNameConstant = from.ProcedureNameConstant;
    to.AddReturnStatement = from.AddReturnStatement;
    to.ArgumentsOnSeparateLine = from.ArgumentsOnSeparateLine;
    to.ID = id;
    auto& target = to.Arguments();
    while (target.Count() > 0) target.Remove(1);
    for (const auto& a : from.Arguments().Items)
        target.Add(a->Name, a->ValueType, a->IsOptional, a->DefaultValue, a->IsArray, a->IsParamArray, a->Number,
                   a->IsByVal, a->ID);
}

MethodOwner* frmProcedure::classOwner() { return dynamic_cast<MethodOwner*>(ParentForm); }

void frmProcedure::methodInit() {
    Caption = u"Method Builder";
    auto* owner = classOwner();
    if (!owner) return;
    auto& module = Controls(u"cboModule");
    moduleQuiet_ = true;
    module.Clear();
    module.AddItem(owner->ClassName());
    module.ListIndex(0);
    moduleQuiet_ = false;
}

// The method under edit, in the model and the controls.
void frmProcedure::methodShow(generators::clsProcedure& method) {
    ProcedureCopy(method, *procedure_);
    auto& p = *procedure_;
    Controls(u"txtName").Text(p.Name);
    SelectText(Controls(u"cboProcType"), p.ProcType);
    SelectText(Controls(u"cboReturnValueType"), p.ReturnValueType.empty() ? Str(source::kNone) : p.ReturnValueType);
    Controls(u"cboStatic").ListIndex(p.IsStatic ? 1 : 0);
    Controls(u"txtDescription").Text(p.Description);
    Controls(u"chkAddHeader").Value(checkValue(p.IncludeComment));
    Controls(u"chkAddHourglass").Value(checkValue(p.IncludeHourglass));
    Controls(u"chkAddProcedureConstant").Value(checkValue(p.ProcedureNameConstant));
    Controls(u"chkAddModuleConstant").Value(checkValue(p.ModuleNameConstant));
    AddReturnStatement_ = p.AddReturnStatement;
    ArgumentsOnSeparateLine_ = p.ArgumentsOnSeparateLine;
    auto& handlers = Controls(u"cboAddErrorHandler");
    long handler = p.IncludeErrorHandler ? source::FindInList(handlers, p.ErrorHandlerFile) : 0;
    handlers.ListIndex(handler >= 0 ? handler : 0);
    Str access = p.AccessibleType;
    ArgumentsList(-1);
    Accessibility(AccessIndex(access));
}

// A new method joins the class; one under edit takes this dialog's fields.
bool frmProcedure::methodBuild() {
    auto* owner = classOwner();
    if (!owner) return true;
    auto* edited = owner->SelectedMethod();
    if (edited) {
        ProcedureCopy(*procedure_, *edited);
    } else {
        if (procedure_->ModuleNameConstant) owner->ModuleNameConstant(true);
        auto method = std::make_shared<generators::clsProcedure>(ctx_);
        ProcedureCopy(*procedure_, *method);
        owner->Methods().Add(method);
    }
    owner->MethodsList(edited == nullptr);
    return true;
}

}  // namespace quillet::builders
