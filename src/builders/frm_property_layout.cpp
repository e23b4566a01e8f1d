// The Property Builder's window: labels in a column left of their boxes, type and access side by
// side, Static beside the Get and Let/Set boxes, the options in a frame, and OK, OK & New,
// Cancel and Help in a row at the bottom right.

#include "builders/builder_layouts.h"

namespace quillet::builders {

using namespace dialogs;

namespace {

constexpr int kButtons = 4;
constexpr int kWidth = 2 * kDluMargin + kButtons * kDluButtonWidth + (kButtons - 1) * kDluSpacing + 40;
constexpr int kLabelWidth = 50;
constexpr int kBoxX = kDluMargin + kLabelWidth + kDluSpacing;
constexpr int kRight = kWidth - kDluMargin;
constexpr int kPairGap = 8;
constexpr int kShortBox = (kRight - kDluMargin - kPairGap) / 2 - kLabelWidth - kDluSpacing;
constexpr int kLabel2X = kBoxX + kShortBox + kPairGap;
constexpr int kBox2X = kLabel2X + kLabelWidth + kDluSpacing;
constexpr int kLongBox = kRight - kBoxX;
constexpr int kLabelDrop = (kDluFieldHeight - kDluLabelHeight) / 2;
constexpr int kCheckDrop = (kDluFieldHeight - kDluCheckHeight) / 2;
constexpr int kRow = kDluFieldHeight + kDluSpacing;
constexpr int kCheckRow = kDluCheckHeight + 2;
constexpr int kFrameTop = 11;  // room for the frame's caption

Placement labelAt(const Str& name, const Str& caption, int x, int y, const Str& labelFor) {
    return label(name, caption, {x, y + kLabelDrop, kLabelWidth, kDluLabelHeight}, labelFor);
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

    const char16_t* options[][2] = {{u"chkAddHeader", u"Header &comment"},
                                    {u"chkAddHourglass", u"Add hou&rglass"},
                                    {u"chkAddProcedureConstant", u"Add &procedure constant"},
                                    {u"chkAddModuleConstant", u"Add mo&dule constant"}};
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

    int x = kRight - kButtons * kDluButtonWidth - (kButtons - 1) * kDluSpacing;
    for (const char16_t* button : {u"cmdOK", u"cmdOKAndNew", u"cmdCancel", u"cmdHelp"}) {
        items.push_back(placed(button, {x, y, kDluButtonWidth, kDluButtonHeight}));
        x += kDluButtonWidth + kDluSpacing;
    }
    layout.height = y + kDluButtonHeight + kDluMargin;
    return layout;
}

}  // namespace quillet::builders
