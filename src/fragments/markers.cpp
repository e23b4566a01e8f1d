// Texts with markers put round a procedure.

#include "fragments/markers.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "core/caret.h"
#include "core/err_handler.h"
#include "basic/strings.h"
#include "fragments/set_cursor.h"
#include "settings/catalogue.h"
#include "settings/ini_vars.h"
#include "source/proc_areas.h"

namespace quillet::fragments {

using basic::Compare;
using basic::InStr;
using basic::Len;
using basic::Trim;

namespace {

constexpr char16_t kCrLf[] = u"\r\n";

struct Parts {
    Str before, after;
};

// The text split at the first marker (binary); a line break right behind the marker goes with it.
std::optional<Parts> splitAt(const Str& text, const Str& marker) {
    long p = InStr(text, marker);
    if (p == 0) return std::nullopt;
    Parts parts{basic::Left(text, p - 1), basic::Mid(text, p + Len(marker))};
    if (basic::Left(parts.after, 2) == kCrLf) parts.after = basic::Mid(parts.after, 3);
    return parts;
}

Str withoutMarker(const Str& text, const Str& marker) {
    return basic::Replace(basic::Replace(text, marker + kCrLf, u""), marker, u"");
}

Str cutFinalBreak(const Str& text) {
    return basic::Right(text, 2) == kCrLf ? basic::Left(text, Len(text) - 2) : text;
}

// A piece of template as whole lines: a line break is added to a last line that has none.
Str asLines(const Str& piece) { return piece.empty() || basic::Right(piece, 2) == kCrLf ? piece : piece + kCrLf; }

Str trimFinalBreaks(Str text) {
    while (!text.empty() && (text.back() == u'\r' || text.back() == u'\n')) text.pop_back();
    return text;
}

// Lines [from, to) each with its line break.
Str linesText(const std::vector<Str>& lines, long from, long to) {
    Str text;
    for (long i = std::max(from, 0L); i < std::min<long>(to, static_cast<long>(lines.size())); ++i)
        text += lines[i] + kCrLf;
    return text;
}

// A line that holds a line label and nothing else ("HandleExit:").
bool isLabelLine(const Str& line) {
    Str t = Trim(line);
    return Len(t) >= 2 && t.back() == u':' && t.front() != u'\'' && InStr(t, u" ") == 0;
}

// The index of the line that holds the exit label, from `from` on; -1 when there is none.
long labelIndex(const std::vector<Str>& lines, long from, const Str& label) {
    if (label.empty()) return -1;
    for (long i = from; i < static_cast<long>(lines.size()); ++i) {
        if (basic::StrComp(basic::Left(Trim(lines[i]), Len(label) + 1), label + u":", Compare::Text) == 0) return i;
    }
    return -1;
}

// The index of the first line of the exit section: the label above the exit line, else the exit
// line; the End line when the procedure has no exit (ProcExitLineGet on a text gives the exit's
// index, or the End line's number, which is one past the last index).
long exitSectionIndex(const std::vector<Str>& lines, long exitLine) {
    long last = static_cast<long>(lines.size()) - 1;
    long index = std::min(exitLine, last);
    if (index < last && index >= 1 && isLabelLine(lines[index - 1])) --index;
    return index;
}

// The same in the module: the line in front of which the bottom part goes.
long exitSectionLine(host::CodeModule& module, source::clsScanProc& scan) {
    Str code;
    long start = scan.ProcRealStartLine(), end = scan.ProcRealEndLine();
    long exit = source::ProcExitLineGet(start, end, scan.ProcTypeStr(), code, true, &module);
    if (exit < end && exit - 1 > start && isLabelLine(module.Lines(exit - 1, 1))) --exit;
    return exit;
}

long lineNumber(const Str& decimal) {
    auto value = basic::parseNumber(decimal);
    return value ? static_cast<long>(*value) : 0;
}

long lineCount(const Str& text) { return static_cast<long>(basic::Split(text, kCrLf).size()); }

// The rest of a fragment at the caret: over a blank line, below a line of code when it has
// several lines, into the line at the caret (over its selection) when it is one.
void placeAtCaret(host::CodeModule& module, host::CodePane& pane, const Str& text, long line, long col, long endLine,
                  long endCol) {
    Str current = line <= module.CountOfLines() ? module.Lines(line, 1) : Str();
    if (Trim(current).empty()) {
        core::writeAtLine(module, line, text, true);
    } else if (InStr(text, kCrLf) > 0) {
        core::writeAtLine(module, line + 1, text, false);
    } else {
        long from = std::max(col, 1L);
        long to = endLine == line ? std::max(endCol, from) : from;
        Str left = basic::Left(current, from - 1);
        left += basic::Space(from - 1 - Len(left));
        module.ReplaceLine(line, left + text + basic::Mid(current, to));
        long caret = Len(left + text) + 1;
        pane.SetSelection(line, caret, line, caret);
    }
}

}  // namespace

void FragmentToProcedureAdd(core::Context& ctx, Str& text, source::clsScanProc& scan) {
    core::ignoringErrors([&] {
        scan.init();
        auto pane = ctx.VBInstance->ActiveCodePane();
        if (!pane || scan.ProcName().empty()) return;
        auto module = pane->CodeModule();
        long line = 0, col = 0, endLine = 0, endCol = 0;
        pane->GetSelection(line, col, endLine, endCol);
        // Lines put in above the caret move it down.
        auto insertAt = [&](long at, const Str& piece) {
            module->InsertLines(at, piece);
            long added = lineCount(piece);
            if (at <= line) line += added;
            if (at <= endLine) endLine += added;
        };
        if (auto parts = splitAt(text, kEndOfTopMarker)) {
            Str top = cutFinalBreak(parts->before);
            if (!top.empty()) insertAt(lineNumber(scan.ProcDeclAreaEndLine()) + 1, top);
            text = parts->after;
            scan.init();
        }
        if (auto parts = splitAt(text, kBeginOfBottomMarker)) {
            Str bottom = cutFinalBreak(parts->after);
            if (!bottom.empty()) insertAt(exitSectionLine(*module, scan), bottom);
            text = parts->before;
        }
        Str rest = cutFinalBreak(text);
        if (!rest.empty()) placeAtCaret(*module, *pane, rest, line, col, endLine, endCol);
        SetCursor(ctx, std::max(scan.ProcStartLine(), 1L), false, pane);
    });
}

void FragmentToTextOfProcedureAdd(core::Context& ctx, Str& text, Str& body, const Str& procType) {
    core::ignoringErrors([&] {
        if (text.empty() || body.empty()) return;
        Str code = body;
        long declStart = 0, declEnd = 0, defLines = 0;
        source::ProcDeclAreaGet(declStart, declEnd, 0, defLines, true, code);
        code = body;
        long exitLine = source::ProcExitLineGet(0, 0, procType, code, true);
        auto lines = basic::Split(trimFinalBreaks(body), kCrLf);
        const long count = static_cast<long>(lines.size());
        declEnd = std::clamp(declEnd, 1L, count);

        Str t = withoutMarker(text, kEndOfTopMarker);
        Str result = linesText(lines, 0, declEnd);
        if (auto parts = splitAt(t, kBeforeHandleExitLabelMarker)) {
            long label = labelIndex(lines, declEnd, settings::IniText(*ctx.IniSettings, settings::iiExitHandler));
            if (label >= 0) {
                auto tail = splitAt(parts->after, kBeginOfBottomMarker);
                result += asLines(parts->before) + linesText(lines, declEnd, label) +
                          asLines(tail ? tail->before : parts->after);
                if (tail)
                    result += linesText(lines, label, count - 1) + asLines(tail->after) + linesText(lines, count - 1, count);
                else
                    result += linesText(lines, label, count);
                body = result;
                return;
            }
            t = basic::Replace(withoutMarker(t, kBeginOfBottomMarker), kBeforeHandleExitLabelMarker, kBeginOfBottomMarker);
        }
        if (auto parts = splitAt(t, kBeginOfBottomMarker)) {
            long bottom = std::max(exitSectionIndex(lines, exitLine), declEnd);
            result += asLines(parts->before) + linesText(lines, declEnd, bottom) + asLines(parts->after) +
                      linesText(lines, bottom, count);
        } else {
            result += asLines(t) + linesText(lines, declEnd, count);
        }
        body = result;
    });
}

}  // namespace quillet::fragments
