// The code folders and the expansion of symbolic folder names.

#include "settings/code_folders.h"

#include <array>
#include <filesystem>

#include "basic/strings.h"
#include "basic/unicode.h"
#include "settings/catalogue.h"
#include "settings/ini_vars.h"

namespace quillet::settings {

using basic::Compare;

namespace {

// The add-in's own folder below the per-user application data.
const Str kProductFolder = u"Quillet";

Str stripTrailing(Str text, char16_t c) {
    while (!text.empty() && text.back() == c) text.pop_back();
    return text;
}

Str stripLeading(Str text, char16_t c) {
    size_t n = 0;
    while (n < text.size() && text[n] == c) ++n;
    return text.substr(n);
}

// The per-user folder the root lies in, as a machine path, or none.
std::optional<std::filesystem::path> userFolder(Settings& settings) {
    if (settings.SettingsFolder) return std::filesystem::absolute(std::filesystem::path(*settings.SettingsFolder));
    auto env = [&](const char* name) { return settings.Environment ? settings.Environment(name) : std::nullopt; };
    if (auto home = env("QUILLET_HOME")) return std::filesystem::absolute(std::filesystem::path(*home));
#ifdef _WIN32
    if (auto appData = env("APPDATA")) return std::filesystem::path(*appData) / "Quillet";
#else
    if (auto config = env("XDG_CONFIG_HOME")) return std::filesystem::path(*config) / "quillet";
    if (auto home = env("HOME")) return std::filesystem::path(*home) / ".config" / "quillet";
#endif
    return std::nullopt;
}

// Makes a folder and its missing parents.
void makeFolderChain(Settings& settings, const Str& folder) {
    if (folder.empty() || settings.Files.PathExists(folder)) return;
    long last = basic::InStrRev(folder, u"\\");
    if (last > 3) makeFolderChain(settings, basic::Left(folder, last - 1));
    settings.Files.CreateFolder(folder);
}

Str itemText(Settings& settings, IniItem item) { return IniText(settings, item); }

Str resolvedFile(Settings& settings, IniItem item) {
    Str value = itemText(settings, item);
    return IsAbsolutePath(value) ? value : ResolvePath(settings, value);
}

}  // namespace

Str RootFolder(Settings& settings) {
    if (!settings.RootFolderCache.empty()) return settings.RootFolderCache;
    Str root;
    if (auto folder = userFolder(settings)) root = settings.Files.systemPath(*folder);
    if (root.empty()) root = settings.Platform().AddinFolder();
    root = stripTrailing(root, u'\\');
    makeFolderChain(settings, root);
    settings.RootFolderCache = root;
    return root;
}

Str AddBackslash(const Str& text) {
    if (text.empty() || text.back() == u'\\') return text;
    return text + u"\\";
}

Str MakePath(const std::vector<Str>& parts) {
    std::vector<Str> kept;
    for (const auto& part : parts)
        if (!part.empty()) kept.push_back(part);
    Str path;
    for (size_t i = 0; i < kept.size(); ++i) {
        Str part = i == 0 ? kept[i] : stripLeading(kept[i], u'\\');
        if (i + 1 < kept.size()) part = stripTrailing(part, u'\\') + u"\\";
        path += part;
    }
    return path;
}

bool IsAbsolutePath(const Str& path) { return basic::Like(path, u"?:\\*") || basic::Like(path, u"\\\\*\\*"); }

Str CodeFolder(Settings& settings) {
    Str base = itemText(settings, iiBaseFolder);
    return IsAbsolutePath(base) ? base : MakePath({RootFolder(settings), base});
}

Str LibraryFolder(Settings& settings) {
    Str library = itemText(settings, iiLibraryFolder);
    return IsAbsolutePath(library) ? library : ResolvePath(settings, library);
}

Str FragmentsFolder(Settings& settings) { return MakePath({CodeFolder(settings), u"Fragments"}); }
Str ClassesFolder(Settings& settings) { return MakePath({CodeFolder(settings), u"Classes"}); }
Str TemplatesFolder(Settings& settings) { return MakePath({CodeFolder(settings), u"Templates"}); }
Str ErrorHandlersFolder(Settings& settings) { return MakePath({FragmentsFolder(settings), u"ErrorHandlers"}); }

Str ExpandFolderNames(Settings& settings, const Str& path) {
    using Getter = Str (*)(Settings&);
    static const std::array<std::pair<const char16_t*, Getter>, 7> names = {{
        {u"<root>", RootFolder},
        {u"<code>", CodeFolder},
        {u"<library>", LibraryFolder},
        {u"<fragments>", FragmentsFolder},
        {u"<classes>", ClassesFolder},
        {u"<templates>", TemplatesFolder},
        {u"<errorhandlers>", ErrorHandlersFolder},
    }};
    Str result = path;
    for (const auto& [name, folder] : names) {
        long at = basic::InStr(1, result, name, Compare::Binary);
        if (at == 0) continue;
        Str before = basic::Left(result, at - 1);
        Str behind = basic::Mid(result, at + static_cast<long>(Str(name).size()));
        result = MakePath({before, folder(settings), behind});
    }
    return result;
}

Str ResolvePath(Settings& settings, const Str& path, const Str& root) {
    Str expanded = ExpandFolderNames(settings, path);
    Str base = root.empty() ? RootFolder(settings) : root;
    if (basic::InStr(expanded, base, Compare::Text) > 0) return expanded;
    if (basic::Like(expanded, u"\\\\*") || basic::Like(expanded, u"?:\\*")) return expanded;
    return MakePath({base, expanded});
}

Str PrefixStandardsFile(Settings& settings) { return resolvedFile(settings, iiPrefixStandardsFile); }
Str ModuleHeaderFile(Settings& settings) { return resolvedFile(settings, iiModuleHeaderFile); }
Str ProcedureHeaderFile(Settings& settings) { return resolvedFile(settings, iiProcedureHeaderFile); }
Str ErrorHandleFile(Settings& settings) { return resolvedFile(settings, iiErrorHandleFile); }
Str CollectionClassTemplate(Settings& settings) { return resolvedFile(settings, iiCollectionClassTemplate); }

bool MakeCodeFolders(Settings& settings) {
    using Getter = Str (*)(Settings&);
    static const std::array<Getter, 6> folders = {CodeFolder, LibraryFolder, FragmentsFolder,
                                                  ClassesFolder, TemplatesFolder, ErrorHandlersFolder};
    for (Getter folder : folders) {
        Str path = stripTrailing(folder(settings), u'\\');
        if (!settings.Files.PathExists(path)) settings.Files.CreateFolder(path);
    }
    return true;
}

}  // namespace quillet::settings
