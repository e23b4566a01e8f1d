#include "cli/tool.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "hosts/files/temp_dir.h"

namespace quillet::cli {
namespace {

using hosts::files::testing::TempDir;
namespace fs = std::filesystem;

const fs::path kExample = fs::path(QUILLET_SOURCE_DIR) / "examples" / "Invoicing";

class CliTool : public ::testing::Test {
protected:
    CliTool() {
        for (const auto& entry : fs::directory_iterator(kExample)) fs::copy_file(entry.path(), dir / entry.path().filename().string());
        dir.ageFiles();
        project = dir.path().string();
        for (const auto& entry : fs::directory_iterator(dir.path())) {
            std::string name = entry.path().filename().string();
            before[name] = {dir.read(name), dir.mtime(name)};
        }
    }

    int run(std::vector<std::string> args) {
        out.str("");
        err.str("");
        // The settings go to a folder of their own, never to the user's.
        if (!args.empty()) {
            args.insert(args.end(), {"--settings", settingsDir.path().string(), "--data",
                                     (fs::path(QUILLET_SOURCE_DIR) / "data").string()});
        }
        return runTool(args, out, err);
    }
    // The names of the files whose bytes or times differ from the start.
    std::string touched() const {
        std::string names;
        for (const auto& [name, state] : before) {
            if (!dir.exists(name) || dir.read(name) != state.first || dir.mtime(name) != state.second) names += name + " ";
        }
        return names;
    }

