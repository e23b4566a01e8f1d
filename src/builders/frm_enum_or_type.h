#pragma once
// The Enum Builder and the Type Builder: a whole new Enum or Type block from a name and its items,
// one item a line, written into the declarations of the chosen module. The Enum's prefix goes in
// front of the name and of every item that lacks it; behind " As" in a Type's items a list of
// type names pops up.

#include "builders/declaration_dialog.h"

namespace quillet::builders {

class frmEnumOrType : public DeclarationDialog {
public:
    explicit frmEnumOrType(core::Context& ctx);
    ~frmEnumOrType() override;

    // vType 10003 makes the Enum Builder, 10004 the Type Builder. A non-empty name fills txtName.
    void Init(long vType, const Str& vstrName = {});
    long Kind() const { return kind_; }

    // The keyword in front of the block: "Public", "Private" or "" (Default).
    Str AccessWord();
    // OK: True when the block is written (the dialog then unloads).
    bool PressOK();

protected:
    void Form_Unload() override;

private:
    void addControls();
    void hookEvents();
    void cboModule_Change();
    void txtItems_KeyPress(long& keyAscii);
    void lstVars_KeyPress(long& keyAscii);
    void typeChosen();
    void typeListHide();

    long kind_ = 10003;
};

// Opens the builder as the commands "New Enum" (no argument or "Enum") and "New User-Defined Data
// Type" ("Type") do; a second argument is the name to start from.
void OpenEnumOrTypeBuilder(core::Context& ctx, const std::vector<Str>& args);

}  // namespace quillet::builders
