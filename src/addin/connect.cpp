#include "addin/connect.h"

#include "addin/command_bar.h"
#include "addin/core_names.h"
#include "core/err_handler.h"
#include "addin/project_watch.h"
#include "addin/lifecycle.h"
#include "basic/strings.h"
#include "settings/catalogue.h"
#include "settings/ini_vars.h"

namespace quillet::addin {

namespace {

constexpr char16_t kModule[] = u"Connect.";

struct ToolWindowSpec {
    const char16_t* progId;
    const char16_t* caption;
    const char16_t* guidPosition;
};
constexpr ToolWindowSpec kShortcutsWindow{u"Quillet.docDirectAccess", u"Shortcuts and Search", u"QuilletDirectAccess"};
constexpr ToolWindowSpec kCodeExplorerWindow{u"Quillet.docCodeExplorer", u"Code Explorer", u"QuilletCodeExplorer"};

host::WindowPtr createToolWindow(Context& ctx, const basic::DispatchPtr& addInInst, const ToolWindowSpec& spec,
                                 basic::DispatchPtr& doc) {
    return ctx.VBInstance->Windows()->CreateToolWindow(addInInst, spec.progId, spec.caption, spec.guidPosition, doc);
}

// The two dockable windows as the settings want them.
void showToolWindowsPerSettings(Context& ctx) {
    auto& settings = *ctx.IniSettings;
    if (ctx.CodeExplorerToolWindow)
        ctx.CodeExplorerToolWindow->Visible(settings::IniBool(settings, settings::iiViewCodeExplorerWindow));
    if (ctx.ShortcutsToolWindow)
        ctx.ShortcutsToolWindow->Visible(settings::IniBool(settings, settings::iiViewQuilletWindow));
}

}  // namespace

Connect::Connect(std::shared_ptr<platform::Platform> platform, std::shared_ptr<HostApplications> hostApps)
    : platform_(std::move(platform)), hostApps_(std::move(hostApps)) {}

Connect::~Connect() {
    if (context_) AddinInstance_OnDisconnection(0);
}

void Connect::AddinInstance_OnConnection(const host::VBEPtr& application, long connectMode,
                                         const basic::DispatchPtr& addInInst) noexcept {
    try {
        if (context_) AddinInstance_OnDisconnection(0);
        if (!application) return;  // nothing to attach to: stay disconnected
        connectMode_ = connectMode;
        context_ = std::make_unique<Context>(application, platform_, hostApps_);
        context_->ConnectInstance = this;
        if (prepare_) prepare_(*context_);
        bringUp(application, addInInst);
    } catch (...) {
        // The editor switches an add-in off for good when its connection fails: never let it see one.
    }
}

void Connect::bringUp(const host::VBEPtr& application, const basic::DispatchPtr& addInInst) {
    Context& ctx = *context_;
    const Str where = Str(kModule) + u"AddinInstance_OnConnection";
    auto& platform = ctx.Platform();
    ctx.VBInstance = application;
    ignoringErrors([&] { platform.Hourglass(true); });
    guarded(ctx, where, [&] {
        ctx.TestingMode = platform.FileExists(platform.AddinFolder() + u"testing.txt");
        ctx.ShowMode = ctx.TestingMode ? 0 : 1;
    });
    ctx.ImmediateWindowHandle = FindImmediateWindowHandle(ctx);
    AddInInitialize(ctx);
    ctx.CurrentProjectFile.clear();
    ctx.TimerForm = TimerFormCreate(ctx);
    host::CommandBarPtr bar;
    guarded(ctx, where, [&] { bar = ToolBarCreate(ctx, ctx.VBInstance->CommandBars(), u""); });
    if (bar) CommandTableCreate(ctx, bar);
    createToolWindows(addInInst);
    ignoringErrors([&] { platform.Hourglass(false); });
}

void Connect::createToolWindows(const basic::DispatchPtr& addInInst) {
    Context& ctx = *context_;
    const Str where = Str(kModule) + u"AddinInstance_OnConnection";
    guarded(ctx, where, [&] {
        ctx.ShortcutsToolWindow = createToolWindow(ctx, addInInst, kShortcutsWindow, ctx.ShortcutsDoc);
    });
    guarded(ctx, where, [&] {
        ctx.CodeExplorerToolWindow = createToolWindow(ctx, addInInst, kCodeExplorerWindow, ctx.CodeExplorerDoc);
    });
    guarded(ctx, where, [&] { showToolWindowsPerSettings(ctx); });
}

void Connect::AddinInstance_OnDisconnection(long /*removeMode*/) noexcept {
    if (!context_) return;
    try {
        Context& ctx = *context_;
        CommandBarEventsRelease(ctx);
        // An editor busy with something else may refuse a call once, and a bar left behind would
        // stay among its bars for good: a failed removal is tried a second time before it is told.
        auto removeBar = [&] { ToolBarSave(ctx, ctx.VBInstance->CommandBars(), u""); };
        if (!ignoringErrors(removeBar)) guarded(ctx, Str(kModule) + u"AddinInstance_OnDisconnection", removeBar);
        ctx.TimerForm.reset();
        AddInTerminate(ctx);
    } catch (...) {
    }
    context_.reset();
}

void Connect::AddinInstance_OnAddInsUpdate() noexcept {
    // Only an add-in connected after the editor's start shows its windows here.
    if (!context_ || connectMode_ != ext_cm_AfterStartup) return;
    guarded(*context_, Str(kModule) + u"AddinInstance_OnAddInsUpdate", [&] { showToolWindowsPerSettings(*context_); });
}

basic::DispatchPtr& HostConnector::slot() {
    switch (kind_) {
    case ConnectorKind::Excel: return hostApps_->ExcelApp;
    case ConnectorKind::Word: return hostApps_->WordApp;
    default: return hostApps_->AccessApp;
    }
}

void HostConnector::AddinInstance_OnConnection(const basic::DispatchPtr& application) noexcept {
    ignoringErrors([&] {
        if (application && basic::Like(application->TypeName(), u"Application")) slot() = application;
    });
}

void HostConnector::AddinInstance_OnDisconnection() noexcept {
    ignoringErrors([&] { slot().reset(); });
}

}  // namespace quillet::addin
