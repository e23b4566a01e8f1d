#pragma once
// The add-in's real dialog windows as a UI script's surface: dialogs and controls are found by
// the name each window carries (the "QuilletName" property, a global atom), read with window
// messages, and acted on as a user's input would reach them: text set into an edit control (its
// EN_CHANGE, or the combo box's CBN_EDITCHANGE), an entry selected with its CBN_SELCHANGE or
// LBN_SELCHANGE, a button's or check box's BN_CLICKED. After each action the message loop runs
// until nothing is left to do, as the editor's would.

#include <windows.h>

#include <functional>
#include <map>

#include "dialogs/ui_surface.h"

namespace quillet::wine {

using dialogs::Str;

// The visible top-level dialog of that name, or none.
HWND findDialog(const Str& formName);
// The child control of a dialog with that name, or none.
HWND findControl(HWND dialog, const Str& controlName);
// The Quillet dialog on top: the visible one that owns no other visible Quillet dialog.
HWND topDialog();

class WindowSurface : public dialogs::UiSurface {
public:
    // How the harness opens a dialog by form name (clicking its command bar button).
    using Opener = std::function<void(const std::vector<Str>& args)>;
    void addOpener(const Str& formName, Opener opener) { openers_[formName] = std::move(opener); }

    std::optional<Str> topForm() override;
    Str formCaption() override;
    bool formVisible() override;
    bool formOpen(const Str& formName) override;
    bool canOpen(const Str& formName) override;
    std::optional<dialogs::ControlSnapshot> control(const Str& name) override;
    void open(const Str& formName, const std::vector<Str>& args) override;
    void setText(const Str& name, const Str& text) override;
    void selectEntry(const Str& name, long index) override;
    void setValue(const Str& name, long value) override;
    void click(const Str& name) override;

private:
    HWND existing(const Str& name);

    std::map<Str, Opener> openers_;
};

// Runs this thread's messages until none is waiting (a few rounds, so that posted follow-ups run).
void settle();

}  // namespace quillet::wine
