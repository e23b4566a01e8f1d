// The UI script parser.

#include "dialogs/ui_script.h"

#include <optional>

#include "basic/strings.h"
#include "basic/unicode.h"

namespace quillet::dialogs {

namespace {

bool isBlank(char16_t c) { return c == u' ' || c == u'\t'; }

// Reads the words of one line; the text argument is the rest of the line behind the one blank
// that follows the last word read.
class LineReader {
public:
    explicit LineReader(const Str& line) : line_(line) {}

    Str word() {
        while (at_ < line_.size() && isBlank(line_[at_])) ++at_;
        size_t start = at_;
        while (at_ < line_.size() && !isBlank(line_[at_])) ++at_;
        return line_.substr(start, at_ - start);
    }
    Str rest() {
        if (at_ < line_.size() && isBlank(line_[at_])) ++at_;
        Str text = line_.substr(std::min(at_, line_.size()));
        at_ = line_.size();
        return text;
    }
    bool atEnd() {
        size_t probe = at_;
        while (probe < line_.size() && isBlank(line_[probe])) ++probe;
        return probe == line_.size();
    }

private:
    const Str& line_;
    size_t at_ = 0;
};

std::optional<long> wholeNumber(const Str& text) {
    if (text.empty() || text.size() > 9) return std::nullopt;
    size_t start = text[0] == u'-' ? 1 : 0;
    if (start == text.size()) return std::nullopt;
    long value = 0;
    for (size_t i = start; i < text.size(); ++i) {
        if (text[i] < u'0' || text[i] > u'9') return std::nullopt;
        value = value * 10 + (text[i] - u'0');
    }
    return start ? -value : value;
}

struct PropertyName {
    const char16_t* name;
    UiProperty property;
};
constexpr PropertyName kProperties[] = {
    {u"text", UiProperty::Text},         {u"value", UiProperty::Value},         {u"enabled", UiProperty::Enabled},
    {u"visible", UiProperty::Visible},   {u"caption", UiProperty::Caption},     {u"listindex", UiProperty::ListIndex},
    {u"count", UiProperty::Count},       {u"item", UiProperty::Item},           {u"itemdata", UiProperty::ItemData},
    {u"tooltip", UiProperty::ToolTip},
};

class Parser {
public:
    explicit Parser(const Str& script) : lines_(basic::Split(basic::Replace(script, u"\r\n", u"\n"), u"\n")) {}

    std::vector<UiCommand> parse() {
        std::vector<UiCommand> commands;
        for (index_ = 0; index_ < lines_.size(); ++index_) {
            Str trimmed = basic::Trim(basic::Replace(lines_[index_], u"\t", u" "));
            if (trimmed.empty() || trimmed[0] == u'#') continue;
            commands.push_back(command(lines_[index_]));
        }
        return commands;
    }

private:
    [[noreturn]] void fail(const Str& message) const { throw UiScriptSyntaxError(lineNumber(), message); }
    long lineNumber() const { return static_cast<long>(index_) + 1; }

    Str required(LineReader& reader, const Str& verb, const char16_t* what) {
        Str word = reader.word();
        if (word.empty()) fail(verb + u": " + what + u" missing");
        return word;
    }
    void noMore(LineReader& reader, const Str& verb) {
        if (!reader.atEnd()) fail(verb + u": too many arguments");
    }

