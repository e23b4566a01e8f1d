// The pop-up list and text box.

#include "support/pop_ups.h"

namespace quillet::support {

namespace {
constexpr long kTab = 9;
constexpr long kEnter = 13;
constexpr long kEscape = 27;
}  // namespace

frmList::frmList() : Form(u"frmList"), lstList(AddControl(u"lstList", dialogs::ControlKind::ListBox)) {}

void frmList::Form_Activate() {
    Visible = true;
    if (lstList.ListCount() > 0) lstList.ListIndex(0);
}

void frmList::lstList_KeyPress(long key) {
    if (key != kEnter && key != kEscape && key != kTab) return;
    LastKey = key;
    if (key == kEnter && lstList.ListIndex() >= 0) Choice = lstList.Text();
    Visible = false;
}

void frmList::lstList_DblClick() { lstList_KeyPress(kEnter); }

void frmList::ClickOutside() { lstList_KeyPress(kEscape); }

frmTextInput::frmTextInput() : Form(u"frmTextInput"), txtInput(AddControl(u"txtInput", dialogs::ControlKind::TextBox)) {}

void frmTextInput::init(const Str& text) {
    txtInput.Text(text);
    txtInput.SelStart = 0;
    txtInput.SelLength = static_cast<long>(text.size());
    Result.reset();
    Visible = true;
}

void frmTextInput::txtInput_KeyPress(long key) {
    if (key != kEnter && key != kEscape) return;
    if (key == kEnter) Result = txtInput.Text();
    Visible = false;
}

void frmTextInput::ClickOutside() { txtInput_KeyPress(kEscape); }

}  // namespace quillet::support
