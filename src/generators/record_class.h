#pragma once
// A record class from a database table: a property per field, the Recordset and Loaded helpers,
// and the methods that load and save one row (Load, Update, Class_Initialize, Class_Terminate,
// FindFirst), for a DAO or an ADO project.

#include <vector>

#include "generators/cls_class.h"

namespace quillet::generators {

// A field as the table dialog hands it over: its name and its packed type number (the field
// type, + 1000 for a catalogue column, + 10000 for an auto-increment field).
struct TableField {
    Str Name;
    long Type = 0;
};

// The Basic type of a packed field type: 1 "Boolean", 2 "Byte", 3 "Integer", 4 "Long",
// 5 "Currency", 6 "Single", 7 and 21 "Double", 8 "Date", 10 and 12 "String", else "Variant";
// catalogue columns from 1002 on; an auto-increment field as its type.
Str FieldTypeName(long number);

// An Access project whose data comes through ADO (CurrentProject.ProjectType 1, an ADP); any other
// project, and any other host, counts as a DAO one.
bool ProjectIsAdo(core::Context& ctx);

// Adds to the class a property for each field whose name makes a valid name (a name the class
// has already is passed over), the two helpers, and the record methods (a method the class has
// already stays as it is).
void RecordClassFromTable(core::Context& ctx, clsClass& rClass, const Str& table, const std::vector<TableField>& fields,
                          bool blnAdo);

}  // namespace quillet::generators
