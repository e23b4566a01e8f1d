#include "source/words.h"

#include "source_fixture.h"

namespace quillet::source {
namespace {

using testing::SourceFixture;

class SourceWords : public SourceFixture {};

TEST_F(SourceWords, WordAroundTheCaret) {
    openModule(u"basMain", {u"    Dim mlngCount", u"x = Foo(a, b)"}, 1, 12);
    EXPECT_EQ(CurrentWordGet(*vbe), u"mlngCount");
    caretAt(1, 18);  // after the last character
    EXPECT_EQ(CurrentWordGet(*vbe), u"mlngCount");
    caretAt(1, 8);  // on the blank between Dim and the name: the word to its left
    EXPECT_EQ(CurrentWordGet(*vbe), u"Dim");
    caretAt(2, 6);
    EXPECT_EQ(CurrentWordGet(*vbe), u"Fooa");
    caretAt(2, 3);
    EXPECT_EQ(CurrentWordGet(*vbe), u"");  // "=" only
}

TEST_F(SourceWords, SelectionTakenAsItStands) {
    openModule(u"basMain", {u"Call Do.It(now)", u"x"});
    caretAt(1, 6, 1, 11);
    EXPECT_EQ(CurrentWordGet(*vbe), u"DoIt");
    caretAt(1, 1, 2, 1);
    EXPECT_EQ(CurrentWordGet(*vbe), u"");
}

TEST_F(SourceWords, AWordOf32CharactersYieldsNothing) {
    Str word31(31, u'a'), word32(32, u'b');
    openModule(u"basMain", {word31, word32, u"x." + word31});
    caretAt(1, 1);
    EXPECT_EQ(CurrentWordGet(*vbe), word31);
    caretAt(2, 1);
    EXPECT_EQ(CurrentWordGet(*vbe), u"");
    caretAt(3, 3);  // "x." + 31 letters: 31 once the "." is removed... plus "x"
    EXPECT_EQ(CurrentWordGet(*vbe), u"");
}

TEST_F(SourceWords, NoPaneOrNoLine) {
    EXPECT_EQ(CurrentWordGet(*vbe), u"");
    openModule(u"basMain", {});
    EXPECT_EQ(CurrentWordGet(*vbe), u"");
}

TEST(SourceWordsText, WordAtColumnsOnText) {
    EXPECT_EQ(WordAtColumns(u"a\tbc d", 4, 4), u"bc");
    EXPECT_EQ(WordAtColumns(u"", 1, 1), u"");
    EXPECT_EQ(WordAtColumns(u"abc", 99, 99), u"abc");
}

TEST(SourceWordsText, KindNameGetTakesTheWordAfterTheKeyword) {
    EXPECT_EQ(KindNameGet(u"Enum", u"Public Enum Colors"), u"Colors");
    EXPECT_EQ(KindNameGet(u"Type", u"Private Type tPoint ' a point"), u"tPoint");
    EXPECT_EQ(KindNameGet(u"Sub", u"Private Sub DoIt(ByVal x As Long)"), u"DoIt");
    EXPECT_EQ(KindNameGet(u"function", u"Function F$()"), u"F$");
    EXPECT_EQ(KindNameGet(u"Enum", u"Dim Enumerator As Long"), u"");
    EXPECT_EQ(KindNameGet(u"Enum", u"Enum"), u"");
    EXPECT_EQ(KindNameGet(u"", u"Enum A"), u"");
}

}  // namespace
}  // namespace quillet::source
