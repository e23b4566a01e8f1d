// The quick input box's window in its tall form: name and value with their labels in a column,
// the three buttons in a row below. The short form (no value) moves the buttons up.

#include "builders/builder_layouts.h"
#include "builders/layout_grid.h"

namespace quillet::builders {

using namespace dialogs;

namespace {

using namespace grid;

constexpr int kWidth = widthForButtons(3);
constexpr int kRight = kWidth - kDluMargin;
constexpr int kLabelWidth = 32;
constexpr int kBoxX = kDluMargin + kLabelWidth + kDluSpacing;

}  // namespace

FormLayout frmInputBoxLayout() {
    FormLayout layout;
    layout.form = u"frmInputBox";
    layout.width = kWidth;
    auto& items = layout.items;
    int y = kDluMargin;
    items.push_back(labelAt(u"lblName", {}, kDluMargin, y, kLabelWidth, u"txtName"));
    items.push_back(placed(u"txtName", {kBoxX, y, kRight - kBoxX, kDluFieldHeight}));
    y += kRow;
    items.push_back(labelAt(u"lblValue", {}, kDluMargin, y, kLabelWidth, u"txtValue"));
    items.push_back(placed(u"txtValue", {kBoxX, y, kRight - kBoxX, kDluFieldHeight}));
    y += kRow + kDluSpacing;
    layout.height = buttonRow(items, y, {u"cmdOK", u"cmdCancel", u"cmdHelp"}) + kDluMargin;
    return layout;
}

}  // namespace quillet::builders
