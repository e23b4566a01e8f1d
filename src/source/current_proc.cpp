#include "source/current_proc.h"

#include "basic/strings.h"

namespace quillet::source {

using basic::Compare;
using basic::Trim;

namespace {

bool continues(const Str& line) {
    Str trimmed = Trim(line);
    return !trimmed.empty() && trimmed.back() == u'_';
}

bool isBlank(const Str& line) { return Trim(line).empty(); }

bool isModifier(const Str& word) {
    for (const char16_t* modifier : {u"Public", u"Private", u"Friend", u"Static"})
        if (basic::StrComp(word, modifier, Compare::Text) == 0) return true;
    return false;
}

}  // namespace

ProcSpan ProcSpanOf(host::CodeModule& module, const Str& name, long kind, long count) {
    ProcSpan span;
    span.bodyLine = module.ProcBodyLine(name, kind);
    span.headerEnd = span.bodyLine;
    while (span.headerEnd < count && continues(module.Lines(span.headerEnd, 1))) ++span.headerEnd;
    span.lastLine = module.ProcStartLine(name, kind) + module.ProcCountLines(name, kind) - 1;
    while (span.lastLine > span.bodyLine && isBlank(module.Lines(span.lastLine, 1))) --span.lastLine;
    return span;
}

bool CurrentProcGet(host::VBE& vbe, bool blnFull, Str& name, long& bodyLine, long& lastLine, long& kind) {
    name.clear();
    bodyLine = lastLine = kind = 0;
    if (vbe.CodePanes()->Count() == 0) return false;
    auto pane = vbe.ActiveCodePane();
    if (!pane) return false;
    long startLine = 0, startCol = 0, endLine = 0, endCol = 0;
    pane->GetSelection(startLine, startCol, endLine, endCol);
    auto module = pane->CodeModule();
    long count = module->CountOfLines();
    if (startLine < 1 || startLine > count) return false;
    name = module->ProcOfLine(startLine, kind);
    if (name.empty() || !blnFull) return !name.empty();

    const ProcSpan span = ProcSpanOf(*module, name, kind, count);
    bodyLine = span.bodyLine;
    lastLine = span.lastLine;
    if (startLine >= span.headerEnd && startLine <= lastLine) return true;
    name.clear();
    return false;
}

Str ProcTypeStrOf(const Str& headerLine) {
    for (const auto& word : basic::Split(Trim(headerLine), u" ")) {
        if (word.empty() || isModifier(word)) continue;
        for (const char16_t* keyword : {u"Sub", u"Function", u"Property"})
            if (basic::StrComp(word, keyword, Compare::Text) == 0) return keyword;
        return u"";
    }
    return u"";
}

}  // namespace quillet::source
