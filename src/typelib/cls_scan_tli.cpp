#include "typelib/cls_scan_tli.h"

#include "basic/unicode.h"

namespace quillet::typelib {

using basic::Compare;

namespace {

// A group or class record of a searchable item.
template <class Record>
std::shared_ptr<Record> itemRecord(const SearchItem& item, TypeInfo& info, const Str& project) {
    auto record = std::make_shared<Record>();
    record->Name = item.Name;
    record->Project = project;
    record->TypeInfoNumber = item.TypeInfoNumber;
    record->TypeKind = info.TypeKind();
    record->TypeKindStr = TypeKindStrOf(record->TypeKind);
    record->HelpStr = info.HelpString();
    return record;
}

bool sameText(const Str& a, const Str& b) { return basic::StrComp(a, b, Compare::Text) == 0; }

// The folder part of a path, through its last "\" (or "/").
Str folderOf(const Str& path) {
    size_t cut = path.find_last_of(u"\\/");
    return cut == Str::npos ? Str() : path.substr(0, cut + 1);
}

Str bareName(const Str& path) {
    size_t cut = path.find_last_of(u"\\/");
    return cut == Str::npos ? path : path.substr(cut + 1);
}

}  // namespace

Str clsScanTLI::HelpFileOf(const Str& libraryName, const Str& fullPath, const Str& libraryHelpFile) {
    Str upper = basic::UCase(libraryName);
    if (upper == u"VBA") {
        Str folder = folderOf(fullPath);
        return basic::Left(folder, std::max(0L, basic::Len(folder) - 7)) + u"1033\\VBLR6.CHM";
    }
    if (upper == u"ACCESS" || upper == u"EXCEL" || upper == u"WORD" || upper == u"OFFICE")
        return folderOf(fullPath) + u"1033\\" + bareName(libraryHelpFile);
    return libraryHelpFile;
}

void clsScanTLI::init(host::VBE& vbe, LibraryLists& lists, const Str& strRefName) {
    source::ignoringErrors([&] {
        host::VBProjectPtr project = vbe.ActiveVBProject();
        if (!project) return;
        host::ReferencesPtr references = project->References();
        for (long i = 1; i <= references->Count(); ++i) {
            host::ReferencePtr reference = references->Item(i);
            if (strRefName.empty() || sameText(reference->Name(), strRefName)) ReferenceScan(*reference, lists);
        }
    });
}

void clsScanTLI::ReferenceScan(host::Reference& reference, LibraryLists& lists) {
    Str name, path;
    try {
        if (reference.IsBroken()) return;
        name = reference.Name();
        path = reference.FullPath();
    } catch (...) {
        return;
    }
    if (path.empty()) return;
    if (!lists.References.Exists(name)) lists.References.Add(name, name);
    try {
        TLI_Get(name, path, lists);
    } catch (const std::exception& error) {
        Failures.push_back(name + u": " + basic::fromUtf8(error.what()));
    }
}

void clsScanTLI::TLI_Get(const Str& referenceName, const Str& fullPath, LibraryLists& lists) {
    TypeLibraryPtr library = reader_.Open(basic::toUtf8(fullPath));
    Str appObject = referenceName + u"_Unqualified";
    library->AppObjString(appObject);
    Str helpFile = HelpFileOf(library->Name(), fullPath, library->HelpFile());
    for (const SearchItem& item : library->SearchItems()) {
        if (item.Kind == kSearchDeclarations || item.Kind == kSearchAppObject || sameText(item.Name, appObject)) {
            scanGroup(*library, item, helpFile, lists);
            continue;
        }
        TypeInfoPtr info = library->TypeInfoAt(item.TypeInfoNumber);
        if (item.Kind == kSearchConstants && info->TypeKind() == TKIND_ENUM) {
            scanEnum(*info, library->Name(), lists);
        } else if (item.Kind != 0) {
            auto libClass = itemRecord<clsLibClass>(item, *info, library->Name());
            Str key = libClass->Project + u"." + libClass->Name;
            if (!lists.Classes.Exists(key)) lists.Classes.Add(libClass, key);
        }
    }
}

void clsScanTLI::scanGroup(TypeLibrary& library, const SearchItem& item, const Str& helpFile, LibraryLists& lists) {
    TypeInfoPtr info = library.TypeInfoAt(item.TypeInfoNumber);
    auto group = itemRecord<clsGroup>(item, *info, library.Name());
    Str groupKey = group->Project + u"." + group->Name;
    if (!lists.Groups.Exists(groupKey)) lists.Groups.Add(group, groupKey);
    for (const MemberInfo& member : info->Members()) {
        if (member.InvokeKind != 1 && member.InvokeKind != 2) continue;
        auto proc = std::make_shared<source::C4_ProcDef>();
        proc->IsLibraryProcedure = true;
        proc->Name = member.Name;
        proc->Project = group->Project;
        proc->ModuleName = proc->GroupName = group->Name;
        int vt = member.ReturnType.VarType;
        proc->ProcIsFunction = vt != VT_VOID && vt != VT_HRESULT;
        if (proc->ProcIsFunction) {
            proc->ProcReturnType = GetReturnType(member, group->Project);
            if (proc->ProcReturnType.empty()) proc->ProcReturnType = u"Variant";
        }
        proc->ProcArguments = ParamsGet(member, group->Project);
        proc->HelpStr = member.HelpString;
        proc->HelpFile = helpFile;
        proc->HelpContext = member.HelpContext;
        proc->ProcDef = proc->OneLineProcDef =
            Str(proc->ProcIsFunction ? u"Function " : u"Sub ") + proc->Name + u"(" +
            proc->ProcArguments->StringOfArguments() + u")" +
            (proc->ProcIsFunction ? u" As " + proc->ProcReturnType : Str());
        LibraryNameCleanUp(*proc);
        if (!proc->Name.empty()) lists.Procedures.AddProc(proc, groupKey);
    }
}

void clsScanTLI::scanEnum(TypeInfo& info, const Str& project, LibraryLists& lists) {
    auto enumeration = std::make_shared<source::clsEnum>();
    enumeration->Name = info.Name();
    enumeration->Project = project;
    enumeration->HelpStr = info.HelpString();
    for (const MemberInfo& member : info.Members()) {
        auto constant = std::make_shared<source::clsConstant>();
        constant->Name = member.Name;
        constant->EnumName(enumeration->Name);
        constant->Project = project;
        constant->Value = basic::CStr(member.Value);
        constant->HelpStr = member.HelpString;
        if (!enumeration->Items.Exists(constant->Name)) enumeration->Add(constant, constant->Name);
    }
    if (!lists.Enums.Items.Exists(enumeration->Name)) lists.Enums.Add(enumeration, enumeration->Name);
}

void LibraryNameCleanUp(source::C4_ProcDef& proc) {
    Str old = proc.Name;
    if (basic::Like(proc.Name, u"_B_str_*")) proc.Name = proc.Name.substr(7) + u"$";
    else if (basic::Like(proc.Name, u"_B_var_*")) proc.Name = proc.Name.substr(7);
    if (proc.Name != old) {
        proc.ProcDef = basic::Replace(proc.ProcDef, old, proc.Name);
        proc.OneLineProcDef = basic::Replace(proc.OneLineProcDef, old, proc.Name);
    }
    if (basic::Like(proc.Name, u"_*")) proc.Name.clear();
}

}  // namespace quillet::typelib
