#include "hosts/files/module_file.h"

#include "hosts/files/member_attributes.h"
#include "hosts/files/project_error.h"

namespace quillet::hosts::files {

using basic::Compare;
using basic::StrComp;

namespace {

constexpr char16_t kMsFormsGuid[] = u"{C62A69F0-16DC-11CE-9E98-00AA00574A4F}";

Str trimmed(const Str& line) {
    size_t start = line.find_first_not_of(u" \t");
    if (start == Str::npos) return {};
    size_t end = line.find_last_not_of(u" \t");
    return line.substr(start, end - start + 1);
}

bool startsWithText(const Str& text, const Str& prefix) {
    return text.size() >= prefix.size() && StrComp(text.substr(0, prefix.size()), prefix, Compare::Text) == 0;
}

Str firstWord(const Str& text) {
    size_t end = text.find_first_of(u" \t");
    return end == Str::npos ? text : text.substr(0, end);
}

bool isWord(const Str& word, const char16_t* expected) { return StrComp(word, expected, Compare::Text) == 0; }

bool isModuleAttribute(const Str& line) {
    return isWord(firstWord(line), u"Attribute") && memberAttributeName(line).empty();
}

// The index of the first line after the header (0 without one).
size_t headerEnd(const std::vector<Str>& lines, const std::string& displayName) {
    if (lines.empty() || !startsWithText(lines[0], u"VERSION ")) return 0;
    int depth = 0;
    for (size_t i = 1; i < lines.size(); ++i) {
        Str line = trimmed(lines[i]);
        Str word = firstWord(line);
        if (isWord(word, u"Begin") || isWord(word, u"BeginProperty")) {
            ++depth;
        } else if (isWord(line, u"End") || isWord(line, u"EndProperty")) {
            if (--depth == 0) return i + 1;
            if (depth < 0) break;
        } else if (depth == 0 && isModuleAttribute(line)) {
            return i;
        }
    }
    throw ProjectError(displayName + ": is not Basic source: the header that starts with VERSION on line 1 never ends");
}

}  // namespace

ModuleFile parseModuleFile(const TextLines& text, const std::string& displayName) {
    ModuleFile file;
    file.layout = text.layout;
    const std::vector<Str>& lines = text.lines;
    size_t i = headerEnd(lines, displayName);
    file.metadata.header.assign(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(i));
    for (; i < lines.size() && isModuleAttribute(lines[i]); ++i) file.metadata.moduleAttributes.push_back(lines[i]);
    CodeLines code = extractMemberAttributes(std::vector<Str>(lines.begin() + static_cast<std::ptrdiff_t>(i), lines.end()));
    file.code = std::move(code.code);
    file.metadata.memberAttributes = std::move(code.memberAttributes);
    return file;
}

std::vector<Str> moduleFileLines(const memory::ModuleMetadata& metadata, const std::vector<Str>& code) {
    std::vector<Str> lines = metadata.header;
    lines.insert(lines.end(), metadata.moduleAttributes.begin(), metadata.moduleAttributes.end());
    std::vector<Str> body = insertMemberAttributes(code, metadata.memberAttributes);
    lines.insert(lines.end(), body.begin(), body.end());
    return lines;
}

Str moduleNameOf(const memory::ModuleMetadata& metadata) {
    for (const Str& line : metadata.moduleAttributes) {
        Str rest = trimmed(line.substr(firstWord(line).size()));
        if (!startsWithText(rest, u"VB_Name")) continue;
        size_t equals = rest.find(u'=');
        if (equals == Str::npos || !trimmed(rest.substr(7, equals - 7)).empty()) continue;
        Str value = trimmed(rest.substr(equals + 1));
        if (value.size() >= 2 && value.front() == u'"' && value.back() == u'"') value = value.substr(1, value.size() - 2);
        return value;
    }
    return {};
}

std::vector<Str> withModuleName(const std::vector<Str>& moduleAttributes, const Str& name) {
    std::vector<Str> out = moduleAttributes;
    Str line = u"Attribute VB_Name = \"" + name + u"\"";
    for (Str& attribute : out) {
        memory::ModuleMetadata probe;
        probe.moduleAttributes = {attribute};
        if (!moduleNameOf(probe).empty()) {
            attribute = line;
            return out;
        }
    }
    out.insert(out.begin(), line);
    return out;
}

long componentTypeOf(const memory::ModuleMetadata& metadata) {
    if (metadata.header.empty()) return host::vbext_ct_StdModule;
    if (basic::InStr(metadata.header[0], u"CLASS", Compare::Text) > 0) return host::vbext_ct_ClassModule;
    for (const Str& raw : metadata.header) {
        Str line = trimmed(raw);
        if (!isWord(firstWord(line), u"Begin")) continue;
        Str what = trimmed(line.substr(5));
        if (startsWithText(what, kMsFormsGuid)) return host::vbext_ct_MSForm;
        if (startsWithText(what, u"VB.Form ")) return host::vbext_ct_VBForm;
        if (startsWithText(what, u"VB.MDIForm ")) return host::vbext_ct_VBMDIForm;
        if (startsWithText(what, u"VB.UserControl ")) return host::vbext_ct_UserControl;
        if (startsWithText(what, u"VB.PropertyPage ")) return host::vbext_ct_PropPage;
        if (startsWithText(what, u"VB.UserDocument ")) return host::vbext_ct_DocObject;
        return host::vbext_ct_ActiveXDesigner;
    }
    return host::vbext_ct_StdModule;
}

memory::ModuleMetadata standardMetadata(long componentType, const Str& name) {
    memory::ModuleMetadata metadata;
    Str nameLine = u"Attribute VB_Name = \"" + name + u"\"";
    if (componentType == host::vbext_ct_StdModule) {
        metadata.moduleAttributes = {nameLine};
        return metadata;
    }
    bool form = componentType == host::vbext_ct_MSForm;
    if (form) {
        metadata.header = {u"VERSION 5.00", u"Begin " + Str(kMsFormsGuid) + u" " + name + u" ",
                           u"   Caption         =   \"" + name + u"\"",
                           u"   ClientHeight    =   3015", u"   ClientLeft      =   120",
                           u"   ClientTop       =   465", u"   ClientWidth     =   4560",
                           u"   StartUpPosition =   1  'CenterOwner", u"End"};
    } else {
        metadata.header = {u"VERSION 1.0 CLASS", u"BEGIN", u"  MultiUse = -1  'True", u"END"};
    }
    bool predeclared = form || componentType == host::vbext_ct_Document;
    bool exposed = componentType == host::vbext_ct_Document;
    metadata.moduleAttributes = {nameLine, u"Attribute VB_GlobalNameSpace = False",
                                 u"Attribute VB_Creatable = False",
                                 Str(u"Attribute VB_PredeclaredId = ") + (predeclared ? u"True" : u"False"),
                                 Str(u"Attribute VB_Exposed = ") + (exposed ? u"True" : u"False")};
    return metadata;
}

std::string extensionFor(long componentType) {
    switch (componentType) {
        case host::vbext_ct_StdModule: return ".bas";
        case host::vbext_ct_MSForm:
        case host::vbext_ct_VBForm:
        case host::vbext_ct_VBMDIForm: return ".frm";
        case host::vbext_ct_UserControl: return ".ctl";
        case host::vbext_ct_PropPage: return ".pag";
        case host::vbext_ct_DocObject: return ".dob";
        case host::vbext_ct_ActiveXDesigner: return ".dsr";
        case host::vbext_ct_Document: return ".doccls";
        default: return ".cls";
    }
}

}  // namespace quillet::hosts::files
