// The fragment library's tree.

#include "fragments/fragment_library.h"

#include "basic/strings.h"
#include "basic/unicode.h"
#include "basic/vb_error.h"
#include "fragments/shortcut_file.h"
#include "settings/catalogue.h"
#include "settings/cls_folder.h"
#include "settings/code_folders.h"
#include "settings/ini_file.h"

namespace quillet::fragments {

using basic::Compare;

namespace {

bool sameText(const Str& a, const Str& b) { return basic::StrComp(a, b, Compare::Text) == 0; }

bool refersTo(const std::vector<Str>& references, const Str& library) {
    for (const Str& name : references)
        if (sameText(name, library)) return true;
    return false;
}

struct TreeBuilder {
    settings::Settings& settings;
    FragmentLibrary& library;
    FolderReferences& folderReferences;
    const std::optional<std::vector<Str>>& references;
    bool repair;

    LibraryEntry entryOf(settings::clsFile& file) {
        LibraryEntry entry;
        entry.Name = file.Name();
        entry.FullName = file.FullName();
        if (!sameText(file.Extension(), u"lnk")) return entry;
        entry.ShortcutFile = file.FullName();
        ShortcutTarget target = ReadAndRepairShortcut(settings.Files, file.FullName(), library.FragmentsFolder, repair);
        entry.FullName = target.Target;
        entry.Repaired = target.Repaired;
        entry.Moved = target.Moved;
        entry.Problem = target.Error;
        if (!target.Ok) entry.Kind = LibraryEntryKind::BrokenShortcut;
        else if (!settings.Files.FileExists(target.Target)) {
            entry.Kind = LibraryEntryKind::BrokenShortcut;
            entry.Problem = u"The shortcut's target does not exist.";
        } else
            entry.Kind = LibraryEntryKind::Shortcut;
        return entry;
    }

    LibraryFolder build(settings::clsFolder& folder) {
        LibraryFolder node;
        node.Name = folder.Name();
        node.FullPath = folder.FullPath();
        for (auto& file : folder.Files) {
            LibraryEntry entry = entryOf(*file);
            (entry.Kind == LibraryEntryKind::BrokenShortcut ? node.Skipped : node.Entries).push_back(std::move(entry));
        }
        for (auto& sub : folder.Folders) {
            if (FolderIsApplicable(sub->FullPath(), library.FragmentsFolder, folderReferences, references))
                node.Folders.push_back(build(*sub));
            else
                library.HiddenFolders.push_back(sub->FullPath());
        }
        return node;
    }
};

}  // namespace

std::optional<std::vector<Str>> ActiveProjectReferences(host::VBE& vbe) {
    try {
        host::VBProjectPtr project = vbe.ActiveVBProject();
        if (!project) return std::nullopt;
        host::ReferencesPtr all = project->References();
        std::vector<Str> names;
        for (long i = 1; i <= all->Count(); ++i) names.push_back(all->Item(i)->Name());
        return names;
    } catch (const basic::VbError&) {
        return std::nullopt;
    }
}

FolderReferences ReadFolderReferences(settings::Settings& settings) {
    FolderReferences result;
    settings::C4_IniFile ini(settings);
    ini.Name(settings::IniFile2Name(settings, settings::IniFileReferenceFragments));
    settings::C4_IniFileSection* section =
        ini.Item(settings::Section2Name(settings, settings::SectionFragmentsReference));
    auto* items = section ? section->Items() : nullptr;
    if (!items) return result;
    for (const auto& item : *items)
        if (!result.Exists(item->Key)) result.Add(basic::Trim(item->Value), item->Key);
    return result;
}

bool FolderIsApplicable(const Str& path, const Str& fragmentsFolder, FolderReferences& folderReferences,
                        const std::optional<std::vector<Str>>& references) {
    if (!references) return true;
    Str relative = path;
    if (sameText(basic::Left(path, basic::Len(fragmentsFolder)), fragmentsFolder))
        relative = basic::Mid(path, basic::Len(fragmentsFolder) + 1);
    for (const Str& part : basic::Split(relative, u"\\")) {
        if (part.empty() || !folderReferences.Exists(part)) continue;
        const Str& library = folderReferences.Item(part);
        if (!library.empty() && !refersTo(*references, library)) return false;
    }
    return true;
}

FragmentLibrary OpenFragmentLibrary(settings::Settings& settings, const std::optional<std::vector<Str>>& references,
                                    bool repair) {
    FragmentLibrary library;
    library.ReferencesKnown = references.has_value();
    library.FragmentsFolder = settings::FragmentsFolder(settings);
    while (!library.FragmentsFolder.empty() && library.FragmentsFolder.back() == u'\\') library.FragmentsFolder.pop_back();
    library.Exists = settings.Files.FolderExists(library.FragmentsFolder);
    FolderReferences folderReferences;
    try {
        folderReferences = ReadFolderReferences(settings);
        settings::clsFolder root(settings);
        root.InitFolder(library.FragmentsFolder, u"*.bas;*.lnk");
        TreeBuilder builder{settings, library, folderReferences, references, repair};
        library.Root = builder.build(root);
    } catch (const std::exception& error) {
        // What was read stands; the rest of the library stays empty.
        settings.reportError(basic::VbError(basic::err::ApplicationDefined, basic::fromUtf8(error.what())),
                             u"frmFragments.init");
    }
    return library;
}

}  // namespace quillet::fragments
