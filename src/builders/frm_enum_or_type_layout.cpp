// The Enum and Type Builders' window: name, prefix and module with their labels in a column, the
// frame of the three access choices in a row, the items' box with the list of type names beside
// it (shown while a type is wanted), and the three buttons in a row at the bottom.

#include "builders/builder_layouts.h"
#include "builders/layout_grid.h"

namespace quillet::builders {

using namespace dialogs;

namespace {

using namespace grid;
using namespace column;

constexpr int kItemsHeight = 72;
constexpr int kTypesWidth = 70;
constexpr int kAccessFrameHeight = kFrameTop + kDluCheckHeight + kDluMargin;

int accessFrame(std::vector<Placement>& items, int y) {
    items.push_back(placed(u"fraAccessibility", {kDluMargin, y, kRight - kDluMargin, kAccessFrameHeight}));
    int width = (kRight - kDluMargin - 2 * kDluMargin) / 3;
    for (int i = 0; i < 3; ++i) {
        Str name = u"optAccessibility(" + Str(1, static_cast<char16_t>(u'0' + i)) + u")";
        items.push_back(placed(name, {2 * kDluMargin + i * width, y + kFrameTop, width - kDluSpacing, kDluCheckHeight}));
    }
    return y + kAccessFrameHeight;
}

}  // namespace

FormLayout frmEnumOrTypeLayout() {
    FormLayout layout;
    layout.form = u"frmEnumOrType";
    layout.width = kWidth;
    layout.defaultButton = u"cmdOk";
    auto& items = layout.items;
    int y = kDluMargin;
    items.push_back(labelAt(u"lblName", u"&Name:", kDluMargin, y, kLabelWidth, u"txtName"));
    items.push_back(placed(u"txtName", {kBoxX, y, kBoxWidth, kDluFieldHeight}));
    y += kRow;
    items.push_back(labelAt(u"lblPrefix", {}, kDluMargin, y, kLabelWidth, u"txtPrefix"));
    items.push_back(placed(u"txtPrefix", {kBoxX, y, kBoxWidth, kDluFieldHeight}));
    y += kRow;
    items.push_back(labelAt(u"lblModule", u"&Module:", kDluMargin, y, kLabelWidth, u"cboModule"));
    items.push_back(placedCombo(u"cboModule", {kBoxX, y, kBoxWidth, kDluFieldHeight}, ComboStyle::Editable));
    y += kRow;
    y = accessFrame(items, y) + kDluSpacing;
    items.push_back(labelAt(u"lblItems", u"&Items:", kDluMargin, y, kLabelWidth, u"txtItems"));
    Placement box = placed(u"txtItems", {kBoxX, y, kBoxWidth - kTypesWidth - kDluSpacing, kItemsHeight});
    box.multiLine = true;
    box.codeFont = true;
    items.push_back(box);
    items.push_back(placed(u"lstVars", {kRight - kTypesWidth, y, kTypesWidth, kItemsHeight}));
    y += kItemsHeight + 2 * kDluSpacing;
    layout.height = buttonRow(items, y, {u"cmdOk", u"cmdCancel", u"cmdHelp"}) + kDluMargin;
    return layout;
}

}  // namespace quillet::builders
