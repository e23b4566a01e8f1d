#include "source/name_checks.h"

#include "basic/collection.h"
#include "source/keywords.h"
#include "source_fixture.h"

namespace quillet::source {
namespace {

using basic::VbError;
using testing::SourceFixture;

long errorOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const VbError& e) {
        return e.Number();
    }
    return 0;
}

TEST(SourceNameChecks, ErrorNumbersAreTheSignedLongs) {
    EXPECT_EQ(kNameInvalid, -2147204204L);
    EXPECT_EQ(kNameUsed, -2147204203L);
    EXPECT_EQ(kNameIsKeyword, -2147204202L);
    EXPECT_EQ(kNameEmpty, -2147204201L);
}

TEST(SourceNameChecks, SyntaxCheck) {
    EXPECT_EQ(errorOf([] { NameSyntaxCheck(u"lngCount_2"); }), 0);
    EXPECT_EQ(errorOf([] { NameSyntaxCheck(u""); }), kNameEmpty);
    EXPECT_EQ(errorOf([] { NameSyntaxCheck(u"2abc"); }), kNameInvalid);
    EXPECT_EQ(errorOf([] { NameSyntaxCheck(u"_abc"); }), kNameInvalid);
    EXPECT_EQ(errorOf([] { NameSyntaxCheck(u"ab c"); }), kNameInvalid);
    EXPECT_EQ(errorOf([] { NameSyntaxCheck(u"ab$"); }), kNameInvalid);
    EXPECT_EQ(errorOf([] { NameSyntaxCheck(u"\u00e9t\u00e9"); }), 0);
    try {
        NameSyntaxCheck(u"a-b");
    } catch (const VbError& e) {
        EXPECT_EQ(e.Description(), u"Name is invalid.");
    }
}

TEST(SourceNameChecks, A255CharacterNamePassesAnd256Fails) {
    EXPECT_EQ(errorOf([] { NameSyntaxCheck(Str(255, u'a')); }), 0);
    EXPECT_EQ(errorOf([] { NameSyntaxCheck(Str(256, u'a')); }), kNameInvalid);
}

TEST(SourceNameChecks, KeywordCheckIgnoresCase) {
    auto keywords = keywordList();
    EXPECT_EQ(errorOf([&] { NameKeywordCheck(u"wend", keywords); }), kNameIsKeyword);
    EXPECT_EQ(errorOf([&] { NameKeywordCheck(u"REDIM", keywords); }), kNameIsKeyword);
    EXPECT_EQ(errorOf([&] { NameKeywordCheck(u"Wendy", keywords); }), 0);
    // Not every reserved word is in the list.
    EXPECT_EQ(errorOf([&] { NameKeywordCheck(u"Currency", keywords); }), 0);
}

class SourceNameUse : public SourceFixture {
protected:
    SourceNameUse() { openModule(u"basMain", {u"Option Explicit"}); }
    std::vector<Str> keywords = keywordList();
    NameCheckEnv env() { return {*vbe, *platform, keywords}; }
};

TEST_F(SourceNameUse, UniqueCheckLooksAtProjectCollectionsAndComponents) {
    basic::Collection<int> vars;
    vars.Add(1, Str(u"mlngCount"));
    NameLookups lookups{lookupIn(vars)};
    EXPECT_EQ(errorOf([&] { NameUniqueCheck(*vbe, u"vbaproject", true, false, {}); }), kNameUsed);
    EXPECT_EQ(errorOf([&] { NameUniqueCheck(*vbe, u"vbaproject", false, false, {}); }), 0);
    EXPECT_EQ(errorOf([&] { NameUniqueCheck(*vbe, u"MLNGCOUNT", false, false, lookups); }), kNameUsed);
    EXPECT_EQ(errorOf([&] { NameUniqueCheck(*vbe, u"BASMAIN", false, true, lookups); }), kNameUsed);
    EXPECT_EQ(errorOf([&] { NameUniqueCheck(*vbe, u"BASMAIN", false, false, lookups); }), 0);
    // A look-up that fails is passed over.
    NameLookups failing{[](const Str&) -> bool { throw VbError(91, u"x"); }, lookupIn(vars)};
    EXPECT_EQ(errorOf([&] { NameUniqueCheck(*vbe, u"mlngCount", false, false, failing); }), kNameUsed);
}