    UiCommand command(const Str& line) {
        LineReader reader(line);
        UiCommand c;
        c.line = lineNumber();
        c.source = basic::Trim(line);
        Str verb = reader.word();
        Str name = basic::LCase(verb);
        if (name == u"open") {
            c.verb = UiVerb::Open;
            c.target = required(reader, verb, u"the form's name");
            for (Str arg = reader.word(); !arg.empty(); arg = reader.word()) c.args.push_back(arg);
        } else if (name == u"set") {
            c.verb = UiVerb::Set;
            c.target = required(reader, verb, u"the control's name");
            c.text = reader.rest();
        } else if (name == u"select") {
            selectCommand(reader, verb, c);
        } else if (name == u"check") {
            c.verb = UiVerb::Check;
            c.target = required(reader, verb, u"the control's name");
            auto value = wholeNumber(required(reader, verb, u"the value (0, 1 or 2)"));
            if (!value || *value < 0 || *value > 2) fail(verb + u": the value must be 0, 1 or 2");
            c.number = *value;
            noMore(reader, verb);
        } else if (name == u"click") {
            c.verb = UiVerb::Click;
            c.target = required(reader, verb, u"the control's name");
            noMore(reader, verb);
        } else if (name == u"answer") {
            c.verb = UiVerb::Answer;
            c.text = reader.rest();
        } else if (name == u"expect") {
            expectCommand(reader, verb, c);
        } else if (name == u"expect-form") {
            c.verb = UiVerb::ExpectForm;
            c.target = required(reader, verb, u"the form's name");
            Str state = basic::LCase(required(reader, verb, u"open or closed"));
            if (state != u"open" && state != u"closed") fail(verb + u": the state must be open or closed");
            c.flag = state == u"open";
            noMore(reader, verb);
        } else if (name == u"expect-code") {
            c.verb = UiVerb::ExpectCode;
            c.target = required(reader, verb, u"the module's name");
            noMore(reader, verb);
            c.text = codeBlock(verb);
        } else {
            fail(u"unknown command '" + verb + u"'");
        }
        return c;
    }

    void selectCommand(LineReader& reader, const Str& verb, UiCommand& c) {
        c.verb = UiVerb::Select;
        c.target = required(reader, verb, u"the control's name");
        c.text = reader.rest();
        if (c.text.empty()) fail(verb + u": the entry missing (its text, or #N for an index)");
        if (c.text[0] == u'#') {
            auto index = wholeNumber(c.text.substr(1));
            if (!index || *index < -1) fail(verb + u": '" + c.text + u"' is not an index (#0, #1 ... or #-1)");
            c.byIndex = true;
            c.number = *index;
        }
    }

    void expectCommand(LineReader& reader, const Str& verb, UiCommand& c) {
        c.verb = UiVerb::Expect;
        c.target = required(reader, verb, u"the control's name");
        Str property = basic::LCase(required(reader, verb, u"the property"));
        const PropertyName* found = nullptr;
        for (const auto& entry : kProperties)
            if (property == entry.name) found = &entry;
        if (!found) fail(verb + u": unknown property '" + property + u"'");
        c.property = found->property;
        if (c.property == UiProperty::Item || c.property == UiProperty::ItemData) {
            auto index = wholeNumber(required(reader, verb, u"the entry's index"));
            if (!index || *index < 0) fail(verb + u": the entry's index must be 0 or more");
            c.number = *index;
        }
        c.text = reader.rest();
        switch (c.property) {
            case UiProperty::Enabled:
            case UiProperty::Visible: {
                Str value = basic::LCase(basic::Trim(c.text));
                if (value != u"true" && value != u"false") fail(verb + u": the value must be true or false");
                c.flag = value == u"true";
                break;
            }
            case UiProperty::Value:
            case UiProperty::ListIndex:
            case UiProperty::Count:
            case UiProperty::ItemData: {
                auto value = wholeNumber(basic::Trim(c.text));
                if (!value) fail(verb + u": the value must be a whole number");
                c.text = basic::Trim(c.text);
                c.expected = *value;
                break;
            }
            default: break;
        }
    }

    // The lines behind expect-code up to the line "end-code", joined by CRLF.
    Str codeBlock(const Str& verb) {
        size_t start = index_;
        std::vector<Str> block;
        for (++index_; index_ < lines_.size(); ++index_) {
            if (basic::Trim(lines_[index_]) == u"end-code") return basic::Join(block, u"\r\n");
            block.push_back(lines_[index_]);
        }
        index_ = start;
        fail(verb + u": no end-code line closes the expected text");
    }

    std::vector<Str> lines_;
    size_t index_ = 0;
};

}  // namespace

UiScriptSyntaxError::UiScriptSyntaxError(long line, const Str& message)
    : std::runtime_error("line " + std::to_string(line) + ": " + basic::toUtf8(message)), line_(line), message_(message) {}

std::vector<UiCommand> parseUiScript(const Str& script) { return Parser(script).parse(); }

}  // namespace quillet::dialogs
