#include "builders/frm_item_add.h"

#include "builders/enum_type_code.h"
#include "builders/name_answer.h"
#include "core/command_env.h"
#include "core/err_handler.h"
#include "source/code_placing.h"
#include "source/decl_blocks.h"
#include "source/type_lists.h"

namespace quillet::builders {

using dialogs::ControlKind;

namespace {

constexpr char16_t kChooseBlock[] = u"Choose Object Name.";

template <class C>
void namesInto(dialogs::Control& list, const C& collection) {
    for (const auto& record : collection)
        if (source::FindInList(list, record->Name) < 0) list.AddItem(record->Name);
}

}  // namespace

frmItemAdd::frmItemAdd(core::Context& ctx) : DeclarationDialog(ctx, u"frmItemAdd") {
    addControls();
    hookEvents();
    HelpContextID = support::help_topics::EnumTypeBuilder;
    help_.init(*this, Controls(u"cmdHelp"), -1, support::basHTMLHelp(ctx_));
}

frmItemAdd::~frmItemAdd() = default;

void frmItemAdd::addControls() {
    AddControl(u"lblList", ControlKind::Label);
    AddControl(u"cboList", ControlKind::ComboBox);
    AddControl(u"lblName", ControlKind::Label);
    AddControl(u"txtName", ControlKind::TextBox);
    AddControl(u"txtDescription", ControlKind::TextBox);
    AddControl(u"cmdOk", ControlKind::CommandButton).Caption = u"OK";
    AddControl(u"cmdNext", ControlKind::CommandButton).Caption = u"OK && Ne&w";
    AddControl(u"cmdCancel", ControlKind::CommandButton).Caption = u"Cancel";
    AddControl(u"cmdHelp", ControlKind::CommandButton).Caption = u"&Help";
}

void frmItemAdd::hookEvents() {
    auto ok = [this](const Str& handler, bool next) {
        On(handler, [this, handler, next] {
            bool done = false;
            guard(handler, [&] { done = PressOK(next); });
            if (done && !next && Loaded()) Unload();
        });
    };
    ok(u"cmdOk_Click", false);
    ok(u"cmdNext_Click", true);
    On(u"cmdCancel_Click", [this] { Unload(); });
}

void frmItemAdd::Form_Unload() { help_.Terminate(); }

void frmItemAdd::Init(long vType) {
    kind_ = vType == source::KindType ? source::KindType : source::KindEnum;
    bool isEnum = kind_ == source::KindEnum;
    Caption = isEnum ? u"Add const to enum" : u"Add Item to User-Defined Data Type";
    Controls(u"lblList").Caption = isEnum ? u"&List of Enums" : u"&List of Types";
    Controls(u"lblName").Caption = isEnum ? u"&Name of Const" : u"&Name of Item";
    guard(u"Init", [this] {
        CaretPlace moduleLevel;
        DeclarationListsRead(ctx_, nullptr, moduleLevel, lists_);
    });
    guard(u"Init", [this] { listFill(); });
    FocusedControl = u"txtName";
}

void frmItemAdd::listFill() {
    bool isEnum = kind_ == source::KindEnum;
    auto& list = Controls(u"cboList");
    list.Clear();
    if (isEnum) {
        namesInto(list, lists_.ModuleEnums);
        if (ctx_.Scan.ProjectEnums) namesInto(list, *ctx_.Scan.ProjectEnums);
    } else {
        namesInto(list, lists_.ModuleTypes);
        if (ctx_.Scan.ProjectTypes) namesInto(list, *ctx_.Scan.ProjectTypes);
    }
    // The block the caret stands in is the one meant.
    auto pane = ctx_.VBInstance->ActiveCodePane();
    long blockLine = source::CaretBlockLine(*ctx_.VBInstance, isEnum);
    if (!pane || blockLine == 0) return;
    auto module = pane->CodeModule();
    for (long i = 0; i < list.ListCount(); ++i) {
        long header = 0, endLine = 0;
        if (source::DeclarationBlockFind(*module, list.List(i), isEnum, header, endLine) && header <= blockLine &&
            blockLine < endLine) {
            list.ListIndex(i);
            return;
        }
    }
}

bool frmItemAdd::PressOK(bool vfNext) {
    (void)vfNext;
    Str block = basic::Trim(Controls(u"cboList").Text());
    if (block.empty()) {
        ctx_.Platform().MsgBox(kChooseBlock, 16, source::kProductTitle);
        FocusedControl = u"cboList";
        return false;
    }
    Str name = basic::Trim(Controls(u"txtName").Text());
    Controls(u"txtName").Text(name);
    Str word = name.substr(0, name.find(u' '));
    source::NameCheckEnv check{*ctx_.VBInstance, ctx_.Platform(), ctx_.Keywords};
    if (!nameAnswerAccepted(*this, FocusedControl, source::CheckNewNameIsOK(check, word, false, false, {}))) return false;
    Str text = name;
    Str description = Controls(u"txtDescription").Text();
    if (!description.empty()) text += core::codeEnvOf(ctx_).tabSpaces() + u"'" + description;
    if (!EnumItemAdd(ctx_, lists_, text, block, kind_ == source::KindEnum)) return false;
    Controls(u"txtName").Text(u"");
    Controls(u"txtDescription").Text(u"");
    FocusedControl = u"txtName";
    return true;
}

void OpenItemAdd(core::Context& ctx, const std::vector<Str>& args) {
    core::guarded(ctx, u"frmItemAdd.Open", [&] {
        core::ProjectRefresh(ctx);
        auto& form = ctx.Forms->Adopt(std::make_unique<frmItemAdd>(ctx));
        form.Init(BlockKindOf(args));
        form.Show(ctx.ShowMode);
    });
}

}  // namespace quillet::builders
