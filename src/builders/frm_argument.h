#pragma once
// The Argument Builder: adds one argument at a time to the procedure of the dialog that opened it.
// It proposes the name's prefix as the user types, offers the default values that fit the type,
// and keeps Optional, ParamArray and arrays within Basic's rules.

#include <memory>

#include "core/context.h"
#include "dialogs/form.h"
#include "support/cls_html_help.h"
#include "generators/cls_procedure.h"

namespace quillet::builders {

using basic::Str;

// A dialog that builds a procedure and lists its arguments: the parent of frmArgument.
class ProcedureOwner {
public:
    virtual ~ProcedureOwner() = default;
    virtual generators::clsProcedure& Procedure() = 0;
    // Refills the argument list and selects the entry lngIndex.
    virtual void ArgumentsList(long lngIndex) = 0;
};

class frmArgument : public dialogs::Form {
public:
    explicit frmArgument(core::Context& ctx);

    // The pair optByVal: True when "By&Val" is on.
    bool chkByVal();
    void chkByVal(bool value);
    void chkByVal_Enabled(bool enabled);

    // Scans the current module and procedure, for the constants the default values come from.
    void InitVariables();
    // Adds the argument to the parent's procedure; False (the dialog stays) when the name is refused.
    bool PressOK();

protected:
    void Form_Unload() override;
    void Form_Load() override;
    void Form_Activate() override;

private:
    void addControls();
    void hookEvents();
    ProcedureOwner& owner();
    void ResetControls();
    void DefaultValuesList();
    void ArgumentFlagsCheck();
    void NameUpdate();
    long scopeCode();
    void chkArray_Click();
    void chkOptional_Click();
    void chkParamArray_Click();
    void txtName_Change();
    void cboDefaultValue_Click();
    void guard(const Str& method, const std::function<void()>& statement);

    core::Context& ctx_;
    support::clsHtmlHelpForForm help_;
    std::shared_ptr<source::clsScanModule> scanModule_;
    std::shared_ptr<source::clsScanProc> scanProc_;
    bool nameQuiet_ = false;
    bool prefixUpdate_ = true;
    Str lastProposal_;
};

}  // namespace quillet::builders