TEST_F(SourceNameUse, CheckNewNameIsOKPassesAGoodName) {
    EXPECT_EQ(CheckNewNameIsOK(env(), u"lngTotal", true, true, {}), 0);
    EXPECT_TRUE(platform->shownBoxes().empty());
}

TEST_F(SourceNameUse, AMissingNameSaysSo) {
    EXPECT_EQ(CheckNewNameIsOK(env(), u"", true, true, {}), kNameEmpty);
    ASSERT_EQ(platform->shownBoxes().size(), 1u);
    EXPECT_EQ(platform->shownBoxes()[0].prompt, u"Name is missing.");
    EXPECT_EQ(platform->shownBoxes()[0].buttons, 48);
}

TEST_F(SourceNameUse, AFailedCheckAsksAndNoOrCancelIsReturned) {
    platform->queueAnswer(u"no");
    EXPECT_EQ(CheckNewNameIsOK(env(), u"Next", true, true, {}), 7);
    ASSERT_EQ(platform->shownBoxes().size(), 1u);
    EXPECT_EQ(platform->shownBoxes()[0].prompt,
              u"Name coincides with VB keyword. Using it again will give a compile error.\r\n"
              u"To use this name choose Yes, to change name select No.");
    EXPECT_EQ(platform->shownBoxes()[0].buttons, 51);
    platform->queueAnswer(u"cancel");
    EXPECT_EQ(CheckNewNameIsOK(env(), u"1x", true, true, {}), 2);
    EXPECT_EQ(platform->shownBoxes()[1].prompt,
              u"Name is invalid. Using it again will give a compile error.\r\n"
              u"To use this name choose Yes, to change name select No.");
}

TEST_F(SourceNameUse, YesGoesOnWithTheNextCheck) {
    // A keyword that is also a module's name: Yes on the keyword, then asked about the use.
    project->addComponent(u"Print", host::vbext_ct_StdModule);
    platform->queueAnswer(u"yes");
    platform->queueAnswer(u"yes");
    EXPECT_EQ(CheckNewNameIsOK(env(), u"Print", false, true, {}), 0);
    ASSERT_EQ(platform->shownBoxes().size(), 2u);
    EXPECT_EQ(platform->shownBoxes()[1].prompt,
              u"Name is already used. Using it again will give a compile error.\r\n"
              u"To use this name choose Yes, to change name select No.");
    platform->queueAnswer(u"yes");
    platform->queueAnswer(u"no");
    EXPECT_EQ(CheckNewNameIsOK(env(), u"Print", false, true, {}), 7);
}

TEST(SourceNameValidate, ValidateVarNameRaisesOrReturnsTheName) {
    auto keywords = keywordList();
    basic::Collection<int> library;
    library.Add(1, Str(u"VBA.Left"));
    library.Add(2, Str(u"Total"));
    NameLookups lookups{lookupIn(library)};
    EXPECT_EQ(ValidateVarName(u"lngSum", true, lookups, keywords), u"lngSum");
    EXPECT_EQ(errorOf([&] { ValidateVarName(u"Left", true, lookups, keywords); }), kNameUsed);
    EXPECT_EQ(ValidateVarName(u"Left", false, lookups, keywords), u"Left");
    EXPECT_EQ(errorOf([&] { ValidateVarName(u"total", false, lookups, keywords); }), kNameUsed);
    EXPECT_EQ(errorOf([&] { ValidateVarName(u"Dim", false, lookups, keywords); }), kNameIsKeyword);
    EXPECT_EQ(errorOf([&] { ValidateVarName(u"", false, lookups, keywords); }), kNameEmpty);
}

}  // namespace
}  // namespace quillet::source
