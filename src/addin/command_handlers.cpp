#include "addin/command_handlers.h"

#include "addin/bar_state.h"
#include "addin/command_bar.h"
#include "addin/command_table.h"
#include "addin/core_names.h"
#include "core/err_handler.h"
#include "addin/quillet_handle.h"

namespace quillet::addin {

namespace {

constexpr char16_t kHelpFile[] = u"Quillet.chm";

// The handlers wired to no control of the editor's bar, and the handler whose work they share.
struct HandlerAlias {
    const char16_t* name;
    const char16_t* sameAs;
};
constexpr HandlerAlias kAliases[] = {
    {u"mnuhAddControl", u"mnuhQLTAddControl"},
    {u"mnuhControlAdd", u"mnuhQLTAddControl"},
};

const CommandRow* rowOfHandler(const Str& handler) {
    for (const auto& alias : kAliases)
        if (handler == alias.name) return commandRowOfHandler(alias.sameAs);
    return commandRowOfHandler(handler);
}

void toolWindowToggle(const host::WindowPtr& window) {
    if (window) window->Visible(!window->Visible());
}

void webPageOpen(Context& ctx, const CommandRow& row, const host::CommandBarControlPtr& control) {
    Str page = control ? control->TooltipText() : row.tooltip;
    ctx.Platform().ShellOpen(ctx.WebSite + page);
}

void helpContentsOpen(Context& ctx) {
    auto& platform = ctx.Platform();
    Str path = platform.AddinFolder() + kHelpFile;
    if (platform.FileExists(path)) platform.ShellOpen(path);
}

Str listText(const CommandRow& row, const host::CommandBarControlPtr& control) {
    if (control) return control->Text();
    return row.argument;
}

void actionRun(Context& ctx, const CommandRow& row, const host::CommandBarControlPtr& control) {
    switch (row.action) {
    case CommandAction::Quick: QuilletHandle(ctx, row.name, row.argument); break;
    case CommandAction::ErrorHandling: QuilletHandle(ctx, row.name, listText(row, control)); break;
    case CommandAction::Routine: RoutineRun(ctx, row.name, row.argument); break;
    case CommandAction::ToggleShortcuts: toolWindowToggle(ctx.ShortcutsToolWindow); break;
    case CommandAction::ToggleCodeExplorer: toolWindowToggle(ctx.CodeExplorerToolWindow); break;
    case CommandAction::WebPage: webPageOpen(ctx, row, control); break;
    case CommandAction::HelpContents: helpContentsOpen(ctx); break;
    case CommandAction::MenuState: MenuStateSet(ctx); break;
    case CommandAction::None: break;
    }
}

}  // namespace

void CommandClick(Context& ctx, const Str& handler, const host::CommandBarControlPtr& control) noexcept {
    const CommandRow* row = rowOfHandler(handler);
    if (!row) return;
    guarded(ctx, u"Connect." + handler + u"_Click", [&] { actionRun(ctx, *row, control); });
}

void CommandEventsConnect(Context& ctx, const host::CommandBarControlPtr& control, const Str& handler) {
    auto sink = ctx.VBInstance->Events()->CommandBarEvents(control);
    if (!sink) throw basic::VbError::standard(basic::err::ObjectNotSet);
    Context* context = &ctx;
    sink->Connect([context, handler](const host::CommandBarControlPtr& clicked, bool&, bool&) {
        CommandClick(*context, handler, clicked);
    });
    commandBarState(ctx).sinks.push_back(std::move(sink));
}

void mnuhQuillet_Click(Context& ctx) noexcept { CommandClick(ctx, u"mnuhQuillet", nullptr); }
void mnuhQLTAddControl_Click(Context& ctx) noexcept { CommandClick(ctx, u"mnuhQLTAddControl", nullptr); }
void mnuhAddControl_Click(Context& ctx) noexcept { CommandClick(ctx, u"mnuhAddControl", nullptr); }
void mnuhControlAdd_Click(Context& ctx) noexcept { CommandClick(ctx, u"mnuhControlAdd", nullptr); }

}  // namespace quillet::addin
