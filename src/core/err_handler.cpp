#include "core/err_handler.h"

#include <new>
#include <string>

#include "core/frm_timer.h"
#include "basic/unicode.h"
#include "platform/platform.h"

namespace quillet::core {

using basic::VbError;

namespace {

Str number(long long n) { return basic::u16(std::to_string(n)); }

Str reportMessage(const VbError& err, long line, const Str& procedure, const Str& module, const Str& member) {
    Str message = number(err.Number()) + u": " + err.Description();
    if (!module.empty() || !member.empty() || line > 0) {
        message += u"\r\nin " + module + member;
        if (line > 0) message += u" line " + number(line);
    }
    if (!procedure.empty()) message += u"\r\n" + procedure;
    return message;
}

// The editor's Immediate window, made visible if it was not; none when the editor has none.
host::WindowPtr shownImmediateWindow(Context& ctx) {
    auto windows = ctx.VBInstance->Windows();
    long count = windows->Count();
    for (long i = 1; i <= count; ++i) {
        auto window = windows->Item(i);
        if (window->Type() != host::vbext_wt_Immediate) continue;
        if (!window->Visible()) window->Visible(true);
        return window;
    }
    return nullptr;
}

// Steps 3 and 4 of a delivery: bring the Immediate window up and paste the pending text.
bool pasteIntoImmediate(Context& ctx) {
    auto& platform = ctx.Platform();
    if (auto window = shownImmediateWindow(ctx)) {
        ctx.ImmediateActive = true;
        window->SetFocus();
        if (ctx.ImmediateWindowHandle == 0) ctx.ImmediateWindowHandle = FindImmediateWindowHandle(ctx);
    }
    if (ctx.ImmediateWindowHandle == 0 || platform.GetFocus() != ctx.ImmediateWindowHandle) return false;
    platform.ClipboardClear();
    platform.ClipboardSetText(ctx.PendingReport);
    auto onClipboard = platform.ClipboardGetText();
    if (onClipboard && !onClipboard->empty()) platform.SendKeys(u"^v", true);
    ctx.PendingReport.clear();
    return true;
}

}  // namespace

VbError errorOf(const std::exception_ptr& failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const VbError& e) {
        return e;
    } catch (const std::bad_alloc&) {
        return VbError::standard(basic::err::OutOfMemory);
    } catch (const std::exception& e) {
        return VbError(basic::err::ApplicationDefined, basic::fromUtf8(e.what()));
    } catch (...) {
        return VbError::standard(basic::err::ApplicationDefined);
    }
}

void HandleError(Context& ctx, const VbError& err, long line, const Str& procedure, const Str& module,
                 const Str& member) noexcept {
    try {
        Str title = u"Quillet." + ctx.CurrentCommand + u" Error";
        Str message = reportMessage(err, line, procedure, module, member);
        if (ctx.reportListener) ignoringErrors([&] { ctx.reportListener(title + u" - " + message); });
        if (ctx.TestingMode)
            ignoringErrors([&] { ctx.Platform().MsgBox(message, platform::mb::vbExclamation, title); });
        ReportToImmediate(ctx, title + u" - " + message, false);
    } catch (...) {
        // Reporting must never become a failure of its own.
    }
}

bool ReportToImmediate(Context& ctx, const Str& text, bool retry) noexcept {
    auto& platform = ctx.Platform();
    long long focus = 0;
    ignoringErrors([&] { focus = platform.GetFocus(); });
    bool delivered = false;
    try {
        if (!retry) {
            if (ctx.PendingReport.empty())
                ctx.PendingReport = u"[please report to " + ctx.SupportAddress + u"]\r\nVersion: " + ctx.Version() + u"\r\n";
            ctx.PendingReport += text + u"\r\n";
        }
        platform.Hourglass(true);
        if (ctx.VBInstance) delivered = pasteIntoImmediate(ctx);
    } catch (...) {
        delivered = false;
    }
    if (!delivered && ctx.TimerForm && ctx.TimerForm->Timer3.Interval == 0) ctx.TimerForm->Timer3.Interval = 1000;
    ignoringErrors([&] { platform.SetFocus(focus); });
    ctx.ImmediateActive = false;
    ignoringErrors([&] { platform.Hourglass(false); });
    return delivered;
}

host::WindowHandle FindImmediateWindowHandle(Context& ctx) noexcept {
    auto& platform = ctx.Platform();
    long long focus = 0;
    ignoringErrors([&] { focus = platform.GetFocus(); });
    host::WindowHandle handle = 0;
    ignoringErrors([&] {
        auto window = shownImmediateWindow(ctx);
        if (!window) return;
        window->SetFocus();
        auto active = ctx.VBInstance->ActiveWindow();
        if (active && active->Type() == host::vbext_wt_Immediate) handle = platform.GetFocus();
    });
    ignoringErrors([&] { platform.SetFocus(focus); });
    return handle;
}

}  // namespace quillet::core
