#pragma once
// One exported module file (.bas, .cls, .frm, .doccls, and VB6's .ctl, .pag, .dob, .dsr): its
// hidden header and attribute lines, its visible code, and the layout of its bytes.
//
// Reading: the header runs from a first line "VERSION ..." through the END (or End) that closes
// its outermost BEGIN block, nested Begin/End and BeginProperty/EndProperty included; then the
// run of "Attribute VB_..." lines; the rest is code, out of which the member attribute lines
// are taken (member_attributes.h).

#include <string>
#include <vector>

#include "hosts/files/text_file.h"
#include "hosts/memory/components.h"

namespace quillet::hosts::files {

struct ModuleFile {
    memory::ModuleMetadata metadata;
    std::vector<Str> code;  // the lines the code module shows
    TextLayout layout;
};

// Throws ProjectError naming `displayName` for a header that never ends.
ModuleFile parseModuleFile(const TextLines& text, const std::string& displayName);
// The lines of the file: header, module attributes, code with the member attributes back in.
std::vector<Str> moduleFileLines(const memory::ModuleMetadata& metadata, const std::vector<Str>& code);

// The value of "Attribute VB_Name = ...", or "" when there is none.
Str moduleNameOf(const memory::ModuleMetadata& metadata);
// The attribute lines with VB_Name set to `name` (added first when missing).
std::vector<Str> withModuleName(const std::vector<Str>& moduleAttributes, const Str& name);
// The component type the header gives (vbext_ComponentType): a class for "VERSION 1.0 CLASS",
// an MSForms form for its GUID, VB6 forms and controls for their Begin lines, otherwise a
// standard module.
long componentTypeOf(const memory::ModuleMetadata& metadata);

// The header and attributes the editor exports for a new component of that type and name.
memory::ModuleMetadata standardMetadata(long componentType, const Str& name);
// The usual file extension for a component type (".bas", ".cls", ".frm" ...).
std::string extensionFor(long componentType);

}  // namespace quillet::hosts::files
