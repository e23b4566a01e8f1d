// The Property Builder driven by the UI scripts of tests/builders/scripts/property, each with
// the module texts it must leave, compared byte for byte.

#include <algorithm>
#include <filesystem>

#include "property_fixture.h"

namespace quillet::testing {

std::vector<std::string> PropertyFixture::scriptsIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(QUILLET_SOURCE_DIR) + "/tests/builders/scripts/" + folder))
        if (entry.path().extension() == ".uis") names.push_back(folder + "/" + entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

namespace {

class PropertyScripts : public PropertyFixture, public ::testing::WithParamInterface<std::string> {};

TEST_P(PropertyScripts, LeaveTheExpectedModuleText) {
    std::string script = scriptFile(GetParam());
    ASSERT_FALSE(script.empty()) << GetParam();
    auto outcome = play(script);
    EXPECT_TRUE(outcome.passed()) << GetParam() << ": " << basic::toUtf8(outcome.describe()) << "\n"
                                  << basic::toUtf8(moduleText(u"clsOrder"));
}

std::string testName(const ::testing::TestParamInfo<std::string>& info) {
    std::string name = info.param.substr(info.param.find('/') + 1);
    name = name.substr(0, name.size() - 4);
    std::replace_if(name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Property, PropertyScripts, ::testing::ValuesIn(PropertyFixture::scriptsIn("property")), testName);

}  // namespace
}  // namespace quillet::testing
