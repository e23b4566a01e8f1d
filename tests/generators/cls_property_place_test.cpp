// A property placed in its module: the declaration behind the declarations, the procedures at
// the end of the module, behind the procedure at the caret, or right behind the declaration.

#include "generators/cls_property.h"

#include "../fragments/fragments_fixture.h"
#include "source/prefixes.h"

namespace quillet::generators {
namespace {

class PropertyPlacing : public testing::FragmentsFixture {
protected:
    PropertyPlacing() {
        set(settings::iiPrefixModule, u"m");
        ctx->Prefixes = source::PrefixesCollectionsCreate(source::PrefixSettings{}, {{u"Long", u"lng", u"", u"", u""}});
        openModule({u"Option Explicit"}, 1);
        auto order = project->addComponent(u"clsOrder", host::vbext_ct_ClassModule,
                                           {u"Option Explicit", u"Private mstrName As String", u"", u"Public Sub Ship()",
                                            u"    Debug.Print", u"End Sub", u"", u"Public Sub Bill()", u"End Sub"});
        pane = vbe->openPane(order);
    }
    clsProperty count() {
        clsProperty p(*ctx);
        p.Name = u"Count";
        p.datatype = u"Long";
        p.AccessibleType = u"Public";
        p.ModuleName = u"clsOrder";
        p.GetPart = true;
        p.SetPart = false;
        return p;
    }
    Str order() { return moduleText(u"clsOrder"); }

    host::CodePanePtr pane;
};

constexpr char16_t kGet[] = u"Public Property Get Count() As Long\r\n    Count = mlngCount\r\nEnd Property";

TEST_F(PropertyPlacing, AtTheEndOfTheModule) {
    auto p = count();
    EXPECT_TRUE(BuildPropCodeLines(*ctx, p, true));
    EXPECT_EQ(order(), u"Option Explicit\r\nPrivate mstrName As String\r\nPrivate mlngCount As Long\r\n\r\n"
                       u"Public Sub Ship()\r\n    Debug.Print\r\nEnd Sub\r\n\r\nPublic Sub Bill()\r\nEnd Sub\r\n\r\n" +
                           Str(kGet));
}

TEST_F(PropertyPlacing, BehindTheProcedureAtTheCaret) {
    pane->SetSelection(5, 5, 5, 5);
    auto p = count();
    EXPECT_TRUE(BuildPropCodeLines(*ctx, p, false));
    EXPECT_EQ(order(), u"Option Explicit\r\nPrivate mstrName As String\r\nPrivate mlngCount As Long\r\n\r\n"
                       u"Public Sub Ship()\r\n    Debug.Print\r\nEnd Sub\r\n\r\n" +
                           Str(kGet) + u"\r\n\r\nPublic Sub Bill()\r\nEnd Sub");
}

TEST_F(PropertyPlacing, BehindTheDeclarationWhenNoProcedureIsAtTheCaret) {
    pane->SetSelection(2, 1, 2, 1);
    auto p = count();
    EXPECT_TRUE(BuildPropCodeLines(*ctx, p, false));
    EXPECT_EQ(order(), u"Option Explicit\r\nPrivate mstrName As String\r\nPrivate mlngCount As Long\r\n" + Str(kGet) +
                           u"\r\n\r\nPublic Sub Ship()\r\n    Debug.Print\r\nEnd Sub\r\n\r\nPublic Sub Bill()\r\nEnd Sub");
}

TEST_F(PropertyPlacing, TheCaretInAnotherModuleCountsAsNoProcedure) {
    auto main = project->component(u"basMain");
    vbe->openPane(main)->SetSelection(1, 1, 1, 1);
    auto p = count();
    p.SetPart = true;
    EXPECT_TRUE(BuildPropCodeLines(*ctx, p, false));
    EXPECT_NE(basic::InStr(order(), u"Private mlngCount As Long\r\nPublic Property Get Count() As Long\r\n"), 0);
    EXPECT_NE(basic::InStr(order(), u"Public Property Let Count(rData As Long)\r\n    mlngCount = rData\r\nEnd Property\r\n\r\nPublic Sub Ship()"), 0);
    EXPECT_EQ(moduleText(), u"Option Explicit");
}

TEST_F(PropertyPlacing, AnUnknownModuleIsReportedAndNothingIsInserted) {
    auto p = count();
    p.ModuleName = u"clsMissing";
    Str before = order();
    EXPECT_FALSE(BuildPropCodeLines(*ctx, p, true));
    EXPECT_EQ(order(), before);
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_NE(basic::InStr(reports[0], u"BuildPropCodeLines"), 0);
}

}  // namespace
}  // namespace quillet::generators
