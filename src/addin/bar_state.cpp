#include "addin/bar_state.h"

#include <initializer_list>

#include "addin/command_bar.h"
#include "addin/command_table.h"
#include "addin/core_names.h"
#include "core/err_handler.h"
#include "source/current_proc.h"

namespace quillet::addin {

namespace {

using IdList = std::initializer_list<long>;

bool captionIsOneOf(const Str& caption, IdList ids) {
    for (long id : ids)
        if (caption == LoadResString(id)) return true;
    return false;
}

void visibleSet(host::CommandBarControl& control, bool visible) {
    if (control.Visible() != visible) control.Visible(visible);
}

void enabledSet(host::CommandBarControl& control, bool enabled) {
    if (control.Enabled() != enabled) control.Enabled(enabled);
}

bool isCodeWindow(Context& ctx) {
    auto window = ctx.VBInstance->ActiveWindow();
    return window && window->Type() == host::vbext_wt_CodeWindow;
}

// CurrentProcGet(True, ...): the caret between a procedure's header and its End.
bool caretInProcedure(Context& ctx) {
    bool inProc = false;
    ignoringErrors([&] {
        Str name;
        long body = 0, last = 0, kind = 0;
        inProc = source::CurrentProcGet(*ctx.VBInstance, true, name, body, last, kind);
    });
    return inProc;
}

host::CommandBarPtr quilletBar(Context& ctx) {
    host::CommandBarPtr bar;
    ignoringErrors([&] { bar = ctx.VBInstance->CommandBars()->Item(kBarName); });
    return bar;
}

template <class F>
void forEachControl(const host::CommandBarControlsPtr& controls, F&& visit) {
    for (long i = 1, count = controls->Count(); i <= count; ++i) {
        auto control = controls->Item(i);
        visit(*control, control->Caption());
    }
}

void toolbarStateApply(Context& ctx) {
    auto bar = quilletBar(ctx);
    if (!bar) return;
    bool code = isCodeWindow(ctx);
    bool inProc = code && caretInProcedure(ctx);
    forEachControl(bar->Controls(), [&](host::CommandBarControl& control, const Str& caption) {
        if (captionIsOneOf(caption, {122, 183, 104, 110})) return;
        if (!code) {
            if (!captionIsOneOf(caption, {194, 195})) visibleSet(control, false);
        } else {
            visibleSet(control, captionIsOneOf(caption, {106, 181, 182}) ? inProc : true);
        }
    });
}

host::CommandBarControlPtr quilletPopup(Context& ctx) {
    auto bar = quilletBar(ctx);
    if (!bar) return nullptr;
    const Str caption = LoadResString(popup::Quillet);
    auto controls = bar->Controls();
    for (long i = 1, count = controls->Count(); i <= count; ++i) {
        auto control = controls->Item(i);
        if (control->Type() == host::msoControlPopup && control->Caption() == caption) return control;
    }
    return nullptr;
}

bool explicitArgumentAvailable(Context& ctx) {
    return !ctx.ExplicitArgumentAvailable || ctx.ExplicitArgumentAvailable();
}

void errorPopupEnable(host::CommandBarControl& errorPopup, bool inProc) {
    forEachControl(errorPopup.Controls(), [&](host::CommandBarControl& control, const Str& caption) {
        enabledSet(control, caption == LoadResString(popup::CommentLines) ? true : inProc);
    });
}

void menuStateApply(Context& ctx) {
    auto quillet = quilletPopup(ctx);
    if (!quillet) return;
    bool code = isCodeWindow(ctx);
    bool inProc = code && caretInProcedure(ctx);
    bool componentSelected = ctx.VBInstance->SelectedVBComponent() != nullptr;
    forEachControl(quillet->Controls(), [&](host::CommandBarControl& control, const Str& caption) {
        if (caption == LoadResString(185)) enabledSet(control, componentSelected);
        if (!code) {
            visibleSet(control, captionIsOneOf(caption, {104, 183, 184, 185, 186}));
            return;
        }
        bool always = captionIsOneOf(caption, {183, 101, 104, 149, 179, 184, 185, 186}) || control.Index() < 3;
        visibleSet(control, always || inProc);
        if (!always && inProc && caption == LoadResString(193)) enabledSet(control, explicitArgumentAvailable(ctx));
        if (caption == LoadResString(popup::Error)) errorPopupEnable(control, inProc);
    });
}

}  // namespace

void ToolbarStateSet(Context& ctx) noexcept {
    guarded(ctx, u"basCommandBar.ToolbarStateSet", [&] { toolbarStateApply(ctx); });
}

void MenuStateSet(Context& ctx) noexcept {
    guarded(ctx, u"basCommandBar.MenuStateSet", [&] { menuStateApply(ctx); });
}

}  // namespace quillet::addin
