#include "hosts/memory/project.h"


#include "hosts/memory/code_module.h"
#include "hosts/memory/code_pane.h"
#include "hosts/memory/pin.h"
#include "hosts/memory/components.h"
#include "hosts/memory/vbe.h"

namespace quillet::hosts::memory {

namespace {

using basic::VbError;

ReferenceInfo hostReference(const Str& hostName) {
    struct Known {
        const char16_t* name;
        const char16_t* guid;
        long major, minor;
        const char16_t* path;
        const char16_t* description;
    };
    static const Known known[] = {
        {u"Excel", u"{00020813-0000-0000-C000-000000000046}", 1, 9,
         u"C:\\Program Files\\Microsoft Office\\root\\Office16\\EXCEL.EXE", u"Microsoft Excel 16.0 Object Library"},
        {u"Word", u"{00020905-0000-0000-C000-000000000046}", 8, 7,
         u"C:\\Program Files\\Microsoft Office\\root\\Office16\\MSWORD.OLB", u"Microsoft Word 16.0 Object Library"},
        {u"Access", u"{4AFFC9A0-5F99-101B-AF4E-00AA003F0F07}", 9, 0,
         u"C:\\Program Files\\Microsoft Office\\root\\Office16\\MSACC.OLB", u"Microsoft Access 16.0 Object Library"},
        {u"Outlook", u"{00062FFF-0000-0000-C000-000000000046}", 9, 6,
         u"C:\\Program Files\\Microsoft Office\\root\\Office16\\MSOUTL.OLB", u"Microsoft Outlook 16.0 Object Library"},
        {u"PowerPoint", u"{91493440-5A91-11CF-8700-00AA0060263B}", 2, 12,
         u"C:\\Program Files\\Microsoft Office\\root\\Office16\\MSPPT.OLB",
         u"Microsoft PowerPoint 16.0 Object Library"},
        {u"VBRUN", u"{EA544A21-C82D-11D1-A3E4-00A0C90AEA82}", 6, 0, u"C:\\Windows\\SysWOW64\\MSVBVM60.DLL\\3",
         u"Visual Basic runtime objects and procedures"},
    };
    for (const Known& k : known)
        if (sameText(hostName, k.name)) return {k.name, k.path, k.guid, k.major, k.minor, k.description, true, false};
    return {hostName, hostName + u".OLB", u"{00000000-0000-0000-0000-000000000000}", 1, 0,
            hostName + u" Object Library", true, false};
}

}  // namespace

basic::VbError protectedProjectError() {
    return VbError(50289, u"Can't perform operation since the project is protected.");
}

std::vector<ReferenceInfo> standardReferences(const Str& hostName) {
    ReferenceInfo vba{u"VBA",
                      u"C:\\Program Files\\Common Files\\Microsoft Shared\\VBA\\VBA7.1\\VBE7.DLL",
                      u"{000204EF-0000-0000-C000-000000000046}",
                      4,
                      2,
                      u"Visual Basic For Applications",
                      true,
                      false};
    return {vba, hostReference(hostName)};
}

MemoryProject::MemoryProject(std::weak_ptr<MemoryVBE> vbe, Str name, Str fileName)
    : vbe_(std::move(vbe)), name_(std::move(name)), fileName_(std::move(fileName)) {}

std::shared_ptr<MemoryComponent> MemoryProject::addComponent(const Str& name, long type,
                                                             const std::vector<Str>& lines) {
    if (component(name)) throw nameConflictError();
    auto created = std::make_shared<MemoryComponent>(weak_from_this(), name, type);
    if (created->CodeModule()) created->codeModule()->setLines(lines);
    components_.push_back(created);
    return pinned(vbe(), created);
}

std::shared_ptr<MemoryComponent> MemoryProject::addComponentText(const Str& name, long type, const Str& text) {
    return addComponent(name, type, text.empty() ? std::vector<Str>() : splitLines(text, false));
}

std::shared_ptr<MemoryComponent> MemoryProject::component(const Str& name) const {
    for (const auto& c : components_)
        if (sameText(c->name(), name)) return pinned(vbe(), c);
    return nullptr;
}

void MemoryProject::removeComponent(const std::shared_ptr<MemoryComponent>& component) {
    if (auto vbe = vbe_.lock()) {
        if (auto pane = vbe->paneOf(*component)) vbe->closePane(pane);
        if (vbe->selectedComponent() == component) vbe->setSelectedComponent(nullptr);
    }
    if (auto vbe = vbe_.lock()) vbe->takeOut(components_, component.get());
    else std::erase(components_, component);
}

Str MemoryProject::freeName(const Str& prefix) const {
    for (long n = 1;; ++n) {
        Str name = prefix + numberText(n);
        if (!component(name)) return name;
    }
}

void MemoryProject::Name(const Str& name) {
    if (!isValidComponentName(name)) throw VbError::standard(basic::err::InvalidCall);
    name_ = name;
}

Str MemoryProject::FileName() {
    if (fileName_.empty()) {
        auto vbe = vbe_.lock();
        if (vbe && vbe->options().unsavedFileNameError) throw VbError::standard(vbe->options().unsavedFileNameError);
    }
    return fileName_;
}

host::VBComponentsPtr MemoryProject::VBComponents() {
    if (protection_ == host::vbext_pp_locked) throw protectedProjectError();
    return std::make_shared<MemoryComponents>(pinned(vbe(), shared_from_this()));
}

host::ReferencesPtr MemoryProject::References() {
    return std::make_shared<MemoryReferences>(pinned(vbe(), shared_from_this()));
}

long MemoryProjects::Count() { return static_cast<long>(vbe_->projects().size()); }

host::VBProjectPtr MemoryProjects::Item(long index) {
    const auto& all = vbe_->projects();
    if (index < 1 || index > static_cast<long>(all.size())) throw VbError::standard(basic::err::SubscriptOutOfRange);
    return vbe_->pin(all[index - 1]);
}

long MemoryReferences::Count() { return static_cast<long>(project_->references().size()); }

host::ReferencePtr MemoryReferences::Item(long index) {
    const auto& all = project_->references();
    if (index < 1 || index > static_cast<long>(all.size())) throw VbError::standard(basic::err::SubscriptOutOfRange);
    return std::make_shared<MemoryReference>(all[index - 1]);
}

}  // namespace quillet::hosts::memory
