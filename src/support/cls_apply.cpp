// Hooks that enable cmdApply.

#include "support/cls_apply.h"

namespace quillet::support {

void clsApply::init(dialogs::Control& control, dialogs::Form& form) {
    auto enableApply = [&form](dialogs::Control&) {
        if (auto* apply = form.Find(u"cmdApply")) apply->Enabled = true;
    };
    using dialogs::ControlKind;
    switch (control.Kind()) {
    case ControlKind::TextBox: control.ChangeHandlers.push_back(enableApply); break;
    case ControlKind::ComboBox:
        control.ChangeHandlers.push_back(enableApply);
        control.ClickHandlers.push_back(enableApply);
        break;
    case ControlKind::CheckBox: control.ClickHandlers.push_back(enableApply); break;
    default: break;
    }
}

}  // namespace quillet::support
