#pragma once
// The folders of the add-in's code files (modCodeFolders): the root folder of all settings, the
// base folder of the code tree and the folders below it, and the symbolic names that paths in
// the settings may use: <root>, <code>, <library>, <fragments>, <classes>, <templates>,
// <errorhandlers>. Paths are the system's, with "\".

#include <string>
#include <vector>

#include "settings/settings.h"

namespace quillet::settings {

// The per-user folder all settings live in, without a final "\"; made when missing.
Str RootFolder(Settings& settings);

Str CodeFolder(Settings& settings);
Str LibraryFolder(Settings& settings);
Str FragmentsFolder(Settings& settings);
Str ClassesFolder(Settings& settings);
Str TemplatesFolder(Settings& settings);
Str ErrorHandlersFolder(Settings& settings);

// Joins parts: every part but the last ends in exactly one "\", every part but the first loses
// its leading "\"; empty parts are passed over.
Str MakePath(const std::vector<Str>& parts);
// Adds "\" unless the text is empty or ends in one.
Str AddBackslash(const Str& text);
// Replaces the first occurrence of each symbolic name by its folder.
Str ExpandFolderNames(Settings& settings, const Str& path);
// Expands symbolic names and makes the path absolute below root (the root folder when empty),
// unless it already holds root or starts with a drive or a server.
Str ResolvePath(Settings& settings, const Str& path, const Str& root = {});
// Like "?:\*" or "\\*\*".
bool IsAbsolutePath(const Str& path);

// The file settings, made absolute.
Str PrefixStandardsFile(Settings& settings);
Str ModuleHeaderFile(Settings& settings);
Str ProcedureHeaderFile(Settings& settings);
Str ErrorHandleFile(Settings& settings);
Str CollectionClassTemplate(Settings& settings);

// Makes each folder of the code tree that is missing, one level each; a missing parent leaves a
// folder unmade. Errors are ignored. Gives True.
bool MakeCodeFolders(Settings& settings);

}  // namespace quillet::settings
