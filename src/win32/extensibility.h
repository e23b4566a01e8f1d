#pragma once
// The add-in designer's _IDTExtensibility2, declared by hand (no type library ships with the
// add-in): a dual interface whose five methods follow the seven of IDispatch.

#include <windows.h>
#include <oaidl.h>

namespace quillet::win32 {

// ext_DisconnectMode
enum DisconnectMode : long { ext_dm_HostShutdown = 0, ext_dm_UserClosed = 1 };

// DISPIDs of the five methods.
enum ExtensibilityDispId : DISPID {
    kDispOnConnection = 1,
    kDispOnDisconnection = 2,
    kDispOnAddInsUpdate = 3,
    kDispOnStartupComplete = 4,
    kDispOnBeginShutdown = 5,
};

struct IDTExtensibility2 : public IDispatch {
    virtual HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* application, long connectMode, IDispatch* addInInst,
                                                   SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnDisconnection(long removeMode, SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) = 0;
};

}  // namespace quillet::win32
