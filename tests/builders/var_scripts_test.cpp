// The declaration builders driven by the UI scripts of their folders, each paired with the module
// text it must leave, compared byte for byte. A script's comment "# at MODULE:LINE:COL" puts the
// caret before it plays, as `quillet play --at` does.

#include "var_fixture.h"

namespace quillet::builders {
namespace {

class DeclarationScripts : public testing::VariableFixture, public ::testing::WithParamInterface<std::string> {};

std::vector<std::string> scriptNames() {
    std::vector<std::string> names;
    for (const char* folder : {"variable", "constant", "enum"})
        for (const std::string& name : testing::BuilderFixture::scriptsIn(folder)) names.push_back(name);
    return names;
}

TEST_P(DeclarationScripts, LeaveTheExpectedModuleText) {
    std::string script = scriptFile(GetParam());
    ASSERT_FALSE(script.empty()) << GetParam();
    std::string module;
    long line = 1, col = 1;
    ASSERT_TRUE(testing::scriptCaret(script, module, line, col)) << GetParam() << ": no \"# at\" line";
    openModule(testing::variableScriptSetup().module, line, col, basic::fromUtf8(module));
    auto outcome = play(script);
    EXPECT_TRUE(outcome.passed()) << GetParam() << ": " << basic::toUtf8(outcome.describe()) << "\n"
                                  << basic::toUtf8(moduleText(basic::fromUtf8(module)));
}

INSTANTIATE_TEST_SUITE_P(Scripts, DeclarationScripts, ::testing::ValuesIn(scriptNames()),
                         testing::scriptTestName);

}  // namespace
}  // namespace quillet::builders
