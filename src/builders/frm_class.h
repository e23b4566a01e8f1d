#pragma once
// The Class Builder: a whole new class (name, description, properties, methods, an optional
// collection class) gathered in a clsClass and made by Create. Properties and methods are added
// and edited through the Property Builder and the Method Builder in their class modes; nothing
// touches the project before Create has passed its checks.

#include "builders/frm_procedure.h"
#include "builders/frm_property.h"
#include "dialogs/list_view.h"
#include "generators/cls_class.h"
#include "generators/record_class.h"

namespace quillet::builders {

// The tab captions of TabMain, in order.
inline constexpr char16_t kTabGeneral[] = u"General";
inline constexpr char16_t kTabProperties[] = u"Properties";
inline constexpr char16_t kTabMethods[] = u"Methods";

class frmClass : public dialogs::Form, public PropertyOwner, public MethodOwner {
public:
    explicit frmClass(core::Context& ctx);
    ~frmClass() override;

    void Init();
    generators::clsClass& Class() { return *class_; }

    // PropertyOwner and MethodOwner: what the sub-dialogs read and report to.
    Str ClassName() override;
    generators::clsProperty* SelectedProperty() override { return selectedProperty_; }
    generators::colProperties& Properties() override { return class_->Properties(); }
    generators::colProcedures& Methods() override { return class_->Methods(); }
    void PropertiesList(bool selectLast) override;
    generators::clsProcedure* SelectedMethod() override { return selectedMethod_; }
    void ModuleNameConstant(bool value) override { class_->ModuleNameConstant = value; }
    void MethodsList(bool selectLast) override;

    // The page of TabMain in view: its controls visible, the other pages' hidden.
    void TabShow(long index);
    // Copy from table: a property per field, the Recordset and Loaded helpers, and the record
    // methods of the project's kind (ADO or DAO); the lists show them.
    void CopyFromTable(const Str& table, const std::vector<generators::TableField>& fields, bool ado);
    // Whether anything was entered that closing would lose.
    bool HasContent();
    // lvProperties and lvMethods with their columns.
    dialogs::ListView& PropertiesView() { return *lvProperties_; }
    dialogs::ListView& MethodsView() { return *lvMethods_; }

protected:
    void Form_Activate() override;
    void Form_Unload() override;

private:
    void addControls();
    void addListControls(const Str& list, const std::vector<std::pair<Str, Str>>& buttons);
    void hookEvents();
    void lvSetUp();
    void chkMakeColClass_Click();
    void txtClassName_Change();
    void cmdNewProp_Click();
    void cmdEditProp_Click();
    void cmdDelProp_Click();
    void cmdNewMethod_Click();
    void cmdEditMethod_Click();
    void cmdDelMethod_Click();
    void cmdCancel_Click();
    void cmdFromTable_Click();
    bool cmdCreate_Click();
    bool nameAccepted(const Str& name, const Str& control, const Str& otherName);
    void propertyBuilderOpen();
    void methodBuilderOpen();
    void listsStateSet();
    void guard(const Str& method, const std::function<void()>& statement);

    core::Context& ctx_;
    support::clsHtmlHelpForForm help_;
    std::unique_ptr<generators::clsClass> class_;
    std::unique_ptr<dialogs::ListView> lvProperties_, lvMethods_;
    generators::clsProperty* selectedProperty_ = nullptr;
    generators::clsProcedure* selectedMethod_ = nullptr;
    bool creating_ = false;
};

// Opens the Class Builder as "Add Class..." does.
void OpenClassBuilder(core::Context& ctx, const std::vector<Str>& args);

}  // namespace quillet::builders
