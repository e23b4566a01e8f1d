#include "source/prefixes.h"

#include "dialogs/control.h"
#include "settings/catalogue.h"

namespace quillet::source {

using basic::Compare;
using basic::StrComp;

namespace {

bool isLowerLetter(char16_t c) { return basic::upperCase(c) != c && basic::lowerCase(c) == c; }
bool isCapital(char16_t c) { return basic::lowerCase(c) != c; }

const settings::TypePrefixRow* rowOf(const PrefixTables& tables, const Str& type) {
    for (const auto& row : tables.TypePrefixes)
        if (!type.empty() && StrComp(row[0], type, Compare::Text) == 0) return &row;
    return nullptr;
}

void addPrefix(basic::Collection<PrefixRecord>& records, PrefixRecord record) {
    Str key = record.ScopePrefix + record.TypePrefix;
    if (key.empty() || records.Exists(key)) return;
    records.Add(std::move(record), key);
}

void selectExact(dialogs::Control& combo, const Str& text) {
    for (long i = 0; i < combo.ListCount(); ++i) {
        if (StrComp(combo.List(i), text, Compare::Text) == 0) {
            combo.ListIndex(i);
            return;
        }
    }
}

}  // namespace

Str PrefixSettings::scopePrefix(long scope) const {
    switch (scope) {
    case ScopeGlobal: return PrefixGlobal;
    case ScopeModule: return PrefixModule;
    case ScopeByRef: return PrefixByRef;
    case ScopeByVal: return PrefixByVal;
    default: return {};
    }
}

PrefixSettings prefixSettingsOf(settings::Settings& settings) {
    PrefixSettings out;
    const auto& values = settings.IniItemValue;
    auto text = [&](long item) { return item < static_cast<long>(values.size()) ? settings::ValueText(values[item]) : Str(); };
    auto flag = [&](long item) { return item < static_cast<long>(values.size()) && settings::ValueIsTrue(values[item]); };
    auto number = basic::parseNumber(text(settings::iiAutoPrefixVariableName));
    out.AutoPrefixVariableName = number ? static_cast<long>(*number) : 0;
    out.PrefixGlobal = text(settings::iiPrefixGlobal);
    out.PrefixModule = text(settings::iiPrefixModule);
    out.PrefixByRef = text(settings::iiPrefixByRef);
    out.PrefixByVal = text(settings::iiPrefixByVal);
    out.ConstTag = text(settings::iiConstTag);
    out.ConstTagBeforeTypeTag = flag(settings::iiConstTagBeforeTypeTag);
    out.SetPickedUpNameUCASE = flag(settings::iiSetPickedUpNameUCASE);
    return out;
}

PrefixTables PrefixesCollectionsCreate(const PrefixSettings& settings, const std::vector<settings::TypePrefixRow>& typePrefixes) {
    PrefixTables tables;
    tables.Settings = settings;
    tables.TypePrefixes = typePrefixes;
    for (long scope = ScopeGlobal; scope <= ScopeByVal; ++scope) {
        Str scopePrefix = settings.scopePrefix(scope);
        for (const auto& row : typePrefixes) {
            for (size_t i = 1; i < row.size(); ++i) {
                if (row[i].empty()) continue;
                addPrefix(tables.VariablePrefixes, {row[0], scope, scopePrefix, row[i]});
                Str tagged = settings.ConstTagBeforeTypeTag ? settings.ConstTag + row[i] : row[i] + settings.ConstTag;
                addPrefix(tables.ConstantPrefixes, {row[0], scope, scopePrefix, tagged});
            }
        }
    }
    return tables;
}

bool IsBaseType(const Str& type) {
    return !type.empty() && type.find(u',') == Str::npos &&
           basic::InStr(u",Byte,Boolean,Integer,Long,Single,Double,Currency,Date,String,", u"," + type + u",",
                        Compare::Text) > 0;
}

Str TypePrefixOf(const PrefixTables& tables, const Str& type) {
    const auto* row = rowOf(tables, type);
    if (!row) return {};
    for (size_t i = 1; i < row->size(); ++i)
        if (!(*row)[i].empty()) return (*row)[i];
    return {};
}

bool WordHasTypePrefix(const PrefixTables& tables, const Str& word, const Str& type, Str& prefix, bool blnBaseTypesOnly) {
    prefix.clear();
    if (blnBaseTypesOnly && !IsBaseType(type)) return false;
    const auto* row = rowOf(tables, type);
    if (!row) return false;
    for (size_t i = 1; i < row->size(); ++i) {
        const Str& candidate = (*row)[i];
        if (candidate.empty() || word.compare(0, candidate.size(), candidate) != 0) continue;
        if (word.size() > candidate.size() && isLowerLetter(word[candidate.size()])) continue;
        prefix = candidate;
        return true;
    }
    prefix = TypePrefixOf(tables, type);
    return false;
}

bool PrefixesCheck(const PrefixTables& tables, const Str& name, Str& prefix, Str& type, long& kind, bool blnConst,
                   Str& rest, Str* scopePrefix) {
    prefix.clear();
    type.clear();
    kind = 0;
    rest = name;
    if (scopePrefix) scopePrefix->clear();
    const auto& records = blnConst ? tables.ConstantPrefixes : tables.VariablePrefixes;
    size_t run = 0;
    while (run < name.size() && isLowerLetter(name[run])) ++run;
    for (size_t length = run; length > 0; --length) {
        const PrefixRecord* hit = records.Find(name.substr(0, length));
        if (!hit) continue;
        prefix = name.substr(0, length);
        type = hit->Type;
        kind = hit->Scope;
        rest = name.substr(length);
        if (scopePrefix) *scopePrefix = hit->ScopePrefix;
        return true;
    }
    return false;
}

Str NameWithPrefix(const PrefixTables& tables, const Str& name, const Str& type, dialogs::Control* combo, long& scope,
                   bool vfConst, Str& scopePrefix) {
    const PrefixSettings& settings = tables.Settings;
    if (settings.AutoPrefixVariableName == 0) return name;
    if (name.empty() && type.empty()) return name;

    Str base = name, hitType;
    if (!name.empty()) {
        Str prefix, rest, hitScopePrefix;
        long hitScope = 0;
        if (PrefixesCheck(tables, name, prefix, hitType, hitScope, vfConst, rest, &hitScopePrefix)) {
            base = rest;
            if (scope <= 0) scope = hitScope;
            scopePrefix = hitScopePrefix;
        }
    }
    if (vfConst && settings.SetPickedUpNameUCASE) base = basic::UCase(base);
    if (settings.AutoPrefixVariableName == 2 && (base.empty() || !isCapital(base[0]))) return name;
    if (combo) {
        if (type.empty() && !hitType.empty()) selectExact(*combo, hitType);
        return name;
    }

    Str result = base;
    if (!type.empty()) {
        Str typePrefix;
        if (WordHasTypePrefix(tables, base, type, typePrefix, false)) typePrefix.clear();
        if (vfConst)
            result = settings.ConstTagBeforeTypeTag ? settings.ConstTag + typePrefix + base
                                                    : typePrefix + settings.ConstTag + base;
        else
            result = typePrefix + base;
    }
    return settings.scopePrefix(scope) + result;
}

}  // namespace quillet::source
