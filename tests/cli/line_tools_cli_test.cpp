// quillet run "Line Numbers Add", "Line Numbers Remove", "Comment Lines Add" and "Comment Lines
// Remove" on a folder project: the module file rewritten byte for byte as the golden files show.

#include <gtest/gtest.h>

#include <sstream>

#include "../tools/tools_fixture.h"
#include "cli/tool.h"
#include "hosts/files/temp_dir.h"

namespace quillet::cli {
namespace {

using hosts::files::testing::TempDir;

constexpr char kHeader[] = "Attribute VB_Name = \"basTotal\"\r\n";

class LineToolsCli : public ::testing::Test {
protected:
    LineToolsCli() { dir.write("basTotal.bas", kHeader + testing::goldenBytes("numbering_plain.bas")); }

    int run(const std::string& command, const std::string& placeOption, const std::string& place) {
        out.str("");
        err.str("");
        return runTool({"run", command, "--project", dir.path().string(), placeOption, place, "--settings",
                        settingsDir.path().string(), "--data",
                        (std::filesystem::path(QUILLET_SOURCE_DIR) / "data").string()},
                       out, err);
    }
    std::string module() const { return dir.read("basTotal.bas"); }

    TempDir dir, settingsDir;
    std::ostringstream out, err;
};

TEST_F(LineToolsCli, LineNumbersAddAndRemoveOverTheWholeModule) {
    ASSERT_EQ(run("Line Numbers Add", "--select", "basTotal:1:1-46:8"), kExitOk) << err.str();
    EXPECT_EQ(err.str(), "");
    EXPECT_EQ(module(), kHeader + testing::goldenBytes("numbering_numbered.bas"));
    ASSERT_EQ(run("Line Numbers Remove", "--select", "basTotal:1:1-46:8"), kExitOk) << err.str();
    EXPECT_EQ(module(), kHeader + testing::goldenBytes("numbering_removed.bas"));
}

TEST_F(LineToolsCli, LineNumbersAddOnOneLine) {
    ASSERT_EQ(run("Line Numbers Add", "--at", "basTotal:12"), kExitOk) << err.str();
    std::string expected = kHeader + testing::goldenBytes("numbering_plain.bas");
    expected.replace(expected.find("    calls = calls + 1"), 4, "1012    ");
    EXPECT_EQ(module(), expected);
}

TEST_F(LineToolsCli, CommentLinesAddAndRemove) {
    ASSERT_EQ(run("Comment Lines Add", "--select", "basTotal:1:1-46:8"), kExitOk) << err.str();
    EXPECT_EQ(module(), kHeader + testing::goldenBytes("comment_added.bas"));
    ASSERT_EQ(run("Comment Lines Remove", "--select", "basTotal:1:1-46:8"), kExitOk) << err.str();
    EXPECT_EQ(module(), kHeader + testing::goldenBytes("numbering_plain.bas"));
}

TEST_F(LineToolsCli, CommentLinesAddAtOneLine) {
    ASSERT_EQ(run("Comment Lines Add", "--at", "basTotal:12"), kExitOk) << err.str();
    std::string expected = kHeader + testing::goldenBytes("numbering_plain.bas");
    expected.replace(expected.find("    calls = calls + 1"), 0, "'");
    EXPECT_EQ(module(), expected);
}

}  // namespace
}  // namespace quillet::cli
