#pragma once
// What a UI script acts on: the open dialogs and their controls, reached by name. The models
// (ModelSurface) are one surface; the real windows of the Windows add-in, driven by window
// messages, are another, so the same script checks both.

#include <optional>
#include <string>
#include <vector>

#include "dialogs/control.h"

namespace quillet::dialogs {

// What a script reads of a control.
struct ControlSnapshot {
    ControlKind kind = ControlKind::TextBox;
    Str text;
    Str caption;
    Str toolTip;
    long value = 0;
    long listIndex = -1;
    std::vector<ListEntry> entries;
    bool enabled = true;
    bool visible = true;
};

class UiSurface {
public:
    virtual ~UiSurface() = default;

    // The dialog on top, or none.
    virtual std::optional<Str> topForm() = 0;
    virtual Str formCaption() = 0;
    virtual bool formVisible() = 0;
    // Whether a dialog of that name is open.
    virtual bool formOpen(const Str& formName) = 0;
    // Whether a dialog of that name can be opened.
    virtual bool canOpen(const Str& formName) = 0;

    // A control of the dialog on top, or none.
    virtual std::optional<ControlSnapshot> control(const Str& name) = 0;

    // The user's actions; each raises its events and returns once they have run. A failure
    // inside raises basic::VbError.
    virtual void open(const Str& formName, const std::vector<Str>& args) = 0;
    virtual void setText(const Str& name, const Str& text) = 0;
    virtual void selectEntry(const Str& name, long index) = 0;
    virtual void setValue(const Str& name, long value) = 0;
    virtual void click(const Str& name) = 0;
};

}  // namespace quillet::dialogs
