#pragma once
// The files a fresh installation needs: the folder tree of the code files, the procedure and
// module headers, the error handler templates, the error-handling module and the collection
// class template. They are copied byte for byte from the shipped folder (the add-in's "data"
// folder, or the tool's) to the places the settings name, and only where nothing is yet: a
// file that exists is never replaced, and a file setting or a Base Folder that the user changed
// is the user's, so nothing is put there.

#include <string>
#include <vector>

#include "settings/settings.h"

namespace quillet::settings {

struct InstallReport {
    std::vector<Str> installed;  // the files written, full paths
    std::vector<Str> kept;       // the files that were there already
    std::vector<Str> failed;     // the files that could not be written
    bool sourceMissing = false;  // the shipped folder was not there: nothing was done
};

// The shipped folder: DefaultFilesFolder when set, else the add-in's folder and "data".
Str DefaultFilesSource(Settings& settings);

// Makes the default folder tree and copies every shipped file that is missing. Files that could
// not be written are reported once through HandleError (error 75 with their names), and the
// rest go on. A missing shipped folder is reported as error 76.
InstallReport InstallDefaultFiles(Settings& settings, const Str& sourceFolder);

// The shipped files, relative to the shipped folder ("quillet\ErrorHandlers\basErrorHandle.bas").
std::vector<Str> DefaultFileNames();

}  // namespace quillet::settings
