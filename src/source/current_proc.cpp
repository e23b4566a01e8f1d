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

    bodyLine = module->ProcBodyLine(name, kind);
    long headerEnd = bodyLine;
    while (headerEnd < count && continues(module->Lines(headerEnd, 1))) ++headerEnd;
    lastLine = module->ProcStartLine(name, kind) + module->ProcCountLines(name, kind) - 1;
    while (lastLine > bodyLine && isBlank(module->Lines(lastLine, 1))) --lastLine;
    if (startLine >= headerEnd && startLine <= lastLine) return true;
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
