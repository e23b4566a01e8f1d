// The Procedure Builder's window: labels in a column left of their boxes, the short lists two to a
// row, the argument list with its four buttons beside it, the options in a frame, and OK, Cancel
// and Help in a row at the bottom right.

#include "builders/builder_layouts.h"
#include "builders/layout_parts.h"

namespace quillet::builders {

using namespace dialogs;

namespace {

constexpr int kWidth = 290;
// Columns: a label and its box, and a second pair to the right of the first.
constexpr int kPairGap = 8;
constexpr LabelColumns kColumns(kWidth, 56, kPairGap);
constexpr int kBoxX = kColumns.boxX;
constexpr int kRight = kColumns.right;
constexpr int kShortBox = kColumns.shortBox;
constexpr int kLabel2X = kColumns.label2X;
constexpr int kBox2X = kColumns.box2X;
constexpr int kLongBox = kColumns.longBox;
constexpr int kRow = kDluFieldHeight + kDluSpacing;
constexpr int kArgButtons = 4;
constexpr int kListHeight = kArgButtons * kRow - kDluSpacing;

// A label sits level with the text of the box beside it.
Placement labelAt(const Str& name, const Str& caption, int x, int y, const Str& labelFor) {
    return kColumns.labelAt(name, caption, x, y, labelFor);
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
    y += OptionsFrame(items, y, kDluMargin, kRight, kPairGap,
                      {{u"chkAddHeader", u"Header &comment"},
                       {u"chkAddHourglass", u"Add hourg&lass"},
                       {u"chkAddProcedureConstant", u"Add &procedure constant"},
                       {u"chkAddModuleConstant", u"Add module cons&tant"},
                       {u"chkAddReturnStatement", u"Return &value line"},
                       {u"chkArgumentsOnSeparateLine", u"&Break arguments over lines"}}) +
         kDluMargin;
    int x = kRight - 3 * kDluButtonWidth - 2 * kDluSpacing;
    layout.height = ButtonRow(items, x, y, {u"cmdOK", u"cmdCancel", u"cmdHelp"});
    return layout;
}

}  // namespace quillet::builders
