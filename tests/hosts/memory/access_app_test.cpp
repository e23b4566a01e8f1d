// The in-memory Access application: its database as a test fills it, reached through the
// schema interface and, for the project type, late-bound as the add-in reads it.

#include "hosts/memory/access_app.h"

#include <gtest/gtest.h>

#include "basic/variant.h"
#include "hosts/memory/support.h"

namespace quillet::hosts::memory {
namespace {

using testing::errorOf;

TEST(MemoryAccessApp, IsMicrosoftAccessWithTheProjectTypeOnCurrentProject) {
    auto app = std::make_shared<AccessApplication>(host::acADP);
    EXPECT_EQ(basic::CStr(app->Get(u"name")), u"Microsoft Access");
    auto project = basic::CObj(app->Get(u"CurrentProject"));
    EXPECT_EQ(basic::CStr(project->Get(u"ProjectType")), u"1");
    EXPECT_EQ(errorOf([&] { app->Get(u"CurrentData"); }), 438);
}

TEST(MemoryAccessApp, TheSchemaIsTheApplicationsOwnWithTablesAndFieldsByNameIgnoringCase) {
    auto app = std::make_shared<AccessApplication>(
        host::acMDB, std::vector<host::DatabaseTable>{{u"Orders", u"TABLE", {{u"OrderID", 4, host::dbAutoIncrField}}}});
    auto schema = host::DatabaseSchemaOf(app);
    ASSERT_EQ(schema.get(), static_cast<host::DatabaseSchemaSource*>(app.get()));
    EXPECT_EQ(schema->ProjectType(), host::acMDB);
    ASSERT_EQ(schema->Tables().size(), 1u);
    auto fields = schema->Fields(u"ORDERS");
    ASSERT_EQ(fields.size(), 1u);
    EXPECT_EQ(fields[0].Name, u"OrderID");
    EXPECT_EQ(errorOf([&] { schema->Fields(u"Customers"); }), host::kItemNotFound);
}

TEST(MemoryAccessApp, NoApplicationHasNoSchema) { EXPECT_EQ(host::DatabaseSchemaOf(nullptr), nullptr); }

}  // namespace
}  // namespace quillet::hosts::memory
