#include "builders/frm_enum_or_type.h"

#include "builders/enum_type_code.h"
#include "builders/name_answer.h"
#include "core/command_env.h"
#include "core/err_handler.h"
#include "source/code_placing.h"
#include "source/type_lists.h"

namespace quillet::builders {

using dialogs::ControlKind;

namespace {

constexpr long kKeyEnter = 13;
constexpr long kKeyEscape = 27;
constexpr long kKeyBlank = 32;

}  // namespace

frmEnumOrType::frmEnumOrType(core::Context& ctx) : DeclarationDialog(ctx, u"frmEnumOrType") {
    Caption = u"New enum";
    addControls();
    hookEvents();
    help_.init(*this, Controls(u"cmdHelp"), -1, support::basHTMLHelp(ctx_));
}

frmEnumOrType::~frmEnumOrType() = default;

void frmEnumOrType::addControls() {
    AddControl(u"txtName", ControlKind::TextBox);
    AddControl(u"lblPrefix", ControlKind::Label).Caption = u"&Prefix:";
    AddControl(u"txtPrefix", ControlKind::TextBox);
    AddControl(u"cboModule", ControlKind::ComboBox);
    AddControl(u"fraAccessibility", ControlKind::Frame).Caption = u"Declare as";
    auto options = AddControlArray(u"optAccessibility", ControlKind::OptionButton, 3);
    options[0]->Caption = u"De&fault";
    options[0]->ToolTipText = u"Default is Public";
    options[1]->Caption = u"Pu&blic";
    options[2]->Caption = u"Pri&vate";
    AddControl(u"txtItems", ControlKind::TextBox);
    AddControl(u"lstVars", ControlKind::ListBox).Visible = false;
    AddControl(u"cmdOk", ControlKind::CommandButton).Caption = u"OK";
    AddControl(u"cmdCancel", ControlKind::CommandButton).Caption = u"Cancel";
    AddControl(u"cmdHelp", ControlKind::CommandButton).Caption = u"&Help";
}

void frmEnumOrType::hookEvents() {
    On(u"cboModule_Click", [this] { guard(u"cboModule_Click", [this] { cboModule_Change(); }); });
    On(u"cboModule_Change", [this] { guard(u"cboModule_Change", [this] { cboModule_Change(); }); });
    On(u"cmdOk_Click", [this] {
        bool done = false;
        guard(u"cmdOk_Click", [&] { done = PressOK(); });
        if (done && Loaded()) Unload();
    });
    On(u"cmdCancel_Click", [this] { Unload(); });
    Handler(u"lstVars_DblClick", [this] { guard(u"lstVars_DblClick", [this] { typeChosen(); }); });
    Controls(u"txtItems").KeyPressHandlers.push_back([this](dialogs::Control&, long& key) { txtItems_KeyPress(key); });
    Controls(u"lstVars").KeyPressHandlers.push_back([this](dialogs::Control&, long& key) { lstVars_KeyPress(key); });
}

void frmEnumOrType::Form_Unload() { help_.Terminate(); }

void frmEnumOrType::Init(long vType, const Str& vstrName) {
    kind_ = vType == source::KindType ? source::KindType : source::KindEnum;
    bool isEnum = kind_ == source::KindEnum;
    Caption = isEnum ? u"New enum" : u"New User-Defined Data Type";
    HelpContextID = support::help_topics::EnumTypeBuilder;
    Controls(u"txtPrefix").Visible = isEnum;
    Controls(u"lblPrefix").Visible = isEnum;
    Controls(u"txtName").Text(vstrName);
    guard(u"Init", [this, isEnum] {
        auto env = core::codeEnvOf(ctx_);
        source::qltModulesList(env, Controls(u"cboModule"), 0, {}, true, false);
        // An Enum's members are Long: the list offers no classes for them.
        source::DataTypeList(env, Controls(u"lstVars"), false, {}, false, isEnum);
    });
    guard(u"Init", [this] {
        CaretPlace moduleLevel;  // a new block belongs to the module, wherever the caret is
        DeclarationListsRead(ctx_, nullptr, moduleLevel, lists_);
    });
    // Default first; the module's rule may then leave Private the only choice.
    Controls(u"optAccessibility(0)").Value(1);
    guard(u"Init", [this] { cboModule_Change(); });
}

// A Type in a class or form module can only be Private.
void frmEnumOrType::cboModule_Change() {
    Str module = basic::Trim(Controls(u"cboModule").Text());
    bool privateOnly = false;
    if (kind_ == source::KindType && !module.empty() && module != source::kNewModule) {
        auto component = source::componentNamed(*ctx_.VBInstance, module);
        privateOnly = component && component->Type() != host::vbext_ct_StdModule;
    }
    Controls(u"optAccessibility(0)").Enabled = !privateOnly;
    Controls(u"optAccessibility(1)").Enabled = !privateOnly;
    if (privateOnly) Controls(u"optAccessibility(2)").Value(1);
}

Str frmEnumOrType::AccessWord() {
    if (Controls(u"optAccessibility(1)").Value() == 1) return u"Public";
    if (Controls(u"optAccessibility(2)").Value() == 1) return u"Private";
    return {};
}

bool frmEnumOrType::PressOK() {
    bool isEnum = kind_ == source::KindEnum;
    Str prefix = isEnum ? basic::Trim(Controls(u"txtPrefix").Text()) : Str();
    Str name = basic::Trim(Controls(u"txtName").Text());
    Controls(u"txtPrefix").Text(prefix);
    Controls(u"txtName").Text(name);
    Str fullName = WithPrefix(name, prefix);
    source::NameLookups blocks = {source::lookupIn(lists_.ModuleEnums), source::lookupIn(lists_.ModuleTypes)};
    if (ctx_.Scan.ProjectEnums) blocks.push_back(source::lookupIn(*ctx_.Scan.ProjectEnums));
    if (ctx_.Scan.ProjectTypes) blocks.push_back(source::lookupIn(*ctx_.Scan.ProjectTypes));
    if (!nameAnswerAccepted(*this, FocusedControl, DeclarationNameCheck(ctx_, name.empty() ? name : fullName, lists_, blocks)))
        return false;
    Str module = basic::Trim(Controls(u"cboModule").Text());
    return TypeEnumCodeInsert(ctx_, name, isEnum, Controls(u"txtItems").Text(), module, {}, prefix, AccessWord());
}

// A blank typed behind " As" pops up the list of type names under the caret.
void frmEnumOrType::txtItems_KeyPress(long& keyAscii) {
    if (keyAscii != kKeyBlank) return;
    auto& items = Controls(u"txtItems");
    Str left = basic::Left(items.Text(), items.SelStart);
    if (basic::StrComp(basic::Right(left, 3), u" As", basic::Compare::Text) != 0) return;
    auto& list = Controls(u"lstVars");
    if (list.ListCount() == 0) return;
    if (list.ListIndex() < 0) list.ListIndex(0);
    list.Visible = true;
    FocusedControl = u"lstVars";
}

void frmEnumOrType::lstVars_KeyPress(long& keyAscii) {
    if (keyAscii == kKeyEnter || keyAscii == kKeyBlank) {
        keyAscii = 0;
        guard(u"lstVars_KeyPress", [this] { typeChosen(); });
    } else if (keyAscii == kKeyEscape) {
        keyAscii = 0;
        typeListHide();
    }
}

// The chosen type goes in at the caret of txtItems, behind the blank the user typed.
void frmEnumOrType::typeChosen() {
    auto& list = Controls(u"lstVars");
    if (list.ListIndex() >= 0) {
        auto& items = Controls(u"txtItems");
        Str text = items.Text();
        long at = std::min<long>(items.SelStart, basic::Len(text));
        Str left = basic::Left(text, at);
        if (basic::Right(left, 1) != u" ") left += u" ";
        Str type = list.List(list.ListIndex());
        items.Text(left + type + basic::Mid(text, at + 1));
        items.SelStart = basic::Len(left + type);
        items.SelLength = 0;
    }
    typeListHide();
}

void frmEnumOrType::typeListHide() {
    Controls(u"lstVars").Visible = false;
    FocusedControl = u"txtItems";
}

void OpenEnumOrTypeBuilder(core::Context& ctx, const std::vector<Str>& args) {
    core::guarded(ctx, u"frmEnumOrType.Open", [&] {
        core::ProjectRefresh(ctx);
        Str name = args.size() > 1 ? args[1] : Str();
        auto& form = ctx.Forms->Adopt(std::make_unique<frmEnumOrType>(ctx));
        form.Init(BlockKindOf(args), name);
        form.Show(ctx.ShowMode);
    });
}

}  // namespace quillet::builders
