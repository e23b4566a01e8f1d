#include "source/words.h"

#include <algorithm>

#include "basic/strings.h"
#include "source/statements.h"

namespace quillet::source {

using basic::Compare;
using basic::Len;
using basic::Mid;
using basic::Trim;

namespace {

bool isGap(char16_t c) { return c == u' ' || c == u'\t'; }

Str pickedWord(const Str& text) {
    Str word = RemoveChars(text, kWordRemovedChars);
    return Len(word) < 32 ? word : Str();
}

}  // namespace

Str WordAtColumns(const Str& line, long startCol, long endCol) {
    long length = Len(line);
    if (endCol > startCol) {
        long from = std::min(std::max(startCol, 1L), length + 1);
        return pickedWord(Mid(line, from, std::min(endCol, length + 1) - from));
    }
    long caret = std::min(std::max(startCol, 1L), length + 1);
    long first = caret, last = caret;  // first: the word's first column; last: one past its end
    while (first > 1 && !isGap(line[first - 2])) --first;
    while (last <= length && !isGap(line[last - 1])) ++last;
    return pickedWord(Mid(line, first, last - first));
}

Str CurrentWordGet(host::VBE& vbe) {
    try {
        if (vbe.CodePanes()->Count() == 0) return {};
        auto pane = vbe.ActiveCodePane();
        if (!pane) return {};
        long startLine = 0, startCol = 0, endLine = 0, endCol = 0;
        pane->GetSelection(startLine, startCol, endLine, endCol);
        auto module = pane->CodeModule();
        if (startLine < 1 || startLine > module->CountOfLines()) return {};
        if (endLine != startLine) return {};
        return WordAtColumns(module->Lines(startLine, 1), startCol, endCol);
    } catch (const basic::VbError&) {
        return {};
    }
}

Str SelectedTextGet(host::VBE& vbe) {
    try {
        auto pane = vbe.ActiveCodePane();
        if (!pane) return {};
        long startLine = 0, startCol = 0, endLine = 0, endCol = 0;
        pane->GetSelection(startLine, startCol, endLine, endCol);
        auto module = pane->CodeModule();
        if (startLine < 1 || startLine > module->CountOfLines() || endLine != startLine) return {};
        if (endCol > startCol) return Mid(module->Lines(startLine, 1), startCol, endCol - startCol);
    } catch (const basic::VbError&) {
        return {};
    }
    return CurrentWordGet(vbe);
}

Str KindNameGet(const Str& kind, const Str& line) {
    Str text = u" " + basic::Replace(Trim(line), u"\t", u" ") + u" ";
    long at = basic::InStr(text, u" " + Trim(kind) + u" ", Compare::Text);
    if (at == 0 || Trim(kind).empty()) return {};
    Str rest = basic::LTrim(Mid(text, at + Len(Trim(kind)) + 2));
    size_t end = 0;
    while (end < rest.size()) {
        char16_t c = rest[end];
        if (c == u' ' || c == u'(' || c == u':' || c == u'\'') break;
        ++end;
    }
    return rest.substr(0, end);
}

}  // namespace quillet::source
