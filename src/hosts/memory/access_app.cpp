#include "hosts/memory/access_app.h"

#include "basic/strings.h"

namespace quillet::hosts::memory {

AccessApplication::AccessApplication(long projectType, std::vector<host::DatabaseTable> tableList)
    : tables(std::move(tableList)), projectType_(projectType), project_(std::make_shared<MemoryDispatch>(u"CurrentProject")) {
    project_->Put(u"ProjectType", static_cast<long long>(projectType));
    project_->Put(u"FullName", Str());
}

basic::Variant AccessApplication::Get(const Str& member, const basic::Args&) {
    Str name = basic::UCase(member);
    if (name == u"NAME") return Str(u"Microsoft Access");
    if (name == u"CURRENTPROJECT") return basic::DispatchPtr(project_);
    throw basic::VbError::standard(438);
}

void AccessApplication::Put(const Str&, const basic::Variant&, const basic::Args&) { throw basic::VbError::standard(438); }

std::vector<host::DatabaseField> AccessApplication::Fields(const Str& table) {
    for (const auto& entry : tables)
        if (basic::StrComp(entry.Name, table, basic::Compare::Text) == 0) return entry.Fields;
    throw host::ItemNotFound();
}

}  // namespace quillet::hosts::memory
