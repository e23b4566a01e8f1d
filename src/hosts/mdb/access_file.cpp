#include "hosts/mdb/access_file.h"

#include <fstream>
#include <iterator>
#include <memory>

#include <mdbtools.h>

#include "basic/unicode.h"

namespace quillet::hosts::mdb {

namespace {

using host::Str;

// The first page of every Jet and ACE file: a fixed prefix, the engine's name, and the version
// byte that tells the page size (2048 for Jet 3, 4096 from Jet 4 on).
constexpr unsigned char kMagic[4] = {0x00, 0x01, 0x00, 0x00};
constexpr size_t kVersionOffset = 0x14;

basic::VbError notADatabase(const Str& name, const Str& why) {
    return basic::VbError(kNotADatabase, u"'" + name + u"' is not an Access database: " + why + u".");
}

// Checks what MDB Tools takes on trust: a file shorter than its header, or cut off within a
// page, would have it read beyond the buffer.
void checkHeader(const std::string& bytes, const Str& name) {
    if (bytes.size() < 2 * 2048) throw notADatabase(name, u"the file is too short");
    if (bytes.compare(0, 4, reinterpret_cast<const char*>(kMagic), 4) != 0 ||
        (bytes.compare(4, 15, "Standard Jet DB") != 0 && bytes.compare(4, 15, "Standard ACE DB") != 0))
        throw notADatabase(name, u"the file has no database header");
    size_t page = bytes[kVersionOffset] == 0 ? 2048 : 4096;
    if (bytes.size() % page != 0) throw notADatabase(name, u"the file is cut off within a page (truncated)");
}

// DAO's DataTypeEnum for a column type of the file: the same numbers but for a few.
long daoType(int columnType) {
    switch (columnType) {
        case MDB_NUMERIC: return 20;  // dbDecimal
        case MDB_COMPLEX: return 101;  // a multi-valued field
        default: return columnType;
    }
}

long attributes(const MdbColumn& column) {
    long bits = column.is_fixed ? host::dbFixedField : host::dbVariableField;
    return bits | (column.is_long_auto ? host::dbAutoIncrField : host::dbUpdatableField);
}

struct Closer {
    void operator()(MdbHandle* handle) const { mdb_close(handle); }
};
struct TableFree {
    void operator()(MdbTableDef* table) const { mdb_free_tabledef(table); }
};

std::vector<host::DatabaseField> fields(MdbCatalogEntry& entry, const Str& name) {
    std::unique_ptr<MdbTableDef, TableFree> table(mdb_read_table(&entry));
    if (!table) throw notADatabase(name, u"the table '" + basic::fromUtf8(entry.object_name) + u"' cannot be read");
    GPtrArray* columns = mdb_read_columns(table.get());
    std::vector<host::DatabaseField> found;
    for (guint i = 0; columns && i < columns->len; ++i) {
        auto* column = static_cast<MdbColumn*>(g_ptr_array_index(columns, i));
        found.push_back({basic::fromUtf8(column->name), daoType(column->col_type), attributes(*column)});
    }
    return found;
}

}  // namespace

std::vector<host::DatabaseTable> ReadAccessDatabase(const std::string& bytes, const Str& name) {
    checkHeader(bytes, name);
    // MDB Tools reads the buffer in place and may write into it; it gets its own copy.
    std::string copy = bytes;
    std::unique_ptr<MdbHandle, Closer> handle(mdb_open_buffer(copy.data(), copy.size(), MDB_NOFLAGS));
    if (!handle) throw notADatabase(name, u"the file cannot be opened");
    GPtrArray* catalog = mdb_read_catalog(handle.get(), MDB_TABLE);
    if (!catalog) throw notADatabase(name, u"its catalogue cannot be read");
    std::vector<host::DatabaseTable> tables;
    for (guint i = 0; i < catalog->len; ++i) {
        auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(catalog, i));
        if (entry->object_type != MDB_TABLE) continue;
        tables.push_back({basic::fromUtf8(entry->object_name), u"TABLE", fields(*entry, name)});
    }
    return tables;
}

std::vector<host::DatabaseTable> ReadAccessDatabaseFile(const std::string& path) {
    Str name = basic::fromUtf8(path);
    std::ifstream in(path, std::ios::binary);
    if (!in) throw basic::VbError(53, u"File not found: '" + name + u"'.");
    std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad()) throw basic::VbError(75, u"Path/File access error: '" + name + u"'.");
    return ReadAccessDatabase(bytes, name);
}

bool AccessDatabasesReadable() { return true; }

}  // namespace quillet::hosts::mdb
