#pragma once
// The lists the builders share: modules, the type vocabulary, comma lists of types, and the
// small look-ups over list controls.

#include "dialogs/control.h"
#include "source/code_env.h"

namespace quillet::source {

// The special entry of an optional choice.
inline constexpr char16_t kNone[] = u"(none)";

// The first entry whose text equals `text` ignoring case, -1 when none (the list controls'
// exact find).
long FindInList(const dialogs::Control& list, const Str& text);

// qltModulesList(combo, mode, module, blnNewModule, blnNewClass): fills a module list. Mode 0 all
// components, 1 the standard modules and the active one, 2 all but standard modules; a fixed
// module gives just that entry. "<New Module>" and "<New Class Module>" come first when asked.
// The active module is selected, else the first entry.
void qltModulesList(CodeEnv& env, dialogs::Control& combo, long mode, const Str& module = {},
                    bool blnNewModule = false, bool blnNewClass = false);

// DataTypeList(combo, blnNone, type, blnNoBasic, blnNoObjects, blnClear): the type vocabulary
// with the kind codes in ItemData: "(none)", the built-in value types, then (sorted) Variant,
// Object, Collection, the project's classes and the libraries' classes, then the enums and
// user types of the scan. `type` is selected, else the first entry.
void DataTypeList(CodeEnv& env, dialogs::Control& combo, bool blnNone, const Str& type, bool blnNoBasic = false,
                  bool blnNoObjects = false, bool blnClear = true);

// AddTypeItem(combo, list): each entry of a comma list (brackets around it allowed) into the
// combo; the first is selected.
void AddTypeItem(dialogs::Control& combo, const Str& list);

// The names of the active project's components that are not standard modules.
std::vector<Str> ClassModulesList(host::VBE& vbe);

// False for the built-in value types, Variant, an empty type, and a type the two lookups know
// as an enum or a user type; True otherwise.
bool TypeIsObject(const Str& type, const std::function<bool(const Str&)>& isEnum,
                  const std::function<bool(const Str&)>& isType);
template <class E, class T>
bool TypeIsObject(const Str& type, const E& enums, const T& types) {
    std::function<bool(const Str&)> isEnum = [&](const Str& n) { return enums.Exists(n); };
    std::function<bool(const Str&)> isType = [&](const Str& n) { return types.Exists(n); };
    return TypeIsObject(type, isEnum, isType);
}

// The VarType of a built-in value type (2 Integer ... 17 Byte), 0 for another name.
long VarTypeOf(const Str& type);

// The text with every character that cannot stand in a Basic name removed.
Str MakeValidName(const Str& text);

// Removes the entries whose text is Like "*" & text & "*" (ignoring case), or, with itemData
// not 0, whose ItemData equals it.
void ListFilter(dialogs::Control& list, const Str& text, long itemData = 0);

// Adds each name not in the list yet (sorted first with blnSorted), with `itemData`.
void ListFromNames(dialogs::Control& list, std::vector<Str> names, long itemData = 0, bool blnSorted = true);

}  // namespace quillet::source
