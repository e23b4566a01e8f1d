// Error handler templates for one procedure.

#include "fragments/error_handler_code.h"

#include "basic/strings.h"
#include "fragments/placeholders.h"
#include "settings/catalogue.h"
#include "settings/ini_vars.h"

namespace quillet::fragments {

using basic::Compare;

namespace {

// A name inside a string: `"name` and `name"` become the constant joined to the string's rest.
void nameAsConstant(Str& text, const Str& name, const Str& constant) {
    if (name.empty() || constant.empty()) return;
    text = basic::Replace(text, u"\"" + name, u"\"\" & " + constant + u" & \"", 1, -1, Compare::Text);
    text = basic::Replace(text, name + u"\"", u"\" & " + constant + u" & \"\"", 1, -1, Compare::Text);
}

}  // namespace

void NormalizeErrorHandlerCode(core::Context& ctx, Str& rstrText, const Str& vstrModule, const Str& vstrProc,
                               const Str& vstrType, bool fModuleConst, bool fProcConst) {
    Str module = vstrModule, proc = vstrProc, type = vstrType;
    Substitute(ctx, rstrText, module, proc, type);
    auto& settings = *ctx.IniSettings;
    if (fModuleConst) nameAsConstant(rstrText, module, settings::IniText(settings, settings::iiModuleNameConstant));
    if (fProcConst) nameAsConstant(rstrText, proc, settings::IniText(settings, settings::iiProcedureNameConstant));
    rstrText = basic::Replace(rstrText, u"\"\" & ", u"");
    rstrText = basic::Replace(rstrText, u" & \"\"", u"");
}

}  // namespace quillet::fragments
