// The INI store: loading, changing in memory and saving section by section.

#include "settings/ini_file.h"

#include "basic/strings.h"
#include "settings/ansi_text.h"
#include "settings/code_folders.h"

namespace quillet::settings {

using basic::Compare;
using basic::VbError;

namespace {

const Str kNul(1, u'\0');

// The folder of a path: up to and including the last "\".
Str folderOf(const Str& path) {
    long last = basic::InStrRev(path, u"\\");
    return last > 0 ? basic::Left(path, last) : Str{};
}

}  // namespace

Str readProfileList(const std::function<long(Str& buffer, long size)>& call) {
    long size = 1024;
    Str buffer;
    long result = call(buffer, size);
    while (result > 0 && result == size - 2) {
        size = result * 2;
        result = call(buffer, size);
    }
    if (result <= 1) return {};
    return basic::Left(buffer, result - 1);
}

// ---- C4_IniFileItem

void C4_IniFileItem::Save() {
    try {
        C4_IniFile* file = Parent->Parent;
        file->Owner().Profile().WritePrivateProfileStringA(Parent->Name, Key, Value, file->Name());
    } catch (const VbError& e) {
        Parent->Parent->Owner().reportError(e, u"C4_IniFileItem.Save");
    }
}

// ---- C4_IniFileSection

C4_IniFileItem* C4_IniFileSection::Item(const Str& key) {
    if (!items_) return nullptr;
    ItemPtr* item = items_->Find(key);
    return item ? item->get() : nullptr;
}

C4_IniFileItem* C4_IniFileSection::Item(long index) {
    if (!items_ || index < 1 || index > items_->Count()) return nullptr;
    return items_->Item(index).get();
}

void C4_IniFileSection::Remove(const Str& key) {
    if (items_ && items_->Exists(key)) items_->Remove(key);
}

void C4_IniFileSection::Remove(long index) {
    if (items_ && index >= 1 && index <= items_->Count()) items_->Remove(index);
}

C4_IniFileItem* C4_IniFileSection::Add(const Str& key, const Str& value) {
    if (!items_ || items_->Exists(key)) return nullptr;
    auto item = std::make_shared<C4_IniFileItem>(this, key, value);
    items_->Add(item, key);
    return item.get();
}

std::optional<Str> C4_IniFileSection::builtContent() const {
    if (!items_) return std::nullopt;
    Str text;
    for (const auto& item : *items_) {
        Str key = basic::Trim(item->Key);
        if (!key.empty() && key.front() == u'#')
            text += item->Key + kNul;
        else
            text += item->Key + u"=" + item->Value + kNul;
    }
    return text + kNul;
}

void C4_IniFileSection::Save(const Str& content) {
    try {
        std::optional<Str> text = content.empty() ? builtContent() : std::optional<Str>(content);
        ProfileApi& profile = Parent->Owner().Profile();
        // Two characters against a one-character literal: true only for "#" alone.
        if (text && basic::Left(basic::Trim(*text), 2) == u"#")
            profile.WritePrivateProfileSectionA(Name, std::nullopt, Parent->Name());
        if (profile.WritePrivateProfileSectionA(Name, text, Parent->Name()) == 0)
            throw VbError(profile.LastError(), u"Unable to save INI file section '" + Name + u"'",
                          u"C4_IniFileSection.Save");
    } catch (const VbError& e) {
        Parent->Owner().reportError(e, u"C4_IniFileSection.Save");
    }
}

void C4_IniFileSection::Initialize() {
    Settings& settings = Parent->Owner();
    Str text = readProfileList([&](Str& buffer, long size) {
        return settings.Profile().GetPrivateProfileSectionA(Name, buffer, size, Parent->Name());
    });
    sectionContent_ = text;
    if (!items_) items_.emplace();
    for (const Str& line : C4_IniFile::Split(kNul, text)) {
        if (line.empty()) continue;
        auto pieces = C4_IniFile::Split(u"=", line);
        Str key = basic::Trim(pieces.front());
        Str value = pieces.size() > 1 ? basic::Trim(pieces.back()) : Str{};
        Add(key, value);
    }
}

// ---- C4_IniFile

void C4_IniFile::Name(const Str& path) {
    if (path.empty()) return;
    Str resolved = path;
    FileSystem& files = settings_.Files;
    if (!files.FolderExists(folderOf(resolved))) {
        Str root = RootFolder(settings_);
        if (basic::InStr(resolved, root, Compare::Text) == 0) {
            if (!resolved.empty() && resolved.front() == u'\\') resolved.erase(0, 1);
            resolved = AddBackslash(root) + resolved;
        }
    }
    name_ = resolved;
    if (files.FolderExists(folderOf(name_)))
        ReadData();
    else
        name_.clear();
}

void C4_IniFile::ReadData() {
    try {
        Str names = readProfileList([&](Str& buffer, long size) {
            return settings_.Profile().GetPrivateProfileSectionNamesA(buffer, size, name_);
        });
        if (names.empty()) return;
        for (const Str& name : Split(kNul, names)) {
            if (name.empty() || sections_.Exists(name)) continue;
            auto section = std::make_shared<C4_IniFileSection>(this, name);
            sections_.Add(section, name);
            section->Initialize();
        }
    } catch (const VbError& e) {
        settings_.reportError(e, u"C4_IniFile.ReadData");
    }
}

C4_IniFileSection* C4_IniFile::Add(const Str& name, const std::optional<Str>& key, const Str& value) {
    if (sections_.Exists(name)) return nullptr;
    auto section = std::make_shared<C4_IniFileSection>(this, name);
    sections_.Add(section, name);
    if (key) section->Add(*key, value);
    return section.get();
}

C4_IniFileSection* C4_IniFile::Item(const Str& name) {
    SectionPtr* section = sections_.Find(name);
    return section ? section->get() : nullptr;
}

C4_IniFileSection* C4_IniFile::Item(long index) {
    if (index < 1 || index > sections_.Count()) return nullptr;
    return sections_.Item(index).get();
}

void C4_IniFile::DeleteSection(const Str& name) {
    if (auto* section = Item(name)) section->Delete();
}

void C4_IniFile::DeleteSection(long index) {
    if (auto* section = Item(index)) section->Delete();
}

void C4_IniFile::Save() {
    for (auto& section : sections_) {
        try {
            section->Save();
        } catch (const VbError& e) {
            settings_.reportError(e, u"C4_IniFile.Save");
        }
    }
}

bool C4_IniFile::ValueExists(const Str& section, const Str& key) {
    auto* s = Item(section);
    return s && s->Item(key);
}

Str C4_IniFile::Value(const Str& section, const Str& key) {
    auto* s = Item(section);
    auto* item = s ? s->Item(key) : nullptr;
    return item ? item->Value : Str{};
}

void C4_IniFile::Value(const Str& section, const Str& key, const Str& value) {
    auto* s = Item(section);
    if (!s) s = Add(section);
    auto* item = s->Item(key);
    if (!item) item = s->Add(key, Str{});
    if (item) item->Value = value;
}

Str C4_IniFile::SectionContent(const Str& section) {
    auto* s = Item(section);
    return s ? s->SectionContent() : Str{};
}

void C4_IniFile::ValueEx(const Str& section, const Str& key, const Str& value) {
    Value(section, key, value);
    Save();
}

void C4_IniFile::RemoveValue(const Str& section, const Str& key) {
    try {
        if (auto* s = Item(section)) s->Remove(key);
    } catch (const VbError& e) {
        settings_.reportError(e, u"C4_IniFile.RemoveValue");
    }
}

std::vector<Str> C4_IniFile::Split(const Str& delimiter, const Str& text) {
    std::vector<Str> pieces;
    if (delimiter.empty()) {
        if (!text.empty()) pieces.push_back(text);
    } else {
        size_t pos = 0;
        while (pos <= text.size()) {
            size_t at = text.find(delimiter, pos);
            size_t end = at == Str::npos ? text.size() : at;
            if (end > pos) pieces.push_back(text.substr(pos, end - pos));
            if (at == Str::npos) break;
            pos = at + delimiter.size();
        }
    }
    if (pieces.empty()) pieces.emplace_back();
    return pieces;
}

void C4_IniFile::AddLine(const Str& line) {
    if (name_.empty()) return;
    settings_.Files.Append(name_, toAnsi(line + u"\r\n"));
}

}  // namespace quillet::settings
