#pragma once
// Member attribute lines ("Attribute Foo.VB_Description = ..."): the editor stores them in the
// module right after the statement that declares the member, and hides them from the code
// pane. At load they are taken out of the code and kept with the statement they follow; at save
// they go back after the statement that now declares the same member, so they follow their
// member when code is inserted or deleted around it.

#include <vector>

#include "basic/strings.h"
#include "hosts/memory/components.h"

namespace quillet::hosts::files {

using basic::Str;

// What a logical line declares: its kind is a vbext_ProcKind (Sub, Function, Declare and
// Event are vbext_pk_Proc), memory::kVariableMember for module-level variables, and kNoMember
// for a statement that declares nothing.
constexpr long kNoMember = -100;

struct Declaration {
    long kind = kNoMember;
    std::vector<Str> names;  // the members it declares (one for a procedure, several for "Dim a, b")
    bool opensProcedure = false;  // a Sub, Function or Property header (whose body follows)
};

// The declaration of a logical line (its physical lines joined, without the continuations).
// A variable declaration only counts at module level, outside procedures.
Declaration declarationOf(const Str& logicalLine, bool atModuleLevel);

// "Attribute <name>.<...>": the member's name, or "" when the line is no member attribute.
Str memberAttributeName(const Str& line);

struct CodeLines {
    std::vector<Str> code;  // the visible lines
    std::vector<memory::MemberAttributes> memberAttributes;
};

// Takes the member attribute lines out of the code lines of a module file: the run of attribute
// lines right after a statement, each naming a member that statement declares. An attribute line
// anywhere else stays in the code, as it was.
CodeLines extractMemberAttributes(const std::vector<Str>& fileCode);
// The code lines with each group back after the first statement that declares its member with
// its kind; a group whose member is gone is dropped, as the editor drops it with the member.
std::vector<Str> insertMemberAttributes(const std::vector<Str>& code,
                                        const std::vector<memory::MemberAttributes>& groups);

}  // namespace quillet::hosts::files
