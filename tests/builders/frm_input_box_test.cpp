// The quick input box of the Dim and Const quick commands: its caption, its two forms, the name's
// prefix, the value it shows, and the line it writes where the caret says.

#include "addin/quillet_handle.h"
#include "builders/frm_input_box.h"
#include "const_fixture.h"

namespace quillet::builders {
namespace {

using testing::joinLines;

class QuickInputBox : public testing::ConstantFixture {
protected:
    frmInputBox& quick(const Str& command, const Str& type) {
        addin::QuilletHandle(*ctx, command, type);
        EXPECT_NE(ctx->Forms->FindOpen(u"frmInputBox"), nullptr);
        return top<frmInputBox>();
    }
    bool boxOpen() { return ctx->Forms->FindOpen(u"frmInputBox") != nullptr; }
};

const std::vector<Str> kModule = {u"Option Explicit", u"",          u"Private mlngCount As Long", u"",
                                  u"Public Enum Colour", u"    Red = 1", u"    Green", u"End Enum",
                                  u"Private Type Point", u"    X As Long", u"End Type", u"",
                                  u"Public Sub Run()", u"    Debug.Print Total", u"End Sub"};

Str withLine(long at, const Str& line) {
    auto lines = kModule;
    lines.insert(lines.begin() + (at - 1), line);
    return joinLines(lines);
}

TEST_F(QuickInputBox, TheCaptionNamesTheKindAndTheTypeInBrackets) {
    frmInputBox box(*ctx);
    box.Init(10001, u"x", u"Long", {});
    EXPECT_EQ(box.Caption, u"Variable (Long)");
    box.Init(10002, u"x", u"", {});
    EXPECT_EQ(box.Caption, u"Constant");
    box.Init(10007, u"x", u"String", {});
    EXPECT_EQ(box.Caption, u"Property (String)");
    box.Init(10007, u"x", u"", {});
    EXPECT_EQ(box.Caption, u"Property");
}

TEST_F(QuickInputBox, AConstantHasTheTallFormWithItsValue) {
    openModule(kModule, 14, 17, u"basVars");
    auto& box = quick(u"Const", u"String");
    EXPECT_EQ(box.Caption, u"Constant (String)");
    EXPECT_TRUE(box.Tall());
    EXPECT_TRUE(box.Controls(u"txtValue").Enabled);
    EXPECT_TRUE(box.Controls(u"lblValue").Enabled);
    EXPECT_EQ(box.Controls(u"txtValue").Text(), u"Total");
    EXPECT_EQ(box.Kind(), 10002);
}

TEST_F(QuickInputBox, AVariableHasTheShortFormWithoutValue) {
    openModule(kModule, 14, 17, u"basVars");
    auto& box = quick(u"Dim", u"Long");
    EXPECT_EQ(box.Caption, u"Variable (Long)");
    EXPECT_FALSE(box.Tall());
    EXPECT_EQ(frmInputBox::ButtonsRaise, 670);
    EXPECT_FALSE(box.Controls(u"txtValue").Enabled);
    EXPECT_FALSE(box.Controls(u"lblValue").Enabled);
    EXPECT_EQ(box.Controls(u"txtValue").Text(), u"");
}

TEST_F(QuickInputBox, AValueThatDoesNotSuitTheTypeIsNotShown) {
    openModule(kModule, 14, 17, u"basVars");
    auto& box = quick(u"Const", u"Long");
    EXPECT_EQ(box.Controls(u"txtValue").Text(), u"");
}

TEST_F(QuickInputBox, TheNameTakesThePrefixOfItsTypeAndScope) {
    openModule(kModule, 14, 17, u"basVars");
    auto& inside = quick(u"Dim", u"Long");
    EXPECT_EQ(inside.Controls(u"txtName").Text(), u"lngTotal");
    EXPECT_EQ(inside.Controls(u"txtName").SelLength, 8);
    EXPECT_EQ(inside.FocusedControl, u"txtName");
    click(inside, u"cmdCancel");
    auto& constant = quick(u"Const", u"Long");
    EXPECT_EQ(constant.Controls(u"txtName").Text(), u"gclngTotal");
    click(constant, u"cmdCancel");
    vbe->ActiveCodePane()->SetSelection(1, 1, 1, 1);
    auto& outside = quick(u"Dim", u"Long");
    EXPECT_EQ(outside.Controls(u"txtName").Text(), u"mlngOption");
}

TEST_F(QuickInputBox, WithoutAutoPrefixTheNameStaysAsPickedUp) {
    ctx->Prefixes.Settings.AutoPrefixVariableName = 0;
    openModule(kModule, 14, 17, u"basVars");
    auto& box = quick(u"Dim", u"Long");
    EXPECT_EQ(box.Controls(u"txtName").Text(), u"Total");
}

TEST_F(QuickInputBox, DimInAProcedureGoesBehindItsDeclarations) {
    openModule(kModule, 14, 17, u"basVars");
    auto& box = quick(u"Dim", u"Long");
    click(box, u"cmdOK");
    EXPECT_FALSE(boxOpen());
    EXPECT_EQ(vars(), withLine(14, u"    Dim lngTotal As Long"));
}

TEST_F(QuickInputBox, DimInATypeBlockWritesAMemberWithoutDim) {
    openModule(kModule, 10, 1, u"basVars");
    auto& box = quick(u"Dim", u"String");
    setText(box, u"txtName", u"Label");
    click(box, u"cmdOK");
    EXPECT_EQ(vars(), withLine(11, u"    Label As String"));
}

TEST_F(QuickInputBox, ConstOfAStandardModuleIsPublicAtModuleLevel) {
    openModule(kModule, 12, 1, u"basVars");
    auto& box = quick(u"Const", u"String");
    setText(box, u"txtName", u"gcstrApp");
    setText(box, u"txtValue", u"Quillet");
    click(box, u"cmdOK");
    EXPECT_EQ(vars(), withLine(12, u"Public Const gcstrApp As String = \"Quillet\""));
}

TEST_F(QuickInputBox, ConstInAProcedureHasNoPublic) {
    openModule(kModule, 14, 17, u"basVars");
    auto& box = quick(u"Const", u"String");
    click(box, u"cmdOK");
    EXPECT_EQ(vars(), withLine(14, u"    Const gcstrTotal As String = \"Total\""));
}

TEST_F(QuickInputBox, ConstOfAClassModuleHasNoPublic) {
    auto cls = project->component(u"clsOrder");
    auto pane = vbe->openPane(cls);
    pane->SetSelection(1, 1, 1, 1);
    vbe->setSelectedComponent(cls);
    auto& box = quick(u"Const", u"Integer");
    setText(box, u"txtName", u"cintMax");
    setText(box, u"txtValue", u"");
    click(box, u"cmdOK");
    EXPECT_EQ(moduleText(u"clsOrder"), joinLines({u"Option Explicit", u"Const cintMax As Integer = 0"}));
}

TEST_F(QuickInputBox, ConstInAnEnumBlockOfTypeLongIsAMember) {
    openModule(kModule, 7, 10, u"basVars");
    auto& box = quick(u"Const", u"Long");
    setText(box, u"txtName", u"Blue");
    click(box, u"cmdOK");
    EXPECT_EQ(vars(), withLine(8, u"    Blue"));
    openModule({u"Public Enum Size", u"    Small", u"End Enum"}, 2, 1, u"basSizes");
    auto& again = quick(u"Const", u"Long");
    setText(again, u"txtName", u"Large");
    setText(again, u"txtValue", u"10");
    click(again, u"cmdOK");
    EXPECT_EQ(moduleText(u"basSizes"), joinLines({u"Public Enum Size", u"    Small", u"    Large = 10", u"End Enum"}));
}

TEST_F(QuickInputBox, AStringValueOfBasicStaysBare) {
    openModule(kModule, 12, 1, u"basVars");
    auto& box = quick(u"Const", u"String");
    setText(box, u"txtName", u"gcstrBreak");
    setText(box, u"txtValue", u"vbCrLf");
    click(box, u"cmdOK");
    EXPECT_EQ(vars(), withLine(12, u"Public Const gcstrBreak As String = vbCrLf"));
}

TEST_F(QuickInputBox, ARefusedNameKeepsTheBoxAndCancelClosesIt) {
    openModule(kModule, 14, 17, u"basVars");
    auto& box = quick(u"Dim", u"Long");
    setText(box, u"txtName", u"mlngCount");
    platform->queueAnswer(u"no");
    click(box, u"cmdOK");
    EXPECT_TRUE(boxOpen());
    EXPECT_EQ(box.FocusedControl, u"txtName");
    platform->queueAnswer(u"cancel");
    click(box, u"cmdOK");
    EXPECT_FALSE(boxOpen());
    EXPECT_EQ(vars(), joinLines(kModule));
}

TEST_F(QuickInputBox, APropertyNameIsHandedToThePropertyBuilder) {
    openModule(kModule, 14, 17, u"basVars");
    ASSERT_TRUE(ctx->Forms->Open(u"frmInputBox", {u"Property", u"String"}));
    auto& box = top<frmInputBox>();
    EXPECT_EQ(box.Caption, u"Property (String)");
    EXPECT_FALSE(box.Tall());
    // No prefix for a property.
    EXPECT_EQ(box.Controls(u"txtName").Text(), u"Total");
    setText(box, u"txtName", u"Amount");
    click(box, u"cmdOK");
    EXPECT_FALSE(boxOpen());
    auto* builder = ctx->Forms->FindOpen(u"frmProperty");
    ASSERT_NE(builder, nullptr);
    // The name arrives as if typed there, and the Property Builder's own naming rule applies.
    EXPECT_EQ(builder->Controls(u"txtName").Text(), u"strAmount");
    EXPECT_EQ(builder->Controls(u"cboDataType").Text(), u"String");
    EXPECT_EQ(vars(), joinLines(kModule));
}

TEST_F(QuickInputBox, CancelLeavesTheModuleByteIdentical) {
    openModule(kModule, 14, 17, u"basVars");
    auto& box = quick(u"Const", u"String");
    click(box, u"cmdCancel");
    EXPECT_FALSE(boxOpen());
    EXPECT_EQ(vars(), joinLines(kModule));
}

}  // namespace
}  // namespace quillet::builders
