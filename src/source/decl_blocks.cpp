#include "source/decl_blocks.h"

#include "basic/strings.h"

namespace quillet::source {

using basic::Compare;
using basic::Like;
using basic::Trim;

namespace {

// The statement of a line with its access word taken off ("Private Type X" gives "Type X").
Str withoutAccess(const Str& line) {
    Str text = Trim(line);
    for (const char16_t* word : {u"Public ", u"Private ", u"Global "}) {
        if (Like(text, Str(word) + u"*", Compare::Text)) return Trim(text.substr(Str(word).size()));
    }
    return text;
}

bool opensBlock(const Str& line, const Str& keyword) {
    return Like(withoutAccess(line), keyword + u" *", Compare::Text);
}

bool closesBlock(const Str& line, const Str& keyword) {
    Str text = Trim(line);
    return Like(text, u"End " + keyword, Compare::Text) || Like(text, u"End " + keyword + u" *", Compare::Text) ||
           Like(text, u"End " + keyword + u"'*", Compare::Text);
}

bool continues(const Str& line) {
    Str trimmed = Trim(line);
    return trimmed.size() >= 2 && trimmed.back() == u'_' && trimmed[trimmed.size() - 2] == u' ';
}

bool directive(const Str& line, const Str& word) { return Like(Trim(line), u"[#]" + word + u"*", Compare::Text); }

}  // namespace

long DeclarationBlockLine(host::CodeModule& module, long line, bool blnEnum) {
    const Str keyword = blnEnum ? u"Enum" : u"Type";
    long declarations = module.CountOfDeclarationLines();
    if (line < 1 || line > declarations) return 0;
    long header = 0;
    for (long n = line; n >= 1; --n) {
        Str text = module.Lines(n, 1);
        if (n < line && (closesBlock(text, u"Enum") || closesBlock(text, u"Type"))) return 0;
        if (opensBlock(text, keyword)) {
            header = n;
            break;
        }
        if (opensBlock(text, blnEnum ? u"Type" : u"Enum")) return 0;
    }
    if (header == 0) return 0;
    for (long n = std::max(line, header + 1); n <= declarations; ++n) {
        Str text = module.Lines(n, 1);
        if (closesBlock(text, keyword)) return n - 1;
        if (opensBlock(text, u"Enum") || opensBlock(text, u"Type")) return 0;
    }
    return 0;
}

bool DeclarationBlockFind(host::CodeModule& module, const Str& name, bool blnEnum, long& header, long& endLine) {
    const Str keyword = blnEnum ? u"Enum" : u"Type";
    long declarations = module.CountOfDeclarationLines();
    header = endLine = 0;
    for (long n = 1; n <= declarations && header == 0; ++n) {
        Str statement = withoutAccess(module.Lines(n, 1));
        Str rest = Trim(statement.substr(std::min(statement.size(), keyword.size())));
        if (!opensBlock(statement, keyword)) continue;
        Str word = rest.substr(0, rest.find_first_of(u" '"));
        if (basic::StrComp(word, name, Compare::Text) == 0) header = n;
    }
    for (long n = header + 1; header > 0 && n <= module.CountOfLines(); ++n) {
        if (!closesBlock(module.Lines(n, 1), keyword)) continue;
        endLine = n;
        return true;
    }
    return false;
}

long CaretBlockLine(host::VBE& vbe, bool blnEnum) {
    auto pane = vbe.ActiveCodePane();
    if (!pane) return 0;
    long startLine = 0, startCol = 0, endLine = 0, endCol = 0;
    pane->GetSelection(startLine, startCol, endLine, endCol);
    auto module = pane->CodeModule();
    return DeclarationBlockLine(*module, startLine, blnEnum);
}

bool LineInsideStatement(host::CodeModule& module, long line) {
    long count = module.CountOfLines();
    if (line > 1 && line - 1 <= count && continues(module.Lines(line - 1, 1))) return true;
    long depth = 0;
    for (long n = 1; n < line && n <= count; ++n) {
        Str text = module.Lines(n, 1);
        if (directive(text, u"If ")) ++depth;
        if (directive(text, u"End If") && depth > 0) --depth;
    }
    if (depth > 0) return true;
    return DeclarationBlockLine(module, line, true) > 0 || DeclarationBlockLine(module, line, false) > 0;
}

long LineOutsideStatements(host::CodeModule& module, long line) {
    long count = module.CountOfLines();
    while (line <= count && LineInsideStatement(module, line)) ++line;
    return line;
}

}  // namespace quillet::source
