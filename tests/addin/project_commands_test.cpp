#include "addin/project_commands.h"

#include "addin/quillet_handle.h"
#include "scan_fixture.h"
#include "../source/fake_office.h"

namespace quillet::addin {
namespace {

namespace memory = hosts::memory;

using testing::collectionOf;
using testing::FakeObject;
using testing::joinLines;
using testing::named;
using testing::ScanCommandFixture;

class ProjectCommands : public ScanCommandFixture {};

TEST_F(ProjectCommands, FilenameGoesInQuotedAtTheCaret) {
    openModule({u"Sub A()", u"    path = ", u"End Sub"}, 2, 12);
    platform->queueAnswer(u"C:\\Data\\orders.csv");
    QuilletHandle(*ctx, u"Filename", u"");
    EXPECT_EQ(moduleText(), joinLines({u"Sub A()", u"    path = \"C:\\Data\\orders.csv\"", u"End Sub"}));
    ASSERT_EQ(platform->fileDialogs().size(), 1u);
    EXPECT_EQ(platform->fileDialogs()[0].title, u"Select File");
    ASSERT_EQ(platform->fileDialogs()[0].filters.size(), 1u);
    EXPECT_EQ(platform->fileDialogs()[0].filters[0].first, u"All Files");
    EXPECT_EQ(platform->fileDialogs()[0].filters[0].second, u"*.*");
}

TEST_F(ProjectCommands, FilenameCancelledWritesNothing) {
    openModule({u"Sub A()", u"    path = ", u"End Sub"}, 2, 12);
    platform->queueAnswer(u"cancel");
    QuilletHandle(*ctx, u"Filename", u"");
    EXPECT_EQ(moduleText(), joinLines({u"Sub A()", u"    path = ", u"End Sub"}));
}

TEST_F(ProjectCommands, FolderReplacesTheSelection) {
    openModule({u"Sub A()", u"    ChDir \"old\"", u"End Sub"}, 2, 11);
    vbe->ActiveCodePane()->SetSelection(2, 11, 2, 16);
    platform->queueAnswer(u"D:\\Reports");
    QuilletHandle(*ctx, u"Folder", u"");
    EXPECT_EQ(moduleText(), joinLines({u"Sub A()", u"    ChDir \"D:\\Reports\"", u"End Sub"}));
    EXPECT_EQ(platform->shownBoxes().back().kind, platform::ShownBox::Kind::Folder);
}

TEST_F(ProjectCommands, ImportTakesTheChosenFileFromTheLibrary) {
    openModule({u"Sub A()", u"End Sub"});
    std::vector<Str> imported;
    vbe->setImporter([&](memory::MemoryProject& p, const Str& path) {
        imported.push_back(path);
        return p.addComponent(u"basImported", host::vbext_ct_StdModule, {u"Sub B()", u"End Sub"});
    });
    platform->queueAnswer(u"C:\\Lib\\basImported.bas");
    ImportFile(*ctx);
    EXPECT_EQ(imported, (std::vector<Str>{u"C:\\Lib\\basImported.bas"}));
    EXPECT_TRUE(project->component(u"basImported"));
    const auto& request = platform->fileDialogs().back();
    EXPECT_EQ(request.title, u"Import File");
    EXPECT_EQ(request.initialFolder, settings::LibraryFolder(*ctx->IniSettings));
    ASSERT_EQ(request.filters.size(), 5u);
    EXPECT_EQ(request.filters[0].first, u"VB Files (*.bas, *.frm, *.cls)");
    EXPECT_EQ(request.filters[0].second, u"*.bas;*.frm;*.cls");
}

TEST_F(ProjectCommands, ExportOverAnExistingFileReplacesIt) {
    openModule({u"Sub A()", u"End Sub"});
    Str folder = ctx->IniSettings->Files.systemPath(home);
    writeFile(folder, "basMain.bas", u"old");
    Str target = folder + u"\\basMain.bas";
    bool existedAtExport = true;
    vbe->setExporter([&](memory::MemoryComponent&, const Str& path) {
        existedAtExport = ctx->IniSettings->Files.FileExists(path);
    });
    platform->queueAnswer(target);
    ExportFile(*ctx);
    EXPECT_FALSE(existedAtExport);
    EXPECT_FALSE(std::filesystem::exists(home / "basMain.bas"));
    const auto& request = platform->fileDialogs().back();
    EXPECT_EQ(request.title, u"Export File");
    EXPECT_EQ(request.fileName, u"basMain.bas");
    EXPECT_EQ(request.filters[0].second, u"*.bas");
    EXPECT_EQ(platform->shownBoxes().back().kind, platform::ShownBox::Kind::SaveFile);
}

TEST_F(ProjectCommands, ExportCancelledLeavesTheFile) {
    openModule({u"Sub A()", u"End Sub"});
    writeFile(ctx->IniSettings->Files.systemPath(home), "basMain.bas", u"old");
    platform->queueAnswer(u"cancel");
    ExportFile(*ctx);
    EXPECT_TRUE(std::filesystem::exists(home / "basMain.bas"));
}

TEST_F(ProjectCommands, FormOpenOpensTheBuilderAfterARefresh) {
    openModule({u"Public gA As Long"});
    std::vector<Str> opened;
    ctx->routines[u"frmVar"] = [&](Context& c, const Str& arg) {
        opened.push_back(arg);
        EXPECT_TRUE(c.Scan.ProjectVars && c.Scan.ProjectVars->Exists(u"gA"));
    };
    FormOpen(*ctx, u"frmVar", true, true, u"Long");
    EXPECT_EQ(opened, (std::vector<Str>{u"Long"}));
    vbe->setActiveWindow(memory::ActiveWindowKind::Immediate);
    FormOpen(*ctx, u"frmVar", true, true, u"Long");
    EXPECT_EQ(opened.size(), 1u);
    FormOpen(*ctx, u"frmVar", false, false, u"Long");
    EXPECT_EQ(opened, (std::vector<Str>{u"Long", u""}));
    FormOpen(*ctx, u"frmNobody");
}

TEST_F(ProjectCommands, ControlsAddFormOpenNamesTheSelectedForm) {
    if (!project) project = vbe->addProject(u"VBAProject", u"C:\\Work\\Book1.xlsm", u"Excel");
    auto form = project->addComponent(u"frmOrder", host::vbext_ct_MSForm, {});
    vbe->setSelectedComponent(form);
    vbe->setActiveWindow(memory::ActiveWindowKind::Project);
    Str named;
    int calls = 0;
    ctx->routines[u"frmControlBuilder"] = [&](Context&, const Str& arg) {
        named = arg;
        ++calls;
    };
    ctx->routines[u"ControlsAddFormOpen"](*ctx, {});
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(named, u"frmOrder");
    ASSERT_TRUE(form->openDesignerWindow());
    EXPECT_TRUE(form->openDesignerWindow()->Visible());
}

TEST_F(ProjectCommands, LineNumbersNeedAPane) {
    std::vector<Str> calls;
    ctx->routines[u"LineNumbersAdd"] = [&](Context&, const Str&) { calls.push_back(u"add"); };
    ctx->routines[u"LineNumbersRemove"] = [&](Context&, const Str&) { calls.push_back(u"remove"); };
    vbe->addProject(u"VBAProject");
    ctx->routines[u"LineNumbers"](*ctx, u"0");
    EXPECT_TRUE(calls.empty());
    openModule({u"Sub A()", u"End Sub"});
    ctx->routines[u"LineNumbers"](*ctx, u"0");
    ctx->routines[u"LineNumbers"](*ctx, u"1");
    EXPECT_EQ(calls, (std::vector<Str>{u"add", u"remove"}));
}

class ObjectInventory : public ScanCommandFixture {
protected:
    ObjectInventory() {
        project = vbe->addProject(u"Orders", u"C:\\Db\\Orders.accdb", u"Access");
        auto main = project->addComponent(u"basMain", host::vbext_ct_StdModule, {u"Sub A()", u"End Sub"});
        vbe->openPane(main);
        ctx->hostApplications().AccessApp = access(u"C:\\Db\\Orders.accdb");
    }

