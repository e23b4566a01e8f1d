// The Variable Builder through the tool: a script against a project on disk writes the module file
// with the new declaration, CRLF and the hidden attribute lines kept; Cancel writes nothing.

#include <gtest/gtest.h>

#include <sstream>

#include "cli/tool.h"
#include "hosts/files/temp_dir.h"

namespace quillet::builders {
namespace {

using hosts::files::testing::TempDir;
namespace fs = std::filesystem;

class VariableBuilderPlay : public ::testing::Test {
protected:
    VariableBuilderPlay() {
        for (const auto& entry : fs::directory_iterator(fs::path(QUILLET_SOURCE_DIR) / "examples" / "Invoicing"))
            fs::copy_file(entry.path(), dir / entry.path().filename().string());
        fs::create_directories(scripts / "settings");
        original = dir.read("basMain.bas");
    }
    int play(const std::string& script) {
        scripts.write("var.uis", script);
        std::vector<std::string> args = {"play", (scripts / "var.uis").string(), "--project", dir.path().string(),
                                         "--at", "basMain:11:5", "--settings", (scripts / "settings").string()};
        return cli::runTool(args, out, err);
    }

    TempDir dir, scripts;
    std::string original;
    std::ostringstream out, err;
};

TEST_F(VariableBuilderPlay, TheDeclarationGoesBehindTheProceduresDeclarations) {
    ASSERT_EQ(play("open frmVar\nset txtName strTitle\nclick cmdOK\nexpect-form frmVar closed\n"), cli::kExitOk)
        << err.str();
    std::string declaration = "    Dim invoices As Scripting.Dictionary\r\n";
    std::string expected = original;
    size_t at = expected.find(declaration);
    ASSERT_NE(at, std::string::npos);
    expected.insert(at + declaration.size(), "    Dim strTitle As String\r\n");
    EXPECT_EQ(dir.read("basMain.bas"), expected);
}

TEST_F(VariableBuilderPlay, CancelWritesNothing) {
    ASSERT_EQ(play("open frmVar\nset txtName strTitle\nclick cmdCancel\n"), cli::kExitOk) << err.str();
    EXPECT_EQ(dir.read("basMain.bas"), original);
    EXPECT_EQ(out.str(), "");
}

}  // namespace
}  // namespace quillet::builders
