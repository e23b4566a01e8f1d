// The UI script language: parsing, each command on the test dialogs, and the messages of a bad
// script or a failed expectation.

#include "dialogs/ui_player.h"

#include <gtest/gtest.h>

#include <map>

#include "basic/unicode.h"
#include "platform/scripted_platform.h"
#include "test_forms.h"

namespace quillet::dialogs {
namespace {

class DialogUiPlayer : public ::testing::Test {
protected:
    DialogUiPlayer() {
        testing::registerTestForm(forms, &result);
        hooks.answer = [this](const Str& answer) { platform->queueAnswer(answer); };
        hooks.moduleText = [this](const Str& module) -> std::optional<Str> {
            auto it = modules.find(module);
            if (it == modules.end()) return std::nullopt;
            return it->second;
        };
    }
    UiScriptOutcome play(const std::string& script) { return playUiScript(basic::u16(script), forms, hooks); }
    std::string describe(const UiScriptOutcome& outcome) { return basic::toUtf8(outcome.describe()); }

    std::shared_ptr<platform::ScriptedPlatform> platform = std::make_shared<platform::ScriptedPlatform>();
    FormStack forms{platform};
    UiScriptHooks hooks;
    std::map<Str, Str> modules;
    Str result;
};

TEST_F(DialogUiPlayer, ParsesEveryCommand) {
    auto commands = parseUiScript(
        u"# a comment\r\n\r\n  open frmTest a b\r\nset txtName  Foo Bar \r\nselect cboModule #2\n"
        u"select lstArguments a As Long\ncheck chkHeader 1\nclick cmdOK\nanswer My Module\n"
        u"expect txtName text\nexpect cboModule item 1 clsOrder\nexpect cboModule itemdata 1 2\n"
        u"expect cmdOK enabled TRUE\nexpect-form frmTest closed\nexpect-code basMain\nLine 1\n\n    # kept\nend-code\n");
    ASSERT_EQ(commands.size(), 13u);
    EXPECT_EQ(commands[0].line, 3);
    EXPECT_EQ(commands[0].verb, UiVerb::Open);
    EXPECT_EQ(commands[0].args, (std::vector<Str>{u"a", u"b"}));
    EXPECT_EQ(commands[1].text, u" Foo Bar ");
    EXPECT_TRUE(commands[2].byIndex);
    EXPECT_EQ(commands[2].number, 2);
    EXPECT_EQ(commands[3].text, u"a As Long");
    EXPECT_EQ(commands[4].number, 1);
    EXPECT_EQ(commands[6].text, u"My Module");
    EXPECT_EQ(commands[7].property, UiProperty::Text);
    EXPECT_EQ(commands[7].text, u"");
    EXPECT_EQ(commands[8].number, 1);
    EXPECT_EQ(commands[8].text, u"clsOrder");
    EXPECT_EQ(commands[9].expected, 2);
    EXPECT_TRUE(commands[10].flag);
    EXPECT_FALSE(commands[11].flag);
    EXPECT_EQ(commands[12].line, 15);
    EXPECT_EQ(commands[12].text, u"Line 1\r\n\r\n    # kept");
}

TEST_F(DialogUiPlayer, BadLinesAreReportedWithTheirNumber) {
    const std::pair<const char*, const char*> cases[] = {
        {"frobnicate x", "line 2: unknown command 'frobnicate'"},
        {"set", "line 2: set: the control's name missing"},
        {"select cboModule", "line 2: select: the entry missing (its text, or #N for an index)"},
        {"select cboModule #x", "line 2: select: '#x' is not an index (#0, #1 ... or #-1)"},
        {"check chkHeader 3", "line 2: check: the value must be 0, 1 or 2"},
        {"click cmdOK now", "line 2: click: too many arguments"},
        {"expect txtName colour red", "line 2: expect: unknown property 'colour'"},
        {"expect cmdOK enabled yes", "line 2: expect: the value must be true or false"},
        {"expect cboModule count many", "line 2: expect: the value must be a whole number"},
        {"expect cboModule item", "line 2: expect: the entry's index missing"},
        {"expect-form frmTest shut", "line 2: expect-form: the state must be open or closed"},
        {"expect-code basMain\nSub A()", "line 2: expect-code: no end-code line closes the expected text"},
    };
    for (const auto& [line, message] : cases) {
        auto outcome = play(std::string("open frmTest\n") + line + "\n");
        EXPECT_EQ(outcome.status, UiScriptOutcome::Status::Invalid) << line;
        EXPECT_EQ(describe(outcome), message);
        EXPECT_EQ(forms.Top(), nullptr) << "nothing runs: " << line;
    }
}

TEST_F(DialogUiPlayer, DrivesADialogToItsResult) {
    auto outcome = play(R"(# name, module, an argument through the child dialog, OK
open frmTest
expect frmTest caption Test Builder
expect cmdOK enabled false
set txtName Foo
expect cmdOK enabled true
select cboModule clsOrder
expect lblStatus caption Module clsOrder
expect cboModule listindex 1
select cboModule #0
expect cboModule text basMain
check chkHeader 1
expect chkHeader value 1
check optByVal(1) 1
expect optByVal(0) value 0
expect cmdNewArg tooltip Add a new argument
click cmdNewArg
expect-form frmChild open
set txtArg a As Long
click cmdOK
expect-form frmChild closed
expect lstArguments count 1
expect lstArguments item 0 a As Long
click cmdOK
expect-form frmTest closed
)");
    ASSERT_TRUE(outcome.passed()) << describe(outcome);
    EXPECT_EQ(result, u"Foo");
}

TEST_F(DialogUiPlayer, TheChildsOKGoesBackToTheParent) {
    auto outcome = play("open frmTest\nclick cmdNewArg\nset txtArg x\nclick cmdOK\nexpect-form frmChild closed\n"
                        "expect txtName text\nexpect lstArguments item 0 x\n");
    EXPECT_TRUE(outcome.passed()) << describe(outcome);
}

TEST_F(DialogUiPlayer, AnswersReachTheMessageBoxes) {
    auto outcome = play("open frmTest\nclick cmdNewArg\nset txtArg a\nclick cmdOK\nclick cmdNewArg\nset txtArg b\n"
                        "click cmdOK\nselect lstArguments a\nanswer no\nclick cmdDelArg\nexpect lstArguments count 2\n"
                        "answer yes\nclick cmdDelArg\nexpect lstArguments count 1\nexpect lstArguments item 0 b\n"
                        "expect cmdDelArg enabled false\n");
    EXPECT_TRUE(outcome.passed()) << describe(outcome);
}

TEST_F(DialogUiPlayer, AFailedExpectationSaysWhatDiffers) {
    const std::pair<const char*, const char*> cases[] = {
        {"expect txtName text Bar", "line 3: expect txtName: expected \"Bar\", found \"Foo\""},
        {"expect cmdOK enabled false", "line 3: expect cmdOK: expected false, found true"},
        {"expect cboModule count 2", "line 3: expect cboModule: expected 2, found 3"},
        {"expect cboModule itemdata 1 0", "line 3: expect cboModule: expected 0, found 2"},
        {"expect cboModule item 7 x", "line 3: expect cboModule: no entry 7: the list has 3"},
        {"expect lblStatus visible false", "line 3: expect lblStatus: expected false, found true"},
        {"expect frmTest caption Other", "line 3: expect frmTest: expected \"Other\", found \"Test Builder\""},
        {"expect frmTest count 1", "line 3: expect frmTest: a form has only caption and visible"},
        {"expect txtOther text", "line 3: expect txtOther: frmTest has no control 'txtOther'"},
        {"expect-form frmTest closed", "line 3: expect-form frmTest: the dialog is open"},
        {"expect-form frmChild open", "line 3: expect-form frmChild: the dialog is not open"},
    };
    for (const auto& [line, message] : cases) {
        auto outcome = play(std::string("open frmTest\nset txtName Foo\n") + line + "\nclick cmdCancel\n");
        EXPECT_EQ(outcome.status, UiScriptOutcome::Status::Failed) << line;
        EXPECT_EQ(describe(outcome), message);
        forms.Top()->Unload();
    }
}

TEST_F(DialogUiPlayer, CommandsThatCannotActFail) {
    const std::pair<const char*, const char*> cases[] = {
        {"open frmOther", "line 1: open frmOther: no dialog of that name can be opened"},
        {"click cmdOK", "line 1: click cmdOK: no dialog is open"},
        {"open frmTest\nclick cmdOK", "line 2: click cmdOK: the control is disabled"},
        {"open frmTest\nset chkHeader x", "line 2: set chkHeader: the control is not a text box or combo box"},
        {"open frmTest\ncheck txtName 1", "line 2: check txtName: the control is not a check box or option button"},
        {"open frmTest\nselect txtName x", "line 2: select txtName: the control is not a list"},
        {"open frmTest\nselect cboModule basOther",
         "line 2: select cboModule: no entry \"basOther\" in (\"basMain\", \"clsOrder\", \"<New Module>\")"},
        {"open frmTest\nselect lstArguments #0", "line 2: select lstArguments: no entry #0: the list has 0"},
        {"open frmTest\nselect lstArguments x", "line 2: select lstArguments: no entry \"x\" in an empty list"},
    };
    for (const auto& [script, message] : cases) {
        auto outcome = play(script);
        EXPECT_EQ(outcome.status, UiScriptOutcome::Status::Failed) << script;
        EXPECT_EQ(describe(outcome), message);
        while (forms.Top()) forms.Top()->Unload();
    }
}

TEST_F(DialogUiPlayer, HiddenControlsRefuseAndSelectIgnoresCaseWhenNoEntryMatchesExactly) {
    auto outcome = play("open frmTest\nselect cboModule CLSORDER\nexpect cboModule listindex 1\n");
    EXPECT_TRUE(outcome.passed()) << describe(outcome);
    forms.Top()->Controls(u"chkHeader").Visible = false;
    outcome = play("check chkHeader 1\n");
    EXPECT_EQ(describe(outcome), "line 1: check chkHeader: the control is hidden");
}

TEST_F(DialogUiPlayer, ExpectCodeComparesTheModuleByteForByte) {
    modules[u"basMain"] = u"Option Explicit\r\n\r\nPublic Sub Foo()\r\n    \r\nEnd Sub";
    EXPECT_TRUE(play("expect-code basMain\nOption Explicit\n\nPublic Sub Foo()\n    \nEnd Sub\nend-code\n").passed());
    EXPECT_EQ(describe(play("\nexpect-code basMain\nOption Explicit\n\nPublic Sub Foo()\n\nEnd Sub\nend-code\n")),
              "line 2: expect-code basMain: line 4 of the module: expected \"\", found \"    \"");
    EXPECT_EQ(describe(play("expect-code basMain\nOption Explicit\nend-code\n")),
              "line 1: expect-code basMain: the module has 5 lines, expected 1");
    EXPECT_EQ(describe(play("expect-code basOther\nend-code\n")), "line 1: expect-code basOther: no module of that name");
}

TEST_F(DialogUiPlayer, ErrorsOfTheDialogStopTheScript) {
    forms.Register(u"frmBroken", [this](const std::vector<Str>&) {
        auto& form = forms.Adopt(std::make_unique<Form>(u"frmBroken"));
        form.AddControl(u"cmdGo", ControlKind::CommandButton);
        form.On(u"cmdGo_Click", [] { throw basic::VbError::standard(5); });
        form.Show(vbModal);
    });
    EXPECT_EQ(describe(play("open frmBroken\nclick cmdGo\nexpect-form frmBroken closed\n")),
              "line 2: click cmdGo: error 5: Invalid procedure call or argument");
}

TEST_F(DialogUiPlayer, AnEmptyScriptPasses) {
    EXPECT_TRUE(play("").passed());
    EXPECT_TRUE(play("# nothing\n\n").passed());
}

}  // namespace
}  // namespace quillet::dialogs
