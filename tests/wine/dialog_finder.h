#pragma once
// The add-in's dialog windows as a user sees them, found by the names they carry: every dialog
// window holds its form's name and every control window its model control's name in the window
// property "QuilletName" (a global atom). Names compare ignoring case, as atoms do. Small and
// free of the harness's other parts, for any scenario that drives the dialogs' windows.

#include <windows.h>

#include <string>
#include <vector>

namespace quillet::wine::finder {

// The name a window carries; empty when none.
std::wstring quilletName(HWND window);
// The visible top-level window of that form name, or none.
HWND findDialog(const std::wstring& formName);
// The control of that name on a dialog, or none.
HWND findControl(HWND dialog, const std::wstring& controlName);
// Every control of a dialog that carries a name.
std::vector<HWND> namedControls(HWND dialog);

// The tool tip a dialog's tool tip window holds for one of its controls; empty when none.
std::wstring toolTip(HWND dialog, HWND control);

// A window's text and class name.
std::wstring windowText(HWND window);
std::wstring className(HWND window);

// What a user does: presses a button (BM_CLICK), picks a list entry of a combo box or list box by
// its text (with the notification a user's choice sends); false when the entry is not there.
void pressButton(HWND button);
bool pickEntry(HWND list, const std::wstring& entry);
// The entries of a list box or combo box, an entry's ItemData, the selected entry (-1 none).
std::vector<std::wstring> entries(HWND list);
long itemData(HWND list, long index);
long selectedIndex(HWND list);
// Selects an entry by its index with the notification a user's choice sends.
void pickIndex(HWND list, long index);

}  // namespace quillet::wine::finder
