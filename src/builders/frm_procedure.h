#pragma once
// The Procedure Builder: collects a clsProcedure (name, kind, access, return type, arguments,
// options), checks it, and puts its code into a module; in Method Builder mode the procedure goes
// to the class the Class Builder is building. Nothing reaches a module before every check passed.

#include <memory>

#include "builders/frm_argument.h"
#include "dialogs/form.h"
#include "support/cls_html_help.h"
#include "generators/cls_procedure.h"

namespace quillet::builders {

// The Class Builder as the Method Builder's parent: the class under construction, its methods,
// and the method selected for editing.
class MethodOwner {
public:
    virtual ~MethodOwner() = default;
    virtual Str ClassName() = 0;
    // The method under edit, or none for a new one.
    virtual generators::clsProcedure* SelectedMethod() = 0;
    virtual generators::colProcedures& Methods() = 0;
    // The class declares and uses its module name constant.
    virtual void ModuleNameConstant(bool value) = 0;
    // Refills the list of methods; with selectLast its last entry is selected.
    virtual void MethodsList(bool selectLast) = 0;
};

// Copies every field of a procedure, its arguments included, over another's (ID stays).
void ProcedureCopy(generators::clsProcedure& from, generators::clsProcedure& to);

class frmProcedure : public dialogs::Form, public ProcedureOwner {
public:
    explicit frmProcedure(core::Context& ctx);
    ~frmProcedure() override;

    // Called before the dialog shows.
    void Init(bool mfIsMethod);
    // Set by the caller before Show.
    bool AddProcedureToEndOfModule = false;
    bool SetCursorToProcedure = true;

    generators::clsProcedure& Procedure() override { return *procedure_; }
    void ArgumentsList(long lngIndex) override;
    bool PressOk();
    bool ProcBuild();

    // 0 empty, 1 Public, 2 Private, 3 Friend: list and model in step.
    long Accessibility();
    void Accessibility(long value);
    bool HasErrorHandler();
    bool IsStatic();
    const Str& ProcedureText() const { return strProcedureText_; }

protected:
    void Form_Unload() override;
    void Form_Activate() override;

private:
    void addControls();
    void hookEvents();
    void GetOptions();
    void LoadCombos();
    void SetControlsState();
    void AccessibilitySet();
    void AccessibilityComboBoxFill(bool fFriend);
    bool friendAllowed();
    void cboModule_Click();
    void cmdNewArg_Click();
    void cmdDelArg_Click();
    void moveArgument(long step);
    void fillModel();
    MethodOwner* classOwner();
    void methodInit();
    void methodShow(generators::clsProcedure& method);
    bool methodBuild();
    bool moduleResolved();
    void guard(const Str& method, const std::function<void()>& statement);
    // A check box that remembers its value while it is disabled.
    void stateOf(const Str& box, bool enabled, bool& remembered);

    core::Context& ctx_;
    support::clsHtmlHelpForForm help_;
    bool mfIsMethod_ = false;
    std::unique_ptr<generators::clsProcedure> procedure_;
    std::unique_ptr<frmArgument> argumentForm_;
    Str strProcedureText_;
    Str errorHandlerSetting_;
    bool moduleQuiet_ = false;
    bool AddReturnStatement_ = false;
    bool ArgumentsOnSeparateLine_ = false;
};

// Opens the Procedure Builder as the command "Add Procedure" does; an argument "method" opens it
// in Method Builder mode.
void OpenProcedureBuilder(core::Context& ctx, const std::vector<Str>& args);

}  // namespace quillet::builders
