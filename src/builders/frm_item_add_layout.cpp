// The Add Item window: the list of blocks, the item's name and its comment with their labels in a
// column; the four buttons in a row at the bottom.

#include "builders/builder_layouts.h"
#include "builders/layout_grid.h"

namespace quillet::builders {

using namespace dialogs;

namespace {

using namespace grid;
using namespace column;

}  // namespace

FormLayout frmItemAddLayout() {
    FormLayout layout;
    layout.form = u"frmItemAdd";
    layout.width = kWidth;
    layout.defaultButton = u"cmdOk";
    auto& items = layout.items;
    int y = kDluMargin;
    items.push_back(labelAt(u"lblList", {}, kDluMargin, y, kLabelWidth, u"cboList"));
    items.push_back(placedCombo(u"cboList", {kBoxX, y, kBoxWidth, kDluFieldHeight}, ComboStyle::Editable));
    y += kRow;
    items.push_back(labelAt(u"lblName", {}, kDluMargin, y, kLabelWidth, u"txtName"));
    items.push_back(placed(u"txtName", {kBoxX, y, kBoxWidth, kDluFieldHeight}));
    y += kRow;
    items.push_back(labelAt(u"lblDescription", u"&Comment:", kDluMargin, y, kLabelWidth, u"txtDescription"));
    items.push_back(placed(u"txtDescription", {kBoxX, y, kBoxWidth, kDluFieldHeight}));
    y += kRow + kDluSpacing;
    layout.height = buttonRow(items, y, {u"cmdOk", u"cmdNext", u"cmdCancel", u"cmdHelp"}) + kDluMargin;
    return layout;
}

}  // namespace quillet::builders
