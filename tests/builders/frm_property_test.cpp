// The Property Builder's rules on the model: where it opens from, the settings it reads, the
// word at the caret, the module checks and questions, and its class mode under the Class Builder.

#include "builders/frm_property.h"

#include "addin/command_handlers.h"
#include "addin/quillet_handle.h"
#include "property_fixture.h"
#include "source/code_placing.h"
#include "source/type_lists.h"

namespace quillet::builders {
namespace {

// A Class Builder as far as the Property Builder sees it.
class FakeClassBuilder : public dialogs::Form, public PropertyOwner {
public:
    explicit FakeClassBuilder(core::Context& ctx) : Form(u"frmClass"), ctx_(ctx) {}
    Str ClassName() override { return u"clsInvoice"; }
    generators::clsProperty* SelectedProperty() override { return selected; }
    generators::colProperties& Properties() override { return properties; }
    generators::colProcedures& Methods() override { return methods; }
    void PropertiesList(bool selectLast) override {
        ++listed;
        lastSelected = selectLast;
    }

    core::Context& ctx_;
    generators::colProperties properties;
    generators::colProcedures methods;
    generators::clsProperty* selected = nullptr;
    int listed = 0;
    bool lastSelected = false;
};

class PropertyBuilder : public testing::PropertyFixture {
protected:
    frmProperty& open(const std::vector<Str>& args = {}) {
        EXPECT_TRUE(ctx->Forms->Open(u"frmProperty", args));
        return top<frmProperty>();
    }
    // The builder opened by a Class Builder, as its cmdNewProp does.
    frmProperty& openFor(FakeClassBuilder& parent) {
        auto& form = ctx->Forms->Adopt(std::make_unique<frmProperty>(*ctx));
        form.ParentForm = &parent;
        form.Init();
        form.Show(dialogs::vbModeless);
        return form;
    }
    const platform::ShownBox& lastBox() { return platform->shownBoxes().back(); }
    void click(dialogs::Form& form, const Str& button) {
        ctx->Forms->Raise([&] { form.Controls(button).Click(); });
    }
};

TEST_F(PropertyBuilder, OpensFromTheCommandBarsRoutine) {
    core::RoutineRun(*ctx, u"frmProperty");
    ASSERT_NE(ctx->Forms->Top(), nullptr);
    EXPECT_EQ(ctx->Forms->Top()->Name(), u"frmProperty");
    EXPECT_TRUE(ctx->Forms->Top()->IsModal());
}

TEST_F(PropertyBuilder, ThePropertyPopUpsTypedEntriesOpenItWithTheirType) {
    addin::QuilletHandle(*ctx, u"Property", u"Long");
    ASSERT_NE(ctx->Forms->Top(), nullptr);
    auto& form = top<frmProperty>();
    EXPECT_EQ(form.Controls(u"cboDataType").Text(), u"Long");
}

TEST_F(PropertyBuilder, TheModuleListOffersTheClassModules) {
    auto& form = open();
    auto& modules = form.Controls(u"cboModule");
    EXPECT_GE(source::FindInList(modules, source::kNewClassModule), 0);
    EXPECT_GE(source::FindInList(modules, u"clsOrder"), 0);
    EXPECT_LT(source::FindInList(modules, u"basMain"), 0);
    EXPECT_LT(source::FindInList(modules, source::kNewModule), 0);
    EXPECT_EQ(form.Controls(u"cboAccessibility").ListCount(), 4);
    EXPECT_EQ(form.Property().AccessibleType, u"Public");
}

TEST_F(PropertyBuilder, TheSettingsOfItsSectionPresetTheOptions) {
    settings().IniItemValue[settings::iiAddPropertyConstant] = true;
    auto& form = open();
    EXPECT_EQ(form.Controls(u"chkAddProcedureConstant").Value(), 1);
    EXPECT_EQ(form.Controls(u"chkAddModuleConstant").Value(), 0);
    EXPECT_EQ(form.Controls(u"cboAddErrorHandler").ListIndex(), 0);
}

TEST_F(PropertyBuilder, TheHourglassIsOfferedInItsHostsOnly) {
    EXPECT_TRUE(open().Controls(u"chkAddHourglass").Enabled);
    click(top<frmProperty>(), u"cmdCancel");
    ctx->HostName = u"Outlook";
    EXPECT_FALSE(open().Controls(u"chkAddHourglass").Enabled);
}

TEST_F(PropertyBuilder, AMissingClassModuleIsNamedInAMessage) {
    auto& form = open();
    form.Controls(u"txtName").Text(u"Total");
    form.Controls(u"cboModule").Text(u"");
    click(form, u"cmdOK");
    ASSERT_FALSE(platform->shownBoxes().empty());
    EXPECT_EQ(lastBox().prompt, u"Missing Class Module Name.");
    EXPECT_EQ(lastBox().buttons, 48);
    EXPECT_EQ(ctx->Forms->Top(), &form);
    EXPECT_EQ(moduleText(u"clsOrder"), u"Option Explicit");
}

TEST_F(PropertyBuilder, AnUnknownModuleIsAskedAbout) {
    auto& form = open();
    form.Controls(u"txtName").Text(u"Total");
    form.Controls(u"cboModule").Text(u"clsInvoice");
    platform->queueAnswer(u"cancel");
    click(form, u"cmdOK");
    EXPECT_EQ(lastBox().prompt, u"Create class module clsInvoice?");
    EXPECT_EQ(lastBox().buttons, 33);
    EXPECT_EQ(project->component(u"clsInvoice"), nullptr);
}

TEST_F(PropertyBuilder, ANameTheModuleUsesIsRefusedOnNo) {
    project->component(u"clsOrder")->CodeModule()->InsertLines(2, u"Public Sub strTitle()\r\nEnd Sub");
    Str before = moduleText(u"clsOrder");
    auto& form = open();
    form.Controls(u"cboModule").Text(u"clsOrder");
    form.Controls(u"txtName").Text(u"Title");
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"strTitle");
    platform->queueAnswer(u"no");
    click(form, u"cmdOK");
    EXPECT_EQ(ctx->Forms->Top(), &form);
    EXPECT_EQ(form.FocusedControl, u"txtName");
    EXPECT_EQ(moduleText(u"clsOrder"), before);
}

TEST_F(PropertyBuilder, FriendGoesForAStandardModule) {
    auto& form = open();
    form.Accessibility(3);
    form.Controls(u"cboModule").Text(u"basMain");
    EXPECT_EQ(form.Controls(u"cboAccessibility").ListCount(), 3);
    EXPECT_EQ(form.Accessibility(), 0);
    form.Controls(u"cboModule").Text(u"<New Class Module>");
    EXPECT_EQ(form.Controls(u"cboAccessibility").ListCount(), 4);
}

TEST_F(PropertyBuilder, TheWordAtTheCaretBecomesTheNameAndIsReplacedByIt) {
    auto order = project->component(u"clsOrder");
    order->CodeModule()->InsertLines(2, u"Public Sub Ship()\r\n    Debug.Print Weight\r\nEnd Sub");
    vbe->openPane(order)->SetSelection(3, 20, 3, 20);
    auto& form = open();
    EXPECT_EQ(form.Controls(u"cboModule").Text(), u"clsOrder");
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"strWeight");
    form.Controls(u"cboDataType").Text(u"Long");
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"lngWeight");
    form.Controls(u"chkSet").Value(0);
    click(form, u"cmdOK");
    EXPECT_EQ(ctx->Forms->Top(), nullptr);
    EXPECT_EQ(moduleText(u"clsOrder"),
              u"Option Explicit\r\nPrivate mlngWeight As Long\r\nPublic Sub Ship()\r\n    Debug.Print lngWeight\r\nEnd Sub\r\n\r\n"
              u"Public Property Get lngWeight() As Long\r\n    lngWeight = mlngWeight\r\nEnd Property");
}

