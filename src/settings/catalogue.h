#pragma once
// The catalogue of all user settings (modIniVarsQuillet): the files, the sections and the items
// with their section, type and default, and the functions that map one to the other. Every other
// module reads a setting as IniItemValue[item].

#include <array>
#include <string>

#include "basic/variant.h"
#include "settings/settings.h"

namespace quillet::settings {

enum IniFile : long {
    IniFileUser,               // qltusr.ini
    IniFileTypePrefix,         // qlttp.ini
    IniFileReferenceFragments, // qltrefra.ini
    IniFileVars,               // qltvars.ini
    IniFileCount
};

enum Section : long {
    SectionDeveloper,
    SectionErrorHandling,
    SectionFileLocations,
    SectionOther,
    SectionScopePrefix,
    SectionArgumentPrefix,
    SectionProcedureBuilder,
    SectionClassBuilder,
    SectionPropertyBuilder,
    SectionMethodBuilder,
    SectionLinesOfCodeBuilder,
    SectionSelectCaseFromEnumBuilder,
    SectionConstBuilder,
    SectionFragmentsReference,
    SectionCount
};

// Items are named ii + the item's name without blanks.
enum IniItem : long {
    iiDeveloper,
    iiInitials,
    iiOrganization,
    iiCopyright,
    iiDefaultErrorHandle,
    iiErrorHandleProcedure,
    iiErrorHandleModule,
    iiErrorHandler,
    iiExitHandler,
    iiMakeProcedureConstantTrue,
    iiMakeModuleConstantTrue,
    iiPrefixModule,
    iiPrefixGlobal,
    iiPrefixByRef,
    iiPrefixByVal,
    iiAddErrorHandlingProperty,
    iiAddPropertyConstant,
    iiAddModuleConstantProperty,
    iiSetPickedUpNameUCASE,
    iiConstTag,
    iiConstTagBeforeTypeTag,
    iiAddErrorHandlingMethod,
    iiAddHeaderMethod,
    iiAddMethodConstant,
    iiAddModuleConstantMethod,
    iiAddHourglassMethod,
    iiAddErrorHandlingProcedure,
    iiAddHeaderProcedure,
    iiAddProcedureConstant,
    iiAddModuleConstantProcedure,
    iiAddHourglassProcedure,
    iiArgumentsOnSeparateLines,
    iiAddReturnStatement,
    iiOpenOnCurrentProject,
    iiIncludeComment,
    iiExplicitArguments,
    iiEachArgumentOnANewLine,
    iiAddCaseElse,
    iiInsertReturnValues,
    iiCodeCaseElse,
    iiDeclarationIndented,
    iiModuleNameConstant,
    iiProcedureNameConstant,
    iiAutoPrefixVariableName,
    iiViewQuilletWindow,
    iiViewCodeExplorerWindow,
    iiViewTipOfTheDay,
    iiErrorHandleFile,
    iiCollectionClassTemplate,
    iiProcedureHeaderFile,
    iiModuleHeaderFile,
    iiPrefixStandardsFile,
    iiLibraryFolder,
    iiBaseFolder,
    IniItemCount
};

enum IniItemType : long {
    IniTypeText = 0,
    IniTypeLong = 1,
    IniTypeBoolean = 2,
    IniTypeDate = 3,
    IniTypeFile = 4,
    IniTypeFolder = 5,
    IniTypeListBox = 6,
};

// The mapping functions. A value outside its enumeration shows "Missing Case in ..." in a plain
// message box and gives an empty or zero result.
Str IniFile2Name(Settings& settings, long file);
long Item2IniItemType(Settings& settings, long item);
long ItemInSection(Settings& settings, long item);
long Section2IniFile(Settings& settings, long section);
Str Item2Name(Settings& settings, long item);
Str Section2Name(Settings& settings, long section);

// Where an item is kept: its file's name ("qltusr.ini"), its section and its key; all empty for an
// unknown item. For tools outside the add-in that prepare the files it reads.
struct ItemPlace {
    Str file, section, key;
};
ItemPlace ItemPlaceOf(long item);

// The default of an item as the table gives it: a text, a number (-1 / 0 for most Booleans and
// 2 for Auto Prefix Variable Name) or, for the two "Make ... Constant True" items, a Boolean True.
basic::Variant ItemDefault(long item);
// Whether the item's control is a combo box (the rows marked list).
bool ItemIsList(long item);

// The texts of the list of Auto Prefix Variable Name, by position.
const std::array<Str, 3>& AutoPrefixListTexts();

// The name of the item's control in the Settings dialog: cbo, chk, txt or lst, then the item's
// name less blanks and punctuation.
Str ItemControlName(Settings& settings, long item);

// A value as Basic's CStr gives it (True, -1, 2, text).
Str ValueText(const basic::Variant& value);
// A value as a check box reads it: a Boolean, a number other than 0, or "True"; empty is False.
bool ValueIsTrue(const basic::Variant& value);

}  // namespace quillet::settings
