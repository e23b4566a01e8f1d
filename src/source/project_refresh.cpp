#include "source/project_refresh.h"

#include <set>

#include "basic/strings.h"
#include "source/scan_project.h"

namespace quillet::source {

namespace {

constexpr char16_t kWhere[] = u"basGlobal.ProjectRefresh";

bool scanIsOf(const ProjectScanState& state, const Str& project) {
    return state.ProjectProcs && state.ProjectVars && state.ProjectConsts && state.ProjectEnums &&
           state.ProjectTypes && basic::StrComp(state.ScannedProject, project, basic::Compare::Text) == 0;
}

long fullScan(CodeEnv& env) {
    env.state.ProjectProcs = newCollection<C4_ProcDef>();
    clsScanProject scan(env.scanEnv());
    scan.init({}, true);
    return scan.ModulesScanned;
}

// Scans the component again when its text differs from its last scan; true when it did.
bool refreshModule(CodeEnv& env, const host::VBComponentPtr& component, const Str& name) {
    auto module = component->CodeModule();
    if (!module) return false;
    ModuleSignature signature = signatureOf(ModuleText(*module));
    auto& signatures = env.state.ModuleSignatures;
    auto known = signatures.find(signatureKey(name));
    if (known != signatures.end() && known->second == signature) return false;
    ModuleRemove(env.state, name);
    ModuleAdd(env.scanEnv(), name);
    signatures[signatureKey(name)] = signature;
    return true;
}

}  // namespace

long ProjectRefresh(CodeEnv& env, bool blnReferences) {
    long rescanned = 0;
    if (env.librariesRefresh) reportedStep(env.report, kWhere, [&] { env.librariesRefresh(blnReferences); });
    reportedStep(env.report, kWhere, [&] {
        if (!scanAllowed(env.vbe)) return;
        auto project = env.vbe.ActiveVBProject();
        if (!scanIsOf(env.state, project->Name())) {
            rescanned = fullScan(env);
            return;
        }
        auto components = project->VBComponents();
        std::set<Str> present;
        for (long i = 1, count = components->Count(); i <= count; ++i) {
            reportedStep(env.report, kWhere, [&] {
                auto component = components->Item(i);
                Str name = component->Name();
                if (name.empty()) return;
                present.insert(signatureKey(name));
                if (refreshModule(env, component, name)) ++rescanned;
            });
        }
        std::vector<Str> gone;
        for (const auto& [key, signature] : env.state.ModuleSignatures)
            if (!present.count(key)) gone.push_back(key);
        for (const Str& key : gone) ModuleRemove(env.state, key);
    });
    return rescanned;
}

}  // namespace quillet::source
