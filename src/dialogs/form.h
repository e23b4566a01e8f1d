#pragma once
// The base of every dialog model: named controls, looked up ignoring case, and event handlers
// by name ("cboModule_Click"), so that aids like the combo type-ahead can call the form's own
// handler as a Basic form's code would by CallByName.

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "dialogs/control.h"

namespace quillet::dialogs {

class Form {
public:
    explicit Form(Str name) : name_(std::move(name)) {}
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const Str& Name() const { return name_; }

    // Adds a control; a name that is taken raises 5.
    Control& AddControl(const Str& name, ControlKind kind);
    // The control of that name, or nothing.
    Control* Find(const Str& name);
    // The control of that name; a missing one raises 730 "Control 'name' not found".
    Control& Controls(const Str& name);
    // All controls in the order they were added.
    std::vector<Control*> AllControls();

    // Registers a handler by its name, replacing an earlier one.
    void Handler(const Str& name, std::function<void()> handler);
    // Calls the handler of that name (ignoring case); False when there is none.
    bool CallHandler(const Str& name);

    Str Caption;
    bool Visible = false;
    Str Tag;

    // Turns off the other option buttons of the same container (used by Control).
    void optionTurnedOn(Control& option);

private:
    Str name_;
    std::vector<std::unique_ptr<Control>> controls_;
    std::map<Str, std::function<void()>> handlers_;
};

// A name folded for look-ups that ignore case.
Str foldedName(const Str& name);

}  // namespace quillet::dialogs
