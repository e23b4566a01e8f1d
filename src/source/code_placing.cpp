#include "source/code_placing.h"

#include "basic/strings.h"
#include "settings/catalogue.h"
#include "settings/ini_vars.h"
#include "source/decl_blocks.h"
#include "source/proc_areas.h"

namespace quillet::source {

using basic::Compare;
using basic::InStr;
using basic::Len;
using basic::Like;
using basic::StrComp;
using basic::Trim;

namespace {

constexpr char16_t kCrLf[] = u"\r\n";

bool sameText(const Str& a, const Str& b) { return StrComp(a, b, Compare::Text) == 0; }

Str lineOf(host::CodeModule& module, long line) {
    return line >= 1 && line <= module.CountOfLines() ? module.Lines(line, 1) : Str();
}

// Blank, or the name itself once trimmed: a line a declaration may take over.
bool lineMayBeTaken(const Str& text, const Str& name) {
    Str trimmed = Trim(text);
    return trimmed.empty() || (!name.empty() && sameText(trimmed, name));
}

// Pads the module with empty lines until line `line` exists.
void ensureLine(host::CodeModule& module, long line) {
    long count = module.CountOfLines();
    if (count >= line) return;
    Str padding;
    for (long n = count + 1; n < line; ++n) padding += kCrLf;
    module.InsertLines(count + 1, padding);
}

host::CodeModulePtr moduleOrActive(CodeEnv& env, const Str& module) {
    if (!module.empty()) {
        if (auto component = componentNamed(env.vbe, module)) return component->CodeModule();
    }
    auto pane = env.vbe.ActiveCodePane();
    return pane ? pane->CodeModule() : nullptr;
}

// The caret's line in the active pane, 0 without a pane.
long caretLine(host::VBE& vbe) {
    auto pane = vbe.ActiveCodePane();
    if (!pane) return 0;
    long startLine = 0, startCol = 0, endLine = 0, endCol = 0;
    pane->GetSelection(startLine, startCol, endLine, endCol);
    return startLine;
}

// A member of the block at lngLine.
bool blockMemberAdd(CodeEnv& env, const Str& line, const Str& module, const Str& name, long lngLine) {
    auto code = moduleOrActive(env, module);
    if (!code) return false;
    ensureLine(*code, lngLine);
    Str text = env.tabSpaces() + line;
    if (lineMayBeTaken(code->Lines(lngLine, 1), name))
        code->ReplaceLine(lngLine, text);
    else
        code->InsertLines(lngLine + 1, text);
    code->CodePane()->SetSelection(lngLine, 1, lngLine, 1);
    return true;
}

// The declaration area of the procedure at the caret takes the line; 0 without a procedure.
long procedureDeclarationAdd(CodeEnv& env, const Str& line) {
    auto pane = env.vbe.ActiveCodePane();
    if (!pane) return 0;
    auto module = pane->CodeModule();
    long kind = 0;
    Str proc = module->ProcOfLine(caretLine(env.vbe), kind);
    if (proc.empty()) return 0;
    long body = module->ProcBodyLine(proc, kind);
    long start = 0, end = 0, defLines = 0;
    Str code;
    ProcDeclAreaGet(start, end, body, defLines, false, code, module.get());
    long at = end + 1;
    if (end > start && Trim(lineOf(*module, end)).empty()) at = end;
    bool indented = settings::IniBool(env.settings, settings::iiDeclarationIndented);
    module->InsertLines(at, (indented ? env.tabSpaces() : Str()) + line);
    return at;
}

// The line at which a declaration goes into the module's declarations.
long declarationLine(host::CodeModule& module, bool fAtTop) {
    long declarations = module.CountOfDeclarationLines();
    if (!fAtTop) return declarations + 1;
    if (declarations == 0) return 1;
    for (long n = 1; n <= declarations; ++n) {
        Str trimmed = Trim(module.Lines(n, 1));
        if (!Like(trimmed, u"Option *", Compare::Text) && !Like(trimmed, u"'*")) return n;
    }
    return declarations + 1;
}

// Module level: a blank caret line outside procedures of the target module takes the line.
bool caretLineTaken(CodeEnv& env, const Str& line, const Str& module, const Str& name) {
    auto pane = env.vbe.ActiveCodePane();
    if (!pane) return false;
    auto code = pane->CodeModule();
    if (!module.empty() && !sameText(code->Parent()->Name(), module)) return false;
    long at = caretLine(env.vbe);
    if (at < 1) return false;
    ensureLine(*code, at);
    long kind = 0;
    if (!code->ProcOfLine(at, kind).empty() || !lineMayBeTaken(code->Lines(at, 1), name)) return false;
    // A blank line inside a block or behind a continued line is no place for a declaration.
    if (LineInsideStatement(*code, at)) return false;
    code->ReplaceLine(at, line);
    return true;
}

Str selectedText(host::CodeModule& module, long startLine, long startCol, long endLine, long endCol, Str& left,
                 Str& right) {
    left = basic::Left(lineOf(module, startLine), std::max(startCol - 1, 0L));
    right = basic::Mid(lineOf(module, endLine), std::max(endCol, 1L));
    return left + right;
}

// The pane's selection, with the text left of its start and right of its end.
struct SelectionParts {
    long startLine = 0, startCol = 0, endLine = 0, endCol = 0;
    Str left, right;
};

SelectionParts selectionParts(host::CodePane& pane, host::CodeModule& module) {
    SelectionParts s;
    pane.GetSelection(s.startLine, s.startCol, s.endLine, s.endCol);
    selectedText(module, s.startLine, s.startCol, s.endLine, s.endCol, s.left, s.right);
    return s;
}

// Writes `text` over lines first..last (which may lie past the module's end).
void replaceLines(host::CodeModule& module, long first, long last, const Str& text) {
    ensureLine(module, first);
    long count = module.CountOfLines();
    long through = std::min(last, count);
    if (through > first) module.DeleteLines(first + 1, through - first);
    module.ReplaceLine(first, text);
}

// Where the caret stands behind `text` that starts at (line, col).
void caretBehind(const Str& text, long line, long col, long& endLine, long& endCol) {
    auto parts = basic::Split(text, kCrLf);
    endLine = line + static_cast<long>(parts.empty() ? 0 : parts.size() - 1);
    endCol = (parts.size() > 1 ? 0 : col - 1) + (parts.empty() ? 0 : Len(parts.back())) + 1;
}

bool endsWithAny(const Str& text, const Str& chars) { return !text.empty() && chars.find(text.back()) != Str::npos; }
bool beginsWithAny(const Str& text, const Str& chars) {
    return !text.empty() && chars.find(text.front()) != Str::npos;
}

bool holdsWholeWord(const Str& line, const Str& word) {
    auto isNameChar = [](char16_t c) { return c == u'_' || (c >= u'0' && c <= u'9') || basic::upperCase(c) != basic::lowerCase(c); };
    for (long at = InStr(line, word, Compare::Text); at > 0; at = InStr(at + 1, line, word, Compare::Text)) {
        long after = at + Len(word);
        bool before = at == 1 || !isNameChar(line[at - 2]);
        bool behind = after > Len(line) || !isNameChar(line[after - 1]);
        if (before && behind) return true;
        if (after > Len(line)) break;
    }
    return false;
}

}  // namespace

Str CodeEnv::tabSpaces() const { return basic::Space(platform::editorTabWidth(platform)); }

host::VBComponentPtr componentNamed(host::VBE& vbe, const Str& name) {
    if (name.empty()) return nullptr;
    auto project = vbe.ActiveVBProject();
    if (!project) return nullptr;
    auto components = project->VBComponents();
    for (long i = 1, count = components->Count(); i <= count; ++i) {
        auto component = components->Item(i);
        if (sameText(component->Name(), name)) return component;
    }
    return nullptr;
}

Str TargetModuleResolve(CodeEnv& env, const Str& module) {
    if (module == kNewModule) {
        auto answer = env.platform.InputBox(u"Name of Module", kProductTitle, u"");
        if (!answer || Trim(*answer).empty()) return {};
        return ModuleCreate(env, Trim(*answer));
    }
    if (componentNamed(env.vbe, module)) return module;
    int question = platform::mb::vbOKCancel | platform::mb::vbQuestion;
    if (env.platform.MsgBox(u"Create module " + module + u"?", question, kProductTitle) != platform::mb::vbOK)
        return {};
    return ModuleCreate(env, module);
}

bool VarConstCodeAdd(CodeEnv& env, const Str& line, const Str& module, bool fModuleLevel, bool fProcArea,
                     const Str& name, long lngLine, bool fAtTop) {
    bool placed = false;
    reportedStep(env.report, u"basGlobal.VarConstCodeAdd", [&] {
        if (lngLine > 0) {
            placed = blockMemberAdd(env, line, module, name, lngLine);
            return;
        }
        if (!fModuleLevel) {
            long at = fProcArea ? (qltProcVariableAdd(env, line), 1) : procedureDeclarationAdd(env, line);
            placed = at > 0;
            return;
        }
        if (caretLineTaken(env, line, module, name)) {
            placed = true;
            return;
        }
        Str target = module;
        if (target.empty()) {
            auto pane = env.vbe.ActiveCodePane();
            if (!pane) return;
            target = pane->CodeModule()->Parent()->Name();
        } else {
            target = TargetModuleResolve(env, module);
            if (target.empty()) return;
        }
        auto code = componentNamed(env.vbe, target)->CodeModule();
        code->InsertLines(LineOutsideStatements(*code, declarationLine(*code, fAtTop)), line);
        placed = true;
    });
    return placed;
}

long qltProcVariableAdd(CodeEnv& env, const Str& line) {
    long at = 0;
    reportedStep(env.report, u"basGlobal.qltProcVariableAdd", [&] { at = procedureDeclarationAdd(env, line); });
    return at;
}

Str ModuleCreate(CodeEnv& env, const Str& name, long kind, bool blnHeader, bool blnKeepNewFocus) {
    Str created;
    reportedStep(env.report, u"basGlobal.ModuleCreate", [&] {
        auto earlierPane = env.vbe.ActiveCodePane();
        auto components = env.vbe.ActiveVBProject()->VBComponents();
        auto component = components->Add(kind);
        try {
            component->Name(name);
        } catch (...) {
            ignoringErrors([&] { components->Remove(component); });
            throw;
        }
        auto module = component->CodeModule();
        Str header = blnHeader && env.expandHeader ? env.expandHeader(KindModuleHeader, name, {}) : Str();
        if (!header.empty()) {
            if (header.size() >= 2 && header.substr(header.size() - 2) == kCrLf) header.resize(header.size() - 2);
            module->InsertLines(1, header);
        }
        for (long n = 1; n <= module->CountOfLines(); ++n) {
            if (!Trim(module->Lines(n, 1)).empty()) continue;
            module->DeleteLines(n, 1);
            break;
        }
        created = component->Name();
        if (!blnKeepNewFocus && earlierPane) earlierPane->Show();
    });
    return created;
}

void InstanceAdd(CodeEnv& env, host::CodePanePtr pane, const Str& text, bool blnNewFocus, bool blnKeys) {
    reportedStep(env.report, u"basGlobal.InstanceAdd", [&] {
        if (!pane) pane = env.vbe.ActiveCodePane();
        if (!pane) return;
        auto module = pane->CodeModule();
        auto s = selectionParts(*pane, *module);
        Str insert = text;
        if (s.startLine == s.endLine && s.startCol == s.endCol) {
            if (!s.left.empty() && !endsWithAny(s.left, u"( ") && !beginsWithAny(insert, u"( ")) insert = u" " + insert;
            if (!s.right.empty() && !beginsWithAny(s.right, u") ") && !endsWithAny(insert, u") ")) insert += u" ";
        }
        replaceLines(*module, s.startLine, s.endLine, s.left + insert + s.right);
        long caretLine = 0, caretCol = 0;
        caretBehind(s.left + insert, s.startLine, 1, caretLine, caretCol);
        if (blnNewFocus) pane->Show();
        pane->SetSelection(caretLine, caretCol, caretLine, caretCol);
        if (blnKeys) env.platform.SendKeys(u" {BACKSPACE}", true);
    });
}

void CodeReplace(CodeEnv& env, const Str& text) {
    reportedStep(env.report, u"basGlobal.CodeReplace", [&] {
        auto pane = env.vbe.ActiveCodePane();
        if (!pane) return;
        auto module = pane->CodeModule();
        auto s = selectionParts(*pane, *module);
        replaceLines(*module, s.startLine, s.endLine, s.left + text + s.right);
        long caretLine = 0, caretCol = 0;
        caretBehind(s.left + text, s.startLine, 1, caretLine, caretCol);
        pane->SetSelection(caretLine, caretCol, caretLine, caretCol);
    });
}

bool ModuleNameConstantAdd(CodeEnv& env, const Str& module, bool blnCheckOnly) {
    bool present = false;
    reportedStep(env.report, u"basGlobal.ModuleNameConstantAdd", [&] {
        Str constant = settings::IniText(env.settings, settings::iiModuleNameConstant);
        auto component = componentNamed(env.vbe, module);
        if (!component || constant.empty()) return;
        auto code = component->CodeModule();
        long declarations = code->CountOfDeclarationLines();
        Str text = declarations > 0 ? code->Lines(1, declarations) : Str();
        for (const Str& line : basic::Split(text, kCrLf)) {
            if (InStr(line, u"Const ", Compare::Text) > 0 && holdsWholeWord(line, constant)) {
                present = true;
                return;
            }
        }
        if (blnCheckOnly) return;
        Str line = Str(u"Private ") + u"Const" + u" " + constant + u" As String = \"" + module + u"\"";
        present = VarConstCodeAdd(env, line, component->Name(), true, false, constant, 0, true);
    });
    return present;
}

}  // namespace quillet::source
