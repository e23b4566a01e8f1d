#include "source/scan_state.h"

#include "basic/strings.h"

namespace quillet::source {

ModuleSignature signatureOf(const ModuleText& text) {
    // FNV-1a over the lines and their breaks.
    std::uint64_t hash = 14695981039346656037ull;
    auto mix = [&hash](char16_t unit) {
        hash ^= static_cast<std::uint64_t>(unit);
        hash *= 1099511628211ull;
    };
    for (long n = 1; n <= text.CountOfLines(); ++n) {
        for (char16_t unit : text.line(n)) mix(unit);
        mix(u'\n');
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
