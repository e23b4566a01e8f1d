#include "win32/connect_object.h"

#include "hosts/com/com_dispatch.h"
#include "hosts/com/com_host.h"
#include "platform/win/win_platform.h"

namespace quillet::win32 {

ConnectObject::ConnectObject() = default;

ConnectObject::~ConnectObject() {
    try {
        connect_.reset();
    } catch (...) {
    }
}

HRESULT ConnectObject::OnConnection(IDispatch* application, long connectMode, IDispatch* addInInst, SAFEARRAY**) {
    try {
        // Without the editor there is nothing to connect to.
        if (!application) return S_OK;
        if (!connect_) {
            connect_ = std::make_unique<addin::Connect>(std::make_shared<platform::win::WinPlatform>(module().handle()),
                                                        module().hostApplications());
        }
        connect_->AddinInstance_OnConnection(hosts::com::makeVBE(application), connectMode,
                                             hosts::com::wrapDispatch(addInInst));
    } catch (...) {
        // The editor switches off for good an add-in whose connection fails: it never sees one.
    }
    return S_OK;
}

HRESULT ConnectObject::OnDisconnection(long removeMode, SAFEARRAY**) {
    try {
        if (connect_) connect_->AddinInstance_OnDisconnection(removeMode);
        // Every editor object the add-in held goes with the connection.
        connect_.reset();
    } catch (...) {
    }
    return S_OK;
}

HRESULT ConnectObject::OnAddInsUpdate(SAFEARRAY**) {
    try {
        if (connect_) connect_->AddinInstance_OnAddInsUpdate();
    } catch (...) {
    }
    return S_OK;
}

HRESULT ConnectObject::OnStartupComplete(SAFEARRAY**) {
    try {
        if (connect_) connect_->AddinInstance_OnStartupComplete();
    } catch (...) {
    }
    return S_OK;
}

HRESULT ConnectObject::OnBeginShutdown(SAFEARRAY**) {
    try {
        if (connect_) connect_->AddinInstance_OnBeginShutdown();
    } catch (...) {
    }
    return S_OK;
}

}  // namespace quillet::win32
