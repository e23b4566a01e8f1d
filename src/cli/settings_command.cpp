// The settings verb.

#include "cli/settings_command.h"

#include <algorithm>

#include "basic/strings.h"
#include "cli/json_writer.h"
#include "cli/tool.h"
#include "platform/scripted_platform.h"
#include "settings/catalogue.h"
#include "settings/code_folders.h"
#include "settings/default_files.h"
#include "settings/ini_file.h"
#include "settings/ini_vars.h"

namespace quillet::cli {

namespace fs = std::filesystem;
using namespace settings;

namespace {

bool isDataFolder(const fs::path& folder) {
    std::error_code ec;
    return fs::is_directory(folder / "quillet", ec);
}

std::optional<fs::path> executableFolder() {
#ifdef __linux__
    std::error_code ec;
    auto exe = fs::read_symlink("/proc/self/exe", ec);
    if (!ec) return exe.parent_path();
#endif
    return std::nullopt;
}

fs::path machinePathOf(const std::string& utf8) { return fs::path(std::u8string(utf8.begin(), utf8.end())); }

struct Row {
    long item;
    Str file, section, key, value, type;
    bool fromFile;
};

Str typeName(Settings& settings, long item) {
    switch (Item2IniItemType(settings, item)) {
        case IniTypeBoolean: return u"boolean";
        case IniTypeFile: return u"file";
        case IniTypeFolder: return u"folder";
        case IniTypeLong: return u"number";
        case IniTypeDate: return u"date";
        default: return ItemIsList(item) ? u"list" : u"text";
    }
}

// A Boolean as it acts, True or False, whether it came as -1, True or empty.
Str effectiveText(Settings& settings, long item) {
    if (Item2IniItemType(settings, item) == IniTypeBoolean) return IniBool(settings, item) ? u"True" : u"False";
    return IniText(settings, item);
}

std::vector<Row> rows(Settings& settings) {
    std::vector<Row> result;
    for (long item = 0; item < IniItemCount; ++item) {
        long section = ItemInSection(settings, item);
        bool fromFile = item < static_cast<long>(settings.IniItemFromFile.size()) && settings.IniItemFromFile[item];
        result.push_back({item, IniFile2Name(settings, Section2IniFile(settings, section)), Section2Name(settings, section),
                          Item2Name(settings, item), effectiveText(settings, item), typeName(settings, item), fromFile});
    }
    // Grouped by section in the order the sections first appear; items keep their order.
    std::vector<Str> order;
    for (const Row& row : result)
        if (std::find(order.begin(), order.end(), row.section) == order.end()) order.push_back(row.section);
    std::stable_sort(result.begin(), result.end(), [&](const Row& a, const Row& b) {
        return std::find(order.begin(), order.end(), a.section) < std::find(order.begin(), order.end(), b.section);
    });
    return result;
}

std::string u8(const Str& text) { return basic::toUtf8(text); }

Str rootMachinePath(Settings& settings) {
    auto path = settings.Files.machinePath(RootFolder(settings));
    return path ? basic::fromUtf8(path->string()) : RootFolder(settings);
}

void printText(Settings& settings, std::ostream& out) {
    out << "Settings folder: " << u8(rootMachinePath(settings)) << "\n";
    Str section;
    size_t width = 0;
    auto all = rows(settings);
    for (const Row& row : all) {
        if (row.section != section) {
            section = row.section;
            width = 0;
            for (const Row& other : all)
                if (other.section == section) width = std::max(width, other.key.size());
            out << "\n[" << u8(section) << "]  " << u8(row.file) << "\n";
        }
        out << "  " << u8(row.key) << std::string(width - row.key.size(), ' ') << " = " << u8(row.value)
            << (row.value.empty() ? "" : "  ") << "(" << (row.fromFile ? "file" : "default") << ")\n";
    }
}

void printJson(Settings& settings, std::ostream& out) {
    JsonWriter json(out);
    json.beginObject();
    json.key(u"settingsFolder");
    json.value(rootMachinePath(settings));
    json.key(u"settings");
    json.beginArray();
    for (const Row& row : rows(settings)) {
        json.beginObject();
        json.key(u"file");
        json.value(row.file);
        json.key(u"section");
        json.value(row.section);
        json.key(u"key");
        json.value(row.key);
        json.key(u"value");
        json.value(row.value);
        json.key(u"type");
        json.value(row.type);
        json.key(u"origin");
        json.value(row.fromFile ? "file" : "default");
        json.endObject();
    }
    json.endArray();
    json.endObject();
    json.finish();
}

std::optional<long> findItem(Settings& settings, const Str& section, const Str& key) {
    for (long item = 0; item < IniItemCount; ++item) {
        bool sameSection = basic::StrComp(Section2Name(settings, ItemInSection(settings, item)), section,
                                          basic::Compare::Text) == 0;
        if (sameSection && basic::StrComp(Item2Name(settings, item), key, basic::Compare::Text) == 0) return item;
    }
    return std::nullopt;
}

// The text to store for a value of the item's type; none when the type refuses it.
std::optional<Str> storedText(Settings& settings, long item, const Str& value) {
    Str t = basic::Trim(value);
    if (Item2IniItemType(settings, item) == IniTypeBoolean) {
        for (const char16_t* yes : {u"true", u"-1", u"1", u"yes", u"on"})
            if (basic::StrComp(t, yes, basic::Compare::Text) == 0) return Str(u"-1");
        for (const char16_t* no : {u"false", u"0", u"no", u"off"})
            if (basic::StrComp(t, no, basic::Compare::Text) == 0) return Str(u"0");
        return std::nullopt;
    }
    if (item == iiAutoPrefixVariableName) {
        const auto& texts = AutoPrefixListTexts();
        for (size_t i = 0; i < texts.size(); ++i) {
            Str number = basic::fromUtf8(std::to_string(i));
            if (t == number || basic::StrComp(t, texts[i], basic::Compare::Text) == 0) return number;
        }
        return std::nullopt;
    }
    return value;
}

int setValue(Settings& settings, const ToolOptions& options, std::ostream& out, std::ostream& err) {
    const Str& section = options.settingChange[0];
    const Str& key = options.settingChange[1];
    auto item = findItem(settings, section, key);
    if (!item) {
        err << "quillet: unknown setting [" << u8(section) << "] " << u8(key)
            << "\nTry 'quillet settings' for the list of settings.\n";
        return kExitUsage;
    }
    auto text = storedText(settings, *item, options.settingChange[2]);
    if (!text) {
        err << "quillet: [" << u8(section) << "] " << u8(key) << " takes "
            << (*item == iiAutoPrefixVariableName ? "0, 1 or 2 (or the text of the list)" : "True or False")
            << ", not \"" << u8(options.settingChange[2]) << "\"\n";
        return kExitUsage;
    }
    Str sectionName = Section2Name(settings, ItemInSection(settings, *item));
    Str keyName = Item2Name(settings, *item);
    Str file = MakePath({RootFolder(settings), IniFile2Name(settings, Section2IniFile(settings, ItemInSection(settings, *item)))});
    C4_IniFile ini(settings);
    ini.Name(file);
    ini.ValueEx(sectionName, keyName, *text);
    C4_IniFile check(settings);
    check.Name(file);
    if (ini.Name().empty() || check.Value(sectionName, keyName) != *text) {
        err << "quillet: could not write " << u8(keyName) << " to " << u8(file) << "\n";
        return kExitProject;
    }
    out << "[" << u8(sectionName) << "] " << u8(keyName) << " = " << u8(*text) << "\n";
    return kExitOk;
}

}  // namespace

std::optional<fs::path> findDataFolder(const ToolOptions& options,
                                       const std::function<std::optional<std::string>(const std::string&)>& environment) {
    if (options.data) return fs::absolute(machinePathOf(*options.data));
    if (auto fromEnvironment = environment ? environment("QUILLET_DATA") : std::nullopt)
        return fs::absolute(machinePathOf(*fromEnvironment));
    auto folder = executableFolder();
    if (!folder) return std::nullopt;
    for (fs::path at = *folder; !at.empty(); at = at.parent_path()) {
        for (const fs::path& candidate : {at / "data", at / "share" / "quillet" / "data"})
            if (isDataFolder(candidate)) return candidate;
        if (at == at.root_path()) break;
    }
    return std::nullopt;
}

void prepareSettings(Settings& settings, const ToolOptions& options, std::ostream& err) {
    if (options.settings) settings.SettingsFolder = machinePathOf(*options.settings).string();
    settings.ReportError = [&err](const basic::VbError& error, const Str& source) {
        err << "quillet: " << u8(source) << ": error " << error.Number() << ": " << u8(error.Description()) << "\n";
    };
    auto data = findDataFolder(options, settings.Environment);
    if (data) settings.DefaultFilesFolder = settings.Files.systemPath(*data);
    if (!LoadIniItemValues(settings)) return;
    if (!data) {
        err << "quillet: the files a new settings folder needs were not found; give --data DIR\n";
        return;
    }
    InstallDefaultFiles(settings, *settings.DefaultFilesFolder);
}

std::string settingsHelpText() {
    return "Usage: quillet settings [--settings DIR] [--data DIR] [--json]\n"
           "       quillet settings set SECTION KEY VALUE [--settings DIR]\n"
           "\n"
           "Prints every setting: its section, key and value, and whether the value was read\n"
           "from its file or is the default. With set, changes one setting in its file; a\n"
           "Boolean takes True or False, Auto Prefix Variable Name 0, 1 or 2.\n"
           "\n"
           "The first use of any command writes qltusr.ini and qlttp.ini with all defaults and\n"
           "puts the headers, error handler templates and class template in place; a file\n"
           "that is there already is never replaced.\n"
           "\n"
           "Options:\n"
           "  --settings DIR   the settings folder (else $QUILLET_HOME, else\n"
           "                   $XDG_CONFIG_HOME/quillet or ~/.config/quillet)\n"
           "  --data DIR       the folder of the files a new settings folder receives (else\n"
           "                   $QUILLET_DATA, else the data folder found near the tool)\n"
           "  --json           print the settings as JSON\n"
           "\n"
           "Example:\n"
           "  quillet settings set \"Developer\" \"Initials\" JD\n";
}

void prepareSettingsFiles(const ToolOptions& options, std::ostream& err) {
    platform::ScriptedPlatform platform;
    Settings settings(platform);
    prepareSettings(settings, options, err);
}

int settingsCommand(const ToolOptions& options, std::ostream& out, std::ostream& err) {
    platform::ScriptedPlatform platform;
    Settings settings(platform);
    prepareSettings(settings, options, err);
    if (!options.settingChange.empty()) return setValue(settings, options, out, err);
    if (options.json)
        printJson(settings, out);
    else
        printText(settings, out);
    return kExitOk;
}

}  // namespace quillet::cli
