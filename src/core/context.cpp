#include "core/context.h"

#include <ctime>

#include "core/err_handler.h"
#include "core/frm_timer.h"
#include "core/version.h"
#include "basic/unicode.h"

namespace quillet::core {

namespace {

// The local date or time in a strftime format.
Str localClockText(const char* format) {
    std::time_t now = std::time(nullptr);
    char text[32] = {};
    if (const std::tm* local = std::localtime(&now)) std::strftime(text, sizeof text, format, local);
    return basic::u16(text);
}

}  // namespace

Context::Context(host::VBEPtr vbe, std::shared_ptr<platform::Platform> platform,
                 std::shared_ptr<HostApplications> hostApps)
    : VBInstance(std::move(vbe)),
      IniSettings(std::make_unique<settings::Settings>(*platform)),
      Forms(std::make_shared<dialogs::FormStack>(platform)),
      platform_(std::move(platform)),
      hostApps_(std::move(hostApps)) {
    DateText = [] { return localClockText("%Y-%m-%d"); };
    TimeText = [] { return localClockText("%H:%M:%S"); };
}

Context::~Context() = default;

source::ScanEnv Context::scanEnv() {
    return source::ScanEnv{*VBInstance, Scan, [this](const basic::VbError& error, const Str& procedure) {
                                HandleError(*this, error, 0, procedure);
                            }};
}

Str Context::Version() const {
    return basic::u16(std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
                      std::to_string(kVersionRevision));
}

}  // namespace quillet::core
