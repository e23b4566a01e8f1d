// The Procedure and Argument Builders driven by UI scripts, each paired with the module text it
// must leave, compared byte for byte.

#include <algorithm>
#include <filesystem>

#include "builder_fixture.h"

namespace quillet::builders {
namespace {

class BuilderScripts : public testing::BuilderFixture, public ::testing::WithParamInterface<std::string> {};

// Every script of the folder, in name order.
std::vector<std::string> scriptNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(QUILLET_SOURCE_DIR) + "/tests/builders/scripts"))
        if (entry.path().extension() == ".uis") names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

TEST_P(BuilderScripts, LeavesTheExpectedModuleText) {
    std::string script = scriptFile(GetParam());
    ASSERT_FALSE(script.empty()) << GetParam();
    auto outcome = play(script);
    EXPECT_TRUE(outcome.passed()) << GetParam() << ": " << basic::toUtf8(outcome.describe()) << "\n"
                                  << basic::toUtf8(moduleText());
}

INSTANTIATE_TEST_SUITE_P(Scripts, BuilderScripts, ::testing::ValuesIn(scriptNames()),
                         testing::scriptTestName);

}  // namespace
}  // namespace quillet::builders
