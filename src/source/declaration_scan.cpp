#include "source/declaration_scan.h"

#include "source/statements.h"

namespace quillet::source {

using basic::Compare;
using basic::Mid;
using basic::StrComp;
using basic::Trim;

namespace {

void flush(Str& acc, std::vector<Str>& statements) {
    for (Str& statement : LineDisjunction(acc))
        if (!statement.empty()) statements.push_back(std::move(statement));
    acc.clear();
}

}  // namespace

void ModuleDeclarationLines(const ModuleText& text, long countOfDeclarationLines, std::vector<Str>& rStatements) {
    Str acc;
    for (long line = 1; line <= countOfDeclarationLines; ++line) {
        Str L = Trim(text.line(line));
        if (L.empty()) {
            if (!acc.empty()) flush(acc, rStatements);
            continue;
        }
        size_t apostrophe = L.find(u'\'');
        if (apostrophe != Str::npos) L = Trim(L.substr(0, apostrophe));
        if (!acc.empty()) acc += u' ';
        if (!L.empty() && L.back() == u'_') {
            acc += Trim(L.substr(0, L.size() - 1));
            continue;
        }
        acc += L;
        if (!acc.empty()) flush(acc, rStatements);
    }
}

void ModuleDeclarationLines(host::CodeModule& rCodeModule, std::vector<Str>& rStatements) {
    ModuleText text(rCodeModule);
    ModuleDeclarationLines(text, rCodeModule.CountOfDeclarationLines(), rStatements);
}

Str wordOf(const Str& statement, size_t index) {
    size_t start = 0;
    for (size_t n = 0; n < index; ++n) {
        size_t blank = statement.find(u' ', start);
        if (blank == Str::npos) return {};
        start = blank + 1;
    }
    size_t end = statement.find(u' ', start);
    return statement.substr(start, end == Str::npos ? Str::npos : end - start);
}

void EnumAdd(const Str& T, const std::vector<Str>& statements, long i, basic::Collection<clsEnumPtr>& enums,
             basic::Collection<clsConstantPtr>& consts, const Str& moduleName, bool isPrivate, const Str& projectName) {
    auto theEnum = std::make_shared<clsEnum>();
    theEnum->Name = wordOf(T, 0);
    theEnum->Project = projectName;
    if (!moduleName.empty()) theEnum->Module = moduleName;
    theEnum->IsPrivate = isPrivate;
    for (size_t n = static_cast<size_t>(i); n < statements.size(); ++n) {
        Str s = Trim(statements[n]);
        if (StrComp(basic::Left(s, 8), u"End Enum", Compare::Text) == 0) break;
        if (s.empty()) continue;
        auto member = std::make_shared<clsConstant>();
        member->Name = Trim(basic::Split(s, u"=").front());
        member->EnumName(theEnum->Name);
        member->Project = projectName;
        member->Type_ = u"Long";
        addFirstWins(theEnum->Items, member, theEnum->Name + u"." + member->Name);
        addFirstWins(consts, member, member->Name);
    }
    addFirstWins(enums, theEnum, theEnum->Name);
}

void TypeAdd(const Str& T, basic::Collection<clsTypePtr>& types, const Str& moduleName, bool isPrivate,
             const Str& projectName) {
    auto type = std::make_shared<clsType>();
    type->Name = wordOf(T, 0);
    type->Project = projectName;
    if (!moduleName.empty()) type->Module = moduleName;
    type->IsPrivate = isPrivate;
    addFirstWins(types, type, type->Name);
}

void DeclaredProcAdd(const Str& T, basic::Collection<C4_ProcDefPtr>& procs, const Str& moduleName, bool fPublic,
                     const Str& projectName) {
    Str text = T;
    if (StrComp(wordOf(text, 0), u"PtrSafe", Compare::Text) == 0) text = Trim(Mid(text, 8));
    auto def = std::make_shared<C4_ProcDef>();
    Str name = wordOf(text, 1), suffix;
    if (!name.empty() && IsTypeSuffix(name.back())) {
        suffix = name.substr(name.size() - 1);
        name.pop_back();
    }
    def->Name = name;
    def->Project = def->GroupName = projectName;
    def->ModuleName = moduleName;
    def->ProcIsFunction = StrComp(wordOf(text, 0), u"Function", Compare::Text) == 0;
    def->ProcIsPublic = fPublic;
    if (def->ProcIsFunction) {
        long p = basic::InStrRev(text, u") As ", -1, Compare::Text);
        if (p > 0) def->ProcReturnType = Trim(Mid(text, p + 5));
        if (def->ProcReturnType.empty() && !suffix.empty()) def->ProcReturnType = TypeCharToName(suffix);
    }
    def->ProcArguments->init(text);
    addFirstWins(procs, def, projectName + u"." + def->Name);
}

}  // namespace quillet::source
