// Loading the settings at start, the first-start path, the type prefixes, and the dialog's controls.

#include "settings/ini_vars.h"

#include "settings/code_folders.h"
#include "settings/ini_file.h"
#include "settings_fixture.h"

namespace quillet::settings::testing {
namespace {

class RecordingOpener : public DialogOpener {
public:
    void ShowSettingsFirstStart() override { calls.push_back("settings"); }
    void ShowCodeExplorerWindow() override { calls.push_back("explorer"); }
    void ShowShortcutsWindow() override { calls.push_back("shortcuts"); }
    std::vector<std::string> calls;
};

class IniVarsTest : public SettingsTest {
protected:
    IniVarsTest() { settings.Dialogs = &opener; }

    // Writes all defaults, then sets the four Developer items.
    void writeCompleteFiles(bool withDeveloper) {
        InitializeGlobalVars(settings, false);
        if (withDeveloper) {
            C4_IniFile ini(settings);
            ini.Name(u"qltusr.ini");
            ini.ValueEx(u"Developer", u"Developer", u"Ann");
        }
    }
    std::vector<Str> prompts() const {
        std::vector<Str> all;
        for (const auto& box : platform.shownBoxes()) all.push_back(box.prompt);
        return all;
    }

    RecordingOpener opener;
};

TEST_F(IniVarsTest, FirstStartWithNoFilesWritesAllDefaultsAndOpensTheDialog) {
    InitializeGlobalVars(settings, true);
    EXPECT_EQ(readBytes("root/qlttp.ini"),
              "[Scope Prefix]\r\nPrefix Module=m\r\nPrefix Global=g\r\n"
              "[Argument Prefix]\r\nPrefix ByRef=r\r\nPrefix ByVal=v\r\n");
    std::string usr = readBytes("root/qltusr.ini");
    EXPECT_EQ(usr.rfind("[Developer]\r\nDeveloper=\r\nInitials=\r\nOrganization=\r\nCopyright=\r\n[Error Handling]", 0), 0u);
    EXPECT_NE(usr.find("[Error Handling]\r\nDefault Error Handle=On Error GoTo HandleError\r\nErrorHandle Procedure=ErrorHandle\r\n"
                       "ErrorHandle Module=basErrorHandle\r\nErrorHandler=HandleError\r\nExitHandler=HandleExit\r\n"
                       "Make Procedure Constant True=True\r\nMake Module Constant True=True\r\n[Property Builder]\r\n"
                       "Add Error Handling Property=On Error GoTo ExitLabel\r\nAdd Property Constant=\r\n"),
              std::string::npos);
    EXPECT_NE(usr.find("Auto Prefix Variable Name=2\r\n"), std::string::npos);
    EXPECT_NE(usr.find("Code Case Else=Msgbox \"Missing Case\"\r\n"), std::string::npos);
    EXPECT_NE(usr.find("[File Locations]\r\nErrorHandle File=\\quillet\\ErrorHandlers\\basErrorHandle.bas\r\n"), std::string::npos);
    EXPECT_NE(usr.find("Add Header Method=-1\r\n"), std::string::npos);
    EXPECT_EQ(opener.calls, (std::vector<std::string>{"settings"}));
    EXPECT_TRUE(platform.shownBoxes().empty());
    EXPECT_FALSE(exists("root/qltrefra.ini"));
}

TEST_F(IniVarsTest, SecondStartWithDeveloperSetAsksNothing) {
    writeCompleteFiles(true);
    InitializeGlobalVars(settings, true);
    EXPECT_TRUE(opener.calls.empty());
    EXPECT_TRUE(platform.shownBoxes().empty());
    EXPECT_EQ(IniText(settings, iiDeveloper), u"Ann");
}

TEST_F(IniVarsTest, EmptyDeveloperItemsOpenTheDialogThenAskAboutBothWindows) {
    writeCompleteFiles(false);
    platform.queueAnswer(u"yes");
    platform.queueAnswer(u"no");
    InitializeGlobalVars(settings, true);
    EXPECT_EQ(opener.calls, (std::vector<std::string>{"settings", "explorer"}));
    EXPECT_EQ(prompts(), (std::vector<Str>{kCodeExplorerQuestion, kShortcutsQuestion, kDockMessage}));
    EXPECT_EQ(platform.shownBoxes()[0].buttons, platform::mb::vbYesNo + platform::mb::vbQuestion);
    EXPECT_TRUE(IniBool(settings, iiViewCodeExplorerWindow));
    EXPECT_FALSE(IniBool(settings, iiViewQuilletWindow));
    C4_IniFile ini(settings);
    ini.Name(u"qltusr.ini");
    EXPECT_EQ(ini.Value(u"Other", u"View Code Explorer Window"), u"-1");
    EXPECT_EQ(ini.Value(u"Other", u"View Quillet Window"), u"0");
}

TEST_F(IniVarsTest, WindowsAlreadyOnAreNotAskedAbout) {
    writeCompleteFiles(false);
    C4_IniFile ini(settings);
    ini.Name(u"qltusr.ini");
    ini.Value(u"Other", u"View Code Explorer Window", u"-1");
    ini.ValueEx(u"Other", u"View Quillet Window", u"True");
    InitializeGlobalVars(settings, true);
    EXPECT_EQ(opener.calls, (std::vector<std::string>{"settings"}));
    EXPECT_TRUE(platform.shownBoxes().empty());
}

TEST_F(IniVarsTest, NoAnswersYesGivesNoDockMessage) {
    writeCompleteFiles(false);
    platform.queueAnswer(u"no");
    platform.queueAnswer(u"no");
    InitializeGlobalVars(settings, true);
    EXPECT_EQ(prompts().size(), 2u);
}

TEST_F(IniVarsTest, ValuesAreStoredByType) {
    writeBytes("root/qltusr.ini",
               "[Error Handling]\r\nMake Module Constant True=False\r\nErrorHandler=\r\n"
               "[Method Builder]\r\nAdd Header Method=\r\nadd hourglass METHOD=-1\r\n");
    InitializeGlobalVars(settings, false);
    EXPECT_EQ(settings.IniItemValue[iiMakeModuleConstantTrue], basic::Variant(false));
    EXPECT_EQ(settings.IniItemValue[iiAddHeaderMethod], basic::Variant(-1LL));
    EXPECT_TRUE(IniBool(settings, iiAddHeaderMethod));
    EXPECT_EQ(settings.IniItemValue[iiErrorHandler], basic::Variant(Str()));
    EXPECT_EQ(settings.IniItemValue[iiAddHourglassMethod], basic::Variant(true));
    EXPECT_EQ(settings.IniItemValue[iiDeveloper], basic::Variant(Str()));
}

TEST_F(IniVarsTest, TextThatIsNotABooleanEndsTheReading) {
    writeBytes("root/qltusr.ini",
               "[Developer]\r\nDeveloper=Ann\r\n[Error Handling]\r\nErrorHandle Module=basMine\r\n"
               "Make Procedure Constant True=maybe\r\nExitHandler=Out\r\n[Other]\r\nModule Name Constant=cMod\r\n");
    InitializeGlobalVars(settings, false);
    EXPECT_EQ(IniText(settings, iiDeveloper), u"Ann");
    EXPECT_EQ(IniText(settings, iiErrorHandleModule), u"basMine");
    EXPECT_EQ(settings.IniItemValue[iiMakeProcedureConstantTrue], basic::Variant(true));
    EXPECT_EQ(IniText(settings, iiModuleNameConstant), u"cstrModule");
    ASSERT_EQ(settings.ErrorLog.size(), 1u);
    EXPECT_EQ(settings.ErrorLog[0].substr(0, 41), u"modIniVarsQuillet.InitializeGlobalVars: 1");
}

TEST_F(IniVarsTest, UnreachableFolderKeepsDefaultsAndCountsAsMissing) {
    settings.RootFolderCache = u"Q:\\nowhere";
    InitializeGlobalVars(settings, true);
    EXPECT_EQ(IniText(settings, iiErrorHandler), u"HandleError");
    EXPECT_EQ(opener.calls, (std::vector<std::string>{"settings"}));
    EXPECT_TRUE(settings.ErrorLog.empty());
}

TEST_F(IniVarsTest, UnderstoodLinesOnlyAreTouchedWhenDefaultsAreAdded) {
    writeBytes("root/qlttp.ini", "; my prefixes\r\n[Scope Prefix]\r\nPrefix Module=mm\r\n\r\n[Prefix]\r\nString=s\r\n");
    InitializeGlobalVars(settings, false);
    EXPECT_EQ(readBytes("root/qlttp.ini"),
              "; my prefixes\r\n[Scope Prefix]\r\nPrefix Module=mm\r\nPrefix Global=g\r\n\r\n[Prefix]\r\nString=s\r\n"
              "[Argument Prefix]\r\nPrefix ByRef=r\r\nPrefix ByVal=v\r\n");
    EXPECT_EQ(IniText(settings, iiPrefixModule), u"mm");
}

TEST_F(IniVarsTest, TypePrefixesFromThePrefixSection) {
    SetDefaults(settings);
    writeBytes("root/qlttp.ini", "[Prefix]\r\nString Prefix=s, str ,x,y,z\r\nLong=l\r\nPREFIX Date=dt\r\n");
    TypePrefixFromIniFile(settings);
    ASSERT_EQ(settings.TypePrefixes.size(), 3u);
    EXPECT_EQ(settings.TypePrefixes[0], (TypePrefixRow{u"String", u"s", u"str", u"x", u"y"}));
    EXPECT_EQ(settings.TypePrefixes[1], (TypePrefixRow{u"Long", u"l", u"", u"", u""}));
    EXPECT_EQ(settings.TypePrefixes[2][0], u"Date");
}

TEST_F(IniVarsTest, NoPrefixFileOrSectionGivesAnEmptyTable) {
    SetDefaults(settings);
    settings.TypePrefixes.push_back({u"old"});
    TypePrefixFromIniFile(settings);
    EXPECT_TRUE(settings.TypePrefixes.empty());
    writeBytes("root/qlttp.ini", "[Scope Prefix]\r\nPrefix Module=m\r\n");
    TypePrefixFromIniFile(settings);
    EXPECT_TRUE(settings.TypePrefixes.empty());
    EXPECT_TRUE(platform.shownBoxes().empty());
}

class SettingsForm : public dialogs::Form {
public:
    SettingsForm() : Form(u"frmSettings") {
        AddControl(u"txtDeveloper", dialogs::ControlKind::TextBox);
        AddControl(u"chkAddHeaderMethod", dialogs::ControlKind::CheckBox);
        AddControl(u"cboAutoPrefixVariableName", dialogs::ControlKind::ComboBox);
        AddControl(u"cboDefaultErrorHandle", dialogs::ControlKind::ComboBox);
        AddControl(u"txtPrefixGlobal", dialogs::ControlKind::TextBox);
        AddControl(u"CHKVIEWQUILLETWINDOW", dialogs::ControlKind::CheckBox);
    }
};

TEST_F(IniVarsTest, SetIniControlsFillsTheControlsByTheirComputedNames) {
    InitializeGlobalVars(settings, false);
    settings.IniItemValue[iiDeveloper] = Str(u"Ann");
    SettingsForm form;
    SetIniControls(settings, form);
    EXPECT_EQ(form.Controls(u"txtDeveloper").Text(), u"Ann");
    EXPECT_EQ(form.Controls(u"chkAddHeaderMethod").Value(), dialogs::vbChecked);
    EXPECT_EQ(form.Controls(u"chkViewQuilletWindow").Value(), dialogs::vbUnchecked);
    auto& autoPrefix = form.Controls(u"cboAutoPrefixVariableName");
    ASSERT_EQ(autoPrefix.ListCount(), 3);
    EXPECT_EQ(autoPrefix.List(0), u"No Auto Prefix");
    EXPECT_EQ(autoPrefix.List(1), u"Always Auto Prefix");
    EXPECT_EQ(autoPrefix.List(2), u"Auto Prefix before capital char");
    EXPECT_EQ(autoPrefix.ListIndex(), 2);
    EXPECT_EQ(form.Controls(u"cboDefaultErrorHandle").Text(), u"On Error GoTo HandleError");
}

TEST_F(IniVarsTest, SaveIniVarsWritesBothFilesAndReloads) {
    InitializeGlobalVars(settings, false);
    SettingsForm form;
    SetIniControls(settings, form);
    form.Controls(u"txtDeveloper").Text(u"Bob");
    form.Controls(u"chkAddHeaderMethod").Value(dialogs::vbUnchecked);
    form.Controls(u"chkViewQuilletWindow").Value(dialogs::vbChecked);
    form.Controls(u"cboAutoPrefixVariableName").ListIndex(0);
    form.Controls(u"txtPrefixGlobal").Text(u"gg");
    SaveIniVars(settings, form);
    C4_IniFile usr(settings);
    usr.Name(u"qltusr.ini");
    EXPECT_EQ(usr.Value(u"Developer", u"Developer"), u"Bob");
    EXPECT_EQ(usr.Value(u"Method Builder", u"Add Header Method"), u"0");
    EXPECT_EQ(usr.Value(u"Other", u"View Quillet Window"), u"-1");
    EXPECT_EQ(usr.Value(u"Other", u"Auto Prefix Variable Name"), u"0");
    C4_IniFile tp(settings);
    tp.Name(u"qlttp.ini");
    EXPECT_EQ(tp.Value(u"Scope Prefix", u"Prefix Global"), u"gg");
    EXPECT_EQ(IniText(settings, iiDeveloper), u"Bob");
    EXPECT_FALSE(IniBool(settings, iiAddHeaderMethod));
    EXPECT_EQ(IniText(settings, iiAutoPrefixVariableName), u"0");
}

}  // namespace
}  // namespace quillet::settings::testing
