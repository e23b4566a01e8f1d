// The Variable Builder's window layout keeps the rules of dialog layouts against its model.

#include "basic/unicode.h"
#include "builders/builder_layouts.h"
#include "dialogs/layout_check.h"
#include "builders/frm_const.h"
#include "builders/frm_enum_or_type.h"
#include "builders/frm_item_add.h"
#include "builders/frm_input_box.h"
#include "var_fixture.h"

namespace quillet::testing {
namespace {

class DeclarationLayouts : public VariableFixture {
protected:
    static std::string joined(const std::vector<Str>& problems) {
        std::string text;
        for (const auto& p : problems) text += basic::toUtf8(p) + "\n";
        return text;
    }
    void expectKeepsTheRules(dialogs::Form& form, const dialogs::FormLayout& layout) {
        for (dialogs::Control* control : form.AllControls()) EXPECT_NE(layout.find(control->Name()), nullptr) << basic::toUtf8(control->Name());
        auto problems = dialogs::LayoutProblems(layout, form);
        EXPECT_TRUE(problems.empty()) << joined(problems);
        dialogs::LayoutCatalog catalog;
        builders::AddBuilderLayouts(catalog);
        EXPECT_TRUE(catalog.Find(form.Name()).has_value()) << basic::toUtf8(form.Name());
    }
};

TEST_F(DeclarationLayouts, VariableBuilderKeepsTheRules) {
    builders::frmVar form(*ctx);
    expectKeepsTheRules(form, builders::frmVarLayout());
}

TEST_F(DeclarationLayouts, ConstantBuilderKeepsTheRules) {
    builders::frmConst form(*ctx);
    expectKeepsTheRules(form, builders::frmConstLayout());
}

TEST_F(DeclarationLayouts, EnumAndTypeBuilderKeepsTheRules) {
    builders::frmEnumOrType form(*ctx);
    expectKeepsTheRules(form, builders::frmEnumOrTypeLayout());
}

TEST_F(DeclarationLayouts, ItemAddKeepsTheRules) {
    builders::frmItemAdd form(*ctx);
    form.Init(10003);
    expectKeepsTheRules(form, builders::frmItemAddLayout());
}

TEST_F(DeclarationLayouts, QuickInputBoxKeepsTheRules) {
    builders::frmInputBox form(*ctx);
    expectKeepsTheRules(form, builders::frmInputBoxLayout());
}

}  // namespace
}  // namespace quillet::testing
