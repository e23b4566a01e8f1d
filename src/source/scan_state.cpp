#include "source/scan_state.h"

#include <functional>
#include <string_view>

#include "basic/strings.h"

namespace quillet::source {

ModuleSignature signatureOf(const ModuleText& text) {
    // Each line's hash mixed into the whole; a line's position counts through the mixing.
    std::uint64_t hash = 14695981039346656037ull;
    for (long n = 1; n <= text.CountOfLines(); ++n) {
        hash ^= std::hash<std::u16string_view>{}(text.line(n));
        hash *= 1099511628211ull;
    }
    return ModuleSignature{text.CountOfLines(), hash};
}

Str signatureKey(const Str& moduleName) { return basic::UCase(moduleName); }

bool scanAllowed(host::VBE& vbe) {
    if (vbe.VBProjects()->Count() == 0) return false;
    auto project = vbe.ActiveVBProject();
    return project && project->Protection() != host::vbext_pp_locked;
}

Str activeProjectName(host::VBE& vbe) {
    auto project = vbe.ActiveVBProject();
    return project ? project->Name() : Str();
}

}  // namespace quillet::source
