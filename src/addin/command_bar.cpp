#include "addin/command_bar.h"

#include <map>

#include "addin/command_handlers.h"
#include "addin/core_names.h"
#include "core/err_handler.h"
#include "addin/menu_commands.h"
#include "basic/strings.h"
#include "basic/unicode.h"
#include "basic/variant.h"
#include "settings/catalogue.h"
#include "settings/ini_vars.h"

namespace quillet::addin {

namespace {

constexpr char16_t kApp[] = u"Quillet";
constexpr char16_t kSection[] = u"Quillet";
constexpr char16_t kModule[] = u"basCommandBar.";
constexpr long kAddControlId = 183;

long settingNumber(Context& ctx, const Str& key, long defaultValue) {
    Str value = ctx.Platform().GetSetting(kApp, kSection, key, basic::u16(std::to_string(defaultValue)));
    try {
        return static_cast<long>(basic::CLng(value));
    } catch (const basic::VbError&) {
        return defaultValue;
    }
}

void saveNumber(Context& ctx, const Str& key, long value) {
    ctx.Platform().SaveSetting(kApp, kSection, key, basic::u16(std::to_string(value)));
}

host::CommandBarPtr existingBar(const host::CommandBarsPtr& bars, const Str& name) {
    host::CommandBarPtr bar;
    ignoringErrors([&] {
        auto found = bars->Item(name);
        if (found && !found->Name().empty()) bar = found;
    });
    return bar;
}

// Makes the control of one row; none when it could not be made (reported).
host::CommandBarControlPtr rowCreate(Context& ctx, const host::CommandBarPtr& bar, const CommandRow& row,
                                     const host::CommandBarControlPtr& parent) {
    host::CommandBarControlPtr control;
    guarded(ctx, Str(kModule) + u"ToolBarCreate", [&] {
        control = AddMenuCommand(ctx, bar, row.id, row.type, row.beginGroup, row.faceId, parent, row.tooltip);
    });
    return control;
}

// The bars of a late-bound application object (Access's own), as the editor's bars are reached.
host::CommandBarsPtr commandBarsOf(const basic::DispatchPtr& application) {
    auto bars = std::dynamic_pointer_cast<host::CommandBars>(basic::CObj(application->Get(u"CommandBars")));
    if (!bars) throw basic::VbError::standard(basic::err::TypeMismatch);
    return bars;
}

bool hasControlTagged(const host::CommandBarPtr& bar, const Str& tag) {
    auto controls = bar->Controls();
    for (long i = 1, count = controls->Count(); i <= count; ++i)
        if (controls->Item(i)->Tag() == tag) return true;
    return false;
}

}  // namespace

CommandBarState& commandBarState(Context& ctx) {
    if (!ctx.commandBar) ctx.commandBar = std::make_shared<CommandBarState>();
    return *ctx.commandBar;
}

host::CommandBarPtr ToolBarCreate(Context& ctx, const host::CommandBarsPtr& bars, const Str& suffix) {
    long pos = settingNumber(ctx, u"ToolbarPos" + suffix, host::msoBarTop);
    long row = settingNumber(ctx, u"ToolbarIndex" + suffix, 0);
    long left = settingNumber(ctx, u"ToolbarLeft" + suffix, 0);
    long top = settingNumber(ctx, u"ToolbarTop" + suffix, 0);

    auto bar = existingBar(bars, kBarName);
    if (!bar) bar = bars->Add(kBarName, pos, false, true);
    bar->Position(pos);
    if (pos == host::msoBarLeft || pos == host::msoBarRight) {
        bar->RowIndex(row);
        bar->Top(top);
    } else if (pos == host::msoBarTop || pos == host::msoBarBottom) {
        bar->RowIndex(row);
        bar->Left(left);
    } else {
        bar->Top(top);
        bar->Left(left);
    }
    bar->Visible(true);
    return bar;
}

void ToolBarSave(Context& ctx, const host::CommandBarsPtr& bars, const Str& suffix) {
    auto bar = bars->Item(kBarName);
    // A value the editor does not give is not kept; the bar goes all the same.
    ignoringErrors([&] { saveNumber(ctx, u"ToolbarPos" + suffix, bar->Position()); });
    ignoringErrors([&] { saveNumber(ctx, u"ToolbarIndex" + suffix, bar->RowIndex()); });
    ignoringErrors([&] { saveNumber(ctx, u"ToolbarLeft" + suffix, bar->Left()); });
    ignoringErrors([&] { saveNumber(ctx, u"ToolbarTop" + suffix, bar->Top()); });
    ignoringErrors([&] { bar->Visible(false); });
    bar->Delete();
    ignoringErrors([&] { bars->Item(u"CodeExplorerPopUp")->Delete(); });
}

void CommandBarsEnable(Context& ctx, bool enabled) noexcept {
    ignoringErrors([&] { ctx.VBInstance->CommandBars()->Item(kBarName)->Enabled(enabled); });
    ignoringErrors([&] {
        auto control = ctx.VBInstance->CommandBars()->Item(u"Code Window")->Controls()->Item(u"Quillet Insert");
        control->Enabled(enabled);
    });
}

}  // namespace quillet::addin

