#include "basic/strings.h"
#include "hosts/files/atomic_write.h"
#include "hosts/files/file_project.h"
#include "hosts/files/project_error.h"
#include "hosts/memory/project.h"
#include "settings/file_system.h"

namespace quillet::hosts::files {

namespace {

basic::VbError fileError(const ProjectError& error, long number) {
    return basic::VbError(number, basic::fromUtf8(error.what()), u"quillet");
}

// The add-in names files in the system's form ("C:\\...", "Z:\\tmp\\x.bas"); the file layer
// maps them to the machine.
std::filesystem::path machineFileOf(const Str& path) {
    if (auto machine = settings::FileSystem().machinePath(path)) return *machine;
    return pathOf(path);
}

}  // namespace

// Import follows the editor: the name comes from VB_Name, a taken name gets "1" appended until
// it is free, the type comes from the header (so a document module comes in as a class).
// Export writes the module file with CRLF after every line.
void installFileImportExport(memory::MemoryVBE& vbe, CodePage codePage) {
    vbe.setImporter([codePage](memory::MemoryProject& project, const Str& path) {
        std::filesystem::path file = machineFileOf(path);
        ModuleFile module;
        try {
            module = parseModuleFile(readTextLines(readFileBytes(file), codePage, displayPath(file)), displayPath(file));
        } catch (const ProjectError& error) {
            throw fileError(error, basic::err::FileNotFound);
        }
        Str name = moduleNameOf(module.metadata);
        if (name.empty()) name = pathText(file.stem());
        while (project.component(name)) name += u"1";
        auto component = project.addComponent(name, componentTypeOf(module.metadata), module.code);
        component->metadata() = module.metadata;
        if (moduleNameOf(module.metadata) != name) {
            component->metadata().moduleAttributes = withModuleName(module.metadata.moduleAttributes, name);
        }
        return component;
    });
    vbe.setExporter([codePage](memory::MemoryComponent& component, const Str& path) {
        memory::ModuleMetadata metadata = component.metadata();
        if (metadata.header.empty() && metadata.moduleAttributes.empty()) {
            metadata = standardMetadata(component.Type(), component.name());
        }
        TextLayout layout;
        layout.codePage = codePage;
        try {
            writeFileAtomically(machineFileOf(path), writeTextLines(moduleFileLines(metadata, component.lines()), layout));
        } catch (const ProjectError& error) {
            throw fileError(error, basic::err::PathFileAccess);
        }
    });
}

}  // namespace quillet::hosts::files
