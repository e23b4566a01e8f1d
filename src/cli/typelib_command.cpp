#include "cli/typelib_command.h"

#include "cli/json_writer.h"
#include "cli/tool.h"
#include "typelib/cls_scan_tli.h"
#include "typelib/msft_reader.h"

namespace quillet::cli {

using basic::toUtf8;
using typelib::LibraryLists;

namespace {

void writeText(const Str& libraryName, LibraryLists& lists, std::ostream& out) {
    out << "Library " << toUtf8(libraryName) << "\n";
    for (long g = 1; g <= lists.Groups.Count(); ++g) {
        const typelib::clsGroup& group = *lists.Groups.Item(g);
        out << "\nGroup " << toUtf8(group.Name) << " (" << toUtf8(group.TypeKindStr) << ")\n";
        auto procs = lists.Procedures.Group(group.Project + u"." + group.Name);
        for (long i = 1; procs && i <= procs->Count(); ++i) out << "  " << toUtf8(procs->Items.Item(i)->ProcDef) << "\n";
    }
    for (long e = 1; e <= lists.Enums.Count(); ++e) {
        source::clsEnum& enumeration = *lists.Enums.Item(e);
        out << "\nEnum " << toUtf8(enumeration.Name) << "\n";
        for (long i = 1; i <= enumeration.Count(); ++i)
            out << "  " << toUtf8(enumeration.Item(i)->Name) << " = " << toUtf8(enumeration.Item(i)->Value) << "\n";
    }
    if (lists.Classes.Count() > 0) out << "\nClasses\n";
    for (long c = 1; c <= lists.Classes.Count(); ++c) {
        const typelib::clsLibClass& libClass = *lists.Classes.Item(c);
        out << "  " << toUtf8(libClass.Name) << " (" << toUtf8(libClass.TypeKindStr) << ")\n";
    }
}

void writeProcedure(JsonWriter& json, const source::C4_ProcDef& proc) {
    json.beginObject();
    json.key(u"Name"); json.value(proc.Name);
    json.key(u"ProcIsFunction"); json.value(proc.ProcIsFunction);
    json.key(u"ProcReturnType"); json.value(proc.ProcReturnType);
    json.key(u"Arguments"); json.value(proc.ProcArguments->StringOfArguments());
    json.key(u"ShortArguments"); json.value(proc.ProcArguments->ShortStringOfArguments());
    json.key(u"HelpStr"); json.value(proc.HelpStr);
    json.key(u"HelpFile"); json.value(proc.HelpFile);
    json.key(u"HelpContext"); json.value(static_cast<long long>(proc.HelpContext));
    json.endObject();
}

void writeJson(const Str& libraryName, LibraryLists& lists, std::ostream& out) {
    JsonWriter json(out);
    json.beginObject();
    json.key(u"Library"); json.value(libraryName);
    json.key(u"Groups"); json.beginArray();
    for (long g = 1; g <= lists.Groups.Count(); ++g) {
        const typelib::clsGroup& group = *lists.Groups.Item(g);
        json.beginObject();
        json.key(u"Name"); json.value(group.Name);
        json.key(u"TypeKindStr"); json.value(group.TypeKindStr);
        json.key(u"HelpStr"); json.value(group.HelpStr);
        json.key(u"Procedures"); json.beginArray();
        auto procs = lists.Procedures.Group(group.Project + u"." + group.Name);
        for (long i = 1; procs && i <= procs->Count(); ++i) writeProcedure(json, *procs->Items.Item(i));
        json.endArray();
        json.endObject();
    }
    json.endArray();
    json.key(u"Enums"); json.beginArray();
    for (long e = 1; e <= lists.Enums.Count(); ++e) {
        source::clsEnum& enumeration = *lists.Enums.Item(e);
        json.beginObject();
        json.key(u"Name"); json.value(enumeration.Name);
        json.key(u"HelpStr"); json.value(enumeration.HelpStr);
        json.key(u"Constants"); json.beginArray();
        for (long i = 1; i <= enumeration.Count(); ++i) {
            json.beginObject();
            json.key(u"Name"); json.value(enumeration.Item(i)->Name);
            json.key(u"Value"); json.value(enumeration.Item(i)->Value);
            json.endObject();
        }
        json.endArray();
        json.endObject();
    }
    json.endArray();
    json.key(u"Classes"); json.beginArray();
    for (long c = 1; c <= lists.Classes.Count(); ++c) {
        const typelib::clsLibClass& libClass = *lists.Classes.Item(c);
        json.beginObject();
        json.key(u"Name"); json.value(libClass.Name);
        json.key(u"TypeKindStr"); json.value(libClass.TypeKindStr);
        json.key(u"HelpStr"); json.value(libClass.HelpStr);
        json.endObject();
    }
    json.endArray();
    json.endObject();
    json.finish();
}

}  // namespace

int typelibCommand(const ToolOptions& options, std::ostream& out, std::ostream& err) {
    typelib::MsftReader reader(options.typelibPath);
    Str libraryName;
    LibraryLists lists;
    try {
        typelib::TypeLibraryPtr library = reader.Open(*options.typelibFile);
        libraryName = library->Name();
        typelib::clsScanTLI scan(reader);
        scan.TLI_Get(libraryName, basic::fromUtf8(*options.typelibFile), lists);
    } catch (const typelib::TypeLibError& error) {
        err << "quillet: " << *options.typelibFile << ": " << error.what() << "\n";
        return kExitProject;
    }
    if (options.json)
        writeJson(libraryName, lists, out);
    else
        writeText(libraryName, lists, out);
    return kExitOk;
}

}  // namespace quillet::cli
