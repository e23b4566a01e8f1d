#pragma once
// Enables a form's cmdApply as soon as one of its controls changes (clsApply): a text box's
// change, a combo box's click or change, a check box's click.

#include "dialogs/form.h"

namespace quillet::support {

class clsApply {
public:
    // Hooks the control's events; a form without cmdApply is left alone.
    static void init(dialogs::Control& control, dialogs::Form& form);
};

}  // namespace quillet::support
