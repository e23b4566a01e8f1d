#pragma once
// The in-memory editor: the VBE object and the test-facing API around it. A test (or the
// command-line tool, or the file host) builds an editor like this:
//
//     auto vbe = MemoryVBE::create();
//     auto project = vbe->addProject(u"VBAProject", u"C:\\Book1.xlsm", u"Excel");
//     auto module = project->addComponent(u"Module1", host::vbext_ct_StdModule, {u"Option Explicit"});
//     auto pane = vbe->openPane(module);          // active pane, code window active
//     pane->SetSelection(1, 1, 1, 1);
//     host::VBEPtr editor = vbe;                   // what the logic is given
//
// Everything the logic sees goes through the abstract classes of host/objects.h; the members
// in lowerCamelCase here are for tests and tools only.
//
// Lifetime works as with COM references: every object the editor hands out (through the
// abstract classes or this API) keeps the whole editor alive while it is held, and an object
// taken out of the editor (a removed component, a closed pane, a deleted control) stays usable
// by whoever still holds it.

#include <map>
#include <memory>
#include <vector>

#include "host/objects.h"
#include "hosts/memory/options.h"

namespace quillet::hosts::memory {

class MemoryProject;
class MemoryComponent;
class MemoryCodePane;
class MemoryWindow;
class MemoryCommandBars;

// Which window ActiveWindow gives.
enum class ActiveWindowKind { None, Code, Immediate, Designer, Project };

class MemoryVBE : public host::VBE, public std::enable_shared_from_this<MemoryVBE> {
public:
    // VBComponents.Import(path) is handed to the importer (the file host provides one); it adds
    // the component to the project and returns it. Without one, Import raises 53.
    using Importer = std::function<std::shared_ptr<MemoryComponent>(MemoryProject& project, const Str& path)>;
    // VBComponent.Export(path) is handed to the exporter. Without one, Export raises 75.
    using Exporter = std::function<void(MemoryComponent& component, const Str& path)>;
    // Makes the document object of a tool window (CreateToolWindow's docObj) for a ProgId.
    using DocumentFactory = std::function<basic::DispatchPtr()>;

    static std::shared_ptr<MemoryVBE> create(MemoryOptions options = {});
    ~MemoryVBE() override;

    MemoryOptions& options() { return options_; }

    // --- projects -------------------------------------------------------------------------
    // Adds a project with the references VBA and hostName ("Excel", "Access", "Word", "VBRUN"
    // ...). An empty fileName is a project never saved. The first project added is active.
    std::shared_ptr<MemoryProject> addProject(const Str& name, const Str& fileName = {},
                                              const Str& hostName = u"Excel");
    const std::vector<std::shared_ptr<MemoryProject>>& projects() const { return projects_; }
    // By name ignoring case, or none.
    std::shared_ptr<MemoryProject> project(const Str& name) const;
    void removeProject(const std::shared_ptr<MemoryProject>& project);
    std::shared_ptr<MemoryProject> activeProject() const;
    void setActiveProject(const std::shared_ptr<MemoryProject>& project);

    // --- panes and windows ----------------------------------------------------------------
    // The module's pane, opened if needed; with activate, it becomes the active pane and its
    // code window the active window (and gets the focus).
    std::shared_ptr<MemoryCodePane> openPane(const std::shared_ptr<MemoryComponent>& component, bool activate = true);
    // The same for a component of the active project, by name; none when there is no such one.
    std::shared_ptr<MemoryCodePane> openPane(const Str& componentName, bool activate = true);
    // The pane of a module, or none when it has no open pane.
    std::shared_ptr<MemoryCodePane> paneOf(const MemoryComponent& component) const;
    const std::vector<std::shared_ptr<MemoryCodePane>>& panes() const { return panes_; }
    std::shared_ptr<MemoryCodePane> activePane() const;
    // Makes the pane active (none: no active pane) and, for a pane, its window the active window.
    void setActivePane(const std::shared_ptr<MemoryCodePane>& pane);
    void closePane(const std::shared_ptr<MemoryCodePane>& pane);

    // Code: the active pane's window (none without an active pane); Designer: the designer
    // window of the selected component (opened if needed), else none.
    void setActiveWindow(ActiveWindowKind kind);
    void setActiveWindow(const std::shared_ptr<MemoryWindow>& window);
    std::shared_ptr<MemoryWindow> activeWindow() const;

    void setSelectedComponent(const std::shared_ptr<MemoryComponent>& component);
    std::shared_ptr<MemoryComponent> selectedComponent() const;

