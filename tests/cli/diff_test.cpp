#include "cli/diff.h"

#include <gtest/gtest.h>

namespace quillet::cli {
namespace {

std::vector<Str> numbered(int count) {
    std::vector<Str> lines;
    for (int i = 1; i <= count; ++i) lines.push_back(u"line " + basic::fromUtf8(std::to_string(i)));
    return lines;
}

const DiffNames kNames{"a/m.bas", "b/m.bas"};

TEST(CliDiff, EqualTextsGiveNothing) { EXPECT_EQ(unifiedDiff(numbered(5), numbered(5), kNames), ""); }

TEST(CliDiff, OneChangeWithThreeLinesOfContext) {
    auto after = numbered(10);
    after[4] = u"changed";
    EXPECT_EQ(unifiedDiff(numbered(10), after, kNames),
              "--- a/m.bas\n+++ b/m.bas\n@@ -2,7 +2,7 @@\n line 2\n line 3\n line 4\n-line 5\n+changed\n line 6\n"
              " line 7\n line 8\n");
}

TEST(CliDiff, InsertionAtTheTopAndSingleLineRanges) {
    std::vector<Str> before = {u"a"};
    std::vector<Str> after = {u"new", u"a"};
    EXPECT_EQ(unifiedDiff(before, after, kNames), "--- a/m.bas\n+++ b/m.bas\n@@ -1 +1,2 @@\n+new\n a\n");
    EXPECT_EQ(unifiedDiff({}, {u"x"}, {"/dev/null", "b/n.bas"}), "--- /dev/null\n+++ b/n.bas\n@@ -0,0 +1 @@\n+x\n");
    EXPECT_EQ(unifiedDiff({u"x"}, {}, {"a/n.bas", "/dev/null"}), "--- a/n.bas\n+++ /dev/null\n@@ -1 +0,0 @@\n-x\n");
}

TEST(CliDiff, DistantChangesMakeTwoHunksNearOnesOne) {
    auto after = numbered(20);
    after[1] = u"two";
    after[17] = u"eighteen";
    std::string diff = unifiedDiff(numbered(20), after, kNames);
    EXPECT_NE(diff.find("@@ -1,5 +1,5 @@\n"), std::string::npos) << diff;
    EXPECT_NE(diff.find("@@ -15,6 +15,6 @@\n"), std::string::npos) << diff;
    after = numbered(20);
    after[4] = u"five";
    after[10] = u"eleven";  // 5 lines apart: one hunk
    diff = unifiedDiff(numbered(20), after, kNames);
    EXPECT_NE(diff.find("@@ -2,13 +2,13 @@\n"), std::string::npos) << diff;
    EXPECT_EQ(diff.find("@@", diff.find("@@") + 2), diff.find(" @@\n") + 1);
}

TEST(CliDiff, WritesUtf8) {
    EXPECT_EQ(unifiedDiff({u"caf\u00E9"}, {u"th\u00E9"}, kNames),
              "--- a/m.bas\n+++ b/m.bas\n@@ -1 +1 @@\n-caf\xC3\xA9\n+th\xC3\xA9\n");
}

}  // namespace
}  // namespace quillet::cli
