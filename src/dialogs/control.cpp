// The control model: properties and the events their changes raise.

#include "dialogs/control.h"

#include "basic/vb_error.h"
#include "dialogs/form.h"

namespace quillet::dialogs {

namespace {
constexpr long kInvalidPropertyValue = 380;
constexpr long kInvalidPropertyArrayIndex = 381;
}  // namespace

Str Control::Text() const {
    if (kind_ == ControlKind::ListBox) return listIndex_ >= 0 ? list_[listIndex_].text : Str{};
    return text_;
}

void Control::Text(const Str& text) {
    if (text == text_) return;
    text_ = text;
    Change();
}

void Control::Value(long value) {
    if (kind_ == ControlKind::OptionButton) value = value != 0 ? 1 : 0;
    bool changed = value != value_;
    value_ = value;
    if (kind_ == ControlKind::OptionButton && value_ == 1 && owner_) owner_->optionTurnedOn(*this);
    if (changed && (kind_ == ControlKind::CheckBox || (kind_ == ControlKind::OptionButton && value_ == 1))) Click();
}

void Control::checkIndex(long index, long error) const {
    if (index < 0 || index >= ListCount()) throw basic::VbError::standard(error);
}

void Control::AddItem(const Str& text, long index) {
    if (index == -1) index = ListCount();
    if (index < 0 || index > ListCount()) throw basic::VbError::standard(basic::err::InvalidCall);
    list_.insert(list_.begin() + index, ListEntry{text, 0, false});
    if (listIndex_ >= index) ++listIndex_;
}

void Control::RemoveItem(long index) {
    checkIndex(index, kInvalidPropertyArrayIndex);
    list_.erase(list_.begin() + index);
    if (listIndex_ == index)
        listIndex_ = -1;
    else if (listIndex_ > index)
        --listIndex_;
}

void Control::Clear() {
    list_.clear();
    listIndex_ = -1;
    if (kind_ == ControlKind::ComboBox) text_.clear();
}

const ListEntry& Control::entry(long index) const {
    checkIndex(index, kInvalidPropertyArrayIndex);
    return list_[index];
}

ListEntry& Control::entry(long index) {
    checkIndex(index, kInvalidPropertyArrayIndex);
    return list_[index];
}

Str Control::List(long index) const { return entry(index).text; }
long Control::ItemData(long index) const { return entry(index).itemData; }
void Control::ItemData(long index, long data) { entry(index).itemData = data; }
bool Control::Selected(long index) const { return entry(index).selected; }
void Control::Selected(long index, bool value) { entry(index).selected = value; }

void Control::ListIndex(long index) {
    if (index < -1 || index >= ListCount()) throw basic::VbError::standard(kInvalidPropertyValue);
    bool changed = index != listIndex_;
    listIndex_ = index;
    if (kind_ == ControlKind::ComboBox) {
        Str newText = index >= 0 ? list_[index].text : text_;
        if (newText != text_) {
            text_ = newText;
            Change();
        }
    }
    if (changed || kind_ == ControlKind::ComboBox) Click();
}

void Control::Click() {
    for (auto& handler : std::vector(ClickHandlers)) handler(*this);
}

void Control::Change() {
    for (auto& handler : std::vector(ChangeHandlers)) handler(*this);
}

void Control::KeyPress(long& keyAscii) {
    for (auto& handler : std::vector(KeyPressHandlers)) {
        if (keyAscii == 0) return;
        handler(*this, keyAscii);
    }
}

void Control::KeyDown(long& keyCode, long shift) {
    for (auto& handler : std::vector(KeyDownHandlers)) {
        if (keyCode == 0) return;
        handler(*this, keyCode, shift);
    }
}

}  // namespace quillet::dialogs
