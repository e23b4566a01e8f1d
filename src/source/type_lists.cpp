#include "source/type_lists.h"

#include "basic/strings.h"
#include "source/char_class.h"
#include "support/cls_sort.h"

namespace quillet::source {

using basic::Compare;
using basic::StrComp;
using basic::Trim;

namespace {

struct BuiltIn {
    const char16_t* name;
    long varType;
};
// In the order the type lists show them.
constexpr BuiltIn kBuiltIns[] = {{u"Byte", 17},  {u"Boolean", 11},  {u"Integer", 2}, {u"Long", 3},  {u"Single", 4},
                                 {u"Double", 5}, {u"Currency", 6}, {u"Date", 7},     {u"String", 8}};
// Value types beyond those the lists offer.
constexpr const char16_t* kOtherValueTypes[] = {u"LongLong", u"LongPtr", u"Decimal", u"Variant"};

bool sameText(const Str& a, const Str& b) { return StrComp(a, b, Compare::Text) == 0; }

void selectOrFirst(dialogs::Control& combo, const Str& text) {
    long at = FindInList(combo, text);
    if (at < 0 && combo.ListCount() > 0) at = 0;
    if (at >= 0) combo.ListIndex(at);
}

void addIfMissing(dialogs::Control& list, const Str& name, long itemData) {
    if (name.empty() || FindInList(list, name) >= 0) return;
    list.AddItem(name);
    list.ItemData(list.ListCount() - 1, itemData);
}

template <class C>
void addNamesOf(dialogs::Control& list, const C& collection, long itemData) {
    if (!collection) return;
    for (const auto& record : *collection) addIfMissing(list, record->Name, itemData);
}

}  // namespace

long FindInList(const dialogs::Control& list, const Str& text) {
    for (long i = 0; i < list.ListCount(); ++i)
        if (sameText(list.List(i), text)) return i;
    return -1;
}

std::vector<Str> ClassModulesList(host::VBE& vbe) {
    std::vector<Str> names;
    auto project = vbe.ActiveVBProject();
    if (!project) return names;
    auto components = project->VBComponents();
    for (long i = 1, count = components->Count(); i <= count; ++i) {
        auto component = components->Item(i);
        if (component->Type() != host::vbext_ct_StdModule) names.push_back(component->Name());
    }
    return names;
}

void qltModulesList(CodeEnv& env, dialogs::Control& combo, long mode, const Str& module, bool blnNewModule,
                    bool blnNewClass) {
    reportedStep(env.report, u"basGlobal.qltModulesList", [&] {
        combo.Clear();
        if (!module.empty()) {
            combo.AddItem(module);
            combo.ListIndex(0);
            return;
        }
        if (blnNewModule) combo.AddItem(u"<New Module>");
        if (blnNewClass) combo.AddItem(u"<New Class Module>");
        Str active;
        if (auto pane = env.vbe.ActiveCodePane()) active = pane->CodeModule()->Parent()->Name();
        auto project = env.vbe.ActiveVBProject();
        auto components = project ? project->VBComponents() : nullptr;
        for (long i = 1, count = components ? components->Count() : 0; i <= count; ++i) {
            auto component = components->Item(i);
            Str name = component->Name();
            bool standard = component->Type() == host::vbext_ct_StdModule;
            bool wanted = mode == 0 || (mode == 1 && (standard || sameText(name, active))) || (mode == 2 && !standard);
            if (wanted) combo.AddItem(name);
        }
        long at = -1;
        for (long i = 0; i < combo.ListCount() && !active.empty(); ++i) {
            if (basic::Like(combo.List(i), active, Compare::Text)) {
                at = i;
                break;
            }
        }
        if (at < 0 && combo.ListCount() > 0) at = 0;
        if (at >= 0) combo.ListIndex(at);
    });
}

void DataTypeList(CodeEnv& env, dialogs::Control& combo, bool blnNone, const Str& type, bool blnNoBasic,
                  bool blnNoObjects, bool blnClear) {
    reportedStep(env.report, u"basGlobal.DataTypeList", [&] {
        if (blnClear) combo.Clear();
        if (blnNone) combo.AddItem(kNone);
        if (!blnNoBasic) {
            for (const auto& builtIn : kBuiltIns) addIfMissing(combo, builtIn.name, builtIn.varType);
        }
        if (!blnNoObjects) {
            std::vector<Str> classes = {u"Variant", u"Object", u"Collection"};
            for (const Str& name : ClassModulesList(env.vbe)) classes.push_back(name);
            if (env.referenceClasses)
                for (const Str& name : env.referenceClasses()) classes.push_back(name);
            support::clsSort::Sort(classes);
            for (const Str& name : classes) addIfMissing(combo, name, KindClass);
            addNamesOf(combo, env.state.ProjectEnums, KindEnum);
            if (env.referenceEnums)
                for (const Str& name : env.referenceEnums()) addIfMissing(combo, name, KindEnum);
            addNamesOf(combo, env.state.ProjectTypes, KindType);
        }
        selectOrFirst(combo, type);
    });
}

void AddTypeItem(dialogs::Control& combo, const Str& list) {
    Str text = Trim(list);
    if (text.size() >= 2) {
        char16_t first = text.front(), last = text.back();
        if ((first == u'(' && last == u')') || (first == u'[' && last == u']') || (first == u'{' && last == u'}'))
            text = text.substr(1, text.size() - 2);
    }
    for (const Str& entry : basic::Split(text, u",")) {
        Str trimmed = Trim(entry);
        if (!trimmed.empty()) combo.AddItem(trimmed);
    }
    if (combo.ListCount() > 0) combo.ListIndex(0);
}

long VarTypeOf(const Str& type) {
    for (const auto& builtIn : kBuiltIns)
        if (sameText(type, builtIn.name)) return builtIn.varType;
    return 0;
}

bool TypeIsObject(const Str& type, const std::function<bool(const Str&)>& isEnum,
                  const std::function<bool(const Str&)>& isType) {
    Str name = Trim(type);
    if (name.empty() || VarTypeOf(name) != 0) return false;
    for (const char16_t* other : kOtherValueTypes)
        if (sameText(name, other)) return false;
    if (isEnum && isEnum(name)) return false;
    if (isType && isType(name)) return false;
    return true;
}

Str MakeValidName(const Str& text) {
    Str out;
    for (char16_t c : text) {
        if (IsCharAlphaNumericA(c) || c == u'_') out += c;
    }
    return out;
}

void ListFilter(dialogs::Control& list, const Str& text, long itemData) {
    Str pattern = u"*" + text + u"*";
    for (long i = list.ListCount() - 1; i >= 0; --i) {
        bool byText = itemData == 0 && basic::Like(list.List(i), pattern, Compare::Text);
        bool byData = itemData != 0 && list.ItemData(i) == itemData;
        if (byText || byData) list.RemoveItem(i);
    }
}

void ListFromNames(dialogs::Control& list, std::vector<Str> names, long itemData, bool blnSorted) {
    if (blnSorted) support::clsSort::Sort(names);
    for (const Str& name : names) addIfMissing(list, name, itemData);
}

}  // namespace quillet::source
