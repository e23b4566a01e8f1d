#pragma once
// The connection scenarios, each against a fresh in-memory editor.

#include "harness.h"

namespace quillet::wine {

void runConnectionScenarios(Checks& c);

}  // namespace quillet::wine
