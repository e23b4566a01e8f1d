#pragma once
// The commands that act on the project or on files: a file's or folder's name at the caret,
// import and export of modules, opening a builder, the form builder, line numbers, and the
// object inventory of an Access database. Each does nothing, silently, without a code pane where
// it needs one, and reports its failures.

#include "addin/core_names.h"
#include "core/context.h"

namespace quillet::addin {

// The path chosen in the open dialog ("Select File"), in double quotes, over the selection.
void FilenameAdd(Context& ctx);
// The folder chosen in the folder browser, started at the current folder, in double quotes.
void FoldernameAdd(Context& ctx);
// A module file chosen in "Import File" (started in the library folder) goes into the project.
void ImportFile(Context& ctx);
// The selected component goes to the file chosen in "Export File"; a file there is replaced.
void ExportFile(Context& ctx);

// FormOpen(form, blnCheckCode, blnInit, arg, blnRefresh): unless a code window is active (with
// blnCheckCode) nothing; with blnRefresh the project scan is brought up to date; then the
// builder registered under the form's name opens with the argument.
void FormOpen(Context& ctx, const Str& form, bool blnCheckCode = true, bool blnInit = true, const Str& arg = {},
              bool blnRefresh = true);
// Opens the form builder (frmControlBuilder), on the selected component's designer when it has one.
void ControlsAddFormOpen(Context& ctx);
// LineNumbers(mode): with a code pane, mode 0 adds and mode 1 removes line numbers (the routine
// registered as "LineNumbersAdd" or "LineNumbersRemove" does the work).
void LineNumbers(Context& ctx, long mode);

// The module "basObjectInventory" of the Access database's project, written anew: a constant
// for each table, its fields, each query and each form.
void AccessObjectInventory(Context& ctx);
// The name a constant of the inventory takes: letters, digits and "_" kept, beginning with a
// letter, at most 255 characters.
Str InventoryConstantName(const Str& text);

// Registers the commands of this layer in the context: the routines by name, the error handler
// list and whether an explicit argument can be completed at the caret.
void RegisterScanCommands(Context& ctx);

}  // namespace quillet::addin
