#include "builders/frm_select_table.h"

#include "core/err_handler.h"

namespace quillet::builders {

using dialogs::ControlKind;

namespace {

constexpr long kSelectTableHelp = 1310;

bool systemTable(const Str& name) { return basic::Like(name, u"MSys*") || basic::Like(name, u"~TMPCLP*"); }

}  // namespace

long PackedFieldType(const host::DatabaseField& field, bool catalogue) {
    if (catalogue) return field.Type + kCatalogueColumn;
    return field.Type + ((field.Attributes & host::dbAutoIncrField) ? kAutoIncrementField : 0);
}

frmSelectTableAndFields::frmSelectTableAndFields(core::Context& ctx) : Form(u"frmSelectTableAndFields"), ctx_(ctx) {
    Caption = u"Select Table and Fields";
    AddControl(u"lblTables", ControlKind::Label).Caption = u"&Tables";
    AddControl(u"cboTables", ControlKind::ComboBox);
    AddControl(u"lblFields", ControlKind::Label).Caption = u"&Fields";
    AddControl(u"lstFields", ControlKind::ListBox).CheckBoxes = true;
    AddControl(u"cmdSelectAll", ControlKind::CommandButton).Caption = u"Select All";
    AddControl(u"cmdUnSelectAll", ControlKind::CommandButton).Caption = u"Unselect All";
    AddControl(u"cmdOK", ControlKind::CommandButton).Caption = u"OK";
    AddControl(u"cmdCancel", ControlKind::CommandButton).Caption = u"Cancel";
    AddControl(u"cmdHelp", ControlKind::CommandButton).Caption = u"&Help";
    On(u"cboTables_Click", [this] { guard(u"cboTables_Click", [this] { cboTables_Click(); }); });
    On(u"cmdSelectAll_Click", [this] { guard(u"cmdSelectAll_Click", [this] { allSelected(true); }); });
    On(u"cmdUnSelectAll_Click", [this] { guard(u"cmdUnSelectAll_Click", [this] { allSelected(false); }); });
    On(u"cmdOK_Click", [this] {
        ok_ = true;
        Hide();
        if (Chosen) guard(u"cmdOK_Click", [this] { Chosen(*this); });
        Unload();
    });
    On(u"cmdCancel_Click", [this] { Unload(); });
    HelpContextID = kSelectTableHelp;
    help_.init(*this, Controls(u"cmdHelp"), -1, support::basHTMLHelp(ctx_));
}

frmSelectTableAndFields::~frmSelectTableAndFields() = default;

void frmSelectTableAndFields::guard(const Str& method, const std::function<void()>& statement) {
    core::guarded(ctx_, u"frmSelectTableAndFields." + method, statement);
}

void frmSelectTableAndFields::Form_Unload() { help_.Terminate(); }

void frmSelectTableAndFields::Form_Load() {
    guard(u"Form_Load", [this] {
        if (!ctx_.AccessApp()) return;
        database_ = host::DatabaseSchemaOf(ctx_.AccessApp());
        isAdp_ = database_->ProjectType() == host::acADP;
        if (isAdp_)
            GetAdpTables();
        else
            GetMdbTables();
        auto& tables = Controls(u"cboTables");
        if (tables.ListCount() > 0) tables.ListIndex(0);
    });
}

// The catalogue's tables of Type "TABLE": its views and system tables stay out.
void frmSelectTableAndFields::GetAdpTables() {
    auto& list = Controls(u"cboTables");
    for (const auto& table : database_->Tables())
        if (basic::StrComp(table.Type, u"TABLE", basic::Compare::Text) == 0) list.AddItem(table.Name);
}

// The table definitions but the system's own and Access's temporary clipboard tables.
void frmSelectTableAndFields::GetMdbTables() {
    auto& list = Controls(u"cboTables");
    for (const auto& table : database_->Tables())
        if (!systemTable(table.Name)) list.AddItem(table.Name);
}

void frmSelectTableAndFields::cboTables_Click() {
    auto& fields = Controls(u"lstFields");
    fields.Clear();
    Str table = Controls(u"cboTables").Text();
    if (!database_ || table.empty()) return;
    for (const auto& field : database_->Fields(table)) {
        fields.AddItem(field.Name);
        long last = fields.ListCount() - 1;
        fields.ItemData(last, PackedFieldType(field, isAdp_));
        fields.Selected(last, true);
    }
}

void frmSelectTableAndFields::allSelected(bool value) {
    auto& fields = Controls(u"lstFields");
    for (long i = fields.ListCount() - 1; i >= 0; --i) fields.Selected(i, value);
}

void OpenSelectTableAndFields(core::Context& ctx, const std::vector<Str>&,
                              std::function<void(frmSelectTableAndFields&)> chosen) {
    core::guarded(ctx, u"frmSelectTableAndFields.Open", [&] {
        auto& form = ctx.Forms->Adopt(std::make_unique<frmSelectTableAndFields>(ctx));
        form.Chosen = std::move(chosen);
        form.Show(ctx.ShowMode);
    });
}

}  // namespace quillet::builders
