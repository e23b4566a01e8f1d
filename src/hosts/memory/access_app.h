#pragma once
// The Access application of the in-memory editor: "Microsoft Access" with a CurrentProject whose
// ProjectType tells a database file from an ADP, and the tables of its database, which a test
// (or the quillet tool, from a database file) fills.

#include "host/database_schema.h"
#include "hosts/memory/dispatch.h"

namespace quillet::hosts::memory {

class AccessApplication : public basic::Dispatch, public host::DatabaseSchemaSource {
public:
    explicit AccessApplication(long projectType = host::acMDB, std::vector<host::DatabaseTable> tables = {});

    // The database: its tables with their fields, in order.
    std::vector<host::DatabaseTable> tables;

    // Name "Microsoft Access", CurrentProject (with ProjectType and FullName); other members raise 438.
    Str TypeName() const override { return u"Application"; }
    basic::Variant Get(const Str& member, const basic::Args& args = {}) override;
    void Put(const Str& member, const basic::Variant& value, const basic::Args& args = {}) override;
    basic::Variant Call(const Str& member, const basic::Args& args = {}) override { return Get(member, args); }

    long ProjectType() override { return projectType_; }
    std::vector<host::DatabaseTable> Tables() override { return tables; }
    std::vector<host::DatabaseField> Fields(const Str& table) override;

    // CurrentProject.FullName.
    void FullName(const Str& path) { project_->Put(u"FullName", path); }

private:
    long projectType_;
    std::shared_ptr<MemoryDispatch> project_;
};

}  // namespace quillet::hosts::memory
