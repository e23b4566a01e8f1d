#pragma once
// Error reporting: a failure inside a command is reported and the command goes on. In normal
// use the report is pasted into the editor's Immediate window; in testing mode a message box
// shows it as well. A report that cannot be delivered stays pending and Timer3 retries it.

#include <exception>
#include <utility>

#include "core/context.h"

namespace quillet::core {

// HandleError(Err, lngLine, strProcedure, strModule, strMember). Never throws.
void HandleError(Context& ctx, const basic::VbError& err, long line, const Str& procedure,
                 const Str& module = {}, const Str& member = {}) noexcept;

// Appends the text to PendingReport (unless retrying) and pastes it into the Immediate window.
// True when delivered. Never throws.
bool ReportToImmediate(Context& ctx, const Str& text, bool retry) noexcept;

// The Immediate window's handle as the focus shows it, or 0.
host::WindowHandle FindImmediateWindowHandle(Context& ctx) noexcept;

// The error that an exception stands for: a VbError as it is, anything else as an
// application error with its text.
basic::VbError errorOf(const std::exception_ptr& failure);

// Runs one statement of a procedure under its error handler: a failure is reported with the
// procedure's name and the caller goes on (Basic's Resume Next). True when it ran through.
template <class F>
bool guarded(Context& ctx, const Str& procedure, F&& statement) noexcept {
    try {
        std::forward<F>(statement)();
        return true;
    } catch (...) {
        HandleError(ctx, errorOf(std::current_exception()), 0, procedure);
        return false;
    }
}

// Runs a statement with errors ignored (On Error Resume Next). True when it ran through.
template <class F>
bool ignoringErrors(F&& statement) noexcept {
    try {
        std::forward<F>(statement)();
        return true;
    } catch (...) {
        return false;
    }
}

}  // namespace quillet::core
