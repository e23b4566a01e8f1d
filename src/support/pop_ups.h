#pragma once
// The two borderless pop-ups of the builders: frmList (a list at the caret) and frmTextInput (a
// text box over a placeholder). The caller fills them, shows them, and reads the outcome.

#include <optional>
#include <string>

#include "dialogs/form.h"

namespace quillet::support {

using Str = std::u16string;

class frmList : public dialogs::Form {
public:
    frmList();
    dialogs::Control& lstList;

    // Selects the first entry, if there is one.
    void Form_Activate();
    // Enter takes, Escape cancels, Tab passes on; the key is kept in LastKey.
    void lstList_KeyPress(long key);
    // A double click counts as Enter.
    void lstList_DblClick();
    // A click outside the list counts as Escape.
    void ClickOutside();

    long LastKey = 0;
    // The chosen entry's text once taken.
    std::optional<Str> Choice;
};

class frmTextInput : public dialogs::Form {
public:
    frmTextInput();
    dialogs::Control& txtInput;

    void init(const Str& text);
    // Enter takes the text, Escape cancels.
    void txtInput_KeyPress(long key);
    void ClickOutside();

    std::optional<Str> Result;
};

}  // namespace quillet::support
