// The object inventory of an Access database: a module of constants naming its tables, their
// fields, its queries and its forms, so that code refers to them by checked names.

#include <set>

#include "addin/core_names.h"
#include "core/err_handler.h"
#include "addin/project_commands.h"
#include "basic/strings.h"
#include "source/char_class.h"
#include "source/code_placing.h"

namespace quillet::addin {

using basic::Compare;
using basic::Like;
using basic::StrComp;

namespace {

constexpr char16_t kInventoryModule[] = u"basObjectInventory";
constexpr long kMaxNameLength = 255;

basic::Variant get(const basic::DispatchPtr& object, const Str& member, const basic::Args& args = {}) {
    return object->Get(member, args);
}
basic::DispatchPtr objectOf(const basic::DispatchPtr& object, const Str& member, const basic::Args& args = {}) {
    return basic::CObj(get(object, member, args));
}

std::vector<Str> namesIn(const basic::DispatchPtr& collection) {
    std::vector<Str> names;
    long long count = basic::CLng(get(collection, u"Count"));
    for (long long i = 1; i <= count; ++i)
        names.push_back(basic::CStr(get(objectOf(collection, u"Item", {basic::Variant(i)}), u"Name")));
    return names;
}

bool likeAny(const Str& name, std::initializer_list<const char16_t*> patterns) {
    for (const char16_t* pattern : patterns)
        if (Like(name, pattern, Compare::Text)) return true;
    return false;
}

Str numberText(long n) {
    std::string digits = std::to_string(n);
    return Str(digits.begin(), digits.end());
}

// Collects the lines of constants, each name once.
class InventoryText {
public:
    void heading(const Str& text) { text_ += text + u"\r\n"; }
    void constant(const Str& value, const Str& letter, const Str& suffix = {}) {
        Str name = InventoryConstantName(value);
        if (name.empty()) name = letter + numberText(++unnamed_);
        name = basic::Left(name + suffix, kMaxNameLength);
        if (!used_.insert(basic::UCase(name)).second) return;
        text_ += u"Public Const " + name + u" As String = \"" + basic::Replace(value, u"\"", u"\"\"") + u"\"\r\n";
    }
    const Str& text() const { return text_; }

private:
    Str text_;
    std::set<Str> used_;
    long unnamed_ = 0;
};

// The project of the database: the only one, or the one saved as the database's file.
host::VBProjectPtr databaseProject(Context& ctx, const basic::DispatchPtr& currentProject) {
    auto projects = ctx.VBInstance->VBProjects();
    if (projects->Count() == 1) return projects->Item(1);
    Str fullName = basic::CStr(get(currentProject, u"FullName"));
    for (long i = 1, count = projects->Count(); i <= count; ++i) {
        auto project = projects->Item(i);
        Str fileName;
        ignoringErrors([&] { fileName = project->FileName(); });
        if (StrComp(fileName, fullName, Compare::Text) == 0) return project;
    }
    return nullptr;
}

host::CodeModulePtr emptiedInventoryModule(const host::VBProjectPtr& project) {
    auto components = project->VBComponents();
    host::VBComponentPtr component;
    for (long i = 1, count = components->Count(); i <= count && !component; ++i)
        if (StrComp(components->Item(i)->Name(), kInventoryModule, Compare::Text) == 0) component = components->Item(i);
    if (!component) {
        component = components->Add(host::vbext_ct_StdModule);
        component->Name(kInventoryModule);
    }
    auto module = component->CodeModule();
    if (module->CountOfLines() > 0) module->DeleteLines(1, module->CountOfLines());
    return module;
}

Str inventoryOf(const basic::DispatchPtr& access, const basic::DispatchPtr& currentProject) {
    InventoryText text;
    auto data = objectOf(access, u"CurrentData");
    auto tableDefs = objectOf(objectOf(access, u"CurrentDb"), u"TableDefs");
    text.heading(u"'Tables");
    for (const Str& table : namesIn(objectOf(data, u"AllTables"))) {
        if (likeAny(table, {u"MSys*", u"~TMPCLP*"})) continue;
        text.constant(table, u"t");
        auto fields = objectOf(objectOf(tableDefs, u"Item", {basic::Variant(table)}), u"Fields");
        for (const Str& field : namesIn(fields)) text.constant(field, u"t", u"fld");
    }
    text.heading(u"'Queries");
    for (const Str& query : namesIn(objectOf(data, u"AllQueries")))
        if (!likeAny(query, {u"~TMPCLP*", u"~sq_*"})) text.constant(query, u"q");
    text.heading(u"'Forms");
    for (const Str& form : namesIn(objectOf(currentProject, u"AllForms"))) text.constant(form, u"f");
    return text.text();
}

}  // namespace

Str InventoryConstantName(const Str& text) {
    Str name;
    for (char16_t c : text) {
        if (name.empty() && !source::IsCharAlphaA(c)) continue;
        if (source::IsCharAlphaNumericA(c) || c == u'_') name += c;
    }
    return basic::Left(name, kMaxNameLength);
}

void AccessObjectInventory(Context& ctx) {
    guarded(ctx, u"basCommands.AccessObjectInventory", [&] {
        auto access = ctx.AccessApp();
        if (!access) return;
        auto currentProject = objectOf(access, u"CurrentProject");
        if (!currentProject || !objectOf(currentProject, u"Connection")) return;
        auto project = databaseProject(ctx, currentProject);
        if (!project) {
            ctx.Platform().MsgBox(u"Please close Microsoft Access and reopen database\r\n"
                                  u"Quillet can't detect VBProject for current database.",
                                  platform::mb::vbCritical, source::kProductTitle);
            return;
        }
        Str text = inventoryOf(access, currentProject);
        auto module = emptiedInventoryModule(project);
        module->InsertLines(1, basic::Left(text, basic::Len(text) - 2));
    });
}

}  // namespace quillet::addin
