// The record class from a table's fields: the field types, a property per field with the true
// field names in the Fields lines, the helpers, and the DAO and ADO methods (golden files).

#include "generators/record_class.h"

#include "../fragments/fragments_fixture.h"
#include "golden.h"
#include "source/prefixes.h"

namespace quillet::generators {
namespace {

using testing::matchesGolden;

class RecordClass : public testing::FragmentsFixture {
protected:
    RecordClass() {
        set(settings::iiPrefixModule, u"m");
        ctx->Prefixes = source::PrefixesCollectionsCreate(source::PrefixSettings{}, {{u"Long", u"lng", u"", u"", u""},
                                                                                     {u"String", u"str", u"", u"", u""},
                                                                                     {u"Boolean", u"bln", u"", u"", u""}});
        openModule({u"Option Explicit"}, 1);
        customer.Name = u"clsCustomer";
    }
    // The Customers table: an AutoNumber key, a text with a blank in its name, a date and a memo.
    const std::vector<TableField> fields = {{u"CustomerID", 4 + 10000}, {u"Company Name", 10}, {u"Since", 8},
                                            {u"Notes", 12}, {u"#", 3}};
    clsClass customer{*ctx};
    Str text() {
        Str t;
        customer.GenerateCode(t);
        return t;
    }
};

TEST(FieldTypes, NamesOfTheFieldTypes) {
    const std::pair<long, const char16_t*> table[] = {
        {1, u"Boolean"},  {2, u"Byte"},      {3, u"Integer"},   {4, u"Long"},     {5, u"Currency"}, {6, u"Single"},
        {7, u"Double"},   {21, u"Double"},   {8, u"Date"},      {10, u"String"},  {12, u"String"},  {15, u"Variant"},
        {1002, u"Integer"}, {1003, u"Long"}, {1004, u"Single"}, {1005, u"Double"}, {1006, u"Currency"},
        {1007, u"Date"},  {1133, u"Date"},   {1135, u"Date"},   {1008, u"String"}, {1129, u"String"},
        {1130, u"String"}, {1200, u"String"}, {1203, u"String"}, {1011, u"Boolean"}, {1016, u"Byte"},
        {1001, u"Variant"}, {10004, u"Long"}, {11003, u"Long"}};
    for (const auto& [number, name] : table) EXPECT_EQ(FieldTypeName(number), name) << number;
}

TEST_F(RecordClass, ADaoRecordClass) {
    RecordClassFromTable(*ctx, customer, u"Customers", fields, false);
    EXPECT_TRUE(matchesGolden(text(), "record/customer_dao.txt"));
}

TEST_F(RecordClass, AnAdoRecordClass) {
    RecordClassFromTable(*ctx, customer, u"Customers", fields, true);
    EXPECT_TRUE(matchesGolden(text(), "record/customer_ado.txt"));
}

TEST_F(RecordClass, AFieldNameWithABlankGivesACleanPropertyAndKeepsTheTrueNameInTheFieldsLines) {
    RecordClassFromTable(*ctx, customer, u"Customers", fields, false);
    EXPECT_EQ(customer.Properties().Item(2)->Name, u"CompanyName");
    Str t = text();
    EXPECT_NE(basic::InStr(t, u"        Me.CompanyName = Nz(.Fields(\"Company Name\").Value)\r\n"), 0);
    EXPECT_NE(basic::InStr(t, u"        .Fields(\"Company Name\").Value = Me.CompanyName\r\n"), 0);
}

TEST_F(RecordClass, AFieldWithoutAValidNameIsPassedOver) {
    RecordClassFromTable(*ctx, customer, u"Customers", fields, false);
    // Four fields, Recordset and Loaded.
    EXPECT_EQ(customer.Properties().Count(), 6);
    EXPECT_EQ(basic::InStr(text(), u".Fields(\"#\")"), 0);
}

TEST_F(RecordClass, AnAutoIncrementFieldKeepsItsTypeAndItsMark) {
    RecordClassFromTable(*ctx, customer, u"Customers", fields, false);
    auto& id = *customer.Properties().Item(1);
    EXPECT_EQ(id.datatype, u"Long");
    EXPECT_EQ(id.DataType2, 10004);
}

TEST_F(RecordClass, TheHelpersArePrivate) {
    RecordClassFromTable(*ctx, customer, u"Customers", fields, true);
    auto& recordset = *customer.Properties().Item(5);
    EXPECT_EQ(recordset.Name, u"Recordset");
    EXPECT_EQ(recordset.datatype, u"Recordset");
    EXPECT_EQ(recordset.AccessibleType, u"Private");
    auto& loaded = *customer.Properties().Item(6);
    EXPECT_EQ(loaded.Name, u"Loaded");
    EXPECT_EQ(loaded.datatype, u"Boolean");
    EXPECT_EQ(loaded.AccessibleType, u"Private");
}

TEST_F(RecordClass, CopyingASecondTimeAddsNothingTwice) {
    RecordClassFromTable(*ctx, customer, u"Customers", fields, false);
    Str once = text();
    RecordClassFromTable(*ctx, customer, u"Customers", fields, false);
    EXPECT_EQ(customer.Properties().Count(), 6);
    EXPECT_EQ(customer.Methods().Count(), 5);
    EXPECT_EQ(text(), once);
}

TEST_F(RecordClass, OutsideAccessTheProjectIsADaoOne) { EXPECT_FALSE(ProjectIsAdo(*ctx)); }

}  // namespace
}  // namespace quillet::generators
