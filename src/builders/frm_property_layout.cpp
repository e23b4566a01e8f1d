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
// A label and its box on each row, or two such pairs side by side.
constexpr LabelColumns C(kWidth, 50, kPairGap);
constexpr int kCheckDrop = (kDluFieldHeight - kDluCheckHeight) / 2;
constexpr int kRow = kDluFieldHeight + kDluSpacing;

Placement labelAt(const Str& name, const Str& caption, int x, int y, const Str& labelFor) {
    return C.labelAt(name, caption, x, y, labelFor);
}

}  // namespace

FormLayout frmPropertyLayout() {
    FormLayout layout;
    layout.form = u"frmProperty";
    layout.width = kWidth;
    auto& items = layout.items;
    int y = kDluMargin;
    items.push_back(labelAt(u"lblName", u"Na&me:", kDluMargin, y, u"txtName"));
    items.push_back(placed(u"txtName", {C.boxX, y, C.longBox, kDluFieldHeight}));
    y += kRow;
    // The model's own label, with the model's caption.
    items.push_back(labelAt(u"lblDataType", {}, kDluMargin, y, u"cboDataType"));
    items.push_back(placedCombo(u"cboDataType", {C.boxX, y, C.shortBox, kDluFieldHeight}, ComboStyle::Editable));
    items.push_back(labelAt(u"lblAccessibility", u"&Access:", C.label2X, y, u"cboAccessibility"));
    items.push_back(placedCombo(u"cboAccessibility", {C.box2X, y, C.shortBox, kDluFieldHeight}, ComboStyle::DropDownList));
    y += kRow;
    items.push_back(labelAt(u"lblStatic", u"&Static:", kDluMargin, y, u"cboStatic"));
    items.push_back(placedCombo(u"cboStatic", {C.boxX, y, C.shortBox, kDluFieldHeight}, ComboStyle::DropDownList));
    int half = (C.right - C.label2X - kDluSpacing) / 2;
    items.push_back(placed(u"chkGet", {C.label2X, y + kCheckDrop, half, kDluCheckHeight}));
    items.push_back(placed(u"chkSet", {C.label2X + half + kDluSpacing, y + kCheckDrop, half, kDluCheckHeight}));
    y += kRow;
    items.push_back(labelAt(u"lblModule", u"M&odule:", kDluMargin, y, u"cboModule"));
    items.push_back(placedCombo(u"cboModule", {C.boxX, y, C.longBox, kDluFieldHeight}, ComboStyle::Editable));
    y += kRow;
    items.push_back(labelAt(u"lblDescription", u"Descr&iption:", kDluMargin, y, u"txtDescription"));
    items.push_back(placed(u"txtDescription", {C.boxX, y, C.longBox, kDluFieldHeight}));
    y += kRow;
    items.push_back(labelAt(u"lblAddErrorHandler", u"&Error handler:", kDluMargin, y, u"cboAddErrorHandler"));
    items.push_back(placedCombo(u"cboAddErrorHandler", {C.boxX, y, C.longBox, kDluFieldHeight}, ComboStyle::DropDownList));
    y += kRow;

    y += OptionsFrame(items, y, kDluMargin, C.right, kPairGap,
                      {{u"chkAddHeader", u"Header &comment"},
                       {u"chkAddHourglass", u"Add hou&rglass"},
                       {u"chkAddProcedureConstant", u"Add &procedure constant"},
                       {u"chkAddModuleConstant", u"Add mo&dule constant"}}) +
         kDluMargin;
    int x = C.right - kButtons * kDluButtonWidth - (kButtons - 1) * kDluSpacing;
    layout.height = ButtonRow(items, x, y, {u"cmdOK", u"cmdOKAndNew", u"cmdCancel", u"cmdHelp"});
    return layout;
}

}  // namespace quillet::builders
