#pragma once
// Two small dialogs for the framework's tests: frmTest (a name, a module list, an argument list,
// options, a child dialog) and frmChild, which reports back to its parent by name.

#include <memory>
#include <vector>

#include "basic/strings.h"
#include "dialogs/form_stack.h"
#include "platform/platform.h"

namespace quillet::dialogs::testing {

class frmChild : public Form {
public:
    explicit frmChild(FormStack* stack = nullptr) : Form(u"frmChild", stack) {
        Caption = u"Child";
        AddControl(u"txtArg", ControlKind::TextBox);
        AddControl(u"cmdOK", ControlKind::CommandButton);
        AddControl(u"cmdCancel", ControlKind::CommandButton);
        On(u"cmdOK_Click", [this] {
            ParentForm->CallByName(u"ArgInsert", {Controls(u"txtArg").Text()});
            Controls(u"txtArg").Text(u"");
            Hide();
        });
        On(u"cmdCancel_Click", [this] { Hide(); });
    }
    int loads = 0;

protected:
    void Form_Load() override { ++loads; }
};

class frmTest : public Form {
public:
    explicit frmTest(FormStack* stack = nullptr) : Form(u"frmTest", stack) {
        Caption = u"Test Builder";
        auto& name = AddControl(u"txtName", ControlKind::TextBox);
        auto& module = AddControl(u"cboModule", ControlKind::ComboBox);
        auto& args = AddControl(u"lstArguments", ControlKind::ListBox);
        AddControl(u"chkHeader", ControlKind::CheckBox);
        AddControlArray(u"optByVal", ControlKind::OptionButton, 2);
        AddControl(u"lblStatus", ControlKind::Label);
        AddControl(u"cmdNewArg", ControlKind::CommandButton).ToolTipText = u"Add a new argument";
        AddControl(u"cmdDelArg", ControlKind::CommandButton);
        AddControl(u"cmdOK", ControlKind::CommandButton);
        AddControl(u"cmdCancel", ControlKind::CommandButton);
        for (const char16_t* entry : {u"basMain", u"clsOrder", u"<New Module>"}) module.AddItem(entry);
        module.ItemData(1, 2);
        Controls(u"cmdDelArg").Enabled = false;
        Controls(u"cmdOK").Enabled = false;
        Controls(u"optByVal(0)").Caption = u"By&Val";
        Controls(u"optByVal(1)").Caption = u"By&Ref";

        On(u"txtName_Change", [this, &name] {
            ++changes;
            Controls(u"cmdOK").Enabled = !basic::Trim(name.Text()).empty();
        });
        On(u"cboModule_Click", [this, &module] { Controls(u"lblStatus").Caption = u"Module " + module.Text(); });
        On(u"lstArguments_Click", [this, &args] { Controls(u"cmdDelArg").Enabled = args.ListIndex() >= 0; });
        On(u"chkHeader_Click", [this] { ++headerClicks; });
        OnIndexed(u"optByVal_Click", [this](int index) { passing = index; });
        On(u"cmdNewArg_Click", [this] {
            if (!child) {
                child = std::make_unique<frmChild>();
                child->ParentForm = this;
            }
            child->Show(vbModal, [this] { afterChild.push_back(Controls(u"lstArguments").ListCount()); });
        });
        On(u"cmdDelArg_Click", [this, &args] {
            Str entry = args.Text();
            if (MsgBox(u"Delete '" + entry + u"'?", 36, u"Quillet") == 6) args.RemoveItem(args.ListIndex());
            Controls(u"cmdDelArg").Enabled = args.ListIndex() >= 0;
        });
        On(u"cmdOK_Click", [this, &name] {
            result = name.Text();
            Unload();
        });
        On(u"cmdCancel_Click", [this] { Unload(); });
        Method(u"ArgInsert", [&args](const basic::Args& a) {
            args.AddItem(basic::CStr(a.at(0)));
            return basic::Variant{};
        });
    }

    std::unique_ptr<frmChild> child;
    std::vector<long> afterChild;
    int changes = 0;
    int headerClicks = 0;
    int passing = -1;
    Str result;
};

// Registers frmTest on the stack, opened modally as a command opens it; `args` go to its name.
inline void registerTestForm(FormStack& forms, Str* lastResult = nullptr) {
    forms.Register(u"frmTest", [&forms, lastResult](const std::vector<Str>& args) {
        auto& form = forms.Adopt(std::make_unique<frmTest>());
        if (!args.empty()) form.Controls(u"txtName").Text(args[0]);
        frmTest* shown = &form;
        form.Show(vbModal, [shown, lastResult] {
            if (lastResult) *lastResult = shown->result;
        });
    });
}

}  // namespace quillet::dialogs::testing
