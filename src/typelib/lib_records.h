#pragma once
// The records the library scans fill: groups of callable procedures, library classes, and the
// five collections that hold what the referenced libraries offer.

#include <memory>

#include "basic/collection.h"
#include "source/declarations.h"
#include "source/proc_defs.h"
#include "source/record_collections.h"

namespace quillet::typelib {

using basic::Str;

// "Enum", "Record", "Module", "Interface", "Dispatch (*)", "CoClass", "Alias (**)", "Union" for
// the type kinds 0 to 7; "" for any other.
Str TypeKindStrOf(long kind);

// A group of procedures: a library's global item (application object or module), or a module of
// the library folder.
class clsGroup {
public:
    Str Name;
    Str Project;  // the library's name ("Library" for the library folder)
    long TypeInfoNumber = 0;
    long TypeKind = 0;
    Str TypeKindStr;
    Str HelpStr;
};

// A class (or any other item that is not global and not an enum) of a library.
class clsLibClass {
public:
    Str Name;
    Str Project;
    long TypeInfoNumber = 0;
    long TypeKind = 0;
    Str TypeKindStr;
    Str HelpStr;
};

using clsGroupPtr = std::shared_ptr<clsGroup>;
using clsLibClassPtr = std::shared_ptr<clsLibClass>;

// The procedures of the libraries, filed by group key (Project "." group name); within a group by
// Name, the first of a name winning.
class LibraryProcedures {
public:
    void AddProc(const source::C4_ProcDefPtr& proc, const Str& groupKey);
    // The group's procedures, none when the key is unknown.
    std::shared_ptr<source::C4_ProcDefs> Group(const Str& groupKey) const;
    // Drops every group of the project.
    void RemoveProject(const Str& project);
    long Count() const;  // procedures of all groups

    basic::Collection<std::shared_ptr<source::C4_ProcDefs>> Groups;
};

// What the library scans fill: rcolProcedures, rcolGroups, rcolEnums, rcolClasses, rcolReferences.
struct LibraryLists {
    LibraryProcedures Procedures;
    basic::Collection<clsGroupPtr> Groups;         // by Project "." Name
    source::colEnums Enums;                        // by enum name
    basic::Collection<clsLibClassPtr> Classes;     // by Project "." Name
    basic::Collection<Str> References;             // by reference name
};

}  // namespace quillet::typelib