TEST_F(PropertyBuilder, ToTheEndOfTheModuleWhenAsked) {
    project->component(u"clsOrder")->CodeModule()->InsertLines(2, u"Public Sub Ship()\r\nEnd Sub");
    auto& form = open();
    form.AddProcedureToEndOfModule = true;
    form.Controls(u"cboModule").Text(u"clsOrder");
    form.Controls(u"txtName").Text(u"Note");
    form.Controls(u"chkGet").Value(0);
    click(form, u"cmdOK");
    EXPECT_EQ(moduleText(u"clsOrder"), u"Option Explicit\r\nPrivate mstrNote As String\r\nPublic Sub Ship()\r\nEnd Sub\r\n\r\n"
                                       u"Public Property Let strNote(rData As String)\r\n    mstrNote = rData\r\nEnd Property");
}

TEST_F(PropertyBuilder, TheModuleConstantIsAddedWhenTicked) {
    auto& form = open();
    form.Controls(u"cboModule").Text(u"clsOrder");
    form.Controls(u"txtName").Text(u"Flag");
    form.Controls(u"cboDataType").Text(u"Boolean");
    form.Controls(u"chkSet").Value(0);
    form.Controls(u"chkAddModuleConstant").Value(1);
    click(form, u"cmdOK");
    EXPECT_NE(basic::InStr(moduleText(u"clsOrder"), u"Private Const cstrModule As String = \"clsOrder\""), 0);
}

