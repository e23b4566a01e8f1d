#pragma once
// The builders' windows, driven as a user drives them.

#include <string>

#include "box_answerer.h"
#include "dialogs/ui_player.h"
#include "harness.h"
#include "session.h"
#include "window_surface.h"

namespace quillet::wine {

// Every UI script of the folder (the headless builder tests' scripts), each in a session of its
// own, played on the real windows.
void runDialogScenarios(Checks& c, BoxAnswerer& boxes, const std::wstring& scriptsFolder);

// The builders filled in as in the user guide, pictured as BMP files in the folder
// ("procedure-builder.bmp", "argument-builder.bmp", "variable-builder.bmp", ...).
void takeDialogPictures(Checks& c, BoxAnswerer& boxes, const std::wstring& folder);

// Opens and cancels the Procedure Builder on a project of that many modules and prints the times.
void benchDialogOpen(Checks& c, BoxAnswerer& boxes, int rounds, int modules);

// The project the builder scripts expect: basMain ("Option Explicit", a blank line 2 where the
// caret stands, "Public Sub Existing()", "End Sub") and the class module clsOrder.
std::shared_ptr<MemoryVBE> editorForBuilders();

// The add-in learns the project (its host, its scan) at the first tick of its project watch, as
// it does in the editor before a user's first click: this waits for that tick.
constexpr DWORD kFirstTickWait = 800;
void settleAfterConnection();
// OnConnection with the focus in the code window, then the first tick.
void connectForDialogs(Session& s);

// A surface whose builders are opened by their bar entries ("Add P&rocedure...", "&Add Variable...",
// a type's entry of the "&Constant" pop-up...), whose answers go to the box answerer and whose
// modules are the session's.
WindowSurface builderSurface(Checks& c, Session& s, BoxAnswerer& boxes, dialogs::UiScriptHooks& hooks);

}  // namespace quillet::wine
