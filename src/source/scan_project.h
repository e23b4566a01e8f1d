#pragma once
// The project scan: everything the whole project sees (public variables, constants, enums,
// types and procedures of the standard modules, public enums and Declare statements of every
// module), into the project-wide collections.

#include "source/scan_state.h"

namespace quillet::source {

class clsScanProject {
public:
    explicit clsScanProject(ScanEnv env) : env_(std::move(env)) {}

    // Scans one module (by name) or, with none, every component of the active project. With
    // fReload the four collections of declarations start afresh; otherwise what is there stays,
    // and a name that is taken keeps its first record.
    void init(const Str& strModuleName = {}, bool fReload = false);

    // How many modules this object scanned.
    long ModulesScanned = 0;

private:
    void ScanModule(const host::VBComponentPtr& rVBComponent);
    void ModulePublicProcsGet(host::CodeModule& rCodeModule, const ModuleText& text, long countOfDeclarationLines);

    // Whether each module scanned leaves its signature (a scan of the whole project does).
    void recordSignature(const Str& moduleName, const ModuleText& text);

    ScanEnv env_;
    Str projectName_;
    bool recordSignatures_ = false;
};

// Scans one module into the project-wide collections.
void ModuleAdd(ScanEnv env, const Str& name);
// Removes from the five collections every record of the module, ignoring case, and forgets its
// signature.
void ModuleRemove(ProjectScanState& state, const Str& name);

}  // namespace quillet::source
