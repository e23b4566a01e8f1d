#include "builders/layout_parts.h"

namespace quillet::builders {

using namespace dialogs;

namespace {

constexpr int kFrameTop = 11;  // room for the frame's caption
constexpr int kCheckRow = kDluCheckHeight + 2;

}  // namespace

int OptionsFrame(std::vector<Placement>& items, int y, int left, int right, int gap,
                 const std::vector<std::pair<Str, Str>>& options) {
    int count = static_cast<int>(options.size());
    int rows = (count + 1) / 2;
    int height = kFrameTop + rows * kCheckRow - 2 + kDluMargin - 1;
    items.push_back(frame(u"fraOptions", u"Options", {left, y, right - left, height}));
    int columnWidth = (right - left - 2 * kDluMargin - gap) / 2;
    for (int i = 0; i < count; ++i) {
        int x = left + kDluMargin + (i % 2) * (columnWidth + gap);
        int top = y + kFrameTop + 1 + (i / 2) * kCheckRow;
        items.push_back(placed(options[i].first, {x, top, columnWidth, kDluCheckHeight}, options[i].second));
    }
    return height;
}

int ButtonRow(std::vector<Placement>& items, int x, int y, const std::vector<Str>& buttons) {
    for (const Str& button : buttons) {
        items.push_back(placed(button, {x, y, kDluButtonWidth, kDluButtonHeight}));
        x += kDluButtonWidth + kDluSpacing;
    }
    return y + kDluButtonHeight + kDluMargin;
}

}  // namespace quillet::builders