    static std::shared_ptr<FakeObject> access(const Str& fullName) {
        auto app = std::make_shared<FakeObject>(u"Application");
        auto currentProject = std::make_shared<FakeObject>(u"CurrentProject");
        currentProject->Put(u"FullName", fullName);
        currentProject->Put(u"Connection", basic::DispatchPtr(std::make_shared<FakeObject>(u"Connection")));
        currentProject->Put(u"AllForms", basic::DispatchPtr(collectionOf({named(u"AccessObject", u"frmOrders"),
                                                                          named(u"AccessObject", u"1 Start")})));
        app->Put(u"CurrentProject", basic::DispatchPtr(currentProject));
        auto data = std::make_shared<FakeObject>(u"CurrentData");
        data->Put(u"AllTables", basic::DispatchPtr(collectionOf({named(u"AccessObject", u"tblOrders"),
                                                                 named(u"AccessObject", u"MSysObjects"),
                                                                 named(u"AccessObject", u"~TMPCLP1234")})));
        data->Put(u"AllQueries", basic::DispatchPtr(collectionOf({named(u"AccessObject", u"qry \"Open\" Orders"),
                                                                  named(u"AccessObject", u"~sq_cfrmOrders"),
                                                                  named(u"AccessObject", u"tblOrders")})));
        app->Put(u"CurrentData", basic::DispatchPtr(data));
        auto table = named(u"TableDef", u"tblOrders");
        table->Put(u"Fields", basic::DispatchPtr(collectionOf({named(u"Field", u"Order ID"), named(u"Field", u"Amount")})));
        auto db = std::make_shared<FakeObject>(u"Database");
        db->Put(u"TableDefs", basic::DispatchPtr(collectionOf({table})));
        app->Put(u"CurrentDb", basic::DispatchPtr(db));
        return app;
    }

