// Stable sorting of names: textual, then binary.

#include "support/cls_sort.h"

#include "basic/strings.h"

namespace quillet::support {

bool NameLess(const Str& a, const Str& b) {
    int text = basic::StrComp(a, b, basic::Compare::Text);
    if (text != 0) return text < 0;
    return basic::StrComp(a, b, basic::Compare::Binary) < 0;
}

void clsSort::Sort(std::vector<Str>& values) { std::stable_sort(values.begin(), values.end(), NameLess); }

void clsSort::Sort(basic::Collection<Str>& values) {
    std::vector<Str> list;
    for (const auto& value : values) list.push_back(value);
    Sort(list);
    values.Clear();
    for (auto& value : list) values.Add(value);
}

}  // namespace quillet::support
