// The key a Collection compares: folded as Text compare folds, so "Name" and "NAME" are one key.

#include "basic/collection.h"

#include "basic/strings.h"

namespace quillet::basic {

Str collectionKey(const Str& key) {
    Str out(key);
    for (auto& c : out) c = foldCase(c);
    return out;
}

}  // namespace quillet::basic
