#pragma once
// The dialog models of a FormStack as a UI script's surface: each action runs as one event of the
// stack, as a user's action on a real window does.

#include "dialogs/form_stack.h"
#include "dialogs/ui_surface.h"

namespace quillet::dialogs {

class ModelSurface : public UiSurface {
public:
    explicit ModelSurface(FormStack& forms) : forms_(forms) {}

    std::optional<Str> topForm() override;
    Str formCaption() override;
    bool formVisible() override;
    bool formOpen(const Str& formName) override;
    bool canOpen(const Str& formName) override;
    std::optional<ControlSnapshot> control(const Str& name) override;
    void open(const Str& formName, const std::vector<Str>& args) override;
    void setText(const Str& name, const Str& text) override;
    void selectEntry(const Str& name, long index) override;
    void setValue(const Str& name, long value) override;
    void click(const Str& name) override;

private:
    Control& existing(const Str& name);

    FormStack& forms_;
};

}  // namespace quillet::dialogs
