// A build without MDB Tools (the Windows builds, where Access itself tells the tables): database
// files cannot be read.

#include "hosts/mdb/access_file.h"

namespace quillet::hosts::mdb {

std::vector<host::DatabaseTable> ReadAccessDatabase(const std::string&, const host::Str& name) {
    throw basic::VbError(kNotADatabase, u"'" + name + u"' cannot be read: this build has no reader of Access databases.");
}

std::vector<host::DatabaseTable> ReadAccessDatabaseFile(const std::string& path) {
    return ReadAccessDatabase({}, host::Str(path.begin(), path.end()));
}

bool AccessDatabasesReadable() { return false; }

}  // namespace quillet::hosts::mdb