    Str inventory() { return moduleText(u"basObjectInventory"); }
};

const Str kInventory = joinLines({u"'Tables", u"Public Const tblOrders As String = \"tblOrders\"",
                                  u"Public Const OrderIDfld As String = \"Order ID\"",
                                  u"Public Const Amountfld As String = \"Amount\"", u"'Queries",
                                  u"Public Const qryOpenOrders As String = \"qry \"\"Open\"\" Orders\"", u"'Forms",
                                  u"Public Const frmOrders As String = \"frmOrders\"",
                                  u"Public Const Start As String = \"1 Start\""});

TEST_F(ObjectInventory, WritesTheConstants) {
    ctx->routines[u"AccessObjectInventory"](*ctx, {});
    EXPECT_EQ(inventory(), kInventory);
    EXPECT_TRUE(reports.empty());
}

TEST_F(ObjectInventory, RunTwiceTheModuleIsEmptiedAndWrittenAnew) {
    AccessObjectInventory(*ctx);
    project->component(u"basObjectInventory")->CodeModule()->InsertLines(1, u"' my note");
    AccessObjectInventory(*ctx);
    EXPECT_EQ(inventory(), kInventory);
    EXPECT_EQ(project->VBComponents()->Count(), 2);
}

TEST_F(ObjectInventory, WithoutItsProjectTheUserIsTold) {
    vbe->addProject(u"Other", u"C:\\Db\\Other.accdb", u"Access");
    ctx->hostApplications().AccessApp = access(u"C:\\Db\\Elsewhere.accdb");
    AccessObjectInventory(*ctx);
    ASSERT_FALSE(platform->shownBoxes().empty());
    EXPECT_EQ(platform->shownBoxes().back().prompt,
              u"Please close Microsoft Access and reopen database\r\nQuillet can't detect VBProject for current database.");
    EXPECT_EQ(platform->shownBoxes().back().buttons, 16);
    EXPECT_FALSE(project->component(u"basObjectInventory"));
}

TEST_F(ObjectInventory, TheRightProjectAmongSeveral) {
    vbe->addProject(u"Other", u"C:\\Db\\Other.accdb", u"Access");
    AccessObjectInventory(*ctx);
    EXPECT_EQ(inventory(), kInventory);
}

TEST_F(ObjectInventory, NeedsAccess) {
    ctx->hostApplications().AccessApp = nullptr;
    AccessObjectInventory(*ctx);
    EXPECT_FALSE(project->component(u"basObjectInventory"));
}

TEST(ObjectInventoryNames, KeepNameCharactersFromALetterOn) {
    EXPECT_EQ(InventoryConstantName(u"Order ID"), u"OrderID");
    EXPECT_EQ(InventoryConstantName(u"2024_Sales-Q1_v2"), u"SalesQ1_v2");
    EXPECT_EQ(InventoryConstantName(u"___"), u"");
    EXPECT_EQ(InventoryConstantName(Str(300, u'a')).size(), 255u);
}

}  // namespace
}  // namespace quillet::addin
