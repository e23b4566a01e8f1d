#pragma once
// The connection object the editor loads: brings the add-in up in a fixed order, takes it down,
// and answers the add-in manager. None of its entry points ever lets an exception out: the
// editor's process must not fall over because of the add-in.

#include <functional>
#include <memory>

#include "addin/core_names.h"
#include "core/context.h"

namespace quillet::addin {

// ext_ConnectMode
enum ConnectMode : long {
    ext_cm_AfterStartup = 0,
    ext_cm_Startup = 1,
    ext_cm_External = 2,
    ext_cm_CommandLine = 3,
};

class Connect {
public:
    explicit Connect(std::shared_ptr<platform::Platform> platform,
                     std::shared_ptr<HostApplications> hostApps = std::make_shared<HostApplications>());
    ~Connect();

    void AddinInstance_OnConnection(const host::VBEPtr& application, long connectMode,
                                    const basic::DispatchPtr& addInInst) noexcept;
    void AddinInstance_OnDisconnection(long removeMode) noexcept;
    void AddinInstance_OnAddInsUpdate() noexcept;
    void AddinInstance_OnStartupComplete() noexcept {}
    void AddinInstance_OnBeginShutdown() noexcept {}

    // Called with each new context before the add-in comes up (where the settings live, where
    // reports go); the Windows shell and tests set it.
    void prepareContext(std::function<void(Context&)> prepare) { prepare_ = std::move(prepare); }

    bool connected() const { return context_ != nullptr; }
    // The global state while connected.
    Context* context() { return context_.get(); }
    long ConnectModeValue() const { return connectMode_; }

private:
    void bringUp(const host::VBEPtr& application, const basic::DispatchPtr& addInInst);
    void createToolWindows(const basic::DispatchPtr& addInInst);

    std::shared_ptr<platform::Platform> platform_;
    std::shared_ptr<HostApplications> hostApps_;
    std::unique_ptr<Context> context_;
    std::function<void(Context&)> prepare_;
    long connectMode_ = 0;
};

// The three connectors the Office applications load beside Connect, so that the add-in holds
// its host's application object. They only set and clear their global; failures are ignored.
enum class ConnectorKind { Excel, Word, Access };

class HostConnector {
public:
    HostConnector(ConnectorKind kind, std::shared_ptr<HostApplications> hostApps)
        : kind_(kind), hostApps_(std::move(hostApps)) {}
    void AddinInstance_OnConnection(const basic::DispatchPtr& application) noexcept;
    void AddinInstance_OnDisconnection() noexcept;

private:
    basic::DispatchPtr& slot();

    ConnectorKind kind_;
    std::shared_ptr<HostApplications> hostApps_;
};

}  // namespace quillet::addin
