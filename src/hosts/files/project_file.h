#pragma once
// The project file: a VB6 project (.vbp) or a manifest in the same "Key=Value" form for a folder
// of exported modules. Every line is kept as it was; the keys the system uses are read from the
// lines before the first "[section]":
//
//     Type=Exe                          a VB6 project (its host is VBRUN)
//     Name="Invoicing"                  the project's name
//     Host=Excel                        the host application of an Office project
//     CodePage=1252                     the code page of the module files
//     Reference=*\G{GUID}#2.0#0#C:\Windows\System32\stdole2.tlb#OLE Automation
//     Module=basMain; basMain.bas       the members, when the file lists them
//     Class=clsInvoice; clsInvoice.cls
//     Form=frmInvoice.frm
//     Document=ThisWorkbook             a document module (or "Document=Name; file" to list it)
//     UserControl= PropertyPage= UserDocument= Designer=   VB6 members

#include <optional>
#include <string>
#include <vector>

#include "hosts/files/text_file.h"
#include "hosts/memory/project.h"

namespace quillet::hosts::files {

struct ProjectMember {
    Str key;       // Module, Class, Form, Document, UserControl ...
    Str name;      // the name before ";" ("" when the line gives only a file)
    Str file;      // the file, relative to the project file's folder
    size_t line;   // index in ProjectFile::lines
};

struct ProjectFile {
    std::vector<Str> lines;
    TextLayout layout;

    // The value of the first line with that key (ignoring case), quotes removed; none if absent.
    std::optional<Str> value(const Str& key) const;
    std::vector<Str> values(const Str& key) const;
    std::vector<ProjectMember> members() const;
    // The member listed on that line, if any.
    std::optional<ProjectMember> memberAt(size_t line) const;
    // Index of the end of the key lines (the first "[section]" line, or the end).
    size_t keyLinesEnd() const;
};

ProjectFile parseProjectFile(const TextLines& text);

// A member's file as the project file spells it ("..\Shared\basText.bas") as a path.
std::filesystem::path memberFilePath(const Str& file);

// Whether a key names a member ("Module", "Class", "Form" ...).
bool isMemberKey(const Str& key);
// The key a member line of that component type uses.
Str memberKeyFor(long componentType);
// The member line for a component: "Module=Name; file", "Form=file" ...
Str memberLine(long componentType, const Str& name, const Str& file);

// A Reference= value ("*\G{GUID}#maj.min#lcid#path#description"); none when it is no type library
// reference (a project reference "*\A...").
std::optional<memory::ReferenceInfo> parseReference(const Str& value);

}  // namespace quillet::hosts::files
