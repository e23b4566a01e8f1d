#include "builders/builder_layouts.h"

namespace quillet::builders {

void AddBuilderLayouts(dialogs::LayoutCatalog& catalog) {
    catalog.Add(u"frmProcedure", frmProcedureLayout);
    catalog.Add(u"frmArgument", frmArgumentLayout);
    catalog.Add(u"frmProperty", frmPropertyLayout);
    catalog.Add(u"frmClass", frmClassLayout);
    catalog.Add(u"frmVar", frmVarLayout);
}

}  // namespace quillet::builders
