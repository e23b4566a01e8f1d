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

class Context {
public:
    Context(host::VBEPtr vbe, std::shared_ptr<platform::Platform> platform);
    ~Context();
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    platform::Platform& Platform() { return *platform_; }
    std::shared_ptr<platform::Platform> platformPtr() const { return platform_; }

    host::VBEPtr VBInstance;
    Connect* ConnectInstance = nullptr;
    basic::DispatchPtr ExcelApp, WordApp, AccessApp;
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

    // Where the add-in's reports also go (the quillet tool prints them to standard error).
    std::function<void(const Str& report)> reportListener;
    // Version shown in reports and the About box: Major.Minor.Revision.
    Str Version() const;
    // Support address in the first line of a report.
    Str SupportAddress = u"support@quillet.dev";

private:
    std::shared_ptr<platform::Platform> platform_;
};

}  // namespace quillet::addin
