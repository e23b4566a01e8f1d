// The Class Builder's rules on the model: where it opens from, the tabs and lists, the names
// Create checks, the question before work is lost, and the class it makes.

#include "builders/frm_class.h"
#include "builders/frm_select_table.h"

#include <fstream>

#include "../generators/golden.h"
#include "addin/command_handlers.h"
#include "hosts/files/file_project.h"
#include "hosts/memory/access_app.h"
#include "property_fixture.h"

namespace quillet::builders {
namespace {

class ClassBuilder : public testing::PropertyFixture {
protected:
    ClassBuilder() {
        collectionClassReady();
    }
    frmClass& open() {
        EXPECT_TRUE(ctx->Forms->Open(u"frmClass"));
        return top<frmClass>();
    }
    void click(dialogs::Form& form, const Str& button) {
        ctx->Forms->Raise([&] { form.Controls(button).Click(); });
    }
    // A property added through the Property Builder, as the user adds it.
    void addProperty(frmClass& form, const Str& name, const Str& type) {
        form.Controls(u"TabMain").ListIndex(1);
        click(form, u"cmdNewProp");
        auto& property = top<frmProperty>();
        property.Controls(u"cboDataType").Text(type);
        property.Controls(u"txtName").Text(name);
        click(property, u"cmdOK");
    }
    const platform::ShownBox& lastBox() { return platform->shownBoxes().back(); }
};

TEST_F(ClassBuilder, OpensFromTheCommandBarsRoutine) {
    core::RoutineRun(*ctx, u"frmClass");
    ASSERT_NE(ctx->Forms->Top(), nullptr);
    EXPECT_EQ(ctx->Forms->Top()->Name(), u"frmClass");
    EXPECT_TRUE(ctx->Forms->Top()->IsModal());
}

TEST_F(ClassBuilder, TheListsHaveTheirColumnsAndTheGeneralPageShows) {
    auto& form = open();
    EXPECT_EQ(form.PropertiesView().ColumnHeaders(), (std::vector<Str>{u"Name", u"Data Type", u"Accessibility"}));
    EXPECT_EQ(form.MethodsView().ColumnHeaders(),
              (std::vector<Str>{u"Name", u"ReturnType", u"Accessibility", u"Arguments"}));
    EXPECT_EQ(form.Controls(u"TabMain").Text(), u"General");
    EXPECT_TRUE(form.Controls(u"txtClassName").Visible);
    EXPECT_FALSE(form.Controls(u"lvProperties").Visible);
    EXPECT_FALSE(form.Controls(u"cmdFromTable").Enabled);
}

TEST_F(ClassBuilder, TheRowsCarryTheColumnsAndTheKeys) {
    auto& form = open();
    form.Controls(u"txtClassName").Text(u"clsTask");
    addProperty(form, u"Due", u"Date");
    auto& view = form.PropertiesView();
    ASSERT_EQ(view.List().ListCount(), 1);
    EXPECT_EQ(view.List().List(0), u"Due");
    EXPECT_EQ(view.SubItems(0), (std::vector<Str>{u"Date", u"Public"}));
    EXPECT_EQ(view.Key(0), form.Class().Properties().Item(1)->ID);
    EXPECT_EQ(view.List().ListIndex(), 0);
    EXPECT_EQ(view.SelectedKey(), view.Key(0));
}

TEST_F(ClassBuilder, TheMethodBuilderEditsTheSelectedMethod) {
    auto& form = open();
    form.Controls(u"txtClassName").Text(u"clsTask");
    form.Controls(u"TabMain").ListIndex(2);
    click(form, u"cmdNewMethod");
    auto& method = top<frmProcedure>();
    method.Controls(u"txtName").Text(u"Due");
    click(method, u"cmdNewArg");
    auto& argument = top<frmArgument>();
    argument.Controls(u"cboDataType").Text(u"Long");
    argument.Controls(u"txtName").Text(u"Days");
    click(argument, u"cmdOK");
    method.Controls(u"cboReturnValueType").Text(u"Date");
    click(method, u"cmdOK");
    auto& view = form.MethodsView();
    ASSERT_EQ(view.Count(), 1);
    EXPECT_EQ(view.SubItems(0), (std::vector<Str>{u"Date", u"", u"rlngDays As Long"}));
    click(form, u"cmdEditMethod");
    auto& again = top<frmProcedure>();
    EXPECT_EQ(again.Controls(u"txtName").Text(), u"Due");
    again.Controls(u"cboAccessibility").ListIndex(1);
    click(again, u"cmdOK");
    EXPECT_EQ(form.Class().Methods().Count(), 1);
    EXPECT_EQ(view.SubItems(0)[1], u"Public");
}

TEST_F(ClassBuilder, ACollectionNameLikeTheClassNameIsTaken) {
    auto& form = open();
    form.Controls(u"txtClassName").Text(u"clsTask");
    form.Controls(u"chkMakeColClass").Value(1);
    form.Controls(u"txtColClassName").Text(u"clsTask");
    platform->queueAnswer(u"no");
    click(form, u"cmdCreate");
    EXPECT_EQ(ctx->Forms->Top(), &form);
    EXPECT_EQ(form.FocusedControl, u"txtColClassName");
    EXPECT_FALSE(project->component(u"clsTask"));
}

TEST_F(ClassBuilder, AMissingClassNameIsSaidAndNothingIsMade) {
    auto& form = open();
    click(form, u"cmdCreate");
    EXPECT_EQ(lastBox().prompt, u"Name is missing.");
    EXPECT_EQ(form.FocusedControl, u"txtClassName");
    EXPECT_EQ(project->components().size(), 2u);
}

TEST_F(ClassBuilder, CancelOnTheNameQuestionClosesTheDialog) {
    auto& form = open();
    form.Controls(u"txtClassName").Text(u"clsOrder");
    platform->queueAnswer(u"cancel");
    click(form, u"cmdCreate");
    EXPECT_EQ(ctx->Forms->Top(), nullptr);
    EXPECT_EQ(moduleText(u"clsOrder"), u"Option Explicit");
}

TEST_F(ClassBuilder, CreateWithAnEmptyListMakesAClassWithOnlyTheHeader) {
    set(settings::iiModuleHeaderFile, u"ModuleHeader.bas");
    write("ModuleHeader.bas", "' {MODULENAME}{DESCRIPTION}\r\n");
    auto& form = open();
    form.Controls(u"txtClassName").Text(u"clsEmpty");
    click(form, u"cmdCreate");
    EXPECT_EQ(ctx->Forms->Top(), nullptr);
    ASSERT_TRUE(project->component(u"clsEmpty"));
    EXPECT_EQ(moduleText(u"clsEmpty"), u"' clsEmpty\r\n");
}

TEST_F(ClassBuilder, AClassWithACollectionClass) {
    set(settings::iiModuleHeaderFile, u"ModuleHeader.bas");
    write("ModuleHeader.bas", "'---\r\n' {MODULENAME}{DESCRIPTION}\r\n'---\r\n");
    auto& form = open();
    form.Controls(u"txtClassName").Text(u"clsCustomer");
    form.Controls(u"txtDescription").Text(u"A customer of the shop, with the address the invoices go to.");
    form.Controls(u"chkMakeColClass").Value(1);
    addProperty(form, u"Name", u"String");
    addProperty(form, u"Orders", u"Collection");
    Str before = moduleText(u"clsOrder");
    EXPECT_EQ(project->components().size(), 2u);
    click(form, u"cmdCreate");
    EXPECT_EQ(ctx->Forms->Top(), nullptr);
    EXPECT_TRUE(testing::matchesGolden(moduleText(u"clsCustomer"), "class/customer.txt"));
    EXPECT_TRUE(testing::matchesGolden(moduleText(u"clsCustomers"), "class/customers_collection.txt"));
    EXPECT_EQ(moduleText(u"clsOrder"), before);
    EXPECT_TRUE(reports.empty());
}

TEST_F(ClassBuilder, ATakenCollectionNameLetThroughIsReportedAndTheClassStands) {
    project->addComponent(u"clsTasks", host::vbext_ct_ClassModule, {u"' mine"});
    auto& form = open();
    form.Controls(u"txtClassName").Text(u"clsTask");
    form.Controls(u"chkMakeColClass").Value(1);
    platform->queueAnswer(u"yes");
    click(form, u"cmdCreate");
    EXPECT_EQ(ctx->Forms->Top(), nullptr);
    EXPECT_TRUE(project->component(u"clsTask"));
    EXPECT_EQ(moduleText(u"clsTasks"), u"' mine");
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_NE(basic::InStr(reports[0], u"CollectionClassModuleAdd"), 0);
}

TEST_F(ClassBuilder, CopyFromTableFillsBothListsAndNothingTouchesTheProjectBeforeCreate) {
    auto& form = open();
    form.Controls(u"txtClassName").Text(u"clsProduct");
    form.CopyFromTable(u"Products", {{u"ProductID", 10004}, {u"Unit Price", 5}}, false);
    EXPECT_EQ(form.PropertiesView().Count(), 4);
    EXPECT_EQ(form.PropertiesView().List().List(1), u"UnitPrice");
    EXPECT_EQ(form.MethodsView().Count(), 5);
    EXPECT_EQ(project->components().size(), 2u);
    click(form, u"cmdCreate");
    Str text = moduleText(u"clsProduct");
    EXPECT_NE(basic::InStr(text, u"Set Recordset = CurrentDb.OpenRecordset(\"Products\", dbOpenDynaset)"), 0);
    EXPECT_NE(basic::InStr(text, u".Fields(\"Unit Price\").Value = Me.UnitPrice"), 0);
}

TEST_F(ClassBuilder, CopyFromTableTakesTheTickedFieldsOfTheTablePickedInSelectTableAndFields) {
    ctx->hostApplications().AccessApp = std::make_shared<hosts::memory::AccessApplication>(
        host::acMDB, std::vector<host::DatabaseTable>{
                         {u"Products", u"TABLE",
                          {{u"ProductID", 4, host::dbAutoIncrField}, {u"Unit Price", 5, 0}, {u"Discontinued", 1, 0}}}});
    auto& form = open();
    EXPECT_TRUE(form.Controls(u"cmdFromTable").Enabled);
    form.Controls(u"txtClassName").Text(u"clsProduct");
    click(form, u"cmdFromTable");
    auto& select = top<frmSelectTableAndFields>();
    select.Controls(u"lstFields").Selected(2, false);
    click(select, u"cmdOK");
    ASSERT_EQ(ctx->Forms->Top(), &form);
    std::vector<Str> names;
    for (long i = 0; i < form.PropertiesView().Count(); ++i)
        names.push_back(form.PropertiesView().List().List(i) + u" " + form.PropertiesView().SubItems(i)[0]);
    EXPECT_EQ(names, (std::vector<Str>{u"ProductID Long", u"UnitPrice Currency", u"Recordset Recordset", u"Loaded Boolean"}));
    EXPECT_EQ(form.Class().Properties().Items.Item(1)->DataType2, 10004);
    EXPECT_EQ(form.MethodsView().Count(), 5);
    EXPECT_TRUE(reports.empty());
}

TEST_F(ClassBuilder, CopyFromTableCancelledChangesNothing) {
    ctx->hostApplications().AccessApp = std::make_shared<hosts::memory::AccessApplication>(
        host::acMDB, std::vector<host::DatabaseTable>{{u"Products", u"TABLE", {{u"ProductID", 4, 0}}}});
    auto& form = open();
    click(form, u"cmdFromTable");
    click(top<frmSelectTableAndFields>(), u"cmdCancel");
    EXPECT_EQ(form.PropertiesView().Count(), 0);
    EXPECT_EQ(form.MethodsView().Count(), 0);
}

}  // namespace
}  // namespace quillet::builders
