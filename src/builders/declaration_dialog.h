#pragma once
// What the declaration dialogs (the Variable and Constant Builders, the Enum and Type Builders,
// Add Item) have in common: the context, the help button's link, the declarations of the project
// at the caret, and the guarded run of a step of the dialog's code.

#include <functional>

#include "builders/declaration_context.h"
#include "core/context.h"
#include "core/err_handler.h"
#include "dialogs/form.h"
#include "support/cls_html_help.h"

namespace quillet::builders {

class DeclarationDialog : public dialogs::Form {
public:
    const DeclarationLists& Lists() const { return lists_; }

protected:
    DeclarationDialog(core::Context& ctx, const Str& name) : Form(name), ctx_(ctx) {}

    // Runs a step; a failure is reported as the dialog's method's ("frmConst.PressOK") and goes no
    // further.
    void guard(const Str& method, const std::function<void()>& statement) {
        core::guarded(ctx_, Name() + u"." + method, statement);
    }

    core::Context& ctx_;
    support::clsHtmlHelpForForm help_;
    DeclarationLists lists_;
};

}  // namespace quillet::builders
