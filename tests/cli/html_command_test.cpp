// quillet html: a module as a page of coloured HTML, to standard output or a file, in the
// template of the data folder when there is one.

#include <gtest/gtest.h>

#include <sstream>

#include "cli/tool.h"
#include "hosts/files/temp_dir.h"

namespace quillet::cli {
namespace {

using hosts::files::testing::TempDir;

class HtmlCommand : public ::testing::Test {
protected:
    HtmlCommand() {
        project.write("basText.bas", "Attribute VB_Name = \"basText\"\r\nOption Explicit\r\n' caf\xE9 < bar\r\n");
    }
    int run(std::vector<std::string> args) {
        out.str("");
        err.str("");
        args.insert(args.begin(), "html");
        args.insert(args.end(), {"--project", project.path().string(), "--data", data.path().string()});
        return runTool(args, out, err);
    }

    TempDir project, data;
    std::ostringstream out, err;
};

TEST_F(HtmlCommand, WritesTheDefaultPageInUtf8ToStandardOutput) {
    ASSERT_EQ(run({"--module", "basText"}), kExitOk) << err.str();
    EXPECT_EQ(out.str(),
              "<html><head><META HTTP-EQUIV='Content-Type' CONTENT='text/html; charset=utf-8'><style>body "
              "{font-family:'Courier New';font-size:'10pt';}</style><title>basText</title></head><body>"
              "<font color=#000080>Option</font>&nbsp;<font color=#000080>Explicit</font><br>"
              "<font color=#008000>'&nbsp;caf\xC3\xA9&nbsp;&lt;&nbsp;bar</font><br><br>\r\n</body></html>");
    EXPECT_EQ(err.str(), "");
}

TEST_F(HtmlCommand, TheTemplateOfTheDataFolderIsThePage) {
    data.write("vb2htmltemplate.htm", "<h1>[title]</h1>[code]<p>[modulename]</p>");
    ASSERT_EQ(run({"--module", "basText", "--output", (project / "page.htm").string()}), kExitOk) << err.str();
    EXPECT_EQ(out.str(), "");
    std::string page = project.read("page.htm");
    EXPECT_EQ(page.substr(0, 48), "<h1>basText</h1><font color=#000080>Option</font");
    EXPECT_EQ(page.substr(page.size() - 16), "\r\n<p>basText</p>");
}

TEST_F(HtmlCommand, AnUnknownModuleIsAClearError) {
    EXPECT_EQ(run({"--module", "basNone"}), kExitProject);
    EXPECT_EQ(err.str(), "quillet: the project has no module named basNone\n");
    EXPECT_EQ(out.str(), "");
}

TEST_F(HtmlCommand, TheModuleIsRequired) {
    EXPECT_EQ(run({}), kExitUsage);
    EXPECT_NE(err.str().find("html needs --module NAME"), std::string::npos) << err.str();
}

TEST_F(HtmlCommand, AnOutputThatCannotBeWrittenIsAClearError) {
    EXPECT_EQ(run({"--module", "basText", "--output", (project / "missing" / "page.htm").string()}), kExitProject);
    EXPECT_NE(err.str().find("quillet: "), std::string::npos);
}

}  // namespace
}  // namespace quillet::cli
