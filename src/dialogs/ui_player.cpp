// The UI script player.

#include "dialogs/ui_player.h"

#include <algorithm>

#include "basic/strings.h"
#include "basic/unicode.h"
#include "basic/vb_error.h"

namespace quillet::dialogs {

namespace {

// A command that cannot act or an expectation that does not hold.
struct Failure {
    Str message;
};

Str quoted(const Str& text) { return u"\"" + text + u"\""; }
Str number(long value) { return basic::u16(std::to_string(value)); }
Str truth(bool value) { return value ? u"true" : u"false"; }

// The verb and target of a command, as messages start: "set txtName".
Str head(const UiCommand& c) {
    static constexpr const char16_t* kVerbs[] = {u"open",  u"set",    u"select",      u"check",      u"click",
                                                 u"answer", u"expect", u"expect-form", u"expect-code"};
    Str verb = kVerbs[static_cast<int>(c.verb)];
    return c.target.empty() ? verb : verb + u" " + c.target;
}

class Player {
public:
    Player(FormStack& forms, const UiScriptHooks& hooks) : forms_(forms), hooks_(hooks) {}

    void run(const UiCommand& c) {
        switch (c.verb) {
            case UiVerb::Open: open(c); break;
            case UiVerb::Set: act(c, usable(c, {ControlKind::TextBox, ControlKind::ComboBox}, u"a text box or combo box"),
                                  [&](Control& control) { control.Text(c.text); });
                break;
            case UiVerb::Select: select(c); break;
            case UiVerb::Check: act(c, usable(c, {ControlKind::CheckBox, ControlKind::OptionButton}, u"a check box or option button"),
                                    [&](Control& control) { control.Value(c.number); });
                break;
            case UiVerb::Click: act(c, usable(c, {}, u""), [](Control& control) { control.Click(); }); break;
            case UiVerb::Answer: answer(c); break;
            case UiVerb::Expect: expect(c); break;
            case UiVerb::ExpectForm: expectForm(c); break;
            case UiVerb::ExpectCode: expectCode(c); break;
        }
    }

private:
    [[noreturn]] static void fail(const UiCommand& c, const Str& message) { throw Failure{head(c) + u": " + message}; }

    Form& top(const UiCommand& c) {
        Form* form = forms_.Top();
        if (!form) fail(c, u"no dialog is open");
        return *form;
    }

    Control& control(const UiCommand& c) {
        Form& form = top(c);
        Control* found = form.Find(c.target);
        if (!found) fail(c, form.Name() + u" has no control '" + c.target + u"'");
        return *found;
    }

    // The control, when a user could act on it.
    Control& usable(const UiCommand& c, std::initializer_list<ControlKind> kinds, const Str& kindName) {
        Control& found = control(c);
        if (kinds.size() && std::find(kinds.begin(), kinds.end(), found.Kind()) == kinds.end())
            fail(c, u"the control is not " + kindName);
        if (!found.Visible) fail(c, u"the control is hidden");
        if (!found.Enabled) fail(c, u"the control is disabled");
        return found;
    }

    template <class Action>
    void act(const UiCommand& c, Control& control, Action action) {
        guarded(c, [&] { forms_.Raise([&] { action(control); }); });
    }

    template <class Body>
    void guarded(const UiCommand& c, Body body) {
        try {
            body();
        } catch (const basic::VbError& error) {
            fail(c, u"error " + number(error.Number()) + u": " + error.Description());
        } catch (const std::exception& error) {
            fail(c, basic::u16(error.what()));
        }
    }

    void open(const UiCommand& c) {
        if (!forms_.IsRegistered(c.target)) fail(c, u"no dialog of that name can be opened");
        guarded(c, [&] { forms_.Open(c.target, c.args); });
    }

    void select(const UiCommand& c) {
        Control& list = usable(c, {ControlKind::ComboBox, ControlKind::ListBox}, u"a list");
        long index = c.number;
        if (c.byIndex) {
            if (index >= list.ListCount()) fail(c, u"no entry #" + number(index) + u": the list has " + number(list.ListCount()));
        } else {
            index = entryOf(list, c.text);
            if (index < 0) fail(c, u"no entry " + quoted(c.text) + u" in " + entries(list));
        }
        act(c, list, [index](Control& control) { control.ListIndex(index); });
    }

    // The entry of that text, else the first one that differs only in case; -1 when none.
    static long entryOf(const Control& list, const Str& text) {
        for (long i = 0; i < list.ListCount(); ++i)
            if (list.List(i) == text) return i;
        for (long i = 0; i < list.ListCount(); ++i)
            if (basic::StrComp(list.List(i), text, basic::Compare::Text) == 0) return i;
        return -1;
    }

