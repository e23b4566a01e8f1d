#pragma once
// One control of a dialog model: a named value holder with the properties a dialog's code reads
// and sets (Text, Value, the list with ItemData, ListIndex, Enabled, Visible, Caption, tool tip)
// and the events it raises, as the controls of a Basic form do: setting Text raises Change when
// the text changes, setting a check box's or option button's Value raises Click, setting a
// list's ListIndex raises Click. Nothing here draws; a view binds to it by name.

#include <functional>
#include <string>
#include <vector>

namespace quillet::dialogs {

using Str = std::u16string;

class Form;

enum class ControlKind { TextBox, CheckBox, OptionButton, ComboBox, ListBox, Label, CommandButton, Frame };

// Check box values.
constexpr long vbUnchecked = 0;
constexpr long vbChecked = 1;
constexpr long vbGrayed = 2;

struct ListEntry {
    Str text;
    long itemData = 0;
    bool selected = false;  // the tick of a check-box list's entry
};

class Control {
public:
    Control(Form* owner, Str name, ControlKind kind) : owner_(owner), name_(std::move(name)), kind_(kind) {}
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const Str& Name() const { return name_; }
    ControlKind Kind() const { return kind_; }
    Form* Owner() const { return owner_; }

    // The text of a text box or combo box; a list box gives its selected entry's text.
    Str Text() const;
    void Text(const Str& text);
    // Check box: vbUnchecked, vbChecked, vbGrayed; option button: 1 on, 0 off (setting one on
    // turns the others of its container off).
    long Value() const { return value_; }
    void Value(long value);

    // The list of a combo box or list box.
    void AddItem(const Str& text, long index = -1);
    void RemoveItem(long index);
    void Clear();
    long ListCount() const { return static_cast<long>(list_.size()); }
    // Entry texts and data by 0-based index; an index outside the list raises 381.
    Str List(long index) const;
    long ItemData(long index) const;
    void ItemData(long index, long data);
    // -1 when nothing is selected; setting it selects (a combo box takes the entry's text) and
    // raises Click; an index outside -1 to ListCount - 1 raises 380.
    long ListIndex() const { return listIndex_; }
    void ListIndex(long index);
    const std::vector<ListEntry>& Entries() const { return list_; }
    // A list box in check-box style (Basic's Style 1): each entry shows a box, ticked when the
    // entry is Selected. Selected by 0-based index; an index outside the list raises 381.
    bool CheckBoxes = false;
    bool Selected(long index) const;
    void Selected(long index, bool value);

    // Selection in the text of a text box or combo box (0-based start, as Basic's SelStart).
    long SelStart = 0;
    long SelLength = 0;
    bool Enabled = true;
    bool Visible = true;
    Str Caption;
    Str ToolTipText;
    // The frame an option button belongs to ("" for the form itself).
    Str Container;

    // Raises the events as the user's actions do.
    void Click();
    void Change();
    // KeyPress with the key's character code; a handler sets it to 0 to swallow the key.
    void KeyPress(long& keyAscii);
    // KeyDown with the key code (46 Delete ...); a handler sets it to 0 to swallow the key.
    void KeyDown(long& keyCode, long shift);

    std::vector<std::function<void(Control&)>> ClickHandlers;
    std::vector<std::function<void(Control&)>> ChangeHandlers;
    std::vector<std::function<void(Control&, long& keyAscii)>> KeyPressHandlers;
    std::vector<std::function<void(Control&, long& keyCode, long shift)>> KeyDownHandlers;

private:
    void checkIndex(long index, long error) const;
    // The list entry by 0-based index; an index outside the list raises 381.
    const ListEntry& entry(long index) const;
    ListEntry& entry(long index);

    Form* owner_;
    Str name_;
    ControlKind kind_;
    Str text_;
    long value_ = 0;
    std::vector<ListEntry> list_;
    long listIndex_ = -1;
};

}  // namespace quillet::dialogs
