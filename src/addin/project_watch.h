#pragma once
// Timer1's work: one look at the editor. Is a project there, is it open to us, has it changed?
// The bar follows; a new project is scanned (ProjectInitialize).

#include <memory>

#include "addin/core_names.h"
#include "core/context.h"
#include "core/frm_timer.h"

namespace quillet::addin {

using core::Context;

void ProjectWatch(Context& ctx);

// The timer form of a connection, its Timer1 running ProjectWatch.
std::unique_ptr<core::frmTimer> TimerFormCreate(Context& ctx);

}  // namespace quillet::addin
