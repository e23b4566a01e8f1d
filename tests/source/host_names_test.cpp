#include "source/host_names.h"

#include "code_fixture.h"
#include "fake_office.h"

namespace quillet::source {
namespace {

using testing::CodeFixture;
using testing::collectionOf;
using testing::FakeObject;
using testing::named;

class SourceHostNames : public CodeFixture {
protected:
    // Access with a form frmOrders (controls txtName, cmdOK) that opens after `loadAfter` reads.
    std::shared_ptr<FakeObject> fakeAccess(int loadAfter) {
        auto access = std::make_shared<FakeObject>(u"Application");
        auto formInfo = named(u"AccessObject", u"frmOrders");
        auto reads = std::make_shared<int>(0);
        formInfo->compute(u"IsLoaded", [reads, loadAfter] { return basic::Variant(++*reads > loadAfter); });
        auto currentProject = std::make_shared<FakeObject>(u"CurrentProject");
        currentProject->Put(u"AllForms", basic::DispatchPtr(collectionOf({formInfo})));
        currentProject->Put(u"AllReports", basic::DispatchPtr(collectionOf({})));
        access->Put(u"CurrentProject", basic::DispatchPtr(currentProject));
        auto form = named(u"Form", u"frmOrders");
        form->Put(u"Controls", basic::DispatchPtr(collectionOf({named(u"TextBox", u"txtName"), named(u"CommandButton", u"cmdOK")})));
        access->Put(u"Forms", basic::DispatchPtr(collectionOf({form})));
        return access;
    }
};

TEST_F(SourceHostNames, ExcelNamesOfTheProjectsWorkbook) {
    openModule(u"basMain", {});
    auto excel = testing::fakeExcel(u"c:\\work\\BOOK1.xlsm", u"BOOK1.xlsm", {u"Total", u"Sheet1!Rate"});
    auto env = codeEnv();
    EXPECT_EQ(GetExcelNames(env, excel), (std::vector<Str>{u"Range(\"Total\")", u"Range(\"Sheet1!Rate\")"}));
}

TEST_F(SourceHostNames, ExcelNamesOfAnotherWorkbookAreNotOffered) {
    openModule(u"basMain", {});
    auto excel = testing::fakeExcel(u"C:\\Work\\Other.xlsm", u"Other.xlsm", {u"Total"});
    auto env = codeEnv();
    EXPECT_TRUE(GetExcelNames(env, excel).empty());
    EXPECT_TRUE(GetExcelNames(env, nullptr).empty());
}

TEST_F(SourceHostNames, AnUnsavedProjectMatchesByTheMainWindowsCaption) {
    auto unsaved = vbe->addProject(u"Scratch", u"", u"Excel");
    vbe->setActiveProject(unsaved);
    auto excel = testing::fakeExcel(u"Book2", u"Book2", {u"Total"});
    auto env = codeEnv();
    vbe->options().mainWindowCaption = u"Microsoft Visual Basic for Applications - Book2";
    EXPECT_EQ(GetExcelNames(env, excel).size(), 1u);
    vbe->options().mainWindowCaption = u"Microsoft Visual Basic for Applications - Book3";
    EXPECT_TRUE(GetExcelNames(env, excel).empty());
}

TEST_F(SourceHostNames, AccessControlsOfAnOpenForm) {
    openModule(u"Form_frmOrders", {}, 1, 1, host::vbext_ct_Document);
    auto env = codeEnv();
    EXPECT_EQ(GetAccessControls(env, fakeAccess(0), u"Form_frmOrders"),
              (std::vector<Str>{u"Me.txtName", u"Me.cmdOK"}));
    EXPECT_TRUE(platform->sentKeys().empty());
}

TEST_F(SourceHostNames, AClosedFormIsOpenedByKeysAndWaitedFor) {
    openModule(u"Form_frmOrders", {}, 1, 1, host::vbext_ct_Document);
    auto env = codeEnv();
    EXPECT_EQ(GetAccessControls(env, fakeAccess(3), u"Form_frmOrders").size(), 2u);
    ASSERT_EQ(platform->sentKeys().size(), 1u);
    EXPECT_EQ(platform->sentKeys()[0], u" {BACKSPACE}");
}

TEST_F(SourceHostNames, AFormThatDoesNotOpenIsGivenUp) {
    openModule(u"Form_frmOrders", {}, 1, 1, host::vbext_ct_Document);
    auto env = codeEnv();
    EXPECT_TRUE(GetAccessControls(env, fakeAccess(1 << 30), u"Form_frmOrders", std::chrono::milliseconds(5)).empty());
    EXPECT_TRUE(reported.empty());
}

TEST_F(SourceHostNames, AModuleThatIsNoFormOrReportHasNoControls) {
    openModule(u"basMain", {});
    auto env = codeEnv();
    EXPECT_TRUE(GetAccessControls(env, fakeAccess(0), u"basMain").empty());
    EXPECT_TRUE(GetAccessControls(env, fakeAccess(0), u"Macro_x").empty());
}

TEST_F(SourceHostNames, ObjectsForInsertGathersSortsAndAddsFormVariables) {
    openModule(u"Form_frmOrders", {}, 1, 1, host::vbext_ct_Document);
    basic::Collection<clsVariablePtr> variables;
    auto sub = std::make_shared<clsVariable>();
    sub->init(u"frmSub As Form");
    variables.Add(sub, sub->Name);
    auto plain = std::make_shared<clsVariable>();
    plain->init(u"n As Long");
    variables.Add(plain, plain->Name);
    auto env = codeEnv();
    HostAppObjects apps{nullptr, fakeAccess(0)};
    EXPECT_EQ(ObjectsForInsert(env, apps, &variables), (std::vector<Str>{u"Me.cmdOK", u"Me.frmSub", u"Me.txtName"}));
    dialogs::Control combo{nullptr, u"cboVar", dialogs::ControlKind::ComboBox};
    ObjectsForInsert(env, apps, combo, &variables);
    EXPECT_EQ(combo.ListCount(), 3);
    EXPECT_EQ(combo.List(0), u"Me.cmdOK");
}

TEST_F(SourceHostNames, ObjectsForInsertInAStandardModuleLeavesMeOut) {
    openModule(u"basMain", {});
    basic::Collection<clsVariablePtr> variables;
    auto sub = std::make_shared<clsVariable>();
    sub->init(u"frmSub As Form");
    variables.Add(sub, sub->Name);
    auto env = codeEnv();
    auto excel = testing::fakeExcel(u"C:\\Work\\Book1.xlsm", u"Book1.xlsm", {u"Rate", u"Base"});
    EXPECT_EQ(ObjectsForInsert(env, HostAppObjects{excel, nullptr}, &variables),
              (std::vector<Str>{u"Range(\"Base\")", u"Range(\"Rate\")"}));
}

TEST_F(SourceHostNames, ABrokenApplicationObjectIsReported) {
    openModule(u"basMain", {});
    auto env = codeEnv();
    auto broken = std::make_shared<FakeObject>(u"Application");
    EXPECT_TRUE(GetExcelNames(env, broken).empty());
    ASSERT_EQ(reported.size(), 1u);
    EXPECT_NE(reported[0].find(u"GetExcelNames"), Str::npos);
}

}  // namespace
}  // namespace quillet::source
