// The Constant Builder's window: name, type, value (with the Object Name button), level, module
// and comment with their labels in a column; the four buttons in a row at the bottom.

#include "builders/builder_layouts.h"
#include "builders/layout_grid.h"

namespace quillet::builders {

using namespace dialogs;

namespace {

using namespace grid;

using namespace column;
constexpr int kDots = 16;

}  // namespace

FormLayout frmConstLayout() {
    FormLayout layout;
    layout.form = u"frmConst";
    layout.width = kWidth;
    auto& items = layout.items;
    int y = kDluMargin;
    items.push_back(labelAt(u"lblName", u"&Name:", kDluMargin, y, kLabelWidth, u"txtName"));
    items.push_back(placed(u"txtName", {kBoxX, y, kBoxWidth, kDluFieldHeight}));
    y += kRow;
    items.push_back(labelAt(u"lblDataType", u"&Type:", kDluMargin, y, kLabelWidth, u"cboDataType"));
    items.push_back(placedCombo(u"cboDataType", {kBoxX, y, kBoxWidth, kDluFieldHeight}, ComboStyle::Editable));
    y += kRow;
    items.push_back(labelAt(u"lblValue", u"&Value:", kDluMargin, y, kLabelWidth, u"txtValue"));
    items.push_back(placed(u"txtValue", {kBoxX, y, kBoxWidth - kDots - kDluSpacing, kDluFieldHeight}));
    items.push_back(placed(u"cmdObjectName", {kRight - kDots, y, kDots, kDluFieldHeight}));
    y += kRow;
    items.push_back(labelAt(u"lblAccessibility", u"&Declare as:", kDluMargin, y, kLabelWidth, u"cboAccessibility"));
    items.push_back(placedCombo(u"cboAccessibility", {kBoxX, y, kBoxWidth, kDluFieldHeight}, ComboStyle::DropDownList));
    y += kRow;
    items.push_back(labelAt(u"lblModule", u"&Module:", kDluMargin, y, kLabelWidth, u"cboModule"));
    items.push_back(placedCombo(u"cboModule", {kBoxX, y, kBoxWidth, kDluFieldHeight}, ComboStyle::Editable));
    y += kRow;
    items.push_back(labelAt(u"lblDescription", u"&Comment:", kDluMargin, y, kLabelWidth, u"txtDescription"));
    items.push_back(placed(u"txtDescription", {kBoxX, y, kBoxWidth, kDluFieldHeight}));
    y += kRow + kDluSpacing;
    layout.height = buttonRow(items, y, {u"cmdOK", u"cmdOKAndPaste", u"cmdCancel", u"cmdHelp"}) + kDluMargin;
    return layout;
}

}  // namespace quillet::builders
