#pragma once
// The Property Builder: fills a clsProperty (name, type, access, Get and Let/Set, options) and
// puts the property into a class module; opened by the Class Builder (ParentForm set) it adds to,
// or edits, that class's properties instead, and the project is not touched.

#include <memory>

#include "dialogs/form.h"
#include "generators/cls_procedure.h"
#include "generators/cls_property.h"
#include "support/cls_html_help.h"

namespace quillet::builders {

using basic::Str;

// The Class Builder as the Property Builder's parent: the class's name, its properties, and the
// property selected for editing.
class PropertyOwner {
public:
    virtual ~PropertyOwner() = default;
    virtual Str ClassName() = 0;
    // The property under edit, or none for a new one.
    virtual generators::clsProperty* SelectedProperty() = 0;
    virtual generators::colProperties& Properties() = 0;
    // The names the class's methods already take.
    virtual generators::colProcedures& Methods() = 0;
    // Refills the list of properties; with selectLast its last entry is selected.
    virtual void PropertiesList(bool selectLast) = 0;
};

// Copies every field of a property over another's (ID stays).
void PropertyCopy(const generators::clsProperty& from, generators::clsProperty& to);

class frmProperty : public dialogs::Form {
public:
    explicit frmProperty(core::Context& ctx);
    ~frmProperty() override;

    // Called before the dialog shows; `type`, when given, is selected in the type list.
    void Init(const Str& type = {});
    // Set by the caller before Show.
    bool AddProcedureToEndOfModule = false;

    generators::clsProperty& Property() { return *property_; }
    // Checks the fields and writes the property; False when the dialog stays for a correction.
    bool PressOK();
    // The procedures of the target module, for the name check.
    basic::Collection<source::C4_ProcDefPtr> ModuleProcsGet();
    void ErrorHandlerGet();
    void SetControlsState();
    void SetAccessibilityInProcedureAndCombo();
    void LoadCombos();
    void AccessibilityComboBoxFill(bool fFriend);
    // 0 empty, 1 Public, 2 Private, 3 Friend.
    long Accessibility();
    void Accessibility(long value);
    bool HasErrorHandler();
    bool IsStatic();

protected:
    void Form_Unload() override;
    void Form_Activate() override;

private:
    void addControls();
    void hookEvents();
    void GetOptions();
    PropertyOwner* classOwner();
    void classInit();
    void propertyShow(const generators::clsProperty& property);
    void fillModel();
    bool nameAccepted(const Str& name);
    bool moduleResolved();
    void pickedWordReplace();
    void NameUpdate();
    void txtName_Change();
    void cboModule_Click();
    void ResetControls();
    void guard(const Str& method, const std::function<void()>& statement);

    core::Context& ctx_;
    support::clsHtmlHelpForForm help_;
    std::unique_ptr<generators::clsProperty> property_;
    Str errorHandlerSetting_;
    // The word the caret stood on when the dialog opened: its line and columns in that pane.
    Str pickedWord_;
    host::CodePanePtr pickedPane_;
    long pickedLine_ = 0, pickedStart_ = 0, pickedEnd_ = 0;
    bool nameQuiet_ = false;
    bool moduleQuiet_ = false;
    Str lastProposal_;
};

// Opens the Property Builder as "Add Property..." does; an argument is the type to select (the
// "Property" pop-up's typed entries).
void OpenPropertyBuilder(core::Context& ctx, const std::vector<Str>& args);

}  // namespace quillet::builders
