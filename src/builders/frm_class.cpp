#include "builders/frm_class.h"

#include "core/err_handler.h"
#include "source/code_env.h"

namespace quillet::builders {

using dialogs::ControlKind;

namespace {

// The Class Builder's help topic.
constexpr long kClassBuilderHelp = 1130;

// The controls of each page of TabMain, in the order of its tabs.
const std::vector<std::vector<const char16_t*>>& pages() {
    static const std::vector<std::vector<const char16_t*>> table = {
        {u"lblClassName", u"txtClassName", u"lblDescription", u"txtDescription", u"chkMakeColClass", u"lblColClassName",
         u"txtColClassName"},
        {u"lvProperties", u"cmdNewProp", u"cmdEditProp", u"cmdDelProp", u"cmdFromTable"},
        {u"lvMethods", u"cmdNewMethod", u"cmdEditMethod", u"cmdDelMethod"},
    };
    return table;
}

}  // namespace

frmClass::frmClass(core::Context& ctx)
    : Form(u"frmClass"), ctx_(ctx), class_(std::make_unique<generators::clsClass>(ctx)) {
    Caption = u"Class Builder";
    addControls();
    lvSetUp();
    hookEvents();
    HelpContextID = kClassBuilderHelp;
    help_.init(*this, Controls(u"cmdHelp"), -1, support::basHTMLHelp(ctx_));
}

frmClass::~frmClass() = default;

void frmClass::Form_Unload() { help_.Terminate(); }

void frmClass::Form_Activate() {
    if (Controls(u"TabMain").ListIndex() == 0) FocusedControl = u"txtClassName";
}

void frmClass::addControls() {
    auto& tabs = AddControl(u"TabMain", ControlKind::ListBox);
    for (const char16_t* tab : {kTabGeneral, kTabProperties, kTabMethods}) tabs.AddItem(tab);
    AddControl(u"lblClassName", ControlKind::Label).Caption = u"Class na&me:";
    AddControl(u"txtClassName", ControlKind::TextBox);
    AddControl(u"lblDescription", ControlKind::Label).Caption = u"Descr&iption:";
    AddControl(u"txtDescription", ControlKind::TextBox);
    AddControl(u"chkMakeColClass", ControlKind::CheckBox).Caption = u"&Also make Collection Class";
    AddControl(u"lblColClassName", ControlKind::Label).Caption = u"C&ollection class:";
    AddControl(u"txtColClassName", ControlKind::TextBox).Enabled = false;
    Controls(u"lblColClassName").Enabled = false;
    addListControls(u"lvProperties",
                    {{u"cmdNewProp", u"&New..."}, {u"cmdEditProp", u"&Edit..."}, {u"cmdDelProp", u"&Delete"},
                     {u"cmdFromTable", u"Copy from &table"}});
    addListControls(u"lvMethods",
                    {{u"cmdNewMethod", u"Ne&w..."}, {u"cmdEditMethod", u"Modif&y..."}, {u"cmdDelMethod", u"Remo&ve"}});
    AddControl(u"cmdCreate", ControlKind::CommandButton).Caption = u"&Create";
    AddControl(u"cmdCancel", ControlKind::CommandButton).Caption = u"Cancel";
    AddControl(u"cmdHelp", ControlKind::CommandButton).Caption = u"&Help";
}

void frmClass::addListControls(const Str& list, const std::vector<std::pair<Str, Str>>& buttons) {
    AddControl(list, ControlKind::ListBox);
    for (const auto& [name, caption] : buttons) AddControl(name, ControlKind::CommandButton).Caption = caption;
}

void frmClass::hookEvents() {
    On(u"TabMain_Click", [this] { TabShow(Controls(u"TabMain").ListIndex()); });
    On(u"txtClassName_Change", [this] { guard(u"txtClassName_Change", [this] { txtClassName_Change(); }); });
    On(u"txtDescription_Change", [this] { class_->Description = Controls(u"txtDescription").Text(); });
    On(u"txtColClassName_Change", [this] {
        class_->CollectionClassName = basic::Trim(Controls(u"txtColClassName").Text());
    });
    On(u"chkMakeColClass_Click", [this] { guard(u"chkMakeColClass_Click", [this] { chkMakeColClass_Click(); }); });
    On(u"lvProperties_Click", [this] { listsStateSet(); });
    On(u"lvMethods_Click", [this] { listsStateSet(); });
    On(u"cmdNewProp_Click", [this] { guard(u"cmdNewProp_Click", [this] { cmdNewProp_Click(); }); });
    On(u"cmdEditProp_Click", [this] { guard(u"cmdEditProp_Click", [this] { cmdEditProp_Click(); }); });
    Handler(u"lvProperties_DblClick", [this] { guard(u"lvProperties_DblClick", [this] { cmdEditProp_Click(); }); });
    On(u"cmdDelProp_Click", [this] { guard(u"cmdDelProp_Click", [this] { cmdDelProp_Click(); }); });
    On(u"cmdFromTable_Click", [this] {
        guard(u"cmdFromTable_Click", [this] { cmdFromTable_Click(); });
    });
    On(u"cmdNewMethod_Click", [this] { guard(u"cmdNewMethod_Click", [this] { cmdNewMethod_Click(); }); });
    On(u"cmdEditMethod_Click", [this] { guard(u"cmdEditMethod_Click", [this] { cmdEditMethod_Click(); }); });
    Handler(u"lvMethods_DblClick", [this] { guard(u"lvMethods_DblClick", [this] { cmdEditMethod_Click(); }); });
    On(u"cmdDelMethod_Click", [this] { guard(u"cmdDelMethod_Click", [this] { cmdDelMethod_Click(); }); });
    On(u"cmdCreate_Click", [this] {
        bool done = false;
        guard(u"cmdCreate_Click", [this, &done] { done = cmdCreate_Click(); });
        if (done && Loaded()) Unload();
    });
    On(u"cmdCancel_Click", [this] { guard(u"cmdCancel_Click", [this] { cmdCancel_Click(); }); });
}

void frmClass::guard(const Str& method, const std::function<void()>& statement) {
    core::guarded(ctx_, u"frmClass." + method, statement);
}

void frmClass::Init() {
    // The table route needs its dialog and an Access application; without them the button stays off.
    Controls(u"cmdFromTable").Enabled =
        ctx_.Forms->IsRegistered(u"frmSelectTableAndFields") && ctx_.AccessApp() != nullptr;
    Controls(u"TabMain").ListIndex(0);
    listsStateSet();
}

void frmClass::lvSetUp() {
    lvProperties_ =
        std::make_unique<dialogs::ListView>(Controls(u"lvProperties"), std::vector<Str>{u"Name", u"Data Type", u"Accessibility"});
    lvMethods_ = std::make_unique<dialogs::ListView>(
        Controls(u"lvMethods"), std::vector<Str>{u"Name", u"ReturnType", u"Accessibility", u"Arguments"});
}

void frmClass::TabShow(long index) {
    for (long page = 0; page < static_cast<long>(pages().size()); ++page)
        for (const char16_t* name : pages()[page]) Controls(name).Visible = page == index;
}

Str frmClass::ClassName() { return basic::Trim(Controls(u"txtClassName").Text()); }

void frmClass::txtClassName_Change() {
    class_->Name = ClassName();
    if (Controls(u"chkMakeColClass").Value() == dialogs::vbChecked) Controls(u"txtColClassName").Text(ClassName() + u"s");
}

void frmClass::chkMakeColClass_Click() {
    bool ticked = Controls(u"chkMakeColClass").Value() == dialogs::vbChecked;
    class_->MakeCollectionClass = ticked;
    auto& name = Controls(u"txtColClassName");
    name.Enabled = ticked;
    Controls(u"lblColClassName").Enabled = ticked;
    if (ticked && basic::Trim(name.Text()).empty()) name.Text(ClassName() + u"s");
}

bool frmClass::HasContent() {
    return !ClassName().empty() || !basic::Trim(Controls(u"txtDescription").Text()).empty() ||
           class_->Properties().Count() > 0 || class_->Methods().Count() > 0;
}

void frmClass::cmdCancel_Click() {
    if (HasContent() &&
        MsgBox(u"Would you like to close the form without saving changes?", 36, source::kProductTitle) != 6)
        return;
    Unload();
}

}  // namespace quillet::builders