namespace quillet::addin {

bool isMicrosoftAccess(Context& ctx) {
    const auto& access = ctx.AccessApp();
    if (!access) return false;
    bool is = false;
    ignoringErrors([&] {
        is = basic::StrComp(basic::CStr(access->Get(u"Name")), u"Microsoft Access", basic::Compare::Text) == 0;
    });
    return is;
}

bool commandRowApplies(Context& ctx, const CommandRow& row) {
    switch (row.condition) {
    case CommandCondition::ObjectnameHost: return ctx.ExcelApp() || ctx.WordApp() || isMicrosoftAccess(ctx);
    case CommandCondition::AccessHost: return isMicrosoftAccess(ctx);
    case CommandCondition::TestingMode: return ctx.TestingMode;
    default: return true;
    }
}

void CommandTableCreate(Context& ctx, const host::CommandBarPtr& bar) noexcept {
    auto& state = commandBarState(ctx);
    const size_t first = state.controls.size();
    std::map<long, host::CommandBarControlPtr> popups;
    for (const auto& row : CommandTable()) {
        if (!commandRowApplies(ctx, row)) continue;
        host::CommandBarControlPtr parent;
        if (row.parentId != popup::Bar) {
            auto it = popups.find(row.parentId);
            if (it == popups.end()) continue;
            parent = it->second;
        }
        auto control = rowCreate(ctx, bar, row, parent);
        if (!control) continue;
        state.controls.push_back({&row, control});
        if (row.type == host::msoControlPopup) popups[row.id] = control;
        if (row.action == CommandAction::ErrorHandling)
            guarded(ctx, Str(kModule) + u"ErrorHandlerList", [&] { ErrorHandlerList(ctx, control); });
    }
    for (size_t i = first; i < state.controls.size(); ++i) {
        const auto& made = state.controls[i];
        if (made.row->handler.empty()) continue;
        guarded(ctx, Str(kModule) + u"ToolBarCreate",
                [&] { CommandEventsConnect(ctx, made.control, made.row->handler); });
    }
}

void ErrorHandlerList(Context& ctx, const host::CommandBarControlPtr& control) {
    std::vector<Str> names;
    if (ctx.ErrorHandlersList) names = ctx.ErrorHandlersList();
    Str wanted = ctx.IniSettings ? settings::IniText(*ctx.IniSettings, settings::iiAddErrorHandlingProcedure) : Str();
    for (const auto& name : names) {
        control->AddItem(name, control->ListCount() + 1);
        if (basic::StrComp(name, wanted, basic::Compare::Text) == 0) control->ListIndex(control->ListCount());
    }
    control->Width(377);
    control->DropDownWidth(240);
}

void AccessToolBarCreate(Context& ctx) noexcept {
    guarded(ctx, Str(kModule) + u"AccessToolBarCreate", [&] {
        if (!ctx.TestingMode || !ctx.AccessApp()) return;
        auto project = ctx.VBInstance->ActiveVBProject();
        if (!project) return;
        if (basic::StrComp(project->References()->Item(2)->Name(), u"Access", basic::Compare::Text) != 0) return;
        auto bar = ToolBarCreate(ctx, commandBarsOf(ctx.AccessApp()), basic::CStr(ctx.AccessApp()->Get(u"Name")));
        if (hasControlTagged(bar, LoadResString(kAddControlId))) return;
        auto control = AddMenuCommand(ctx, bar, kAddControlId, host::msoControlButton, false, kAddControlId);
        commandBarState(ctx).controls.push_back({nullptr, control});
        CommandEventsConnect(ctx, control, u"mnuhAddControl");
    });
}

void CommandBarEventsRelease(Context& ctx) noexcept {
    if (!ctx.commandBar) return;
    for (const auto& sink : ctx.commandBar->sinks) ignoringErrors([&] { sink->Disconnect(); });
    ctx.commandBar.reset();
}

}  // namespace quillet::addin
