#pragma once
// The arguments of a procedure that stands in source text, parsed from its signature.

#include <memory>

#include "basic/collection.h"
#include "basic/strings.h"

namespace quillet::source {

using basic::Str;

// One argument, parsed from its text ("Optional ByVal n As Long = 5"). Keywords compare binary.
class C4_ProcArgument {
public:
    void init(const Str& vstrArgDef);

    const Str& ArgDef() const { return ArgDef_; }
    const Str& PassedBy() const { return PassedBy_; }

    bool IsOptional = false;
    bool IsPassedByVal = false;
    bool IsParamArray = false;
    Str Name;  // as written: a type-suffix character stays part of it
    bool IsArray = false;
    Str Type_;  // "Variant" when none is written
    Str DefaultValue;  // the text behind "=", quotes kept
    bool IsEnum = false;  // never set by parsing

private:
    Str ArgDef_;
    Str PassedBy_;
};

using C4_ProcArgumentPtr = std::shared_ptr<C4_ProcArgument>;

// The arguments of one signature, in order, keyed by Name (a second argument of one name is
// passed over).
class C4_ProcArguments {
public:
    // Takes the text between the first "(" and the last ")" outside quotes, when it has at least
    // two characters, and parses each comma-separated piece.
    void init(const Str& vstrProcDef);

    long Count() const { return Items.Count(); }
    // Adds under the member's Name; a name that is taken is passed over.
    void Add(const C4_ProcArgumentPtr& robjMember);

    const Str& StringOfArguments() const { return StringOfArguments_; }
    // The names joined by ", ", an optional one in square brackets: "a, [b]".
    const Str& ShortStringOfArguments() const { return ShortStringOfArguments_; }

    basic::Collection<C4_ProcArgumentPtr> Items;

private:
    static std::vector<Str> ArgumentsSplit(const Str& text);

    Str StringOfArguments_;
    Str ShortStringOfArguments_;
};

}  // namespace quillet::source
