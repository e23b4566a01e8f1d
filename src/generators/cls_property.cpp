// The property model's text.

#include "generators/cls_property.h"

#include <memory>

#include "core/caret.h"
#include "core/err_handler.h"
#include "fragments/placeholders.h"
#include "generators/cls_procedure.h"
#include "settings/ini_vars.h"
#include "source/code_env.h"
#include "source/prefixes.h"

namespace quillet::generators {

using basic::Compare;

namespace {

constexpr char16_t kCrLf[] = u"\r\n";

bool is(const Str& a, const char16_t* b) { return basic::StrComp(a, b, Compare::Text) == 0; }

bool isBaseType(const Str& type) {
    for (const char16_t* base :
         {u"Byte", u"Boolean", u"Integer", u"Long", u"Single", u"Double", u"Currency", u"Date", u"String"})
        if (is(type, base)) return true;
    return false;
}

// " As " and the type, nothing without one.
Str asType(const Str& type) { return type.empty() ? Str() : u" As " + type; }

}  // namespace

Str clsProperty::Indent() { return core::TabSpaces(*ctx_); }

clsProperty::Kind clsProperty::kind() const {
    if (isBaseType(datatype)) return Kind::Base;
    if (DataType2 == source::KindEnum || DataType2 == source::KindType) return Kind::EnumOrRecord;
    if (datatype.empty() || is(datatype, u"Variant")) return Kind::Variant;
    return Kind::Object;
}

void clsProperty::PrivPropVarName(const Str& rstrPropType, const Str& rstrPropName, Str& name) {
    Str prefix;
    if (source::WordHasTypePrefix(ctx_->Prefixes, rstrPropName, rstrPropType, prefix, false))
        prefix.clear();
    else if (prefix.empty())
        prefix = u"var";
    name = settings::IniText(*ctx_->IniSettings, settings::iiPrefixModule) + prefix + rstrPropName;
}

Str clsProperty::Declaration() { return u"Private " + PrivPropVarName() + asType(datatype); }

// The opening words before "Property": a Public and Static property gets two blanks in a row,
// which the editor tidies on insertion.
Str clsProperty::head() const {
    Str r;
    if (!AccessibleType.empty()) r += AccessibleType + u" ";
    if (IsStatic) r += u" Static ";
    return r;
}

Str clsProperty::extras() {
    Str r;
    if (IncludeHeader) r += fragments::ExpandHeader(*ctx_, fragments::kProcedureHeader, Name, Description);
    if (ProcedureNameConstant) {
        Str constant = settings::IniText(*ctx_->IniSettings, settings::iiProcedureNameConstant);
        r += Indent() + u"Const" + u" " + constant + u" = \"" + Name + u"\"" + kCrLf;
    }
    return r;
}

void clsProperty::finish(Str& procedure) {
    procedure += u"\r\nEnd Property\r\n\r\n";
    if (!IncludeErrorHandler && !IncludeHourglass) return;
    CodeFragmentsAdd(procedure);
    // The merge gives the procedure back without the blank line behind it; the next one keeps
    // its distance.
    if (basic::Right(procedure, 4) != u"\r\n\r\n") procedure += kCrLf;
}

void clsProperty::PropertyGetBaseType(Str& code, const Str& var) {
    code = head() + u"Property Get " + Name + u"()" + asType(datatype) + kCrLf + extras();
    code += Indent() + Name + u" = " + var;
    finish(code);
}

void clsProperty::PropertyGetObject(Str& code, const Str& var) {
    code = head() + u"Property Get " + Name + u"()" + asType(datatype) + kCrLf + extras();
    code += Indent() + u"Set " + Name + u" = " + var;
    finish(code);
}

void clsProperty::PropertyGetVariant(Str& code, const Str& var) {
    Str i = Indent();
    code = head() + u"Property Get " + Name + u"()" + asType(datatype) + kCrLf + extras();
    code += i + u"If IsObject(" + var + u") Then" + kCrLf;
    code += i + i + u"Set " + Name + u" = " + var + kCrLf;
    code += i + u"Else" + kCrLf;
    code += i + i + Name + u" = " + var + kCrLf;
    code += i + u"End if" + kCrLf;
    finish(code);
}

void clsProperty::PropertyLetBaseType(Str& code, const Str& var) {
    code = head() + u"Property Let " + Name + u"(rData" + asType(datatype) + u")" + kCrLf + extras();
    code += Indent() + var + u" = rData";
    finish(code);
}

void clsProperty::PropertySetObject(Str& code, const Str& var) {
    code = head() + u"Property Set " + Name + u"(rData" + asType(datatype) + u")" + kCrLf + extras();
    code += Indent() + u"Set " + var + u" = rData";
    finish(code);
}

void clsProperty::PropertyProceduresCodeCreate(bool vblnGet, bool vblnSet, Str& rstrCode) {
    rstrCode.clear();
    core::guarded(*ctx_, u"clsProperty.PropertyProceduresCodeCreate", [&] {
        Str v = PrivPropVarName();
        Kind k = kind();
        Str procedure;
        if (vblnGet) {
            if (k == Kind::Object)
                PropertyGetObject(procedure, v);
            else if (k == Kind::Variant)
                PropertyGetVariant(procedure, v);
            else
                PropertyGetBaseType(procedure, v);
            rstrCode += procedure;
        }
        if (!vblnSet) return;
        if (k != Kind::Object) {
            PropertyLetBaseType(procedure, v);
            rstrCode += procedure;
        }
        if (k == Kind::Object || k == Kind::Variant) {
            PropertySetObject(procedure, v);
            rstrCode += procedure;
        }
    });
}

void clsProperty::CodeFragmentsAdd(Str& rstrCode) {
    core::guarded(*ctx_, u"clsProperty.CodeFragmentsAdd", [&] {
        // On the heap: held by value inside this lambda, mingw's GCC 12 reports a false
        // "maybe-uninitialized" on its strings.
        auto procedure = std::make_unique<clsProcedure>(*ctx_);
        procedure->Name = Name;
        procedure->ModuleName = ModuleName;
        procedure->ModuleNameConstant = ModuleNameConstant;
        procedure->ProcedureNameConstant = ProcedureNameConstant;
        procedure->ErrorHandler = ErrorHandler;
        procedure->ProcType = u"Property";
        if (IncludeErrorHandler) procedure->AddErrorHandler(rstrCode);
        if (IncludeHourglass) procedure->AddHourglass(rstrCode);
    });
}

}  // namespace quillet::generators
