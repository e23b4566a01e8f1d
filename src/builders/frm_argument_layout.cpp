// The Argument Builder's window: name and type with their labels in a column, the flags and the
// passing in two frames side by side, the default value, and the four buttons in a row at the
// bottom right.

#include "builders/builder_layouts.h"
#include "builders/layout_parts.h"

namespace quillet::builders {

using namespace dialogs;

namespace {

constexpr int kButtons = 4;
constexpr int kWidth = 2 * kDluMargin + kButtons * kDluButtonWidth + (kButtons - 1) * kDluSpacing;
constexpr int kRight = kWidth - kDluMargin;
constexpr int kLabelWidth = 52;
constexpr int kBoxX = kDluMargin + kLabelWidth + kDluSpacing;
constexpr int kBoxWidth = kRight - kBoxX;
constexpr int kLabelDrop = (kDluFieldHeight - kDluLabelHeight) / 2;
constexpr int kRow = kDluFieldHeight + kDluSpacing;
constexpr int kFrameGap = 8;
constexpr int kFrameWidth = (kRight - kDluMargin - kFrameGap) / 2;
constexpr int kFrameTop = 12;  // room for the frame's caption
constexpr int kCheckRow = kDluCheckHeight + 2;
constexpr int kFrameHeight = kFrameTop + 3 * kCheckRow - 2 + kDluMargin - 1;

Placement labelAt(const Str& name, const Str& caption, int y, const Str& labelFor) {
    return label(name, caption, {kDluMargin, y + kLabelDrop, kLabelWidth, kDluLabelHeight}, labelFor);
}

// A frame with its controls stacked inside.
void framed(std::vector<Placement>& items, const Str& name, const Str& caption, int x, int y,
            const std::vector<Str>& controls) {
    items.push_back(frame(name, caption, {x, y, kFrameWidth, kFrameHeight}));
    for (size_t i = 0; i < controls.size(); ++i)
        items.push_back(placed(controls[i], {x + kDluMargin, y + kFrameTop + static_cast<int>(i) * kCheckRow,
                                             kFrameWidth - 2 * kDluMargin, kDluCheckHeight}));
}

}  // namespace

FormLayout frmArgumentLayout() {
    FormLayout layout;
    layout.form = u"frmArgument";
    layout.width = kWidth;
    auto& items = layout.items;
    int y = kDluMargin;
    items.push_back(labelAt(u"lblName", u"Na&me:", y, u"txtName"));
    items.push_back(placed(u"txtName", {kBoxX, y, kBoxWidth, kDluFieldHeight}));
    y += kRow;
    items.push_back(labelAt(u"lblDataType", u"&Type:", y, u"cboDataType"));
    items.push_back(placedCombo(u"cboDataType", {kBoxX, y, kBoxWidth, kDluFieldHeight}, ComboStyle::Editable));
    y += kRow;
    framed(items, u"fraFlags", u"Options", kDluMargin, y, {u"chkOptional", u"chkArray", u"chkParamArray"});
    framed(items, u"fraPassing", u"Passing", kRight - kFrameWidth, y, {u"optByVal(0)", u"optByVal(1)"});
    y += kFrameHeight + kDluMargin;
    // The model's own label, with the model's caption.
    items.push_back(labelAt(u"lblDefaultValue", {}, y, u"cboDefaultValue"));
    items.push_back(placedCombo(u"cboDefaultValue", {kBoxX, y, kBoxWidth, kDluFieldHeight}, ComboStyle::Editable));
    y += kRow + kDluSpacing - 1;
    layout.height = ButtonRow(items, kDluMargin, y, {u"cmdOK", u"cmdOKAndNew", u"cmdCancel", u"cmdHelp"});
    return layout;
}

}  // namespace quillet::builders
