// The Procedure Builder through the tool: a script against a project on disk writes the module
// file with the new procedure, CRLF and all; a script that stops writes nothing.

#include <gtest/gtest.h>

#include <sstream>

#include "cli/tool.h"
#include "hosts/files/temp_dir.h"

namespace quillet::builders {
namespace {

using hosts::files::testing::TempDir;
namespace fs = std::filesystem;

class ProcedureBuilderPlay : public ::testing::Test {
protected:
    ProcedureBuilderPlay() {
        for (const auto& entry : fs::directory_iterator(fs::path(QUILLET_SOURCE_DIR) / "examples" / "Invoicing"))
            fs::copy_file(entry.path(), dir / entry.path().filename().string());
        fs::create_directories(scripts / "settings");
        original = dir.read("basMain.bas");
    }
    int play(const std::string& script) {
        scripts.write("add.uis", script);
        std::vector<std::string> args = {"play", (scripts / "add.uis").string(), "--project", dir.path().string(),
                                         "--at", "basMain:3", "--settings", (scripts / "settings").string()};
        return cli::runTool(args, out, err);
    }

    // Every option off, whatever the settings say, and the name given.
    static constexpr const char* kPlainSub =
        "open frmProcedure\nset txtName Hello\nselect cboProcType Sub\nselect cboAccessibility Private\n"
        "check chkAddHeader 0\ncheck chkAddProcedureConstant 0\ncheck chkAddModuleConstant 0\n"
        "select cboAddErrorHandler #0\nclick cmdOK\nexpect-form frmProcedure closed\n";

    TempDir dir, scripts;
    std::string original;
    std::ostringstream out, err;
};

TEST_F(ProcedureBuilderPlay, TheNewProcedureIsWrittenBehindTheDeclarations) {
    ASSERT_EQ(play(kPlainSub), cli::kExitOk) << err.str();
    std::string written = dir.read("basMain.bas");
    std::string declarations = "Private Const INVOICES_SHEET As String = \"Invoices\"\r\n";
    size_t at = original.find(declarations);
    ASSERT_NE(at, std::string::npos);
    at += declarations.size();
    std::string expected = original.substr(0, at) + "Private Sub Hello()\r\n    \r\nEnd Sub\r\n" + original.substr(at);
    EXPECT_EQ(written, expected);
}

TEST_F(ProcedureBuilderPlay, AScriptThatStopsWritesNothing) {
    EXPECT_EQ(play(std::string(kPlainSub) + "expect-code basMain\nOption Explicit\nend-code\n"), cli::kExitScript);
    EXPECT_EQ(dir.read("basMain.bas"), original);
}

}  // namespace
}  // namespace quillet::builders
