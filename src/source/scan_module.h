#pragma once
// The module scan: what one module keeps to itself (its private variables, constants, enums,
// types, procedures and private Declare statements); and the procedures of a module as the
// builders list them.

#include "source/scan_state.h"

namespace quillet::source {

class clsScanModule {
public:
    explicit clsScanModule(ScanEnv env) : env_(std::move(env)) {}

    // Scans the named module, or the module of the active pane (which is shown when the
    // selected component is another), then refreshes the project's collections for it.
    void init(const Str& vstrModuleName = {});
    // Scans the module (the active pane's when no name is given) into the project's collections;
    // public items there already stay, procedures are replaced.
    void PublicRefresh(const Str& vstrModuleName);

    basic::Collection<clsVariablePtr> ModuleVars;
    basic::Collection<clsConstantPtr> ModuleConsts;
    basic::Collection<clsEnumPtr> ModuleEnums;
    basic::Collection<clsTypePtr> ModuleTypes;
    basic::Collection<C4_ProcDefPtr> ModuleProcs;

private:
    void scanStatements(const std::vector<Str>& statements, bool notStd, const Str& moduleName,
                        const Str& projectName);

    ScanEnv env_;
};

// The procedures of a component (the active pane's module when none is given), each under its
// Name (a second record of a name is passed over): all with fAll; otherwise the private ones of a
// standard module, and the Subs and Functions of any other module.
basic::Collection<C4_ProcDefPtr> ModuleProperProcsGet(ScanEnv env, host::VBComponentPtr rVBComponent, bool fAll);

// The arguments of the procedure at the caret (qltCurProcArgsGet): none outside a procedure.
// `name` and `kind` are those of the procedure.
std::shared_ptr<C4_ProcArguments> CurrentProcArguments(ScanEnv env, Str& name, long& kind);

}  // namespace quillet::source
