#pragma once
// Type-ahead for a combo box (clsComboExpand). A typed key is looked up with the text as it will
// be: on a hit the entry is selected, the part behind what was typed is selected in the text,
// the key is swallowed and the form's "<combo>_Click" handler runs. Enter and Tab pass through.
// Backspace and Delete look for an exact entry; other keys for an entry that starts so.

#include <string>

#include "dialogs/form.h"

namespace quillet::support {

class clsComboExpand {
public:
    // Hooks the combo's KeyPress and KeyDown (for Delete).
    static void init(dialogs::Form& form, dialogs::Control& combo);

    // The list look-ups of the platform's combo box: first entry starting with the text, or equal
    // to it, ignoring case; -1 when none.
    static long FindString(const dialogs::Control& combo, const std::u16string& text);
    static long FindStringExact(const dialogs::Control& combo, const std::u16string& text);

    // One key (a character code, or 46 for Delete from KeyDown); sets key to 0 when swallowed.
    static void Key(dialogs::Form& form, dialogs::Control& combo, long& key);
};

}  // namespace quillet::support
