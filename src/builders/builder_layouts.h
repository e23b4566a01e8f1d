#pragma once
// The window layouts of the builders' dialogs, for the views that draw them.

#include "dialogs/layout.h"

namespace quillet::builders {

dialogs::FormLayout frmProcedureLayout();
dialogs::FormLayout frmArgumentLayout();
dialogs::FormLayout frmPropertyLayout();
dialogs::FormLayout frmClassLayout();
dialogs::FormLayout frmVarLayout();
dialogs::FormLayout frmConstLayout();
dialogs::FormLayout frmInputBoxLayout();
dialogs::FormLayout frmEnumOrTypeLayout();
dialogs::FormLayout frmItemAddLayout();
dialogs::FormLayout frmSelectTableAndFieldsLayout();

// Adds every builder's layout to the catalogue, by form name.
void AddBuilderLayouts(dialogs::LayoutCatalog& catalog);

}  // namespace quillet::builders
