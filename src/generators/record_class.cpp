// The record class's properties and methods.

#include "generators/record_class.h"

#include "core/caret.h"
#include "core/err_handler.h"
#include "source/type_lists.h"

namespace quillet::generators {

namespace {

using basic::Compare;

constexpr char16_t kCrLf[] = u"\r\n";
constexpr long kAutoIncrement = 10000;

bool is(const Str& a, const Str& b) { return basic::StrComp(a, b, Compare::Text) == 0; }

// The method templates; [Indent] is replaced last.
constexpr char16_t kMethod[] =
    u"[Public] Sub [Name]()\r\n[Indent]With Recordset\r\n[Code]\r\n[Indent]End With\r\n[Indent][Loaded]\r\nEnd Sub";
constexpr char16_t kUpdateHead[] =
    u"[Indent][Indent]If [Loaded] Then\r\n[Edit]\r\n[Indent][Indent]Else\r\n[Indent][Indent][Indent].AddNew\r\n"
    u"[Indent][Indent]End If";
constexpr char16_t kTerminate[] =
    u"Private Sub Class_Terminate()\r\n[Indent]Recordset.Close\r\n[Indent]Set Recordset = Nothing\r\nEnd Sub";
constexpr char16_t kFindFirst[] =
    u"Public Function FindFirst(Optional Criteria As Variant) As Boolean\r\n[Indent]If IsMissing(Criteria) Then\r\n"
    u"[Indent][Indent]Recordset.MoveFirst\r\n[Indent][Indent]FindFirst = Not Recordset.EOF\r\n[Indent]Else\r\n[Code]\r\n"
    u"[Indent]End If\r\n[Indent]If FindFirst Then Load\r\nEnd Function";

Str replaced(const Str& text, const Str& marker, const Str& by) { return basic::Replace(text, marker, by, 1, -1, Compare::Text); }

template <class C>
bool named(C& members, const Str& name) {
    for (const auto& member : members.Items)
        if (is(member->Name, name)) return true;
    return false;
}

void propertyAdd(core::Context& ctx, clsClass& c, const Str& name, const Str& type, const Str& access, long dataType2) {
    if (named(c.Properties(), name)) return;
    auto property = std::make_shared<clsProperty>(ctx);
    property->Name = name;
    property->datatype = type;
    property->AccessibleType = access;
    property->DataType2 = dataType2;
    c.Properties().Add(property);
}

// A method whose text is given; it ends in a blank line, as the generated ones do.
void methodAdd(core::Context& ctx, clsClass& c, const Str& name, const Str& access, const Str& text) {
    if (named(c.Methods(), name)) return;
    auto method = std::make_shared<clsProcedure>(ctx);
    method->Name = name;
    method->AccessibleType = access;
    method->ProcType = name == u"FindFirst" ? u"Function" : u"Sub";
    method->ProcContent(replaced(text, u"[Indent]", core::TabSpaces(ctx)) + kCrLf);
    c.Methods().Add(method);
}

// Load and Update: a line per field whose property the class has.
void MethodsFromTable(core::Context& ctx, clsClass& c, const std::vector<Str>& names, const std::vector<Str>& fields,
                      bool blnAdo) {
    Str loaded;
    for (const auto& property : c.Properties().Items)
        if (property->Name == u"Loaded") loaded = property->PrivPropVarName();
    std::vector<Str> loadLines, updateLines;
    for (size_t i = 0; i < names.size(); ++i) {
        if (!named(c.Properties(), names[i])) continue;
        loadLines.push_back(u"[Indent][Indent]Me." + names[i] + u" = Nz(.Fields(\"" + fields[i] + u"\").Value)");
        updateLines.push_back(u"[Indent][Indent].Fields(\"" + fields[i] + u"\").Value = Me." + names[i]);
    }
    Str load = replaced(replaced(kMethod, u"[Public]", u"Private"), u"[Name]", u"Load");
    load = replaced(replaced(load, u"[Code]", basic::Join(loadLines, kCrLf)), u"[Loaded]", loaded + u" = True");
    Str head = replaced(replaced(kUpdateHead, u"[Edit]", blnAdo ? Str() : Str(u"[Indent][Indent][Indent].Edit")),
                        u"[Loaded]", loaded);
    Str updateCode = head + kCrLf + basic::Join(updateLines, kCrLf) + kCrLf + u"[Indent][Indent]" + u".Update";
    Str update = replaced(replaced(kMethod, u"[Public]", u"Public"), u"[Name]", u"Update");
    update = replaced(replaced(update, u"[Code]", updateCode), u"[Loaded]", loaded + u" = True");
    methodAdd(ctx, c, u"Load", u"Private", load);
    methodAdd(ctx, c, u"Update", u"Public", update);
}

}  // namespace

bool ProjectIsAdo(core::Context& ctx) {
    bool ado = false;
    core::ignoringErrors([&] {
        if (!ctx.AccessApp()) return;
        auto project = basic::CObj(ctx.AccessApp()->Get(u"CurrentProject"));
        ado = project && basic::CStr(project->Get(u"ProjectType")) == u"1";
    });
    return ado;
}

Str FieldTypeName(long number) {
    if (number > kAutoIncrement) number -= kAutoIncrement;
    switch (number) {
        case 1: case 1011: return u"Boolean";
        case 2: case 1016: return u"Byte";
        case 3: case 1002: return u"Integer";
        case 4: case 1003: return u"Long";
        case 5: case 1006: return u"Currency";
        case 6: case 1004: return u"Single";
        case 7: case 21: case 1005: return u"Double";
        case 8: case 1007: case 1133: case 1134: case 1135: return u"Date";
        case 10: case 12: case 1008: case 1129: case 1130: case 1200: case 1201: case 1202: case 1203: return u"String";
        default: return u"Variant";
    }
}

void RecordClassFromTable(core::Context& ctx, clsClass& rClass, const Str& table, const std::vector<TableField>& fields,
                          bool blnAdo) {
    core::guarded(ctx, u"MethodsFromTable", [&] {
        std::vector<Str> names, fieldNames;
        for (const auto& field : fields) {
            Str n = source::MakeValidName(field.Name);
            if (n.empty()) continue;
            names.push_back(n);
            fieldNames.push_back(field.Name);
            propertyAdd(ctx, rClass, n, FieldTypeName(field.Type), u"Public", field.Type > kAutoIncrement ? field.Type : 0);
        }
        propertyAdd(ctx, rClass, u"Recordset", u"Recordset", u"Private", 0);
        propertyAdd(ctx, rClass, u"Loaded", u"Boolean", u"Private", 0);
        MethodsFromTable(ctx, rClass, names, fieldNames, blnAdo);
        Str indent = core::TabSpaces(ctx);
        Str open = blnAdo ? indent + u"Set Recordset = New Recordset" + kCrLf + indent + u"Recordset.Open \"" + table +
                                u"\", CurrentProject.Connection, adOpenKeyset, adLockOptimistic" + kCrLf
                          : indent + u"Set Recordset = CurrentDb.OpenRecordset(\"" + table + u"\", dbOpenDynaset)";
        methodAdd(ctx, rClass, u"Class_Initialize", u"Private",
                  Str(u"Private Sub Class_Initialize()\r\n") + open + u"\r\nEnd Sub");
        methodAdd(ctx, rClass, u"Class_Terminate", u"Private", kTerminate);
        Str find = blnAdo ? Str(u"[Indent][Indent]Recordset.Find Criteria\r\n"
                                u"[Indent][Indent]FindFirst = Not (Recordset.EOF or Recordset.BOF)")
                          : Str(u"[Indent][Indent]Recordset.FindFirst Criteria\r\n"
                                u"[Indent][Indent]FindFirst = Not Recordset.NoMatch");
        methodAdd(ctx, rClass, u"FindFirst", u"Public", replaced(kFindFirst, u"[Code]", find));
    });
}

}  // namespace quillet::generators
