// Combo box type-ahead.

#include "support/cls_combo_expand.h"

#include <algorithm>

#include "basic/strings.h"

namespace quillet::support {

using Str = std::u16string;

namespace {
constexpr long kBackspace = 8;
constexpr long kTab = 9;
constexpr long kEnter = 13;
constexpr long kDelete = 46;
}  // namespace

long clsComboExpand::FindString(const dialogs::Control& combo, const Str& text) {
    for (long i = 0; i < combo.ListCount(); ++i) {
        Str entry = combo.List(i);
        if (basic::StrComp(basic::Left(entry, basic::Len(text)), text, basic::Compare::Text) == 0) return i;
    }
    return -1;
}

long clsComboExpand::FindStringExact(const dialogs::Control& combo, const Str& text) {
    for (long i = 0; i < combo.ListCount(); ++i)
        if (basic::StrComp(combo.List(i), text, basic::Compare::Text) == 0) return i;
    return -1;
}

void clsComboExpand::Key(dialogs::Form& form, dialogs::Control& combo, long& key) {
    if (key == kEnter || key == kTab) return;
    Str text = combo.Text();
    long start = std::min<long>(std::max<long>(combo.SelStart, 0), basic::Len(text));
    long length = std::min<long>(std::max<long>(combo.SelLength, 0), basic::Len(text) - start);
    Str left = basic::Left(text, start), right = basic::Mid(text, start + length + 1);
    bool deleting = key == kBackspace || key == kDelete;
    if (key == kBackspace && length == 0 && !left.empty()) left.pop_back();
    if (key == kDelete && length == 0 && !right.empty()) right.erase(0, 1);
    if (!deleting) left.push_back(static_cast<char16_t>(key));
    Str typed = left + right;
    long hit = deleting ? FindStringExact(combo, typed) : FindString(combo, typed);
    if (hit < 0) return;
    combo.ListIndex(hit);
    combo.SelStart = basic::Len(typed);
    combo.SelLength = basic::Len(combo.Text()) - combo.SelStart;
    key = 0;
    form.CallHandler(combo.Name() + u"_Click");
}

void clsComboExpand::init(dialogs::Form& form, dialogs::Control& combo) {
    combo.KeyPressHandlers.push_back([&form](dialogs::Control& c, long& key) { Key(form, c, key); });
    combo.KeyDownHandlers.push_back([&form](dialogs::Control& c, long& code, long) {
        if (code == kDelete) Key(form, c, code);
    });
}

}  // namespace quillet::support
