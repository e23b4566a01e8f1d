#include "hosts/memory/components.h"

#include "hosts/memory/code_module.h"
#include "hosts/memory/code_pane.h"
#include "hosts/memory/dispatch.h"
#include "hosts/memory/pin.h"
#include "hosts/memory/project.h"
#include "hosts/memory/vbe.h"
#include "hosts/memory/windows.h"

namespace quillet::hosts::memory {

namespace {

using basic::VbError;

bool isLetter(char16_t c) { return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c >= 0xC0; }

bool hasCode(long type) { return type != host::vbext_ct_ResFile && type != host::vbext_ct_RelatedDocument; }

std::shared_ptr<MemoryProject> lockProject(const std::shared_ptr<MemoryProject>& project) {
    if (project->Protection() == host::vbext_pp_locked) throw protectedProjectError();
    return project;
}

}  // namespace

basic::VbError nameConflictError() {
    return VbError(32813, u"Name conflicts with existing module, project, or object library");
}

bool isValidComponentName(const Str& name) {
    if (name.empty() || name.size() > 31 || !isLetter(name.front())) return false;
    for (char16_t c : name)
        if (!isLetter(c) && !(c >= u'0' && c <= u'9') && c != u'_') return false;
    return true;
}

MemoryComponent::MemoryComponent(std::weak_ptr<MemoryProject> project, Str name, long type)
    : project_(std::move(project)), name_(std::move(name)), type_(type) {}

std::shared_ptr<MemoryVBE> MemoryComponent::vbe() const {
    auto project = project_.lock();
    return project ? project->vbe() : nullptr;
}

std::vector<Str> MemoryComponent::lines() const { return codeModule_ ? codeModule_->lines() : std::vector<Str>(); }

void MemoryComponent::setLines(std::vector<Str> lines) {
    if (!codeModule_) throw VbError::standard(basic::err::NotSupported);
    codeModule_->setLines(std::move(lines));
}

Str MemoryComponent::text() const {
    auto all = lines();
    return joinLines(all, 0, all.size());
}

void MemoryComponent::setText(const Str& text) {
    setLines(text.empty() ? std::vector<Str>() : splitLines(text, false));
}

long MemoryComponent::changeCount() const { return codeModule_ ? codeModule_->changeCount() : 0; }

bool MemoryComponent::hasDesigner() const {
    return type_ == host::vbext_ct_MSForm || type_ == host::vbext_ct_VBForm || type_ == host::vbext_ct_VBMDIForm ||
           type_ == host::vbext_ct_UserControl || type_ == host::vbext_ct_PropPage ||
           type_ == host::vbext_ct_ActiveXDesigner || type_ == host::vbext_ct_DocObject;
}

void MemoryComponent::Name(const Str& name) {
    if (!isValidComponentName(name)) throw VbError::standard(basic::err::InvalidCall);
    if (auto project = project_.lock()) {
        auto other = project->component(name);
        if (other && other.get() != this) throw nameConflictError();
    }
    name_ = name;
}

host::CodeModulePtr MemoryComponent::CodeModule() {
    if (!codeModule_ && hasCode(type_)) codeModule_ = std::make_shared<MemoryCodeModule>(weak_from_this());
    return pinned(vbe(), codeModule_);
}

basic::DispatchPtr MemoryComponent::Designer() {
    if (!hasDesigner()) return nullptr;
    if (!designer_) designer_ = std::make_shared<MemoryDispatch>(u"UserForm");
    return pinned(vbe(), designer_);
}

host::WindowPtr MemoryComponent::DesignerWindow() {
    if (!hasDesigner()) throw VbError::standard(basic::err::InvalidCall);
    auto vbe = this->vbe();
    if (!vbe) throw VbError::standard(basic::err::ObjectNotSet);
    return vbe->designerWindowOf(shared_from_this());
}

basic::DispatchPtr MemoryComponent::Properties() {
    if (!properties_) properties_ = std::make_shared<MemoryDispatch>(u"Properties");
    return pinned(vbe(), properties_);
}

void MemoryComponent::Export(const Str& path) {
    auto vbe = this->vbe();
    if (!vbe || !vbe->exporter()) throw VbError::standard(basic::err::PathFileAccess);
    vbe->exporter()(*this, path);
}

void MemoryComponent::Activate() {
    auto vbe = this->vbe();
    if (!vbe) return;
    vbe->setSelectedComponent(shared_from_this());
    if (hasDesigner()) {
        vbe->setActiveWindow(vbe->designerWindowOf(shared_from_this()));
    } else if (CodeModule()) {
        vbe->openPane(shared_from_this(), true);
    }
}

long MemoryComponents::Count() { return static_cast<long>(lockProject(project_)->components().size()); }

host::VBComponentPtr MemoryComponents::Item(long index) {
    const auto& all = lockProject(project_)->components();
    if (index < 1 || index > static_cast<long>(all.size())) throw VbError::standard(basic::err::SubscriptOutOfRange);
    return pinned(project_->vbe(), all[index - 1]);
}

host::VBComponentPtr MemoryComponents::Item(const Str& name) {
    auto component = lockProject(project_)->component(name);
    if (!component) throw VbError::standard(basic::err::SubscriptOutOfRange);
    return component;
}

host::VBComponentPtr MemoryComponents::Add(long componentType) {
    lockProject(project_);
    const char16_t* prefix = componentType == host::vbext_ct_StdModule     ? u"Module"
                             : componentType == host::vbext_ct_ClassModule ? u"Class"
                             : componentType == host::vbext_ct_MSForm      ? u"UserForm"
                                                                           : nullptr;
    if (!prefix) throw VbError::standard(basic::err::InvalidCall);
    auto vbe = project_->vbe();
    std::vector<Str> lines = vbe ? vbe->options().newModuleLines : std::vector<Str>();
    return project_->addComponent(project_->freeName(prefix), componentType, lines);
}

void MemoryComponents::Remove(const host::VBComponentPtr& component) {
    lockProject(project_);
    auto memory = std::dynamic_pointer_cast<MemoryComponent>(component);
    if (!memory || memory->project() != project_ || memory->isDocument())
        throw VbError::standard(basic::err::InvalidCall);
    project_->removeComponent(memory);
}

host::VBComponentPtr MemoryComponents::Import(const Str& path) {
    lockProject(project_);
    auto vbe = project_->vbe();
    if (!vbe || !vbe->importer()) throw VbError::standard(basic::err::FileNotFound);
    return pinned(vbe, vbe->importer()(*project_, path));
}

}  // namespace quillet::hosts::memory
