#include "source/proc_def.h"

#include "source/statements.h"

namespace quillet::source {

using basic::Compare;
using basic::Len;
using basic::Mid;
using basic::Trim;

namespace {

bool startsWith(const Str& text, const Str& start) { return text.compare(0, start.size(), start) == 0; }

Str firstStatement(const Str& text) {
    auto statements = LineDisjunction(text);
    return statements.empty() ? Str() : statements.front();
}

}  // namespace

Str ProcKindStrOf(long kind) {
    switch (kind) {
    case host::vbext_pk_Proc: return u"Sub/Function";
    case host::vbext_pk_Let: return u"Property Let";
    case host::vbext_pk_Set: return u"Property Set";
    case host::vbext_pk_Get: return u"Property Get";
    default: return {};
    }
}

void C4_ProcDef::init(const Str& vstrProjName, host::CodeModule& rmdl, const Str& vstrProcName, long vlngProcKind,
                      const Str& activeProjectName, const ModuleText* text) {
    Project = vstrProjName;
    reportedStep(Report, u"C4_ProcDef.init", [&] { ModuleName = rmdl.Name(); });
    Name = vstrProcName;
    ProcKind = vlngProcKind;
    if (basic::StrComp(activeProjectName, vstrProjName, Compare::Text) == 0) GroupName = vstrProjName;
    ProcKindStr = ProcKindStrOf(ProcKind);
    ProcedureParameters(rmdl, text);
    ProcDefGet();
    ProcArguments->init(OneLineProcDef);
}

void C4_ProcDef::Init2(const Str& rstrProcedureCode, const Str& vstrModuleName) {
    Project = u"Library";
    ModuleName = GroupName = vstrModuleName;
    ProcKind = 0;
    ProcKindStr = u"Sub/Function";
    ProcStartLine = ProcBodyLine = 1;
    ProcCountLines = static_cast<long>(basic::Split(rstrProcedureCode, u"\r\n").size());
    ProcCode = rstrProcedureCode;
    ProcDefGet();
    ProcArguments->init(OneLineProcDef);
    IsLibraryProcedure = true;
}

void C4_ProcDef::ProcedureParameters(host::CodeModule& rmdl, const ModuleText* text) {
    reportedStep(Report, u"C4_ProcDef.ProcedureParameters", [&] {
        ProcStartLine = rmdl.ProcStartLine(Name, ProcKind);
        ProcCountLines = rmdl.ProcCountLines(Name, ProcKind);
        ProcBodyLine = rmdl.ProcBodyLine(Name, ProcKind);
        long count = ProcCountLines - (ProcBodyLine - ProcStartLine);
        ProcCode = text ? text->lines(ProcBodyLine, count) : rmdl.Lines(ProcBodyLine, count);
    });
}

void C4_ProcDef::ProcDefGet() {
    reportedStep(Report, u"C4_ProcDef.ProcDefGet", [&] {
        auto lines = basic::Split(ProcCode, u"\r\n");
        if (IsDeclarationSection()) return;
        Str multiLine, oneLine;
        long count = 0;
        for (const Str& line : lines) {
            ++count;
            Str trimmed = Trim(line);
            if (trimmed.empty()) continue;
            bool ended = trimmed.back() != u'_';
            if (!multiLine.empty()) multiLine += u"\r\n";
            multiLine += line;
            if (!ended) trimmed = Trim(trimmed.substr(0, trimmed.size() - 1));
            oneLine += trimmed;
            if (ended) break;
        }
        if (basic::Like(oneLine, u"*Function *")) ProcIsFunction = true;
        ProcDefStartLine = ProcBodyLine;
        ProcDefCountOfLines = count;

        ProcIsPublic = true;
        if (Len(oneLine) >= 6 && startsWith(oneLine, u"Public")) {
            ProcIsPublic = true;
            ProcIsStatic = false;
        }
        if (startsWith(oneLine, u"Static")) {
            ProcIsStatic = true;
            ProcIsPublic = false;
        }
        if (Len(oneLine) >= 7 && startsWith(oneLine, u"Private")) ProcIsPublic = ProcIsStatic = false;

        ProcDef = firstStatement(multiLine);
        OneLineProcDef = firstStatement(oneLine);

        // The name as the signature writes it: the editor gives it without its type-suffix
        // character, which then says the return type.
        Str signatureName;
        if (basic::InStr(OneLineProcDef, u"(") > 0) {
            auto words = basic::Split(Trim(basic::Split(OneLineProcDef, u"(").front()), u" ");
            signatureName = words.empty() ? Str() : words.back();
        }
        if (Name.empty()) Name = signatureName;
        Str suffix;
        if (!Name.empty() && IsTypeSuffix(Name.back())) {
            suffix = Name.substr(Name.size() - 1);
            Name.pop_back();
        } else if (!signatureName.empty() && IsTypeSuffix(signatureName.back())) {
            suffix = signatureName.substr(signatureName.size() - 1);
        }
        if (ProcIsFunction) {
            long p = basic::InStrRev(OneLineProcDef, u") As ", -1, Compare::Text);
            if (p > 0) ProcReturnType = Trim(Mid(OneLineProcDef, p + 5));
            if (ProcReturnType.empty() && !suffix.empty()) ProcReturnType = TypeCharToName(suffix);
        }
    });
}

}  // namespace quillet::source
