#include "hosts/memory/vbe.h"

#include "hosts/memory/code_module.h"
#include "hosts/memory/code_pane.h"
#include "hosts/memory/command_bars.h"
#include "hosts/memory/components.h"
#include "hosts/memory/dispatch.h"
#include "hosts/memory/events.h"
#include "hosts/memory/project.h"
#include "hosts/memory/windows.h"

namespace quillet::hosts::memory {

std::shared_ptr<MemoryVBE> MemoryVBE::create(MemoryOptions options) {
    std::shared_ptr<MemoryVBE> vbe(new MemoryVBE(std::move(options)));
    vbe->init();
    return vbe;
}

MemoryVBE::MemoryVBE(MemoryOptions options) : options_(std::move(options)) {}

MemoryVBE::~MemoryVBE() = default;

void MemoryVBE::init() {
    std::weak_ptr<MemoryVBE> self = weak_from_this();
    auto activeName = [self]() -> Str {
        auto vbe = self.lock();
        auto project = vbe ? vbe->activeProject() : nullptr;
        return project ? project->name() : Str();
    };
    mainWindow_ = std::make_shared<MemoryWindow>(
        self, host::vbext_wt_MainWindow,
        [self, activeName] {
            auto vbe = self.lock();
            Str caption = vbe ? vbe->options().mainWindowCaption : Str();
            Str project = activeName();
            return project.empty() ? caption : caption + u" - " + project;
        },
        newHandle());
    projectWindow_ = std::make_shared<MemoryWindow>(
        self, host::vbext_wt_ProjectWindow,
        [activeName] {
            Str project = activeName();
            return project.empty() ? Str(u"Project") : u"Project - " + project;
        },
        newHandle());
    propertiesWindow_ = std::make_shared<MemoryWindow>(
        self, host::vbext_wt_PropertyWindow, [] { return Str(u"Properties"); }, newHandle());
    immediateWindow_ = std::make_shared<MemoryWindow>(
        self, host::vbext_wt_Immediate, [] { return Str(u"Immediate"); }, newHandle());
    dialogHandle_ = newHandle();
    commandBars_ = MemoryCommandBars::create(self);
    focus_ = mainWindow_->hWnd();
}

std::shared_ptr<MemoryProject> MemoryVBE::addProject(const Str& name, const Str& fileName, const Str& hostName) {
    auto project = std::make_shared<MemoryProject>(weak_from_this(), name, fileName);
    project->references() = standardReferences(hostName);
    projects_.push_back(project);
    if (!activeProject()) activeProject_ = project;
    return pin(project);
}

std::shared_ptr<MemoryProject> MemoryVBE::project(const Str& name) const {
    for (const auto& p : projects_)
        if (sameText(p->name(), name)) return pin(p);
    return nullptr;
}

void MemoryVBE::removeProject(const std::shared_ptr<MemoryProject>& project) {
    for (const auto& component : project->components())
        if (auto pane = paneOf(*component)) closePane(pane);
    takeOut(projects_, project.get());
    if (activeProject() == project || !activeProject())
        activeProject_ = projects_.empty() ? nullptr : projects_.front();
}

std::shared_ptr<MemoryProject> MemoryVBE::activeProject() const { return pin(activeProject_.lock()); }

void MemoryVBE::setActiveProject(const std::shared_ptr<MemoryProject>& project) { activeProject_ = project; }

std::shared_ptr<MemoryCodePane> MemoryVBE::openPane(const std::shared_ptr<MemoryComponent>& component, bool activate) {
    if (!component || !component->codeModule()) return nullptr;
    auto pane = paneOf(*component);
    if (!pane) {
        pane = std::make_shared<MemoryCodePane>(weak_from_this(), component->codeModule());
        std::weak_ptr<MemoryCodePane> weakPane = pane;
        auto window = std::make_shared<MemoryWindow>(
            weak_from_this(), host::vbext_wt_CodeWindow,
            [weakPane] {
                auto p = weakPane.lock();
                return p ? p->caption() : Str();
            },
            newHandle());
        window->onClose([self = weak_from_this(), weakPane] {
            auto vbe = self.lock();
            auto p = weakPane.lock();
            if (vbe && p) vbe->closePane(p);
        });
        pane->attachWindow(window);
        panes_.push_back(pane);
    }
    if (activate) {
        setActivePane(pane);
        if (!modalDialog_) focus_ = pane->window()->hWnd();
    }
    return pin(pane);
}

std::shared_ptr<MemoryCodePane> MemoryVBE::openPane(const Str& componentName, bool activate) {
    auto project = activeProject();
    return project ? openPane(project->component(componentName), activate) : nullptr;
}

std::shared_ptr<MemoryCodePane> MemoryVBE::paneOf(const MemoryComponent& component) const {
    for (const auto& pane : panes_)
        if (pane->codeModule() == component.codeModule()) return pin(pane);
    return nullptr;
}

std::shared_ptr<MemoryCodePane> MemoryVBE::activePane() const { return pin(activePane_.lock()); }

void MemoryVBE::setActivePane(const std::shared_ptr<MemoryCodePane>& pane) {
    activePane_ = pane;
    if (!pane) return;
    activeWindow_ = pane->window();
    if (auto component = pane->codeModule()->component()) {
        selectedComponent_ = component;
        if (auto project = component->project()) activeProject_ = project;
    }
}

void MemoryVBE::closePane(const std::shared_ptr<MemoryCodePane>& pane) {
    if (activePane() == pane) activePane_.reset();
    if (activeWindow() == pane->window()) activeWindow_.reset();
    if (focus_ == pane->window()->hWnd()) focus_ = mainWindow_->hWnd();
    takeOut(panes_, pane.get());
}

void MemoryVBE::setActiveWindow(ActiveWindowKind kind) {
    switch (kind) {
    case ActiveWindowKind::None: activeWindow_.reset(); break;
    case ActiveWindowKind::Code: {
        auto pane = activePane();
        activeWindow_ = pane ? pane->window() : nullptr;
        break;
    }
    case ActiveWindowKind::Immediate: activeWindow_ = immediateWindow_; break;
    case ActiveWindowKind::Project: activeWindow_ = projectWindow_; break;
    case ActiveWindowKind::Designer: {
        auto component = selectedComponent();
        activeWindow_ = component && component->hasDesigner() ? designerWindowOf(component) : nullptr;
        break;
    }
    }
}

void MemoryVBE::setActiveWindow(const std::shared_ptr<MemoryWindow>& window) { activeWindow_ = window; }

std::shared_ptr<MemoryWindow> MemoryVBE::activeWindow() const { return pin(activeWindow_.lock()); }

void MemoryVBE::setSelectedComponent(const std::shared_ptr<MemoryComponent>& component) {
    selectedComponent_ = component;
}

std::shared_ptr<MemoryComponent> MemoryVBE::selectedComponent() const { return pin(selectedComponent_.lock()); }

Str MemoryVBE::immediateText() const { return immediateWindow_->text(); }

void MemoryVBE::clearImmediate() { immediateWindow_->text().clear(); }

std::vector<std::shared_ptr<MemoryWindow>> MemoryVBE::allWindows() const {
    std::vector<std::shared_ptr<MemoryWindow>> all{mainWindow_, projectWindow_, propertiesWindow_, immediateWindow_};
    for (const auto& pane : panes_) all.push_back(pane->window());
    all.insert(all.end(), extraWindows_.begin(), extraWindows_.end());
    for (auto& window : all) window = pin(window);
    return all;
}

std::shared_ptr<MemoryWindow> MemoryVBE::windowOf(host::WindowHandle handle) const {
    for (const auto& window : allWindows())
        if (window->hWnd() == handle) return window;
    return nullptr;
}

std::shared_ptr<MemoryWindow> MemoryVBE::designerWindowOf(const std::shared_ptr<MemoryComponent>& component) {
    if (auto open = component->openDesignerWindow()) return pin(open);
    std::weak_ptr<MemoryComponent> weakComponent = component;
    auto window = std::make_shared<MemoryWindow>(
        weak_from_this(), host::vbext_wt_Designer,
        [weakComponent] {
            auto c = weakComponent.lock();
            auto project = c ? c->project() : nullptr;
            return c && project ? project->name() + u" - " + c->name() + u" (UserForm)" : Str();
        },
        newHandle());
    std::weak_ptr<MemoryWindow> weakWindow = window;
    window->onClose([self = weak_from_this(), weakWindow] {
        auto vbe = self.lock();
        auto w = weakWindow.lock();
        if (!vbe || !w) return;
        if (vbe->activeWindow() == w) vbe->activeWindow_.reset();
        vbe->takeOut(vbe->extraWindows_, w.get());
    });
    extraWindows_.push_back(window);
    component->setDesignerWindow(window);
    return pin(window);
}

void MemoryVBE::setFocusedWindow(host::WindowHandle handle) { focus_ = handle; }

void MemoryVBE::focusWindow(const std::shared_ptr<MemoryWindow>& window) {
    if (modalDialog_) return;
    focus_ = window->hWnd();
    activeWindow_ = window;
    for (const auto& pane : panes_)
        if (pane->window() == window) setActivePane(pane);
}

void MemoryVBE::setModalDialog(bool up) {
    if (up == modalDialog_) return;
    modalDialog_ = up;
    if (up) {
        focusBeforeDialog_ = focus_;
        focus_ = dialogHandle_;
    } else {
        focus_ = focusBeforeDialog_;
    }
}

bool MemoryVBE::pasteIntoFocusedWindow(const Str& text) {
    if (focus_ != immediateWindow_->hWnd()) return false;
    immediateWindow_->text() += text;
    return true;
}

void MemoryVBE::registerDocument(const Str& progId, DocumentFactory factory) {
    documentFactories_[foldedKey(progId)] = std::move(factory);
}

std::shared_ptr<MemoryWindow> MemoryVBE::createToolWindow(const Str& progId, const Str& caption,
                                                          basic::DispatchPtr& docObj) {
    auto factory = documentFactories_.find(foldedKey(progId));
    docObj = factory != documentFactories_.end() ? factory->second() : std::make_shared<MemoryDispatch>(u"UserDocument");
    auto window = std::make_shared<MemoryWindow>(
        weak_from_this(), host::vbext_wt_ToolWindow, [caption] { return caption; }, newHandle());
    window->Visible(false);
    window->setDocument(docObj);
    extraWindows_.push_back(window);
    return pin(window);
}

host::VBProjectPtr MemoryVBE::ActiveVBProject() { return activeProject(); }
host::VBProjectsPtr MemoryVBE::VBProjects() { return std::make_shared<MemoryProjects>(shared_from_this()); }
host::CodePanePtr MemoryVBE::ActiveCodePane() { return activePane(); }
host::CodePanesPtr MemoryVBE::CodePanes() { return std::make_shared<MemoryCodePanes>(shared_from_this()); }
host::WindowPtr MemoryVBE::ActiveWindow() { return activeWindow(); }
host::VBComponentPtr MemoryVBE::SelectedVBComponent() { return selectedComponent(); }
host::WindowsPtr MemoryVBE::Windows() { return std::make_shared<MemoryWindows>(shared_from_this()); }
host::WindowPtr MemoryVBE::MainWindow() { return mainWindow(); }
host::CommandBarsPtr MemoryVBE::CommandBars() { return commandBars(); }
host::EventsPtr MemoryVBE::Events() { return std::make_shared<MemoryEvents>(); }
Str MemoryVBE::Version() { return options_.version; }

}  // namespace quillet::hosts::memory
