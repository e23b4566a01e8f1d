#pragma once
// clsScanLibraryFolder: the developer's own .bas files as a procedure library. Every *.bas file
// below the folder of the setting "Library Folder" is a group of the pseudo-library "Library",
// and its public Subs and Functions are procedures whose code stays in their records.

#include "settings/cls_folder.h"
#include "typelib/lib_records.h"

namespace quillet::typelib {

class clsScanLibraryFolder {
public:
    explicit clsScanLibraryFolder(settings::Settings& settings) : settings_(settings) {}

    // Scans the folder of the setting; an empty setting or a folder that cannot be read gives
    // nothing, and no error.
    void Init(LibraryProcedures& rcolProcedures, basic::Collection<clsGroupPtr>& rcolGroups);
    // The same on a folder given (a path in the system's form).
    void InitOn(const Str& folder, LibraryProcedures& rcolProcedures, basic::Collection<clsGroupPtr>& rcolGroups);

    // The files found, by FullName.
    const basic::Collection<std::shared_ptr<settings::clsFile>>& Modules() const { return modules_; }

    // Sub-folders first, then the folder's own files.
    void FilesFromFolderGet(settings::clsFolder& folder);
    void ProceduresGet(LibraryProcedures& rcolProcedures, basic::Collection<clsGroupPtr>& rcolGroups);

private:
    settings::Settings& settings_;
    basic::Collection<std::shared_ptr<settings::clsFile>> modules_;
};

// The module name of a .bas file's text: the quoted name of its "Attribute VB_Name" line, else
// the file's name.
Str LibraryModuleName(const Str& text, const Str& fileName);
// Whether the line holds the marker ("End Sub") as code: outside quotes and comments.
bool HoldsMarkerAsCode(const Str& line, const Str& marker);

}  // namespace quillet::typelib
