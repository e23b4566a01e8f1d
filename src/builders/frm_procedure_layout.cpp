// The Procedure Builder's window: labels in a column left of their boxes, the short lists two to a
// row, the argument list with its four buttons beside it, the options in a frame, and OK, Cancel
// and Help in a row at the bottom right.

#include "builders/builder_layouts.h"

namespace quillet::builders {

using namespace dialogs;

namespace {

constexpr int kWidth = 290;
constexpr int kLabelWidth = 56;
// Columns: a label and its box, and a second pair to the right of the first.
constexpr int kBoxX = kDluMargin + kLabelWidth + kDluSpacing;
constexpr int kRight = kWidth - kDluMargin;
constexpr int kPairGap = 8;
constexpr int kShortBox = (kRight - kDluMargin - kPairGap) / 2 - kLabelWidth - kDluSpacing;
constexpr int kLabel2X = kBoxX + kShortBox + kPairGap;
constexpr int kBox2X = kLabel2X + kLabelWidth + kDluSpacing;
constexpr int kLongBox = kRight - kBoxX;
// A label sits level with the text of the box beside it.
constexpr int kLabelDrop = (kDluFieldHeight - kDluLabelHeight) / 2;
constexpr int kRow = kDluFieldHeight + kDluSpacing;
constexpr int kArgButtons = 4;
constexpr int kListHeight = kArgButtons * kRow - kDluSpacing;
constexpr int kCheckRow = kDluCheckHeight + 2;
constexpr int kFrameTop = 11;  // room for the frame's caption

Placement labelAt(const Str& name, const Str& caption, int x, int y, const Str& labelFor) {
    return label(name, caption, {x, y + kLabelDrop, kLabelWidth, kDluLabelHeight}, labelFor);
}

}  // namespace

FormLayout frmProcedureLayout() {
    FormLayout layout;
    layout.form = u"frmProcedure";
    layout.width = kWidth;
    auto& items = layout.items;
    int y = kDluMargin;
    items.push_back(labelAt(u"lblName", u"&Name:", kDluMargin, y, u"txtName"));
    items.push_back(placed(u"txtName", {kBoxX, y, kLongBox, kDluFieldHeight}));
    y += kRow;
    items.push_back(labelAt(u"lblProcType", u"T&ype:", kDluMargin, y, u"cboProcType"));
    items.push_back(placedCombo(u"cboProcType", {kBoxX, y, kShortBox, kDluFieldHeight}, ComboStyle::DropDownList));
    items.push_back(labelAt(u"lblAccessibility", u"&Access:", kLabel2X, y, u"cboAccessibility"));
    items.push_back(placedCombo(u"cboAccessibility", {kBox2X, y, kShortBox, kDluFieldHeight}, ComboStyle::DropDownList));
    y += kRow;
    items.push_back(labelAt(u"lblStatic", u"&Static:", kDluMargin, y, u"cboStatic"));
    items.push_back(placedCombo(u"cboStatic", {kBoxX, y, kShortBox, kDluFieldHeight}, ComboStyle::DropDownList));
    // The model's own label, with the model's caption.
    items.push_back(labelAt(u"lblReturnValueType", {}, kLabel2X, y, u"cboReturnValueType"));
    items.push_back(placedCombo(u"cboReturnValueType", {kBox2X, y, kShortBox, kDluFieldHeight}, ComboStyle::Editable));
    y += kRow;
    items.push_back(labelAt(u"lblModule", u"&Module:", kDluMargin, y, u"cboModule"));
    items.push_back(placedCombo(u"cboModule", {kBoxX, y, kLongBox, kDluFieldHeight}, ComboStyle::Editable));
    y += kRow;
    items.push_back(labelAt(u"lblArguments", u"Ar&guments:", kDluMargin, y, u"lstArguments"));
    int buttonX = kRight - kDluButtonWidth;
    items.push_back(placed(u"lstArguments", {kBoxX, y, buttonX - kDluSpacing - kBoxX, kListHeight}));
    const char16_t* argButtons[kArgButtons][2] = {
        {u"cmdNewArg", u"Ne&w..."}, {u"cmdDelArg", u"&Delete"}, {u"cmdUpArg", u"&Up"}, {u"cmdDownArg", u"D&own"}};
    for (int i = 0; i < kArgButtons; ++i)
        items.push_back(placed(argButtons[i][0], {buttonX, y + i * kRow, kDluButtonWidth, kDluButtonHeight},
                               argButtons[i][1]));
    y += kListHeight + kDluSpacing;
    items.push_back(labelAt(u"lblDescription", u"Descr&iption:", kDluMargin, y, u"txtDescription"));
    items.push_back(placed(u"txtDescription", {kBoxX, y, kLongBox, kDluFieldHeight}));
    y += kRow;
    items.push_back(labelAt(u"lblAddErrorHandler", u"&Error handler:", kDluMargin, y, u"cboAddErrorHandler"));
    items.push_back(placedCombo(u"cboAddErrorHandler", {kBoxX, y, kLongBox, kDluFieldHeight}, ComboStyle::DropDownList));
    y += kRow;

    // The options, two to a row, in the order they act on the code.
    const char16_t* options[][2] = {{u"chkAddHeader", u"Header &comment"},
                                    {u"chkAddHourglass", u"Add hourg&lass"},
                                    {u"chkAddProcedureConstant", u"Add &procedure constant"},
                                    {u"chkAddModuleConstant", u"Add module cons&tant"},
                                    {u"chkAddReturnStatement", u"Return &value line"},
                                    {u"chkArgumentsOnSeparateLine", u"&Break arguments over lines"}};
    constexpr int optionCount = sizeof options / sizeof options[0];
    constexpr int optionRows = (optionCount + 1) / 2;
    int frameHeight = kFrameTop + optionRows * kCheckRow - 2 + kDluMargin - 1;
    items.push_back(frame(u"fraOptions", u"Options", {kDluMargin, y, kRight - kDluMargin, frameHeight}));
    int columnWidth = (kRight - kDluMargin - 2 * kDluMargin - kPairGap) / 2;
    for (int i = 0; i < optionCount; ++i) {
        int x = kDluMargin + kDluMargin + (i % 2) * (columnWidth + kPairGap);
        int top = y + kFrameTop + 1 + (i / 2) * kCheckRow;
        items.push_back(placed(options[i][0], {x, top, columnWidth, kDluCheckHeight}, options[i][1]));
    }
    y += frameHeight + kDluMargin;

    const char16_t* buttons[] = {u"cmdOK", u"cmdCancel", u"cmdHelp"};
    int x = kRight - 3 * kDluButtonWidth - 2 * kDluSpacing;
    for (const char16_t* button : buttons) {
        items.push_back(placed(button, {x, y, kDluButtonWidth, kDluButtonHeight}));
        x += kDluButtonWidth + kDluSpacing;
    }
    layout.height = y + kDluButtonHeight + kDluMargin;
    return layout;
}

}  // namespace quillet::builders
