#pragma once
// The add-in's commands work on the shared core (core/): the context, the error report, the
// caret routines, the command environment and the timer form. Inside the add-in those names are
// used as its own.

#include "core/caret.h"
#include "core/command_env.h"
#include "core/context.h"
#include "core/err_handler.h"
#include "core/frm_timer.h"

namespace quillet::addin {
using namespace quillet::core;
}  // namespace quillet::addin
