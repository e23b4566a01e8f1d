// The Property Builder driven by the UI scripts of tests/builders/scripts/property, each with
// the module texts it must leave, compared byte for byte.

#include "property_fixture.h"

namespace quillet::testing {

namespace {

class PropertyScripts : public PropertyFixture, public ::testing::WithParamInterface<std::string> {};

TEST_P(PropertyScripts, LeaveTheExpectedModuleText) {
    std::string script = scriptFile(GetParam());
    ASSERT_FALSE(script.empty()) << GetParam();
    auto outcome = play(script);
    EXPECT_TRUE(outcome.passed()) << GetParam() << ": " << basic::toUtf8(outcome.describe()) << "\n"
                                  << basic::toUtf8(moduleText(u"clsOrder"));
}

INSTANTIATE_TEST_SUITE_P(Property, PropertyScripts, ::testing::ValuesIn(PropertyFixture::scriptsIn("property")),
                         scriptTestName);

}  // namespace
}  // namespace quillet::testing
