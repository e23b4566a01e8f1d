#pragma once
// The procedures of one module, keyed by name and kind ("Foo*3" for the Get of Foo), in order of
// their place in the module.

#include "source/proc_def.h"

namespace quillet::source {

class C4_ProcDefs {
public:
    // Sets the module's fields. `activeProjectName` is handed to each record's init.
    void init(const Str& vstrProjName, host::CodeModule& rmdl, const Str& activeProjectName = {});
    // Adds the procedure that holds the line, if it is not there yet; a private one only when
    // vblnOnlyPublic is False.
    void Add(host::CodeModule& rmdl, long vlngLineNo, bool vblnOnlyPublic, const ModuleText* text = nullptr);
    // What Add for every line from 1 to CountOfLines gives, asking the host once per procedure
    // rather than once per line, with the module's text read once (or taken from `text`, with
    // the module's CountOfDeclarationLines when it is known).
    void AddAll(host::CodeModule& rmdl, bool vblnOnlyPublic, const ModuleText* text = nullptr,
                long countOfDeclarationLines = -1);
    // Adds a finished record, under the key when it is not empty; a key that is taken is passed over.
    void AddProc(const C4_ProcDefPtr& robjProc, const Str& vstrKey);
    bool ProcExists(const Str& name, long kind) const;
    static Str ProcKey(const Str& name, long kind);

    long Count() const { return Items.Count(); }

    ErrorReporter Report;
    Str ProjectName;
    Str ModuleName;
    long ModuleType = 0;  // 0 standard module, 1 any other
    Str ModuleTypeStr;    // "Standard module", "Class module"
    basic::Collection<C4_ProcDefPtr> Items;

private:
    // The record made for the line's procedure, or none when the line has none or it is there.
    C4_ProcDefPtr addAt(host::CodeModule& rmdl, long line, bool onlyPublic, const ModuleText* text);

    Str activeProjectName_;
};

}  // namespace quillet::source