    TempDir dir;
    TempDir settingsDir;
    std::string project;
    std::map<std::string, std::pair<std::string, fs::file_time_type>> before;
    std::ostringstream out, err;
};

TEST_F(CliTool, RunWritesOnlyTheChangedFileAndNamesIt) {
    ASSERT_EQ(run({"run", "If Then Else", "--project", project, "--at", "basMain:12:5"}), kExitOk) << err.str();
    EXPECT_EQ(out.str(), (dir / "basMain.bas").generic_string() + "\n");
    EXPECT_EQ(err.str(), "");
    EXPECT_EQ(touched(), "basMain.bas ");
    std::string expected = before["basMain.bas"].first;
    std::string blank = "ORDERS_SHEET))\r\n\r\n";
    expected.replace(expected.find(blank), blank.size(),
                     "ORDERS_SHEET))\r\n    If  Then\r\n        \r\n    Else\r\n        \r\n    End If\r\n");
    EXPECT_EQ(dir.read("basMain.bas"), expected);
    EXPECT_FALSE(dir.listing().find(".tmp") != std::string::npos) << dir.listing();
}

TEST_F(CliTool, DryRunPrintsADiffAndWritesNothing) {
    ASSERT_EQ(run({"run", "If Then Else", "--project", project, "--at", "basMain:12:5", "--dry-run"}), kExitOk);
    std::string name = (dir / "basMain.bas").generic_string();
    EXPECT_EQ(out.str(), "--- a/" + name + "\n+++ b/" + name +
                             "\n@@ -12,7 +12,11 @@\n     Dim invoices As Scripting.Dictionary\n \n"
                             "     Set invoices = CollectOrders(ThisWorkbook.Worksheets(ORDERS_SHEET))\n-\n"
                             "+    If  Then\n+        \n+    Else\n+        \n+    End If\n"
                             "     WriteInvoices invoices, ThisWorkbook.Worksheets(INVOICES_SHEET)\n End Sub\n \n");
    EXPECT_EQ(touched(), "");
}

TEST_F(CliTool, ErrorHandlingWrapsTheProcedureAndBringsTheErrorModule) {
    ASSERT_EQ(run({"run", "ErrorHandling", "--project", project, "--at", "basMain:12:5"}), kExitOk) << err.str();
    EXPECT_EQ(err.str(), "");
    EXPECT_EQ(touched(), "basMain.bas ");
    ASSERT_TRUE(dir.exists("basErrorHandle.bas"));
    std::string code = dir.read("basMain.bas");
    EXPECT_NE(code.find("    On Error GoTo HandleError\r\n"), std::string::npos);
    EXPECT_NE(code.find("HandleError:\r\n    ErrorHandle Err.Number, Err.Description, cstrModule & \".\" & cstrProcedure\r\n"
                        "    Resume HandleExit\r\nEnd Sub\r\n"),
              std::string::npos);
    EXPECT_EQ(dir.read("basErrorHandle.bas").rfind("Attribute VB_Name = \"basErrorHandle\"\r\n", 0), 0u);
}

TEST_F(CliTool, AnswersGoToTheInputBoxes) {
    ASSERT_EQ(run({"run", "If Then ElseIf Else", "--project", project, "--at", "basMain:12:5", "--answer", "2",
                   "--dry-run"}),
              kExitOk);
    std::string diff = out.str();
    size_t count = 0;
    for (size_t at = diff.find("+    ElseIf"); at != std::string::npos; at = diff.find("+    ElseIf", at + 1)) ++count;
    EXPECT_EQ(count, 2u) << diff;
}

TEST_F(CliTool, SelectionAndLastLine) {
    EXPECT_EQ(run({"run", "On Error Resume Next", "--project", project, "--select", "basText:19:5-19:5", "--dry-run"}),
              kExitOk)
        << err.str();
    EXPECT_NE(out.str().find("+    On Error Resume Next"), std::string::npos) << out.str();
    EXPECT_EQ(touched(), "");
}

TEST_F(CliTool, UnknownModuleOrLinePastTheEndIsExitTwoAndWritesNothing) {
    EXPECT_EQ(run({"run", "If Then", "--project", project, "--at", "basNowhere:1"}), kExitProject);
    EXPECT_EQ(err.str(), "quillet: the project has no module named basNowhere\n");
    EXPECT_EQ(run({"run", "If Then", "--project", project, "--at", "basText:23"}), kExitProject);
    EXPECT_EQ(err.str(), "quillet: basText has 22 lines; there is no line 23\n");
    EXPECT_EQ(run({"run", "If Then", "--project", project, "--select", "basText:1:1-99:1"}), kExitProject);
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(touched(), "");
}

TEST_F(CliTool, ProjectThatCannotBeReadIsExitTwo) {
    EXPECT_EQ(run({"list", "--project", (dir / "missing").string()}), kExitProject);
    EXPECT_EQ(err.str(), "quillet: " + (dir / "missing").generic_string() + ": no such project file or folder\n");
    dir.write("basBroken.bas", std::string("Attribute VB_Name = \"basBroken\"\r\n\0\0", 36));
    EXPECT_EQ(run({"run", "If Then", "--project", project, "--at", "basMain:12"}), kExitProject);
    EXPECT_NE(err.str().find("basBroken.bas: is not Basic source"), std::string::npos) << err.str();
    EXPECT_EQ(touched(), "");
}

TEST_F(CliTool, UsageErrorsAreExitOne) {
    EXPECT_EQ(run({"run", "If Then", "--project", project}), kExitUsage);
    EXPECT_EQ(err.str(),
              "quillet: run needs --at MODULE:LINE[:COL] or --select MODULE:L1:C1-L2:C2\nTry 'quillet run --help'.\n");
    EXPECT_EQ(run({"bogus"}), kExitUsage);
    EXPECT_EQ(err.str(), "quillet: unknown command \"bogus\"\nTry 'quillet --help'.\n");
    EXPECT_EQ(touched(), "");
}

TEST_F(CliTool, UnknownQuickCommandIsAUsageErrorThatListsTheKnownWords) {
    EXPECT_EQ(run({"run", "Nope", "--project", project, "--at", "basMain:1"}), kExitUsage);
    const std::string message = err.str();
    EXPECT_EQ(message.rfind("quillet: unknown quick command \"Nope\"; the known ones are \"Dim\", \"Const\"", 0), 0u)
        << message;
    EXPECT_NE(message.find("\"If Then Else\""), std::string::npos);
    EXPECT_NE(message.find("\"Debug.Print \""), std::string::npos);
    EXPECT_NE(message.find("Try 'quillet run --help'."), std::string::npos);
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(touched(), "");
    // A known word with its trailing blank dropped is not the same word.
    EXPECT_EQ(run({"run", "Debug.Print", "--project", project, "--at", "basMain:1"}), kExitUsage);
    EXPECT_EQ(touched(), "");
}

// A builder that is there opens and then says that it needs play (see the Property Builder's tool
// tests); the words whose dialogs are not built yet say so before the project is read.
TEST_F(CliTool, TheEnumAndTypeCommandsOpenTheirBuilderAndWriteNothing) {
    EXPECT_EQ(run({"run", "Type", "--project", project, "--at", "basMain:12:5"}), kExitUsage);
    EXPECT_EQ(err.str(), "quillet: Type opens the dialog frmEnumOrType (New User-Defined Data Type); drive it with a UI "
                         "script: quillet play SCRIPT\n");
    EXPECT_EQ(touched(), "");
}

TEST_F(CliTool, AQuickCommandWhoseDialogIsNotBuiltYetSaysSoAndIsExitOne) {
    for (const char* word : {"With", "Select Case", "Debug.Print "}) {
        EXPECT_EQ(run({"run", word, "String", "--project", project, "--at", "basMain:12:5"}), kExitUsage) << word;
        EXPECT_EQ(err.str(), std::string("quillet: the quick command \"") + word +
                                 "\" asks its question in a dialog that this version does not have yet; "
                                 "nothing was changed\nTry 'quillet run --help'.\n");
    }
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(touched(), "");
    // A command whose one question is an input box takes its answer from --answer.
    EXPECT_EQ(run({"run", "If Then Else If", "--project", project, "--at", "basMain:12:5", "--answer", "1"}), kExitOk)
        << err.str();
    EXPECT_EQ(touched(), "basMain.bas ");
}

TEST_F(CliTool, HelpAndVersion) {
    EXPECT_EQ(run({"--help"}), kExitOk);
    EXPECT_NE(out.str().find("Usage: quillet COMMAND"), std::string::npos);
    EXPECT_EQ(run({}), kExitOk);
    EXPECT_NE(out.str().find("Usage: quillet COMMAND"), std::string::npos);
    EXPECT_EQ(run({"run", "--help"}), kExitOk);
    EXPECT_NE(out.str().find("--at MODULE:LINE[:COL]"), std::string::npos);
    EXPECT_EQ(run({"help", "list"}), kExitOk);
    EXPECT_NE(out.str().find("Usage: quillet list"), std::string::npos);
    EXPECT_EQ(run({"--version"}), kExitOk);
    EXPECT_EQ(out.str().rfind("quillet ", 0), 0u);
}

TEST_F(CliTool, ListShowsModulesTypesAndLines) {
    ASSERT_EQ(run({"list", "--project", project}), kExitOk) << err.str();
    EXPECT_EQ(out.str(),
              "Name          Type          Lines\n"
              "ThisWorkbook  Document      5\n"
              "basMain       Module        47\n"
              "basText       Module        22\n"
              "clsInvoice    Class         51\n"
              "frmInvoice    UserForm      19\n");
}

}  // namespace
}  // namespace quillet::cli
