#pragma once
// The tables and fields of an Access database file (Jet 3 and 4 .mdb, ACE .accdb), read with
// MDB Tools. What the file holds is untrusted: a file that is not a whole Access database raises
// a VbError that says so, never more.

#include <string>
#include <vector>

#include "host/database_schema.h"

namespace quillet::hosts::mdb {

// The error raised for a file that cannot be read as a database.
constexpr long kNotADatabase = 3343;  // DAO's "Unrecognized database format"

// Every table of the database in its catalogue's order, system tables included, each with its
// fields (DAO type numbers and attributes). `name` is used in the error messages.
std::vector<host::DatabaseTable> ReadAccessDatabase(const std::string& bytes, const host::Str& name);
// The same for a file on disk; a file that cannot be read raises 53 or 75 with its path.
std::vector<host::DatabaseTable> ReadAccessDatabaseFile(const std::string& path);

// Whether this build can read database files (MDB Tools was there when it was built).
bool AccessDatabasesReadable();

}  // namespace quillet::hosts::mdb
