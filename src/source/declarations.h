#pragma once
// The records of declarations that the scanners fill and the builders read and write: a
// variable, a constant, an enum, a user-defined type, a label, an argument of a procedure being
// built, and the containers of the Code Explorer's tree.

#include <memory>
#include <optional>

#include "basic/collection.h"
#include "basic/strings.h"
#include "source/errors.h"

namespace quillet::source {

using basic::Str;

// One variable: parsed from one item of a declaration, keywords and list already taken away
// ("x(1 To 3) As Long", "s$", "c As New Collection").
class clsVariable {
public:
    void init(const Str& vstrDef, const ErrorReporter& report = {});
    const Str& Bounds() const { return Bounds_; }

    Str Name;
    Str Type_;
    bool IsArray = false;
    Str ModuleName;

private:
    Str Bounds_;  // the text in the parentheses, parentheses included
};

// One constant ("A As Long = 1 ' one", "B$ = ""x'y"""), or a member of an enum.
class clsConstant {
public:
    void init(const Str& vstrDef, const ErrorReporter& report = {});

    const Str& EnumName() const { return EnumName_; }
    // Setting a non-empty name makes the constant an enum member.
    void EnumName(const Str& name) {
        EnumName_ = name;
        if (!name.empty()) EnumMember_ = true;
    }
    bool EnumMember() const { return EnumMember_; }

    Str Project;
    Str HelpStr;
    Str Name;
    Str Type_;
    Str Value;  // quotes kept
    Str ModuleName;

private:
    Str EnumName_;
    bool EnumMember_ = false;
};

using clsVariablePtr = std::shared_ptr<clsVariable>;
using clsConstantPtr = std::shared_ptr<clsConstant>;

// A keyed collection of records with Add (key optional: an empty key adds without one), Item,
// Count and Remove.
template <class T>
class RecordCollection {
public:
    void Add(const std::shared_ptr<T>& member, const Str& vstrKey = {}) {
        if (vstrKey.empty())
            Items.Add(member);
        else
            Items.Add(member, vstrKey);
    }
    std::shared_ptr<T>& Item(long index) { return Items.Item(index); }
    std::shared_ptr<T>& Item(const Str& key) { return Items.Item(key); }
    long Count() const { return Items.Count(); }
    void Remove(long index) { Items.Remove(index); }
    void Remove(const Str& key) { Items.Remove(key); }

    basic::Collection<std::shared_ptr<T>> Items;
};

class clsEnum : public RecordCollection<clsConstant> {
public:
    Str Project;
    Str Name;
    Str HelpStr;
    Str Module;
    bool IsPrivate = false;
};

class clsType : public RecordCollection<clsVariable> {
public:
    Str Project;
    Str Name;
    Str Module;
    bool IsPrivate = false;
};

using clsEnumPtr = std::shared_ptr<clsEnum>;
using clsTypePtr = std::shared_ptr<clsType>;

class clsLabel {
public:
    Str Name;
    bool HasReturn = false;
};

using clsLabelPtr = std::shared_ptr<clsLabel>;

// An argument of a procedure being built.
class clsArgument {
public:
    // Its text in a signature: "ParamArray v()" or "[Optional ][ByVal ]name[()][ As type][ = default]".
    Str ArgumentString() const;

    Str Name;
    Str ID;  // its key
    Str ValueType;
    bool IsByVal = false;
    bool IsArray = false;
    bool IsParamArray = false;
    bool IsOptional = false;
    Str DefaultValue;
    long Number = 0;  // 1-based position
};

using clsArgumentPtr = std::shared_ptr<clsArgument>;

// Containers of the Code Explorer's tree: a project owns its collection from the start; an item
// makes its own in ItemInit.
class clsItem;
using clsItemPtr = std::shared_ptr<clsItem>;

class clsProject {
public:
    basic::Collection<clsItemPtr> Items;
};

class clsItem {
public:
    void ItemInit() { Items.emplace(); }
    std::optional<basic::Collection<clsItemPtr>> Items;
};

}  // namespace quillet::source
