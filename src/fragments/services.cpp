#include "fragments/services.h"

#include "fragments/error_handler_code.h"
#include "fragments/error_module.h"
#include "fragments/markers.h"
#include "fragments/placeholders.h"

namespace quillet::fragments {

void FragmentServicesInstall(core::Context& ctx) {
    ctx.Fragments.ExpandHeader = ExpandHeader;
    ctx.Fragments.ErrorHandleModuleAdd = ErrorHandleModuleAdd;
    ctx.Fragments.NormalizeErrorHandlerCode = NormalizeErrorHandlerCode;
    ctx.Fragments.FragmentToProcedureAdd = FragmentToProcedureAdd;
}

}  // namespace quillet::fragments
