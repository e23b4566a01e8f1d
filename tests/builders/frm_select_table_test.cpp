// Select Table and Fields on the model: the tables of the Access project's database (system and
// temporary tables left out, the catalogue's tables of an ADP), the fields with their packed
// types, all ticked; Select All and Unselect All; OK hands the choice to the caller; no Access
// application, no tables.

#include "builders/frm_select_table.h"

#include "builder_fixture.h"
#include "builders/builder_layouts.h"
#include "dialogs/layout_check.h"
#include "hosts/memory/access_app.h"

namespace quillet::builders {
namespace {

using host::DatabaseTable;

std::vector<DatabaseTable> sampleTables() {
    return {
        {u"MSysObjects", u"TABLE", {{u"Id", 4, host::dbAutoIncrField}}},
        {u"Orders", u"TABLE",
         {{u"OrderID", 4, host::dbAutoIncrField | host::dbFixedField},
          {u"Customer Name", 10, host::dbVariableField | host::dbUpdatableField},
          {u"Ordered", 8, host::dbFixedField | host::dbUpdatableField}}},
        {u"~TMPCLP112233", u"TABLE", {{u"Field1", 10, 0}}},
        {u"Customers", u"TABLE", {{u"CustomerID", 4, 0}}},
    };
}

class SelectTable : public testing::BuilderFixture {
protected:
    void access(long projectType, std::vector<DatabaseTable> tables) {
        ctx->hostApplications().AccessApp = std::make_shared<hosts::memory::AccessApplication>(projectType, std::move(tables));
    }
    frmSelectTableAndFields& open(std::function<void(frmSelectTableAndFields&)> chosen = {}) {
        OpenSelectTableAndFields(*ctx, {}, std::move(chosen));
        return top<frmSelectTableAndFields>();
    }
    void click(dialogs::Form& form, const Str& button) {
        ctx->Forms->Raise([&] { form.Controls(button).Click(); });
    }
    static std::vector<Str> entries(dialogs::Control& list) {
        std::vector<Str> texts;
        for (long i = 0; i < list.ListCount(); ++i) texts.push_back(list.List(i));
        return texts;
    }
    static std::vector<bool> ticks(dialogs::Control& list) {
        std::vector<bool> selected;
        for (long i = 0; i < list.ListCount(); ++i) selected.push_back(list.Selected(i));
        return selected;
    }
};

TEST_F(SelectTable, SystemTablesNeverShow) {
    access(host::acMDB, sampleTables());
    auto& form = open();
    EXPECT_EQ(form.Caption, u"Select Table and Fields");
    EXPECT_EQ(entries(form.Controls(u"cboTables")), (std::vector<Str>{u"Orders", u"Customers"}));
    EXPECT_EQ(form.Controls(u"cboTables").Text(), u"Orders");
}

TEST_F(SelectTable, AnAutoIncrementFieldHasItemDataOfAtLeast10000) {
    access(host::acMDB, sampleTables());
    auto& form = open();
    auto& fields = form.Controls(u"lstFields");
    EXPECT_TRUE(fields.CheckBoxes);
    EXPECT_EQ(entries(fields), (std::vector<Str>{u"OrderID", u"Customer Name", u"Ordered"}));
    EXPECT_EQ(fields.ItemData(0), 10004);
    EXPECT_GE(fields.ItemData(0), kAutoIncrementField);
    EXPECT_EQ(fields.ItemData(1), 10);
    EXPECT_EQ(fields.ItemData(2), 8);
    EXPECT_EQ(ticks(fields), (std::vector<bool>{true, true, true}));
}

TEST_F(SelectTable, AnotherTableRefillsTheFieldsAllTicked) {
    access(host::acMDB, sampleTables());
    auto& form = open();
    click(form, u"cmdUnSelectAll");
    ctx->Forms->Raise([&] { form.Controls(u"cboTables").ListIndex(1); });
    EXPECT_EQ(entries(form.Controls(u"lstFields")), (std::vector<Str>{u"CustomerID"}));
    EXPECT_EQ(ticks(form.Controls(u"lstFields")), (std::vector<bool>{true}));
    EXPECT_EQ(form.Controls(u"lstFields").ItemData(0), 4);
}

TEST_F(SelectTable, SelectAllAndUnselectAllSetEveryTick) {
    access(host::acMDB, sampleTables());
    auto& form = open();
    auto& fields = form.Controls(u"lstFields");
    click(form, u"cmdUnSelectAll");
    EXPECT_EQ(ticks(fields), (std::vector<bool>{false, false, false}));
    fields.Selected(1, true);
    click(form, u"cmdSelectAll");
    EXPECT_EQ(ticks(fields), (std::vector<bool>{true, true, true}));
}

TEST_F(SelectTable, AnAdpListsTheCatalogueTablesAndPacksColumnsFrom1000) {
    access(host::acADP, {{u"dtproperties", u"SYSTEM TABLE", {{u"id", 3, 0}}},
                         {u"vwOrders", u"VIEW", {{u"OrderID", 3, 0}}},
                         {u"Orders", u"TABLE", {{u"OrderID", 3, 0}, {u"Customer", 202, 0}}}});
    auto& form = open();
    EXPECT_TRUE(form.IsAdp());
    EXPECT_EQ(entries(form.Controls(u"cboTables")), (std::vector<Str>{u"Orders"}));
    EXPECT_EQ(form.Controls(u"lstFields").ItemData(0), 1003);
    EXPECT_EQ(form.Controls(u"lstFields").ItemData(1), 1202);
}

TEST_F(SelectTable, OkHandsTheChoiceToTheCallerThenUnloads) {
    access(host::acMDB, sampleTables());
    Str table;
    std::vector<Str> chosen;
    bool ok = false;
    auto& form = open([&](frmSelectTableAndFields& f) {
        ok = f.OK();
        table = f.Controls(u"cboTables").Text();
        auto& list = f.Controls(u"lstFields");
        for (long i = 0; i < list.ListCount(); ++i)
            if (list.Selected(i)) chosen.push_back(list.List(i));
    });
    form.Controls(u"lstFields").Selected(1, false);
    click(form, u"cmdOK");
    EXPECT_TRUE(ok);
    EXPECT_EQ(table, u"Orders");
    EXPECT_EQ(chosen, (std::vector<Str>{u"OrderID", u"Ordered"}));
    EXPECT_EQ(ctx->Forms->FindOpen(u"frmSelectTableAndFields"), nullptr);
}

TEST_F(SelectTable, CancelUnloadsAndTheCallerHearsNothing) {
    access(host::acMDB, sampleTables());
    bool called = false;
    auto& form = open([&](frmSelectTableAndFields&) { called = true; });
    click(form, u"cmdCancel");
    EXPECT_FALSE(called);
    EXPECT_FALSE(form.OK());
    EXPECT_EQ(ctx->Forms->FindOpen(u"frmSelectTableAndFields"), nullptr);
}

TEST_F(SelectTable, WithoutAnAccessApplicationTheDialogListsNothing) {
    auto& form = open();
    EXPECT_EQ(form.Controls(u"cboTables").ListCount(), 0);
    EXPECT_EQ(form.Controls(u"lstFields").ListCount(), 0);
    EXPECT_TRUE(reports.empty());
}

TEST_F(SelectTable, AFailingDatabaseIsReportedAndTheDialogStays) {
    auto app = std::make_shared<hosts::memory::AccessApplication>(host::acMDB, sampleTables());
    ctx->hostApplications().AccessApp = app;
    auto& form = open();
    app->tables.clear();
    ctx->Forms->Raise([&] { form.Controls(u"cboTables").ListIndex(1); });
    EXPECT_EQ(form.Controls(u"lstFields").ListCount(), 0);
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_NE(basic::InStr(reports[0], u"cboTables_Click"), 0);
}

TEST_F(SelectTable, IsRegisteredWithALayoutThatPassesItsChecks) {
    EXPECT_TRUE(ctx->Forms->IsRegistered(u"frmSelectTableAndFields"));
    access(host::acMDB, sampleTables());
    auto& form = open();
    auto problems = dialogs::LayoutProblems(frmSelectTableAndFieldsLayout(), form);
    EXPECT_TRUE(problems.empty()) << (problems.empty() ? std::string() : basic::toUtf8(problems.front()));
}

}  // namespace
}  // namespace quillet::builders
