#include "typelib/cls_scan_library_folder.h"

#include "settings/catalogue.h"
#include "settings/ini_vars.h"
#include "source/errors.h"

namespace quillet::typelib {

using basic::Compare;

namespace {

const Str kLibrary = u"Library";

// The end marker of a procedure that starts on the (trimmed) line; "" for no start.
Str endMarkerOf(const Str& trimmed) {
    if (basic::Like(trimmed, u"Sub *") || basic::Like(trimmed, u"Public Sub *")) return u"End Sub";
    if (basic::Like(trimmed, u"Function *") || basic::Like(trimmed, u"Public Function *")) return u"End Function";
    return {};
}

// The line with its comment cut and the text of its string literals blanked.
Str codeOf(const Str& line) {
    Str trimmed = basic::Trim(line);
    if (basic::Like(trimmed, u"Rem *") || trimmed == u"Rem") return {};
    Str code;
    bool quoted = false;
    for (char16_t c : line) {
        if (c == u'"') quoted = !quoted;
        else if (c == u'\'' && !quoted) break;
        code += quoted && c != u'"' ? u' ' : c;
    }
    return code;
}

}  // namespace

Str LibraryModuleName(const Str& text, const Str& fileName) {
    long at = basic::InStr(text, u"Attribute VB_Name", Compare::Text);
    if (at == 0) return fileName;
    Str line = basic::Mid(text, at);
    long end = basic::InStr(line, u"\r\n");
    if (end > 0) line = basic::Left(line, end - 1);
    std::vector<Str> parts = basic::Split(line, u"\"");
    return parts.size() >= 2 ? parts[1] : fileName;
}

bool HoldsMarkerAsCode(const Str& line, const Str& marker) {
    if (!basic::Like(line, u"*" + marker + u"*")) return false;
    return basic::InStr(codeOf(line), marker) > 0;
}

void clsScanLibraryFolder::Init(LibraryProcedures& rcolProcedures, basic::Collection<clsGroupPtr>& rcolGroups) {
    Str folder;
    source::ignoringErrors([&] { folder = settings::IniText(settings_, settings::iiLibraryFolder); });
    InitOn(folder, rcolProcedures, rcolGroups);
}

void clsScanLibraryFolder::InitOn(const Str& folder, LibraryProcedures& rcolProcedures,
                                  basic::Collection<clsGroupPtr>& rcolGroups) {
    if (basic::Trim(folder).empty()) return;
    settings::clsFolder root(settings_);
    if (!source::ignoringErrors([&] { root.InitFolder(folder, u"*.bas"); })) return;
    FilesFromFolderGet(root);
    ProceduresGet(rcolProcedures, rcolGroups);
}

void clsScanLibraryFolder::FilesFromFolderGet(settings::clsFolder& folder) {
    if (folder.FullPath().empty()) return;
    for (auto& sub : folder.Folders) FilesFromFolderGet(*sub);
    for (auto& file : folder.Files)
        if (!modules_.Exists(file->FullName())) modules_.Add(file, file->FullName());
}

void clsScanLibraryFolder::ProceduresGet(LibraryProcedures& rcolProcedures, basic::Collection<clsGroupPtr>& rcolGroups) {
    for (auto& file : modules_) {
        file->Silent(true);
        Str text = file->Contents();
        Str moduleName = LibraryModuleName(text, file->Name());
        auto group = std::make_shared<clsGroup>();
        group->Name = moduleName;
        group->Project = kLibrary;
        Str groupKey = kLibrary + u"." + moduleName;
        if (!rcolGroups.Exists(groupKey)) rcolGroups.Add(group, groupKey);
        std::vector<Str> lines = basic::Split(text, u"\r\n");
        for (std::size_t i = 0; i < lines.size(); ++i) {
            Str marker = endMarkerOf(basic::Trim(lines[i]));
            if (marker.empty()) continue;
            std::vector<Str> procedure;
            std::size_t j = i;
            for (; j < lines.size(); ++j) {
                procedure.push_back(lines[j]);
                if (HoldsMarkerAsCode(lines[j], marker)) break;
            }
            auto proc = std::make_shared<source::C4_ProcDef>();
            proc->Init2(basic::Join(procedure, u"\r\n"), moduleName);
            rcolProcedures.AddProc(proc, moduleName + u"." + kLibrary);
            i = j;
        }
    }
}

}  // namespace quillet::typelib
