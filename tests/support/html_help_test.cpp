// Help linkage: topics open only when the help file is there, the open help windows are
// remembered as "<id>_<handle>" and closed from the last, and a dialog's help button and F1 reach
// its topic after BeforeHelp.

#include "support/cls_html_help.h"

#include <gtest/gtest.h>

#include "../builders/builder_fixture.h"
#include "builders/frm_argument.h"
#include "builders/frm_procedure.h"
#include "platform/scripted_platform.h"

namespace quillet::support {
namespace {

using platform::HtmlHelpCommand;

constexpr char16_t kFile[] = u"C:\\Quillet\\Quillet.chm";

class HtmlHelp : public ::testing::Test {
protected:
    HtmlHelp() { help.SetFile(kFile); }
    void fileThere() { platform.addFile(kFile); }

    platform::ScriptedPlatform platform;
    clsHtmlHelp help{platform};
};

TEST_F(HtmlHelp, WithoutTheFileNothingOpens) {
    EXPECT_EQ(help.OpenContext(77, 1100), 0);
    EXPECT_EQ(help.OpenTOC(77), 0);
    EXPECT_EQ(help.OpenTopic(77, u"html/intro.htm"), 0);
    EXPECT_TRUE(platform.helpCalls().empty());
    EXPECT_TRUE(help.OpenWindows().empty());
}

TEST_F(HtmlHelp, AContextOpensItsTopicAndIsRemembered) {
    fileThere();
    EXPECT_EQ(help.OpenContext(77, 1100), 9001);
    ASSERT_EQ(platform.helpCalls().size(), 1u);
    const auto& call = platform.helpCalls()[0];
    EXPECT_EQ(call.window, 77);
    EXPECT_EQ(call.file, kFile);
    EXPECT_EQ(call.command, HtmlHelpCommand::HelpContext);
    EXPECT_EQ(call.data, 1100);
    EXPECT_EQ(help.OpenWindows(), std::vector<Str>{u"1100_9001"});
}

TEST_F(HtmlHelp, AnIdBelowOneOpensNothing) {
    fileThere();
    EXPECT_EQ(help.OpenContext(77, 0), 0);
    EXPECT_EQ(help.OpenContext(77, -5), 0);
    EXPECT_TRUE(platform.helpCalls().empty());
}

TEST_F(HtmlHelp, TheNavigationPanesOpenButAreNotRemembered) {
    fileThere();
    help.OpenTOC(1);
    help.OpenIndex(1);
    help.OpenSearch(1);
    help.OpenTopic(1, u"html/intro.htm");
    ASSERT_EQ(platform.helpCalls().size(), 4u);
    EXPECT_EQ(platform.helpCalls()[0].command, HtmlHelpCommand::DisplayToc);
    EXPECT_EQ(platform.helpCalls()[1].command, HtmlHelpCommand::DisplayIndex);
    EXPECT_EQ(platform.helpCalls()[2].command, HtmlHelpCommand::DisplaySearch);
    EXPECT_EQ(platform.helpCalls()[3].command, HtmlHelpCommand::DisplayTopic);
    EXPECT_EQ(platform.helpCalls()[3].file, Str(kFile) + u"::/html/intro.htm");
    EXPECT_TRUE(help.OpenWindows().empty());
}

TEST_F(HtmlHelp, ClosingOneWindowLeavesTheOthers) {
    fileThere();
    help.OpenContext(1, 1100);  // 9001
    help.OpenContext(1, 1110);  // 9002
    help.OpenContext(1, 1100);  // 9003
    help.CloseHelpWindows(9002);
    EXPECT_EQ(platform.closedHelpWindows(), std::vector<long long>{9002});
    EXPECT_EQ(help.OpenWindows(), (std::vector<Str>{u"1100_9001", u"1100_9003"}));
}

TEST_F(HtmlHelp, ClosingWithoutAWindowClosesAllFromTheLast) {
    fileThere();
    help.OpenContext(1, 1100);
    help.OpenContext(1, 1110);
    help.CloseHelpWindows();
    EXPECT_EQ(platform.closedHelpWindows(), (std::vector<long long>{9002, 9001}));
    EXPECT_TRUE(help.OpenWindows().empty());
}

TEST_F(HtmlHelp, CloseAllAsksHtmlHelpToCloseEverything) {
    fileThere();
    help.OpenContext(1, 1100);
    help.CloseAll();
    EXPECT_EQ(platform.helpCalls().back().command, HtmlHelpCommand::CloseAll);
    EXPECT_TRUE(help.OpenWindows().empty());
}

class HtmlHelpForForm : public HtmlHelp {
protected:
    HtmlHelpForForm() {
        form.AddControl(u"cmdHelp", dialogs::ControlKind::CommandButton);
        form.HelpContextID = 1234;
        form.hWnd = 55;
        fileThere();
    }
    dialogs::Form form{u"frmSample"};
    clsHtmlHelpForForm hook;
};

TEST_F(HtmlHelpForForm, TheButtonOpensTheFormsTopic) {
    hook.init(form, form.Controls(u"cmdHelp"), -1, help);
    form.Controls(u"cmdHelp").Click();
    ASSERT_EQ(platform.helpCalls().size(), 1u);
    EXPECT_EQ(platform.helpCalls()[0].data, 1234);
    EXPECT_EQ(platform.helpCalls()[0].window, 55);
}

TEST_F(HtmlHelpForForm, F1OpensTheTopicGivenAtInit) {
    hook.init(form, form.Controls(u"cmdHelp"), 42, help);
    ASSERT_TRUE(form.OnHelpKey);
    form.OnHelpKey();
    ASSERT_EQ(platform.helpCalls().size(), 1u);
    EXPECT_EQ(platform.helpCalls()[0].data, 42);
}

TEST_F(HtmlHelpForForm, BeforeHelpCanChangeTheTopicOrCancel) {
    hook.init(form, form.Controls(u"cmdHelp"), -1, help);
    bool cancelNext = false;
    hook.BeforeHelp = [&](dialogs::Form& asked, long& id, bool& cancel) {
        EXPECT_EQ(&asked, &form);
        id = 777;
        cancel = cancelNext;
    };
    hook.CustomOpenHelp();
    cancelNext = true;
    hook.CustomOpenHelp();
    ASSERT_EQ(platform.helpCalls().size(), 1u);
    EXPECT_EQ(platform.helpCalls()[0].data, 777);
}

TEST_F(HtmlHelpForForm, TerminateClosesOnlyTheFormsHelpWindows) {
    help.OpenContext(1, 99);  // 9001, another form's
    hook.init(form, form.Controls(u"cmdHelp"), -1, help);
    hook.OpenHelpEx(-1);  // 9002
    hook.Terminate();
    EXPECT_EQ(platform.closedHelpWindows(), std::vector<long long>{9002});
    EXPECT_EQ(help.OpenWindows(), std::vector<Str>{u"99_9001"});
}

class BuilderHelp : public testing::BuilderFixture {};

TEST_F(BuilderHelp, WithoutTheHelpFileTheButtonAndF1DoNothing) {
    ASSERT_TRUE(ctx->Forms->Open(u"frmProcedure"));
    auto& form = top<builders::frmProcedure>();
    ctx->Forms->Raise([&] { form.Controls(u"cmdHelp").Click(); });
    ctx->Forms->Raise([&] { form.OnHelpKey(); });
    EXPECT_TRUE(platform->helpCalls().empty());
    EXPECT_EQ(ctx->Forms->Top(), &form);
}

TEST_F(BuilderHelp, EachBuilderOpensItsOwnTopicFromTheAddinsFolder) {
    platform->addFile(platform->AddinFolder() + u"Quillet.chm");
    ASSERT_TRUE(ctx->Forms->Open(u"frmProcedure"));
    auto& procedure = top<builders::frmProcedure>();
    ctx->Forms->Raise([&] { procedure.Controls(u"cmdHelp").Click(); });
    ctx->Forms->Raise([&] { procedure.Controls(u"cmdNewArg").Click(); });
    auto& argument = top<builders::frmArgument>();
    ctx->Forms->Raise([&] { argument.OnHelpKey(); });
    ASSERT_EQ(platform->helpCalls().size(), 2u);
    EXPECT_EQ(platform->helpCalls()[0].file, platform->AddinFolder() + u"Quillet.chm");
    EXPECT_EQ(platform->helpCalls()[0].data, help_topics::ProcedureBuilder);
    EXPECT_EQ(platform->helpCalls()[1].data, help_topics::ArgumentBuilder);
    EXPECT_NE(help_topics::ProcedureBuilder, help_topics::ArgumentBuilder);
}

TEST_F(BuilderHelp, ClosingABuilderClosesTheHelpItOpened) {
    platform->addFile(platform->AddinFolder() + u"Quillet.chm");
    ASSERT_TRUE(ctx->Forms->Open(u"frmProcedure"));
    auto& procedure = top<builders::frmProcedure>();
    ctx->Forms->Raise([&] { procedure.Controls(u"cmdHelp").Click(); });
    ctx->Forms->Raise([&] { procedure.Controls(u"cmdCancel").Click(); });
    EXPECT_EQ(platform->closedHelpWindows(), std::vector<long long>{9001});
}

}  // namespace
}  // namespace quillet::support