    static Str entries(const Control& list) {
        if (list.ListCount() == 0) return u"an empty list";
        Str all;
        long shown = std::min<long>(list.ListCount(), 12);
        for (long i = 0; i < shown; ++i) all += (i ? u", " : u"") + quoted(list.List(i));
        if (shown < list.ListCount()) all += u" ...";
        return u"(" + all + u")";
    }

    void answer(const UiCommand& c) {
        if (!hooks_.answer) fail(c, u"answers cannot be given here");
        hooks_.answer(c.text);
    }

    void expect(const UiCommand& c) {
        Form& form = top(c);
        if (!form.Find(c.target) && foldedName(c.target) == foldedName(form.Name())) return expectOfForm(c, form);
        Control& found = control(c);
        switch (c.property) {
            case UiProperty::Text: same(c, c.text, found.Text()); break;
            case UiProperty::Caption: same(c, c.text, found.Caption); break;
            case UiProperty::ToolTip: same(c, c.text, found.ToolTipText); break;
            case UiProperty::Value: sameNumber(c, found.Value()); break;
            case UiProperty::ListIndex: sameNumber(c, found.ListIndex()); break;
            case UiProperty::Count: sameNumber(c, found.ListCount()); break;
            case UiProperty::Enabled: sameFlag(c, found.Enabled); break;
            case UiProperty::Visible: sameFlag(c, found.Visible); break;
            case UiProperty::Item: same(c, c.text, entry(c, found).text); break;
            case UiProperty::ItemData: sameNumber(c, entry(c, found).itemData); break;
        }
    }

    void expectOfForm(const UiCommand& c, Form& form) {
        if (c.property == UiProperty::Caption) return same(c, c.text, form.Caption);
        if (c.property == UiProperty::Visible) return sameFlag(c, form.Visible);
        fail(c, u"a form has only caption and visible");
    }

    static const ListEntry& entry(const UiCommand& c, Control& list) {
        if (c.number >= list.ListCount())
            fail(c, u"no entry " + number(c.number) + u": the list has " + number(list.ListCount()));
        return list.Entries()[c.number];
    }

    static void same(const UiCommand& c, const Str& expected, const Str& found) {
        if (expected != found) fail(c, u"expected " + quoted(expected) + u", found " + quoted(found));
    }
    static void sameNumber(const UiCommand& c, long found) {
        if (c.expected != found) fail(c, u"expected " + number(c.expected) + u", found " + number(found));
    }
    static void sameFlag(const UiCommand& c, bool found) {
        if (c.flag != found) fail(c, u"expected " + truth(c.flag) + u", found " + truth(found));
    }

    void expectForm(const UiCommand& c) {
        bool open = forms_.FindOpen(c.target) != nullptr;
        if (open != c.flag) fail(c, c.flag ? u"the dialog is not open" : u"the dialog is open");
    }

    void expectCode(const UiCommand& c) {
        if (!hooks_.moduleText) fail(c, u"modules cannot be read here");
        std::optional<Str> text;
        guarded(c, [&] { text = hooks_.moduleText(c.target); });
        if (!text) fail(c, u"no module of that name");
        if (*text != c.text) fail(c, firstDifference(c.text, *text));
    }

    static Str firstDifference(const Str& expected, const Str& found) {
        auto want = basic::Split(expected, u"\r\n");
        auto have = basic::Split(found, u"\r\n");
        size_t lines = std::min(want.size(), have.size());
        for (size_t i = 0; i < lines; ++i) {
            if (want[i] != have[i])
                return u"line " + number(static_cast<long>(i) + 1) + u" of the module: expected " + quoted(want[i]) +
                       u", found " + quoted(have[i]);
        }
        if (want.size() != have.size())
            return u"the module has " + number(static_cast<long>(have.size())) + u" lines, expected " +
                   number(static_cast<long>(want.size()));
        return u"the module's text differs";
    }

    FormStack& forms_;
    const UiScriptHooks& hooks_;
};

}  // namespace

Str UiScriptOutcome::describe() const {
    if (status == Status::Passed) return u"passed";
    return u"line " + number(line) + u": " + message;
}

UiScriptOutcome playUiCommands(const std::vector<UiCommand>& commands, FormStack& forms, const UiScriptHooks& hooks) {
    Player player(forms, hooks);
    for (const UiCommand& c : commands) {
        try {
            player.run(c);
        } catch (const Failure& failure) {
            return {UiScriptOutcome::Status::Failed, c.line, failure.message};
        }
    }
    return {};
}

UiScriptOutcome playUiScript(const Str& script, FormStack& forms, const UiScriptHooks& hooks) {
    std::vector<UiCommand> commands;
    try {
        commands = parseUiScript(script);
    } catch (const UiScriptSyntaxError& error) {
        return {UiScriptOutcome::Status::Invalid, error.line(), error.message()};
    }
    return playUiCommands(commands, forms, hooks);
}

}  // namespace quillet::dialogs
