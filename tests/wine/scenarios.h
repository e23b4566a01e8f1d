#pragma once
// The scenarios the harness plays, each against a fresh in-memory editor.

#include "harness.h"

namespace quillet::wine {

// Connection, disconnection, release, the connectors.
void runConnectionScenarios(Checks& c);
// frmTimer's timers: the project watch enables and disables the bar; timers stop with the
// connection.
void runTimerScenarios(Checks& c);
// The bar against the command table, clicks, the bar's state at the caret, its position.
void runBarScenarios(Checks& c);
// Failures injected into each editor call of connection, a click and a tick.
void runFaultScenarios(Checks& c);
// The dialogs' windows: the Procedure and Argument Builders opened from the bar, driven through
// their controls, closed by OK, Cancel and Escape, and taken down at disconnection.
void runViewScenarios(Checks& c);

}  // namespace quillet::wine
