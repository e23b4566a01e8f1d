// The play verb: a UI script against a project on disk.

#include <gtest/gtest.h>

#include <sstream>

#include "cli/tool.h"
#include "hosts/files/temp_dir.h"

namespace quillet::cli {
namespace {

using hosts::files::testing::TempDir;
namespace fs = std::filesystem;

const fs::path kExample = fs::path(QUILLET_SOURCE_DIR) / "examples" / "Invoicing";

class CliPlay : public ::testing::Test {
protected:
    CliPlay() {
        for (const auto& entry : fs::directory_iterator(kExample)) fs::copy_file(entry.path(), dir / entry.path().filename().string());
        project = dir.path().string();
        fs::create_directories(scripts / "settings");
        original = dir.read("basMain.bas");
    }

    // Plays `script` (written to a file first) on the project with the caret in basMain.
    int play(const std::string& script, std::vector<std::string> extra = {}) {
        scripts.write("test.ui", script);
        std::vector<std::string> args = {"play", scriptPath(), "--project", project, "--at", "basMain:3",
                                         "--settings", (scripts / "settings").string()};
        args.insert(args.end(), extra.begin(), extra.end());
        out.str("");
        err.str("");
        return runTool(args, out, err);
    }
    std::string scriptPath() const { return (scripts / "test.ui").string(); }

    // basMain's code as the editor holds it, as an expect-code block: the file's lines but its
    // Attribute lines, LF-separated.
    std::string basMainBlock() const {
        std::string block;
        std::istringstream lines(original);
        for (std::string line; std::getline(lines, line);) {
            if (!line.empty() && line.back() == '\r') line.pop_back();
            if (line.rfind("Attribute ", 0) != 0) block += (block.empty() ? "" : "\n") + line;
        }
        return block;
    }
    // The last line standard error got (other lines may report the settings).
    std::string lastError() const {
        std::string text = err.str();
        size_t before = text.size() < 2 ? std::string::npos : text.rfind('\n', text.size() - 2);
        return before == std::string::npos ? text : text.substr(before + 1);
    }

    TempDir dir, scripts;
    std::string project, original;
    std::ostringstream out, err;
};

TEST_F(CliPlay, AScriptThatHoldsWritesNothingAndExitsZero) {
    ASSERT_EQ(play("# the module as it is\nanswer yes\nexpect-code basMain\n" + basMainBlock() + "\nend-code\n",
                   {"--answer", "no"}),
              kExitOk)
        << err.str();
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(dir.read("basMain.bas"), original);
}

TEST_F(CliPlay, AFailedExpectExitsThreeWithTheScriptsLine) {
    EXPECT_EQ(play("\nexpect-code basMain\nOption Base 1\nend-code\n"), kExitScript);
    EXPECT_EQ(lastError(), "quillet: " + scriptPath() +
                             ":2: expect-code basMain: line 1 of the module: expected \"Option Base 1\", found "
                             "\"Option Explicit\"\n");
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(dir.read("basMain.bas"), original);
}

TEST_F(CliPlay, ADialogThatCannotBeOpenedStopsTheScript) {
    EXPECT_EQ(play("open frmNothing\n"), kExitScript);
    EXPECT_EQ(lastError(), "quillet: " + scriptPath() + ":1: open frmNothing: no dialog of that name can be opened\n");
    EXPECT_EQ(play("click cmdOK\n"), kExitScript);
    EXPECT_EQ(lastError(), "quillet: " + scriptPath() + ":1: click cmdOK: no dialog is open\n");
}

TEST_F(CliPlay, AScriptThatCannotBeReadIsAUsageError) {
    EXPECT_EQ(play("click\n"), kExitUsage);
    EXPECT_EQ(lastError(), "quillet: " + scriptPath() + ":1: click: the control's name missing\n");
    fs::remove(scripts / "test.ui");
    out.str("");
    err.str("");
    EXPECT_EQ(runTool({"play", scriptPath(), "--project", project, "--at", "basMain:3"}, out, err), kExitUsage);
    EXPECT_EQ(lastError(), "quillet: cannot read the script " + scriptPath() + "\n");
}

TEST_F(CliPlay, UsageAndPlaces) {
    EXPECT_EQ(runTool({"play", "--project", project, "--at", "basMain:3"}, out, err), kExitUsage);
    EXPECT_NE(err.str().find("play needs a SCRIPT"), std::string::npos) << err.str();
    EXPECT_EQ(runTool({"play", "x.ui", "--at", "basMain:3"}, out, err), kExitUsage);
    EXPECT_EQ(runTool({"play", "x.ui", "--project", project}, out, err), kExitUsage);
    EXPECT_EQ(play("", {}), kExitOk);
    scripts.write("test.ui", "");
    EXPECT_EQ(runTool({"play", scriptPath(), "--project", project, "--at", "basNothing:1"}, out, err), kExitProject);
    out.str("");
    EXPECT_EQ(runTool({"play", "--help"}, out, err), kExitOk);
    EXPECT_NE(out.str().find("Usage: quillet play SCRIPT"), std::string::npos);
}

}  // namespace
}  // namespace quillet::cli
