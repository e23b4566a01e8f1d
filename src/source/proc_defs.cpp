#include "source/proc_defs.h"

#include <algorithm>
#include <optional>
#include <string>

namespace quillet::source {

using basic::Compare;

void C4_ProcDefs::init(const Str& vstrProjName, host::CodeModule& rmdl, const Str& activeProjectName) {
    activeProjectName_ = activeProjectName;
    reportedStep(Report, u"C4_ProcDefs.init", [&] {
        ModuleType = rmdl.Parent()->Type() == host::vbext_ct_StdModule ? 0 : 1;
        ModuleTypeStr = ModuleType == 0 ? u"Standard module" : u"Class module";
        ProjectName = vstrProjName;
        ModuleName = rmdl.Name();
    });
}

Str C4_ProcDefs::ProcKey(const Str& name, long kind) {
    std::string digits = std::to_string(kind);
    return name + u"*" + Str(digits.begin(), digits.end());
}

bool C4_ProcDefs::ProcExists(const Str& name, long kind) const {
    const C4_ProcDefPtr* found = Items.Find(ProcKey(name, kind));
    return found && basic::StrComp((*found)->Name, name, Compare::Text) == 0;
}

void C4_ProcDefs::AddProc(const C4_ProcDefPtr& robjProc, const Str& vstrKey) {
    reportedStep(Report, u"C4_ProcDefs.AddProc", [&] {
        if (vstrKey.empty()) {
            Items.Add(robjProc);
        } else if (!Items.Exists(vstrKey)) {
            Items.Add(robjProc, vstrKey);
        }
    });
}

C4_ProcDefPtr C4_ProcDefs::addAt(host::CodeModule& rmdl, long line, bool onlyPublic, const ModuleText* text) {
    long kind = 0;
    Str name = rmdl.ProcOfLine(line, kind);
    if (name.empty() || ProcExists(name, kind)) return nullptr;
    auto def = std::make_shared<C4_ProcDef>();
    def->Report = Report;
    def->init(ProjectName, rmdl, name, kind, activeProjectName_, text);
    if (def->ProcIsPublic || !onlyPublic) AddProc(def, ProcKey(name, kind));
    return def;
}

void C4_ProcDefs::Add(host::CodeModule& rmdl, long vlngLineNo, bool vblnOnlyPublic, const ModuleText* text) {
    reportedStep(Report, u"C4_ProcDefs.Add", [&] { addAt(rmdl, vlngLineNo, vblnOnlyPublic, text); });
}

void C4_ProcDefs::AddAll(host::CodeModule& rmdl, bool vblnOnlyPublic, const ModuleText* text,
                         long countOfDeclarationLines) {
    reportedStep(Report, u"C4_ProcDefs.Add", [&] {
        std::optional<ModuleText> own;
        if (!text) text = &own.emplace(rmdl);
        long count = text->CountOfLines();
        if (countOfDeclarationLines < 0) countOfDeclarationLines = rmdl.CountOfDeclarationLines();
        // The declarations hold no procedure; every line of a procedure's extent names it.
        long line = std::max(countOfDeclarationLines, 0L) + 1;
        while (line <= count) {
            C4_ProcDefPtr def;
            reportedStep(Report, u"C4_ProcDefs.Add", [&] { def = addAt(rmdl, line, vblnOnlyPublic, text); });
            long next = line + 1;
            if (def && def->ProcStartLine <= line) next = std::max(next, def->ProcStartLine + def->ProcCountLines);
            line = next;
        }
    });
}

}  // namespace quillet::source
