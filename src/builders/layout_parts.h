#pragma once
// Pieces the builders' layouts share: the frame of option check boxes, two to a row, and the
// row of buttons that ends a dialog.

#include <utility>
#include <vector>

#include "dialogs/layout.h"

namespace quillet::builders {

// The columns of a dialog whose rows hold a label and its box, or two such pairs side by side.
struct LabelColumns {
    constexpr LabelColumns(int width, int labelWidth, int pairGap)
        : labelWidth(labelWidth),
          boxX(dialogs::kDluMargin + labelWidth + dialogs::kDluSpacing),
          right(width - dialogs::kDluMargin),
          shortBox((right - dialogs::kDluMargin - pairGap) / 2 - labelWidth - dialogs::kDluSpacing),
          label2X(boxX + shortBox + pairGap),
          box2X(label2X + labelWidth + dialogs::kDluSpacing),
          longBox(right - boxX) {}
    int labelWidth, boxX, right, shortBox, label2X, box2X, longBox;

    // A label at x, level with the text of the box beside it on the row at y.
    dialogs::Placement labelAt(const basic::Str& name, const basic::Str& caption, int x, int y,
                               const basic::Str& labelFor) const {
        int drop = (dialogs::kDluFieldHeight - dialogs::kDluLabelHeight) / 2;
        return dialogs::label(name, caption, {x, y + drop, labelWidth, dialogs::kDluLabelHeight}, labelFor);
    }
};

// The frame "Options" (fraOptions) from `left` to `right` at `y`, holding the check boxes (name
// and caption) two to a row, `gap` apart. Gives the frame's height.
int OptionsFrame(std::vector<dialogs::Placement>& items, int y, int left, int right, int gap,
                 const std::vector<std::pair<basic::Str, basic::Str>>& options);

// The buttons in a row at `y`, standard size and spacing, the first at `x`; gives the layout's
// height below them.
int ButtonRow(std::vector<dialogs::Placement>& items, int x, int y, const std::vector<basic::Str>& buttons);

}  // namespace quillet::builders
