#pragma once
// The Variable Builder: declares one variable (module, procedure or Type member), or adds one
// argument to the procedure at the caret. The name's prefix follows the level and the type, the
// line goes where Basic allows it, an object variable can get its Set ... = New, With block and
// Set ... = Nothing, and the name goes to the clipboard and, when asked, to the caret.

#include <array>
#include <memory>

#include "builders/declaration_dialog.h"
#include "source/scan_module.h"
#include "source/scan_proc.h"

namespace quillet::builders {

using basic::Str;

class frmVar : public DeclarationDialog {
public:
    explicit frmVar(core::Context& ctx);
    ~frmVar() override;

    // Fills and prepares the dialog; the caller then shows it.
    void Init(const Str& vstrPredeterminedTypes, bool vfOnlyPredeterminedTypes, bool vfForWith, bool vfInsertInstance);

    // Set once: a second parent is ignored while the first is there.
    void SetParentForm(dialogs::Form* parent);

    // 0 module, 1 procedure, 2 interface.
    long VarLevel();
    // 1 Public, 2 Private, 4 Static, 0 otherwise; the setter takes an index of AccessibilityItem
    // (0: the list's first entry).
    long Accessibility();
    void Accessibility(long index);
    static const std::array<Str, 6>& AccessibilityItem();
    bool IsStatic();

    // Puts a name into txtName and refreshes its prefix.
    void ArgInsert(const Str& vstrName, const Str& vstrType);
    // OK (vfPaste False) and OK & Paste: True when the declaration is written.
    bool PressOK(bool vfPaste);
    // The line without and with its keyword.
    void BuildCodeLine(Str& rstrText, Str& rstrLine);
    void SetControlsState();


protected:
    void Form_Activate() override;
    void Form_Unload() override;

private:
    void addControls();
    void hookEvents();
    void contextRead();
    void LoadCombos();
    void AccessibilityComboBoxFill();
    void typesFill(const Str& types, bool only, bool forWith);
    void CurrentProcArgGet();
    source::C4_ProcDefPtr procedureRead();
    void nameSet(const Str& name);
    void levelFromScope(long scope);
    long scopeOfLevel();
    void PrefixRefresh();
    void txtName_Change();
    void cboDataType_Change();
    void cboArgument_Change();
    void OptionalSet();
    void txtLength_KeyPress(long& keyAscii);
    void ArgumentAdd(const Str& name);
    void ObjectStatementsAdd(const Str& name);
    void recordsAndParent(const Str& name, const Str& module);
    bool isChecked(const Str& box);
    Str typeText();

    CaretPlace place_;
    source::C4_ProcDefPtr procDef_;
    bool procFoundInPublicList_ = false;
    bool loading_ = false;
    bool refreshing_ = false;
    bool nameByProgram_ = false;
    bool typeByProgram_ = false;
    bool prefixFollows_ = false;
    bool typeChosenByUser_ = false;
    bool notOptionalBefore_ = false;
    bool insertInstance_ = false;
    bool firstShow_ = true;
    Str pickedUpName_;
    Str firstFive_;
};

// Opens the Variable Builder as the command "Add Variable" does: the word "with" as first
// argument prepares it for a With block (object types only), "instance" pastes the name followed
// by a blank.
void OpenVariableBuilder(core::Context& ctx, const std::vector<Str>& args);

}  // namespace quillet::builders
