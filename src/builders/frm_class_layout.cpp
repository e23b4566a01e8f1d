// The Class Builder's window: the tab strip across the top, under it the page in view (the
// class's name, description and collection class; the properties with their buttons; the methods
// with theirs), and Create, Cancel and Help in a row at the bottom right.

#include "builders/builder_layouts.h"
#include "builders/frm_class.h"
#include "builders/layout_parts.h"

namespace quillet::builders {

using namespace dialogs;

namespace {

constexpr int kWidth = 300;
constexpr int kRight = kWidth - kDluMargin;
constexpr int kLabelWidth = 64;
constexpr int kBoxX = kDluMargin + kLabelWidth + kDluSpacing;
constexpr int kBoxWidth = kRight - kBoxX;
constexpr int kLabelDrop = (kDluFieldHeight - kDluLabelHeight) / 2;
constexpr int kRow = kDluFieldHeight + kDluSpacing;
constexpr int kPageTop = kDluMargin + kDluFieldHeight + kDluSpacing;
constexpr int kListButtons = 4;
constexpr int kPageHeight = kListButtons * kRow + 40;
constexpr int kButtonX = kRight - kDluButtonWidth - 10;

Placement onPage(Placement item, const Str& page) {
    item.page = page;
    return item;
}

// A list view with its buttons in a column at its right.
void listPage(std::vector<Placement>& items, const Str& page, const Str& list, const std::vector<Str>& buttons) {
    items.push_back(onPage(placed(list, {kDluMargin, kPageTop, kButtonX - kDluSpacing - kDluMargin, kPageHeight}), page));
    int y = kPageTop;
    for (const Str& button : buttons) {
        items.push_back(onPage(placed(button, {kButtonX, y, kDluButtonWidth + 10, kDluButtonHeight}), page));
        y += kRow;
    }
}

}  // namespace

FormLayout frmClassLayout() {
    FormLayout layout;
    layout.form = u"frmClass";
    layout.width = kWidth;
    layout.defaultButton = u"cmdCreate";
    auto& items = layout.items;
    items.push_back(placed(u"TabMain", {kDluMargin, kDluMargin, kRight - kDluMargin, kDluFieldHeight}));

    int y = kPageTop;
    auto row = [&](const Str& label, const Str& box) {
        items.push_back(onPage(dialogs::label(label, {}, {kDluMargin, y + kLabelDrop, kLabelWidth, kDluLabelHeight}, box),
                               kTabGeneral));
        items.push_back(onPage(placed(box, {kBoxX, y, kBoxWidth, kDluFieldHeight}), kTabGeneral));
        y += kRow;
    };
    row(u"lblClassName", u"txtClassName");
    row(u"lblDescription", u"txtDescription");
    items.push_back(onPage(placed(u"chkMakeColClass", {kBoxX, y + 2, kBoxWidth, kDluCheckHeight}), kTabGeneral));
    y += kRow;
    row(u"lblColClassName", u"txtColClassName");

    listPage(items, kTabProperties, u"lvProperties", {u"cmdNewProp", u"cmdEditProp", u"cmdDelProp", u"cmdFromTable"});
    listPage(items, kTabMethods, u"lvMethods", {u"cmdNewMethod", u"cmdEditMethod", u"cmdDelMethod"});

    y = kPageTop + kPageHeight + kDluMargin;
    int x = kRight - 3 * kDluButtonWidth - 2 * kDluSpacing;
    layout.height = ButtonRow(items, x, y, {u"cmdCreate", u"cmdCancel", u"cmdHelp"});
    return layout;
}

}  // namespace quillet::builders
