#include "basic/collection.h"

#include <gtest/gtest.h>

#include <memory>

#include "basic/test_helpers.h"

namespace quillet::basic {
namespace {

std::vector<int> itemsOf(const Collection<int>& c) {
    std::vector<int> out;
    for (int item : c) out.push_back(item);
    return out;
}

TEST(BasicCollection, KeyIsFolded) {
    EXPECT_EQ(collectionKey(u"Name"), collectionKey(u"NAME"));
    EXPECT_EQ(collectionKey(u"caf\u00E9"), collectionKey(u"CAF\u00C9"));
    EXPECT_NE(collectionKey(u"a"), collectionKey(u"b"));
    EXPECT_EQ(collectionKey(u""), u"");
}

TEST(BasicCollection, StartsEmpty) {
    Collection<int> c;
    EXPECT_EQ(c.Count(), 0);
    EXPECT_TRUE(itemsOf(c).empty());
    EXPECT_EQ(errorNumberOf([&] { c.Item(1); }), err::SubscriptOutOfRange);
    EXPECT_EQ(errorNumberOf([&] { c.Item(u"a"); }), err::InvalidCall);
}

TEST(BasicCollection, OrderedAndNumberedFromOne) {
    Collection<int> c;
    c.Add(10);
    c.Add(20);
    c.Add(30);
    EXPECT_EQ(c.Count(), 3);
    EXPECT_EQ(c.Item(1), 10);
    EXPECT_EQ(c.Item(3), 30);
    EXPECT_EQ(itemsOf(c), (std::vector<int>{10, 20, 30}));
    EXPECT_EQ(errorNumberOf([&] { c.Item(0); }), err::SubscriptOutOfRange);
    EXPECT_EQ(errorNumberOf([&] { c.Item(4); }), err::SubscriptOutOfRange);
    EXPECT_EQ(errorNumberOf([&] { c.Item(-1); }), err::SubscriptOutOfRange);
}

TEST(BasicCollection, KeysIgnoreCase) {
    Collection<int> c;
    c.Add(1, u"Alpha");
    c.Add(2, u"\u00C9t\u00E9");
    EXPECT_EQ(c.Item(u"alpha"), 1);
    EXPECT_EQ(c.Item(u"ALPHA"), 1);
    EXPECT_EQ(c.Item(u"\u00C9T\u00C9"), 2);
    EXPECT_TRUE(c.Exists(u"aLpHa"));
    EXPECT_FALSE(c.Exists(u"beta"));
    ASSERT_NE(c.Find(u"alpha"), nullptr);
    EXPECT_EQ(*c.Find(u"alpha"), 1);
    EXPECT_EQ(c.Find(u"beta"), nullptr);
    EXPECT_EQ(errorNumberOf([&] { c.Item(u"beta"); }), err::InvalidCall);
}

TEST(BasicCollection, TakenKeyRaises457AndFirstOneWins) {
    Collection<int> c;
    c.Add(1, u"k");
    c.Add(2);
    EXPECT_EQ(errorNumberOf([&] { c.Add(3, u"K"); }), err::KeyTaken);
    EXPECT_EQ(errorNumberOf([&] { c.Add(4, u"k", 1); }), err::KeyTaken);
    EXPECT_EQ(c.Count(), 2);
    EXPECT_EQ(c.Item(u"k"), 1);
    EXPECT_EQ(itemsOf(c), (std::vector<int>{1, 2}));
}

TEST(BasicCollection, EmptyKeyIsAKey) {
    Collection<int> c;
    c.Add(1, Str());
    EXPECT_EQ(c.Item(Str()), 1);
    EXPECT_EQ(errorNumberOf([&] { c.Add(2, Str()); }), err::KeyTaken);
}

TEST(BasicCollection, BeforeAndAfter) {
    Collection<int> c;
    c.Add(2, u"two");
    c.Add(1, u"one", 1);         // before the first
    c.Add(4, u"four", 0, 2);     // after the last
    c.Add(3, u"three", 0, 2);    // after the second
    c.Add(0, std::nullopt, 1);
    EXPECT_EQ(itemsOf(c), (std::vector<int>{0, 1, 2, 3, 4}));
    EXPECT_EQ(c.Item(u"one"), 1);
    EXPECT_EQ(c.Item(u"three"), 3);
    EXPECT_EQ(c.Item(u"four"), 4);
    EXPECT_EQ(errorNumberOf([&] { c.Add(9, std::nullopt, 1, 1); }), err::InvalidCall);
    EXPECT_EQ(errorNumberOf([&] { c.Add(9, std::nullopt, 6); }), err::InvalidCall);
    EXPECT_EQ(errorNumberOf([&] { c.Add(9, std::nullopt, 0, 6); }), err::InvalidCall);
    EXPECT_EQ(errorNumberOf([&] { c.Add(9, std::nullopt, -1); }), err::InvalidCall);
    EXPECT_EQ(c.Count(), 5);
}

TEST(BasicCollection, BeforeOrAfterOnEmptyCollectionRaises) {
    Collection<int> c;
    EXPECT_EQ(errorNumberOf([&] { c.Add(1, std::nullopt, 1); }), err::InvalidCall);
    EXPECT_EQ(errorNumberOf([&] { c.Add(1, std::nullopt, 0, 1); }), err::InvalidCall);
    EXPECT_EQ(c.Count(), 0);
}

TEST(BasicCollection, RemoveByIndexAndKey) {
    Collection<int> c;
    c.Add(1, u"a");
    c.Add(2, u"b");
    c.Add(3, u"c");
    c.Add(4);
    c.Remove(1);
    EXPECT_EQ(itemsOf(c), (std::vector<int>{2, 3, 4}));
    EXPECT_EQ(c.Item(u"c"), 3);  // keys still find their items after the shift
    c.Remove(u"B");
    EXPECT_EQ(itemsOf(c), (std::vector<int>{3, 4}));
    EXPECT_FALSE(c.Exists(u"b"));
    c.Add(5, u"b");  // a removed key is free again
    EXPECT_EQ(c.Item(u"b"), 5);
    EXPECT_EQ(errorNumberOf([&] { c.Remove(0); }), err::SubscriptOutOfRange);
    EXPECT_EQ(errorNumberOf([&] { c.Remove(4); }), err::SubscriptOutOfRange);
    EXPECT_EQ(errorNumberOf([&] { c.Remove(u"zz"); }), err::InvalidCall);
    EXPECT_EQ(c.Count(), 3);
}

TEST(BasicCollection, ClearAndReuse) {
    Collection<int> c;
    c.Add(1, u"a");
    c.Clear();
    EXPECT_EQ(c.Count(), 0);
    EXPECT_FALSE(c.Exists(u"a"));
    c.Add(2, u"a");
    EXPECT_EQ(c.Item(u"a"), 2);
}

TEST(BasicCollection, ItemsCanBeChangedInPlace) {
    Collection<int> c;
    c.Add(1, u"a");
    c.Item(u"a") = 7;
    c.Item(1) += 1;
    for (int& item : c) item *= 10;
    EXPECT_EQ(c.Item(1), 80);
    const Collection<int>& view = c;
    EXPECT_EQ(view.Item(u"A"), 80);
    EXPECT_EQ(*view.Find(u"a"), 80);
}

TEST(BasicCollection, HoldsMoveOnlyItems) {
    Collection<std::unique_ptr<int>> c;
    c.Add(std::make_unique<int>(1), u"one");
    c.Add(std::make_unique<int>(2), u"two", 1);
    EXPECT_EQ(*c.Item(1), 2);
    EXPECT_EQ(*c.Item(u"ONE"), 1);
}

TEST(BasicCollection, ManyKeysStayConsistent) {
    Collection<int> c;
    for (int i = 0; i < 200; ++i) c.Add(i, u"k" + fromUtf8(std::to_string(i)), i % 3 == 0 && i ? 1 : 0);
    for (int i = 0; i < 200; ++i) EXPECT_EQ(c.Item(u"K" + fromUtf8(std::to_string(i))), i);
    for (int i = 0; i < 200; i += 2) c.Remove(u"k" + fromUtf8(std::to_string(i)));
    EXPECT_EQ(c.Count(), 100);
    for (int i = 1; i < 200; i += 2) EXPECT_EQ(c.Item(u"k" + fromUtf8(std::to_string(i))), i);
}

}  // namespace
}  // namespace quillet::basic
