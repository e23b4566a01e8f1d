#pragma once
// What the library scan needs of a COM type library, as an abstract reader: open a library file,
// list its searchable items, and read type infos with their members, parameters and types. The
// portable reader of the MSFT format implements it; a reader over the system's own type-library
// service can implement it too.
//
// Every operation that reads the file may throw TypeLibError; nothing else is thrown.

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "basic/strings.h"
#include "basic/variant.h"

namespace quillet::typelib {

using basic::Str;

// A library that cannot be read: a missing or damaged file, a type that cannot be resolved.
class TypeLibError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Variant type numbers and flags as COM spells them.
enum VarTypeCode : int {
    VT_EMPTY = 0, VT_NULL = 1, VT_I2 = 2, VT_I4 = 3, VT_R4 = 4, VT_R8 = 5, VT_CY = 6, VT_DATE = 7,
    VT_BSTR = 8, VT_DISPATCH = 9, VT_ERROR = 10, VT_BOOL = 11, VT_VARIANT = 12, VT_UNKNOWN = 13,
    VT_DECIMAL = 14, VT_I1 = 16, VT_UI1 = 17, VT_UI2 = 18, VT_UI4 = 19, VT_I8 = 20, VT_UI8 = 21,
    VT_INT = 22, VT_UINT = 23, VT_VOID = 24, VT_HRESULT = 25, VT_PTR = 26, VT_SAFEARRAY = 27,
    VT_CARRAY = 28, VT_USERDEFINED = 29, VT_LPSTR = 30, VT_LPWSTR = 31,
    VT_VECTOR = 0x1000, VT_ARRAY = 0x2000, VT_BYREF = 0x4000,
};

// Type kinds of a type info.
enum TypeKindCode : int {
    TKIND_ENUM = 0, TKIND_RECORD = 1, TKIND_MODULE = 2, TKIND_INTERFACE = 3, TKIND_DISPATCH = 4,
    TKIND_COCLASS = 5, TKIND_ALIAS = 6, TKIND_UNION = 7,
};

// Kinds of a searchable item.
enum SearchKind : int {
    kSearchClass = 1, kSearchConstants = 4, kSearchDeclarations = 8, kSearchAppObject = 16,
    kSearchRecord = 32, kSearchAlias = 64, kSearchUnion = 128,
};

// Parameter flags.
enum ParamFlag : int {
    PARAMFLAG_FIN = 1, PARAMFLAG_FOUT = 2, PARAMFLAG_FLCID = 4, PARAMFLAG_FRETVAL = 8,
    PARAMFLAG_FOPT = 0x10, PARAMFLAG_FHASDEFAULT = 0x20,
};

// Type flags of a type info.
enum TypeFlag : int {
    TYPEFLAG_FAPPOBJECT = 0x1, TYPEFLAG_FHIDDEN = 0x10, TYPEFLAG_FDUAL = 0x40, TYPEFLAG_FRESTRICTED = 0x200,
};

class TypeInfo;
using TypeInfoPtr = std::shared_ptr<TypeInfo>;

// The type of a return value, parameter, variable or alias, with pointers and arrays unwrapped.
struct VarTypeInfo {
    // The innermost type's variant type; 0 for a user-defined type (see TypeInfo); VT_ARRAY added
    // for a safe array or a fixed array.
    int VarType = VT_EMPTY;
    int PointerLevel = 0;
    // For a user-defined type: its type info, none when it could not be resolved (then
    // ResolveError says why).
    TypeInfoPtr TypeInfo;
    std::string ResolveError;
    bool IsUserDefined() const { return (VarType & ~(VT_ARRAY | VT_BYREF)) == VT_EMPTY; }
    bool IsArray() const { return (VarType & (VT_ARRAY | VT_VECTOR)) != 0; }
};

// The Basic name of a plain variant type ("Long", "String", "Object"); an array's element name with
// "()" behind it; "" for a user-defined type.
Str TypeNameOf(const VarTypeInfo& type);

struct ParameterInfo {
    Str Name;
    int Flags = 0;  // ParamFlag bits
    bool Optional() const { return (Flags & PARAMFLAG_FOPT) != 0; }
    bool Default() const { return (Flags & PARAMFLAG_FHASDEFAULT) != 0; }
    basic::Variant DefaultValue;  // when Default()
    VarTypeInfo Type;
};

// A function, property accessor, variable or constant of a type info. Functions are given as
// automation sees them: an [out, retval] parameter is the return type, an [lcid] one is left out.
struct MemberInfo {
    Str Name;
    int InvokeKind = 0;  // 1 function, 2 property get, 4 property let, 8 property set; 0 a variable
    long MemberId = 0;
    Str HelpString;
    long HelpContext = 0;
    int Flags = 0;  // function or variable flags
    VarTypeInfo ReturnType;  // of a function; the type of a variable or constant
    std::vector<ParameterInfo> Parameters;
    int OptionalCount = 0;  // -1 for a variable argument list
    bool IsConstant = false;
    basic::Variant Value;  // of a constant
};

class TypeInfo {
public:
    virtual ~TypeInfo() = default;
    virtual Str Name() const = 0;
    virtual int TypeKind() const = 0;
    virtual int TypeFlags() const = 0;
    virtual long Number() const = 0;  // its index in its library
    virtual Str HelpString() const = 0;
    virtual long HelpContext() const = 0;
    virtual Str Guid() const = 0;
    // The name of the library the type info belongs to.
    virtual Str LibraryName() const = 0;
    // An alias's target type.
    virtual VarTypeInfo AliasTarget() = 0;
    // Functions then variables. An interface's include those it inherits (but IUnknown's and
    // IDispatch's); a coclass gives those of its default interface.
    virtual std::vector<MemberInfo> Members() = 0;
};

struct SearchItem {
    Str Name;
    int Kind = 0;  // SearchKind
    long TypeInfoNumber = 0;
};

class TypeLibrary {
public:
    virtual ~TypeLibrary() = default;
    virtual Str Name() const = 0;
    virtual Str HelpString() const = 0;
    virtual Str HelpFile() const = 0;
    virtual long HelpContext() const = 0;
    virtual Str Guid() const = 0;
    virtual int MajorVersion() const = 0;
    virtual int MinorVersion() const = 0;
    virtual std::string Path() const = 0;
    // The name given to the item that holds the application object's members (its own name when
    // empty).
    virtual void AppObjString(const Str& name) = 0;
    // The default search: the visible enums (constants), modules (declarations), the application
    // object, classes, records, aliases and unions, in the library's order.
    virtual std::vector<SearchItem> SearchItems() = 0;
    virtual long TypeInfoCount() const = 0;
    virtual TypeInfoPtr TypeInfoAt(long number) = 0;
};

using TypeLibraryPtr = std::shared_ptr<TypeLibrary>;

class TypeLibReader {
public:
    virtual ~TypeLibReader() = default;
    // Opens the library of a file: a .tlb or .olb, or a PE file's TYPELIB resource ("file.dll" for
    // the first, "file.dll\2" for the resource of that number).
    virtual TypeLibraryPtr Open(const std::string& path) = 0;
};

}  // namespace quillet::typelib
