#pragma once
// The model of a property still to be written: a private variable holding the value and the
// Property Get, Let and Set procedures round it. The data type decides the text in four ways
// (base, enum or record, variant, object); nothing touches the editor before BuildPropCodeLines.

#include <memory>

#include "core/context.h"
#include "source/record_collections.h"

namespace quillet::generators {

using basic::Str;

class clsProperty {
public:
    explicit clsProperty(core::Context& ctx) : ctx_(&ctx) {}

    Str Name;
    Str ID;              // key in colProperties
    Str datatype;        // the type's name; may be empty
    long DataType2 = 0;  // ItemData of the type: 10003 an enum, 10004 a user-defined type
    Str AccessibleType;  // "Public", "Private", "Friend" or ""
    bool GetPart = true;
    bool SetPart = true;
    Str Description;
    bool IncludeErrorHandler = false;
    Str ErrorHandlerFile;
    Str ErrorHandler;    // the template's text
    bool IsStatic = false;
    bool IncludeHourglass = false;
    bool IncludeHeader = false;
    Str ModuleName;
    bool ModuleNameConstant = false;
    bool ProcedureNameConstant = false;

    // The Get (with vblnGet) and the Let, Set or both (with vblnSet) as the type asks, each
    // ending in a blank line. A failure is reported and the text so far stands.
    void PropertyProceduresCodeCreate(bool vblnGet, bool vblnSet, Str& rstrCode);
    // The private variable: the module prefix, the type prefix unless the name carries one
    // ("var" for a type the prefix standards do not know), the name.
    void PrivPropVarName(const Str& rstrPropType, const Str& rstrPropName, Str& name);
    Str PrivPropVarName() { Str name; PrivPropVarName(datatype, Name, name); return name; }
    // "Private " and the variable, with " As " and the type when there is one.
    Str Declaration();

private:
    enum class Kind { Base, EnumOrRecord, Variant, Object };
    Kind kind() const;
    Str head() const;
    Str extras();
    // Ends a procedure's text and merges the error handler and hourglass into it.
    void finish(Str& procedure);
    void PropertyGetBaseType(Str& code, const Str& var);
    void PropertyLetBaseType(Str& code, const Str& var);
    void PropertyGetObject(Str& code, const Str& var);
    void PropertySetObject(Str& code, const Str& var);
    void PropertyGetVariant(Str& code, const Str& var);
    void CodeFragmentsAdd(Str& rstrCode);
    Str Indent();

    core::Context* ctx_;
};

using clsPropertyPtr = std::shared_ptr<clsProperty>;

// The properties of a class under construction, each under its name and a random number (its ID).
using colProperties = source::RandomKeyedCollection<clsProperty, &clsProperty::ID>;

// Places a property in its module (ModuleName): the declaration behind the module's
// declarations; the procedures at the end of the module (blnToEndOfModule), or behind the
// procedure at the caret when that module's pane has one, or else right behind the declaration.
// True when it has inserted.
bool BuildPropCodeLines(core::Context& ctx, clsProperty& rProperty, bool blnToEndOfModule);

}  // namespace quillet::generators
