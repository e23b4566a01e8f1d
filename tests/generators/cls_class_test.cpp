// The class generator: the class's text (golden files), the module in the project in design
// mode only, and the collection class imported from the shipped template with its attributes.

#include "generators/cls_class.h"

#include <fstream>

#include "../fragments/fragments_fixture.h"
#include "collection_template.h"
#include "golden.h"
#include "host/project_mode.h"
#include "hosts/files/file_project.h"
#include "source/prefixes.h"

namespace quillet::generators {
namespace {

using testing::matchesGolden;

class ClassGenerator : public testing::FragmentsFixture {
protected:
    ClassGenerator() {
        set(settings::iiPrefixModule, u"m");
        set(settings::iiModuleNameConstant, u"cstrModule");
        set(settings::iiProcedureNameConstant, u"cstrProcedure");
        ctx->Prefixes = source::PrefixesCollectionsCreate(source::PrefixSettings{}, {{u"Long", u"lng", u"", u"", u""},
                                                                                     {u"String", u"str", u"", u"", u""}});
        openModule({u"Option Explicit"}, 1);
        testing::collectionClassReady(*vbe, *platform, settings(), dir);
        set(settings::iiModuleHeaderFile, u"ModuleHeader.bas");
        write("ModuleHeader.bas", "'---\r\n' {MODULENAME}{DESCRIPTION}\r\n'---\r\n");
    }
    clsClass order() {
        clsClass c(*ctx);
        c.Name = u"clsOrder";
        c.Description = u"One order of a customer.";
        auto number = std::make_shared<clsProperty>(*ctx);
        number->Name = u"Number";
        number->datatype = u"Long";
        number->AccessibleType = u"Public";
        c.Properties().Add(number);
        auto customer = std::make_shared<clsProperty>(*ctx);
        customer->Name = u"Customer";
        customer->datatype = u"String";
        customer->AccessibleType = u"Public";
        customer->SetPart = false;
        c.Properties().Add(customer);
        auto ship = std::make_shared<clsProcedure>(*ctx);
        ship->Name = u"Ship";
        ship->ProcType = u"Sub";
        ship->AccessibleType = u"Public";
        ship->Arguments().Add(u"When", u"Date", false, u"", false, false, 1, true);
        c.Methods().Add(ship);
        return c;
    }
    Str text(clsClass& c) {
        Str t = u"old";
        c.GenerateCode(t);
        return t;
    }
    std::shared_ptr<hosts::memory::MemoryComponent> component(const Str& name) { return project->component(name); }
};

TEST_F(ClassGenerator, AClassWithPropertiesAndAMethod) {
    auto c = order();
    EXPECT_TRUE(matchesGolden(text(c), "class/order.txt"));
    for (const auto& property : c.Properties().Items) EXPECT_EQ(property->ModuleName, u"clsOrder");
    EXPECT_EQ(c.Methods().Item(1)->ModuleName, u"clsOrder");
}

TEST_F(ClassGenerator, AClassWithNothingIsOnlyTheHeader) {
    clsClass c(*ctx);
    c.Name = u"clsEmpty";
    EXPECT_EQ(text(c), u"'---\r\n' clsEmpty\r\n'---\r\n\r\n");
}

TEST_F(ClassGenerator, ALongDescriptionIsWrappedIntoCommentLines) {
    clsClass c(*ctx);
    c.Name = u"clsLedger";
    c.Description = u"Keeps the ledger of one account. Every booking is kept with its date, amount and the "
                    u"account it goes against.";
    EXPECT_TRUE(matchesGolden(text(c), "class/wrapped_description.txt"));
}

TEST_F(ClassGenerator, TheModuleNameConstantStandsAboveTheDeclarations) {
    auto c = order();
    c.ModuleNameConstant = true;
    Str t = text(c);
    EXPECT_NE(basic::InStr(t, u"'---\r\n\r\nPrivate Const cstrModule As String = \"clsOrder\"\r\nPrivate mlngNumber As Long\r\n"), 0);
}

TEST_F(ClassGenerator, AnEmptyModuleConstantSettingLeavesTheNameOut) {
    set(settings::iiModuleNameConstant, u"");
    clsClass c(*ctx);
    c.Name = u"clsEmpty";
    c.ModuleNameConstant = true;
    EXPECT_NE(basic::InStr(text(c), u"Private Const  As String = \"clsEmpty\"\r\n"), 0);
}

TEST_F(ClassGenerator, ClassInitializeSetsEachPropertyNew) {
    clsClass c(*ctx);
    auto items = std::make_shared<clsProperty>(*ctx);
    items->Name = u"Items";
    items->datatype = u"Collection";
    Str t;
    c.ClassInitializeCode({items}, t);
    EXPECT_EQ(t, u"\r\nPrivate Sub Class_Initialize()\r\n    Set Items = New Collection\r\n\r\n\r\nEnd Sub\r\n");
}

TEST_F(ClassGenerator, CreateAddsTheClassModule) {
    auto c = order();
    c.Create(project);
    auto added = component(u"clsOrder");
    ASSERT_TRUE(added);
    EXPECT_EQ(added->Type(), host::vbext_ct_ClassModule);
    EXPECT_TRUE(matchesGolden(moduleText(u"clsOrder") + u"\r\n", "class/order.txt"));
    EXPECT_TRUE(reports.empty());
}

// The memory project as a host that tells its mode: in break mode.
class ProjectInBreakMode : public host::VBProject, public host::ProjectModeSource {
public:
    explicit ProjectInBreakMode(host::VBProjectPtr project) : project_(std::move(project)) {}
    Str Name() override { return project_->Name(); }
    void Name(const Str& name) override { project_->Name(name); }
    Str FileName() override { return project_->FileName(); }
    long Protection() override { return project_->Protection(); }
    host::VBComponentsPtr VBComponents() override { return project_->VBComponents(); }
    host::ReferencesPtr References() override { return project_->References(); }
    long Mode() override { return host::vbext_vm_Break; }

private:
    host::VBProjectPtr project_;
};

TEST_F(ClassGenerator, NothingIsCreatedOutsideDesignMode) {
    auto c = order();
    c.Create(std::make_shared<ProjectInBreakMode>(project));
    EXPECT_FALSE(component(u"clsOrder"));
    EXPECT_EQ(project->components().size(), 1u);
}

TEST_F(ClassGenerator, ATakenClassNameIsReportedAndLeavesNoModule) {
    project->addComponent(u"clsOrder", host::vbext_ct_ClassModule, {u"' mine"});
    auto c = order();
    c.Create(project);
    EXPECT_EQ(project->components().size(), 2u);
    EXPECT_EQ(moduleText(u"clsOrder"), u"' mine");
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_NE(basic::InStr(reports[0], u"clsClass.Create"), 0);
}

TEST_F(ClassGenerator, TheCollectionClassComesFromTheTemplateWithItsAttributes) {
    auto c = order();
    c.MakeCollectionClass = true;
    c.CollectionClassName = u"clsOrders";
    c.Create(project);
    ASSERT_TRUE(component(u"clsOrder"));
    auto collection = component(u"clsOrders");
    ASSERT_TRUE(collection);
    EXPECT_EQ(collection->Type(), host::vbext_ct_ClassModule);
    EXPECT_TRUE(matchesGolden(moduleText(u"clsOrders") + u"\r\n", "class/orders_collection.txt"));
    const auto& metadata = collection->metadata();
    ASSERT_FALSE(metadata.header.empty());
    EXPECT_EQ(metadata.header[0], u"VERSION 1.0 CLASS");
    EXPECT_NE(std::find(metadata.moduleAttributes.begin(), metadata.moduleAttributes.end(),
                        u"Attribute VB_Name = \"clsOrders\""),
              metadata.moduleAttributes.end());
    EXPECT_EQ(metadata.memberAttributes.size(), 2u);
    EXPECT_TRUE(std::filesystem::is_empty(dir / "tmp"));
    EXPECT_TRUE(reports.empty());
}

TEST_F(ClassGenerator, ATakenCollectionNameIsReportedAndTheClassStands) {
    project->addComponent(u"clsOrders", host::vbext_ct_ClassModule, {u"' mine"});
    auto c = order();
    c.MakeCollectionClass = true;
    c.CollectionClassName = u"clsOrders";
    c.Create(project);
    EXPECT_TRUE(component(u"clsOrder"));
    EXPECT_EQ(moduleText(u"clsOrders"), u"' mine");
    EXPECT_EQ(project->components().size(), 3u);
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_NE(basic::InStr(reports[0], u"CollectionClassModuleAdd"), 0);
    EXPECT_TRUE(std::filesystem::is_empty(dir / "tmp"));
}

TEST_F(ClassGenerator, AMissingTemplateMakesNoCollectionClassAndNoMessage) {
    set(settings::iiCollectionClassTemplate, u"Templates\\Missing.cls");
    auto c = order();
    c.MakeCollectionClass = true;
    c.CollectionClassName = u"clsOrders";
    c.Create(project);
    EXPECT_TRUE(component(u"clsOrder"));
    EXPECT_FALSE(component(u"clsOrders"));
    EXPECT_TRUE(reports.empty());
    bool ok = true;
    c.CollectionClassModuleAdd(ok);
    EXPECT_FALSE(ok);
}

TEST_F(ClassGenerator, TheTemplatesIndentFollowsTheTabWidth) {
    tabWidth(u"2");
    clsClass c(*ctx);
    c.Name = u"clsLine";
    c.CollectionClassName = u"clsLines";
    bool ok = false;
    c.CollectionClassModuleAdd(ok);
    EXPECT_TRUE(ok);
    EXPECT_NE(basic::InStr(moduleText(u"clsLines"), u"\r\n  Set mCol = New Collection\r\n"), 0);
}

}  // namespace
}  // namespace quillet::generators
