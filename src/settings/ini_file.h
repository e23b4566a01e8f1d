#pragma once
// The INI store: one file (C4_IniFile), its sections (C4_IniFileSection) and their lines
// (C4_IniFileItem), read through the profile functions, changed in memory and written back
// section by section, keeping the order of sections and lines. A file object lives for one call:
// make it, set Name, read or change values, Save, drop it.
//
// Sections and keys are keyed ignoring case; the first of two equal keys wins. A line "a=b=c"
// loads as key a, value c; "=x" as key x with no value; a key beginning "#" is a comment line
// written back without "=". Missing sections and keys give empty results, never errors.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "basic/collection.h"
#include "settings/settings.h"

namespace quillet::settings {

class C4_IniFile;
class C4_IniFileSection;

class C4_IniFileItem {
public:
    C4_IniFileItem(C4_IniFileSection* parent, Str key, Str value)
        : Parent(parent), Key(std::move(key)), Value(std::move(value)) {}

    // Writes this one line at once (WritePrivateProfileStringA).
    void Save();

    C4_IniFileSection* Parent;
    Str Key;
    Str Value;
};

using ItemPtr = std::shared_ptr<C4_IniFileItem>;
using SectionPtr = std::shared_ptr<C4_IniFileSection>;

class C4_IniFileSection {
public:
    C4_IniFileSection(C4_IniFile* parent, Str name) : Parent(parent), Name(std::move(name)) {}

    const Str& SectionContent() const { return sectionContent_; }
    // 0 once deleted.
    long Count() const { return items_ ? items_->Count() : 0; }
    // Marks the section for deletion: the next Save removes it, header and all, from the file.
    void Delete() { items_.reset(); }
    bool Deleted() const { return !items_; }
    // The item by key or 1-based number; nothing when missing.
    C4_IniFileItem* Item(const Str& key);
    C4_IniFileItem* Item(long index);
    // Errors ignored.
    void Remove(const Str& key);
    void Remove(long index);
    // Adds a line; a key that is taken keeps its first line and gives nothing.
    C4_IniFileItem* Add(const Str& key, const Str& value);
    // Writes the section: an empty content is built from the items.
    void Save(const Str& content = {});
    // Reads the section's lines from the file.
    void Initialize();
    basic::Collection<ItemPtr>* Items() { return items_ ? &*items_ : nullptr; }

    C4_IniFile* Parent;
    Str Name;

private:
    // The text to write: the null text for a deleted section, else the lines and a final NUL.
    std::optional<Str> builtContent() const;

    std::optional<basic::Collection<ItemPtr>> items_{basic::Collection<ItemPtr>{}};
    Str sectionContent_;
};

class C4_IniFile {
public:
    explicit C4_IniFile(Settings& settings) : settings_(settings) {}
    C4_IniFile(const C4_IniFile&) = delete;
    C4_IniFile& operator=(const C4_IniFile&) = delete;

    const Str& Name() const { return name_; }
    // Resolves the path into the root folder when its folder does not exist, then loads the file;
    // Name ends empty when the folder is still missing.
    void Name(const Str& path);

    // A new section (nothing is read for it); with a key, that line is added to it.
    C4_IniFileSection* Add(const Str& name, const std::optional<Str>& key = std::nullopt, const Str& value = {});
    C4_IniFileSection* Item(const Str& name);
    C4_IniFileSection* Item(long index);
    long Count() const { return sections_.Count(); }
    void DeleteSection(const Str& name);
    void DeleteSection(long index);
    // Writes every section in order.
    void Save();
    basic::Collection<SectionPtr>& Sections() { return sections_; }
    bool SectionExists(const Str& section) const { return sections_.Exists(section); }
    bool ValueExists(const Str& section, const Str& key);
    Str Value(const Str& section, const Str& key);
    // Sets a value in memory, making section and key as needed.
    void Value(const Str& section, const Str& key, const Str& value);
    Str SectionContent(const Str& section);
    // Value, then Save of the whole file.
    void ValueEx(const Str& section, const Str& key, const Str& value);
    void RemoveValue(const Str& section, const Str& key);
    // The non-empty pieces between delimiters (binary compare); one empty piece when there is none.
    static std::vector<Str> Split(const Str& delimiter, const Str& text);
    // Appends the line and CRLF to the file on disk; the objects in memory stay as they are.
    void AddLine(const Str& line);

    Settings& Owner() { return settings_; }

private:
    void ReadData();

    Settings& settings_;
    Str name_;
    basic::Collection<SectionPtr> sections_;
};

// Reads a profile list through a buffer that starts at 1024 characters and doubles from the
// returned size while the result says it was too small; gives the text less its final NUL.
Str readProfileList(const std::function<long(Str& buffer, long size)>& call);

}  // namespace quillet::settings
