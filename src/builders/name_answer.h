#pragma once
// What a builder does with the answer of CheckNewNameIsOK.

#include "dialogs/form.h"

namespace quillet::builders {

// 0 lets the name through; Cancel (2) closes the dialog; No, or a missing name, leaves the focus
// in txtName. True when the builder may go on with the name.
inline bool nameAnswerAccepted(dialogs::Form& form, basic::Str& focusedControl, long answer) {
    if (answer == 0) return true;
    if (answer == 2)
        form.Unload();
    else
        focusedControl = u"txtName";
    return false;
}

}  // namespace quillet::builders
