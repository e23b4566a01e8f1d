// The Argument Builder's rules on the model: the flags, default values by type, name prefixes,
// the refused name, OK & New and the report to the parent.

#include "builders/frm_argument.h"

#include "builder_fixture.h"
#include "builders/frm_procedure.h"
#include "source/type_lists.h"

namespace quillet::builders {
namespace {

class ArgumentBuilder : public testing::BuilderFixture {
protected:
    frmArgument& openArgument(const std::vector<Str>& moduleLines = {}) {
        if (!moduleLines.empty()) {
            auto module = project->component(u"basMain")->CodeModule();
            module->InsertLines(2, basic::Join(moduleLines, u"\r\n"));
        }
        EXPECT_TRUE(ctx->Forms->Open(u"frmProcedure"));
        parent = &top<frmProcedure>();
        ctx->Forms->Raise([&] { parent->Controls(u"cmdNewArg").Click(); });
        return top<frmArgument>();
    }
    void click(dialogs::Form& form, const Str& control) {
        ctx->Forms->Raise([&] { form.Controls(control).Click(); });
    }
    static bool enabled(dialogs::Form& form, const Str& control) { return form.Controls(control).Enabled; }

    frmProcedure* parent = nullptr;
};

TEST_F(ArgumentBuilder, OpensWithStringByRefAndNoDefault) {
    auto& form = openArgument();
    EXPECT_EQ(form.Controls(u"cboDataType").Text(), u"String");
    EXPECT_FALSE(form.chkByVal());
    EXPECT_EQ(form.Controls(u"optByVal(0)").Caption, u"By&Val");
    EXPECT_EQ(form.Controls(u"optByVal(1)").Caption, u"By&Ref");
    EXPECT_FALSE(enabled(form, u"cboDefaultValue"));
    EXPECT_EQ(form.ParentForm, parent);
}

TEST_F(ArgumentBuilder, AnArrayTakesByValOptionalAndParamArrayAway) {
    auto& form = openArgument();
    form.chkByVal(true);
    form.Controls(u"chkArray").Value(1);
    EXPECT_FALSE(form.chkByVal());
    EXPECT_FALSE(enabled(form, u"optByVal(0)"));
    EXPECT_FALSE(enabled(form, u"chkOptional"));
    EXPECT_FALSE(enabled(form, u"chkParamArray"));
    EXPECT_FALSE(enabled(form, u"cboDefaultValue"));
    form.Controls(u"chkArray").Value(0);
    EXPECT_TRUE(enabled(form, u"optByVal(0)"));
    EXPECT_TRUE(enabled(form, u"chkOptional"));
    EXPECT_TRUE(enabled(form, u"chkParamArray"));
}

TEST_F(ArgumentBuilder, OptionalOffersTheDefaultAndTakesParamArrayAway) {
    auto& form = openArgument();
    form.Controls(u"chkParamArray").Value(1);
    form.Controls(u"chkParamArray").Value(0);
    form.Controls(u"chkOptional").Value(1);
    EXPECT_TRUE(enabled(form, u"cboDefaultValue"));
    EXPECT_TRUE(enabled(form, u"lblDefaultValue"));
    EXPECT_FALSE(enabled(form, u"chkArray"));
    EXPECT_FALSE(enabled(form, u"chkParamArray"));
    form.Controls(u"chkOptional").Value(0);
    EXPECT_FALSE(enabled(form, u"cboDefaultValue"));
    EXPECT_TRUE(enabled(form, u"chkArray"));
}

TEST_F(ArgumentBuilder, AfterAnOptionalArgumentParamArrayIsNotOffered) {
    auto& form = openArgument();
    form.Controls(u"chkOptional").Value(1);
    form.Controls(u"txtName").Text(u"a");
    click(form, u"cmdOKAndNew");
    EXPECT_FALSE(enabled(form, u"chkParamArray"));
    EXPECT_TRUE(enabled(form, u"chkOptional"));
}

TEST_F(ArgumentBuilder, DefaultValuesFitTheType) {
    auto& form = openArgument({u"Private Const mcstrTitle As String = \"T\"", u"Private Const mclngMax As Long = 5",
                               u"Public Enum Colour", u"    Red", u"    Green", u"End Enum"});
    auto& values = form.Controls(u"cboDefaultValue");
    EXPECT_EQ(values.List(0), u"<New Constant>");
    EXPECT_GE(source::FindInList(values, u"mcstrTitle"), 0);
    EXPECT_LT(source::FindInList(values, u"mclngMax"), 0);
    auto& types = form.Controls(u"cboDataType");
    types.ListIndex(source::FindInList(types, u"Long"));
    EXPECT_GE(source::FindInList(values, u"mclngMax"), 0);
    EXPECT_LT(source::FindInList(values, u"mcstrTitle"), 0);
    types.ListIndex(source::FindInList(types, u"Variant"));
    EXPECT_GE(source::FindInList(values, u"mclngMax"), 0);
    EXPECT_GE(source::FindInList(values, u"mcstrTitle"), 0);
    types.ListIndex(source::FindInList(types, u"Colour"));
    EXPECT_EQ(values.ListCount(), 3);
    EXPECT_EQ(values.List(1), u"Red");
    EXPECT_EQ(values.List(2), u"Green");
}

TEST_F(ArgumentBuilder, NewConstantWithoutAConstantBuilderLeavesNoValue) {
    auto& form = openArgument();
    form.Controls(u"chkOptional").Value(1);
    form.Controls(u"cboDefaultValue").ListIndex(0);
    EXPECT_EQ(form.Controls(u"cboDefaultValue").Text(), u"");
}

TEST_F(ArgumentBuilder, TheNameGetsThePrefixOfItsTypeAndPassing) {
    ctx->Prefixes = source::PrefixesCollectionsCreate(source::PrefixSettings{},
                                                      {{u"Long", u"lng", u"", u"", u""}, {u"String", u"str", u"", u"", u""}});
    auto& form = openArgument();
    auto& name = form.Controls(u"txtName");
    name.Text(u"Count");
    EXPECT_EQ(name.Text(), u"rstrCount");
    form.Controls(u"cboDataType").ListIndex(source::FindInList(form.Controls(u"cboDataType"), u"Long"));
    EXPECT_EQ(name.Text(), u"rlngCount");
    form.chkByVal(true);
    EXPECT_EQ(name.Text(), u"vlngCount");
}

TEST_F(ArgumentBuilder, ATakenNameKeepsTheDialogWithTheFocusOnTheName) {
    auto& form = openArgument();
    form.Controls(u"txtName").Text(u"a");
    EXPECT_TRUE(form.PressOK());
    form.FocusedControl.clear();
    platform->queueAnswer(u"no");
    EXPECT_FALSE(form.PressOK());
    EXPECT_EQ(form.FocusedControl, u"txtName");
    EXPECT_EQ(parent->Procedure().Arguments().Count(), 1);
}

TEST_F(ArgumentBuilder, OkAndNewGrowsTheModelAndTheParentsListAndEmptiesTheDialog) {
    auto& form = openArgument();
    form.Controls(u"txtName").Text(u"a");
    form.Controls(u"chkArray").Value(1);
    click(form, u"cmdOKAndNew");
    EXPECT_EQ(ctx->Forms->Top(), &form);
    EXPECT_EQ(parent->Procedure().Arguments().Count(), 1);
    EXPECT_EQ(parent->Procedure().Arguments().Item(1)->Number, 1);
    EXPECT_EQ(parent->Controls(u"lstArguments").List(0), u"a() As String");
    EXPECT_EQ(parent->Controls(u"lstArguments").ListIndex(), 0);
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"");
    EXPECT_EQ(form.Controls(u"chkArray").Value(), 0);
    EXPECT_EQ(form.Controls(u"cboDataType").Text(), u"String");
    click(form, u"cmdCancel");
    EXPECT_EQ(ctx->Forms->Top(), parent);
}

TEST_F(ArgumentBuilder, AStringDefaultIsQuoted) {
    auto& form = openArgument();
    form.Controls(u"chkOptional").Value(1);
    form.Controls(u"txtName").Text(u"s");
    form.Controls(u"cboDefaultValue").Text(u"abc");
    EXPECT_TRUE(form.PressOK());
    EXPECT_EQ(parent->Procedure().Arguments().Item(1)->DefaultValue, u"\"abc\"");
}

TEST_F(ArgumentBuilder, ANewConstantReportedByNameBecomesTheDefault) {
    auto& form = openArgument();
    form.CallByName(u"AddNewConst", {Str(u"cstrDefault")});
    EXPECT_EQ(form.Controls(u"cboDefaultValue").Text(), u"cstrDefault");
}

}  // namespace
}  // namespace quillet::builders
