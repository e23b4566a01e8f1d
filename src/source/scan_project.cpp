#include "source/scan_project.h"

#include <optional>

#include "source/declaration_scan.h"
#include "source/proc_defs.h"
#include "source/statements.h"

namespace quillet::source {

using basic::Compare;
using basic::Mid;
using basic::StrComp;
using basic::Trim;

namespace {

constexpr long kUnspecifiedComError = -2147467259L;

enum class Kind { None, Constant, Enum, Type, Declared, Variable };

bool isWord(const Str& word, const char16_t* keyword) { return StrComp(word, keyword, Compare::Text) == 0; }

// The kind of a statement of a module's declarations and the column its declaration text starts at.
Kind publicKind(const Str& S, bool isStd, long& column) {
    Str W0 = wordOf(S, 0), W1 = wordOf(S, 1);
    if (isWord(W0, u"Public") || isWord(W0, u"Global")) {
        if (isWord(W1, u"Const")) return column = 14, isStd ? Kind::Constant : Kind::None;
        if (isWord(W1, u"Enum")) return column = 13, Kind::Enum;
        if (isWord(W1, u"Type")) return column = 13, isStd ? Kind::Type : Kind::None;
        if (isWord(W1, u"Declare")) return column = 16, Kind::Declared;
        return column = 8, isStd ? Kind::Variable : Kind::None;
    }
    if (isWord(W0, u"Enum")) return column = 6, Kind::Enum;
    if (isWord(W0, u"Type")) return column = 6, isStd ? Kind::Type : Kind::None;
    if (isWord(W0, u"Declare")) return column = 9, Kind::Declared;
    return Kind::None;
}

// Reads a member of a component, retrying an unspecified COM failure a few times.
template <class F>
auto readRetrying(F&& read) {
    for (int attempt = 1;; ++attempt) {
        try {
            return read();
        } catch (const basic::VbError& error) {
            if (error.Number() != kUnspecifiedComError || attempt >= 3) throw;
        }
    }
}

}  // namespace

void clsScanProject::init(const Str& strModuleName, bool fReload) {
    auto& state = env_.state;
    if (!state.ProjectProcs) state.ProjectProcs = newCollection<C4_ProcDef>();
    if (fReload || !state.ProjectVars) state.ProjectVars = newCollection<clsVariable>();
    if (fReload || !state.ProjectConsts) state.ProjectConsts = newCollection<clsConstant>();
    if (fReload || !state.ProjectEnums) state.ProjectEnums = newCollection<clsEnum>();
    if (fReload || !state.ProjectTypes) state.ProjectTypes = newCollection<clsType>();
    if (fReload) state.ModuleSignatures.clear();
    reportedStep(env_.report, u"clsScanProject.init", [&] {
        if (!scanAllowed(env_.vbe)) return;
        auto project = env_.vbe.ActiveVBProject();
        projectName_ = project->Name();
        auto components = project->VBComponents();
        if (!strModuleName.empty()) {
            ScanModule(components->Item(strModuleName));
            return;
        }
        recordSignatures_ = true;
        state.ScannedProject = projectName_;
        for (long i = 1, count = components->Count(); i <= count; ++i) {
            auto component = components->Item(i);
            if (!component->Name().empty()) ScanModule(component);
        }
    });
}

void clsScanProject::ScanModule(const host::VBComponentPtr& rVBComponent) {
    const Str where = u"clsScanProject.ScanModule";
    host::CodeModulePtr module;
    long type = 0;
    long count = 0;
    bool readable = reportedStep(env_.report, where, [&] {
        module = readRetrying([&] { return rVBComponent->CodeModule(); });
        count = module ? readRetrying([&] { return module->CountOfLines(); }) : 0;
        if (count > 0) type = readRetrying([&] { return rVBComponent->Type(); });
    });
    if (!readable) return;
    if (count == 0) {
        if (recordSignatures_)
            reportedStep(env_.report, where, [&] { recordSignature(rVBComponent->Name(), ModuleText::fromText({})); });
        return;
    }
    ++ModulesScanned;
    Str moduleName;
    long declarationLines = 0;
    std::optional<ModuleText> text;
    if (!reportedStep(env_.report, where, [&] {
            moduleName = rVBComponent->Name();
            text.emplace(*module);
            declarationLines = module->CountOfDeclarationLines();
        }))
        return;
    recordSignature(moduleName, *text);
    bool isStd = type == host::vbext_ct_StdModule;
    if (isStd) ModulePublicProcsGet(*module, *text, declarationLines);

    std::vector<Str> statements;
    ModuleDeclarationLines(*text, declarationLines, statements);
    auto& state = env_.state;
    for (size_t i = 0; i < statements.size(); ++i) {
        const Str& S = statements[i];
        long column = 0;
        Kind kind = publicKind(S, isStd, column);
        if (kind == Kind::None) continue;
        Str T = Trim(Mid(S, column));
        if (T.empty()) continue;
        reportedStep(env_.report, where, [&] {
            switch (kind) {
            case Kind::Enum:
                EnumAdd(T, statements, static_cast<long>(i) + 1, *state.ProjectEnums, *state.ProjectConsts, moduleName,
                        false, projectName_);
                return;
            case Kind::Type: TypeAdd(T, *state.ProjectTypes, moduleName, false, projectName_); return;
            case Kind::Declared: DeclaredProcAdd(T, *state.ProjectProcs, moduleName, true, projectName_); return;
            default: break;
            }
            for (const Str& item : SplitArguments(T)) {
                if (kind == Kind::Constant) {
                    auto constant = std::make_shared<clsConstant>();
                    constant->init(Trim(item), env_.report);
                    constant->ModuleName = moduleName;
                    addFirstWins(*state.ProjectConsts, constant, constant->Name);
                } else {
                    auto variable = std::make_shared<clsVariable>();
                    variable->init(Trim(item), env_.report);
                    variable->ModuleName = moduleName;
                    addFirstWins(*state.ProjectVars, variable, variable->Name);
                }
            }
        });
    }
}

void clsScanProject::recordSignature(const Str& moduleName, const ModuleText& text) {
    if (recordSignatures_) env_.state.ModuleSignatures[signatureKey(moduleName)] = signatureOf(text);
}

void clsScanProject::ModulePublicProcsGet(host::CodeModule& rCodeModule, const ModuleText& text,
                                          long countOfDeclarationLines) {
    if (text.CountOfLines() <= 0) return;
    C4_ProcDefs defs;
    defs.Report = env_.report;
    defs.init(projectName_, rCodeModule, projectName_);
    defs.AddAll(rCodeModule, true, &text, countOfDeclarationLines);
    auto& procs = *env_.state.ProjectProcs;
    for (const auto& def : defs.Items) {
        ignoringErrors([&] {
            if (procs.Exists(def->Name)) procs.Remove(def->Name);
            procs.Add(def, def->Name);
        });
    }
}

void ModuleAdd(ScanEnv env, const Str& name) { clsScanProject(std::move(env)).init(name, false); }

namespace {

template <class T, class Field>
void removeOfModule(const CollectionPtr<T>& collection, const Str& name, Field field) {
    if (!collection) return;
    for (long i = collection->Count(); i >= 1; --i)
        if (StrComp((*collection->Item(i)).*field, name, Compare::Text) == 0) collection->Remove(i);
}

}  // namespace

void ModuleRemove(ProjectScanState& state, const Str& name) {
    removeOfModule(state.ProjectProcs, name, &C4_ProcDef::ModuleName);
    removeOfModule(state.ProjectVars, name, &clsVariable::ModuleName);
    removeOfModule(state.ProjectConsts, name, &clsConstant::ModuleName);
    removeOfModule(state.ProjectEnums, name, &clsEnum::Module);
    removeOfModule(state.ProjectTypes, name, &clsType::Module);
    state.ModuleSignatures.erase(signatureKey(name));
}

}  // namespace quillet::source
