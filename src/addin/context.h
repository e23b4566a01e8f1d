#pragma once
// The add-in's global state: one object, made at connection (or fresh by a test), owning
// everything the add-in keeps between commands. Members keep the system's names.

#include <functional>
#include <memory>
#include <vector>

#include "basic/dispatch.h"
#include "host/objects.h"
#include "platform/platform.h"

namespace quillet::addin {

using basic::Str;

class Connect;
class frmTimer;

// What the quick commands keep between the steps of one command: taken afresh for each.
struct QuickCommandState {
    Str Command;
    Str Type;
    Str CurrentWord;
    Str SuggestedName;
};

// The Office application objects that the connectors hold. They live beside the connection,
// because Office may load a connector before or after the editor connects the add-in.
struct HostApplications {
    const basic::DispatchPtr& ExcelApp() const { return hostApps_->ExcelApp; }
    const basic::DispatchPtr& WordApp() const { return hostApps_->WordApp; }
    const basic::DispatchPtr& AccessApp() const { return hostApps_->AccessApp; }
    HostApplications& hostApplications() { return *hostApps_; }
};

class Context {
public:
    Context(host::VBEPtr vbe, std::shared_ptr<platform::Platform> platform,
            std::shared_ptr<HostApplications> hostApps = std::make_shared<HostApplications>());
    ~Context();
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    platform::Platform& Platform() { return *platform_; }
    std::shared_ptr<platform::Platform> platformPtr() const { return platform_; }

    host::VBEPtr VBInstance;
    Connect* ConnectInstance = nullptr;
    const basic::DispatchPtr& ExcelApp() const { return hostApps_->ExcelApp; }
    const basic::DispatchPtr& WordApp() const { return hostApps_->WordApp; }
    const basic::DispatchPtr& AccessApp() const { return hostApps_->AccessApp; }
    HostApplications& hostApplications() { return *hostApps_; }
    Str HostName;
    Str CurrentProjectFile;
    bool TestingMode = false;
    short ShowMode = 1;
    std::unique_ptr<frmTimer> TimerForm;
    host::WindowPtr ShortcutsToolWindow, CodeExplorerToolWindow;
    basic::DispatchPtr ShortcutsDoc, CodeExplorerDoc;
    Str PendingReport;
    host::WindowHandle ImmediateWindowHandle = 0;
    bool ImmediateActive = false;
    Str CurrentCommand;
    std::vector<Str> Keywords;
    QuickCommandState Quick;

    // How often ProjectInitialize has run in this connection (the timer's project watch is
    // judged by it).
    long ProjectInitializeRuns = 0;

    // Where the add-in's reports also go (the quillet tool prints them to standard error).
    std::function<void(const Str& report)> reportListener;
    // Version shown in reports and the About box: Major.Minor.Revision.
    Str Version() const;
    // Support address in the first line of a report.
    Str SupportAddress = u"support@quillet.dev";

private:
    std::shared_ptr<platform::Platform> platform_;
    std::shared_ptr<HostApplications> hostApps_;
};

}  // namespace quillet::addin
