// The settings' long-lived state.

#include "settings/settings.h"

#include <cstdlib>

#include "basic/unicode.h"

namespace quillet::settings {

Settings::Settings(platform::Platform& platform)
    : platform_(platform), profile_(std::make_unique<PortableProfile>(Files)) {
    Environment = [](const std::string& name) -> std::optional<std::string> {
        const char* value = std::getenv(name.c_str());
        if (!value || !*value) return std::nullopt;
        return std::string(value);
    };
}

void Settings::reportError(const basic::VbError& error, const Str& source) {
    if (ReportError) {
        ReportError(error, source);
        return;
    }
    ErrorLog.push_back(source + u": " + basic::fromUtf8(std::to_string(error.Number())) + u" " + error.Description());
}

}  // namespace quillet::settings
