// The return types, argument texts and default values of library procedures.

#include "basic/strings.h"
#include "source/literals.h"
#include "typelib/cls_scan_tli.h"

namespace quillet::typelib {

namespace {

constexpr int kMaxAliasSteps = 64;
constexpr int kArrayBits = VT_ARRAY | VT_VECTOR;

// A type info's name, with its library's name in front when it lies in another library;
// "Unknown" without one.
Str typeInfoName(const TypeInfoPtr& info, const Str& libraryName) {
    if (!info) return u"Unknown";
    Str own = info->LibraryName();
    return basic::StrComp(own, libraryName, basic::Compare::Text) == 0 ? info->Name() : own + u"." + info->Name();
}

// Follows aliases until the kind is no longer an alias; an error, a plain target or a loop
// stops at the last type info reached.
TypeInfoPtr followAliases(TypeInfoPtr info) {
    for (int step = 0; info && info->TypeKind() == TKIND_ALIAS && step < kMaxAliasSteps; ++step) {
        try {
            TypeInfoPtr next = info->AliasTarget().TypeInfo;
            if (!next) break;
            info = next;
        } catch (const TypeLibError&) {
            break;
        }
    }
    return info;
}

struct ArgumentText {
    Str longForm, shortForm, type, defaultValue;
    bool byVal = false, isArray = false, isEnum = false;
};

// The part of a parameter between the brackets: ByVal, the name, the type.
ArgumentText argumentOf(const ParameterInfo& p, const Str& libraryName, bool paramArray) {
    ArgumentText a;
    const VarTypeInfo& type = p.Type;
    a.isArray = (type.VarType & kArrayBits) != 0;
    if (!type.IsUserDefined()) {
        a.byVal = type.PointerLevel == 0 && !paramArray;  // a ParamArray is never ByVal
        Str typeName = TypeNameOf(type);
        if (a.isArray) typeName = basic::Left(typeName, basic::Len(typeName) - 2);
        a.type = typeName;
        Str prefix = a.byVal ? u"ByVal " : u"";
        if (type.VarType == VT_VARIANT) {
            a.longForm = prefix + p.Name;
        } else if (a.isArray) {
            a.longForm = prefix + p.Name + u"() As " + typeName;
        } else {
            a.longForm = prefix + p.Name + u" As " + typeName;
        }
        a.shortForm = a.isArray ? p.Name + u"()" : p.Name;
        return a;
    }
    TypeInfoPtr info = followAliases(type.TypeInfo);
    int kind = info ? info->TypeKind() : -1;
    switch (kind) {
        case TKIND_ENUM: a.byVal = type.PointerLevel == 0; a.isEnum = true; break;
        case TKIND_RECORD: a.byVal = false; break;
        case TKIND_INTERFACE: case TKIND_DISPATCH: case TKIND_COCLASS: a.byVal = type.PointerLevel == 1; break;
        default: a.byVal = type.PointerLevel == 0; break;
    }
    a.type = typeInfoName(info, libraryName);
    a.longForm = Str(a.byVal ? u"ByVal " : u"") + p.Name + (a.isArray ? u"()" : u"") + u" As " + a.type;
    a.shortForm = a.isArray ? p.Name + u"()" : p.Name;
    return a;
}

// The argument as a Basic signature would write it, for the argument record.
Str basicPiece(const ArgumentText& a, const ParameterInfo& p, bool optional, bool paramArray) {
    Str piece = optional && !paramArray ? u"Optional " : u"";
    if (a.byVal && !paramArray) piece += u"ByVal ";
    if (paramArray) piece += u"ParamArray ";
    piece += p.Name + (a.isArray || paramArray ? u"()" : u"") + u" As " + a.type;
    if (!a.defaultValue.empty()) piece += u" = " + a.defaultValue;
    return piece;
}

}  // namespace

Str clsScanTLI::GetReturnType(const MemberInfo& member, const Str& libraryName) {
    const VarTypeInfo& type = member.ReturnType;
    if (type.IsUserDefined()) return typeInfoName(type.TypeInfo, libraryName);
    int vt = type.VarType;
    if (vt == VT_VARIANT || vt == VT_VOID || vt == VT_HRESULT) return {};
    Str name = TypeNameOf(type);
    if (vt & kArrayBits) name = basic::Left(name, basic::Len(name) - 2);
    return name;
}

Str clsScanTLI::ProduceDefaultValue(const basic::Variant& value, const VarTypeInfo& type) {
    if (basic::isEmpty(value)) return {};
    if (type.IsUserDefined()) {
        TypeInfoPtr info = followAliases(type.TypeInfo);
        if (info && info->TypeKind() == TKIND_ENUM) {
            try {
                long long number = basic::CLng(value);
                for (const MemberInfo& member : info->Members())
                    if (!basic::isEmpty(member.Value) && basic::CLng(member.Value) == number) return member.Name;
                return basic::CStr(value);
            } catch (...) {
                return basic::CStr(value);
            }
        }
    }
    return source::LiteralFormat(value);
}

std::shared_ptr<source::C4_ProcArguments> clsScanTLI::ParamsGet(const MemberInfo& member, const Str& libraryName) {
    auto arguments = std::make_shared<source::C4_ProcArguments>();
    Str longText;
    struct Made {
        source::C4_ProcArgumentPtr argument;
        Str shortForm;  // without brackets
        bool bracket;
    };
    std::vector<Made> made;
    bool varArgs = member.OptionalCount == -1;
    for (std::size_t i = 0; i < member.Parameters.size(); ++i) {
        const ParameterInfo& p = member.Parameters[i];
        bool paramArray = varArgs && i + 1 == member.Parameters.size();
        bool bracket = p.Optional() || p.Default() || paramArray;
        if (i > 0) longText += u", ";
        if (bracket) longText += paramArray ? u"[ParamArray " : u"[";
        ArgumentText a = argumentOf(p, libraryName, paramArray);
        longText += a.longForm;
        if (p.Default()) {
            a.defaultValue = ProduceDefaultValue(p.DefaultValue, p.Type);
            if (!a.defaultValue.empty()) longText += u" = " + a.defaultValue;
        }
        if (bracket) longText += u"]";
        auto argument = std::make_shared<source::C4_ProcArgument>();
        argument->init(basicPiece(a, p, bracket, paramArray));
        argument->IsOptional = bracket && !paramArray;
        argument->IsParamArray = paramArray;
        argument->IsArray = a.isArray || paramArray;
        argument->IsEnum = a.isEnum;
        made.push_back({argument, a.shortForm, bracket});
    }
    // The record takes its long text from a signature's parentheses and makes its short text from
    // its items (each name, in brackets when optional): both get the library's texts that way.
    arguments->init(u"(" + longText + u")");
    arguments->Items = {};
    for (const Made& m : made) arguments->Add(m.argument);
    std::vector<std::pair<Str, bool>> kept;
    for (const Made& m : made) {
        kept.emplace_back(m.argument->Name, m.argument->IsOptional);
        m.argument->Name = m.shortForm;
        m.argument->IsOptional = m.bracket;
    }
    arguments->init(u"");
    for (std::size_t i = 0; i < made.size(); ++i) {
        made[i].argument->Name = kept[i].first;
        made[i].argument->IsOptional = kept[i].second;
    }
    return arguments;
}

}  // namespace quillet::typelib
