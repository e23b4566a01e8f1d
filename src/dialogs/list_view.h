#pragma once
// A list box shown as a list view in report style: column headers, and for each row the texts of
// the columns behind the first and a key. The rows' first texts are the list box's entries, so
// selecting, ListIndex and Click stay the list box's.

#include <vector>

#include "dialogs/control.h"

namespace quillet::dialogs {

class ListView {
public:
    ListView(Control& list, std::vector<Str> columns) : list_(&list), columns_(std::move(columns)) {}

    Control& List() { return *list_; }
    const std::vector<Str>& ColumnHeaders() const { return columns_; }
    void Clear();
    void AddRow(const Str& text, std::vector<Str> subItems, const Str& key);
    long Count() const { return static_cast<long>(rows_.size()); }
    // The row's other columns and its key, by 0-based index; an index outside the rows raises 381.
    const std::vector<Str>& SubItems(long index) const;
    const Str& Key(long index) const;
    // The key of the selected row, "" when none is.
    Str SelectedKey() const;

private:
    struct Row {
        std::vector<Str> subItems;
        Str key;
    };
    const Row& row(long index) const;

    Control* list_;
    std::vector<Str> columns_;
    std::vector<Row> rows_;
};

}  // namespace quillet::dialogs
