#include "builders/builder_layouts.h"

namespace quillet::builders {

void AddBuilderLayouts(dialogs::LayoutCatalog& catalog) {
    catalog.Add(u"frmProcedure", frmProcedureLayout);
    catalog.Add(u"frmArgument", frmArgumentLayout);
    catalog.Add(u"frmProperty", frmPropertyLayout);
    catalog.Add(u"frmClass", frmClassLayout);
    catalog.Add(u"frmVar", frmVarLayout);
    catalog.Add(u"frmConst", frmConstLayout);
    catalog.Add(u"frmInputBox", frmInputBoxLayout);
    catalog.Add(u"frmEnumOrType", frmEnumOrTypeLayout);
    catalog.Add(u"frmItemAdd", frmItemAddLayout);
    catalog.Add(u"frmSelectTableAndFields", frmSelectTableAndFieldsLayout);
}

}  // namespace quillet::builders
