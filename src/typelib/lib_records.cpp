#include "typelib/lib_records.h"

namespace quillet::typelib {

Str TypeKindStrOf(long kind) {
    static const char16_t* const names[] = {u"Enum",    u"Record", u"Module",     u"Interface",
                                            u"Dispatch (*)", u"CoClass", u"Alias (**)", u"Union"};
    return kind >= 0 && kind < 8 ? Str(names[kind]) : Str();
}

void LibraryProcedures::AddProc(const source::C4_ProcDefPtr& proc, const Str& groupKey) {
    if (!Groups.Exists(groupKey)) {
        auto group = std::make_shared<source::C4_ProcDefs>();
        group->ProjectName = proc->Project;
        group->ModuleName = proc->ModuleName;
        Groups.Add(group, groupKey);
    }
    Groups.Item(groupKey)->AddProc(proc, proc->Name);
}

std::shared_ptr<source::C4_ProcDefs> LibraryProcedures::Group(const Str& groupKey) const {
    return Groups.Exists(groupKey) ? Groups.Item(groupKey) : nullptr;
}

void LibraryProcedures::RemoveProject(const Str& project) {
    for (long i = Groups.Count(); i >= 1; --i)
        if (basic::StrComp(Groups.Item(i)->ProjectName, project, basic::Compare::Text) == 0) Groups.Remove(i);
}

long LibraryProcedures::Count() const {
    long count = 0;
    for (long i = 1; i <= Groups.Count(); ++i) count += Groups.Item(i)->Count();
    return count;
}

}  // namespace quillet::typelib
