#pragma once
// Where a dialog's controls stand, in dialog units (a quarter of the dialog font's average
// character width across, an eighth of its height down), so that a view draws the same dialog at
// any font size and resolution. A layout names each control of the form's model once, in Tab
// order, and adds the labels and frames that only decorate: a label's access key moves the focus
// to the control it names, which follows it in Tab order, as in any Windows dialog.

#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "dialogs/form.h"

namespace quillet::dialogs {

// The spacing every layout keeps: the margin round the client area and inside frames, the gap
// between neighbours, the standard button and the height of one line of controls.
constexpr int kDluMargin = 7;
constexpr int kDluSpacing = 4;
constexpr int kDluButtonWidth = 50;
constexpr int kDluButtonHeight = 14;
constexpr int kDluFieldHeight = 14;
constexpr int kDluLabelHeight = 8;
constexpr int kDluCheckHeight = 10;

struct DluRect {
    int x = 0, y = 0, cx = 0, cy = 0;
    int right() const { return x + cx; }
    int bottom() const { return y + cy; }
    bool contains(const DluRect& other) const;
    bool overlaps(const DluRect& other) const;
};

// How a combo box takes text: typed in and picked from the list, or picked only.
enum class ComboStyle { Editable, DropDownList };

struct Placement {
    // The model control's name, or a decoration's own name ("lblName", "fraOptions").
    Str name;
    // The visible rectangle (a combo box's closed field; the view adds the drop-down).
    DluRect rect;
    // A label or frame that exists in the layout only.
    bool decoration = false;
    // A decoration's kind: Label or Frame.
    ControlKind kind = ControlKind::Label;
    // A decoration's text; for a model control, the text shown while the model's Caption is empty.
    Str caption;
    // A label: the control its access key reaches.
    Str labelFor;
    ComboStyle combo = ComboStyle::Editable;
    bool multiLine = false;
    // Shown in the code editor's font (a box that holds code).
    bool codeFont = false;
    // The tab page the placement stands on ("" for none): placements of different pages share
    // room, as only the selected page's controls are visible, and each page reads on its own.
    Str page;
};

struct FormLayout {
    Str form;
    // The client area in dialog units.
    int width = 0;
    int height = 0;
    // Enter presses the default button, Escape the cancel button (names of model controls).
    Str defaultButton = u"cmdOK";
    Str cancelButton = u"cmdCancel";
    // In Tab order, which is also the order the view makes the windows in.
    std::vector<Placement> items;

    const Placement* find(const Str& name) const;
};

// Makers of placements, for the layouts' tables.
Placement placed(const Str& name, DluRect rect, const Str& caption = {});
Placement placedCombo(const Str& name, DluRect rect, ComboStyle style);
Placement label(const Str& name, const Str& caption, DluRect rect, const Str& labelFor);
Placement frame(const Str& name, const Str& caption, DluRect rect);

// The text a placement shows: a decoration's caption, the model control's Caption, or the
// placement's caption while the model has none.
Str shownCaption(const Placement& item, Form& form);
// The kind of a placement: the model control's, or the decoration's.
ControlKind kindOf(const Placement& item, Form& form);
// The access key of a caption: the letter behind a single "&", upper case; 0 when none.
char16_t accessKey(const Str& caption);
// Controls the Tab key stops at (not labels and frames).
bool takesFocus(ControlKind kind);

// The layouts by form name (compared ignoring case); the view asks it for each form it shows.
class LayoutCatalog {
public:
    using Maker = std::function<FormLayout()>;
    void Add(const Str& formName, Maker maker);
    std::optional<FormLayout> Find(const Str& formName) const;
    std::vector<Str> Names() const;

private:
    std::map<Str, Maker> makers_;
};

}  // namespace quillet::dialogs

namespace quillet::dialogs {

// A plain layout for a form that has none of its own: one control a row, buttons in a row at the
// bottom right, so that every dialog can be shown.
FormLayout FallbackLayout(Form& form);

}  // namespace quillet::dialogs
