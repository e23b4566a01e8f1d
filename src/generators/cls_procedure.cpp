// The procedure model's text.

#include "generators/cls_procedure.h"

#include <vector>

#include "core/caret.h"
#include "core/err_handler.h"
#include "basic/vb_error.h"
#include "fragments/error_handler_code.h"
#include "fragments/markers.h"
#include "fragments/placeholders.h"
#include "generators/hourglass.h"
#include "settings/catalogue.h"
#include "settings/ini_vars.h"

namespace quillet::generators {

using basic::Compare;

namespace {

constexpr char16_t kCrLf[] = u"\r\n";

// The types whose variables a return line clears with Empty; any other is an object type.
bool isValueType(const Str& type) {
    static constexpr const char16_t* kValueTypes[] = {u"Byte",     u"Boolean", u"Integer", u"Long",   u"Single",
                                                      u"Double",   u"Currency", u"Date",   u"String", u"Variant"};
    if (type.empty()) return true;
    for (const char16_t* valueType : kValueTypes)
        if (basic::StrComp(type, valueType, Compare::Text) == 0) return true;
    return false;
}

// The arguments by Number (index 0 stands for Number 1); an empty place for a gap.
std::vector<source::clsArgumentPtr> byNumber(source::colArguments& arguments) {
    std::vector<source::clsArgumentPtr> ordered(static_cast<size_t>(arguments.Count()));
    for (long i = 1; i <= arguments.Count(); ++i) {
        const auto& argument = arguments.Item(i);
        if (argument->Number < 1 || argument->Number > arguments.Count())
            throw basic::VbError::standard(basic::err::SubscriptOutOfRange);
        ordered[static_cast<size_t>(argument->Number - 1)] = argument;
    }
    return ordered;
}

bool isProperty(const Str& procType) { return basic::StrComp(procType, u"Property", Compare::Text) == 0; }

}  // namespace

source::colArguments& clsProcedure::Arguments() {
    if (!Arguments_) Arguments_ = std::make_unique<source::colArguments>();
    return *Arguments_;
}

Str clsProcedure::Indent() { return core::TabSpaces(*ctx_); }

Str clsProcedure::GenerateCode() {
    if (!ProcContent_.empty()) return ProcContent_;
    Str r;
    core::guarded(*ctx_, u"clsProcedure.GenerateCode", [&] {
        if (!AccessibleType.empty()) r += AccessibleType + u" ";
        if (IsStatic) r += u"Static ";
        r += ProcType + u" ";
        if (isProperty(ProcType) && !PropertyType.empty()) r += PropertyType + u" ";
        r += Name + u"(";
        long n = basic::Len(r);
        if (Arguments().Count() >= 1) {
            Str arguments;
            GetArgString(n, arguments);
            r += arguments;
        }
        r += u")";
        if (!ReturnValueType.empty()) r += u" As " + ReturnValueType;
        ProcDefinition_ = r;
        r += kCrLf;
        if (IncludeComment) r += fragments::ExpandHeader(*ctx_, fragments::kProcedureHeader, Name, Description);
        if (ProcedureNameConstant) {
            Str constant = settings::IniText(*ctx_->IniSettings, settings::iiProcedureNameConstant);
            r += Indent() + u"Const" + u" " + constant + u" = \"" + Name + u"\"" + kCrLf;
        }
        r += kCrLf + Str(u"End ") + ProcType + kCrLf;
        if (IncludeErrorHandler) AddErrorHandler(r);
        if (AddReturnStatement) AddReturnLine(r);
        if (IncludeHourglass) AddHourglass(r);
    });
    return r;
}

void clsProcedure::GetArgString(long rIndent, Str& text) {
    text.clear();
    core::guarded(*ctx_, u"clsProcedure.GetArgString", [&] {
        auto ordered = byNumber(Arguments());
        Str list;
        for (size_t i = 0; i < ordered.size(); ++i) {
            if (rIndent > 0 && ArgumentsOnSeparateLine && i >= 1) list += u"_" + Str(kCrLf) + basic::Space(rIndent);
            list += (ordered[i] ? ordered[i]->ArgumentString() : Str()) + u", ";
        }
        // No arguments: the list stays empty (Left with a negative length would raise 5).
        if (!list.empty()) text = basic::Left(list, basic::Len(list) - 2);
    });
}

void clsProcedure::AddErrorHandler(Str& rstrCode) {
    Str t = ErrorHandler;
    fragments::NormalizeErrorHandlerCode(*ctx_, t, ModuleName, Name, ProcType, ModuleNameConstant,
                                         ProcedureNameConstant);
    fragments::FragmentToTextOfProcedureAdd(*ctx_, t, rstrCode, ProcType);
}

void clsProcedure::AddReturnLine(Str& rstrCode) {
    Str t = fragments::kBeforeHandleExitLabelMarker;
    if (isValueType(ReturnValueType))
        t += Indent() + Name + u" = Empty" + kCrLf;
    else
        t += Indent() + u"Set " + Name + u" = Nothing" + kCrLf;
    fragments::FragmentToTextOfProcedureAdd(*ctx_, t, rstrCode, ProcType);
}

void clsProcedure::BuildHourglass(bool fOn, Str& line) {
    line.clear();
    core::guarded(*ctx_, u"clsProcedure.BuildHourglass", [&] {
        Str statement = HourglassStatement(ctx_->HostName, fOn);
        line = statement.empty() ? Str(kCrLf) : Indent() + statement + kCrLf;
    });
}

void clsProcedure::AddHourglass(Str& rstrCode) {
    // A host without an hourglass statement would get two blank lines only.
    if (HourglassStatement(ctx_->HostName, true).empty()) return;
    Str on, off;
    BuildHourglass(true, on);
    BuildHourglass(false, off);
    Str t = on + fragments::kEndOfTopMarker + fragments::kBeginOfBottomMarker + off;
    fragments::FragmentToTextOfProcedureAdd(*ctx_, t, rstrCode, ProcType);
}

void clsProcedure::ArgumentsRenumber(long lngDeletedNumber) {
    for (long i = 1; i <= Arguments().Count(); ++i) {
        auto& argument = Arguments().Item(i);
        if (argument->Number > lngDeletedNumber) --argument->Number;
    }
}

long clsProcedure::ArgumentsOrderIsBad() {
    long result = 0;
    core::guarded(*ctx_, u"clsProcedure.ArgumentsOrderIsBad", [&] {
        auto ordered = byNumber(Arguments());
        bool optional = false;
        for (const auto& argument : ordered) {
            if (!argument) continue;
            if (argument->IsOptional) optional = true;
            else if (optional) {
                result = 1;
                return;
            }
        }
        bool paramArray = false;
        for (const auto& argument : ordered) {
            if (!argument) continue;
            if (argument->IsParamArray) paramArray = true;
            else if (paramArray) {
                result = 2;
                return;
            }
        }
    });
    return result;
}

}  // namespace quillet::generators
