// Fixed and variable placeholders.

#include "fragments/placeholders.h"

#include "core/caret.h"
#include "core/err_handler.h"
#include "basic/strings.h"
#include "fragments/error_module.h"
#include "settings/catalogue.h"
#include "settings/cls_file.h"
#include "settings/code_folders.h"
#include "source/current_proc.h"
#include "source/proc_areas.h"

namespace quillet::fragments {

using basic::Compare;
using basic::InStr;

namespace {

constexpr char16_t kCrLf[] = u"\r\n";
constexpr char16_t kInclude[] = u"{INCLUDE ";

Str settingText(core::Context& ctx, long item) {
    const auto& values = ctx.IniSettings->IniItemValue;
    return item >= 0 && item < static_cast<long>(values.size()) ? settings::ValueText(values[item]) : Str();
}

bool holds(const Str& text, const Str& placeholder) { return InStr(text, placeholder, Compare::Text) > 0; }

void replaceAll(Str& text, const Str& placeholder, const Str& value) {
    text = basic::Replace(text, placeholder, value, 1, -1, Compare::Text);
}

// A file's text; empty when it is missing or cannot be read.
Str fileText(core::Context& ctx, const Str& path) {
    if (path.empty()) return {};
    settings::clsFile file(*ctx.IniSettings, path);
    file.Silent(true);
    return file.Contents();
}

Str activeModuleName(core::Context& ctx) {
    auto pane = ctx.VBInstance->ActiveCodePane();
    return pane ? pane->CodeModule()->Parent()->Name() : Str();
}

// "Function", "Property" or "Sub" from the first line of the procedure's body.
Str procedureTypeOf(core::Context& ctx, const Str& name, long kind) {
    auto pane = ctx.VBInstance->ActiveCodePane();
    if (!pane || name.empty()) return {};
    auto module = pane->CodeModule();
    long line = module->ProcBodyLine(name, kind);
    return source::ProcedureTypeGet(name, module->Lines(line, 1));
}

void substituteSteps(core::Context& ctx, Str& text, Str& moduleName, Str& procedureName, Str& procedureType) {
    replaceAll(text, u"{AUTHOR}", settingText(ctx, settings::iiDeveloper));
    replaceAll(text, u"{INITIALS}", settingText(ctx, settings::iiInitials));
    replaceAll(text, u"{COMPANYNAME}", settingText(ctx, settings::iiOrganization));
    replaceAll(text, u"{COPYRIGHT}", settingText(ctx, settings::iiCopyright));
    replaceAll(text, u"{DATE}", ctx.DateText ? ctx.DateText() : Str());
    replaceAll(text, u"{TIME}", ctx.TimeText ? ctx.TimeText() : Str());
    replaceAll(text, u"{DESCRIPTION}", u"");
    text = TabStopsReplace(ctx, text);
    replaceAll(text, u"{HANDLEEXITLABEL}", settingText(ctx, settings::iiExitHandler));
    replaceAll(text, u"{HANDLEERRORLABEL}", settingText(ctx, settings::iiErrorHandler));
    if (holds(text, u"{ERRORHANDLEPROCEDURE}")) {
        ErrorHandleProcedureCheck(ctx);
        replaceAll(text, u"{ERRORHANDLEPROCEDURE}", settingText(ctx, settings::iiErrorHandleProcedure));
    }
    if (holds(text, u"{MODULENAME}")) {
        if (moduleName.empty()) moduleName = activeModuleName(ctx);
        replaceAll(text, u"{MODULENAME}", moduleName);
    }
    long kind = 0;
    if (holds(text, u"{PROCEDURENAME}")) {
        if (procedureName.empty()) {
            long body = 0, last = 0;
            source::CurrentProcGet(*ctx.VBInstance, false, procedureName, body, last, kind);
        }
        replaceAll(text, u"{PROCEDURENAME}", procedureName);
    }
    if (holds(text, u"{PROCEDURETYPE}")) {
        if (procedureType.empty()) {
            if (procedureName.empty()) {
                long body = 0, last = 0;
                source::CurrentProcGet(*ctx.VBInstance, false, procedureName, body, last, kind);
            }
            procedureType = procedureTypeOf(ctx, procedureName, kind);
        }
        replaceAll(text, u"{PROCEDURETYPE}", procedureType);
    }
    if (holds(text, kInclude)) FileSubstitute(ctx, text, moduleName, procedureName, procedureType);
}

bool isLetter(char16_t c) { return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c > 0x7F; }

}  // namespace

Str TabStopsReplace(core::Context& ctx, const Str& text) {
    Str indent = core::TabSpaces(ctx);
    return indent == u"    " ? text : basic::Replace(text, u"    ", indent);
}

void Substitute(core::Context& ctx, Str& text, Str& moduleName, Str& procedureName, Str& procedureType) {
    core::guarded(ctx, u"modPlaceholders.Substitute",
                   [&] { substituteSteps(ctx, text, moduleName, procedureName, procedureType); });
}

void FileSubstitute(core::Context& ctx, Str& text, Str& moduleName, Str& procedureName, Str& procedureType) {
    core::guarded(ctx, u"modPlaceholders.FileSubstitute", [&] {
        Str root = settings::RootFolder(*ctx.IniSettings);
        for (long at = InStr(1, text, kInclude, Compare::Text); at > 0; at = InStr(at + 1, text, kInclude, Compare::Text)) {
            long start = at + basic::Len(kInclude);
            long close = InStr(start, text, u"}");
            if (close == 0) continue;
            Str path = basic::Mid(text, start, close - start);
            Str content = fileText(ctx, settings::MakePath({root, path}));
            if (content.empty()) continue;
            Substitute(ctx, content, moduleName, procedureName, procedureType);
            replaceAll(text, kInclude + path + u"}", content);
        }
    });
}

Str ExpandHeader(core::Context& ctx, long headerKind, const Str& name, const Str& description) {
    Str result;
    core::guarded(ctx, u"modPlaceholders.ExpandHeader", [&] {
        auto& settings = *ctx.IniSettings;
        Str path = headerKind == kProcedureHeader ? settings::ProcedureHeaderFile(settings)
                   : headerKind == kModuleHeader  ? settings::ModuleHeaderFile(settings)
                                                  : Str();
        Str text = fileText(ctx, path);
        if (text.empty()) return;
        replaceAll(text, u"{AUTHOR}", settingText(ctx, settings::iiDeveloper));
        replaceAll(text, u"{INITIALS}", settingText(ctx, settings::iiInitials));
        replaceAll(text, u"{COMPANYNAME}", settingText(ctx, settings::iiOrganization));
        replaceAll(text, u"{COPYRIGHT}", settingText(ctx, settings::iiCopyright));
        replaceAll(text, u"{MODULENAME}", name);
        replaceAll(text, u"{PROCEDURENAME}", name);
        replaceAll(text, u"{DATE}", ctx.DateText ? ctx.DateText() : Str());
        replaceAll(text, u"{TIME}", ctx.TimeText ? ctx.TimeText() : Str());
        replaceAll(text, u"{DESCRIPTION}", description);
        result = TabStopsReplace(ctx, text) + kCrLf;
    });
    return result;
}

Str FormatDescription(const Str& text) {
    if (text.empty()) return {};
    constexpr long kWidth = 50;
    Str result;
    for (Str line : basic::Split(text, kCrLf)) {
        while (basic::Len(line) > kWidth) {
            long blank = InStr(kWidth, line, u" ");
            if (blank == 0) break;
            result += u"'   " + basic::Left(line, blank - 1) + kCrLf;
            line = basic::Mid(line, blank + 1);
        }
        result += u"'   " + line + kCrLf;
    }
    return result;
}

bool IsFixedPlaceholder(const Str& text) {
    static constexpr const char16_t* kFixed[] = {
        u"{AUTHOR}",           u"{INITIALS}",         u"{COMPANYNAME}",  u"{COPYRIGHT}",
        u"{DATE}",             u"{TIME}",             u"{DESCRIPTION}",  u"{HANDLEEXITLABEL}",
        u"{HANDLEERRORLABEL}", u"{ERRORHANDLEPROCEDURE}", u"{MODULENAME}", u"{PROCEDURENAME}",
        u"{PROCEDURETYPE}",    u"{PROJECTNAME}",      u"{MODULEHEADER}", u"{BASECLASSNAME}",
    };
    for (const char16_t* fixed : kFixed)
        if (basic::StrComp(text, fixed, Compare::Text) == 0) return true;
    return basic::Like(basic::UCase(text), u"{INCLUDE ?*}");
}

std::optional<VariablePlaceholder> ParseVariablePlaceholder(const Str& text) {
    if (!basic::Like(text, u"{?*}") || IsFixedPlaceholder(text)) return std::nullopt;
    Str inner = basic::Mid(text, 2, basic::Len(text) - 2);
    if (basic::StrComp(inner, u"VARIABLE", Compare::Text) == 0 ||
        basic::StrComp(inner, u"VARIABLE (NAMED)", Compare::Text) == 0)
        return std::nullopt;
    VariablePlaceholder placeholder;
    placeholder.text = text;
    long colon = InStr(inner, u":");
    placeholder.type = colon > 0 ? basic::Left(inner, colon - 1) : inner;
    if (colon > 0) {
        placeholder.hasName = true;
        Str rest = basic::Mid(inner, colon + 1);
        long equals = InStr(rest, u"=");
        placeholder.name = equals > 0 ? basic::Left(rest, equals - 1) : rest;
        if (equals > 0) {
            placeholder.hasDefault = true;
            placeholder.defaultValue = basic::Mid(rest, equals + 1);
        }
    }
    Str base = placeholder.type;
    while (!base.empty() && !isLetter(base.back())) base.pop_back();
    placeholder.baseType = base;
    return placeholder;
}

std::vector<VariablePlaceholder> VariablePlaceholders(const Str& text) {
    std::vector<VariablePlaceholder> found;
    for (long open = InStr(text, u"{"); open > 0; open = InStr(open + 1, text, u"{")) {
        long close = InStr(open, text, u"}");
        if (close == 0) break;
        auto placeholder = ParseVariablePlaceholder(basic::Mid(text, open, close - open + 1));
        if (!placeholder) continue;
        bool seen = false;
        for (const auto& earlier : found) seen = seen || earlier.text == placeholder->text;
        if (!seen) found.push_back(*placeholder);
    }
    return found;
}

}  // namespace quillet::fragments
