#pragma once
// Sorting for dialogs' lists (clsSort): names in order of a textual comparison, names equal in
// that order told apart by a binary one; equal names keep their order.

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "basic/collection.h"

namespace quillet::support {

using Str = std::u16string;

// True when a sorts before b.
bool NameLess(const Str& a, const Str& b);

class clsSort {
public:
    // Orders values; a collection's keys are not kept.
    static void Sort(std::vector<Str>& values);
    static void Sort(basic::Collection<Str>& values);

    // Orders objects by their Name().
    template <class T>
    static void SortByName(std::vector<std::shared_ptr<T>>& objects) {
        std::stable_sort(objects.begin(), objects.end(),
                         [](const auto& a, const auto& b) { return NameLess(a->Name(), b->Name()); });
    }
    template <class T>
    static void SortByName(basic::Collection<std::shared_ptr<T>>& objects) {
        std::vector<std::shared_ptr<T>> list;
        for (const auto& object : objects) list.push_back(object);
        SortByName(list);
        objects.Clear();
        for (auto& object : list) objects.Add(object);
    }
};

}  // namespace quillet::support
