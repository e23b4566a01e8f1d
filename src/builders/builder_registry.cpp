#include "builders/builder_registry.h"

#include "builders/frm_procedure.h"
#include "builders/frm_var.h"

namespace quillet::builders {

void RegisterBuilder(addin::Context& ctx, const Str& formName, dialogs::FormStack::Opener opener) {
    ctx.Forms->Register(formName, std::move(opener));
    ctx.routines[formName] = [formName](addin::Context& context, const Str& argument) {
        std::vector<Str> args;
        if (!argument.empty()) args.push_back(argument);
        context.Forms->Open(formName, args);
    };
}

void RegisterBuilders(addin::Context& ctx) {
    // Each builder adds itself here as it comes.
    RegisterBuilder(ctx, u"frmProcedure", [&ctx](const std::vector<Str>& args) { OpenProcedureBuilder(ctx, args); });
    RegisterBuilder(ctx, u"frmVar", [&ctx](const std::vector<Str>& args) { OpenVariableBuilder(ctx, args); });
}

}  // namespace quillet::builders
