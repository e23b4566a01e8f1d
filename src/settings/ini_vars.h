#pragma once
// The two movements between the settings files and IniItemValue, the reading of the type
// prefix table, and the filling and saving of the Settings dialog's controls.

#include "dialogs/form.h"
#include "settings/catalogue.h"
#include "settings/settings.h"

namespace quillet::settings {

// An item's current value as text (its default before anything was loaded).
Str IniText(Settings& settings, long item);
// An item's current value as a check box reads it.
bool IniBool(Settings& settings, long item);

// Every item takes its default (and counts as not read from its file).
void SetDefaults(Settings& settings);
// Loads all items from their files, writing the defaults of missing keys back; at a first start
// (connection) installs the shipped files when a value was missing (a fresh installation), then
// opens the Settings dialog and asks about the tool windows as needed.
void InitializeGlobalVars(Settings& settings, bool firstStart);
// The loading step alone: defaults, then every file read and its missing keys written. Gives
// whether a value was missing. Errors go to HandleError.
bool LoadIniItemValues(Settings& settings);
// Reads the section "Prefix" of the prefix standards file into TypePrefixes.
void TypePrefixFromIniFile(Settings& settings);
// Fills the dialog's controls from IniItemValue.
void SetIniControls(Settings& settings, dialogs::Form& form);
// Writes the dialog's controls to the files, then reloads IniItemValue from them.
void SaveIniVars(Settings& settings, dialogs::Form& form);

// The two first-start questions and the closing message.
extern const char16_t kCodeExplorerQuestion[];
extern const char16_t kShortcutsQuestion[];
extern const char16_t kDockMessage[];

}  // namespace quillet::settings
