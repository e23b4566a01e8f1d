#pragma once
// UI scripts: one command a line, acting on the dialog on top as a user would (docs/ui-scripts.md).
// A script is parsed whole before it runs, so a mistake in its text stops it before it acts.

#include <stdexcept>
#include <string>
#include <vector>

#include "dialogs/control.h"

namespace quillet::dialogs {

enum class UiVerb { Open, Set, Select, Check, Click, Answer, Expect, ExpectForm, ExpectCode };

// The properties `expect` checks.
enum class UiProperty { Text, Value, Enabled, Visible, Caption, ListIndex, Count, Item, ItemData, ToolTip };

struct UiCommand {
    long line = 0;               // 1-based line of the script
    UiVerb verb = UiVerb::Click;
    Str source;                  // the command's text, for messages ("set txtName Foo")
    Str target;                  // FORM, CONTROL or MODULE
    std::vector<Str> args;       // open: the arguments behind FORM
    Str text;                    // set, answer, select (entry text), expect (value), expect-code (the block)
    long number = 0;             // select #N, check 0|1|2, expect item N / itemdata N
    bool byIndex = false;        // select #N
    long expected = 0;           // expect value, listindex, count, itemdata: the number expected
    bool flag = false;           // expect-form: open; expect enabled, visible: true
    UiProperty property = UiProperty::Text;
};

// A line the parser cannot read.
class UiScriptSyntaxError : public std::runtime_error {
public:
    UiScriptSyntaxError(long line, const Str& message);
    long line() const { return line_; }
    const Str& message() const { return message_; }

private:
    long line_;
    Str message_;
};

// Lines end in LF or CRLF. Throws UiScriptSyntaxError.
std::vector<UiCommand> parseUiScript(const Str& script);

}  // namespace quillet::dialogs
