#include "addin/procedure_commands.h"

#include "addin/core_names.h"
#include "core/err_handler.h"
#include "core/command_env.h"
#include "basic/strings.h"
#include "settings/catalogue.h"
#include "settings/ini_vars.h"
#include "source/char_class.h"
#include "source/code_placing.h"
#include "source/error_handler_files.h"

namespace quillet::addin {

using basic::Compare;
using basic::InStr;
using basic::Len;
using basic::StrComp;

namespace {

bool holds(const Str& text, const Str& part) { return !part.empty() && InStr(text, part, Compare::Text) > 0; }

bool isNameChar(char16_t c) { return source::IsCharAlphaNumericA(c) || c == u'_'; }

// The text before the caret, with the lines it continues joined (their " _" taken away).
Str textBeforeCaret(Context& ctx) {
    auto pane = ctx.VBInstance->ActiveCodePane();
    if (!pane) return {};
    auto module = pane->CodeModule();
    long line = 0, col = 0, endLine = 0, endCol = 0;
    pane->GetSelection(line, col, endLine, endCol);
    if (line < 1 || line > module->CountOfLines()) return {};
    Str text = basic::Left(module->Lines(line, 1), std::max(col - 1, 0L));
    for (long n = line - 1; n >= 1; --n) {
        Str previous = basic::RTrim(module->Lines(n, 1));
        if (basic::Right(previous, 2) != u" _") break;
        text = basic::Left(previous, Len(previous) - 2) + u" " + text;
    }
    return text;
}

struct Identifier {
    Str name;
    size_t end = 0;  // index behind it
};

// The identifiers of the text that something follows, strings and a comment left out.
std::vector<Identifier> identifiersOf(const Str& text) {
    std::vector<Identifier> found;
    size_t i = 0;
    while (i < text.size()) {
        char16_t c = text[i];
        if (c == u'"') {
            for (++i; i < text.size(); ++i) {
                if (text[i] != u'"') continue;
                if (i + 1 < text.size() && text[i + 1] == u'"') {
                    ++i;
                    continue;
                }
                break;
            }
            ++i;
        } else if (c == u'\'') {
            break;
        } else if (source::IsCharAlphaA(c)) {
            size_t start = i;
            while (i < text.size() && isNameChar(text[i])) ++i;
            if (i < text.size()) found.push_back({text.substr(start, i - start), i});
        } else {
            ++i;
        }
    }
    return found;
}

// Whether the call's bracket, opened right behind the name, is closed again in `tail`.
bool callClosed(const Str& tail) {
    size_t i = 0;
    while (i < tail.size() && tail[i] == u' ') ++i;
    if (i >= tail.size() || tail[i] != u'(') return false;
    int depth = 0;
    bool inString = false;
    for (; i < tail.size(); ++i) {
        if (tail[i] == u'"') inString = !inString;
        if (inString) continue;
        if (tail[i] == u'(') ++depth;
        if (tail[i] == u')' && --depth == 0) return true;
    }
    return false;
}

source::C4_ProcDefPtr knownProcedure(Context& ctx, const Str& name) {
    if (auto* found = ctx.Quick.ModuleProcs.Find(name)) return *found;
    if (const auto& procs = ctx.Scan.ProjectProcs) {
        for (const Str& key : {u"VBA." + name, name})
            if (auto* found = procs->Find(key)) return *found;
    }
    return nullptr;
}

Str numberText(size_t n) {
    std::string digits = std::to_string(n);
    return Str(digits.begin(), digits.end());
}

}  // namespace

void ErrorHandlerMerge(Context& ctx, Str& text, source::clsScanProc& scan) {
    const auto& fragments = ctx.Fragments;
    if (fragments.FragmentToProcedureAdd) fragments.FragmentToProcedureAdd(ctx, text, scan);
}

void ErrorHandlingAdd(Context& ctx, const Str& file) {
    const Str where = u"basQuillet.ErrorHandlingAdd";
    guarded(ctx, where, [&] {
        auto scan = ctx.Quick.ProcScan;
        if (!scan || scan->ProcName().empty()) return;
        auto& settings = *ctx.IniSettings;
        auto module = ctx.VBInstance->ActiveCodePane()->CodeModule();
        Str moduleName = module->Parent()->Name();
        long start = scan->ProcRealStartLine(), end = scan->ProcRealEndLine();
        Str code = module->Lines(start, end - start + 1);
        if (holds(code, u"On Error GoTo " + settings::IniText(settings, settings::iiErrorHandler))) return;

        Str name = file.empty() ? settings::IniText(settings, settings::iiDefaultErrorHandle) : file;
        Str text = source::ErrorHandlerFileRead(settings, name);
        if (text.empty()) return;
        auto env = codeEnvOf(ctx);
        if (holds(text, u"{ERRORHANDLEPROCEDURE}")) source::ErrorHandleProcedureCheck(env);
        bool moduleConst = settings::IniBool(settings, settings::iiMakeModuleConstantTrue);
        bool procConst = settings::IniBool(settings, settings::iiMakeProcedureConstantTrue);
        if (holds(text, u"{MODULENAME}") && moduleConst) source::ModuleNameConstantAdd(env, moduleName, false);
        scan->init();
        Str procConstant = settings::IniText(settings, settings::iiProcedureNameConstant);
        if (holds(text, u"{PROCEDURENAME}") && procConst && !holds(code, procConstant)) {
            source::qltProcVariableAdd(env, u"Const " + procConstant + u" = \"" + scan->ProcName() + u"\"");
            scan->init();
        }
        if (ctx.Fragments.NormalizeErrorHandlerCode)
            ctx.Fragments.NormalizeErrorHandlerCode(ctx, text, moduleName, scan->ProcName(), scan->ProcTypeStr(),
                                                    moduleConst, procConst);
        ErrorHandlerMerge(ctx, text, *scan);
    });
}

std::optional<ExplicitArgumentCall> ExplicitArgumentFind(Context& ctx) {
    Str text = textBeforeCaret(ctx);
    auto identifiers = identifiersOf(text);
    for (auto it = identifiers.rbegin(); it != identifiers.rend(); ++it) {
        auto procedure = knownProcedure(ctx, it->name);
        if (!procedure || procedure->ProcArguments->Count() == 0) continue;
        Str tail = text.substr(it->end);
        if (callClosed(tail)) continue;
        ExplicitArgumentCall call{procedure->Name, {}};
        for (const auto& argument : procedure->ProcArguments->Items) {
            bool used = Len(tail) >= 2 && holds(tail, argument->Name + u":=");
            if (!used) call.Names.push_back(argument->Name);
        }
        if (call.Names.empty()) return std::nullopt;
        return call;
    }
    return std::nullopt;
}

std::optional<Str> SelectFromList(Context& ctx, const Str& title, const std::vector<Str>& items) {
    if (ctx.SelectFromList) return ctx.SelectFromList(ctx, title, items);
    Str prompt;
    for (size_t i = 0; i < items.size(); ++i) prompt += numberText(i + 1) + u" " + items[i] + u"\r\n";
    auto answer = ctx.Platform().InputBox(prompt, title, items.empty() ? Str() : items[0]);
    if (!answer) return std::nullopt;
    Str chosen = basic::Trim(*answer);
    for (size_t i = 0; i < items.size(); ++i)
        if (chosen == numberText(i + 1) || StrComp(chosen, items[i], Compare::Text) == 0) return items[i];
    return std::nullopt;
}

void ExplicitArgumentAdd(Context& ctx) {
    guarded(ctx, u"basQuillet.ExplicitArgumentAdd", [&] {
        auto call = ExplicitArgumentFind(ctx);
        if (!call) return;
        auto choice = SelectFromList(ctx, u"Explicit Argument", call->Names);
        if (!choice) return;
        auto env = codeEnvOf(ctx);
        source::InstanceAdd(env, nullptr, *choice + u":=");
    });
}

bool ExplicitArgumentAvailable(Context& ctx) {
    bool available = false;
    ignoringErrors([&] { available = ExplicitArgumentFind(ctx).has_value(); });
    return available;
}

}  // namespace quillet::addin
