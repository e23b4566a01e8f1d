#pragma once
// Whether a new name can be used: its syntax, the keywords, and the names already taken in the
// project. The checks raise their own error numbers; CheckNewNameIsOK asks the user what to do.

#include <functional>
#include <vector>

#include "basic/strings.h"
#include "host/objects.h"
#include "platform/platform.h"

namespace quillet::source {

using basic::Str;

// The numbers the name checks raise (&H80044394 to &H80044397, as Basic's signed Long).
inline constexpr long kNameInvalid = static_cast<long>(static_cast<int>(0x80044394u));
inline constexpr long kNameUsed = static_cast<long>(static_cast<int>(0x80044395u));
inline constexpr long kNameIsKeyword = static_cast<long>(static_cast<int>(0x80044396u));
inline constexpr long kNameEmpty = static_cast<long>(static_cast<int>(0x80044397u));

// The texts of the name errors and of the question the handler asks.
inline constexpr char16_t kNameInvalidText[] = u"Name is invalid.";
inline constexpr char16_t kNameUsedText[] = u"Name is already used.";
inline constexpr char16_t kNameIsKeywordText[] = u"Name coincides with VB keyword.";
inline constexpr char16_t kCompileErrorText[] = u"Using it again will give a compile error.";
inline constexpr char16_t kUseAnywayText[] = u"To use this name choose Yes, to change name select No.";
inline constexpr char16_t kNameMissingText[] = u"Name is missing.";

// A place a name can be taken in: answers whether the name is a key there. Any of the system's
// collections can serve (see lookupIn); an array of collections is one entry per collection.
using NameLookup = std::function<bool(const Str& key)>;
using NameLookups = std::vector<NameLookup>;

template <class C>
NameLookup lookupIn(const C& collection) {
    return [&collection](const Str& key) { return collection.Exists(key); };
}

// Empty: kNameEmpty; 256 characters or more, a first character that is no letter, or a later one
// that is neither letter, digit nor "_": kNameInvalid.
void NameSyntaxCheck(const Str& name);
// One of the keywords, ignoring case: kNameIsKeyword.
void NameKeywordCheck(const Str& name, const std::vector<Str>& keywords);
// The project's name (with blnCheckProject), a key of one of the lookups, or (with
// blnCheckComponents) a component's name: kNameUsed. Works on the active project.
void NameUniqueCheck(host::VBE& vbe, const Str& name, bool blnCheckProject, bool blnCheckComponents,
                     const NameLookups& collections);

// What the checks need of the add-in.
struct NameCheckEnv {
    host::VBE& vbe;
    platform::Platform& platform;
    const std::vector<Str>& keywords;
};

// Runs the three checks in turn. A failed one asks (Yes, No, Cancel): Yes goes on with the next
// check, No or Cancel is returned (7 or 2). An empty name says "Name is missing." and returns
// kNameEmpty. 0 when the name may be used.
long CheckNewNameIsOK(NameCheckEnv env, const Str& name, bool blnCheckProject, bool blnCheckComponents,
                      const NameLookups& collections);

// The syntax and keyword checks, then the lookups under "VBA." & name when blnVBA, and under the
// name itself. Raises the check's number; returns the name when it passes.
Str ValidateVarName(const Str& name, bool blnVBA, const NameLookups& collections, const std::vector<Str>& keywords);

}  // namespace quillet::source
