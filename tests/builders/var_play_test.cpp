// The declaration builders through the tool: a script against a project on disk writes the module
// file with the new declaration, CRLF and the hidden attribute lines kept; Cancel writes nothing.

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
    // The module file with `line` behind the procedure's declaration at the caret.
    std::string withDeclaration(const std::string& line) {
        std::string declaration = "    Dim invoices As Scripting.Dictionary\r\n";
        std::string expected = original;
        size_t at = expected.find(declaration);
        EXPECT_NE(at, std::string::npos);
        if (at != std::string::npos) expected.insert(at + declaration.size(), line);
        return expected;
    }

    TempDir dir, scripts;
    std::string original;
    std::ostringstream out, err;
};

TEST_F(VariableBuilderPlay, TheDeclarationGoesBehindTheProceduresDeclarations) {
    ASSERT_EQ(play("open frmVar\nset txtName strTitle\nclick cmdOK\nexpect-form frmVar closed\n"), cli::kExitOk)
        << err.str();
    EXPECT_EQ(dir.read("basMain.bas"), withDeclaration("    Dim strTitle As String\r\n"));
}

TEST_F(VariableBuilderPlay, CancelWritesNothing) {
    ASSERT_EQ(play("open frmVar\nset txtName strTitle\nclick cmdCancel\n"), cli::kExitOk) << err.str();
    EXPECT_EQ(dir.read("basMain.bas"), original);
    EXPECT_EQ(out.str(), "");
}

TEST_F(VariableBuilderPlay, TheConstantBuilderOpensAndWritesItsConstant) {
    ASSERT_EQ(play("open frmConst\nexpect frmConst caption Constant Builder\nset txtName cstrTitle\n"
                   "set txtValue Invoices\nclick cmdOK\nexpect-form frmConst closed\n"),
              cli::kExitOk)
        << err.str();
    EXPECT_EQ(dir.read("basMain.bas"), withDeclaration("    Const cstrTitle As String = \"Invoices\"\r\n"));
}

TEST_F(VariableBuilderPlay, TheQuickInputBoxOpensAndWritesItsConstant) {
    ASSERT_EQ(play("open frmInputBox Const Long\nexpect frmInputBox caption Constant (Long)\nset txtName clngMax\n"
                   "set txtValue 10\nclick cmdOK\nexpect-form frmInputBox closed\n"),
              cli::kExitOk)
        << err.str();
    EXPECT_EQ(dir.read("basMain.bas"), withDeclaration("    Const clngMax As Long = 10\r\n"));
}

TEST_F(VariableBuilderPlay, TheQuickInputBoxCancelledWritesNothing) {
    ASSERT_EQ(play("open frmInputBox Dim String\nset txtName strTitle\nclick cmdCancel\n"), cli::kExitOk) << err.str();
    EXPECT_EQ(dir.read("basMain.bas"), original);
}

TEST_F(VariableBuilderPlay, TheEnumBuilderOpensAndWritesItsBlockBehindTheDeclarations) {
    ASSERT_EQ(play("open frmEnumOrType Enum\nexpect frmEnumOrType caption New enum\nset txtName InvoiceState\n"
                   "set txtPrefix st\nset txtItems Open\ncheck optAccessibility(1) 1\nclick cmdOk\n"
                   "expect-form frmEnumOrType closed\n"),
              cli::kExitOk)
        << err.str();
    std::string expected = original;
    std::string declarations = "Private Const INVOICES_SHEET As String = \"Invoices\"\r\n";
    size_t at = expected.find(declarations);
    ASSERT_NE(at, std::string::npos);
    expected.insert(at + declarations.size(), "Public Enum stInvoiceState\r\n    stOpen\r\nEnd Enum\r\n");
    EXPECT_EQ(dir.read("basMain.bas"), expected);
}

}  // namespace
}  // namespace quillet::builders
