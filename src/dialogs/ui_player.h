#pragma once
// Plays a UI script against the dialogs of a FormStack: each command acts on the dialog on top as
// a user would (a disabled or hidden control refuses), each event runs through the stack, and the
// first failure stops the script with its line and a message that says what differs.

#include <functional>
#include <optional>
#include <string>

#include "dialogs/form_stack.h"
#include "dialogs/ui_script.h"
#include "dialogs/ui_surface.h"

namespace quillet::dialogs {

// What the script reaches beyond the dialogs.
struct UiScriptHooks {
    // Queues the answer for the next message or input box (`answer`).
    std::function<void(const Str& answer)> answer;
    // The whole text of a module, lines joined by CRLF; none when there is no such module
    // (`expect-code`).
    std::function<std::optional<Str>(const Str& module)> moduleText;
};

struct UiScriptOutcome {
    enum class Status {
        Passed,
        Invalid,  // the script's text cannot be read; nothing ran
        Failed,   // an expectation did not hold, or a command could not act
    };
    Status status = Status::Passed;
    long line = 0;
    Str message;

    bool passed() const { return status == Status::Passed; }
    // "line 7: expect txtName text: expected "Foo", found "Bar"".
    Str describe() const;
};

// On any surface (the real windows, say), or on the models of a stack.
UiScriptOutcome playUiScript(const Str& script, UiSurface& surface, const UiScriptHooks& hooks);
UiScriptOutcome playUiCommands(const std::vector<UiCommand>& commands, UiSurface& surface, const UiScriptHooks& hooks);
UiScriptOutcome playUiScript(const Str& script, FormStack& forms, const UiScriptHooks& hooks);
UiScriptOutcome playUiCommands(const std::vector<UiCommand>& commands, FormStack& forms, const UiScriptHooks& hooks);

}  // namespace quillet::dialogs
