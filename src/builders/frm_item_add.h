#pragma once
// Adds one constant to an Enum or one member to a Type that exists: the block is chosen from a
// list, the name (with a value or " As type" behind it) and a comment are typed; OK closes, OK &
// New stays open for the next one.

#include "builders/declaration_dialog.h"

namespace quillet::builders {

class frmItemAdd : public DeclarationDialog {
public:
    explicit frmItemAdd(core::Context& ctx);
    ~frmItemAdd() override;

    // vType 10003 adds to an Enum, 10004 to a Type. The list holds the blocks of that kind of the
    // module at the caret, then the project's; the block at the caret is selected.
    void Init(long vType);
    long Kind() const { return kind_; }

    // OK (vfNext False) and OK & New: True when the item is written.
    bool PressOK(bool vfNext);

protected:
    void Form_Unload() override;

private:
    void addControls();
    void hookEvents();
    void listFill();

    long kind_ = 10003;
};

// Opens it as the commands "Add Constant to Enum" ("Enum") and "Add Item to User-Defined Data
// Type" ("Type") do.
void OpenItemAdd(core::Context& ctx, const std::vector<Str>& args);

}  // namespace quillet::builders
