#pragma once
// The project-wide collections of the scan and what a scanner is given to work with.

#include <cstdint>
#include <map>
#include <memory>

#include "basic/collection.h"
#include "host/objects.h"
#include "source/declarations.h"
#include "source/errors.h"
#include "source/module_text.h"
#include "source/proc_def.h"

namespace quillet::source {

template <class T>
using CollectionPtr = std::shared_ptr<basic::Collection<std::shared_ptr<T>>>;

template <class T>
CollectionPtr<T> newCollection() {
    return std::make_shared<basic::Collection<std::shared_ptr<T>>>();
}

// What a module's text looked like when it was last scanned: enough to tell, from one read of
// the module, whether it changed since.
struct ModuleSignature {
    long CountOfLines = 0;
    std::uint64_t Hash = 0;
    bool operator==(const ModuleSignature&) const = default;
};
ModuleSignature signatureOf(const ModuleText& text);

// What is visible in the whole project. ProjectInitialize makes ProjectProcs; the project scan
// makes the other four (or replaces them when told to reload).
struct ProjectScanState {
    CollectionPtr<C4_ProcDef> ProjectProcs;      // by Name; declared procedures by project "." Name
    CollectionPtr<clsVariable> ProjectVars;      // by Name
    CollectionPtr<clsConstant> ProjectConsts;    // by Name: public constants and public enums' members
    CollectionPtr<clsEnum> ProjectEnums;         // by Name
    CollectionPtr<clsType> ProjectTypes;         // by Name
    // The project the collections describe, and the signature of each module as it was scanned
    // (by module name folded to upper case); ProjectRefresh rescans only the modules that differ.
    Str ScannedProject;
    std::map<Str, ModuleSignature> ModuleSignatures;
};

// The key of a module in ModuleSignatures.
Str signatureKey(const Str& moduleName);

// What a scanner works with: the editor, the shared collections and where failures go.
struct ScanEnv {
    host::VBE& vbe;
    ProjectScanState& state;
    ErrorReporter report;
};

// The gate of every scan: a project is open and not locked.
bool scanAllowed(host::VBE& vbe);
// The active project's name, "" when there is none.
Str activeProjectName(host::VBE& vbe);

// Adds under the key; a key that is taken is passed over (the first one wins). True when added.
template <class T>
bool addFirstWins(basic::Collection<std::shared_ptr<T>>& collection, const std::shared_ptr<T>& item, const Str& key) {
    if (collection.Exists(key)) return false;
    collection.Add(item, key);
    return true;
}

}  // namespace quillet::source
