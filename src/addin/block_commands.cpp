#include "addin/block_commands.h"

#include "addin/core_names.h"
#include "core/caret.h"
#include "core/err_handler.h"
#include "basic/strings.h"
#include "basic/variant.h"

namespace quillet::addin {

using basic::Compare;
using basic::Len;
using basic::StrComp;
using basic::Trim;

namespace {

constexpr char16_t kCrLf[] = u"\r\n";
// More ElseIf branches than this are taken as a slip of the keyboard.
constexpr long kMaxElseIf = 100;

bool is(const Str& a, const char16_t* b) { return StrComp(a, b, Compare::Binary) == 0; }

// A project in break mode is reset before its code changes.
void resetRunningProject(Context& ctx) {
    ignoringErrors([&] { ctx.VBInstance->CommandBars()->Item(u"Run")->Controls()->Item(u"Reset")->Execute(); });
    ignoringErrors([&] { ctx.Platform().DoEvents(); });
}

// Whether the current command's statement goes into a used line rather than below it.
bool goesInLine(const Str& command, const Str& left, const Str& right) {
    if (is(command, u"Debug.Print ")) {
        Str trimmed = Trim(left);
        return trimmed.empty() || trimmed.back() == u':';
    }
    if (is(command, u"Exit")) return Trim(right).empty();
    for (const char16_t* c : {u"Folder", u"Filename", u"GoTo", u"Insert Objectname"})
        if (is(command, c)) return true;
    return false;
}

// The space the editor would get from the key " " at `col` of the block's first line.
Str withGapAt(const Str& code, long col) { return basic::Left(code, col - 1) + u" " + basic::Mid(code, col); }

// The body line of a block: the indent and one step more.
Str bodyLine(const Str& indent, const Str& step) { return indent + step + kCrLf; }

struct LoopShape {
    const char16_t* command;
    const char16_t* first;
    const char16_t* keyword;  // the caret goes behind it
    const char16_t* last;
};
constexpr LoopShape kLoops[] = {
    {u"IfDoLoopWhile", text::DoWhile, u"Do While", text::Loop},
    {u"IfDoLoopUntil", text::DoUntil, u"Do Until", text::Loop},
    {u"ForEachNext", text::ForEachIn, u"For Each", text::Next},
    {u"ForNext", text::ForTo, u"For", text::Next},
    {u"While", text::While, u"While", text::Wend},
};

// How many ElseIf branches the user wants; none when the question is cancelled.
std::optional<long> askElseIfCount(Context& ctx, const Str& command) {
    auto answer = ctx.Platform().InputBox(u"Number of 'ElseIf'", command, u"");
    if (!answer || Trim(*answer).empty() || !basic::IsNumeric(*answer)) return std::nullopt;
    long long n = basic::CLng(*answer);
    if (n < 0) return std::nullopt;
    return static_cast<long>(std::min<long long>(n, kMaxElseIf));
}

}  // namespace

void CodeInsert(Context& ctx, const Str& text, bool blnInLine, bool blnBlank) {
    auto pane = ctx.VBInstance->ActiveCodePane();
    if (!pane) return;
    auto module = pane->CodeModule();
    long line = 0, col = 0;
    Str current = CurrentLineGet(ctx, line, col, false);
    resetRunningProject(ctx);

    if (Trim(current).empty()) {
        Str newLine = basic::Space(col - 1) + text;
        writeAtLine(*module, line, newLine, true);
        pane->SetSelection(line, Len(newLine) + 1, line, Len(newLine) + 1);
        return;
    }
    Str left = basic::Left(current, col - 1);
    Str right = basic::Mid(current, std::max(col, 1L));
    if (blnInLine && goesInLine(ctx.Quick.Command, left, right)) {
        if (blnBlank && !left.empty() && left.back() != u' ') left += u" ";
        writeAtLine(*module, line, left + text + right, true);
        long caret = Len(left + text) + 1;
        pane->SetSelection(line, caret, line, caret);
        return;
    }
    Str newLine = TabSpaces(ctx) + text;
    writeAtLine(*module, line + 1, newLine, false);
    pane->SetSelection(line + 1, Len(newLine) + 1, line + 1, Len(newLine) + 1);
}

void WithCodeInsert(Context& ctx, const Str& var) {
    auto pane = ctx.VBInstance->ActiveCodePane();
    if (!pane) return;
    Str indent = basic::Space(CursorIndentGet(ctx));
    Str step = TabSpaces(ctx);
    Str code = indent + u"With " + var + kCrLf + bodyLine(indent, step) + indent + u"End With";
    long line = 0, col = 0;
    Str current = CurrentLineGet(ctx, line, col, false);
    writeAtLine(*pane->CodeModule(), line, code, Trim(current).empty());
    long caret = Len(indent + step) + 1;
    pane->SetSelection(line + 1, caret, line + 1, caret);
}

void IfCodeInsert(Context& ctx, const Str& command) {
    long indentWidth = CursorIndentGet(ctx);
    Str indent = basic::Space(indentWidth);
    Str step = TabSpaces(ctx);
    bool singleLine = is(command, u"If Then");
    Str code = indent + text::IfThen;
    if (!singleLine) code += kCrLf + bodyLine(indent, step);
    if (is(command, u"If Then Else If") || is(command, u"If Then ElseIf Else")) {
        auto branches = askElseIfCount(ctx, command);
        if (!branches) return;
        for (long i = 0; i < *branches; ++i) code += indent + text::ElseIfThen + kCrLf + bodyLine(indent, step);
    }
    if (is(command, u"If Then Else") || is(command, u"If Then ElseIf Else"))
        code += indent + text::Else + kCrLf + bodyLine(indent, step);
    if (!singleLine) code += indent + text::EndIf;
    long caret = indentWidth + 3;
    LineReplace(ctx, withGapAt(code, caret), caret + 1);
}

void LoopCodeInsert(Context& ctx, const Str& command) {
    for (const auto& shape : kLoops) {
        if (!is(command, shape.command)) continue;
        long indentWidth = CursorIndentGet(ctx);
        Str indent = basic::Space(indentWidth);
        Str code = indent + shape.first + kCrLf + bodyLine(indent, TabSpaces(ctx)) + indent + shape.last;
        long caret = indentWidth + Len(shape.keyword) + 1;
        LineReplace(ctx, withGapAt(code, caret), caret + 1);
        return;
    }
}

}  // namespace quillet::addin
