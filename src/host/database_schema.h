#pragma once
// The tables and fields of the database behind an Access project, as Access tells them: for a
// database file (MDB, ACCDB) the DAO objects of currentdb (Tabledefs, fields, Type, Attributes);
// for an Access project on a server (ADP) the ADOX catalogue on CurrentProject.Connection (Tables
// with their Type, Columns). A host whose Access application object knows its database implements
// DatabaseSchemaSource beside it; any other Access object is read late-bound, by member name.

#include <memory>
#include <vector>

#include "host/objects.h"

namespace quillet::host {

// CurrentProject.ProjectType (AcProjectType).
enum AcProjectType : long { acNull = 0, acADP = 1, acMDB = 2 };
// Field.Attributes bits (FieldAttributeEnum) the system reads or hands on.
enum FieldAttribute : long { dbFixedField = 1, dbVariableField = 2, dbAutoIncrField = 16, dbUpdatableField = 32 };
// The error DAO and ADOX raise for a name that is not in a collection.
constexpr long kItemNotFound = 3265;
inline VbError ItemNotFound() { return VbError(kItemNotFound, u"Item not found in this collection."); }

struct DatabaseField {
    Str Name;
    long Type = 0;        // DAO DataTypeEnum (dbText 10 ...), or ADO DataTypeEnum for a catalogue column
    long Attributes = 0;  // FieldAttribute bits; 0 for a catalogue column
};

struct DatabaseTable {
    Str Name;
    // The catalogue's Type ("TABLE", "SYSTEM TABLE", "VIEW", "ACCESS TABLE" ...); "TABLE" for a
    // table definition of a database file.
    Str Type = u"TABLE";
    std::vector<DatabaseField> Fields;
};

class DatabaseSchemaSource {
public:
    virtual ~DatabaseSchemaSource() = default;
    // acADP or acMDB.
    virtual long ProjectType() = 0;
    // Every table in the order the database lists them, the system tables included; their
    // Fields may be left empty (Fields(name) reads them).
    virtual std::vector<DatabaseTable> Tables() = 0;
    // The fields, or the catalogue's columns, of one table; a name not there raises kItemNotFound.
    virtual std::vector<DatabaseField> Fields(const Str& table) = 0;
};

// The schema of the Access application object: its own when it implements DatabaseSchemaSource,
// else one that reads it late-bound (CurrentProject.ProjectType; currentdb.Tabledefs with fields,
// Name, Type, Attributes). None for no object. The reads raise as the host raised.
std::shared_ptr<DatabaseSchemaSource> DatabaseSchemaOf(const DispatchPtr& accessApp);

}  // namespace quillet::host
