#pragma once
// Select Table and Fields: the Class Builder's start from a database table. The user picks one of
// the Access project's tables and ticks some of its fields; each list entry carries the field's
// packed type (ItemData): the field type, + 1000 for a catalogue column of an ADP, + 10000 for an
// auto-increment field of a database file. With no Access application the dialog lists nothing.

#include "core/context.h"
#include "dialogs/form.h"
#include "host/database_schema.h"
#include "support/cls_html_help.h"

namespace quillet::builders {

using basic::Str;

// What ItemData adds to a field's type number.
inline constexpr long kCatalogueColumn = 1000;
inline constexpr long kAutoIncrementField = 10000;

class frmSelectTableAndFields : public dialogs::Form {
public:
    explicit frmSelectTableAndFields(core::Context& ctx);
    ~frmSelectTableAndFields() override;

    // True after cmdOK.
    bool OK() const { return ok_; }
    // Whether the tables are an ADP's catalogue's.
    bool IsAdp() const { return isAdp_; }
    // The caller's reading of the choice: run at cmdOK once the dialog is hidden (it reads
    // cboTables, lstFields with Selected and ItemData); the dialog then unloads.
    std::function<void(frmSelectTableAndFields&)> Chosen;

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void guard(const Str& method, const std::function<void()>& statement);
    void GetAdpTables();
    void GetMdbTables();
    void cboTables_Click();
    void allSelected(bool value);

    core::Context& ctx_;
    support::clsHtmlHelpForForm help_;
    std::shared_ptr<host::DatabaseSchemaSource> database_;
    bool isAdp_ = false;
    bool ok_ = false;
};

// Opens the dialog as its own command does, with `chosen` as its caller's reading of the choice.
void OpenSelectTableAndFields(core::Context& ctx, const std::vector<Str>& args,
                              std::function<void(frmSelectTableAndFields&)> chosen = {});

// The packed type of a field as lstFields carries it.
long PackedFieldType(const host::DatabaseField& field, bool catalogue);

}  // namespace quillet::builders
