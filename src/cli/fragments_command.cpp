// The fragments verb.

#include "cli/fragments_command.h"

#include "basic/strings.h"
#include "cli/json_writer.h"
#include "cli/project_session.h"
#include "cli/settings_command.h"
#include "cli/tool.h"
#include "fragments/fragment_library.h"
#include "hosts/memory/memory_host.h"
#include "platform/scripted_platform.h"

namespace quillet::cli {

using fragments::FragmentLibrary;
using fragments::LibraryEntry;
using fragments::LibraryEntryKind;
using fragments::LibraryFolder;

namespace {

std::string u8(const Str& text) { return basic::toUtf8(text); }

// A path below the library relative to it; any other path as the machine names it.
Str shownPath(settings::Settings& settings, const FragmentLibrary& library, const Str& path) {
    Str prefix = library.FragmentsFolder + u"\\";
    if (basic::StrComp(basic::Left(path, basic::Len(prefix)), prefix, basic::Compare::Text) == 0)
        return basic::Mid(path, basic::Len(prefix) + 1);
    auto machine = settings.Files.machinePath(path);
    return machine ? basic::fromUtf8(machine->string()) : path;
}

struct Printer {
    settings::Settings& settings;
    const FragmentLibrary& library;

    void text(const LibraryFolder& folder, const std::string& indent, std::ostream& out) {
        for (const LibraryEntry& entry : folder.Entries) {
            out << indent << u8(entry.Name);
            if (entry.Kind == LibraryEntryKind::Shortcut)
                out << " -> " << u8(shownPath(settings, library, entry.FullName)) << (entry.Moved ? " (library moved: the Fragment Builder mends the link)" : "");
            out << "\n";
        }
        for (const LibraryEntry& entry : folder.Skipped)
            out << indent << u8(entry.Name) << "  [broken shortcut: " << u8(entry.Problem) << "]\n";
        for (const LibraryFolder& sub : folder.Folders) {
            out << indent << u8(sub.Name) << "\\\n";
            text(sub, indent + "  ", out);
        }
    }

    void entryJson(JsonWriter& json, const LibraryEntry& entry) {
        json.beginObject();
        json.key(u"name");
        json.value(entry.Name);
        json.key(u"kind");
        json.value(entry.Kind == LibraryEntryKind::Fragment ? u"fragment"
                   : entry.Kind == LibraryEntryKind::Shortcut ? u"shortcut" : u"broken shortcut");
        json.key(u"file");
        json.value(shownPath(settings, library, entry.ShortcutFile.empty() ? entry.FullName : entry.ShortcutFile));
        if (entry.Kind != LibraryEntryKind::Fragment) {
            json.key(u"target");
            json.value(entry.FullName.empty() ? Str() : shownPath(settings, library, entry.FullName));
            json.key(u"moved");
            json.value(entry.Moved);
        }
        if (!entry.Problem.empty()) {
            json.key(u"problem");
            json.value(entry.Problem);
        }
        json.endObject();
    }

    void folderJson(JsonWriter& json, const LibraryFolder& folder) {
        json.beginObject();
        json.key(u"name");
        json.value(folder.Name);
        json.key(u"path");
        json.value(folder.FullPath == library.FragmentsFolder ? Str() : shownPath(settings, library, folder.FullPath));
        json.key(u"entries");
        json.beginArray();
        for (const LibraryEntry& entry : folder.Entries) entryJson(json, entry);
        json.endArray();
        json.key(u"skipped");
        json.beginArray();
        for (const LibraryEntry& entry : folder.Skipped) entryJson(json, entry);
        json.endArray();
        json.key(u"folders");
        json.beginArray();
        for (const LibraryFolder& sub : folder.Folders) folderJson(json, sub);
        json.endArray();
        json.endObject();
    }
};

void printText(Printer& printer, const std::optional<std::vector<Str>>& references, std::ostream& out) {
    const FragmentLibrary& library = printer.library;
    out << "Fragment library: " << u8(shownPath(printer.settings, library, library.FragmentsFolder))
        << (library.Exists ? "" : " (missing)") << "\n";
    out << "References: "
        << (references ? u8(basic::Join(*references, u", ")) : std::string("none known, every folder is shown")) << "\n\n";
    printer.text(library.Root, "", out);
    for (const Str& hidden : library.HiddenFolders)
        out << u8(shownPath(printer.settings, library, hidden)) << "\\  [hidden: its library is not referred to]\n";
}

void printJson(Printer& printer, const std::optional<std::vector<Str>>& references, std::ostream& out) {
    const FragmentLibrary& library = printer.library;
    JsonWriter json(out);
    json.beginObject();
    json.key(u"fragmentsFolder");
    json.value(shownPath(printer.settings, library, library.FragmentsFolder));
    json.key(u"exists");
    json.value(library.Exists);
    json.key(u"referencesKnown");
    json.value(library.ReferencesKnown);
    json.key(u"references");
    json.beginArray();
    if (references)
        for (const Str& name : *references) json.value(name);
    json.endArray();
    json.key(u"root");
    printer.folderJson(json, library.Root);
    json.key(u"hidden");
    json.beginArray();
    for (const Str& hidden : library.HiddenFolders) json.value(shownPath(printer.settings, library, hidden));
    json.endArray();
    json.endObject();
    json.finish();
}

}  // namespace

std::string fragmentsHelpText() {
    return "Usage: quillet fragments [--project PATH] [--json] [--settings DIR] [--data DIR]\n"
           "\n"
           "Lists the fragment library as the Fragment Builder shows it: the folders below the\n"
           "fragments folder, each with its fragments (.bas) and shortcuts (.lnk) in order of\n"
           "name. A shortcut shows the fragment it points to, also when its library has moved\n"
           "(the Fragment Builder mends such a link when it opens; this listing writes\n"
           "nothing); a shortcut whose fragment is missing, or that cannot be read, is marked\n"
           "broken and is not an entry.\n"
           "\n"
           "With --project, a folder that qltrefra.ini ties to a library the project does not\n"
           "refer to is hidden with all below it; without a project every folder is shown.\n"
           "\n"
           "Options:\n"
           "  --project PATH        the project whose references decide which folders show\n"
           "  --json                one JSON object: fragmentsFolder, exists, referencesKnown,\n"
           "                        references, root (name, path, entries, skipped, folders),\n"
           "                        hidden\n"
           "  --settings DIR        the settings folder\n"
           "  --data DIR            the folder of the files a fresh installation needs\n"
           "\n"
           "Example:\n"
           "  quillet fragments --project examples/Invoicing\n";
}

int fragmentsCommand(const ToolOptions& options, std::ostream& out, std::ostream& err) {
    std::optional<std::vector<Str>> references;
    if (options.project) {
        auto vbe = hosts::memory::MemoryVBE::create();
        auto project = loadProjectFiles(options, vbe);
        references = fragments::ActiveProjectReferences(*vbe);
    }
    platform::ScriptedPlatform platform;
    settings::Settings settings(platform);
    settings.ReportError = [&err](const basic::VbError& error, const Str& source) {
        err << "quillet: " << u8(source) << ": " << u8(error.Description()) << "\n";
    };
    prepareSettings(settings, options, err);
    // A listing reads only: moved shortcuts are shown at their new place, not mended.
    FragmentLibrary library = fragments::OpenFragmentLibrary(settings, references, false);
    Printer printer{settings, library};
    if (options.json)
        printJson(printer, references, out);
    else
        printText(printer, references, out);
    return kExitOk;
}

}  // namespace quillet::cli
