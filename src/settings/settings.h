#pragma once
// What the settings keep for the length of a connection: the current values of all settings
// (IniItemValue), the table of type prefixes, the root folder once it is known, and the services
// the settings code reaches the machine through. The add-in's context owns one; tests make their
// own.

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "basic/variant.h"
#include "basic/vb_error.h"
#include "platform/platform.h"
#include "settings/file_system.h"
#include "settings/profile.h"

namespace quillet::settings {

// HandleError: the error, and the routine it happened in ("C4_IniFile.ReadData").
using ErrorReporter = std::function<void(const basic::VbError& error, const Str& source)>;

// The windows the first start opens; the add-in's shell provides them, tests record the calls.
class DialogOpener {
public:
    virtual ~DialogOpener() = default;
    // The Settings dialog, modal, opened as for a first start.
    virtual void ShowSettingsFirstStart() = 0;
    virtual void ShowCodeExplorerWindow() = 0;
    virtual void ShowShortcutsWindow() = 0;
};

// One row of TypePrefixes: the type's name and its four prefixes (the first is proposed).
using TypePrefixRow = std::array<Str, 5>;

class Settings {
public:
    explicit Settings(platform::Platform& platform);
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    platform::Platform& Platform() { return platform_; }
    ProfileApi& Profile() { return *profile_; }
    // The profile functions to use (the Windows ones on Windows); the portable ones by default.
    void setProfile(std::unique_ptr<ProfileApi> profile) { profile_ = std::move(profile); }

    // Reports an error through the add-in's HandleError; kept in ErrorLog when none is set.
    void reportError(const basic::VbError& error, const Str& source);

    FileSystem Files;
    ErrorReporter ReportError;
    std::vector<Str> ErrorLog;
    DialogOpener* Dialogs = nullptr;

    // Where the root folder comes from, first to last: the tool's "--settings DIR" (a machine
    // path), then the environment (QUILLET_HOME; elsewhere than Windows XDG_CONFIG_HOME and HOME,
    // on Windows APPDATA). Environment reads one variable; the process environment by default.
    std::optional<std::string> SettingsFolder;
    std::function<std::optional<std::string>(const std::string& name)> Environment;
    // The root folder once computed, in the system's form with no final "\".
    Str RootFolderCache;
    // The folder of the files a fresh installation needs (system path); the add-in's folder and
    // "data" when not set.
    std::optional<Str> DefaultFilesFolder;

    // One value per catalogue item: a Boolean item holds a bool, every other a text.
    std::vector<basic::Variant> IniItemValue;
    // Per item: whether its value was read from its file (false: the default stands).
    std::vector<bool> IniItemFromFile;
    std::vector<TypePrefixRow> TypePrefixes;

private:
    platform::Platform& platform_;
    std::unique_ptr<ProfileApi> profile_;
};

}  // namespace quillet::settings
