// Loading and saving the catalogue's values.

#include "settings/ini_vars.h"

#include <algorithm>
#include <array>
#include <memory>

#include "basic/strings.h"
#include "basic/unicode.h"
#include "settings/code_folders.h"
#include "settings/default_files.h"
#include "settings/ini_file.h"

namespace quillet::settings {

using basic::VbError;

const char16_t kCodeExplorerQuestion[] =
    u"Quillet Code Explorer is a replacement of the VB Project Explorer\r\n"
    u"which let's you find procedures more easily.\r\n"
    u"It is best docked to the left side of the code pane.\r\n\r\n"
    u"Availability of the Code Explorer can be set on the Settings dialog (Other)\r\n"
    u"The Code Explorer can also be activated from menu: Quillet > Tools\r\n\r\n"
    u"Do you want the Code Explorer dockable window opened?";

const char16_t kShortcutsQuestion[] =
    u"Quillet Shortcuts and Search is a dockable window to give fast access\r\n"
    u"to Quillet code builders and procedures and fragments.\r\n"
    u"It is best docked to the right side of the code pane.\r\n\r\n"
    u"Availability of the Shortcuts and Search can be set on the Settings dialog (Other)\r\n"
    u"Shortcuts and Search can also be activated from menu: Quillet > Tools\r\n\r\n"
    u"Do you want the Shortcuts and Search dockable window opened?";

const char16_t kDockMessage[] = u"Don't forget to dock it";

namespace {

Str fileOfItem(Settings& settings, long item) {
    return IniFile2Name(settings, Section2IniFile(settings, ItemInSection(settings, item)));
}

Str sectionOfItem(Settings& settings, long item) { return Section2Name(settings, ItemInSection(settings, item)); }

// The text as the item's type stores it; an empty text keeps the default of a number, Boolean
// or date. A text that does not convert raises 13.
void storeValue(Settings& settings, long item, const Str& text) {
    long type = Item2IniItemType(settings, item);
    auto& slot = settings.IniItemValue[item];
    if (type == IniTypeLong || type == IniTypeBoolean || type == IniTypeDate) {
        if (text.empty()) return;
        Str t = basic::Trim(text);
        if (type == IniTypeDate) {
            slot = text;
        } else if (type == IniTypeBoolean && basic::StrComp(t, u"True", basic::Compare::Text) == 0) {
            slot = true;
        } else if (type == IniTypeBoolean && basic::StrComp(t, u"False", basic::Compare::Text) == 0) {
            slot = false;
        } else {
            auto n = basic::IsNumeric(t) ? basic::parseNumber(t) : std::nullopt;
            if (!n) throw VbError::standard(basic::err::TypeMismatch);
            if (type == IniTypeBoolean)
                slot = *n != 0;
            else
                slot = static_cast<long long>(*n);
        }
        return;
    }
    slot = text;
}

bool keepsDefaultWhenEmpty(Settings& settings, long item) {
    long type = Item2IniItemType(settings, item);
    return type == IniTypeLong || type == IniTypeBoolean || type == IniTypeDate;
}

// Reads the items of one file; gives whether a value was missing.
// Adds the missing keys to a file that holds something already, one line each, so that every
// other line stays as it was, even one the store does not understand ("a=b=c", a line without
// "=", a second key of the same name). The first failure is reported and ends the writing.
void addMissingKeys(Settings& settings, const Str& fileName, const std::vector<std::array<Str, 3>>& added) {
    ProfileApi& profile = settings.Profile();
    for (const auto& [section, key, value] : added) {
        if (profile.WritePrivateProfileStringA(section, key, value, fileName) != 0) continue;
        settings.reportError(VbError(profile.LastError(), u"Unable to save INI file section '" + section + u"'"),
                             u"modIniVarsQuillet.InitializeGlobalVars");
        return;
    }
}

bool readFile(Settings& settings, const Str& fileName) {
    C4_IniFile ini(settings);
    ini.Name(fileName);
    bool fresh = ini.Count() == 0;
    std::vector<std::array<Str, 3>> added;
    for (long item = 0; item < IniItemCount; ++item) {
        if (fileOfItem(settings, item) != fileName) continue;
        Str section = sectionOfItem(settings, item), key = Item2Name(settings, item);
        if (!ini.ValueExists(section, key)) {
            ini.Value(section, key, ValueText(ItemDefault(item)));
            added.push_back({section, key, ValueText(ItemDefault(item))});
        } else {
            Str text = ini.Value(section, key);
            storeValue(settings, item, text);
            settings.IniItemFromFile[item] = !text.empty() || !keepsDefaultWhenEmpty(settings, item);
        }
    }
    if (added.empty() || ini.Name().empty()) return !added.empty();
    if (fresh)
        ini.Save();
    else
        addMissingKeys(settings, ini.Name(), added);
    return true;
}

// Asks whether to open a tool window that is off; on Yes turns it on in memory and on disk.
bool offerWindow(Settings& settings, long item, const Str& question, void (DialogOpener::*show)()) {
    if (IniBool(settings, item)) return false;
    if (settings.Platform().MsgBox(question, platform::mb::vbYesNo + platform::mb::vbQuestion, Str{}) != platform::mb::vbYes)
        return false;
    settings.IniItemValue[item] = true;
    C4_IniFile ini(settings);
    ini.Name(fileOfItem(settings, item));
    ini.ValueEx(sectionOfItem(settings, item), Item2Name(settings, item), u"-1");
    if (settings.Dialogs) (settings.Dialogs->*show)();
    return true;
}

void firstStart(Settings& settings, bool anyMissing) {
    if (anyMissing) {
        if (settings.Dialogs) settings.Dialogs->ShowSettingsFirstStart();
        return;
    }
    for (long item : {iiOrganization, iiInitials, iiDeveloper, iiCopyright})
        if (!IniText(settings, item).empty()) return;
    if (settings.Dialogs) settings.Dialogs->ShowSettingsFirstStart();
    bool explorer = offerWindow(settings, iiViewCodeExplorerWindow, kCodeExplorerQuestion, &DialogOpener::ShowCodeExplorerWindow);
    bool shortcuts = offerWindow(settings, iiViewQuilletWindow, kShortcutsQuestion, &DialogOpener::ShowShortcutsWindow);
    if (explorer || shortcuts) settings.Platform().MsgBox(kDockMessage, 0, Str{});
}

bool isAutoPrefixControl(Settings& settings, const dialogs::Control& control) {
    return dialogs::foldedName(control.Name()) == dialogs::foldedName(ItemControlName(settings, iiAutoPrefixVariableName));
}

}  // namespace

Str IniText(Settings& settings, long item) {
    if (item < 0 || item >= static_cast<long>(settings.IniItemValue.size())) return ValueText(ItemDefault(item));
    return ValueText(settings.IniItemValue[item]);
}

bool IniBool(Settings& settings, long item) {
    if (item < 0 || item >= static_cast<long>(settings.IniItemValue.size())) return ValueIsTrue(ItemDefault(item));
    return ValueIsTrue(settings.IniItemValue[item]);
}

void SetDefaults(Settings& settings) {
    settings.IniItemValue.assign(IniItemCount, basic::Variant{});
    settings.IniItemFromFile.assign(IniItemCount, false);
    for (long item = 0; item < IniItemCount; ++item) settings.IniItemValue[item] = ItemDefault(item);
}

namespace {

// Reads every file; gives whether a value was missing, and throws what the reading throws.
bool readAllFiles(Settings& settings) {
    bool anyMissing = false;
    SetDefaults(settings);
    std::vector<Str> files;
    for (long item = 0; item < IniItemCount; ++item) {
        Str file = fileOfItem(settings, item);
        if (std::find(files.begin(), files.end(), file) == files.end()) files.push_back(file);
    }
    for (const Str& file : files) anyMissing = readFile(settings, file) || anyMissing;
    return anyMissing;
}

// A fresh installation takes the shipped files; a missing shipped folder is no error here.
void installShippedFiles(Settings& settings) {
    Str source = DefaultFilesSource(settings);
    if (settings.Files.FolderExists(source)) InstallDefaultFiles(settings, source);
}

}  // namespace

bool LoadIniItemValues(Settings& settings) {
    try {
        return readAllFiles(settings);
    } catch (const VbError& e) {
        settings.reportError(e, u"modIniVarsQuillet.InitializeGlobalVars");
    }
    return false;
}

void InitializeGlobalVars(Settings& settings, bool firstStartRun) {
    try {
        bool anyMissing = readAllFiles(settings);
        if (firstStartRun && anyMissing) installShippedFiles(settings);
        if (firstStartRun) firstStart(settings, anyMissing);
    } catch (const VbError& e) {
        settings.reportError(e, u"modIniVarsQuillet.InitializeGlobalVars");
    }
}

void TypePrefixFromIniFile(Settings& settings) {
    settings.TypePrefixes.clear();
    try {
        C4_IniFile ini(settings);
        ini.Name(PrefixStandardsFile(settings));
        C4_IniFileSection* section = ini.Item(u"Prefix");
        if (!section || !section->Items()) return;
        for (const auto& item : *section->Items()) {
            Str name = item->Key;
            if (basic::Like(basic::LCase(name), u"*prefix*")) {
                long at = basic::InStr(1, name, u"prefix", basic::Compare::Text);
                name = basic::Trim(basic::Left(name, at - 1)) + basic::Trim(basic::Mid(name, at + 6));
            }
            TypePrefixRow row{name};
            auto prefixes = basic::Split(item->Value, u",");
            for (size_t i = 0; i < prefixes.size() && i < 4; ++i) row[i + 1] = basic::Trim(prefixes[i]);
            settings.TypePrefixes.push_back(row);
        }
    } catch (const VbError& e) {
        settings.reportError(e, u"modIniVarsQuillet.TypePrefixFromIniFile");
    }
}

void SetIniControls(Settings& settings, dialogs::Form& form) {
    for (long item = 0; item < IniItemCount; ++item) {
        dialogs::Control* control = form.Find(ItemControlName(settings, item));
        if (!control) continue;
        if (control->Kind() == dialogs::ControlKind::CheckBox) {
            control->Value(IniBool(settings, item) ? dialogs::vbChecked : dialogs::vbUnchecked);
        } else if (isAutoPrefixControl(settings, *control)) {
            control->Clear();
            for (const auto& text : AutoPrefixListTexts()) control->AddItem(text);
            auto n = basic::parseNumber(basic::Trim(IniText(settings, item)));
            long index = n && *n >= 0 && *n < control->ListCount() ? static_cast<long>(*n) : -1;
            control->ListIndex(index);
        } else {
            control->Text(IniText(settings, item));
        }
    }
}

void SaveIniVars(Settings& settings, dialogs::Form& form) {
    std::unique_ptr<C4_IniFile> ini;
    Str openPath;
    for (long item = 0; item < IniItemCount; ++item) {
        dialogs::Control* control = form.Find(ItemControlName(settings, item));
        if (!control) continue;
        Str fullPath = MakePath({RootFolder(settings), fileOfItem(settings, item)});
        if (!ini || basic::StrComp(fullPath, openPath, basic::Compare::Text) != 0) {
            if (ini && !ini->Name().empty()) ini->Save();
            ini = std::make_unique<C4_IniFile>(settings);
            ini->Name(fullPath);
            openPath = fullPath;
        }
        Str value;
        if (control->Kind() == dialogs::ControlKind::CheckBox)
            value = control->Value() == dialogs::vbChecked ? u"-1" : u"0";
        else if (isAutoPrefixControl(settings, *control))
            value = basic::fromUtf8(std::to_string(control->ListIndex()));
        else
            value = control->Text();
        ini->Value(sectionOfItem(settings, item), Item2Name(settings, item), value);
    }
    if (ini && !ini->Name().empty()) ini->Save();
    InitializeGlobalVars(settings, false);
}

}  // namespace quillet::settings
