// The form model: controls and handlers by name.

#include "dialogs/form.h"

#include "basic/strings.h"
#include "basic/vb_error.h"

namespace quillet::dialogs {

Str foldedName(const Str& name) { return basic::UCase(name); }

Control& Form::AddControl(const Str& name, ControlKind kind) {
    if (Find(name)) throw basic::VbError::standard(basic::err::InvalidCall);
    controls_.push_back(std::make_unique<Control>(this, name, kind));
    return *controls_.back();
}

Control* Form::Find(const Str& name) {
    Str key = foldedName(name);
    for (auto& control : controls_)
        if (foldedName(control->Name()) == key) return control.get();
    return nullptr;
}

Control& Form::Controls(const Str& name) {
    if (Control* control = Find(name)) return *control;
    throw basic::VbError(730, u"Control '" + name + u"' not found");
}

std::vector<Control*> Form::AllControls() {
    std::vector<Control*> all;
    for (auto& control : controls_) all.push_back(control.get());
    return all;
}

void Form::Handler(const Str& name, std::function<void()> handler) { handlers_[foldedName(name)] = std::move(handler); }

bool Form::CallHandler(const Str& name) {
    auto it = handlers_.find(foldedName(name));
    if (it == handlers_.end() || !it->second) return false;
    auto handler = it->second;
    handler();
    return true;
}

void Form::optionTurnedOn(Control& option) {
    for (auto& control : controls_) {
        if (control.get() == &option || control->Kind() != ControlKind::OptionButton) continue;
        if (foldedName(control->Container) == foldedName(option.Container) && control->Value() != 0) control->Value(0);
    }
}

}  // namespace quillet::dialogs
