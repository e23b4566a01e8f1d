// Type-ahead in the builders' lists that take typed text: a key typed into the return type, the
// module or the argument's type selects the first entry that starts so and is swallowed.

#include <gtest/gtest.h>

#include "builder_fixture.h"
#include "builders/frm_procedure.h"

namespace quillet::testing {
namespace {

class BuilderTypeAhead : public BuilderFixture {
protected:
    // Types the keys into a combo box whose text is wholly selected, as a user does after tabbing in.
    static std::vector<long> type(dialogs::Control& combo, const std::string& keys) {
        combo.SelStart = 0;
        combo.SelLength = static_cast<long>(combo.Text().size());
        std::vector<long> passed;
        for (char key : keys) {
            long code = key;
            combo.KeyPress(code);
            passed.push_back(code);
        }
        return passed;
    }
};

TEST_F(BuilderTypeAhead, TheReturnTypeCompletesAsItIsTyped) {
    ASSERT_EQ(play("open frmProcedure\n").status, dialogs::UiScriptOutcome::Status::Passed);
    auto& form = top<builders::frmProcedure>();
    auto& combo = form.Controls(u"cboReturnValueType");
    auto passed = type(combo, "Lo");
    EXPECT_EQ(passed, (std::vector<long>{0, 0}));
    ASSERT_GE(combo.ListIndex(), 0);
    EXPECT_EQ(basic::Left(combo.Text(), 2), u"Lo");
    EXPECT_EQ(combo.SelStart, 2);
    EXPECT_EQ(combo.SelLength, static_cast<long>(combo.Text().size()) - 2);
}

TEST_F(BuilderTypeAhead, AKeyThatMatchesNothingReachesTheBox) {
    ASSERT_EQ(play("open frmProcedure\n").status, dialogs::UiScriptOutcome::Status::Passed);
    auto& combo = top<builders::frmProcedure>().Controls(u"cboModule");
    EXPECT_EQ(type(combo, "Q"), (std::vector<long>{'Q'}));
}

TEST_F(BuilderTypeAhead, TheModuleAndTheArgumentTypeCompleteToo) {
    ASSERT_EQ(play("open frmProcedure\n").status, dialogs::UiScriptOutcome::Status::Passed);
    auto& module = top<builders::frmProcedure>().Controls(u"cboModule");
    type(module, "cls");
    EXPECT_EQ(module.Text(), u"clsOrder");
    ASSERT_EQ(play("click cmdNewArg\n").status, dialogs::UiScriptOutcome::Status::Passed);
    auto& dataType = ctx->Forms->Top()->Controls(u"cboDataType");
    type(dataType, "Boo");
    EXPECT_EQ(dataType.Text(), u"Boolean");
}

}  // namespace
}  // namespace quillet::testing
