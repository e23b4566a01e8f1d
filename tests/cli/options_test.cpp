#include "cli/options.h"

#include <gtest/gtest.h>

namespace quillet::cli {
namespace {

ToolOptions parse(std::vector<std::string> args) { return parseArguments(args); }

TEST(CliOptions, RunWithCaretAnswersAndDryRun) {
    ToolOptions options = parse({"run", "If Then Else If", "--project", "examples/Invoicing", "--at=basMain:12:5",
                                 "--answer", "2", "--answer", "caf\xC3\xA9", "--dry-run", "--settings", "cfg"});
    EXPECT_EQ(options.verb, Verb::Run);
    EXPECT_EQ(options.command, u"If Then Else If");
    EXPECT_EQ(options.type, u"");
    EXPECT_EQ(*options.project, "examples/Invoicing");
    EXPECT_EQ(options.at->module, u"basMain");
    EXPECT_EQ(options.at->line, 12);
    EXPECT_EQ(options.at->column, 5);
    EXPECT_EQ(options.answers, (std::vector<Str>{u"2", u"caf\u00E9"}));
    EXPECT_TRUE(options.dryRun);
    EXPECT_EQ(*options.settings, "cfg");
}

TEST(CliOptions, TypeSelectionAndDefaultColumn) {
    ToolOptions options = parse({"run", "ErrorHandling", "Long", "--project", "p", "--select", "m:1:2-3:4"});
    EXPECT_EQ(options.type, u"Long");
    EXPECT_EQ(options.select->startLine, 1);
    EXPECT_EQ(options.select->startColumn, 2);
    EXPECT_EQ(options.select->endLine, 3);
    EXPECT_EQ(options.select->endColumn, 4);
    EXPECT_EQ(parseLocation("m:7").column, 1);
}

TEST(CliOptions, HelpForms) {
    EXPECT_TRUE(parse({}).help || parse({}).verb == Verb::Help);
    EXPECT_TRUE(parse({"--help"}).help);
    ToolOptions run = parse({"run", "--help"});
    EXPECT_TRUE(run.help);
    EXPECT_EQ(run.verb, Verb::Run);
    EXPECT_EQ(parse({"help", "list"}).verb, Verb::List);
}

void expectUsage(std::vector<std::string> args, const std::string& message) {
    try {
        parseArguments(args);
        FAIL() << "no usage error: " << message;
    } catch (const UsageError& error) {
        EXPECT_EQ(std::string(error.what()), message);
    }
}

TEST(CliOptions, UsageErrors) {
    expectUsage({"frobnicate"}, "unknown command \"frobnicate\"");
    expectUsage({"run", "--project", "p", "--at", "m:1"}, "run needs a COMMAND (for example \"If Then\")");
    expectUsage({"run", "If Then", "--at", "m:1"}, "run needs --project PATH");
    expectUsage({"run", "If Then", "--project", "p"}, "run needs --at MODULE:LINE[:COL] or --select MODULE:L1:C1-L2:C2");
    expectUsage({"run", "If Then", "--project", "p", "--at", "m:1", "--select", "m:1:1-1:2"}, "give --at or --select, not both");
    expectUsage({"run", "a", "b", "c", "--project", "p", "--at", "m:1"},
                "run takes a COMMAND and an optional TYPE; unexpected \"c\"");
    expectUsage({"run", "If Then", "--project"}, "--project needs a value");
    expectUsage({"run", "If Then", "--bogus"}, "unknown option --bogus");
    expectUsage({"run", "If Then", "--dry-run=yes"}, "--dry-run takes no value");
    expectUsage({"run", "If Then", "--at", "basMain"}, "expected MODULE:LINE[:COL], got \"basMain\"");
    expectUsage({"run", "If Then", "--at", ":3"}, "expected MODULE:LINE[:COL], got \":3\"");
    expectUsage({"run", "If Then", "--at", "m:0"}, "bad line in \"m:0\": \"0\" is not a number of 1 or more");
    expectUsage({"run", "If Then", "--at", "m:2:x"}, "bad column in \"m:2:x\": \"x\" is not a number of 1 or more");
    expectUsage({"run", "If Then", "--at", "m:1:2:3"}, "expected MODULE:LINE[:COL], got \"m:1:2:3\"");
    expectUsage({"run", "If Then", "--select", "m:3:1-2:1"}, "the selection \"m:3:1-2:1\" ends before it starts");
    expectUsage({"run", "If Then", "--select", "m:3:1"}, "expected MODULE:L1:C1-L2:C2, got \"m:3:1\"");
    expectUsage({"run", "If Then", "--code-page", "437"}, "unknown code page \"437\" (use 1252 or 65001)");
    expectUsage({"list"}, "list needs --project PATH");
    expectUsage({"list", "--project", "p", "--at", "m:1"}, "list takes only --project and --code-page");
}

}  // namespace
}  // namespace quillet::cli
