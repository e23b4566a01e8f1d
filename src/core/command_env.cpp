#include "core/command_env.h"

#include "core/err_handler.h"
#include "basic/strings.h"
#include "source/code_placing.h"
#include "source/current_proc.h"
#include "source/name_checks.h"
#include "source/project_refresh.h"
#include "source/words.h"

namespace quillet::core {

using basic::Compare;
using basic::StrComp;

namespace {

constexpr char16_t kWhere[] = u"basQuillet.initialize";

bool is(const Str& a, const char16_t* b) { return StrComp(a, b, Compare::Text) == 0; }

bool caretInProcedure(Context& ctx) {
    Str name;
    long body = 0, last = 0, kind = 0;
    return source::CurrentProcGet(*ctx.VBInstance, true, name, body, last, kind);
}

Str suggestedName(Context& ctx, const Str& word, const Str& type, bool constant) {
    long scope = 0;
    Str scopePrefix;
    return source::NameWithPrefix(ctx.Prefixes, word, type, nullptr, scope, constant, scopePrefix);
}

}  // namespace

source::CodeEnv codeEnvOf(Context& ctx) {
    source::CodeEnv env{*ctx.VBInstance, ctx.Platform(), *ctx.IniSettings, ctx.Scan, ctx.scanEnv().report,
                        {}, {}, {}, {}, {}};
    if (ctx.Fragments.ExpandHeader) {
        env.expandHeader = [&ctx](long kind, const Str& name, const Str& description) {
            return ctx.Fragments.ExpandHeader(ctx, kind, name, description);
        };
    }
    if (ctx.Fragments.ErrorHandleModuleAdd) env.errorHandleModuleAdd = [&ctx] { ctx.Fragments.ErrorHandleModuleAdd(ctx); };
    return env;
}

long ProjectRefresh(Context& ctx, bool blnReferences) {
    auto env = codeEnvOf(ctx);
    long scanned = source::ProjectRefresh(env, blnReferences);
    guarded(ctx, u"basGlobal.ProjectRefresh", [&] { OutlookStep(ctx); });
    return scanned;
}

void initialize(Context& ctx, const Str& command, const Str& type) {
    ctx.Quick = QuickCommandState{command, type, {}, {}, {}, {}, {}};
    auto& quick = ctx.Quick;
    guarded(ctx, kWhere, [&] { ProjectRefresh(ctx); });
    guarded(ctx, kWhere, [&] {
        quick.ModuleScan = std::make_shared<source::clsScanModule>(ctx.scanEnv());
        quick.ModuleScan->init();
    });
    guarded(ctx, kWhere, [&] {
        if (!caretInProcedure(ctx)) return;
        quick.ProcScan = std::make_shared<source::clsScanProc>(ctx.scanEnv());
        quick.ProcScan->init();
    });
    guarded(ctx, kWhere, [&] {
        quick.ModuleProcs = source::ModuleProperProcsGet(ctx.scanEnv(), ctx.VBInstance->SelectedVBComponent(), true);
    });
    guarded(ctx, kWhere, [&] { quick.CurrentWord = source::CurrentWordGet(*ctx.VBInstance); });
    guarded(ctx, kWhere, [&] {
        if (quick.CurrentWord.empty() || type.empty()) return;
        if (is(command, u"Const"))
            quick.SuggestedName = suggestedName(ctx, quick.CurrentWord, type, true);
        else if (is(command, u"Dim") || is(command, u"Property"))
            quick.SuggestedName = suggestedName(ctx, quick.CurrentWord, type, false);
    });
}

long NewNameIsOK(Context& ctx, const Str& name, long kind) {
    long answer = 0;
    guarded(ctx, u"basQuillet.NewNameIsOK", [&] {
        source::NameLookups lookups;
        const auto& quick = ctx.Quick;
        if (kind == source::KindVariable || kind == source::KindConstant) {
            auto add = [&lookups](const auto& collection) {
                if (collection) lookups.push_back(source::lookupIn(*collection));
            };
            add(ctx.Scan.ProjectProcs);
            add(ctx.Scan.ProjectVars);
            add(ctx.Scan.ProjectConsts);
            lookups.push_back(source::lookupIn(quick.ModuleProcs));
            if (quick.ModuleScan) {
                lookups.push_back(source::lookupIn(quick.ModuleScan->ModuleVars));
                lookups.push_back(source::lookupIn(quick.ModuleScan->ModuleConsts));
            }
            if (quick.ProcScan) {
                lookups.push_back(source::lookupIn(quick.ProcScan->ProcVars));
                lookups.push_back(source::lookupIn(quick.ProcScan->ProcConsts));
            }
        }
        source::NameCheckEnv env{*ctx.VBInstance, ctx.Platform(), ctx.Keywords};
        answer = source::CheckNewNameIsOK(env, name, false, false, lookups);
    });
    return answer;
}

bool AddCodeLine(Context& ctx, const Str& text, const Str& module, long lngBlockLine) {
    bool placed = false;
    guarded(ctx, u"basQuillet.AddCodeLine", [&] {
        auto env = codeEnvOf(ctx);
        auto pane = ctx.VBInstance->ActiveCodePane();
        Str target = module;
        if (target.empty()) {
            if (!pane) return;
            target = pane->CodeModule()->Parent()->Name();
        } else {
            target = source::TargetModuleResolve(env, module);
            if (target.empty()) return;
        }
        if (lngBlockLine >= 1) {
            placed = source::VarConstCodeAdd(env, text, target, true, false, {}, lngBlockLine, false);
            return;
        }
        bool inActive = pane && StrComp(pane->CodeModule()->Parent()->Name(), target, Compare::Text) == 0;
        if (inActive && caretInProcedure(ctx)) {
            placed = source::qltProcVariableAdd(env, text) > 0;
            return;
        }
        placed = source::VarConstCodeAdd(env, text, target, true, false, {}, 0, false);
    });
    return placed;
}

void RoutineRun(Context& ctx, const Str& name, const Str& argument) {
    auto it = ctx.routines.find(name);
    if (it != ctx.routines.end() && it->second) it->second(ctx, argument);
}

void OutlookStep(Context& ctx) {
    if (basic::StrComp(ctx.HostName, u"Outlook", basic::Compare::Text) != 0) return;
    ctx.Platform().CloseWindowOfClass(u"rctrl_renwnd32");
    ctx.VBInstance->Windows()->Item(1)->SetFocus();
}

}  // namespace quillet::core
