// The Method Builder over a class under construction: a new method joins the class, a selected one
// is shown and written back; no module is touched.

#include "builder_fixture.h"
#include "builders/frm_procedure.h"

namespace quillet::builders {
namespace {

// Plays the Class Builder: a class with its methods and the one selected.
class frmClassStub : public dialogs::Form, public MethodOwner {
public:
    explicit frmClassStub(core::Context& ctx) : Form(u"frmClass"), ctx_(ctx) {}
    Str ClassName() override { return u"clsInvoice"; }
    generators::clsProcedure* SelectedMethod() override { return selected; }
    generators::colProcedures& Methods() override { return methods; }
    void ModuleNameConstant(bool value) override { moduleConstant = value; }
    void MethodsList(bool selectLast) override { refills.push_back(selectLast); }

    core::Context& ctx_;
    generators::colProcedures methods;
    generators::clsProcedure* selected = nullptr;
    bool moduleConstant = false;
    std::vector<bool> refills;
};

class MethodBuilder : public testing::BuilderFixture {
protected:
    frmProcedure& openOver(frmClassStub& owner) {
        auto& form = ctx->Forms->Adopt(std::make_unique<frmProcedure>(*ctx));
        form.ParentForm = &owner;
        form.Init(true);
        form.Show(dialogs::vbModal);
        return form;
    }
    frmClassStub owner{*ctx};
    Str before = moduleText();
};

TEST_F(MethodBuilder, ANewMethodJoinsTheClass) {
    auto& form = openOver(owner);
    EXPECT_EQ(form.Caption, u"Method Builder");
    auto& module = form.Controls(u"cboModule");
    ASSERT_EQ(module.ListCount(), 1);
    EXPECT_EQ(module.Text(), u"clsInvoice");
    EXPECT_EQ(form.Controls(u"cboAccessibility").ListCount(), 4);
    form.Controls(u"txtName").Text(u"Total");
    form.Controls(u"chkAddModuleConstant").Value(1);
    form.Procedure().Arguments().Add(u"lngCount", u"Long", false, u"", false, false, 1, true);
    ctx->Forms->Raise([&] { form.Controls(u"cmdOK").Click(); });
    EXPECT_EQ(ctx->Forms->FindOpen(u"frmProcedure"), nullptr);
    ASSERT_EQ(owner.methods.Count(), 1);
    auto& method = *owner.methods.Item(1);
    EXPECT_EQ(method.Name, u"Total");
    EXPECT_EQ(method.ModuleName, u"clsInvoice");
    EXPECT_EQ(method.Arguments().Count(), 1);
    EXPECT_TRUE(owner.moduleConstant);
    EXPECT_EQ(owner.refills, std::vector<bool>{true});
    EXPECT_EQ(moduleText(), before);
}

TEST_F(MethodBuilder, ASelectedMethodIsShownAndWrittenBack) {
    generators::clsProcedure edited(*ctx);
    edited.Name = u"Post";
    edited.ProcType = u"Sub";
    edited.AccessibleType = u"Friend";
    edited.Description = u"Posts it";
    edited.Arguments().Add(u"a", u"String", false, u"", false, false, 1, false);
    edited.Arguments().Add(u"b", u"Long", true, u"0", false, false, 2, false);
    owner.selected = &edited;
    auto& form = openOver(owner);
    EXPECT_EQ(form.Controls(u"txtName").Text(), u"Post");
    EXPECT_EQ(form.Controls(u"cboProcType").Text(), u"Sub");
    EXPECT_EQ(form.Controls(u"cboReturnValueType").Text(), u"(none)");
    EXPECT_EQ(form.Controls(u"cboAccessibility").Text(), u"Friend");
    EXPECT_EQ(form.Controls(u"txtDescription").Text(), u"Posts it");
    EXPECT_EQ(form.Controls(u"lstArguments").ListCount(), 2);
    EXPECT_EQ(form.Controls(u"lstArguments").List(1), u"Optional b As Long = 0");
    form.Controls(u"txtName").Text(u"PostAll");
    form.Controls(u"lstArguments").ListIndex(0);
    platform->queueAnswer(u"yes");
    ctx->Forms->Raise([&] { form.Controls(u"cmdDelArg").Click(); });
    ctx->Forms->Raise([&] { form.Controls(u"cmdOK").Click(); });
    EXPECT_EQ(edited.Name, u"PostAll");
    EXPECT_EQ(edited.AccessibleType, u"Friend");
    ASSERT_EQ(edited.Arguments().Count(), 1);
    EXPECT_EQ(edited.Arguments().Item(1)->Name, u"b");
    EXPECT_EQ(edited.Arguments().Item(1)->Number, 1);
    EXPECT_EQ(owner.methods.Count(), 0);
    EXPECT_EQ(owner.refills, std::vector<bool>{false});
}

}  // namespace
}  // namespace quillet::builders
