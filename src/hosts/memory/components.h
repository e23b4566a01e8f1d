#pragma once
// Components of the in-memory editor and the VBComponents collection. A component keeps, beside
// the visible lines of its code module, what the code module never shows: the header of its
// exported file, its module attribute lines and the attribute lines of its members. The file
// host fills and reads that metadata; nothing else looks at it.

#include <memory>
#include <vector>

#include "host/objects.h"
#include "hosts/memory/options.h"

namespace quillet::hosts::memory {

class MemoryVBE;
class MemoryProject;
class MemoryCodeModule;
class MemoryWindow;

// The kind of a member attribute that belongs to a module-level variable, not a procedure.
constexpr long kVariableMember = -1;

struct MemberAttributes {
    Str member;                // the procedure or variable name
    long kind = 0;             // vbext_ProcKind of the procedure, or kVariableMember
    std::vector<Str> lines;    // "Attribute Foo.VB_Description = ..." lines, in file order
};

struct ModuleMetadata {
    std::vector<Str> header;            // VERSION ... BEGIN ... END, or the form block
    std::vector<Str> moduleAttributes;  // Attribute VB_Name = ... and the module's flags
    std::vector<MemberAttributes> memberAttributes;
};

// Whether a name can name a module: a letter, then letters, digits or "_", at most 31 units.
bool isValidComponentName(const Str& name);

class MemoryComponent : public host::VBComponent, public std::enable_shared_from_this<MemoryComponent> {
public:
    MemoryComponent(std::weak_ptr<MemoryProject> project, Str name, long type);

    // The visible lines of the code module (none for a component without code).
    std::vector<Str> lines() const;
    void setLines(std::vector<Str> lines);
    // The same as one text with CRLF between lines (no CRLF after the last).
    Str text() const;
    // Split at CRLF, CR or LF; a final line break ends the last line.
    void setText(const Str& text);
    // Counts every write to the code text, so that a tool can tell what changed.
    long changeCount() const;

    ModuleMetadata& metadata() { return metadata_; }
    const ModuleMetadata& metadata() const { return metadata_; }
    bool isDocument() const { return type_ == host::vbext_ct_Document; }
    bool hasDesigner() const;
    std::shared_ptr<MemoryCodeModule> codeModule() const { return codeModule_; }
    std::shared_ptr<MemoryProject> project() const { return project_.lock(); }
    std::shared_ptr<MemoryVBE> vbe() const;
    const Str& name() const { return name_; }
    // Renames without the checks of Name (the file host uses the name a file gives).
    void setNameUnchecked(const Str& name) { name_ = name; }
    // The designer window, if one was opened.
    std::shared_ptr<MemoryWindow> openDesignerWindow() const { return designerWindow_.lock(); }
    void setDesignerWindow(const std::shared_ptr<MemoryWindow>& window) { designerWindow_ = window; }

    // host::VBComponent
    Str Name() override { return name_; }
    // A name taken by another component raises 32813; an invalid name raises 5.
    void Name(const Str& name) override;
    long Type() override { return type_; }
    host::CodeModulePtr CodeModule() override;
    basic::DispatchPtr Designer() override;
    host::WindowPtr DesignerWindow() override;
    basic::DispatchPtr Properties() override;
    void Export(const Str& path) override;
    void Activate() override;

private:
    std::weak_ptr<MemoryProject> project_;
    Str name_;
    long type_;
    std::shared_ptr<MemoryCodeModule> codeModule_;
    ModuleMetadata metadata_;
    basic::DispatchPtr designer_;
    basic::DispatchPtr properties_;
    std::weak_ptr<MemoryWindow> designerWindow_;
};

class MemoryComponents : public host::VBComponents {
public:
    explicit MemoryComponents(std::shared_ptr<MemoryProject> project) : project_(std::move(project)) {}
    long Count() override;
    host::VBComponentPtr Item(long index) override;
    host::VBComponentPtr Item(const Str& name) override;
    // 1, 2 and 3 with a generated name (Module1, Class1, UserForm1 ...); other types raise 5.
    host::VBComponentPtr Add(long componentType) override;
    // A document module raises 5.
    void Remove(const host::VBComponentPtr& component) override;
    host::VBComponentPtr Import(const Str& path) override;

private:
    std::shared_ptr<MemoryProject> project_;
};

// The error a duplicate component name raises.
basic::VbError nameConflictError();

}  // namespace quillet::hosts::memory
