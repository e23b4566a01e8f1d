// The start on damaged or unusual settings files: the add-in takes what it can read, reports what
// it could not, and leaves every line it did not understand as it was.

#include "settings/catalogue.h"
#include "settings/ini_vars.h"
#include "settings_fixture.h"

namespace quillet::settings::testing {
namespace {

using StartRobustness = SettingsTest;

const std::string kGarbledDeveloper =
    "\x01\x02 binary junk\r\n"
    "[Developer]\r\n"
    "Developer=Ann\r\n"
    "this line is no setting\r\n"
    "Organization=Acme=Corp\r\n"
    "=orphan\r\n"
    "# a note\r\n"
    "Initials=AB\r\n"
    "initials=second\r\n"
    "[[broken header\r\n";

TEST_F(StartRobustness, GarbageLinesAreReadAroundAndNeverRewritten) {
    writeBytes("root/qltusr.ini", kGarbledDeveloper);
    InitializeGlobalVars(settings, false);
    EXPECT_EQ(IniText(settings, iiDeveloper), u"Ann");
    EXPECT_EQ(IniText(settings, iiInitials), u"AB");
    EXPECT_EQ(IniText(settings, iiOrganization), u"Corp");  // the store's a=b=c rule
    EXPECT_EQ(IniText(settings, iiErrorHandler), u"HandleError");
    std::string after = readBytes("root/qltusr.ini");
    // Every line that was there is there as it was; the missing key goes behind the section's
    // last line ("[[broken header" is no header), the missing sections behind the file's end.
    std::string kept = kGarbledDeveloper + "Copyright=\r\n";
    EXPECT_EQ(after.rfind(kept, 0), 0u) << after;
    EXPECT_NE(after.find("[Error Handling]\r\nDefault Error Handle=On Error GoTo HandleError\r\n"), std::string::npos);
    EXPECT_TRUE(settings.ErrorLog.empty());
    // A second start finds every key and writes nothing.
    auto stamp = std::filesystem::last_write_time(machine("root/qltusr.ini"));
    InitializeGlobalVars(settings, false);
    EXPECT_EQ(readBytes("root/qltusr.ini"), after);
    EXPECT_EQ(std::filesystem::last_write_time(machine("root/qltusr.ini")), stamp);
}

TEST_F(StartRobustness, AReadOnlyFileIsReadReportedOnceAndLeftAsItWas) {
    const std::string text = "[Developer]\r\nDeveloper=Ann\r\n[Other]\r\nConst Tag=k\r\n";
    writeBytes("root/qltusr.ini", text);
    std::filesystem::permissions(machine("root/qltusr.ini"), std::filesystem::perms::owner_read);
    InitializeGlobalVars(settings, false);
    EXPECT_EQ(IniText(settings, iiDeveloper), u"Ann");
    EXPECT_EQ(IniText(settings, iiCodeCaseElse), u"Msgbox \"Missing Case\"");
    EXPECT_EQ(readBytes("root/qltusr.ini"), text);
    ASSERT_EQ(settings.ErrorLog.size(), 1u);
    EXPECT_EQ(settings.ErrorLog[0],
              u"modIniVarsQuillet.InitializeGlobalVars: 5 Unable to save INI file section 'Developer'");
    // The other file is written as usual.
    EXPECT_TRUE(exists("root/qlttp.ini"));
}

TEST_F(StartRobustness, AFileOfSeveralMegabytesLoadsAndKeepsItsBytes) {
    std::string notes = "[Notes]\r\n";
    for (int i = 0; i < 60000; ++i) notes += "line" + std::to_string(i) + "=" + std::string(48, 'n') + "\r\n";
    ASSERT_GT(notes.size(), 3'000'000u);
    std::string text = "[Developer]\r\nDeveloper=Ann\r\n" + notes;
    writeBytes("root/qltusr.ini", text);
    InitializeGlobalVars(settings, false);
    EXPECT_EQ(IniText(settings, iiDeveloper), u"Ann");
    std::string after = readBytes("root/qltusr.ini");
    EXPECT_NE(after.find(notes), std::string::npos);
    EXPECT_EQ(after.rfind("[Developer]\r\nDeveloper=Ann\r\nInitials=\r\n", 0), 0u);
    EXPECT_TRUE(settings.ErrorLog.empty());
}

TEST_F(StartRobustness, AMissingRootFolderStartsOnTheDefaults) {
    settings.RootFolderCache = u"T:\\gone\\deeper";
    InitializeGlobalVars(settings, false);
    EXPECT_EQ(IniText(settings, iiExitHandler), u"HandleExit");
    EXPECT_FALSE(exists("gone"));
    EXPECT_TRUE(settings.ErrorLog.empty());
}

}  // namespace
}  // namespace quillet::settings::testing
