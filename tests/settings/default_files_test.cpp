// Installing the files a fresh installation needs.

#include "settings/default_files.h"

#include <unistd.h>

#include <set>

#include "settings/catalogue.h"
#include "settings/ini_vars.h"
#include "settings_fixture.h"

namespace quillet::settings::testing {
namespace {

namespace fs = std::filesystem;

const fs::path kData = fs::path(QUILLET_SOURCE_DIR) / "data";

std::string shippedBytes(const Str& name) {
    std::string relative = basic::toUtf8(name);
    for (auto& c : relative)
        if (c == '\\') c = '/';
    std::ifstream in(kData / relative, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Where each shipped file lands with the default settings, below the temporary folder.
const std::vector<std::pair<Str, std::string>> kPlaces = {
    {u"quillet\\Fragments\\Headers And Comments\\ProcedureHeader.bas",
     "root/quillet/Fragments/Headers And Comments/ProcedureHeader.bas"},
    {u"quillet\\Fragments\\Headers And Comments\\ModuleHeader.bas",
     "root/quillet/Fragments/Headers And Comments/ModuleHeader.bas"},
    {u"quillet\\Fragments\\ErrorHandlers\\On Error GoTo HandleError.bas",
     "root/quillet/Fragments/ErrorHandlers/On Error GoTo HandleError.bas"},
    {u"quillet\\Fragments\\ErrorHandlers\\On Error GoTo ExitLabel.bas",
     "root/quillet/Fragments/ErrorHandlers/On Error GoTo ExitLabel.bas"},
    {u"quillet\\ErrorHandlers\\basErrorHandle.bas", "root/quillet/ErrorHandlers/basErrorHandle.bas"},
    {u"quillet\\Templates\\CollectionClass\\CollectionClass.cls",
     "root/quillet/Templates/CollectionClass/CollectionClass.cls"},
};

class DefaultFilesTest : public SettingsTest {
protected:
    DefaultFilesTest() { source = settings.Files.systemPath(kData); }
    Str source;
};

TEST_F(DefaultFilesTest, FreshInstallationGetsEveryFileByteForByteAndTheFolderTree) {
    auto report = InstallDefaultFiles(settings, source);
    EXPECT_EQ(report.installed.size(), kPlaces.size());
    EXPECT_TRUE(report.kept.empty());
    EXPECT_TRUE(report.failed.empty());
    for (const auto& [name, place] : kPlaces) {
        ASSERT_TRUE(exists(place)) << place;
        EXPECT_EQ(readBytes(place), shippedBytes(name)) << place;
        EXPECT_FALSE(readBytes(place).empty()) << place;
    }
    for (const char* folder : {"root/quillet/Library", "root/quillet/Classes", "root/quillet/Templates",
                               "root/quillet/Fragments/ErrorHandlers", "root/quillet/ErrorHandlers"})
        EXPECT_TRUE(fs::is_directory(machine(folder))) << folder;
    EXPECT_TRUE(settings.ErrorLog.empty());
    EXPECT_EQ(DefaultFileNames().size(), kPlaces.size());
}

TEST_F(DefaultFilesTest, UserFilesAreNeverReplaced) {
    writeBytes("root/quillet/Fragments/Headers And Comments/ProcedureHeader.bas", "' mine\r\n\x80\xff");
    writeBytes("root/quillet/Fragments/ErrorHandlers/On Error GoTo HandleError.bas", "");
    auto stamp = fs::last_write_time(machine("root/quillet/Fragments/Headers And Comments/ProcedureHeader.bas"));
    auto report = InstallDefaultFiles(settings, source);
    EXPECT_EQ(report.kept.size(), 2u);
    EXPECT_EQ(report.installed.size(), kPlaces.size() - 2);
    EXPECT_EQ(readBytes("root/quillet/Fragments/Headers And Comments/ProcedureHeader.bas"), "' mine\r\n\x80\xff");
    EXPECT_EQ(fs::last_write_time(machine("root/quillet/Fragments/Headers And Comments/ProcedureHeader.bas")), stamp);
    EXPECT_EQ(readBytes("root/quillet/Fragments/ErrorHandlers/On Error GoTo HandleError.bas"), "");
    // A second run finds everything in place and writes nothing.
    auto again = InstallDefaultFiles(settings, source);
    EXPECT_TRUE(again.installed.empty());
    EXPECT_EQ(again.kept.size(), kPlaces.size());
}

TEST_F(DefaultFilesTest, PlacesTheUserChoseAreLeftAlone) {
    SetDefaults(settings);
    settings.IniItemValue[iiProcedureHeaderFile] = Str(u"T:\\team\\Header.bas");
    settings.IniItemValue[iiBaseFolder] = Str(u"T:\\code\\");
    auto report = InstallDefaultFiles(settings, source);
    EXPECT_EQ(report.installed.size(), 3u);  // module header, error module, collection class
    EXPECT_FALSE(exists("team"));
    EXPECT_FALSE(exists("code"));
    EXPECT_FALSE(exists("root/quillet/Fragments/ErrorHandlers"));
    EXPECT_TRUE(exists("root/quillet/Fragments/Headers And Comments/ModuleHeader.bas"));
}

TEST_F(DefaultFilesTest, AFolderThatCannotBeWrittenIsReportedAndTheRestGoesOn) {
    writeBytes("root/quillet/Fragments", "a file where the folder should be");
    auto report = InstallDefaultFiles(settings, source);
    EXPECT_EQ(report.failed.size(), 4u);
    EXPECT_EQ(report.installed.size(), 2u);
    EXPECT_TRUE(exists("root/quillet/ErrorHandlers/basErrorHandle.bas"));
    EXPECT_TRUE(exists("root/quillet/Templates/CollectionClass/CollectionClass.cls"));
    EXPECT_EQ(readBytes("root/quillet/Fragments"), "a file where the folder should be");
    ASSERT_EQ(settings.ErrorLog.size(), 1u);
    const Str& log = settings.ErrorLog[0];
    EXPECT_EQ(log.rfind(u"modDefaultFiles.InstallDefaultFiles: 75 Could not install these files:", 0), 0u) << bytes(log);
    EXPECT_NE(log.find(u"ModuleHeader.bas"), Str::npos);
    EXPECT_NE(log.find(u"On Error GoTo ExitLabel.bas"), Str::npos);
}

TEST_F(DefaultFilesTest, AReadOnlyFolderIsReportedAndNotFatal) {
    fs::create_directories(machine("root/quillet"));
    fs::permissions(machine("root/quillet"), fs::perms::owner_read | fs::perms::owner_exec);
    if (::access(machine("root/quillet").c_str(), W_OK) == 0) {
        fs::permissions(machine("root/quillet"), fs::perms::owner_all);
        GTEST_SKIP() << "the folder stays writable for this user (root)";
    }
    auto report = InstallDefaultFiles(settings, source);
    fs::permissions(machine("root/quillet"), fs::perms::owner_all);
    EXPECT_EQ(report.failed.size(), kPlaces.size());
    EXPECT_TRUE(report.installed.empty());
    EXPECT_EQ(settings.ErrorLog.size(), 1u);
}

TEST_F(DefaultFilesTest, AMissingShippedFolderIsReportedAndDoesNothing) {
    auto report = InstallDefaultFiles(settings, u"T:\\nowhere\\data");
    EXPECT_TRUE(report.sourceMissing);
    EXPECT_TRUE(report.installed.empty());
    EXPECT_FALSE(exists("root/quillet"));
    ASSERT_EQ(settings.ErrorLog.size(), 1u);
    EXPECT_NE(settings.ErrorLog[0].find(u": 76 Path not found: T:\\nowhere\\data"), Str::npos) << bytes(settings.ErrorLog[0]);
}

TEST_F(DefaultFilesTest, TheShippedFolderIsTheAddinsDataFolderUnlessSet) {
    platform.setAddinFolder(u"C:\\Program Files\\Quillet\\");
    EXPECT_EQ(DefaultFilesSource(settings), u"C:\\Program Files\\Quillet\\data");
    settings.DefaultFilesFolder = u"T:\\shipped";
    EXPECT_EQ(DefaultFilesSource(settings), u"T:\\shipped");
}

TEST_F(DefaultFilesTest, FirstStartInstallsWhenTheSettingsWereNew) {
    settings.DefaultFilesFolder = source;
    InitializeGlobalVars(settings, true);
    EXPECT_TRUE(exists("root/qltusr.ini"));
    for (const auto& [name, place] : kPlaces) EXPECT_TRUE(exists(place)) << place;
    // A later start with complete settings leaves a deleted template deleted.
    fs::remove(machine("root/quillet/Fragments/ErrorHandlers/On Error GoTo ExitLabel.bas"));
    InitializeGlobalVars(settings, true);
    EXPECT_FALSE(exists("root/quillet/Fragments/ErrorHandlers/On Error GoTo ExitLabel.bas"));
    EXPECT_TRUE(settings.ErrorLog.empty());
}

TEST_F(DefaultFilesTest, FirstStartWithoutAShippedFolderStartsQuietly) {
    settings.DefaultFilesFolder = u"T:\\nowhere";
    InitializeGlobalVars(settings, true);
    EXPECT_TRUE(exists("root/qltusr.ini"));
    EXPECT_FALSE(exists("root/quillet"));
    EXPECT_TRUE(settings.ErrorLog.empty());
}

// The shipped files themselves.

TEST(DefaultFilesData, EveryFileHasCrLfLineEndsOnly) {
    for (const Str& name : DefaultFileNames()) {
        std::string text = shippedBytes(name);
        ASSERT_FALSE(text.empty()) << bytes(name);
        for (size_t i = 0; i < text.size(); ++i) {
            if (text[i] == '\n') {
                EXPECT_TRUE(i > 0 && text[i - 1] == '\r') << bytes(name) << " at " << i;
            }
            if (text[i] == '\r') {
                EXPECT_TRUE(i + 1 < text.size() && text[i + 1] == '\n') << bytes(name) << " at " << i;
            }
        }
    }
}

TEST(DefaultFilesData, EveryDefaultErrorHandlerNameHasATemplateWithItsMarkers) {
    std::set<Str> handlers;
    for (const Str& name : DefaultFileNames()) {
        Str prefix = u"quillet\\Fragments\\ErrorHandlers\\";
        if (name.rfind(prefix, 0) == 0) handlers.insert(name.substr(prefix.size()));
    }
    for (long item : {iiDefaultErrorHandle, iiAddErrorHandlingProperty, iiAddErrorHandlingMethod,
                      iiAddErrorHandlingProcedure}) {
        Str file = ValueText(ItemDefault(item)) + u".bas";
        ASSERT_TRUE(handlers.count(file)) << bytes(file);
        std::string text = shippedBytes(u"quillet\\Fragments\\ErrorHandlers\\" + file);
        EXPECT_NE(text.find("<end_of_top>"), std::string::npos) << bytes(file);
        EXPECT_NE(text.find("<begin_of_bottom>"), std::string::npos) << bytes(file);
        EXPECT_NE(text.find("{HANDLEEXITLABEL}:"), std::string::npos) << bytes(file);
    }
    std::string handleError = shippedBytes(u"quillet\\Fragments\\ErrorHandlers\\On Error GoTo HandleError.bas");
    EXPECT_NE(handleError.find("{HANDLEERRORLABEL}:\r\n    {ERRORHANDLEPROCEDURE} "), std::string::npos);
}

TEST(DefaultFilesData, HeadersAndTemplatesUseTheirPlaceholders) {
    std::string procedure = shippedBytes(u"quillet\\Fragments\\Headers And Comments\\ProcedureHeader.bas");
    EXPECT_NE(procedure.find("{PROCEDURENAME}"), std::string::npos);
    EXPECT_NE(procedure.find("{DESCRIPTION}"), std::string::npos);
    // The text after the header starts indented: the file ends in one indentation step.
    EXPECT_EQ(procedure.substr(procedure.size() - 6), "\r\n    ");
    std::string module = shippedBytes(u"quillet\\Fragments\\Headers And Comments\\ModuleHeader.bas");
    EXPECT_NE(module.find("{MODULENAME}"), std::string::npos);
    std::string errorModule = shippedBytes(u"quillet\\ErrorHandlers\\basErrorHandle.bas");
    EXPECT_EQ(errorModule.rfind("Attribute VB_Name = \"{MODULENAME}\"\r\n{MODULEHEADER}", 0), 0u);
    EXPECT_NE(errorModule.find("Public Sub {PROCEDURENAME}("), std::string::npos);
    std::string collection = shippedBytes(u"quillet\\Templates\\CollectionClass\\CollectionClass.cls");
    EXPECT_EQ(collection.rfind("VERSION 1.0 CLASS\r\n", 0), 0u);
    EXPECT_NE(collection.find("Attribute VB_Name = \"{MODULENAME}\""), std::string::npos);
    EXPECT_NE(collection.find("As {BASECLASSNAME}"), std::string::npos);
    EXPECT_NE(collection.find("Attribute NewEnum.VB_UserMemId = -4"), std::string::npos);
    // Runs of four blanks stand for indentation, so the headers hold them only at a line's start.
    for (const std::string& header : {procedure, module}) {
        for (size_t at = header.find("    "); at != std::string::npos; at = header.find("    ", at + 4)) {
            size_t lineStart = header.rfind('\n', at);
            lineStart = lineStart == std::string::npos ? 0 : lineStart + 1;
            EXPECT_EQ(header.find_first_not_of(' ', lineStart) > at, true) << header.substr(lineStart, 40);
        }
    }
}

}  // namespace
}  // namespace quillet::settings::testing
