#include "source/host_names.h"

#include "basic/strings.h"
#include "source/type_lists.h"
#include "support/cls_sort.h"

namespace quillet::source {

using basic::Compare;
using basic::StrComp;

namespace {

basic::Variant get(const basic::DispatchPtr& object, const Str& member, const basic::Args& args = {}) {
    return object->Get(member, args);
}
basic::DispatchPtr objectOf(const basic::DispatchPtr& object, const Str& member, const basic::Args& args = {}) {
    return basic::CObj(get(object, member, args));
}

// Each item of a collection object (Count, Item(1 to Count)).
template <class F>
void forEachItem(const basic::DispatchPtr& collection, F&& visit) {
    long long count = basic::CLng(get(collection, u"Count"));
    for (long long i = 1; i <= count; ++i) visit(objectOf(collection, u"Item", {basic::Variant(i)}));
}

bool workbookIsTheProject(CodeEnv& env, const basic::DispatchPtr& workbook) {
    Str fileName;
    ignoringErrors([&] { fileName = env.vbe.ActiveVBProject()->FileName(); });
    if (!fileName.empty()) return StrComp(fileName, basic::CStr(get(workbook, u"FullName")), Compare::Text) == 0;
    Str caption = env.vbe.MainWindow()->Caption();
    return basic::InStr(caption, basic::CStr(get(workbook, u"Name")), Compare::Binary) > 0;
}

bool isLoaded(const basic::DispatchPtr& allObjects, const Str& name) {
    return basic::CBool(get(objectOf(allObjects, u"Item", {basic::Variant(name)}), u"IsLoaded"));
}

bool fitsMe(long componentType) {
    return componentType == host::vbext_ct_Document || componentType == host::vbext_ct_MSForm ||
           componentType == host::vbext_ct_VBForm || componentType == host::vbext_ct_VBMDIForm;
}

}  // namespace

std::vector<Str> GetExcelNames(CodeEnv& env, const basic::DispatchPtr& excelApp) {
    std::vector<Str> names;
    if (!excelApp) return names;
    reportedStep(env.report, u"basGlobal.GetExcelNames", [&] {
        auto workbook = objectOf(excelApp, u"ActiveWorkbook");
        if (!workbook || !workbookIsTheProject(env, workbook)) return;
        forEachItem(objectOf(workbook, u"Names"), [&](const basic::DispatchPtr& name) {
            names.push_back(u"Range(\"" + basic::CStr(get(name, u"Name")) + u"\")");
        });
    });
    return names;
}

std::vector<Str> GetAccessControls(CodeEnv& env, const basic::DispatchPtr& accessApp, const Str& moduleName,
                                   std::chrono::milliseconds wait) {
    std::vector<Str> controls;
    if (!accessApp) return controls;
    reportedStep(env.report, u"basGlobal.GetAccessControls", [&] {
        long underscore = basic::InStr(moduleName, u"_");
        if (underscore <= 1) return;
        Str kind = basic::Left(moduleName, underscore - 1);
        Str name = basic::Mid(moduleName, underscore + 1);
        bool form = StrComp(kind, u"Form", Compare::Text) == 0;
        if (!form && StrComp(kind, u"Report", Compare::Text) != 0) return;
        auto all = objectOf(objectOf(accessApp, u"CurrentProject"), form ? u"AllForms" : u"AllReports");
        if (!isLoaded(all, name)) {
            env.platform.SendKeys(u" {BACKSPACE}", false);
            auto deadline = std::chrono::steady_clock::now() + wait;
            while (!isLoaded(all, name)) {
                if (std::chrono::steady_clock::now() >= deadline) return;
                env.platform.DoEvents();
            }
        }
        auto object = objectOf(objectOf(accessApp, form ? u"Forms" : u"Reports"), u"Item", {basic::Variant(name)});
        forEachItem(objectOf(object, u"Controls"), [&](const basic::DispatchPtr& control) {
            controls.push_back(u"Me." + basic::CStr(get(control, u"Name")));
        });
    });
    return controls;
}

std::vector<Str> ObjectsForInsert(CodeEnv& env, const HostAppObjects& apps,
                                  const basic::Collection<clsVariablePtr>* variables) {
    std::vector<Str> names = GetExcelNames(env, apps.ExcelApp);
    reportedStep(env.report, u"basGlobal.ObjectsForInsert", [&] {
        auto component = env.vbe.SelectedVBComponent();
        if (!component) return;
        if (apps.AccessApp)
            for (const Str& control : GetAccessControls(env, apps.AccessApp, component->Name())) names.push_back(control);
        if (!variables || !fitsMe(component->Type())) return;
        for (const auto& variable : *variables) {
            bool formLike = StrComp(variable->Type_, u"Form", Compare::Text) == 0 ||
                            StrComp(variable->Type_, u"Report", Compare::Text) == 0;
            if (formLike) names.push_back(u"Me." + variable->Name);
        }
    });
    support::clsSort::Sort(names);
    names.erase(std::unique(names.begin(), names.end(),
                            [](const Str& a, const Str& b) { return StrComp(a, b, Compare::Text) == 0; }),
                names.end());
    return names;
}

void ObjectsForInsert(CodeEnv& env, const HostAppObjects& apps, dialogs::Control& combo,
                      const basic::Collection<clsVariablePtr>* variables) {
    ListFromNames(combo, ObjectsForInsert(env, apps, variables), 0, false);
}

}  // namespace quillet::source
