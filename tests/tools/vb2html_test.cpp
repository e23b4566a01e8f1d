// Code to HTML: the colouring of VB2HTML, the page around it, and the page written and opened.

#include "tools/vb2html.h"

#include <gtest/gtest.h>

#include "basic/unicode.h"
#include "hosts/files/temp_dir.h"
#include "tools/html_page.h"
#include "tools_fixture.h"

namespace quillet::testing {
namespace {

using tools::VB2HTML;

std::string html(const Str& text) { return basic::toUtf8(VB2HTML(text)); }

TEST(VB2HTML, AWholeModuleComesOutAsTheGoldenPageShows) {
    Str module = basic::fromUtf8(goldenBytes("html_module.bas"));
    tools::HtmlPageFields fields{u"basInvoices", u"", u"windows-1252", VB2HTML(module)};
    EXPECT_EQ(tools::HtmlPageBytes(tools::HtmlPageFill(tools::kDefaultHtmlPage, fields), fields.charset),
              goldenBytes("html_module.htm"));
}

TEST(VB2HTML, IntTurnsBlackAndIntegerDarkBlue) {
    EXPECT_EQ(html(u"Int Integer"), "<font color=#000000>Int</font>&nbsp;<font color=#000080>Integer</font><br>\r\n");
}

TEST(VB2HTML, AWordKeepsTheFormItHasInTheText) {
    EXPECT_EQ(html(u"DIM x"), "<font color=#000080>DIM</font>&nbsp;x<br>\r\n");
}

TEST(VB2HTML, HashIfIsAKeywordButHashEndIfIsNeverFoundWhole) {
    EXPECT_EQ(html(u"#If A Then\r\n#End If"),
              "<font color=#000080>#If</font>&nbsp;A&nbsp;<font color=#000080>Then</font><br>"
              "#End&nbsp;<font color=#000080>If</font><br>\r\n");
}

TEST(VB2HTML, AComparisonCanNeverOpenATag) {
    EXPECT_EQ(html(u"x < 1"), "x&nbsp;&lt;&nbsp;1<br>\r\n");
    EXPECT_EQ(html(u"a<>b & c"), "a&lt;&gt;b&nbsp;&amp;&nbsp;c<br>\r\n");
}

TEST(VB2HTML, ACommentOnTheLastLineWithoutALineEndClosesProperly) {
    EXPECT_EQ(html(u"x = 1 ' done"), "x&nbsp;=&nbsp;1&nbsp;<font color=#008000>'&nbsp;done</font><br><br>\r\n");
}

TEST(VB2HTML, ACommentTakesItsLineEndWithIt) {
    EXPECT_EQ(html(u"' a\r\nb"), "<font color=#008000>'&nbsp;a</font><br>b<br>\r\n");
}

TEST(VB2HTML, AnApostropheInsideAStringStaysInTheString) {
    EXPECT_EQ(html(u"s = \"it's <b>\""), "s&nbsp;=&nbsp;\"it's&nbsp;&lt;b&gt;\"<br>\r\n");
}

TEST(VB2HTML, RemFollowedByTextIsACommentAndRemoveIsAFunction) {
    EXPECT_EQ(html(u"Rem see below\r\nc.Remove 1"),
              "<font color=#008000>Rem&nbsp;see&nbsp;below</font><br>c.<font color=#000000>Remove</font>&nbsp;1<br>\r\n");
}

TEST(VB2HTML, LineEndsBecomeBreaksAndALoneLineFeedNothing) {
    EXPECT_EQ(html(u"a\r\nb\rc\nd"), "a<br>b<br>cd<br>\r\n");
    EXPECT_EQ(html(u""), "<br>\r\n");
}

TEST(HtmlPage, TheDefaultPageIsCourierNewAtTenPoints) {
    Str page = tools::HtmlPageFill(tools::kDefaultHtmlPage, {u"basMain", u"", u"", u"x<br>\r\n"});
    EXPECT_EQ(page,
              u"<html><head><META HTTP-EQUIV='Content-Type' CONTENT='text/html; charset=windows-1252'><style>body "
              u"{font-family:'Courier New';font-size:'10pt';}</style><title>basMain</title></head><body>x<br>\r\n"
              u"</body></html>");
}

TEST(HtmlPage, ATemplateWithCodeTwiceGetsTheCodeTwice) {
    Str page = tools::HtmlPageFill(u"[code]|[code]|[title]|[modulename]|[procedurename]|[charset]|[CODE]",
                                   {u"basMain", u"Total", u"utf-8", u"C"});
    EXPECT_EQ(page, u"C|C|basMain.Total|basMain|Total|utf-8|[CODE]");
}

TEST(HtmlPage, BytesInWindows1252WithReferencesForWhatItLacks) {
    EXPECT_EQ(tools::HtmlPageBytes(u"é€Ж😀", u"windows-1252"), "\xE9\x80&#1046;&#128512;");
    EXPECT_EQ(tools::HtmlPageBytes(u"éЖ", u"UTF-8"), "\xC3\xA9\xD0\x96");
}

class WriteHtmlPage : public ToolsFixture {
protected:
    WriteHtmlPage() {
        std::filesystem::create_directories(drive / "Quillet");
        std::filesystem::create_directories(drive / "Temp");
        ctx->IniSettings->Files.mapDrive(u'C', drive.path());
    }
    hosts::files::testing::TempDir drive;
};

TEST_F(WriteHtmlPage, WithoutATemplateTheDefaultPageGoesToTheTemporaryFolderAndOpens) {
    auto path = tools::WriteHtmlPage(*ctx, u"basMain", u"Total", u"x<br>\r\n");
    ASSERT_TRUE(path);
    EXPECT_EQ(*path, u"C:\\Temp\\vb2html.htm");
    std::string page = drive.read("Temp/vb2html.htm");
    EXPECT_NE(page.find("<title>basMain.Total</title>"), std::string::npos) << page;
    EXPECT_NE(page.find("font-family:'Courier New';font-size:'10pt';"), std::string::npos);
    EXPECT_EQ(platform->opened(), std::vector<Str>{u"C:\\Temp\\vb2html.htm"});
    EXPECT_TRUE(reports.empty());
}

TEST_F(WriteHtmlPage, TheTemplateBesideTheAddinIsUsedAndAnOldPageReplaced) {
    drive.write("Quillet/vb2htmltemplate.htm", "<h1>[title] \xE9</h1>[code]");
    drive.write("Temp/vb2html.htm", "old page, much longer than the new one");
    ASSERT_TRUE(tools::WriteHtmlPage(*ctx, u"basMain", u"", u"x"));
    EXPECT_EQ(drive.read("Temp/vb2html.htm"), "<h1>basMain \xE9</h1>x");
}

TEST_F(WriteHtmlPage, AFolderThatCannotBeWrittenIsReportedAndNothingOpens) {
    platform->setTempFolder(u"C:\\Missing\\");
    EXPECT_FALSE(tools::WriteHtmlPage(*ctx, u"basMain", u"", u"x"));
    EXPECT_EQ(reports.size(), 1u);
    EXPECT_TRUE(platform->opened().empty());
}

}  // namespace
}  // namespace quillet::testing
