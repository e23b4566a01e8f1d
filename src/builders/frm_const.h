#pragma once
// The Constant Builder: declares one constant (module or procedure level, Public or Private, or a
// member of the Enum block at the caret). The name's prefix follows the level and the type, the
// value is written as a literal of the type, and the name goes to the clipboard and, when asked,
// to the caret.

#include "builders/declaration_dialog.h"

namespace quillet::builders {

class frmConst : public DeclarationDialog {
public:
    explicit frmConst(core::Context& ctx);
    ~frmConst() override;

    // Fills and prepares the dialog; the caller then shows it. An empty predefined name takes the
    // word at the caret as the name and the picked text as the value.
    void Init(const Str& vstrPredeterminedTypes, bool vfOnlyPredeterminedTypes, const Str& vstrPredefinedName,
              const Str& vstrPredefinedValue);

    // 1 Public, 2 Private, 0 otherwise (the empty entry); the setter finds "Public" for 1 and
    // "Private" for 2, any other value selects the first entry.
    long Accessibility();
    void Accessibility(long value);
    // 1 for a constant of the procedure at the caret (the empty entry inside a procedure), else 0.
    long VarLevel();

    // A value from another dialog: it completes a name that is a bare prefix, and becomes the value.
    void ArgInsert(const Str& vstrValue, const Str& vstrType = {});
    // OK (vfPaste False) and OK & Paste: True when the constant is written.
    bool PressOK(bool vfPaste);
    // The declaration line: lngBlockLine at least 1 with the type Long makes an Enum member.
    void BuildCodeLine(Str& rstrText, long lngBlockLine, const Str& vstrValue, Str& rstrLine);
    // The value of txtValue as a literal of the chosen type; "" when there is none to write.
    Str ValueFormatted();


protected:
    void Form_Activate() override;
    void Form_Unload() override;

private:
    void addControls();
    void hookEvents();
    void AccessibilityComboBoxFill();
    void typesFill(const Str& types, bool only);
    void contextRead(const Str& predefinedName, const Str& predefinedValue);
    void namePrefixOnOpen();
    void nameSet(const Str& name);
    long scopeOfLevel();
    void PrefixRefresh();
    void txtName_Change();
    void cboDataType_Change();
    void cboModule_Change();
    bool isStringConstant(const Str& name);
    void recordsAndParent(const Str& name, const Str& line, const Str& module);
    void pasteName(const Str& name, bool vfPaste);
    Str typeText();

    CaretPlace place_;
    bool inProcedure_ = false;
    bool targetIsCurrent_ = true;
    bool loading_ = false;
    bool refreshing_ = false;
    bool nameByProgram_ = false;
    bool typeByProgram_ = false;
    bool prefixChecking_ = false;
    bool prefixFollows_ = false;
    bool typeChosenByUser_ = false;
    bool pasteAtCursor_ = false;
    bool firstShow_ = true;
    Str pickedUpName_;
    Str pickedUpValue_;
    Str firstFive_;
};

// Opens the Constant Builder as the command "Add Constant" does. The first argument, when given,
// is the type to select (a dialog asking for a constant of its type passes it); a dialog on top
// that takes a new constant (AddNewConst) becomes its parent.
void OpenConstantBuilder(core::Context& ctx, const std::vector<Str>& args);

}  // namespace quillet::builders
