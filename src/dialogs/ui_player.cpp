// The UI script player.

#include "dialogs/ui_player.h"

#include <algorithm>

#include "basic/strings.h"
#include "basic/unicode.h"
#include "basic/vb_error.h"
#include "dialogs/model_surface.h"

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
    Player(UiSurface& surface, const UiScriptHooks& hooks) : surface_(surface), hooks_(hooks) {}

    void run(const UiCommand& c) {
        switch (c.verb) {
            case UiVerb::Open: open(c); break;
            case UiVerb::Set:
                usable(c, {ControlKind::TextBox, ControlKind::ComboBox}, u"a text box or combo box");
                guarded(c, [&] { surface_.setText(c.target, c.text); });
                break;
            case UiVerb::Select: select(c); break;
            case UiVerb::Check:
                usable(c, {ControlKind::CheckBox, ControlKind::OptionButton}, u"a check box or option button");
                guarded(c, [&] { surface_.setValue(c.target, c.number); });
                break;
            case UiVerb::Click:
                usable(c, {}, u"");
                guarded(c, [&] { surface_.click(c.target); });
                break;
            case UiVerb::Answer: answer(c); break;
            case UiVerb::Expect: expect(c); break;
            case UiVerb::ExpectForm: expectForm(c); break;
            case UiVerb::ExpectCode: expectCode(c); break;
        }
    }

private:
    [[noreturn]] static void fail(const UiCommand& c, const Str& message) { throw Failure{head(c) + u": " + message}; }

    Str top(const UiCommand& c) {
        std::optional<Str> form = surface_.topForm();
        if (!form) fail(c, u"no dialog is open");
        return *form;
    }

    ControlSnapshot control(const UiCommand& c) {
        Str form = top(c);
        std::optional<ControlSnapshot> found = surface_.control(c.target);
        if (!found) fail(c, form + u" has no control '" + c.target + u"'");
        return *found;
    }

    // The control, when a user could act on it.
    ControlSnapshot usable(const UiCommand& c, std::initializer_list<ControlKind> kinds, const Str& kindName) {
        ControlSnapshot found = control(c);
        if (kinds.size() && std::find(kinds.begin(), kinds.end(), found.kind) == kinds.end())
            fail(c, u"the control is not " + kindName);
        if (!found.visible) fail(c, u"the control is hidden");
        if (!found.enabled) fail(c, u"the control is disabled");
        return found;
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
        if (!surface_.canOpen(c.target)) fail(c, u"no dialog of that name can be opened");
        guarded(c, [&] { surface_.open(c.target, c.args); });
    }

    void select(const UiCommand& c) {
        ControlSnapshot list = usable(c, {ControlKind::ComboBox, ControlKind::ListBox}, u"a list");
        long count = static_cast<long>(list.entries.size());
        long index = c.number;
        if (c.byIndex) {
            if (index >= count) fail(c, u"no entry #" + number(index) + u": the list has " + number(count));
        } else {
            index = entryOf(list, c.text);
            if (index < 0) fail(c, u"no entry " + quoted(c.text) + u" in " + entries(list));
        }
        guarded(c, [&] { surface_.selectEntry(c.target, index); });
    }

    // The entry of that text, else the first one that differs only in case; -1 when none.
    static long entryOf(const ControlSnapshot& list, const Str& text) {
        long count = static_cast<long>(list.entries.size());
        for (long i = 0; i < count; ++i)
            if (list.entries[i].text == text) return i;
        for (long i = 0; i < count; ++i)
            if (basic::StrComp(list.entries[i].text, text, basic::Compare::Text) == 0) return i;
        return -1;
    }

    static Str entries(const ControlSnapshot& list) {
        if (list.entries.empty()) return u"an empty list";
        Str all;
        long count = static_cast<long>(list.entries.size());
        long shown = std::min<long>(count, 12);
        for (long i = 0; i < shown; ++i) all += (i ? u", " : u"") + quoted(list.entries[i].text);
        if (shown < count) all += u" ...";
        return u"(" + all + u")";
    }

    void answer(const UiCommand& c) {
        if (!hooks_.answer) fail(c, u"answers cannot be given here");
        hooks_.answer(c.text);
    }

    void expect(const UiCommand& c) {
        Str form = top(c);
        if (!surface_.control(c.target) && foldedName(c.target) == foldedName(form)) return expectOfForm(c);
        ControlSnapshot found = control(c);
        switch (c.property) {
            case UiProperty::Text: same(c, c.text, found.text); break;
            case UiProperty::Caption: same(c, c.text, found.caption); break;
            case UiProperty::ToolTip: same(c, c.text, found.toolTip); break;
            case UiProperty::Value: sameNumber(c, found.value); break;
            case UiProperty::ListIndex: sameNumber(c, found.listIndex); break;
            case UiProperty::Count: sameNumber(c, static_cast<long>(found.entries.size())); break;
            case UiProperty::Enabled: sameFlag(c, found.enabled); break;
            case UiProperty::Visible: sameFlag(c, found.visible); break;
            case UiProperty::Item: same(c, c.text, entry(c, found).text); break;
            case UiProperty::ItemData: sameNumber(c, entry(c, found).itemData); break;
        }
    }

    void expectOfForm(const UiCommand& c) {
        if (c.property == UiProperty::Caption) return same(c, c.text, surface_.formCaption());
        if (c.property == UiProperty::Visible) return sameFlag(c, surface_.formVisible());
        fail(c, u"a form has only caption and visible");
    }

    static const ListEntry& entry(const UiCommand& c, const ControlSnapshot& list) {
        long count = static_cast<long>(list.entries.size());
        if (c.number >= count) fail(c, u"no entry " + number(c.number) + u": the list has " + number(count));
        return list.entries[c.number];
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
        bool open = surface_.formOpen(c.target);
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

    UiSurface& surface_;
    const UiScriptHooks& hooks_;
};

}  // namespace

Str UiScriptOutcome::describe() const {
    if (status == Status::Passed) return u"passed";
    return u"line " + number(line) + u": " + message;
}

UiScriptOutcome playUiCommands(const std::vector<UiCommand>& commands, FormStack& forms, const UiScriptHooks& hooks) {
    ModelSurface surface(forms);
    return playUiCommands(commands, surface, hooks);
}

UiScriptOutcome playUiCommands(const std::vector<UiCommand>& commands, UiSurface& surface, const UiScriptHooks& hooks) {
    Player player(surface, hooks);
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
    ModelSurface surface(forms);
    return playUiScript(script, surface, hooks);
}

UiScriptOutcome playUiScript(const Str& script, UiSurface& surface, const UiScriptHooks& hooks) {
    std::vector<UiCommand> commands;
    try {
        commands = parseUiScript(script);
    } catch (const UiScriptSyntaxError& error) {
        return {UiScriptOutcome::Status::Invalid, error.line(), error.message()};
    }
    return playUiCommands(commands, surface, hooks);
}

}  // namespace quillet::dialogs
