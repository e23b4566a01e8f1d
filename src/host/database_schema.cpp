#include "host/database_schema.h"

#include "basic/variant.h"

namespace quillet::host {

namespace {

using basic::CObj;
using basic::CStr;

// A collection of a late-bound object model walked by number (Count, Item(i), 0-based in DAO).
std::vector<DispatchPtr> items(const DispatchPtr& collection) {
    std::vector<DispatchPtr> found;
    long long count = basic::CLng(collection->Get(u"Count"));
    for (long long i = 0; i < count; ++i) found.push_back(CObj(collection->Get(u"Item", {Variant(i)})));
    return found;
}

// Access reached by member name: a database file through DAO. The catalogue of an ADP needs
// ADOX, which only the editor's own host can create; such a project shows no tables here.
class LateBoundSchema : public DatabaseSchemaSource {
public:
    explicit LateBoundSchema(DispatchPtr app) : app_(std::move(app)) {}

    long ProjectType() override {
        auto project = CObj(app_->Get(u"CurrentProject"));
        return project ? static_cast<long>(basic::CLng(project->Get(u"ProjectType"))) : acNull;
    }
    std::vector<DatabaseTable> Tables() override {
        std::vector<DatabaseTable> tables;
        if (ProjectType() == acADP) return tables;
        for (auto& def : items(tableDefs())) tables.push_back({CStr(def->Get(u"Name")), u"TABLE", {}});
        return tables;
    }
    std::vector<DatabaseField> Fields(const Str& table) override {
        if (ProjectType() == acADP) throw ItemNotFound();
        auto def = CObj(tableDefs()->Get(u"Item", {Variant(table)}));
        std::vector<DatabaseField> fields;
        for (auto& field : items(CObj(def->Get(u"Fields"))))
            fields.push_back({CStr(field->Get(u"Name")), static_cast<long>(basic::CLng(field->Get(u"Type"))),
                              static_cast<long>(basic::CLng(field->Get(u"Attributes")))});
        return fields;
    }

private:
    DispatchPtr tableDefs() { return CObj(CObj(app_->Call(u"currentdb"))->Get(u"Tabledefs")); }

    DispatchPtr app_;
};

}  // namespace

std::shared_ptr<DatabaseSchemaSource> DatabaseSchemaOf(const DispatchPtr& accessApp) {
    if (!accessApp) return nullptr;
    if (auto own = std::dynamic_pointer_cast<DatabaseSchemaSource>(accessApp)) return own;
    return std::make_shared<LateBoundSchema>(accessApp);
}

}  // namespace quillet::host
