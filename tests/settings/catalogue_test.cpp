// The settings catalogue: every row of its tables, the mapping functions and their messages.

#include "settings/catalogue.h"

#include "settings_fixture.h"

namespace quillet::settings::testing {
namespace {

using SettingsCatalogue = SettingsTest;

struct Row {
    IniItem item;
    const char16_t* name;
    const char16_t* section;
    const char16_t* file;
    long type;
    const char16_t* defaultText;
    const char16_t* control;
};

const Row kRows[] = {
    {iiDeveloper, u"Developer", u"Developer", u"qltusr.ini", 0, u"", u"txtDeveloper"},
    {iiInitials, u"Initials", u"Developer", u"qltusr.ini", 0, u"", u"txtInitials"},
    {iiOrganization, u"Organization", u"Developer", u"qltusr.ini", 0, u"", u"txtOrganization"},
    {iiCopyright, u"Copyright", u"Developer", u"qltusr.ini", 0, u"", u"txtCopyright"},
    {iiDefaultErrorHandle, u"Default Error Handle", u"Error Handling", u"qltusr.ini", 0, u"On Error GoTo HandleError", u"cboDefaultErrorHandle"},
    {iiErrorHandleProcedure, u"ErrorHandle Procedure", u"Error Handling", u"qltusr.ini", 0, u"ErrorHandle", u"txtErrorHandleProcedure"},
    {iiErrorHandleModule, u"ErrorHandle Module", u"Error Handling", u"qltusr.ini", 0, u"basErrorHandle", u"txtErrorHandleModule"},
    {iiErrorHandler, u"ErrorHandler", u"Error Handling", u"qltusr.ini", 0, u"HandleError", u"txtErrorHandler"},
    {iiExitHandler, u"ExitHandler", u"Error Handling", u"qltusr.ini", 0, u"HandleExit", u"txtExitHandler"},
    {iiMakeProcedureConstantTrue, u"Make Procedure Constant True", u"Error Handling", u"qltusr.ini", 2, u"True", u"chkMakeProcedureConstantTrue"},
    {iiMakeModuleConstantTrue, u"Make Module Constant True", u"Error Handling", u"qltusr.ini", 2, u"True", u"chkMakeModuleConstantTrue"},
    {iiPrefixModule, u"Prefix Module", u"Scope Prefix", u"qlttp.ini", 0, u"m", u"txtPrefixModule"},
    {iiPrefixGlobal, u"Prefix Global", u"Scope Prefix", u"qlttp.ini", 0, u"g", u"txtPrefixGlobal"},
    {iiPrefixByRef, u"Prefix ByRef", u"Argument Prefix", u"qlttp.ini", 0, u"r", u"txtPrefixByRef"},
    {iiPrefixByVal, u"Prefix ByVal", u"Argument Prefix", u"qlttp.ini", 0, u"v", u"txtPrefixByVal"},
    {iiAddErrorHandlingProperty, u"Add Error Handling Property", u"Property Builder", u"qltusr.ini", 0, u"On Error GoTo ExitLabel", u"cboAddErrorHandlingProperty"},
    {iiAddPropertyConstant, u"Add Property Constant", u"Property Builder", u"qltusr.ini", 2, u"", u"chkAddPropertyConstant"},
    {iiAddModuleConstantProperty, u"Add Module Constant Property", u"Property Builder", u"qltusr.ini", 2, u"", u"chkAddModuleConstantProperty"},
    {iiSetPickedUpNameUCASE, u"Set Picked Up Name UCASE", u"Const Builder", u"qltusr.ini", 2, u"0", u"chkSetPickedUpNameUCASE"},
    {iiConstTag, u"Const Tag", u"Const Builder", u"qltusr.ini", 0, u"c", u"txtConstTag"},
    {iiConstTagBeforeTypeTag, u"Const Tag Before Type Tag", u"Const Builder", u"qltusr.ini", 2, u"-1", u"chkConstTagBeforeTypeTag"},
    {iiAddErrorHandlingMethod, u"Add Error Handling Method", u"Method Builder", u"qltusr.ini", 0, u"On Error GoTo HandleError", u"cboAddErrorHandlingMethod"},
    {iiAddHeaderMethod, u"Add Header Method", u"Method Builder", u"qltusr.ini", 2, u"-1", u"chkAddHeaderMethod"},
    {iiAddMethodConstant, u"Add Method Constant", u"Method Builder", u"qltusr.ini", 2, u"-1", u"chkAddMethodConstant"},
    {iiAddModuleConstantMethod, u"Add Module Constant Method", u"Method Builder", u"qltusr.ini", 2, u"-1", u"chkAddModuleConstantMethod"},
    {iiAddHourglassMethod, u"Add Hourglass Method", u"Method Builder", u"qltusr.ini", 2, u"0", u"chkAddHourglassMethod"},
    {iiAddErrorHandlingProcedure, u"Add Error Handling Procedure", u"Procedure Builder", u"qltusr.ini", 0, u"On Error GoTo HandleError", u"cboAddErrorHandlingProcedure"},
    {iiAddHeaderProcedure, u"Add Header Procedure", u"Procedure Builder", u"qltusr.ini", 2, u"-1", u"chkAddHeaderProcedure"},
    {iiAddProcedureConstant, u"Add Procedure Constant", u"Procedure Builder", u"qltusr.ini", 2, u"-1", u"chkAddProcedureConstant"},
    {iiAddModuleConstantProcedure, u"Add Module Constant Procedure", u"Procedure Builder", u"qltusr.ini", 2, u"-1", u"chkAddModuleConstantProcedure"},
    {iiAddHourglassProcedure, u"Add Hourglass Procedure", u"Procedure Builder", u"qltusr.ini", 2, u"0", u"chkAddHourglassProcedure"},
    {iiArgumentsOnSeparateLines, u"Arguments on Separate Lines", u"Procedure Builder", u"qltusr.ini", 2, u"-1", u"chkArgumentsonSeparateLines"},
    {iiAddReturnStatement, u"Add Return Statement", u"Procedure Builder", u"qltusr.ini", 2, u"0", u"chkAddReturnStatement"},
    {iiOpenOnCurrentProject, u"Open On Current Project", u"Lines Of Code Builder", u"qltusr.ini", 2, u"-1", u"chkOpenOnCurrentProject"},
    {iiIncludeComment, u"Include Comment", u"Lines Of Code Builder", u"qltusr.ini", 2, u"0", u"chkIncludeComment"},
    {iiExplicitArguments, u"Explicit Arguments", u"Lines Of Code Builder", u"qltusr.ini", 2, u"0", u"chkExplicitArguments"},
    {iiEachArgumentOnANewLine, u"Each Argument on a New Line", u"Lines Of Code Builder", u"qltusr.ini", 2, u"0", u"chkEachArgumentonaNewLine"},
    {iiAddCaseElse, u"Add Case Else", u"Select Case From Enum Builder", u"qltusr.ini", 2, u"-1", u"chkAddCaseElse"},
    {iiInsertReturnValues, u"Insert Return Values", u"Select Case From Enum Builder", u"qltusr.ini", 2, u"0", u"chkInsertReturnValues"},
    {iiCodeCaseElse, u"Code Case Else", u"Select Case From Enum Builder", u"qltusr.ini", 0, u"Msgbox \"Missing Case\"", u"txtCodeCaseElse"},
    {iiDeclarationIndented, u"Declaration Indented", u"Other", u"qltusr.ini", 2, u"-1", u"chkDeclarationIndented"},
    {iiModuleNameConstant, u"Module Name Constant", u"Other", u"qltusr.ini", 0, u"cstrModule", u"txtModuleNameConstant"},
    {iiProcedureNameConstant, u"Procedure Name Constant", u"Other", u"qltusr.ini", 0, u"cstrProcedure", u"txtProcedureNameConstant"},
    {iiAutoPrefixVariableName, u"Auto Prefix Variable Name", u"Other", u"qltusr.ini", 0, u"2", u"cboAutoPrefixVariableName"},
    {iiViewQuilletWindow, u"View Quillet Window", u"Other", u"qltusr.ini", 2, u"0", u"chkViewQuilletWindow"},
    {iiViewCodeExplorerWindow, u"View Code Explorer Window", u"Other", u"qltusr.ini", 2, u"0", u"chkViewCodeExplorerWindow"},
    {iiViewTipOfTheDay, u"View Tip Of The Day", u"Other", u"qltusr.ini", 2, u"0", u"chkViewTipOfTheDay"},
    {iiErrorHandleFile, u"ErrorHandle File", u"File Locations", u"qltusr.ini", 4, u"\\quillet\\ErrorHandlers\\basErrorHandle.bas", u"txtErrorHandleFile"},
    {iiCollectionClassTemplate, u"Collection Class Template", u"File Locations", u"qltusr.ini", 4, u"\\quillet\\Templates\\CollectionClass\\CollectionClass.cls", u"txtCollectionClassTemplate"},
    {iiProcedureHeaderFile, u"Procedure Header File", u"File Locations", u"qltusr.ini", 4, u"\\quillet\\Fragments\\Headers And Comments\\ProcedureHeader.bas", u"txtProcedureHeaderFile"},
    {iiModuleHeaderFile, u"Module Header File", u"File Locations", u"qltusr.ini", 4, u"\\quillet\\Fragments\\Headers And Comments\\ModuleHeader.bas", u"txtModuleHeaderFile"},
    {iiPrefixStandardsFile, u"Prefix Standards File", u"File Locations", u"qltusr.ini", 4, u"\\qlttp.ini", u"txtPrefixStandardsFile"},
    {iiLibraryFolder, u"Library Folder", u"File Locations", u"qltusr.ini", 5, u"\\quillet\\Library\\", u"txtLibraryFolder"},
    {iiBaseFolder, u"Base Folder", u"File Locations", u"qltusr.ini", 5, u"\\quillet\\", u"txtBaseFolder"},
};

TEST_F(SettingsCatalogue, EveryItemRow) {
    ASSERT_EQ(std::size(kRows), static_cast<size_t>(IniItemCount));
    for (const Row& row : kRows) {
        SCOPED_TRACE(bytes(row.name));
        EXPECT_EQ(Item2Name(settings, row.item), row.name);
        EXPECT_EQ(Section2Name(settings, ItemInSection(settings, row.item)), row.section);
        EXPECT_EQ(IniFile2Name(settings, Section2IniFile(settings, ItemInSection(settings, row.item))), row.file);
        EXPECT_EQ(Item2IniItemType(settings, row.item), row.type);
        EXPECT_EQ(ValueText(ItemDefault(row.item)), row.defaultText);
        EXPECT_EQ(ItemControlName(settings, row.item), row.control);
    }
    EXPECT_TRUE(platform.shownBoxes().empty());
}

TEST_F(SettingsCatalogue, TheDeliberateOddDefaults) {
    EXPECT_TRUE(std::holds_alternative<bool>(ItemDefault(iiMakeProcedureConstantTrue)));
    EXPECT_TRUE(std::holds_alternative<bool>(ItemDefault(iiMakeModuleConstantTrue)));
    EXPECT_TRUE(std::holds_alternative<long long>(ItemDefault(iiAddHeaderMethod)));
    EXPECT_EQ(ItemDefault(iiAddPropertyConstant), basic::Variant(Str()));
    EXPECT_FALSE(ValueIsTrue(ItemDefault(iiAddPropertyConstant)));
    EXPECT_EQ(ItemDefault(iiAutoPrefixVariableName), basic::Variant(2LL));
}

TEST_F(SettingsCatalogue, EverySectionAndFile) {
    const std::pair<const char16_t*, const char16_t*> sections[] = {
        {u"Developer", u"qltusr.ini"},        {u"Error Handling", u"qltusr.ini"},
        {u"File Locations", u"qltusr.ini"},   {u"Other", u"qltusr.ini"},
        {u"Scope Prefix", u"qlttp.ini"},      {u"Argument Prefix", u"qlttp.ini"},
        {u"Procedure Builder", u"qltusr.ini"}, {u"Class Builder", u"qltusr.ini"},
        {u"Property Builder", u"qltusr.ini"}, {u"Method Builder", u"qltusr.ini"},
        {u"Lines Of Code Builder", u"qltusr.ini"}, {u"Select Case From Enum Builder", u"qltusr.ini"},
        {u"Const Builder", u"qltusr.ini"},    {u"fragments/reference", u"qltrefra.ini"},
    };
    ASSERT_EQ(std::size(sections), static_cast<size_t>(SectionCount));
    for (long s = 0; s < SectionCount; ++s) {
        EXPECT_EQ(Section2Name(settings, s), sections[s].first);
        EXPECT_EQ(IniFile2Name(settings, Section2IniFile(settings, s)), sections[s].second);
    }
    EXPECT_EQ(IniFile2Name(settings, IniFileVars), u"qltvars.ini");
}

TEST_F(SettingsCatalogue, ValuesOutsideTheEnumerationsShowTheirMessage) {
    EXPECT_EQ(IniFile2Name(settings, 9), u"");
    EXPECT_EQ(Item2Name(settings, 99), u"");
    EXPECT_EQ(Section2Name(settings, 40), u"");
    EXPECT_EQ(Item2IniItemType(settings, -1), 0);
    EXPECT_EQ(ItemInSection(settings, 77), 0);
    EXPECT_EQ(Section2IniFile(settings, 15), 0);
    std::vector<Str> prompts;
    for (const auto& box : platform.shownBoxes()) prompts.push_back(box.prompt);
    EXPECT_EQ(prompts, (std::vector<Str>{
                           u"Missing Case in IniFile2Name for IniFile",
                           u"Missing Case in Item2Name99",
                           u"Missing Case in Section2Name for Section 40",
                           u"Missing Case in Item2Name-1",
                           u"Missing Case in Item2IniItemType ",
                           u"Missing Case in Item2Name77",
                           u"Missing Case in ItemInSection ",
                           u"Missing Case in Section2Name for Section 15",
                           u"Missing Case in Section2IniFile for Section ",
                       }));
}

}  // namespace
}  // namespace quillet::settings::testing
