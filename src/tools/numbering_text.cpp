#include "tools/numbering_text.h"

#include <string>

#include "source/statements.h"

namespace quillet::tools {

using basic::Compare;
using basic::Len;
using basic::Trim;

namespace {

constexpr char16_t kFourBlanks[] = u"    ";

std::vector<Str> wordsOf(const Str& list) { return basic::Split(list, u","); }

bool isDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

// Whether the text begins with `prefix`, compared without regard to case.
bool beginsWith(const Str& text, const Str& prefix) {
    return Len(text) >= Len(prefix) && basic::StrComp(basic::Left(text, Len(prefix)), prefix, Compare::Text) == 0;
}

// The index of the last line before `line` (1-based) that holds more than blanks; 0 for none.
long lastUsedLineBefore(const std::vector<Str>& lines, long line) {
    for (long n = line - 1; n >= 1; --n)
        if (!Trim(lines[n - 1]).empty()) return n;
    return 0;
}

// Whether line `line` (1-based) continues a statement of the line above.
bool isContinuationLine(const std::vector<Str>& lines, long line) {
    return line > 1 && source::LineContinues(lines[line - 2]);
}

// The first line of the statement that line `line` (1-based) belongs to.
long statementStart(const std::vector<Str>& lines, long line) {
    while (isContinuationLine(lines, line)) --line;
    return line;
}

// What the numbering does to one line.
enum class LineAction { Leave, Indent, Number };

}  // namespace

const std::vector<Str> kNoNumberWords = wordsOf(u"Dim,Const,Static,End Function");
const std::vector<Str> kIndentWords =
    wordsOf(u"Case,Else,End If,End Select,End With,Wend,Next,Exit,End,Resume,GoTo,GoSub,Return,With,Doevents");

bool BeginsWithWordOf(const Str& trimmed, const std::vector<Str>& words) {
    for (const Str& word : words)
        if (beginsWith(trimmed, word)) return true;
    return false;
}

bool FindISFunction(const Str& text) {
    Str rest = basic::UCase(Trim(text));
    for (const char16_t* access : {u"PRIVATE ", u"GLOBAL ", u"PUBLIC ", u"FRIEND "}) {
        if (beginsWith(rest, access)) {
            rest = basic::LTrim(basic::Mid(rest, Len(access) + 1));
            break;
        }
    }
    if (beginsWith(rest, u"STATIC ")) rest = basic::LTrim(basic::Mid(rest, 8));
    for (const char16_t* kind : {u"SUB ", u"FUNCTION ", u"PROPERTY "})
        if (beginsWith(rest, kind)) return true;
    return false;
}

bool IsLabelLine(const Str& text) {
    return !text.empty() && text.back() == u':' && basic::Split(text, u" ").size() == 1;
}

bool BeginComment(const Str& text) {
    Str trimmed = basic::LTrim(text);
    return !trimmed.empty() && trimmed.front() == u'\'';
}

Str GetLineWithoutNumber(const Str& text) {
    size_t at = 0;
    while (at < text.size() && isDigit(text[at])) ++at;
    if (at == 0) return text;
    if (at < text.size() && text[at] == u':') ++at;
    bool oneBlank = at < text.size() && text[at] == u' ' && (at + 1 >= text.size() || text[at + 1] != u' ');
    if (oneBlank) ++at;
    return text.substr(at);
}

Str UncommentedLine(const Str& line, long& removedAt) {
    removedAt = 0;
    size_t at = line.find_first_not_of(u' ');
    if (at == Str::npos || line[at] != u'\'') return line;
    removedAt = static_cast<long>(at) + 1;
    return line.substr(0, at) + line.substr(at + 1);
}

void RemoveLineNumbers(std::vector<Str>& lines, const NumberingRange& range) {
    for (long line = range.first; line <= range.last; ++line) {
        if (isContinuationLine(lines, line)) continue;
        lines[line - 1] = GetLineWithoutNumber(lines[line - 1]);
    }
}

namespace {

class Numbering {
public:
    Numbering(std::vector<Str>& lines, const NumberingRange& range) : lines_(lines), range_(range) {
        long above = lastUsedLineBefore(lines, range.first);
        continues_ = above > 0 && source::LineContinues(lines[above - 1]);
    }

    LineAction actionFor(long line) {
        const Str& text = lines_[line - 1];
        Str t = Trim(text);
        if (t.empty()) return LineAction::Leave;
        followStatement(line);
        bool previousContinues = continues_;
        continues_ = t.back() == u'_';
        if (BeginsWithWordOf(t, kNoNumberWords)) return LineAction::Leave;
        bool indent = previousContinues || BeginsWithWordOf(t, kIndentWords);
        if (IsLabelLine(text)) return LineAction::Leave;
        if (statementStart_ < line && startIsDeclaration_) return LineAction::Leave;
        if (FindISFunction(text) || BeginComment(text)) return LineAction::Leave;
        // No number is allowed in the declarations nor before a compiler directive.
        if (line <= range_.declarationLines || t.front() == u'#') return LineAction::Leave;
        return indent ? LineAction::Indent : LineAction::Number;
    }

private:
    // Keeps the first line of the statement that `line` belongs to, and whether it declares a
    // procedure; a statement is followed down its continuation lines without walking back.
    void followStatement(long line) {
        bool continued = isContinuationLine(lines_, line);
        if (continued && statementStart_ > 0) return;
        statementStart_ = continued ? statementStart(lines_, line) : line;
        startIsDeclaration_ = FindISFunction(lines_[statementStart_ - 1]);
    }

    std::vector<Str>& lines_;
    const NumberingRange& range_;
    bool continues_ = false;
    long statementStart_ = 0;
    bool startIsDeclaration_ = false;
};

}  // namespace

void AddLineNumbers(std::vector<Str>& lines, const NumberingRange& range, long base) {
    if (base == 0) base = 1000;
    if (range.first < 1) return;
    Numbering numbering(lines, range);
    for (long line = range.first; line <= range.last; ++line) {
        Str& text = lines[line - 1];
        switch (numbering.actionFor(line)) {
            case LineAction::Leave: break;
            case LineAction::Indent: text = kFourBlanks + text; break;
            case LineAction::Number: {
                std::string digits = std::to_string(static_cast<long long>(base) + line);
                Str number(digits.begin(), digits.end());
                text = number + (!text.empty() && text.front() == u' ' ? Str() : Str(u" ")) + text;
                break;
            }
        }
    }
}

}  // namespace quillet::tools