    std::shared_ptr<MemoryWindow> mainWindow() const { return pin(mainWindow_); }
    std::shared_ptr<MemoryWindow> immediateWindow() const { return pin(immediateWindow_); }
    std::shared_ptr<MemoryWindow> projectWindow() const { return pin(projectWindow_); }
    // What was pasted into the Immediate window so far.
    Str immediateText() const;
    void clearImmediate();
    // Every window the Windows collection lists, in its order.
    std::vector<std::shared_ptr<MemoryWindow>> allWindows() const;
    // The window with that handle, or none.
    std::shared_ptr<MemoryWindow> windowOf(host::WindowHandle handle) const;
    // Opens (or returns) the designer window of a component with a designer.
    std::shared_ptr<MemoryWindow> designerWindowOf(const std::shared_ptr<MemoryComponent>& component);

    // --- focus ----------------------------------------------------------------------------
    host::WindowHandle focusedWindow() const { return focus_; }
    void setFocusedWindow(host::WindowHandle handle);
    // While a modal dialog of the host is up, every Window.SetFocus leaves the focus on it.
    void setModalDialog(bool up);
    bool modalDialog() const { return modalDialog_; }
    host::WindowHandle modalDialogHandle() const { return dialogHandle_; }
    // What SendKeys "^v" does: the text is appended to the Immediate window when it has the
    // focus. Returns whether it went anywhere.
    bool pasteIntoFocusedWindow(const Str& text);

    // --- files and tool windows ------------------------------------------------------------
    void setImporter(Importer importer) { importer_ = std::move(importer); }
    void setExporter(Exporter exporter) { exporter_ = std::move(exporter); }
    const Importer& importer() const { return importer_; }
    const Exporter& exporter() const { return exporter_; }
    void registerDocument(const Str& progId, DocumentFactory factory);
    // A new tool window (Type 15) holding the document made for progId (a generic object if no
    // factory is registered).
    std::shared_ptr<MemoryWindow> createToolWindow(const Str& progId, const Str& caption, basic::DispatchPtr& docObj);

    // --- command bars ---------------------------------------------------------------------
    std::shared_ptr<MemoryCommandBars> commandBars() const { return pin(commandBars_); }

    // --- internal -------------------------------------------------------------------------
    host::WindowHandle newHandle() { return nextHandle_ += 2; }
    // The object, as a reference that keeps this editor alive.
    template <class T>
    std::shared_ptr<T> pin(const std::shared_ptr<T>& object) const {
        return object ? std::shared_ptr<T>(shared_from_this(), object.get()) : nullptr;
    }
    // Takes the object out of the list that owns it, keeping it alive as long as the editor
    // (whoever still holds it can go on using it).
    template <class T>
    void takeOut(std::vector<std::shared_ptr<T>>& owner, const void* object) {
        for (auto it = owner.begin(); it != owner.end(); ++it) {
            if (it->get() != object) continue;
            retired_.push_back(std::move(*it));
            owner.erase(it);
            return;
        }
    }
    // What Window.SetFocus does: the window gets the focus and becomes the active window (a
    // code window's pane the active pane), unless a modal dialog holds the focus.
    void focusWindow(const std::shared_ptr<MemoryWindow>& window);

    // host::VBE
    host::VBProjectPtr ActiveVBProject() override;
    host::VBProjectsPtr VBProjects() override;
    host::CodePanePtr ActiveCodePane() override;
    host::CodePanesPtr CodePanes() override;
    host::WindowPtr ActiveWindow() override;
    host::VBComponentPtr SelectedVBComponent() override;
    host::WindowsPtr Windows() override;
    host::WindowPtr MainWindow() override;
    host::CommandBarsPtr CommandBars() override;
    host::EventsPtr Events() override;
    Str Version() override;

private:
    explicit MemoryVBE(MemoryOptions options);
    void init();

    MemoryOptions options_;
    std::vector<std::shared_ptr<MemoryProject>> projects_;
    std::weak_ptr<MemoryProject> activeProject_;
    std::vector<std::shared_ptr<MemoryCodePane>> panes_;
    std::weak_ptr<MemoryCodePane> activePane_;
    std::weak_ptr<MemoryWindow> activeWindow_;
    std::weak_ptr<MemoryComponent> selectedComponent_;
    std::shared_ptr<MemoryWindow> mainWindow_;
    std::shared_ptr<MemoryWindow> projectWindow_;
    std::shared_ptr<MemoryWindow> propertiesWindow_;
    std::shared_ptr<MemoryWindow> immediateWindow_;
    std::vector<std::shared_ptr<MemoryWindow>> extraWindows_;  // designers and tool windows
    std::shared_ptr<MemoryCommandBars> commandBars_;
    host::WindowHandle nextHandle_ = 0x10000;
    host::WindowHandle focus_ = 0;
    host::WindowHandle focusBeforeDialog_ = 0;
    host::WindowHandle dialogHandle_ = 0;
    bool modalDialog_ = false;
    Importer importer_;
    Exporter exporter_;
    std::map<Str, DocumentFactory> documentFactories_;  // by folded ProgId
    std::vector<std::shared_ptr<void>> retired_;
};

}  // namespace quillet::hosts::memory
