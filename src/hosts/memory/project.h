#pragma once
// Projects of the in-memory editor, their references, and the VBProjects collection.

#include <memory>
#include <vector>

#include "host/objects.h"
#include "hosts/memory/options.h"

namespace quillet::hosts::memory {

class MemoryVBE;
class MemoryComponent;

struct ReferenceInfo {
    Str name;
    Str fullPath;
    Str guid;
    long major = 0;
    long minor = 0;
    Str description;
    bool builtIn = false;
    bool isBroken = false;
};

// The two references a project of that host starts with: VBA, then the host's own library
// ("Excel", "Word", "Access", "Outlook", "PowerPoint", "VBRUN"; another name gets a made-up one).
std::vector<ReferenceInfo> standardReferences(const Str& hostName);

// What a locked project raises when its components are asked for.
basic::VbError protectedProjectError();

class MemoryProject : public host::VBProject, public std::enable_shared_from_this<MemoryProject> {
public:
    MemoryProject(std::weak_ptr<MemoryVBE> vbe, Str name, Str fileName);

    // Adds a component holding these visible lines. A name taken (ignoring case) raises 32813.
    std::shared_ptr<MemoryComponent> addComponent(const Str& name, long type, const std::vector<Str>& lines = {});
    // The same with the text split into lines at CRLF, CR or LF.
    std::shared_ptr<MemoryComponent> addComponentText(const Str& name, long type, const Str& text);
    // By name ignoring case, or none.
    std::shared_ptr<MemoryComponent> component(const Str& name) const;
    const std::vector<std::shared_ptr<MemoryComponent>>& components() const { return components_; }
    // Removes a component (documents too) and closes its pane.
    void removeComponent(const std::shared_ptr<MemoryComponent>& component);
    // The first free name of Prefix1, Prefix2 ...
    Str freeName(const Str& prefix) const;

    const Str& name() const { return name_; }
    void setFileName(const Str& fileName) { fileName_ = fileName; }
    const Str& fileName() const { return fileName_; }
    void setProtection(long protection) { protection_ = protection; }
    std::vector<ReferenceInfo>& references() { return references_; }
    std::shared_ptr<MemoryVBE> vbe() const { return vbe_.lock(); }

    // host::VBProject
    Str Name() override { return name_; }
    void Name(const Str& name) override;
    Str FileName() override;
    long Protection() override { return protection_; }
    host::VBComponentsPtr VBComponents() override;
    host::ReferencesPtr References() override;

private:
    std::weak_ptr<MemoryVBE> vbe_;
    Str name_;
    Str fileName_;
    long protection_ = host::vbext_pp_none;
    std::vector<std::shared_ptr<MemoryComponent>> components_;
    std::vector<ReferenceInfo> references_;
};

class MemoryProjects : public host::VBProjects {
public:
    explicit MemoryProjects(std::shared_ptr<MemoryVBE> vbe) : vbe_(std::move(vbe)) {}
    long Count() override;
    host::VBProjectPtr Item(long index) override;

private:
    std::shared_ptr<MemoryVBE> vbe_;
};

class MemoryReference : public host::Reference {
public:
    explicit MemoryReference(ReferenceInfo info) : info_(std::move(info)) {}
    Str Name() override { return info_.name; }
    Str FullPath() override { return info_.fullPath; }
    Str GUID() override { return info_.guid; }
    long Major() override { return info_.major; }
    long Minor() override { return info_.minor; }
    Str Description() override { return info_.description; }
    bool BuiltIn() override { return info_.builtIn; }
    bool IsBroken() override { return info_.isBroken; }

private:
    ReferenceInfo info_;
};

class MemoryReferences : public host::References {
public:
    explicit MemoryReferences(std::shared_ptr<MemoryProject> project) : project_(std::move(project)) {}
    long Count() override;
    host::ReferencePtr Item(long index) override;

private:
    std::shared_ptr<MemoryProject> project_;
};

}  // namespace quillet::hosts::memory
