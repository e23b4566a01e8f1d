// The Variable Builder's window: name, type and length, level, module, array and comment with
// their labels in a column; the Interface and Object frames side by side; the four buttons in a
// row at the bottom.

#include "builders/builder_layouts.h"
#include "builders/layout_grid.h"

namespace quillet::builders {

using namespace dialogs;

namespace {

using namespace grid;

using namespace column;
constexpr int kFrameWidth = (kRight - kDluMargin - 8) / 2;
constexpr int kFrameHeight = kFrameTop + 3 * kCheckRow + 2 * kRow + kDluMargin - kDluSpacing;
constexpr int kFrameLabel = 30;

// The Interface frame: the passing flags, the default value and the argument to go before.
void interfaceFrame(std::vector<Placement>& items, int x, int y) {
    items.push_back(placed(u"fraInterface", {x, y, kFrameWidth, kFrameHeight}));
    int inner = x + kDluMargin;
    int innerWidth = kFrameWidth - 2 * kDluMargin;
    int row = y + kFrameTop;
    for (const char16_t* box : {u"chkByVal", u"chkOptional", u"chkParamArray"}) {
        items.push_back(placed(box, {inner, row, innerWidth, kDluCheckHeight}));
        row += kCheckRow;
    }
    int boxX = inner + kFrameLabel + kDluSpacing;
    int boxWidth = innerWidth - kFrameLabel - kDluSpacing;
    items.push_back(labelAt(u"lblDefault", u"Defa&ult:", inner, row, kFrameLabel, u"txtDefault"));
    items.push_back(placed(u"txtDefault", {boxX, row, boxWidth, kDluFieldHeight}));
    row += kRow;
    items.push_back(labelAt(u"lblBefore", {}, inner, row, kFrameLabel, u"cboArgument"));
    items.push_back(placedCombo(u"cboArgument", {boxX, row, boxWidth, kDluFieldHeight}, ComboStyle::DropDownList));
}

void objectFrame(std::vector<Placement>& items, int x, int y) {
    items.push_back(placed(u"fraObject", {x, y, kFrameWidth, kFrameHeight}));
    int row = y + kFrameTop;
    for (const char16_t* box : {u"chkWith", u"chkNothing", u"chkNew"}) {
        items.push_back(placed(box, {x + kDluMargin, row, kFrameWidth - 2 * kDluMargin, kDluCheckHeight}));
        row += kCheckRow;
    }
}

}  // namespace

FormLayout frmVarLayout() {
    FormLayout layout;
    layout.form = u"frmVar";
    layout.width = kWidth;
    auto& items = layout.items;
    int y = kDluMargin;
    constexpr int kDots = 16;
    items.push_back(labelAt(u"lblName", u"&Name:", kDluMargin, y, kLabelWidth, u"txtName"));
    items.push_back(placed(u"txtName", {kBoxX, y, kBoxWidth - kDots - kDluSpacing, kDluFieldHeight}));
    items.push_back(placed(u"cmdObjectName", {kRight - kDots, y, kDots, kDluFieldHeight}));
    y += kRow;
    constexpr int kLengthLabel = 28, kLength = 24;
    int typeWidth = kBoxWidth - kLengthLabel - kLength - 2 * kDluSpacing;
    items.push_back(labelAt(u"lblDataType", u"&Type:", kDluMargin, y, kLabelWidth, u"cboDataType"));
    items.push_back(placedCombo(u"cboDataType", {kBoxX, y, typeWidth, kDluFieldHeight}, ComboStyle::Editable));
    int lengthX = kBoxX + typeWidth + kDluSpacing;
    items.push_back(labelAt(u"lblLength", {}, lengthX, y, kLengthLabel, u"txtLength"));
    items.push_back(placed(u"txtLength", {kRight - kLength, y, kLength, kDluFieldHeight}));
    y += kRow;
    items.push_back(labelAt(u"lblAccessibility", u"&Declare as:", kDluMargin, y, kLabelWidth, u"cboAccessibility"));
    items.push_back(placedCombo(u"cboAccessibility", {kBoxX, y, kBoxWidth, kDluFieldHeight}, ComboStyle::DropDownList));
    y += kRow;
    items.push_back(labelAt(u"lblModule", {}, kDluMargin, y, kLabelWidth, u"cboModule"));
    items.push_back(placedCombo(u"cboModule", {kBoxX, y, kBoxWidth, kDluFieldHeight}, ComboStyle::Editable));
    y += kRow;
    constexpr int kDimensionsLabel = 70;
    items.push_back(placed(u"chkArray", {kDluMargin, y + kCheckDrop, kLabelWidth, kDluCheckHeight}));
    items.push_back(labelAt(u"lblDimensions", {}, kBoxX, y, kDimensionsLabel, u"txtDimensions"));
    int dimensionsX = kBoxX + kDimensionsLabel + kDluSpacing;
    items.push_back(placed(u"txtDimensions", {dimensionsX, y, kRight - dimensionsX, kDluFieldHeight}));
    y += kRow;
    items.push_back(labelAt(u"lblDescription", u"&Comment:", kDluMargin, y, kLabelWidth, u"txtDescription"));
    items.push_back(placed(u"txtDescription", {kBoxX, y, kBoxWidth, kDluFieldHeight}));
    y += kRow;
    interfaceFrame(items, kDluMargin, y);
    objectFrame(items, kRight - kFrameWidth, y);
    y += kFrameHeight + kDluMargin;
    layout.height = buttonRow(items, y, {u"cmdOK", u"cmdOKAndPaste", u"cmdCancel", u"cmdHelp"}) + kDluMargin;
    return layout;
}

}  // namespace quillet::builders
