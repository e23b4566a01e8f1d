#include "hosts/memory/find.h"

#include <gtest/gtest.h>

namespace quillet::hosts::memory {
namespace {

const std::vector<Str> kLines = {u"Dim total As Long", u"Sub Totals()", u"    total = total + 1", u"End Sub"};

std::optional<FindRange> find(const Str& target, FindRange range = {}, FindFlags flags = {}) {
    return findInLines(kLines, target, range, flags);
}

TEST(MemoryFind, PlainIsCaseInsensitive) {
    auto hit = find(u"TOTALS");
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->startLine, 2);
    EXPECT_EQ(hit->startCol, 5);
    EXPECT_EQ(hit->endLine, 2);
    EXPECT_EQ(hit->endCol, 11);
}

TEST(MemoryFind, MatchCase) {
    EXPECT_FALSE(find(u"TOTALS", {}, {false, true, false}));
    auto hit = find(u"Total", {}, {false, true, false});
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->startLine, 2);
}

TEST(MemoryFind, WholeWord) {
    auto hit = find(u"total", {2, 1, -1, -1}, {true, false, false});
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->startLine, 3);
    EXPECT_EQ(hit->startCol, 5);
    auto next = find(u"total", {3, 6, -1, -1}, {true, false, false});
    ASSERT_TRUE(next);
    EXPECT_EQ(next->startCol, 13);
}

TEST(MemoryFind, UnderscoreIsPartOfAWord) {
    auto hit = findInLines({u"x_total = total"}, u"total", {}, {true, false, false});
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->startCol, 11);
}

TEST(MemoryFind, RangeLimitsBothEnds) {
    EXPECT_FALSE(find(u"Long", {1, 15, 1, -1}));
    EXPECT_TRUE(find(u"Long", {1, 14, 1, -1}));
    EXPECT_FALSE(find(u"Long", {1, 1, 1, 16}));
    EXPECT_TRUE(find(u"Long", {1, 1, 1, 17}));
    EXPECT_FALSE(find(u"End", {1, 1, 3, -1}));
}

TEST(MemoryFind, MatchesDoNotSpanLines) {
    EXPECT_FALSE(find(u"Long Sub"));
    EXPECT_FALSE(find(u"Long\r\nSub"));
}

TEST(MemoryFind, PatternSearchTakesTheLongestMatchAtTheFirstPlace) {
    auto hit = find(u"t*l", {}, {false, false, true});
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->startLine, 1);
    EXPECT_EQ(hit->startCol, 5);
    EXPECT_EQ(hit->endCol, 15);  // "total As L": the longest, ignoring case
    auto digits = findInLines({u"x = 42"}, u"##", {}, {false, false, true});
    ASSERT_TRUE(digits);
    EXPECT_EQ(digits->startCol, 5);
    auto list = findInLines({u"abc"}, u"[b-c]", {}, {false, false, true});
    ASSERT_TRUE(list);
    EXPECT_EQ(list->startCol, 2);
    EXPECT_EQ(list->endCol, 3);
}

TEST(MemoryFind, PatternSearchWithWholeWord) {
    auto hit = findInLines({u"abc ab"}, u"a?", {}, {true, false, true});
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->startCol, 5);
}

TEST(MemoryFind, MatchCaseWithPatternRaises5) {
    try {
        find(u"x", {}, {false, true, true});
        FAIL();
    } catch (const basic::VbError& e) {
        EXPECT_EQ(e.Number(), 5);
    }
}

TEST(MemoryFind, EmptyTargetAndEmptyModuleFindNothing) {
    EXPECT_FALSE(find(u""));
    EXPECT_FALSE(findInLines({}, u"x", {}, {}));
}

}  // namespace
}  // namespace quillet::hosts::memory
