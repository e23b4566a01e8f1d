#pragma once
// Quillet.ExcelConnect, Quillet.WordConnect, Quillet.AccessConnect: what an Office application
// loads beside the editor's add-in, so that the add-in holds the application object.

#include "addin/connect.h"
#include "win32/extensibility_object.h"

namespace quillet::win32 {

class ConnectorObject : public ExtensibilityObject {
public:
    explicit ConnectorObject(addin::ConnectorKind kind) : connector_(kind, module().hostApplications()) {}

    HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* application, long connectMode, IDispatch* addInInst,
                                           SAFEARRAY** custom) override;
    HRESULT STDMETHODCALLTYPE OnDisconnection(long removeMode, SAFEARRAY** custom) override;

private:
    addin::HostConnector connector_;
};

}  // namespace quillet::win32
