#include "dialogs/list_view.h"

#include "basic/vb_error.h"

namespace quillet::dialogs {

void ListView::Clear() {
    list_->Clear();
    rows_.clear();
}

void ListView::AddRow(const Str& text, std::vector<Str> subItems, const Str& key) {
    list_->AddItem(text);
    rows_.push_back({std::move(subItems), key});
}

const ListView::Row& ListView::row(long index) const {
    if (index < 0 || index >= Count()) throw basic::VbError::standard(381);
    return rows_[static_cast<size_t>(index)];
}

const std::vector<Str>& ListView::SubItems(long index) const { return row(index).subItems; }

const Str& ListView::Key(long index) const { return row(index).key; }

Str ListView::SelectedKey() const {
    long index = list_->ListIndex();
    return index >= 0 && index < Count() ? rows_[static_cast<size_t>(index)].key : Str();
}

}  // namespace quillet::dialogs
