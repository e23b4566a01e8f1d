#include "win32/connector_object.h"

#include "hosts/com/com_dispatch.h"

namespace quillet::win32 {

HRESULT ConnectorObject::OnConnection(IDispatch* application, long, IDispatch*, SAFEARRAY**) {
    try {
        connector_.AddinInstance_OnConnection(hosts::com::wrapDispatch(application));
    } catch (...) {
    }
    return S_OK;
}

HRESULT ConnectorObject::OnDisconnection(long, SAFEARRAY**) {
    try {
        connector_.AddinInstance_OnDisconnection();
    } catch (...) {
    }
    return S_OK;
}

}  // namespace quillet::win32
