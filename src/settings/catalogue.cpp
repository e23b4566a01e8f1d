// The catalogue's tables and mapping functions.

#include "settings/catalogue.h"

#include <array>

#include "basic/strings.h"
#include "basic/unicode.h"

namespace quillet::settings {

namespace {

struct ItemRow {
    const char16_t* name;
    Section section;
    IniItemType type;
    bool list;
    basic::Variant defaultValue;
};

basic::Variant text(const char16_t* t) { return Str(t); }
basic::Variant number(long long n) { return n; }
const basic::Variant kTrue = number(-1);
const basic::Variant kFalse = number(0);

const std::array<ItemRow, IniItemCount>& rows() {
    static const std::array<ItemRow, IniItemCount> table = {{
        {u"Developer", SectionDeveloper, IniTypeText, false, text(u"")},
        {u"Initials", SectionDeveloper, IniTypeText, false, text(u"")},
        {u"Organization", SectionDeveloper, IniTypeText, false, text(u"")},
        {u"Copyright", SectionDeveloper, IniTypeText, false, text(u"")},
        {u"Default Error Handle", SectionErrorHandling, IniTypeText, true, text(u"On Error GoTo HandleError")},
        {u"ErrorHandle Procedure", SectionErrorHandling, IniTypeText, false, text(u"ErrorHandle")},
        {u"ErrorHandle Module", SectionErrorHandling, IniTypeText, false, text(u"basErrorHandle")},
        {u"ErrorHandler", SectionErrorHandling, IniTypeText, false, text(u"HandleError")},
        {u"ExitHandler", SectionErrorHandling, IniTypeText, false, text(u"HandleExit")},
        {u"Make Procedure Constant True", SectionErrorHandling, IniTypeBoolean, false, basic::Variant(true)},
        {u"Make Module Constant True", SectionErrorHandling, IniTypeBoolean, false, basic::Variant(true)},
        {u"Prefix Module", SectionScopePrefix, IniTypeText, false, text(u"m")},
        {u"Prefix Global", SectionScopePrefix, IniTypeText, false, text(u"g")},
        {u"Prefix ByRef", SectionArgumentPrefix, IniTypeText, false, text(u"r")},
        {u"Prefix ByVal", SectionArgumentPrefix, IniTypeText, false, text(u"v")},
        {u"Add Error Handling Property", SectionPropertyBuilder, IniTypeText, true, text(u"On Error GoTo ExitLabel")},
        {u"Add Property Constant", SectionPropertyBuilder, IniTypeBoolean, false, text(u"")},
        {u"Add Module Constant Property", SectionPropertyBuilder, IniTypeBoolean, false, text(u"")},
        {u"Set Picked Up Name UCASE", SectionConstBuilder, IniTypeBoolean, false, kFalse},
        {u"Const Tag", SectionConstBuilder, IniTypeText, false, text(u"c")},
        {u"Const Tag Before Type Tag", SectionConstBuilder, IniTypeBoolean, false, kTrue},
        {u"Add Error Handling Method", SectionMethodBuilder, IniTypeText, true, text(u"On Error GoTo HandleError")},
        {u"Add Header Method", SectionMethodBuilder, IniTypeBoolean, false, kTrue},
        {u"Add Method Constant", SectionMethodBuilder, IniTypeBoolean, false, kTrue},
        {u"Add Module Constant Method", SectionMethodBuilder, IniTypeBoolean, false, kTrue},
        {u"Add Hourglass Method", SectionMethodBuilder, IniTypeBoolean, false, kFalse},
        {u"Add Error Handling Procedure", SectionProcedureBuilder, IniTypeText, true, text(u"On Error GoTo HandleError")},
        {u"Add Header Procedure", SectionProcedureBuilder, IniTypeBoolean, false, kTrue},
        {u"Add Procedure Constant", SectionProcedureBuilder, IniTypeBoolean, false, kTrue},
        {u"Add Module Constant Procedure", SectionProcedureBuilder, IniTypeBoolean, false, kTrue},
        {u"Add Hourglass Procedure", SectionProcedureBuilder, IniTypeBoolean, false, kFalse},
        {u"Arguments on Separate Lines", SectionProcedureBuilder, IniTypeBoolean, false, kTrue},
        {u"Add Return Statement", SectionProcedureBuilder, IniTypeBoolean, false, kFalse},
        {u"Open On Current Project", SectionLinesOfCodeBuilder, IniTypeBoolean, false, kTrue},
        {u"Include Comment", SectionLinesOfCodeBuilder, IniTypeBoolean, false, kFalse},
        {u"Explicit Arguments", SectionLinesOfCodeBuilder, IniTypeBoolean, false, kFalse},
        {u"Each Argument on a New Line", SectionLinesOfCodeBuilder, IniTypeBoolean, false, kFalse},
        {u"Add Case Else", SectionSelectCaseFromEnumBuilder, IniTypeBoolean, false, kTrue},
        {u"Insert Return Values", SectionSelectCaseFromEnumBuilder, IniTypeBoolean, false, kFalse},
        {u"Code Case Else", SectionSelectCaseFromEnumBuilder, IniTypeText, false, text(u"Msgbox \"Missing Case\"")},
        {u"Declaration Indented", SectionOther, IniTypeBoolean, false, kTrue},
        {u"Module Name Constant", SectionOther, IniTypeText, false, text(u"cstrModule")},
        {u"Procedure Name Constant", SectionOther, IniTypeText, false, text(u"cstrProcedure")},
        {u"Auto Prefix Variable Name", SectionOther, IniTypeText, true, number(2)},
        {u"View Quillet Window", SectionOther, IniTypeBoolean, false, kFalse},
        {u"View Code Explorer Window", SectionOther, IniTypeBoolean, false, kFalse},
        {u"View Tip Of The Day", SectionOther, IniTypeBoolean, false, kFalse},
        {u"ErrorHandle File", SectionFileLocations, IniTypeFile, false, text(u"\\quillet\\ErrorHandlers\\basErrorHandle.bas")},
        {u"Collection Class Template", SectionFileLocations, IniTypeFile, false,
         text(u"\\quillet\\Templates\\CollectionClass\\CollectionClass.cls")},
        {u"Procedure Header File", SectionFileLocations, IniTypeFile, false,
         text(u"\\quillet\\Fragments\\Headers And Comments\\ProcedureHeader.bas")},
        {u"Module Header File", SectionFileLocations, IniTypeFile, false,
         text(u"\\quillet\\Fragments\\Headers And Comments\\ModuleHeader.bas")},
        {u"Prefix Standards File", SectionFileLocations, IniTypeFile, false, text(u"\\qlttp.ini")},
        {u"Library Folder", SectionFileLocations, IniTypeFolder, false, text(u"\\quillet\\Library\\")},
        {u"Base Folder", SectionFileLocations, IniTypeFolder, false, text(u"\\quillet\\")},
    }};
    return table;
}

constexpr std::array<const char16_t*, SectionCount> kSectionNames = {
    u"Developer",         u"Error Handling",        u"File Locations",        u"Other",
    u"Scope Prefix",      u"Argument Prefix",       u"Procedure Builder",     u"Class Builder",
    u"Property Builder",  u"Method Builder",        u"Lines Of Code Builder", u"Select Case From Enum Builder",
    u"Const Builder",     u"fragments/reference",
};

constexpr std::array<const char16_t*, IniFileCount> kFileNames = {
    u"qltusr.ini", u"qlttp.ini", u"qltrefra.ini", u"qltvars.ini"};

bool inItems(long item) { return item >= 0 && item < IniItemCount; }
bool inSections(long section) { return section >= 0 && section < SectionCount; }

void missingCase(Settings& settings, const Str& message) { settings.Platform().MsgBox(message, 0, Str{}); }

Str numberText(long n) { return basic::fromUtf8(std::to_string(n)); }

long sectionFile(long section) {
    if (section == SectionScopePrefix || section == SectionArgumentPrefix) return IniFileTypePrefix;
    if (section == SectionFragmentsReference) return IniFileReferenceFragments;
    return IniFileUser;
}

}  // namespace

ItemPlace ItemPlaceOf(long item) {
    if (!inItems(item)) return {};
    const long section = rows()[item].section;
    return {kFileNames[sectionFile(section)], kSectionNames[section], rows()[item].name};
}

Str IniFile2Name(Settings& settings, long file) {
    if (file >= 0 && file < IniFileCount) return kFileNames[file];
    missingCase(settings, u"Missing Case in IniFile2Name for IniFile");
    return {};
}

long Item2IniItemType(Settings& settings, long item) {
    if (inItems(item)) return rows()[item].type;
    missingCase(settings, u"Missing Case in Item2IniItemType " + Item2Name(settings, item));
    return 0;
}

long ItemInSection(Settings& settings, long item) {
    if (inItems(item)) return rows()[item].section;
    missingCase(settings, u"Missing Case in ItemInSection " + Item2Name(settings, item));
    return 0;
}

long Section2IniFile(Settings& settings, long section) {
    if (inSections(section)) return sectionFile(section);
    missingCase(settings, u"Missing Case in Section2IniFile for Section " + Section2Name(settings, section));
    return 0;
}

Str Item2Name(Settings& settings, long item) {
    if (inItems(item)) return rows()[item].name;
    missingCase(settings, u"Missing Case in Item2Name" + numberText(item));
    return {};
}

Str Section2Name(Settings& settings, long section) {
    if (inSections(section)) return kSectionNames[section];
    missingCase(settings, u"Missing Case in Section2Name for Section " + numberText(section));
    return {};
}

basic::Variant ItemDefault(long item) { return inItems(item) ? rows()[item].defaultValue : basic::Variant{}; }

bool ItemIsList(long item) { return inItems(item) && rows()[item].list; }

const std::array<Str, 3>& AutoPrefixListTexts() {
    static const std::array<Str, 3> texts = {u"No Auto Prefix", u"Always Auto Prefix", u"Auto Prefix before capital char"};
    return texts;
}

Str ItemControlName(Settings& settings, long item) {
    static const Str dropped = u" `~!@#$%^&*()-+={}[]?<>,.\"";
    Str prefix = u"txt";
    long type = Item2IniItemType(settings, item);
    if (ItemIsList(item))
        prefix = u"cbo";
    else if (type == IniTypeBoolean)
        prefix = u"chk";
    else if (type == IniTypeListBox)
        prefix = u"lst";
    Str name;
    for (char16_t c : Item2Name(settings, item))
        if (dropped.find(c) == Str::npos) name.push_back(c);
    return prefix + name;
}

Str ValueText(const basic::Variant& value) {
    if (auto* b = std::get_if<bool>(&value)) return *b ? u"True" : u"False";
    if (auto* n = std::get_if<long long>(&value)) return basic::fromUtf8(std::to_string(*n));
    if (auto* d = std::get_if<double>(&value)) return basic::fromUtf8(std::to_string(*d));
    if (auto* s = std::get_if<Str>(&value)) return *s;
    return {};
}

bool ValueIsTrue(const basic::Variant& value) {
    if (auto* b = std::get_if<bool>(&value)) return *b;
    if (auto* n = std::get_if<long long>(&value)) return *n != 0;
    if (auto* d = std::get_if<double>(&value)) return *d != 0;
    if (auto* s = std::get_if<Str>(&value)) {
        Str t = basic::Trim(*s);
        if (basic::StrComp(t, u"True", basic::Compare::Text) == 0) return true;
        auto n = basic::IsNumeric(t) ? basic::parseNumber(t) : std::nullopt;
        return n && *n != 0;
    }
    return false;
}

}  // namespace quillet::settings
