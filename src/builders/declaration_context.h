#pragma once
// What the declaration builders (variables, constants) share: the lists a new name is checked
// against, read from the module and procedure at the caret or lent by a parent dialog; where the
// caret stands; the name check over those lists; the caret kept on its line while declarations go
// in above it; and the Object Name button.

#include "core/context.h"
#include "dialogs/form.h"
#include "source/declarations.h"
#include "source/name_checks.h"
#include "source/proc_def.h"

namespace quillet::builders {

using basic::Str;

// A dialog that opens a declaration builder as its sub-dialog and lends it its lists instead of
// a scan of its own. The builder reports back by name (AddNewVar, AddNewConst, ArgInsert,
// NewVariable) on the parent form.
class DeclarationOwner {
public:
    virtual ~DeclarationOwner() = default;
    virtual basic::Collection<source::clsVariablePtr>& ModuleVars() = 0;
    virtual basic::Collection<source::clsConstantPtr>& ModuleConsts() = 0;
    virtual basic::Collection<source::clsVariablePtr>& ProcVars() = 0;
    virtual basic::Collection<source::clsConstantPtr>& ProcConsts() = 0;
    virtual basic::Collection<source::C4_ProcDefPtr>& ModuleProcs() = 0;
};

// The lists a declaration builder checks a new name against and places code by.
struct DeclarationLists {
    basic::Collection<source::clsVariablePtr> ModuleVars;
    basic::Collection<source::clsConstantPtr> ModuleConsts;
    basic::Collection<source::clsEnumPtr> ModuleEnums;
    basic::Collection<source::clsTypePtr> ModuleTypes;
    basic::Collection<source::C4_ProcDefPtr> ModuleProcs;
    basic::Collection<source::clsVariablePtr> ProcVars;
    basic::Collection<source::clsConstantPtr> ProcConsts;
};

// Where the caret stands: the procedure around it and whether it is on the procedure's header.
struct CaretPlace {
    Str procName;
    long procKind = 0;
    long bodyLine = 0;     // the header's first line
    long headerEnd = 0;    // the header's last line (continuations included)
    bool inProcedure = false;
    bool inHeader = false;
};
CaretPlace CaretPlaceGet(host::VBE& vbe);

// Fills the lists: from the parent when it is a DeclarationOwner (True), else from a scan of the
// module at the caret and, inside a procedure, of that procedure (False).
bool DeclarationListsRead(core::Context& ctx, dialogs::Form* parent, const CaretPlace& place, DeclarationLists& lists);

// CheckNewNameIsOK over the project's public procedures, variables and constants and the nine
// lists of the builder, plus `extra`: 0 when the name may be used, else the answer (2, 7 ...).
long DeclarationNameCheck(core::Context& ctx, const Str& name, const DeclarationLists& lists,
                          source::NameLookups extra = {});

// The list entry whose ItemData is `data`, -1 when none.
long EntryWithData(const dialogs::Control& list, long data);

// The hosts whose documents have object names to offer: Excel, Word and Access.
bool HostHasObjectNames(core::Context& ctx);

// The Object Name dialog for the "..." button; a clear message while it is not there.
void ObjectNameOpen(core::Context& ctx, const std::vector<Str>& args = {});

// The "..." button that opens the Object Name dialog, with its tool tip.
void AddObjectNameButton(dialogs::Form& form);
// The buttons along the bottom: OK, "OK && &Paste", Cancel and Help.
void AddOkPasteButtons(dialogs::Form& form);
// On the first showing only: txtName gets the focus with its whole text selected.
void NameSelectedOnFirstShow(dialogs::Form& form, bool& firstShow);

// The caret of a pane and the text of its line, to find the line again once lines went in above.
struct CaretMark {
    long line = 0, col = 0;
    long count = 0;
    Str text;
};
CaretMark CaretMarkGet(host::CodePane& pane);
// Puts the caret back on its line, which lines put in above it have moved down.
void CaretFollow(host::CodePane& pane, const CaretMark& mark);

}  // namespace quillet::builders
