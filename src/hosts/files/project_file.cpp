#include "hosts/files/project_file.h"

#include <algorithm>
#include <array>

#include "basic/strings.h"

namespace quillet::hosts::files {

using basic::Compare;
using basic::StrComp;
using basic::Trim;

namespace {

bool same(const Str& a, const Str& b) { return StrComp(a, b, Compare::Text) == 0; }

Str unquoted(const Str& value) {
    Str text = Trim(value);
    if (text.size() >= 2 && text.front() == u'"' && text.back() == u'"') return text.substr(1, text.size() - 2);
    return text;
}

struct KeyValue {
    Str key;
    Str value;
};

std::optional<KeyValue> keyValueOf(const Str& line) {
    size_t equals = line.find(u'=');
    if (equals == Str::npos) return std::nullopt;
    return KeyValue{Trim(line.substr(0, equals)), line.substr(equals + 1)};
}

// Type libraries whose names a project file does not say (it names the file only).
struct KnownLibrary {
    const char16_t* guid;
    const char16_t* name;
};
constexpr std::array<KnownLibrary, 10> kKnownLibraries = {{
    {u"{00020430-0000-0000-C000-000000000046}", u"stdole"},
    {u"{2DF8D04C-5BFA-101B-BDE5-00AA0044DE52}", u"Office"},
    {u"{0D452EE1-E08F-101A-852E-02608C4D0BB4}", u"MSForms"},
    {u"{420B2830-E718-11CF-893D-00A0C9054228}", u"Scripting"},
    {u"{0002E157-0000-0000-C000-000000000046}", u"VBIDE"},
    {u"{2A75196C-D9EB-4129-B803-931327F72D5C}", u"ADODB"},
    {u"{B691E011-1797-432E-907A-4D8C69339129}", u"ADODB"},
    {u"{F5078F18-C551-11D3-89B9-0000F81FE221}", u"MSXML2"},
    {u"{3F4DACA7-160D-11D2-A8E9-00104B365C9F}", u"VBScript_RegExp_55"},
    {u"{00025E01-0000-0000-C000-000000000046}", u"DAO"},
}};

Str libraryName(const Str& guid, const Str& path) {
    for (const KnownLibrary& library : kKnownLibraries) {
        if (same(guid, library.guid)) return library.name;
    }
    size_t slash = path.find_last_of(u"\\/");
    Str file = slash == Str::npos ? path : path.substr(slash + 1);
    size_t dot = file.find(u'.');
    return dot == Str::npos ? file : file.substr(0, dot);
}

long hexNumber(const Str& text) {
    long value = 0;
    for (char16_t c : text) {
        int digit = c >= u'0' && c <= u'9' ? c - u'0' : c >= u'a' && c <= u'f' ? c - u'a' + 10 : c >= u'A' && c <= u'F' ? c - u'A' + 10 : -1;
        if (digit < 0) break;
        value = value * 16 + digit;
    }
    return value;
}

constexpr std::array<const char16_t*, 8> kMemberKeys = {u"Module", u"Class", u"Form", u"Document",
                                                         u"UserControl", u"PropertyPage", u"UserDocument",
                                                         u"Designer"};

}  // namespace

std::optional<Str> ProjectFile::value(const Str& key) const {
    for (size_t i = 0; i < keyLinesEnd(); ++i) {
        auto entry = keyValueOf(lines[i]);
        if (entry && same(entry->key, key)) return unquoted(entry->value);
    }
    return std::nullopt;
}

std::vector<Str> ProjectFile::values(const Str& key) const {
    std::vector<Str> out;
    for (size_t i = 0; i < keyLinesEnd(); ++i) {
        auto entry = keyValueOf(lines[i]);
        if (entry && same(entry->key, key)) out.push_back(entry->value);
    }
    return out;
}

std::vector<ProjectMember> ProjectFile::members() const {
    std::vector<ProjectMember> out;
    for (size_t i = 0; i < keyLinesEnd(); ++i) {
        auto entry = keyValueOf(lines[i]);
        if (!entry || !isMemberKey(entry->key)) continue;
        size_t semicolon = entry->value.find(u';');
        // "Document=Name" only declares a document module; "Document=Name; file" lists one.
        if (same(entry->key, u"Document") && semicolon == Str::npos) continue;
        ProjectMember member{entry->key, {}, Trim(entry->value), i};
        if (semicolon != Str::npos) {
            member.name = Trim(entry->value.substr(0, semicolon));
            member.file = Trim(entry->value.substr(semicolon + 1));
        }
        member.file = unquoted(member.file);
        out.push_back(member);
    }
    return out;
}

std::optional<ProjectMember> ProjectFile::memberAt(size_t line) const {
    for (const ProjectMember& member : members()) {
        if (member.line == line) return member;
    }
    return std::nullopt;
}

size_t ProjectFile::keyLinesEnd() const {
    for (size_t i = 0; i < lines.size(); ++i) {
        Str line = Trim(lines[i]);
        if (!line.empty() && line.front() == u'[') return i;
    }
    return lines.size();
}

ProjectFile parseProjectFile(const TextLines& text) { return ProjectFile{text.lines, text.layout}; }

std::filesystem::path memberFilePath(const Str& file) {
    Str portable = file;
    std::replace(portable.begin(), portable.end(), u'\\', u'/');
    return pathOf(portable);
}

bool isMemberKey(const Str& key) {
    for (const char16_t* memberKey : kMemberKeys) {
        if (same(key, memberKey)) return true;
    }
    return false;
}

Str memberKeyFor(long componentType) {
    switch (componentType) {
        case host::vbext_ct_StdModule: return u"Module";
        case host::vbext_ct_ClassModule: return u"Class";
        case host::vbext_ct_Document: return u"Document";
        case host::vbext_ct_UserControl: return u"UserControl";
        case host::vbext_ct_PropPage: return u"PropertyPage";
        case host::vbext_ct_DocObject: return u"UserDocument";
        case host::vbext_ct_ActiveXDesigner: return u"Designer";
        default: return u"Form";
    }
}

Str memberLine(long componentType, const Str& name, const Str& file) {
    Str key = memberKeyFor(componentType);
    bool named = same(key, u"Module") || same(key, u"Class") || same(key, u"Document");
    return key + u"=" + (named ? name + u"; " : Str()) + file;
}

std::optional<memory::ReferenceInfo> parseReference(const Str& value) {
    Str text = Trim(value);
    if (text.size() < 3 || StrComp(text.substr(0, 3), u"*\\G", Compare::Text) != 0) return std::nullopt;
    std::vector<Str> parts = basic::Split(text.substr(3), u"#");
    if (parts.size() < 4) return std::nullopt;
    memory::ReferenceInfo info;
    info.guid = parts[0];
    size_t dot = parts[1].find(u'.');
    info.major = hexNumber(parts[1].substr(0, dot));
    info.minor = dot == Str::npos ? 0 : hexNumber(parts[1].substr(dot + 1));
    info.fullPath = parts[3];
    info.description = parts.size() > 4 ? parts[4] : Str();
    info.name = libraryName(info.guid, info.fullPath);
    return info;
}

}  // namespace quillet::hosts::files
