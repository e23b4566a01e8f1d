#pragma once
// The text of a whole Enum or Type block, its placing in a module's declarations and its record
// in the project's lists; the one line added to a block that exists.

#include "builders/declaration_context.h"
#include "core/context.h"

namespace quillet::builders {

using basic::Str;

// The kind a builder of blocks opens for: 10004 when the first argument is "Type", else 10003.
long BlockKindOf(const std::vector<Str>& args);

// The item (or name) as written: unchanged when the prefix is empty or the text already begins
// with it (any case), else prefix + text.
Str WithPrefix(const Str& text, const Str& prefix);

// The block: [access word + " "] + "Enum "/"Type " + prefixed name, one indented line for each
// item line that is not blank (the first with " = " + startValue when one is given), then
// "End Enum"/"End Type". No items make one line of the indent unit alone.
Str TypeEnumText(const Str& name, bool vfEnum, const Str& items, const Str& startValue, const Str& prefix,
                 const Str& accessWord, const Str& indent);

// TypeEnumCodeInsert(name, vfEnum, items, module, startValue, prefix, accessWord): writes the block
// into the declarations of the module ("<New Module>" and an unknown name ask first) and records
// it in the project's enums or types. True when written.
bool TypeEnumCodeInsert(core::Context& ctx, const Str& name, bool vfEnum, const Str& items, const Str& module,
                        const Str& startValue, const Str& prefix, const Str& accessWord);

// EnumItemAdd(vstrText, vstrListName, vfEnum): one more line (indented `vstrText`) in the block of
// that name, found in the module's lists, then in the project's. Inside that very block at the
// caret it takes the caret's blank line, else it goes in before the "End" line. A name the block
// has already is refused ("Item exist."). True when written.
bool EnumItemAdd(core::Context& ctx, const DeclarationLists& lists, const Str& vstrText, const Str& vstrListName,
                 bool vfEnum);

}  // namespace quillet::builders
