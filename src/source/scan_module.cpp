#include "source/scan_module.h"

#include "source/current_proc.h"
#include "source/declaration_scan.h"
#include "source/proc_defs.h"
#include "source/scan_project.h"
#include "source/statements.h"

namespace quillet::source {

using basic::Compare;
using basic::Mid;
using basic::StrComp;
using basic::Trim;

namespace {

enum class Kind { None, Constant, Enum, Type, Declared, Variable };

bool isWord(const Str& word, const char16_t* keyword) { return StrComp(word, keyword, Compare::Text) == 0; }

Kind privateKind(const Str& S, bool notStd, long& column) {
    Str W0 = wordOf(S, 0), W1 = wordOf(S, 1);
    if (isWord(W0, u"Public")) {
        if (notStd && StrComp(Mid(S, 8, 4), u"Enum", Compare::Text) == 0) return column = 13, Kind::Enum;
        return Kind::None;
    }
    if (isWord(W0, u"Enum")) return column = 6, notStd ? Kind::Enum : Kind::None;
    if (isWord(W0, u"Dim")) return column = 5, Kind::Variable;
    if (isWord(W0, u"Private")) {
        if (isWord(W1, u"Const")) return column = 14, Kind::Constant;
        if (isWord(W1, u"Enum")) return column = 13, Kind::Enum;
        if (isWord(W1, u"Type")) return column = 13, Kind::Type;
        if (isWord(W1, u"Declare")) return column = 16, Kind::Declared;
        return column = 8, Kind::Variable;
    }
    if (isWord(W0, u"Const")) return column = 7, Kind::Constant;
    return Kind::None;
}

}  // namespace

void clsScanModule::init(const Str& vstrModuleName) {
    const Str where = u"clsScanModule.Init";
    bool refresh = false;
    reportedStep(env_.report, where, [&] {
        if (!scanAllowed(env_.vbe)) return;
        host::CodeModulePtr module;
        bool found = ignoringErrors([&] {
            if (!vstrModuleName.empty()) {
                module = env_.vbe.ActiveVBProject()->VBComponents()->Item(vstrModuleName)->CodeModule();
                return;
            }
            auto pane = env_.vbe.ActiveCodePane();
            auto selected = env_.vbe.SelectedVBComponent();
            if (!pane || !selected) return;
            if (pane->CodeModule()->Name() != selected->CodeModule()->Name()) pane->Show();
            module = pane->CodeModule();
        });
        if (!found || !module) return;
        refresh = true;
        Str projectName = activeProjectName(env_.vbe);
        auto selected = env_.vbe.SelectedVBComponent();
        ModuleProcs = ModuleProperProcsGet(env_, selected, false);
        bool notStd = !selected || selected->Type() != host::vbext_ct_StdModule;
        std::vector<Str> statements;
        ModuleDeclarationLines(*module, statements);
        scanStatements(statements, notStd, vstrModuleName, projectName);
    });
    if (refresh) reportedStep(env_.report, where, [&] { PublicRefresh(vstrModuleName); });
}

void clsScanModule::scanStatements(const std::vector<Str>& statements, bool notStd, const Str& moduleName,
                                   const Str& projectName) {
    for (size_t i = 0; i < statements.size(); ++i) {
        const Str& S = statements[i];
        long column = 0;
        Kind kind = privateKind(S, notStd, column);
        if (kind == Kind::None) continue;
        Str T = Trim(Mid(S, column));
        if (T.empty()) continue;
        reportedStep(env_.report, u"clsScanModule.Init", [&] {
            switch (kind) {
            case Kind::Enum:
                EnumAdd(T, statements, static_cast<long>(i) + 1, ModuleEnums, ModuleConsts, moduleName, true,
                        projectName);
                return;
            case Kind::Type: TypeAdd(T, ModuleTypes, moduleName, true, projectName); return;
            case Kind::Declared: DeclaredProcAdd(T, ModuleProcs, moduleName, false, projectName); return;
            default: break;
            }
            for (const Str& item : SplitArguments(T)) {
                if (kind == Kind::Constant) {
                    auto constant = std::make_shared<clsConstant>();
                    constant->init(Trim(item), env_.report);
                    addFirstWins(ModuleConsts, constant, constant->Name);
                } else {
                    auto variable = std::make_shared<clsVariable>();
                    variable->init(Trim(item), env_.report);
                    addFirstWins(ModuleVars, variable, variable->Name);
                }
            }
        });
    }
}

void clsScanModule::PublicRefresh(const Str& vstrModuleName) {
    Str name = vstrModuleName;
    if (name.empty()) name = env_.vbe.ActiveCodePane()->CodeModule()->Name();
    clsScanProject(env_).init(name, false);
}

basic::Collection<C4_ProcDefPtr> ModuleProperProcsGet(ScanEnv env, host::VBComponentPtr rVBComponent, bool fAll) {
    basic::Collection<C4_ProcDefPtr> result;
    reportedStep(env.report, u"basGlobal.ModuleProperProcsGet", [&] {
        if (!rVBComponent) rVBComponent = env.vbe.ActiveCodePane()->CodeModule()->Parent();
        auto module = rVBComponent->CodeModule();
        if (!module || module->CountOfLines() < 1) return;
        Str projectName = activeProjectName(env.vbe);
        C4_ProcDefs defs;
        defs.Report = env.report;
        defs.init(projectName, *module, projectName);
        defs.AddAll(*module, false);
        bool isStd = defs.ModuleType == 0;
        for (const auto& def : defs.Items) {
            bool wanted = fAll || (isStd ? !def->ProcIsPublic : def->ProcKind == host::vbext_pk_Proc);
            if (wanted) addFirstWins(result, def, def->Name);
        }
    });
    return result;
}

std::shared_ptr<C4_ProcArguments> CurrentProcArguments(ScanEnv env, Str& name, long& kind) {
    std::shared_ptr<C4_ProcArguments> arguments;
    reportedStep(env.report, u"basGlobal.qltCurProcArgsGet", [&] {
        long bodyLine = 0, lastLine = 0;
        if (!CurrentProcGet(env.vbe, true, name, bodyLine, lastLine, kind)) return;
        auto procs = ModuleProperProcsGet(env, nullptr, true);
        if (const C4_ProcDefPtr* def = procs.Find(name)) arguments = (*def)->ProcArguments;
    });
    return arguments;
}

}  // namespace quillet::source
