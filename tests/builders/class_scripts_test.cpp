// The Class Builder driven by the UI scripts of tests/builders/scripts/class: the class and its
// collection class compared byte for byte with what each script expects.

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "hosts/files/file_project.h"
#include "hosts/memory/access_app.h"
#include "property_fixture.h"

namespace quillet::testing {
namespace {

class ClassScripts : public PropertyFixture, public ::testing::WithParamInterface<std::string> {
protected:
    ClassScripts() {
        applySetup(classScriptSetup());
        collectionClassReady();
        // The Access project whose tables "Copy from table" offers.
        ctx->hostApplications().AccessApp = std::make_shared<hosts::memory::AccessApplication>(
            host::acMDB, std::vector<host::DatabaseTable>{
                             {u"MSysObjects", u"TABLE", {{u"Id", 4, host::dbAutoIncrField}}},
                             {u"Orders", u"TABLE",
                              {{u"OrderID", 4, host::dbAutoIncrField | host::dbFixedField},
                               {u"Customer Name", 10, host::dbVariableField | host::dbUpdatableField},
                               {u"Ordered", 8, host::dbFixedField | host::dbUpdatableField}}},
                             {u"Customers", u"TABLE", {{u"CustomerID", 4, host::dbFixedField}}}});
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
// The scripts that need an Access application (its database's tables).
INSTANTIATE_TEST_SUITE_P(Access, ClassScripts, ::testing::ValuesIn(PropertyFixture::scriptsIn("access")),
                         scriptTestName);

}  // namespace
}  // namespace quillet::testing
