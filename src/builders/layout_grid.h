#pragma once
// The grid the declaration builders' layouts share: rows of boxes with their labels in a column,
// check boxes in frames, and a row of buttons across the bottom.

#include <vector>

#include "dialogs/layout.h"

namespace quillet::builders::grid {

using dialogs::Placement;

// A label sits level with the text of the box beside it, a check box in the middle of the row.
constexpr int kLabelDrop = (dialogs::kDluFieldHeight - dialogs::kDluLabelHeight) / 2;
constexpr int kCheckDrop = (dialogs::kDluFieldHeight - dialogs::kDluCheckHeight) / 2;
constexpr int kRow = dialogs::kDluFieldHeight + dialogs::kDluSpacing;
constexpr int kCheckRow = dialogs::kDluCheckHeight + 2;
constexpr int kFrameTop = 12;  // room for the frame's caption

// The client width a row of that many standard buttons needs, margins included.
constexpr int widthForButtons(int buttons) {
    return 2 * dialogs::kDluMargin + buttons * dialogs::kDluButtonWidth + (buttons - 1) * dialogs::kDluSpacing;
}

inline Placement labelAt(const basic::Str& name, const basic::Str& caption, int x, int y, int width,
                         const basic::Str& labelFor) {
    return dialogs::label(name, caption, {x, y + kLabelDrop, width, dialogs::kDluLabelHeight}, labelFor);
}

// The declaration builders' column: four buttons wide, the labels on the left, the boxes beside
// them up to the right margin.
namespace column {
constexpr int kWidth = widthForButtons(4);
constexpr int kRight = kWidth - dialogs::kDluMargin;
constexpr int kLabelWidth = 52;
constexpr int kBoxX = dialogs::kDluMargin + kLabelWidth + dialogs::kDluSpacing;
constexpr int kBoxWidth = kRight - kBoxX;
}  // namespace column

// The buttons side by side from the left margin at `y`; gives the bottom of the row.
inline int buttonRow(std::vector<Placement>& items, int y, const std::vector<basic::Str>& buttons) {
    int x = dialogs::kDluMargin;
    for (const auto& button : buttons) {
        items.push_back(dialogs::placed(button, {x, y, dialogs::kDluButtonWidth, dialogs::kDluButtonHeight}));
        x += dialogs::kDluButtonWidth + dialogs::kDluSpacing;
    }
    return y + dialogs::kDluButtonHeight;
}

}  // namespace quillet::builders::grid
