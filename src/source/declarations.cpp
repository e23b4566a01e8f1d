#include "source/declarations.h"

#include "source/statements.h"

namespace quillet::source {

using basic::Left;
using basic::Len;
using basic::Mid;
using basic::Trim;

namespace {

// Cuts the name off the front of a declaration item; `rest` becomes what follows, trimmed.
Str takeName(Str& rest) {
    size_t end = nameEnd(rest);
    Str name = Trim(rest.substr(0, end));
    rest = end < rest.size() ? Trim(rest.substr(end)) : Str();
    return name;
}

// Cuts a type-suffix character off the name and gives its type; "" when there is none.
Str takeSuffixType(Str& name) {
    if (name.empty() || !IsTypeSuffix(name.back())) return {};
    Str type = TypeCharToName(name.substr(name.size() - 1));
    name.pop_back();
    return type;
}

// The value of a constant: up to the closing quote of a string, or up to a comment.
Str valueOf(const Str& rest) {
    bool inQuotes = false;
    for (size_t i = 0; i < rest.size(); ++i) {
        if (rest[i] == u'"') {
            inQuotes = !inQuotes;
            if (!inQuotes) return Trim(rest.substr(0, i + 1));
        } else if (rest[i] == u'\'' && !inQuotes) {
            return Trim(rest.substr(0, i));
        }
    }
    return rest;
}

}  // namespace

void clsVariable::init(const Str& vstrDef, const ErrorReporter& report) {
    reportedStep(report, u"clsVariable.Init", [&] {
        Str rest = vstrDef;
        if (Len(Trim(rest)) < 1) return;
        Name = takeName(rest);
        if (!rest.empty() && rest[0] == u'(') {
            IsArray = true;
            if (Len(rest) >= 2 && rest[1] == u')') {
                rest = Len(rest) > 2 ? Trim(Mid(rest, 3)) : Str();
            } else {
                long p = basic::InStr(rest, u")");
                Bounds_ = Left(rest, p);
                rest = Trim(Mid(rest, p + 1));
            }
        }
        Type_.clear();
        if (rest.empty()) {
            Type_ = u"Variant";
        } else {
            Str text = Trim(Mid(rest, 3));
            size_t stop = text.find_first_of(u"='");
            Type_ = stop == Str::npos ? text : text.substr(0, stop);
        }
        Type_ = Trim(Type_);
        Str suffixType = takeSuffixType(Name);
        if (!suffixType.empty()) Type_ = suffixType;
        if (Type_.empty()) Type_ = u"Variant";
    });
}

void clsConstant::init(const Str& vstrDef, const ErrorReporter& report) {
    reportedStep(report, u"clsConstant.Init", [&] {
        Str rest = vstrDef;
        if (Len(Trim(rest)) < 1) return;
        Name = takeName(rest);
        if (rest.empty()) {
            Type_ = u"Variant";
            return;
        }
        if (rest[0] == u'=') {
            Type_ = u"Variant";
            rest = Trim(Mid(rest, 2));
        } else {
            rest = Trim(Mid(rest, 3));
            long p = basic::InStr(rest, u"=");
            Type_ = p > 0 ? Left(rest, p - 1) : rest;
            rest = p > 0 && Len(rest) > p + 1 ? Trim(Mid(rest, p + 1)) : Str();
        }
        Type_ = Trim(Type_);
        if (!rest.empty()) Value = valueOf(rest);
        Str suffixType = takeSuffixType(Name);
        if (!suffixType.empty()) Type_ = suffixType;
        if (Type_.empty()) Type_ = u"String";
    });
}

Str clsArgument::ArgumentString() const {
    if (IsParamArray) return u"ParamArray " + Name + u"()";
    Str text;
    if (IsOptional) text += u"Optional ";
    if (IsByVal) text += u"ByVal ";
    text += Name;
    if (IsArray) text += u"()";
    if (!ValueType.empty()) text += u" As " + ValueType;
    if (IsOptional && !DefaultValue.empty()) text += u" = " + DefaultValue;
    return text;
}

}  // namespace quillet::source
