// The Class Builder driven by the UI scripts of tests/builders/scripts/class: the class and its
// collection class compared byte for byte with what each script expects.

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "hosts/files/file_project.h"
#include "property_fixture.h"

namespace quillet::testing {
namespace {

class ClassScripts : public PropertyFixture, public ::testing::WithParamInterface<std::string> {
protected:
    ClassScripts() {
        applySetup(classScriptSetup());
        collectionClassReady();
    }
};

TEST_P(ClassScripts, LeaveTheExpectedModuleText) {
    std::string script = scriptFile(GetParam());
    ASSERT_FALSE(script.empty()) << GetParam();
    auto outcome = play(script);
    EXPECT_TRUE(outcome.passed()) << GetParam() << ": " << basic::toUtf8(outcome.describe());
    EXPECT_TRUE(std::filesystem::is_empty(dir / "tmp"));
}

INSTANTIATE_TEST_SUITE_P(Class, ClassScripts, ::testing::ValuesIn(PropertyFixture::scriptsIn("class")),
                         scriptTestName);

}  // namespace
}  // namespace quillet::testing
