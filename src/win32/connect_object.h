#pragma once
// Quillet.Connect: the object the editor loads. It hands the editor's Application object,
// wrapped as the host object model, to the add-in's connection, and never lets a failure or
// an exception back into the editor.

#include <memory>

#include "addin/connect.h"
#include "win32/extensibility_object.h"

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

private:
    std::unique_ptr<addin::Connect> connect_;
};

}  // namespace quillet::win32
