#include "builders/builder_registry.h"

#include "builders/frm_class.h"
#include "builders/frm_const.h"
#include "builders/frm_enum_or_type.h"
#include "builders/frm_input_box.h"
#include "builders/frm_item_add.h"
#include "builders/frm_select_table.h"
#include "builders/frm_procedure.h"
#include "builders/frm_property.h"
#include "builders/frm_var.h"

namespace quillet::builders {

void RegisterBuilder(core::Context& ctx, const Str& formName, dialogs::FormStack::Opener opener) {
    ctx.Forms->Register(formName, std::move(opener));
    ctx.routines[formName] = [formName](core::Context& context, const Str& argument) {
        std::vector<Str> args;
        if (!argument.empty()) args.push_back(argument);
        context.Forms->Open(formName, args);
    };
}

void RegisterBuilders(core::Context& ctx) {
    // Each builder adds itself here as it comes.
    RegisterBuilder(ctx, u"frmProcedure", [&ctx](const std::vector<Str>& args) { OpenProcedureBuilder(ctx, args); });
    RegisterBuilder(ctx, u"frmProperty", [&ctx](const std::vector<Str>& args) { OpenPropertyBuilder(ctx, args); });
    RegisterBuilder(ctx, u"frmClass", [&ctx](const std::vector<Str>& args) { OpenClassBuilder(ctx, args); });
    RegisterBuilder(ctx, u"frmVar", [&ctx](const std::vector<Str>& args) { OpenVariableBuilder(ctx, args); });
    RegisterBuilder(ctx, u"frmConst", [&ctx](const std::vector<Str>& args) { OpenConstantBuilder(ctx, args); });
    RegisterBuilder(ctx, u"frmInputBox", [&ctx](const std::vector<Str>& args) { OpenInputBox(ctx, args); });
    RegisterBuilder(ctx, u"frmEnumOrType", [&ctx](const std::vector<Str>& args) { OpenEnumOrTypeBuilder(ctx, args); });
    RegisterBuilder(ctx, u"frmItemAdd", [&ctx](const std::vector<Str>& args) { OpenItemAdd(ctx, args); });
    RegisterBuilder(ctx, u"frmSelectTableAndFields",
                    [&ctx](const std::vector<Str>& args) { OpenSelectTableAndFields(ctx, args); });
}

}  // namespace quillet::builders
