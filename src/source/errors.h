#pragma once
// How the source model reports a failure and goes on: the add-in hands in its HandleError, tests
// a recorder. A step that fails is reported with the routine's name and the caller goes on.

#include <exception>
#include <functional>

#include "basic/vb_error.h"

namespace quillet::source {

using basic::Str;

// HandleError: the error, and the routine it happened in ("C4_ProcDef.ProcDefGet").
using ErrorReporter = std::function<void(const basic::VbError& error, const Str& procedure)>;

// Reports the exception in flight (a VbError as it is, anything else as an application error).
void reportCurrentException(const ErrorReporter& report, const Str& procedure) noexcept;

// Runs one step; a failure is reported and false returned.
template <class F>
bool reportedStep(const ErrorReporter& report, const Str& procedure, F&& step) noexcept {
    try {
        std::forward<F>(step)();
        return true;
    } catch (...) {
        reportCurrentException(report, procedure);
        return false;
    }
}

// Runs a step with errors ignored (Basic's On Error Resume Next). True when it ran through.
template <class F>
bool ignoringErrors(F&& step) noexcept {
    try {
        std::forward<F>(step)();
        return true;
    } catch (...) {
        return false;
    }
}

}  // namespace quillet::source
