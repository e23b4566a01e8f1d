#pragma once
// The add-in's global state: one object, made at connection (or fresh by a test), owning
// everything the add-in keeps between commands. Members keep the system's names.

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "basic/dispatch.h"
#include "dialogs/form_stack.h"
#include "host/objects.h"
#include "platform/platform.h"
#include "settings/settings.h"
#include "source/prefixes.h"
#include "source/scan_module.h"
#include "source/scan_proc.h"
#include "source/scan_state.h"

namespace quillet::support {
class clsHtmlHelp;
}
// The add-in's connection and command bar, which the context keeps for the add-in's commands.
namespace quillet::addin {
class Connect;
struct CommandBarState;
}  // namespace quillet::addin

namespace quillet::core {

using basic::Str;

class frmTimer;

// What the quick commands keep between the steps of one command: taken afresh for each.
struct QuickCommandState {
    Str Command;
    Str Type;
    Str CurrentWord;
    Str SuggestedName;
    // The scans initialize takes for the command: the module's, and the procedure's (none outside
    // a procedure); the module's procedures, public ones included.
    std::shared_ptr<source::clsScanModule> ModuleScan;
    std::shared_ptr<source::clsScanProc> ProcScan;
    basic::Collection<source::C4_ProcDefPtr> ModuleProcs;
};

class Context;
// What the placeholder layer supplies to the commands that place code; each may be empty until it
// is there, and the commands then leave out that step.
struct FragmentServices {
    // ExpandHeader(kind, name, description): 10008 the module header, 10005 the procedure header.
    std::function<Str(Context&, long kind, const Str& name, const Str& description)> ExpandHeader;
    // ErrorHandleModuleAdd: imports the error-handling module named by the settings.
    std::function<void(Context&)> ErrorHandleModuleAdd;
    // NormalizeErrorHandlerCode(text, module, procedure, type, fModuleConst, fProcConst).
    std::function<void(Context&, Str& text, const Str& module, const Str& procedure, const Str& type, bool fModuleConst,
                       bool fProcConst)>
        NormalizeErrorHandlerCode;
    // FragmentToProcedureAdd(text, scan): spreads a text with markers over the procedure at the caret.
    std::function<void(Context&, Str& text, source::clsScanProc& scan)> FragmentToProcedureAdd;
};

// The Office application objects that the connectors hold. They live beside the connection,
// because Office may load a connector before or after the editor connects the add-in.
struct HostApplications {
    basic::DispatchPtr ExcelApp, WordApp, AccessApp;
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
    addin::Connect* ConnectInstance = nullptr;
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
    // The current settings (IniItemValue) and type prefixes, with the services they use.
    std::unique_ptr<settings::Settings> IniSettings;
    // The scan of the active project (ProjectProcs, ProjectVars, ProjectConsts, ProjectEnums,
    // ProjectTypes) and the prefix collections built from the settings.
    source::ProjectScanState Scan;
    source::PrefixTables Prefixes;
    // What a scanner is given: the editor, the scan, and HandleError for its failures.
    source::ScanEnv scanEnv();

    // How often ProjectInitialize has run in this connection (the timer's project watch is
    // judged by it).
    long ProjectInitializeRuns = 0;

    // Where the add-in's reports also go (the quillet tool prints them to standard error).
    std::function<void(const Str& report)> reportListener;
    // Version shown in reports and the About box: Major.Minor.Revision.
    Str Version() const;
    // Support address in the first line of a report.
    Str SupportAddress = u"support@quillet.dev";
    // The product's web site; the web commands add their page ("/support.htm") to it.
    Str WebSite = u"https://quillet.dev";

    // Routines of later layers by name, each taking one argument: the builders by their form
    // name ("frmVar", "frmProcedure" ...) and the project commands ("ImportFile", "ExportFile",
    // "LineNumbers", "AccessObjectInventory", "ControlsAddFormOpen", "frmTip"). The command
    // handlers open them by name; a name nobody registered does nothing.
    using Routine = std::function<void(Context& ctx, const Str& argument)>;
    std::map<Str, Routine> routines;
    // The open dialogs (the one on top gets the UI script's commands) and the dialogs that can be
    // opened by name; builders register their openers here and in `routines`.
    std::shared_ptr<dialogs::FormStack> Forms;
    // The date and time that {DATE} and {TIME} stand for; the local clock ("2024-05-31",
    // "14:05:09") unless a test sets a fixed one.
    std::function<Str()> DateText, TimeText;
    // Supplied by the layers that scan folders and code; empty until they are: the names of the
    // error handler templates (ErrorHandlersList), and whether "Explicit Argument" can complete
    // an argument at the caret (ExplicitArgumentAvailable).
    std::function<std::vector<Str>()> ErrorHandlersList;
    std::function<bool()> ExplicitArgumentAvailable;
    FragmentServices Fragments;
    // A choice from a list under a title ("Explicit Argument"); none for Cancel. Until the list
    // dialog is there, an input box lists the entries and takes an entry or its number.
    std::function<std::optional<Str>(Context&, const Str& title, const std::vector<Str>& items)> SelectFromList;
    // The command bar's controls and their click sinks, kept while connected.
    std::shared_ptr<addin::CommandBarState> commandBar;
    // The help file's service (basHTMLHelp makes it at its first use).
    std::shared_ptr<support::clsHtmlHelp> HtmlHelpObject;

private:
    std::shared_ptr<platform::Platform> platform_;
    std::shared_ptr<HostApplications> hostApps_;
};

}  // namespace quillet::core
