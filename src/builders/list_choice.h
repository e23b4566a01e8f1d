#pragma once
// Small look-ups the builders share when they show a model in their lists.

#include "dialogs/control.h"
#include "source/type_lists.h"

namespace quillet::builders {

// 1 "Public", 2 "Private", 3 "Friend" (ignoring case), 0 for any other text.
inline long AccessIndex(const dialogs::Str& access) {
    const char16_t* names[] = {u"Public", u"Private", u"Friend"};
    for (long i = 0; i < 3; ++i)
        if (basic::StrComp(access, names[i], basic::Compare::Text) == 0) return i + 1;
    return 0;
}

// Selects the entry of that text; a text the list lacks is typed in.
inline void SelectText(dialogs::Control& list, const dialogs::Str& text) {
    long index = source::FindInList(list, text);
    if (index >= 0)
        list.ListIndex(index);
    else
        list.Text(text);
}

}  // namespace quillet::builders
