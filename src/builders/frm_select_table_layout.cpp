// The Select Table and Fields window: the tables' drop-down list on top, the fields' check-box
// list under it with Select All and Unselect All beside it, and OK, Cancel and Help at the bottom.

#include "builders/builder_layouts.h"
#include "builders/layout_grid.h"

namespace quillet::builders {

using namespace dialogs;

namespace {

using namespace grid;

constexpr int kWidth = widthForButtons(3) + 20;
constexpr int kRight = kWidth - kDluMargin;
constexpr int kButtonX = kRight - kDluButtonWidth;
constexpr int kListWidth = kButtonX - kDluSpacing - kDluMargin;
constexpr int kListHeight = 120;

}  // namespace

FormLayout frmSelectTableAndFieldsLayout() {
    FormLayout layout;
    layout.form = u"frmSelectTableAndFields";
    layout.width = kWidth;
    auto& items = layout.items;
    int y = kDluMargin;
    items.push_back(label(u"lblTables", {}, {kDluMargin, y, kListWidth, kDluLabelHeight}, u"cboTables"));
    y += kDluLabelHeight + 2;
    items.push_back(placedCombo(u"cboTables", {kDluMargin, y, kListWidth, kDluFieldHeight}, ComboStyle::DropDownList));
    y += kRow;
    items.push_back(label(u"lblFields", {}, {kDluMargin, y, kListWidth, kDluLabelHeight}, u"lstFields"));
    y += kDluLabelHeight + 2;
    items.push_back(placed(u"lstFields", {kDluMargin, y, kListWidth, kListHeight}));
    items.push_back(placed(u"cmdSelectAll", {kButtonX, y, kDluButtonWidth, kDluButtonHeight}));
    items.push_back(placed(u"cmdUnSelectAll", {kButtonX, y + kDluButtonHeight + kDluSpacing, kDluButtonWidth, kDluButtonHeight}));
    y += kListHeight + kDluSpacing + 2;
    layout.height = buttonRow(items, y, {u"cmdOK", u"cmdCancel", u"cmdHelp"}) + kDluMargin;
    return layout;
}

}  // namespace quillet::builders
