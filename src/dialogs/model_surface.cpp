#include "dialogs/model_surface.h"

#include "basic/vb_error.h"

namespace quillet::dialogs {

std::optional<Str> ModelSurface::topForm() {
    if (Form* form = forms_.Top()) return form->Name();
    return std::nullopt;
}

Str ModelSurface::formCaption() { return forms_.Top() ? forms_.Top()->Caption : Str(); }

bool ModelSurface::formVisible() { return forms_.Top() && forms_.Top()->Visible; }

bool ModelSurface::formOpen(const Str& formName) { return forms_.FindOpen(formName) != nullptr; }

bool ModelSurface::canOpen(const Str& formName) { return forms_.IsRegistered(formName); }

std::optional<ControlSnapshot> ModelSurface::control(const Str& name) {
    Form* form = forms_.Top();
    Control* found = form ? form->Find(name) : nullptr;
    if (!found) return std::nullopt;
    ControlSnapshot shot;
    shot.kind = found->Kind();
    shot.text = found->Text();
    shot.caption = found->Caption;
    shot.toolTip = found->ToolTipText;
    shot.value = found->Value();
    shot.listIndex = found->ListIndex();
    shot.entries = found->Entries();
    shot.enabled = found->Enabled;
    shot.visible = found->Visible;
    return shot;
}

Control& ModelSurface::existing(const Str& name) {
    Form* form = forms_.Top();
    Control* found = form ? form->Find(name) : nullptr;
    if (!found) throw basic::VbError(730, u"Control '" + name + u"' not found");
    return *found;
}

void ModelSurface::open(const Str& formName, const std::vector<Str>& args) { forms_.Open(formName, args); }

void ModelSurface::setText(const Str& name, const Str& text) {
    Control& control = existing(name);
    forms_.Raise([&] { control.Text(text); });
}

void ModelSurface::selectEntry(const Str& name, long index) {
    Control& control = existing(name);
    forms_.Raise([&] { control.ListIndex(index); });
}

void ModelSurface::setValue(const Str& name, long value) {
    Control& control = existing(name);
    forms_.Raise([&] { control.Value(value); });
}

void ModelSurface::click(const Str& name) {
    Control& control = existing(name);
    forms_.Raise([&] { control.Click(); });
}

}  // namespace quillet::dialogs
