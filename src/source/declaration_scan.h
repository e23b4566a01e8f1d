#pragma once
// The steps the project scan and the module scan share: the logical statements of a module's
// declarations, and the records of an Enum block, a Type block and a Declare statement.

#include <vector>

#include "source/module_text.h"
#include "source/scan_state.h"

namespace quillet::source {

// The statements of lines 1 to CountOfDeclarationLines: blank lines end a continued statement,
// everything from the first "'" on is cut (quotes or not), continued lines are joined with a
// blank, and each joined text is cut by LineDisjunction; empty statements are left out. A
// continuation on the section's last line is lost.
void ModuleDeclarationLines(host::CodeModule& rCodeModule, std::vector<Str>& rStatements);
// The same on lines already read.
void ModuleDeclarationLines(const ModuleText& text, long countOfDeclarationLines, std::vector<Str>& rStatements);

// The first and second word of a statement (cut at blanks).
Str wordOf(const Str& statement, size_t index);

// An Enum block: the enum named by the first word of T, its members from the statements after
// the i-th (1-based) up to "End Enum", each a Long constant also added to `consts`.
void EnumAdd(const Str& T, const std::vector<Str>& statements, long i, basic::Collection<clsEnumPtr>& enums,
             basic::Collection<clsConstantPtr>& consts, const Str& moduleName, bool isPrivate, const Str& projectName);
// A Type block: the type named by the first word of T, with no members.
void TypeAdd(const Str& T, basic::Collection<clsTypePtr>& types, const Str& moduleName, bool isPrivate,
             const Str& projectName);
// A Declare statement (T begins with Sub or Function, after an optional PtrSafe): a procedure
// record under project "." name.
void DeclaredProcAdd(const Str& T, basic::Collection<C4_ProcDefPtr>& procs, const Str& moduleName, bool fPublic,
                     const Str& projectName);

}  // namespace quillet::source
