#include "source/errors.h"

#include <string>

namespace quillet::source {

void reportCurrentException(const ErrorReporter& report, const Str& procedure) noexcept {
    if (!report) return;
    try {
        try {
            throw;
        } catch (const basic::VbError& error) {
            report(error, procedure);
        } catch (const std::exception& error) {
            std::string what = error.what();
            report(basic::VbError(basic::err::ApplicationDefined, Str(what.begin(), what.end()), procedure), procedure);
        } catch (...) {
            report(basic::VbError::standard(basic::err::ApplicationDefined, procedure), procedure);
        }
    } catch (...) {
        // The reporter itself failed: nothing more can be done.
    }
}

}  // namespace quillet::source
