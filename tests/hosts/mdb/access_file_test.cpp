// The reader of Access database files against real sample files, and against broken copies of
// them: a file that is not a whole database raises a clear error.

#include "hosts/mdb/access_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "basic/unicode.h"
#include "hosts/files/temp_dir.h"

namespace quillet::hosts::mdb {
namespace {

using host::DatabaseField;
using host::DatabaseTable;

std::string sample(const std::string& name) { return std::string(QUILLET_SOURCE_DIR) + "/tests/hosts/mdb/data/" + name; }

std::string bytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

const DatabaseTable* table(const std::vector<DatabaseTable>& tables, const host::Str& name) {
    for (const auto& t : tables)
        if (t.Name == name) return &t;
    return nullptr;
}

// "Name type attributes" a line for each field.
std::string listing(const DatabaseTable& t) {
    std::string out;
    for (const auto& f : t.Fields)
        out += basic::toUtf8(f.Name) + " " + std::to_string(f.Type) + " " + std::to_string(f.Attributes) + "\n";
    return out;
}

// The error a read of these bytes raises; "" when it raises none.
std::string errorOf(const std::string& bytes) {
    try {
        ReadAccessDatabase(bytes, u"broken.mdb");
    } catch (const basic::VbError& e) {
        return std::to_string(e.Number()) + " " + basic::toUtf8(e.Description());
    }
    return "";
}

class AccessFile : public ::testing::Test {
protected:
    void SetUp() override {
        if (!AccessDatabasesReadable()) GTEST_SKIP() << "built without MDB Tools";
    }
};

TEST_F(AccessFile, AnAccdbFileGivesItsTableWithFieldsAndDaoTypes) {
    auto tables = ReadAccessDatabaseFile(sample("ASampleDatabase.accdb"));
    const auto* assets = table(tables, u"Asset Items");
    ASSERT_NE(assets, nullptr);
    EXPECT_EQ(listing(*assets),
              "Asset No 10 34\nAsset Category 10 34\nMake 10 34\nModel 10 34\nDescription 10 34\nOwner 10 34\n"
              "Serial No 10 34\nAcquired 8 33\nCost 5 33\nWarranty 4 33\nTax Scale 10 34\nSupplier No 10 34\n"
              "Comments 12 34\n");
}

TEST_F(AccessFile, AnMdbFileGivesItsTablesInCatalogueOrderSystemTablesIncluded) {
    auto tables = ReadAccessDatabaseFile(sample("DateTestDatabase.mdb"));
    const auto* dates = table(tables, u"DateTest");
    ASSERT_NE(dates, nullptr);
    EXPECT_EQ(listing(*dates), "IDCol 4 33\nDateTimeCol 8 33\nDateCol 8 33\nTimeCol 8 33\nLongTextCol 12 34\nShortTextCol 10 34\n");
    EXPECT_NE(table(tables, u"MSysObjects"), nullptr);
    EXPECT_NE(table(tables, u"f_75A72A8786B149369D90EB962DAB8A2C_Data"), nullptr);
    EXPECT_EQ(tables.front().Name, u"MSysObjects");
}

TEST_F(AccessFile, AnAutoNumberFieldCarriesTheAutoIncrementAttribute) {
    auto tables = ReadAccessDatabaseFile(sample("ASampleDatabase.accdb"));
    const auto* groups = table(tables, u"MSysNavPaneGroups");
    ASSERT_NE(groups, nullptr);
    long id = -1, name = -1;
    for (const auto& f : groups->Fields) {
        if (f.Name == u"Id") id = f.Attributes;
        if (f.Name == u"Name") name = f.Attributes;
    }
    EXPECT_EQ(id, host::dbAutoIncrField | host::dbVariableField);
    EXPECT_EQ(name, host::dbUpdatableField | host::dbVariableField);
}

TEST_F(AccessFile, AMissingFileRaisesFileNotFound) {
    files::testing::TempDir dir;
    try {
        ReadAccessDatabaseFile((dir / "none.mdb").string());
        FAIL() << "no error";
    } catch (const basic::VbError& e) {
        EXPECT_EQ(e.Number(), 53);
        EXPECT_NE(basic::toUtf8(e.Description()).find("none.mdb"), std::string::npos);
    }
}

TEST_F(AccessFile, EmptyShortAndForeignFilesAreNoDatabase) {
    EXPECT_EQ(errorOf(""), "3343 'broken.mdb' is not an Access database: the file is too short.");
    EXPECT_EQ(errorOf(std::string(8192, 'x')), "3343 'broken.mdb' is not an Access database: the file has no database header.");
}

TEST_F(AccessFile, ATruncatedCopyRaisesAndNeverCrashes) {
    files::testing::TempDir dir;
    std::string whole = bytesOf(sample("DateTestDatabase.mdb"));
    dir.write("cut.mdb", whole.substr(0, whole.size() / 2 + 100));
    try {
        ReadAccessDatabaseFile((dir / "cut.mdb").string());
        FAIL() << "no error";
    } catch (const basic::VbError& e) {
        EXPECT_EQ(basic::toUtf8(e.Description()),
                  "'" + (dir / "cut.mdb").string() + "' is not an Access database: the file is cut off within a page (truncated).");
    }
}

TEST_F(AccessFile, ACopyCutAtAPageBoundaryReadsWhatIsThereOrRaises) {
    std::string whole = bytesOf(sample("ASampleDatabase.accdb"));
    for (size_t pages : {2u, 3u, 8u, 40u, 100u}) {
        std::string cut = whole.substr(0, pages * 4096);
        try {
            ReadAccessDatabase(cut, u"cut.accdb");
        } catch (const basic::VbError& e) {
            EXPECT_EQ(e.Number(), kNotADatabase);
        }
    }
}

TEST_F(AccessFile, AHeaderWithDamagedPagesBehindItRaisesOrReads) {
    std::string whole = bytesOf(sample("DateTestDatabase.mdb"));
    for (size_t page = 1; page < 12; ++page) {
        std::string damaged = whole;
        for (size_t i = page * 4096; i < (page + 1) * 4096; ++i) damaged[i] = static_cast<char>(i * 31 + page);
        try {
            ReadAccessDatabase(damaged, u"damaged.mdb");
        } catch (const basic::VbError& e) {
            EXPECT_EQ(e.Number(), kNotADatabase);
        }
    }
}

}  // namespace
}  // namespace quillet::hosts::mdb
