// The settings verb and the settings files every verb writes at its first use.

#include "cli/settings_command.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "cli/options.h"
#include "cli/tool.h"
#include "hosts/files/temp_dir.h"

namespace quillet::cli {
namespace {

using hosts::files::testing::TempDir;
namespace fs = std::filesystem;

const fs::path kData = fs::path(QUILLET_SOURCE_DIR) / "data";

class CliSettings : public ::testing::Test {
protected:
    int run(std::vector<std::string> args) {
        out.str("");
        err.str("");
        args.push_back("--settings");
        args.push_back(dir.path().string());
        if (std::find(args.begin(), args.end(), "--data") == args.end() && args[1] != "--help") {
            args.push_back("--data");
            args.push_back(kData.string());
        }
        return runTool(args, out, err);
    }
    std::string file(const std::string& name) const { return dir.read(name); }
    void write(const std::string& name, const std::string& bytes) const {
        fs::create_directories((dir.path() / name).parent_path());
        std::ofstream(dir.path() / name, std::ios::binary) << bytes;
    }

    TempDir dir;
    std::ostringstream out, err;
};

TEST_F(CliSettings, FirstUseWritesBothFilesWithAllDefaultsAndInstallsTheShippedFiles) {
    ASSERT_EQ(run({"settings", "--data", kData.string()}), kExitOk) << err.str();
    EXPECT_EQ(err.str(), "");
    std::string user = file("qltusr.ini");
    EXPECT_EQ(user.rfind("[Developer]\r\nDeveloper=\r\nInitials=\r\nOrganization=\r\nCopyright=\r\n", 0), 0u) << user;
    EXPECT_NE(user.find("Make Procedure Constant True=True\r\n"), std::string::npos);
    EXPECT_NE(user.find("Auto Prefix Variable Name=2\r\n"), std::string::npos);
    EXPECT_EQ(file("qlttp.ini"), "[Scope Prefix]\r\nPrefix Module=m\r\nPrefix Global=g\r\n"
                                 "[Argument Prefix]\r\nPrefix ByRef=r\r\nPrefix ByVal=v\r\n");
    EXPECT_TRUE(dir.exists("quillet/Fragments/ErrorHandlers/On Error GoTo HandleError.bas"));
    EXPECT_TRUE(dir.exists("quillet/Templates/CollectionClass/CollectionClass.cls"));
    // The first use shows every value as a default; the next shows them read from the file.
    EXPECT_NE(out.str().find("  Developer    = (default)\n"), std::string::npos) << out.str();
    ASSERT_EQ(run({"settings"}), kExitOk);
    EXPECT_NE(out.str().find("  Developer    = (file)\n"), std::string::npos) << out.str();
    EXPECT_NE(out.str().find("[Scope Prefix]  qlttp.ini\n  Prefix Module = m  (file)\n"), std::string::npos);
}

TEST_F(CliSettings, ValuesFromTheFileAndDefaultsAreTold) {
    write("qltusr.ini", "[Developer]\r\ninitials=JD\r\n[Method Builder]\r\nAdd Header Method=\r\n");
    ASSERT_EQ(run({"settings", "--data", kData.string()}), kExitOk) << err.str();
    EXPECT_NE(out.str().find("  Initials     = JD  (file)\n"), std::string::npos) << out.str();
    // An empty Boolean keeps its default.
    EXPECT_NE(out.str().find("  Add Header Method          = True  (default)\n"), std::string::npos) << out.str();
    EXPECT_EQ(out.str().rfind("Settings folder: ", 0), 0u);
}

TEST_F(CliSettings, JsonListsEveryItemWithItsOrigin) {
    write("qltusr.ini", "[Developer]\r\nDeveloper=Jane \"JD\" Doe\\\r\n");
    ASSERT_EQ(run({"settings", "--json", "--data", kData.string()}), kExitOk) << err.str();
    std::string json = out.str();
    EXPECT_EQ(json.rfind("{\n  \"settingsFolder\": ", 0), 0u) << json;
    EXPECT_NE(json.find("{\n      \"file\": \"qltusr.ini\",\n      \"section\": \"Developer\",\n      \"key\": "
                        "\"Developer\",\n      \"value\": \"Jane \\\"JD\\\" Doe\\\\\",\n      \"type\": \"text\",\n"
                        "      \"origin\": \"file\"\n    }"),
              std::string::npos)
        << json;
    EXPECT_NE(json.find("\"key\": \"Add Hourglass Method\",\n      \"value\": \"False\",\n      \"type\": \"boolean\",\n"
                        "      \"origin\": \"default\""),
              std::string::npos)
        << json;
    size_t items = 0;
    for (size_t at = json.find("\"origin\""); at != std::string::npos; at = json.find("\"origin\"", at + 1)) ++items;
    EXPECT_EQ(items, 54u);
    EXPECT_EQ(json.substr(json.size() - 4), "]\n}\n");
}

TEST_F(CliSettings, SetChangesOneValueAndLeavesTheRestOfTheFile) {
    write("qltusr.ini", "; my notes\r\n[Developer]\r\nInitials=AB\r\n");
    ASSERT_EQ(run({"settings", "set", "developer", "INITIALS", "JD"}), kExitOk) << err.str();
    EXPECT_EQ(out.str(), "[Developer] Initials = JD\n");
    std::string user = file("qltusr.ini");
    EXPECT_EQ(user.rfind("; my notes\r\n[Developer]\r\nInitials=JD\r\n", 0), 0u) << user;
    ASSERT_EQ(run({"settings", "set", "Other", "View Quillet Window", "true"}), kExitOk) << err.str();
    EXPECT_NE(file("qltusr.ini").find("View Quillet Window=-1\r\n"), std::string::npos);
    ASSERT_EQ(run({"settings", "set", "Other", "Auto Prefix Variable Name", "always auto prefix"}), kExitOk);
    EXPECT_NE(file("qltusr.ini").find("Auto Prefix Variable Name=1\r\n"), std::string::npos);
    ASSERT_EQ(run({"settings", "set", "Scope Prefix", "Prefix Module", "m_"}), kExitOk);
    EXPECT_NE(file("qlttp.ini").find("Prefix Module=m_\r\n"), std::string::npos);
}

TEST_F(CliSettings, UnknownSettingsAndRefusedValuesAreUsageErrors) {
    EXPECT_EQ(run({"settings", "set", "Developer", "Nickname", "x"}), kExitUsage);
    EXPECT_EQ(err.str(), "quillet: unknown setting [Developer] Nickname\nTry 'quillet settings' for the list of settings.\n");
    EXPECT_EQ(run({"settings", "set", "Nowhere", "Initials", "x"}), kExitUsage);
    // The key exists, but in another section.
    EXPECT_EQ(run({"settings", "set", "Other", "Initials", "x"}), kExitUsage);
    EXPECT_EQ(run({"settings", "set", "Other", "View Quillet Window", "maybe"}), kExitUsage);
    EXPECT_EQ(err.str(), "quillet: [Other] View Quillet Window takes True or False, not \"maybe\"\n");
    EXPECT_EQ(run({"settings", "set", "Developer", "Initials"}), kExitUsage);
    EXPECT_EQ(run({"settings", "get"}), kExitUsage);
    EXPECT_EQ(run({"settings", "--project", "p"}), kExitUsage);
    EXPECT_NE(file("qltusr.ini").find("Initials=\r\n"), std::string::npos);
}

TEST_F(CliSettings, AReadOnlyFileIsReportedAndKept) {
    write("qltusr.ini", "[Developer]\r\nInitials=AB\r\n");
    fs::permissions(dir.path() / "qltusr.ini", fs::perms::owner_read);
    EXPECT_EQ(run({"settings", "set", "Developer", "Initials", "JD"}), kExitProject);
    EXPECT_NE(err.str().find("could not write Initials to "), std::string::npos) << err.str();
    fs::permissions(dir.path() / "qltusr.ini", fs::perms::owner_all);
    EXPECT_EQ(file("qltusr.ini"), "[Developer]\r\nInitials=AB\r\n");
}

TEST_F(CliSettings, EveryVerbThatWorksWritesTheSettingsAtItsFirstUse) {
    TempDir project;
    std::ofstream(project.path() / "basMain.bas", std::ios::binary) << "Attribute VB_Name = \"basMain\"\r\n";
    ASSERT_EQ(run({"list", "--project", project.path().string(), "--data", kData.string()}), kExitOk) << err.str();
    EXPECT_TRUE(dir.exists("qltusr.ini"));
    EXPECT_TRUE(dir.exists("qlttp.ini"));
    EXPECT_TRUE(dir.exists("quillet/ErrorHandlers/basErrorHandle.bas"));
}

TEST_F(CliSettings, HelpAndVersionWriteNothing) {
    ASSERT_EQ(run({"settings", "--help"}), kExitOk);
    EXPECT_EQ(out.str().rfind("Usage: quillet settings", 0), 0u);
    EXPECT_FALSE(dir.exists("qltusr.ini"));
    out.str("");
    EXPECT_EQ(runTool({"help", "settings"}, out, err), kExitOk);
    EXPECT_EQ(out.str().rfind("Usage: quillet settings", 0), 0u);
}

TEST_F(CliSettings, AMissingDataFolderIsToldAndTheSettingsAreStillWritten) {
    ASSERT_EQ(run({"settings", "--data", (dir.path() / "nothing").string()}), kExitOk);
    EXPECT_TRUE(dir.exists("qltusr.ini"));
    EXPECT_NE(err.str().find("error 76"), std::string::npos) << err.str();
}

TEST(CliSettingsData, FoundFromTheOptionTheEnvironmentOrNearTheTool) {
    ToolOptions options;
    options.data = "/some/where";
    EXPECT_EQ(findDataFolder(options, nullptr), fs::path("/some/where"));
    options.data.reset();
    auto environment = [](const std::string& name) -> std::optional<std::string> {
        if (name == "QUILLET_DATA") return std::string("/from/env");
        return std::nullopt;
    };
    EXPECT_EQ(findDataFolder(options, environment), fs::path("/from/env"));
    // A build inside the source tree finds the source tree's data folder above it.
    auto executable = fs::read_symlink("/proc/self/exe");
    auto source = fs::canonical(QUILLET_SOURCE_DIR);
    if (executable.string().rfind(source.string() + "/", 0) != 0) GTEST_SKIP() << "a build outside the source tree";
    auto found = findDataFolder(options, [](const std::string&) { return std::nullopt; });
    ASSERT_TRUE(found);
    EXPECT_TRUE(fs::equivalent(*found, kData));
}

TEST(CliSettingsOptions, ParsesTheSettingsVerb) {
    ToolOptions shown = parseArguments({"settings", "--json", "--settings", "cfg", "--data=d"});
    EXPECT_EQ(shown.verb, Verb::Settings);
    EXPECT_TRUE(shown.json);
    EXPECT_EQ(*shown.data, "d");
    EXPECT_TRUE(shown.settingChange.empty());
    ToolOptions set = parseArguments({"settings", "set", "Other", "Const Tag", "k"});
    EXPECT_EQ(set.settingChange, (std::vector<Str>{u"Other", u"Const Tag", u"k"}));
    EXPECT_THROW(parseArguments({"settings", "set", "Other", "Const Tag", "k", "--json"}), UsageError);
    EXPECT_THROW(parseArguments({"settings", "--json=yes"}), UsageError);
}

}  // namespace
}  // namespace quillet::cli
