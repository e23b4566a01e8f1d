#include "addin/command_bar.h"

#include "addin/err_handler.h"
#include "basic/strings.h"
#include "basic/unicode.h"
#include "basic/variant.h"

namespace quillet::addin {

namespace {

constexpr char16_t kApp[] = u"Quillet";
constexpr char16_t kSection[] = u"Quillet";

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

}  // namespace

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
    saveNumber(ctx, u"ToolbarPos" + suffix, bar->Position());
    saveNumber(ctx, u"ToolbarIndex" + suffix, bar->RowIndex());
    saveNumber(ctx, u"ToolbarLeft" + suffix, bar->Left());
    saveNumber(ctx, u"ToolbarTop" + suffix, bar->Top());
    bar->Visible(false);
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
