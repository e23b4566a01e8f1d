// Placements, captions and access keys of dialog layouts, and the catalogue of layouts by form.

#include "dialogs/layout.h"

#include <algorithm>

#include "basic/strings.h"

namespace quillet::dialogs {

bool DluRect::contains(const DluRect& other) const {
    return other.x >= x && other.y >= y && other.right() <= right() && other.bottom() <= bottom();
}

bool DluRect::overlaps(const DluRect& other) const {
    return x < other.right() && other.x < right() && y < other.bottom() && other.y < bottom();
}

const Placement* FormLayout::find(const Str& name) const {
    Str key = foldedName(name);
    for (const auto& item : items)
        if (foldedName(item.name) == key) return &item;
    return nullptr;
}

Placement placed(const Str& name, DluRect rect, const Str& caption) {
    Placement item;
    item.name = name;
    item.rect = rect;
    item.caption = caption;
    return item;
}

Placement placedCombo(const Str& name, DluRect rect, ComboStyle style) {
    Placement item = placed(name, rect);
    item.combo = style;
    return item;
}

Placement label(const Str& name, const Str& caption, DluRect rect, const Str& labelFor) {
    Placement item = placed(name, rect, caption);
    item.labelFor = labelFor;
    // A label of the model keeps its own caption; one of the layout alone is a decoration.
    item.decoration = !caption.empty();
    item.kind = ControlKind::Label;
    return item;
}

Placement frame(const Str& name, const Str& caption, DluRect rect) {
    Placement item = placed(name, rect, caption);
    item.decoration = true;
    item.kind = ControlKind::Frame;
    return item;
}

Str shownCaption(const Placement& item, Form& form) {
    if (item.decoration) return item.caption;
    Control* control = form.Find(item.name);
    if (control && !control->Caption.empty()) return control->Caption;
    return item.caption;
}

ControlKind kindOf(const Placement& item, Form& form) {
    if (item.decoration) return item.kind;
    Control* control = form.Find(item.name);
    return control ? control->Kind() : item.kind;
}

char16_t accessKey(const Str& caption) {
    for (size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != u'&') continue;
        char16_t next = caption[i + 1];
        if (next == u'&') {
            ++i;
            continue;
        }
        return basic::UCase(Str(1, next))[0];
    }
    return 0;
}

bool takesFocus(ControlKind kind) { return kind != ControlKind::Label && kind != ControlKind::Frame; }

void LayoutCatalog::Add(const Str& formName, Maker maker) { makers_[foldedName(formName)] = std::move(maker); }

std::optional<FormLayout> LayoutCatalog::Find(const Str& formName) const {
    auto it = makers_.find(foldedName(formName));
    if (it == makers_.end() || !it->second) return std::nullopt;
    return it->second();
}

std::vector<Str> LayoutCatalog::Names() const {
    std::vector<Str> names;
    for (const auto& [name, maker] : makers_) names.push_back(name);
    return names;
}

namespace {

constexpr int kFallbackWidth = 240;
constexpr int kFallbackListHeight = 56;

int rowHeight(ControlKind kind) {
    if (kind == ControlKind::ListBox) return kFallbackListHeight;
    if (kind == ControlKind::CheckBox || kind == ControlKind::OptionButton) return kDluCheckHeight;
    if (kind == ControlKind::Label) return kDluLabelHeight;
    return kDluFieldHeight;
}

}  // namespace

FormLayout FallbackLayout(Form& form) {
    FormLayout layout;
    layout.form = form.Name();
    layout.width = kFallbackWidth;
    int y = kDluMargin;
    std::vector<Control*> buttons;
    for (Control* control : form.AllControls()) {
        if (control->Kind() == ControlKind::CommandButton) {
            buttons.push_back(control);
            continue;
        }
        // Frames would overlap the rows; the controls stand on their own.
        if (control->Kind() == ControlKind::Frame) continue;
        int height = rowHeight(control->Kind());
        layout.items.push_back(placed(control->Name(), {kDluMargin, y, kFallbackWidth - 2 * kDluMargin, height},
                                      control->Caption.empty() ? control->Name() : Str{}));
        y += height + kDluSpacing;
    }
    int perRow = (kFallbackWidth - 2 * kDluMargin + kDluSpacing) / (kDluButtonWidth + kDluSpacing);
    int rows = static_cast<int>((buttons.size() + perRow - 1) / perRow);
    for (size_t i = 0; i < buttons.size(); ++i) {
        int row = static_cast<int>(i) / perRow;
        int inRow = std::min<int>(perRow, static_cast<int>(buttons.size()) - row * perRow);
        int column = static_cast<int>(i) % perRow + (perRow - inRow);
        int x = kFallbackWidth - kDluMargin - (perRow - column) * (kDluButtonWidth + kDluSpacing) + kDluSpacing;
        layout.items.push_back(placed(buttons[i]->Name(),
                                      {x, y + row * (kDluButtonHeight + kDluSpacing), kDluButtonWidth, kDluButtonHeight},
                                      buttons[i]->Caption.empty() ? buttons[i]->Name() : Str{}));
    }
    layout.height = y + rows * (kDluButtonHeight + kDluSpacing) - (rows ? kDluSpacing : 0) + kDluMargin;
    return layout;
}

}  // namespace quillet::dialogs
