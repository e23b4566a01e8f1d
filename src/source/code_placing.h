#pragma once
// The routines that put code into modules: a declaration where it belongs (module level, the
// declaration area of a procedure, a member of an Enum or Type block), text at the caret or over
// the selection, a new module, and the module name constant. Each reports its failures through
// the environment and goes on; a declined question leaves the project as it was.

#include "source/code_env.h"

namespace quillet::source {

// Special entries of module lists.
inline constexpr char16_t kNewModule[] = u"<New Module>";
inline constexpr char16_t kNewClassModule[] = u"<New Class Module>";

// VarConstCodeAdd(line, module, fModuleLevel, fProcArea, name, lngLine, fAtTop): puts one
// declaration where it belongs. lngLine above 0: a member of the block at that line. Not module
// level: the declaration area of the procedure at the caret. Module level: a blank caret line of
// the module outside procedures, else the module's declarations (at their top with fAtTop, where
// comments and Option lines end). "<New Module>" or an unknown module asks first. True when
// placed.
bool VarConstCodeAdd(CodeEnv& env, const Str& line, const Str& module, bool fModuleLevel, bool fProcArea,
                     const Str& name, long lngLine, bool fAtTop);

// Puts the line at the end of the declaration area of the procedure at the caret, indented when
// the setting Declaration Indented is on. The line number it went to, 0 when there is no
// procedure at the caret.
long qltProcVariableAdd(CodeEnv& env, const Str& line);

// Makes a module of `kind` (1 standard, 2 class) named `name` in the active project, with the
// module header. The focus goes back to the pane that had it unless blnKeepNewFocus. The name,
// or "" when the editor refused (a name in use: the failure is reported and no module is left).
Str ModuleCreate(CodeEnv& env, const Str& name, long kind = host::vbext_ct_StdModule, bool blnHeader = true,
                 bool blnKeepNewFocus = false);

// Which module a declaration goes to: the name itself when it exists; "<New Module>" asks for a
// name, an unknown name asks "Create module ...?", and the module is made. "" when declined.
Str TargetModuleResolve(CodeEnv& env, const Str& module);

// Puts text at the selection of the pane (the active one when none), with a blank on each side
// where it would run into a word; the caret goes behind it. blnKeys sends " {BACKSPACE}" so
// the editor checks the line.
void InstanceAdd(CodeEnv& env, host::CodePanePtr pane, const Str& text, bool blnNewFocus = false,
                 bool blnKeys = false);

// Replaces the selection of the active pane by `text`; the caret goes behind it.
void CodeReplace(CodeEnv& env, const Str& text);

// Whether the module's declarations hold the constant named by the setting Module Name
// Constant; unless blnCheckOnly, adds "Private Const <name> As String = "<module>"" at the top
// of the declarations when it is missing. True when the constant is there at the end.
bool ModuleNameConstantAdd(CodeEnv& env, const Str& module, bool blnCheckOnly);

// The component of the active project with that name (ignoring case), none when there is none.
host::VBComponentPtr componentNamed(host::VBE& vbe, const Str& name);

}  // namespace quillet::source
