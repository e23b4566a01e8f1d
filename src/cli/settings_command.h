#pragma once
// The settings verb (print the effective settings, or change one) and the preparation of the
// settings that every verb that works runs first: the first use writes qltusr.ini and qlttp.ini
// with all defaults and installs the files a fresh installation needs.

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <ostream>

#include "cli/options.h"
#include "settings/settings.h"

namespace quillet::cli {

// Points the settings at --settings DIR and the shipped files at --data DIR (else at the data
// folder found near the executable), loads every value and writes missing ones; on a first use
// installs the shipped files. Reports go to err.
void prepareSettings(settings::Settings& settings, const ToolOptions& options, std::ostream& err);

// The same for the verbs that work on a project: their first use writes the settings files too.
void prepareSettingsFiles(const ToolOptions& options, std::ostream& err);

// The shipped files' folder: --data DIR, else QUILLET_DATA, else a "data" folder holding
// "quillet" beside the executable, in "share/quillet" above it, or in a folder above it (a
// build inside the source tree).
std::optional<std::filesystem::path> findDataFolder(const ToolOptions& options,
                                                    const std::function<std::optional<std::string>(const std::string&)>& environment);

std::string settingsHelpText();

// quillet settings [set SECTION KEY VALUE]. Exit 1 for an unknown setting or a value its type
// refuses, 2 when the file cannot be written.
int settingsCommand(const ToolOptions& options, std::ostream& out, std::ostream& err);

}  // namespace quillet::cli
