// Finding an Enum or Type block of the declarations by its name.

#include "source/decl_blocks.h"

#include "code_fixture.h"

namespace quillet::source {
namespace {

class DeclarationBlocks : public testing::CodeFixture {
protected:
    bool find(const Str& name, bool blnEnum, long& header, long& endLine) {
        auto module = project->component(u"basMain")->CodeModule();
        return DeclarationBlockFind(*module, name, blnEnum, header, endLine);
    }
};

TEST_F(DeclarationBlocks, TheBlockOfThatNameAndKindIsFoundPastCommentsAndLookAlikes) {
    openModule(u"basMain",
               {u"Option Explicit", u"' Enum Colour is below", u"Private Enum ColourDepth", u"    Deep", u"End Enum",
                u"Public Enum colour  ' the palette", u"    Red", u"End Enum   ' palette", u"Type Colour", u"    R As Byte",
                u"End Type", u"", u"Sub A()", u"End Sub"},
               13, 1);
    long header = 0, endLine = 0;
    ASSERT_TRUE(find(u"Colour", true, header, endLine));
    EXPECT_EQ(header, 6);
    EXPECT_EQ(endLine, 8);
    ASSERT_TRUE(find(u"COLOUR", false, header, endLine));
    EXPECT_EQ(header, 9);
    EXPECT_EQ(endLine, 11);
    EXPECT_FALSE(find(u"Depth", true, header, endLine));
    EXPECT_EQ(header, 0);
    EXPECT_FALSE(find(u"ColourDepth", false, header, endLine));
}

TEST_F(DeclarationBlocks, ABlockWithoutItsEndIsNotFound) {
    openModule(u"basMain", {u"Option Explicit", u"Enum Colour", u"    Red"}, 1, 1);
    long header = 0, endLine = 0;
    EXPECT_FALSE(find(u"Colour", true, header, endLine));
    EXPECT_EQ(endLine, 0);
}

}  // namespace
}  // namespace quillet::source
