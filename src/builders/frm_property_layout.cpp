// The Property Builder's window: labels in a column left of their boxes, type and access side by
// side, Static beside the Get and Let/Set boxes, the options in a frame, and OK, OK & New,
// Cancel and Help in a row at the bottom right.

#include "builders/builder_layouts.h"
#include "builders/layout_parts.h"

namespace quillet::builders {

using namespace dialogs;

namespace {

constexpr int kButtons = 4;
constexpr int kWidth = 2 * kDluMargin + kButtons * kDluButtonWidth + (kButtons - 1) * kDluSpacing + 40;
constexpr int kPairGap = 8;
constexpr LabelColumns kColumns(kWidth, 50, kPairGap);
constexpr int kBoxX = kColumns.boxX;
constexpr int kRight = kColumns.right;
constexpr int kShortBox = kColumns.shortBox;
constexpr int kLabel2X = kColumns.label2X;
constexpr int kBox2X = kColumns.box2X;
constexpr int kLongBox = kColumns.longBox;
constexpr int kCheckDrop = (kDluFieldHeight - kDluCheckHeight) / 2;
constexpr int kRow = kDluFieldHeight + kDluSpacing;

Placement labelAt(const Str& name, const Str& caption, int x, int y, const Str& labelFor) {
    return kColumns.labelAt(name, caption, x, y, labelFor);
}

}  // namespace

FormLayout frmPropertyLayout() {
    FormLayout layout;
    layout.form = u"frmProperty";
    layout.width = kWidth;
    auto& items = layout.items;
    int y = kDluMargin;
    items.push_back(labelAt(u"lblName", u"Na&me:", kDluMargin, y, u"txtName"));
    items.push_back(placed(u"txtName", {kBoxX, y, kLongBox, kDluFieldHeight}));
    y += kRow;
    // The model's own label, with the model's caption.
    items.push_back(labelAt(u"lblDataType", {}, kDluMargin, y, u"cboDataType"));
    items.push_back(placedCombo(u"cboDataType", {kBoxX, y, kShortBox, kDluFieldHeight}, ComboStyle::Editable));
    items.push_back(labelAt(u"lblAccessibility", u"&Access:", kLabel2X, y, u"cboAccessibility"));
    items.push_back(placedCombo(u"cboAccessibility", {kBox2X, y, kShortBox, kDluFieldHeight}, ComboStyle::DropDownList));
    y += kRow;
    items.push_back(labelAt(u"lblStatic", u"&Static:", kDluMargin, y, u"cboStatic"));
    items.push_back(placedCombo(u"cboStatic", {kBoxX, y, kShortBox, kDluFieldHeight}, ComboStyle::DropDownList));
    int half = (kRight - kLabel2X - kDluSpacing) / 2;
    items.push_back(placed(u"chkGet", {kLabel2X, y + kCheckDrop, half, kDluCheckHeight}));
    items.push_back(placed(u"chkSet", {kLabel2X + half + kDluSpacing, y + kCheckDrop, half, kDluCheckHeight}));
    y += kRow;
    items.push_back(labelAt(u"lblModule", u"M&odule:", kDluMargin, y, u"cboModule"));
    items.push_back(placedCombo(u"cboModule", {kBoxX, y, kLongBox, kDluFieldHeight}, ComboStyle::Editable));
    y += kRow;
    items.push_back(labelAt(u"lblDescription", u"Descr&iption:", kDluMargin, y, u"txtDescription"));
    items.push_back(placed(u"txtDescription", {kBoxX, y, kLongBox, kDluFieldHeight}));
    y += kRow;
    items.push_back(labelAt(u"lblAddErrorHandler", u"&Error handler:", kDluMargin, y, u"cboAddErrorHandler"));
    items.push_back(placedCombo(u"cboAddErrorHandler", {kBoxX, y, kLongBox, kDluFieldHeight}, ComboStyle::DropDownList));
    y += kRow;

    y += OptionsFrame(items, y, kDluMargin, kRight, kPairGap,
                      {{u"chkAddHeader", u"Header &comment"},
                       {u"chkAddHourglass", u"Add hou&rglass"},
                       {u"chkAddProcedureConstant", u"Add &procedure constant"},
                       {u"chkAddModuleConstant", u"Add mo&dule constant"}}) +
         kDluMargin;
    int x = kRight - kButtons * kDluButtonWidth - (kButtons - 1) * kDluSpacing;
    layout.height = ButtonRow(items, x, y, {u"cmdOK", u"cmdOKAndNew", u"cmdCancel", u"cmdHelp"});
    return layout;
}

}  // namespace quillet::builders
