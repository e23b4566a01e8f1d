// libFuzzer target for the shell link reader: the input is a ".lnk" file. Reading it must end in
// a link or a ShellLinkError, never a crash, a hang or unbounded memory; a link that was read is
// written again and must read back to the same target. scripts/fuzz.sh builds and runs it over
// tests/fuzz/lnk_fuzz_corpus.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "fragments/shell_link.h"

using namespace quillet::fragments;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    ShellLink link;
    try {
        link = ParseShellLink(std::string_view(reinterpret_cast<const char*>(data), size));
    } catch (const ShellLinkError&) {
        return 0;
    }
    if (link.TargetPath().empty()) return 0;
    try {
        ShellLink again = ParseShellLink(WriteShellLink(link));
        if (again.TargetPath() != link.TargetPath()) std::abort();
    } catch (const ShellLinkError&) {
        // A text too long for a link of our own.
    }
    return 0;
}
