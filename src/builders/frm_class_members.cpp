// The Class Builder's two lists: the properties and methods of the class, each row keyed by the
// member's ID, and their new, edit and delete through the Property and Method Builders.

#include "builders/frm_class.h"
#include "builders/frm_select_table.h"
#include "source/code_env.h"

namespace quillet::builders {

namespace {

// Refills a list view from the members; the earlier selection stays, or the last row with
// selectLast.
template <class C, class Row>
void listFill(dialogs::ListView& view, C& members, bool selectLast, Row row) {
    auto& list = view.List();
    long earlier = list.ListIndex();
    view.Clear();
    for (const auto& member : members.Items) view.AddRow(member->Name, row(*member), member->ID);
    long wanted = selectLast ? list.ListCount() - 1 : std::min(earlier, list.ListCount() - 1);
    if (wanted >= 0) list.ListIndex(wanted);
}

template <class T>
T* memberKeyed(source::RecordCollection<T>& members, const Str& key) {
    for (const auto& member : members.Items)
        if (member->ID == key) return member.get();
    return nullptr;
}

}  // namespace

void frmClass::PropertiesList(bool selectLast) {
    listFill(*lvProperties_, class_->Properties(), selectLast, [](generators::clsProperty& p) {
        return std::vector<Str>{p.datatype, p.AccessibleType};
    });
    listsStateSet();
}

void frmClass::MethodsList(bool selectLast) {
    listFill(*lvMethods_, class_->Methods(), selectLast, [](generators::clsProcedure& p) {
        Str arguments;
        p.GetArgString(0, arguments);
        return std::vector<Str>{p.ReturnValueType, p.AccessibleType, arguments};
    });
    listsStateSet();
}

// Edit and Delete need a selected row.
void frmClass::listsStateSet() {
    bool property = !lvProperties_->SelectedKey().empty();
    Controls(u"cmdEditProp").Enabled = property;
    Controls(u"cmdDelProp").Enabled = property;
    bool method = !lvMethods_->SelectedKey().empty();
    Controls(u"cmdEditMethod").Enabled = method;
    Controls(u"cmdDelMethod").Enabled = method;
}

void frmClass::propertyBuilderOpen() {
    auto& form = ctx_.Forms->Adopt(std::make_unique<frmProperty>(ctx_));
    form.ParentForm = this;
    form.Init();
    form.Show(dialogs::vbModal);
}

void frmClass::methodBuilderOpen() {
    auto& form = ctx_.Forms->Adopt(std::make_unique<frmProcedure>(ctx_));
    form.ParentForm = this;
    form.Init(true);
    form.Show(dialogs::vbModal);
}

void frmClass::cmdNewProp_Click() {
    selectedProperty_ = nullptr;
    propertyBuilderOpen();
}

void frmClass::cmdEditProp_Click() {
    selectedProperty_ = memberKeyed(class_->Properties(), lvProperties_->SelectedKey());
    if (!selectedProperty_) return;
    propertyBuilderOpen();
}

void frmClass::cmdNewMethod_Click() {
    selectedMethod_ = nullptr;
    methodBuilderOpen();
}

void frmClass::cmdEditMethod_Click() {
    selectedMethod_ = memberKeyed(class_->Methods(), lvMethods_->SelectedKey());
    if (!selectedMethod_) return;
    methodBuilderOpen();
}

void frmClass::cmdDelProp_Click() {
    auto& list = Controls(u"lvProperties");
    Str key = lvProperties_->SelectedKey();
    if (key.empty()) return;
    if (MsgBox(u"Delete '" + list.Text() + u"'?", 36, source::kProductTitle) != 6) return;
    selectedProperty_ = nullptr;
    class_->Properties().Remove(key);
    PropertiesList(false);
}

void frmClass::CopyFromTable(const Str& table, const std::vector<generators::TableField>& fields, bool ado) {
    generators::RecordClassFromTable(ctx_, *class_, table, fields, ado);
    PropertiesList(false);
    MethodsList(false);
}

// Copy from table: the fields ticked in Select Table and Fields, with their packed types.
void frmClass::cmdFromTable_Click() {
    OpenSelectTableAndFields(ctx_, {}, [this](frmSelectTableAndFields& form) {
        if (!form.OK()) return;
        auto& list = form.Controls(u"lstFields");
        std::vector<generators::TableField> fields;
        for (long i = 0; i < list.ListCount(); ++i)
            if (list.Selected(i)) fields.push_back({list.List(i), list.ItemData(i)});
        CopyFromTable(form.Controls(u"cboTables").Text(), fields, generators::ProjectIsAdo(ctx_));
    });
}

void frmClass::cmdDelMethod_Click() {
    auto& list = Controls(u"lvMethods");
    Str key = lvMethods_->SelectedKey();
    if (key.empty()) return;
    if (MsgBox(u"Delete '" + list.Text() + u"'?", 36, source::kProductTitle) != 6) return;
    selectedMethod_ = nullptr;
    class_->Methods().Remove(key);
    MethodsList(false);
}

}  // namespace quillet::builders
