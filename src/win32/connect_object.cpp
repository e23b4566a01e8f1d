#include "win32/connect_object.h"

#include "core/err_handler.h"
#include "core/frm_timer.h"
#include "builders/builder_layouts.h"
#include "hosts/com/com_dispatch.h"
#include "hosts/com/com_host.h"
#include "platform/win/win_platform.h"
#include "platform/win/win_profile.h"

namespace quillet::win32 {

ConnectObject::ConnectObject() = default;

ConnectObject::~ConnectObject() {
    try {
        views_.reset();
        timers_.reset();
        connect_.reset();
    } catch (...) {
    }
}

core::frmTimer* ConnectObject::timerForm() {
    core::Context* ctx = connect_ ? connect_->context() : nullptr;
    return ctx ? ctx->TimerForm.get() : nullptr;
}

void ConnectObject::syncTimers() noexcept {
    if (timers_) timers_->sync();
}

HRESULT ConnectObject::OnConnection(IDispatch* application, long connectMode, IDispatch* addInInst, SAFEARRAY**) {
    try {
        // Without the editor there is nothing to connect to.
        if (!application) return S_OK;
        if (!connect_) {
            connect_ = std::make_unique<addin::Connect>(std::make_shared<platform::win::WinPlatform>(module().handle()),
                                                        module().hostApplications());
            // Reports also go to the debugger's output, where a tool such as DebugView shows them.
            connect_->prepareContext([this](core::Context& ctx) {
                // The settings files go through the Windows profile functions themselves.
                ctx.IniSettings->setProfile(std::make_unique<platform::win::WinProfile>());
                ctx.reportListener = [](const basic::Str& report) {
                    std::wstring text(report.begin(), report.end());
                    OutputDebugStringW((L"Quillet: " + text + L"\n").c_str());
                };
                // Each form shown on the context's stack gets its window. Without them the
                // add-in still connects.
                views_.reset();
                core::ignoringErrors([&] {
                    dialogs::LayoutCatalog layouts;
                    builders::AddBuilderLayouts(layouts);
                    views_ = std::make_unique<view::DialogViews>(ctx, module().handle(), std::move(layouts));
                });
            });
        }
        // A connection over an earlier one takes its context down first, and its windows before it.
        if (connect_->connected()) views_.reset();
        if (!timers_) timers_ = std::make_shared<TimerWindow>(module().handle(), [this] { return timerForm(); });
        // A click may change an interval: the timers catch up after each one.
        std::weak_ptr<TimerWindow> timers = timers_;
        auto afterClick = [timers] {
            if (auto t = timers.lock()) t->sync();
        };
        connect_->AddinInstance_OnConnection(hosts::com::makeVBE(application, afterClick), connectMode,
                                             hosts::com::wrapDispatch(addInInst));
    } catch (...) {
        // The editor switches off for good an add-in whose connection fails: it never sees one.
    }
    syncTimers();
    return S_OK;
}

HRESULT ConnectObject::OnDisconnection(long removeMode, SAFEARRAY**) {
    try {
        // The windows go first: the forms and the context they show are taken down next.
        views_.reset();
        if (connect_) connect_->AddinInstance_OnDisconnection(removeMode);
        // Every editor object the add-in held goes with the connection.
        connect_.reset();
    } catch (...) {
    }
    syncTimers();
    return S_OK;
}

HRESULT ConnectObject::OnAddInsUpdate(SAFEARRAY**) {
    try {
        if (connect_) connect_->AddinInstance_OnAddInsUpdate();
    } catch (...) {
    }
    syncTimers();
    return S_OK;
}

HRESULT ConnectObject::OnStartupComplete(SAFEARRAY**) {
    try {
        if (connect_) connect_->AddinInstance_OnStartupComplete();
    } catch (...) {
    }
    syncTimers();
    return S_OK;
}

HRESULT ConnectObject::OnBeginShutdown(SAFEARRAY**) {
    try {
        if (connect_) connect_->AddinInstance_OnBeginShutdown();
    } catch (...) {
    }
    syncTimers();
    return S_OK;
}

}  // namespace quillet::win32