TEST_F(PropertyBuilder, InClassModeTheClassIsTheOnlyModuleAndNothingTouchesTheProject) {
    FakeClassBuilder parent(*ctx);
    parent.AttachTo(*ctx->Forms);
    Str main = moduleText(), order = moduleText(u"clsOrder");
    auto& form = openFor(parent);
    auto& modules = form.Controls(u"cboModule");
    EXPECT_EQ(modules.ListCount(), 1);
    EXPECT_EQ(modules.Text(), u"clsInvoice");
    form.Controls(u"txtName").Text(u"Amount");
    form.Controls(u"cboDataType").Text(u"Long");
    click(form, u"cmdOK");
    ASSERT_EQ(parent.properties.Count(), 1);
    auto& added = *parent.properties.Item(1);
    EXPECT_EQ(added.Name, u"lngAmount");
    EXPECT_EQ(added.datatype, u"Long");
    EXPECT_EQ(added.ModuleName, u"clsInvoice");
    EXPECT_EQ(added.AccessibleType, u"Public");
    EXPECT_EQ(parent.listed, 1);
    EXPECT_TRUE(parent.lastSelected);
    EXPECT_EQ(moduleText(), main);
    EXPECT_EQ(moduleText(u"clsOrder"), order);
    EXPECT_EQ(project->component(u"clsInvoice"), nullptr);
}

TEST_F(PropertyBuilder, InClassModeTheSelectedPropertyIsEdited) {
    FakeClassBuilder parent(*ctx);
    parent.AttachTo(*ctx->Forms);
    auto existing = std::make_shared<generators::clsProperty>(*ctx);
    existing->Name = u"lngAmount";
    existing->datatype = u"Long";
    existing->AccessibleType = u"Friend";
    existing->SetPart = false;
    parent.properties.Add(existing);
    parent.selected = existing.get();
    Str id = existing->ID;
    auto& form = openFor(parent);
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"lngAmount");
    EXPECT_EQ(form.Controls(u"cboDataType").Text(), u"Long");
    EXPECT_EQ(form.Controls(u"cboAccessibility").Text(), u"Friend");
    EXPECT_EQ(form.Controls(u"chkSet").Value(), 0);
    form.Controls(u"txtDescription").Text(u"The net amount");
    click(form, u"cmdOK");
    ASSERT_EQ(parent.properties.Count(), 1);
    EXPECT_EQ(existing->Description, u"The net amount");
    EXPECT_EQ(existing->ID, id);
    EXPECT_FALSE(existing->SetPart);
    EXPECT_FALSE(parent.lastSelected);
}

TEST_F(PropertyBuilder, InClassModeANameAnotherPropertyHasIsRefused) {
    FakeClassBuilder parent(*ctx);
    parent.AttachTo(*ctx->Forms);
    auto existing = std::make_shared<generators::clsProperty>(*ctx);
    existing->Name = u"lngAmount";
    parent.properties.Add(existing);
    auto& form = openFor(parent);
    form.Controls(u"cboDataType").Text(u"Long");
    form.Controls(u"txtName").Text(u"Amount");
    platform->queueAnswer(u"no");
    click(form, u"cmdOK");
    EXPECT_EQ(parent.properties.Count(), 1);
    EXPECT_EQ(form.FocusedControl, u"txtName");
}

}  // namespace
}  // namespace quillet::builders
