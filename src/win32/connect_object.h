#pragma once
// Quillet.Connect: the object the editor loads. It hands the editor's Application object,
// wrapped as the host object model, to the add-in's connection, runs frmTimer's timers while
// connected, and never lets a failure or an exception back into the editor.

#include <memory>

#include "addin/connect.h"
#include "win32/extensibility_object.h"
#include "win32/timer_window.h"
#include "win32/view/dialog_views.h"

namespace quillet::win32 {

class ConnectObject : public ExtensibilityObject {
public:
    ConnectObject();
    ~ConnectObject() override;

    HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* application, long connectMode, IDispatch* addInInst,
                                           SAFEARRAY** custom) override;
    HRESULT STDMETHODCALLTYPE OnDisconnection(long removeMode, SAFEARRAY** custom) override;
    HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) override;
    HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) override;
    HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) override;

    // The timers' window (tests read which timers run); null before the first connection.
    const TimerWindow* timers() const { return timers_.get(); }

private:
    core::frmTimer* timerForm();
    // The timers follow the form's intervals after each call into the add-in.
    void syncTimers() noexcept;

    std::unique_ptr<addin::Connect> connect_;
    std::shared_ptr<TimerWindow> timers_;
    // The dialogs' windows over the connection's form stack; they go before the context does.
    std::unique_ptr<view::DialogViews> views_;
};

}  // namespace quillet::win32
