// The Enum and Type Builders on the model: captions and the prefix's box, the access rule of a
// Type in a class, the block's text (prefix, blank lines, an empty block) and its place in the
// module's declarations, the record it leaves, the list of type names behind " As", and what
// Cancel and a refused name leave.

#include "addin/quillet_handle.h"
#include "builders/enum_type_code.h"
#include "enum_fixture.h"

namespace quillet::builders {
namespace {

using testing::joinLines;

class EnumTypeBuilder : public testing::EnumTypeFixture {};

const std::vector<Str> kModule = {u"Option Explicit", u"",       u"Private mlngCount As Long", u"",
                                  u"Public Sub Run()", u"    Debug.Print 1", u"End Sub"};

// The module with `block` put in at (1-based) `at`.
Str withBlock(long at, const std::vector<Str>& block) {
    auto lines = kModule;
    lines.insert(lines.begin() + (at - 1), block.begin(), block.end());
    return joinLines(lines);
}

TEST_F(EnumTypeBuilder, TheEnumBuilderShowsThePrefix) {
    auto& form = openBlockOn(u"Enum", kModule, 6, 5);
    EXPECT_EQ(form.Caption, u"New enum");
    EXPECT_EQ(form.Kind(), 10003);
    EXPECT_TRUE(form.Controls(u"txtPrefix").Visible);
    EXPECT_TRUE(form.Controls(u"lblPrefix").Visible);
    EXPECT_FALSE(form.Controls(u"lstVars").Visible);
    EXPECT_EQ(form.Controls(u"optAccessibility(0)").Value(), 1);
    EXPECT_EQ(form.Controls(u"optAccessibility(0)").ToolTipText, u"Default is Public");
    EXPECT_EQ(form.Controls(u"cboModule").Text(), u"basVars");
    EXPECT_EQ(form.Controls(u"cboModule").List(0), u"<New Module>");
    // An Enum's members are Long: no classes among the type names.
    EXPECT_LT(source::FindInList(form.Controls(u"lstVars"), u"clsOrder"), 0);
    EXPECT_GE(source::FindInList(form.Controls(u"lstVars"), u"Long"), 0);
}

TEST_F(EnumTypeBuilder, TheTypeBuilderHidesThePrefix) {
    auto& form = openBlockOn(u"Type", kModule, 6, 5);
    EXPECT_EQ(form.Caption, u"New User-Defined Data Type");
    EXPECT_EQ(form.Kind(), 10004);
    EXPECT_FALSE(form.Controls(u"txtPrefix").Visible);
    EXPECT_FALSE(form.Controls(u"lblPrefix").Visible);
    EXPECT_GE(source::FindInList(form.Controls(u"lstVars"), u"clsOrder"), 0);
    EXPECT_TRUE(form.Controls(u"optAccessibility(1)").Enabled);
}

TEST_F(EnumTypeBuilder, AnItemThatBeginsWithThePrefixInAnyCaseStaysAsItIs) {
    auto& form = openBlockOn(u"Enum", kModule, 6, 5);
    setText(form, u"txtName", u"  Colour ");
    setText(form, u"txtPrefix", u" clr ");
    setText(form, u"txtItems", u"clrRed = 1\r\nCLRGreen\r\nBlue\r\nClrYellow");
    click(form, u"cmdOk");
    EXPECT_FALSE(blockOpen());
    EXPECT_EQ(vars(), withBlock(4, {u"Enum clrColour", u"    clrRed = 1", u"    CLRGreen", u"    clrBlue", u"    ClrYellow",
                                    u"End Enum"}));
}

TEST_F(EnumTypeBuilder, ANameThatBeginsWithThePrefixKeepsIt) {
    EXPECT_EQ(WithPrefix(u"ClrColour", u"clr"), u"ClrColour");
    EXPECT_EQ(WithPrefix(u"Colour", u"clr"), u"clrColour");
    EXPECT_EQ(WithPrefix(u"Colour", u""), u"Colour");
    EXPECT_EQ(WithPrefix(u"cl", u"clr"), u"clrcl");
}

TEST_F(EnumTypeBuilder, BlankLinesOfTheItemsAreDropped) {
    auto& form = openBlockOn(u"Enum", kModule, 6, 5);
    setText(form, u"txtName", u"Colour");
    setText(form, u"txtItems", u"\r\nRed\r\n   \r\n\r\nGreen\r\n\r\n");
    ctx->Forms->Raise([&] { form.Controls(u"optAccessibility(1)").Value(1); });
    click(form, u"cmdOk");
    EXPECT_EQ(vars(), withBlock(4, {u"Public Enum Colour", u"    Red", u"    Green", u"End Enum"}));
}

TEST_F(EnumTypeBuilder, AnEmptyEnumIsHeaderOneLineOfBlanksAndEnd) {
    auto& form = openBlockOn(u"Enum", kModule, 6, 5);
    setText(form, u"txtName", u"Colour");
    ctx->Forms->Raise([&] { form.Controls(u"optAccessibility(2)").Value(1); });
    click(form, u"cmdOk");
    EXPECT_EQ(vars(), withBlock(4, {u"Private Enum Colour", u"    ", u"End Enum"}));
    EXPECT_EQ(TypeEnumText(u"Point", false, u"\r\n  \r\n", {}, {}, {}, u"  "), u"Type Point\r\n  \r\nEnd Type");
}

TEST_F(EnumTypeBuilder, TheStartValueGoesBehindTheFirstItemWritten) {
    EXPECT_EQ(TypeEnumText(u"Colour", true, u"\r\nRed\r\nGreen", u"5", u"clr", u"Public", u"    "),
              u"Public Enum clrColour\r\n    clrRed = 5\r\n    clrGreen\r\nEnd Enum");
}

TEST_F(EnumTypeBuilder, ATypeForAClassModuleCanOnlyBePrivate) {
    auto& form = openBlockOn(u"Type", kModule, 6, 5);
    module(form, u"clsOrder");
    EXPECT_FALSE(form.Controls(u"optAccessibility(0)").Enabled);
    EXPECT_FALSE(form.Controls(u"optAccessibility(1)").Enabled);
    EXPECT_TRUE(form.Controls(u"optAccessibility(2)").Enabled);
    EXPECT_EQ(form.Controls(u"optAccessibility(2)").Value(), 1);
    EXPECT_EQ(form.AccessWord(), u"Private");
    setText(form, u"txtName", u"OrderLine");
    setText(form, u"txtItems", u"Quantity As Long\r\nPrice As Currency");
    click(form, u"cmdOk");
    EXPECT_EQ(moduleText(u"clsOrder"), joinLines({u"Option Explicit", u"Private Type OrderLine", u"    Quantity As Long",
                                                  u"    Price As Currency", u"End Type"}));
    EXPECT_EQ(vars(), joinLines(kModule));
    // Back in a standard module, the three choices are open again.
    auto& again = openBlock(u"Type");
    module(again, u"clsOrder");
    module(again, u"basMain");
    EXPECT_TRUE(again.Controls(u"optAccessibility(0)").Enabled);
    EXPECT_TRUE(again.Controls(u"optAccessibility(1)").Enabled);
}

TEST_F(EnumTypeBuilder, AnEnumForAClassModuleMayStayPublic) {
    auto& form = openBlockOn(u"Enum", kModule, 6, 5);
    module(form, u"clsOrder");
    EXPECT_TRUE(form.Controls(u"optAccessibility(1)").Enabled);
    EXPECT_EQ(form.Controls(u"optAccessibility(0)").Value(), 1);
}

TEST_F(EnumTypeBuilder, TheNewBlockIsRecordedInTheProject) {
    auto& form = openBlockOn(u"Enum", kModule, 6, 5);
    setText(form, u"txtName", u"Colour");
    setText(form, u"txtItems", u"Red\r\nGreen");
    click(form, u"cmdOk");
    ASSERT_TRUE(ctx->Scan.ProjectEnums);
    ASSERT_TRUE(ctx->Scan.ProjectEnums->Exists(u"Colour"));
    auto record = ctx->Scan.ProjectEnums->Item(u"Colour");
    EXPECT_EQ(record->Project, u"VBAProject");
    EXPECT_EQ(record->Module, u"basVars");
    EXPECT_FALSE(record->IsPrivate);
    EXPECT_EQ(record->Count(), 2);
    EXPECT_TRUE(ctx->Scan.ProjectConsts->Exists(u"Green"));
    // A second block of that name is refused.
    auto& again = openBlock(u"Type");
    setText(again, u"txtName", u"Colour");
    platform->queueAnswer(u"no");
    click(again, u"cmdOk");
    EXPECT_TRUE(blockOpen());
    EXPECT_EQ(again.FocusedControl, u"txtName");
}

TEST_F(EnumTypeBuilder, CancelLeavesTheModuleAsItWas) {
    auto& form = openBlockOn(u"Enum", kModule, 6, 5);
    setText(form, u"txtName", u"Colour");
    setText(form, u"txtItems", u"Red");
    click(form, u"cmdCancel");
    EXPECT_FALSE(blockOpen());
    EXPECT_EQ(vars(), joinLines(kModule));
}

TEST_F(EnumTypeBuilder, AKeywordAsNameIsRefusedAndNothingIsWritten) {
    auto& form = openBlockOn(u"Enum", kModule, 6, 5);
    setText(form, u"txtName", u"Dim");
    setText(form, u"txtItems", u"Red");
    platform->queueAnswer(u"no");
    click(form, u"cmdOk");
    EXPECT_TRUE(blockOpen());
    EXPECT_EQ(form.FocusedControl, u"txtName");
    EXPECT_EQ(vars(), joinLines(kModule));
}

TEST_F(EnumTypeBuilder, ANewModuleIsAskedForAndMade) {
    auto& form = openBlockOn(u"Type", kModule, 6, 5);
    module(form, u"<New Module>");
    setText(form, u"txtName", u"Point");
    setText(form, u"txtItems", u"X As Long\r\nY As Long");
    platform->queueAnswer(u"basShapes");
    click(form, u"cmdOk");
    EXPECT_FALSE(blockOpen());
    EXPECT_NE(moduleText(u"basShapes").find(u"Type Point\r\n    X As Long\r\n    Y As Long\r\nEnd Type"), Str::npos);
    EXPECT_EQ(vars(), joinLines(kModule));
}

TEST_F(EnumTypeBuilder, ABlankBehindAsPopsUpTheTypeNames) {
    auto& form = openBlockOn(u"Type", kModule, 6, 5);
    auto& items = form.Controls(u"txtItems");
    setText(form, u"txtItems", u"Quantity as");
    items.SelStart = 11;
    long key = 32;
    ctx->Forms->Raise([&] { items.KeyPress(key); });
    auto& list = form.Controls(u"lstVars");
    EXPECT_TRUE(list.Visible);
    EXPECT_EQ(form.FocusedControl, u"lstVars");
    list.ListIndex(source::FindInList(list, u"Long"));
    long enter = 13;
    ctx->Forms->Raise([&] { list.KeyPress(enter); });
    EXPECT_EQ(items.Text(), u"Quantity as Long");
    EXPECT_FALSE(list.Visible);
    EXPECT_EQ(form.FocusedControl, u"txtItems");
    // Escape leaves the text alone; a blank elsewhere pops nothing up.
    setText(form, u"txtItems", u"Price As");
    items.SelStart = 8;
    ctx->Forms->Raise([&] { items.KeyPress(key); });
    long escape = 27;
    ctx->Forms->Raise([&] { list.KeyPress(escape); });
    EXPECT_EQ(items.Text(), u"Price As");
    EXPECT_FALSE(list.Visible);
    setText(form, u"txtItems", u"Alias");
    items.SelStart = 5;
    ctx->Forms->Raise([&] { items.KeyPress(key); });
    EXPECT_FALSE(list.Visible);
}

TEST_F(EnumTypeBuilder, TheQuickCommandsOpenTheBuilderWithTheWordAtTheCaret) {
    openModule({u"Option Explicit", u"", u"Public Sub Run()", u"    Set x = Shape", u"End Sub"}, 4, 15, u"basVars");
    addin::QuilletHandle(*ctx, u"Type", u"");
    ASSERT_TRUE(blockOpen());
    auto& form = top<frmEnumOrType>();
    EXPECT_EQ(form.Caption, u"New User-Defined Data Type");
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"Shape");
    click(form, u"cmdCancel");
    addin::QuilletHandle(*ctx, u"Enum", u"");
    ASSERT_TRUE(blockOpen());
    EXPECT_EQ(top<frmEnumOrType>().Caption, u"New enum");
    EXPECT_TRUE(addin::quickCommandAvailable(u"Enum"));
    EXPECT_TRUE(addin::quickCommandAvailable(u"Type"));
}

}  // namespace
}  // namespace quillet::builders
