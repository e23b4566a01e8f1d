// Installing the shipped files.

#include "settings/default_files.h"

#include <string>

#include "basic/strings.h"
#include "basic/vb_error.h"
#include "settings/catalogue.h"
#include "settings/code_folders.h"
#include "settings/ini_vars.h"

namespace quillet::settings {

namespace {

using Getter = Str (*)(Settings&);

// A shipped file and where it goes: below a folder (the file keeps its name), or the file a
// setting names. The item must hold its default for the file to be put there.
struct Shipped {
    const char16_t* source;
    IniItem item;
    Getter folder;  // null: the item names the file itself
};

const Shipped kShipped[] = {
    {u"quillet\\Fragments\\Headers And Comments\\ProcedureHeader.bas", iiProcedureHeaderFile, nullptr},
    {u"quillet\\Fragments\\Headers And Comments\\ModuleHeader.bas", iiModuleHeaderFile, nullptr},
    {u"quillet\\Fragments\\ErrorHandlers\\On Error GoTo HandleError.bas", iiBaseFolder, ErrorHandlersFolder},
    {u"quillet\\Fragments\\ErrorHandlers\\On Error GoTo ExitLabel.bas", iiBaseFolder, ErrorHandlersFolder},
    {u"quillet\\ErrorHandlers\\basErrorHandle.bas", iiErrorHandleFile, nullptr},
    {u"quillet\\Templates\\CollectionClass\\CollectionClass.cls", iiCollectionClassTemplate, nullptr},
};

Str folderOf(const Str& path) {
    long slash = basic::InStrRev(path, u"\\");
    return slash > 0 ? basic::Left(path, slash - 1) : Str{};
}

Str nameOf(const Str& path) { return basic::Mid(path, basic::InStrRev(path, u"\\") + 1); }

Str withoutFinalBackslash(Str path) {
    while (path.size() > 3 && path.back() == u'\\') path.pop_back();
    return path;
}

bool holdsDefault(Settings& settings, IniItem item) {
    return basic::StrComp(IniText(settings, item), ValueText(ItemDefault(item)), basic::Compare::Text) == 0;
}

// Makes a folder and its missing parents; gives whether it is there at the end.
bool makeFolders(Settings& settings, const Str& folder) {
    Str path = withoutFinalBackslash(folder);
    if (path.empty()) return false;
    if (settings.Files.FolderExists(path)) return true;
    Str parent = folderOf(path);
    if (parent.size() > 2 && !settings.Files.FolderExists(parent)) makeFolders(settings, parent);
    settings.Files.CreateFolder(path);
    return settings.Files.FolderExists(path);
}

Str target(Settings& settings, const Shipped& file) {
    if (file.folder) return MakePath({file.folder(settings), nameOf(file.source)});
    switch (file.item) {
        case iiProcedureHeaderFile: return ProcedureHeaderFile(settings);
        case iiModuleHeaderFile: return ModuleHeaderFile(settings);
        case iiErrorHandleFile: return ErrorHandleFile(settings);
        default: return CollectionClassTemplate(settings);
    }
}

// The code folders the default settings give, made when the Base Folder is the default one.
void makeCodeTree(Settings& settings) {
    if (!holdsDefault(settings, iiBaseFolder)) return;
    for (Getter folder : {CodeFolder, FragmentsFolder, ClassesFolder, TemplatesFolder, ErrorHandlersFolder})
        makeFolders(settings, folder(settings));
    if (holdsDefault(settings, iiLibraryFolder)) makeFolders(settings, LibraryFolder(settings));
}

void copyFile(Settings& settings, const Str& from, const Str& to, InstallReport& report) {
    if (settings.Files.PathExists(to)) {
        report.kept.push_back(to);
        return;
    }
    std::string bytes;
    if (settings.Files.ReadAll(from, bytes) != fserr::None || !makeFolders(settings, folderOf(to)) ||
        settings.Files.WriteAll(to, bytes) != fserr::None) {
        report.failed.push_back(to);
        return;
    }
    report.installed.push_back(to);
}

const Str kSource = u"modDefaultFiles.InstallDefaultFiles";

}  // namespace

std::vector<Str> DefaultFileNames() {
    std::vector<Str> names;
    for (const auto& file : kShipped) names.push_back(file.source);
    return names;
}

Str DefaultFilesSource(Settings& settings) {
    if (settings.DefaultFilesFolder) return *settings.DefaultFilesFolder;
    return MakePath({settings.Platform().AddinFolder(), u"data"});
}

InstallReport InstallDefaultFiles(Settings& settings, const Str& sourceFolder) {
    InstallReport report;
    if (!settings.Files.FolderExists(withoutFinalBackslash(sourceFolder))) {
        report.sourceMissing = true;
        settings.reportError(basic::VbError(basic::err::PathNotFound,
                                            basic::VbError::standardDescription(basic::err::PathNotFound) +
                                                u": " + sourceFolder),
                             kSource);
        return report;
    }
    makeCodeTree(settings);
    for (const auto& file : kShipped) {
        if (!holdsDefault(settings, file.item)) continue;
        copyFile(settings, MakePath({sourceFolder, file.source}), target(settings, file), report);
    }
    if (!report.failed.empty()) {
        Str names;
        for (const Str& name : report.failed) names += u"\r\n" + name;
        settings.reportError(basic::VbError(basic::err::PathFileAccess,
                                            u"Could not install these files:" + names),
                             kSource);
    }
    return report;
}

}  // namespace quillet::settings
