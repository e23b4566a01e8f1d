#pragma once
// clsScanTLI: turns the references of the active project into the program's own lists: groups of
// callable procedures, classes, enums with their constants. Dialogs read those lists and never a
// type library.

#include "host/objects.h"
#include "source/errors.h"
#include "typelib/lib_records.h"
#include "typelib/typelib_reader.h"

namespace quillet::typelib {

class clsScanTLI {
public:
    explicit clsScanTLI(TypeLibReader& reader) : reader_(reader) {}

    // With an empty strRefName every reference of the active project is scanned, else only that
    // one. Failures of one reference are swallowed (and kept in Failures); the next goes on.
    void init(host::VBE& vbe, LibraryLists& lists, const Str& strRefName);
    // One reference: a broken one, one without a path or one whose path fails is skipped.
    void ReferenceScan(host::Reference& reference, LibraryLists& lists);
    // One library, named as the reference names it.
    void TLI_Get(const Str& referenceName, const Str& fullPath, LibraryLists& lists);

    // The help file of a library's procedures, by the library's name and path.
    static Str HelpFileOf(const Str& libraryName, const Str& fullPath, const Str& libraryHelpFile);
    // The return type of a member: "" for none (Variant, void, HRESULT).
    static Str GetReturnType(const MemberInfo& member, const Str& libraryName);
    // The arguments of a member, with the long and the short argument texts.
    static std::shared_ptr<source::C4_ProcArguments> ParamsGet(const MemberInfo& member, const Str& libraryName);
    // A default value as Basic writes it; for an enum, the name of its first member of that value.
    static Str ProduceDefaultValue(const basic::Variant& value, const VarTypeInfo& type);

    // Why references were left out: "name: reason".
    std::vector<Str> Failures;

private:
    void scanGroup(TypeLibrary& library, const SearchItem& item, const Str& helpFile, LibraryLists& lists);
    void scanEnum(TypeInfo& info, const Str& project, LibraryLists& lists);

    TypeLibReader& reader_;
};

// The name clean-up of a library procedure: "_B_str_X" becomes "X$", "_B_var_X" becomes "X" (in
// its definition text too); a name that then begins with "_" is emptied (hidden members vanish).
void LibraryNameCleanUp(source::C4_ProcDef& proc);

}  // namespace quillet::typelib
