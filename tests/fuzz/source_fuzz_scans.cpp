// libFuzzer target for the module and procedure scans: the input becomes a standard module (and,
// by its first byte, a class module too) of an editor in memory; the project scan, the module
// scan and the procedure scan at a caret chosen by the input run over it. Nothing may crash,
// hang or read out of bounds, and nothing may escape as an exception.
//
// Not part of the default build. To build and run it with clang, from the repository's root:
//   clang++ -std=c++20 -g -O1 -fsanitize=fuzzer,address,undefined -I src tests/fuzz/source_fuzz_scans.cpp \
//     src/basic/*.cpp src/source/*.cpp src/settings/*.cpp src/dialogs/*.cpp src/platform/platform.cpp \
//     src/hosts/memory/*.cpp -o source_fuzz_scans
//   ./source_fuzz_scans -max_total_time=60 tests/fuzz/source_corpus
// The input after the first byte is read as UTF-8 Basic source.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "basic/unicode.h"
#include "hosts/memory/memory_host.h"
#include "source/scan_module.h"
#include "source/scan_proc.h"
#include "source/scan_project.h"

using namespace quillet;
using namespace quillet::source;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 1) return 0;
    uint8_t control = data[0];
    Str text = basic::fromUtf8(std::string_view(reinterpret_cast<const char*>(data + 1), size - 1));

    auto vbe = hosts::memory::MemoryVBE::create();
    auto project = vbe->addProject(u"VBAProject", u"C:\\Fuzz.xlsm", u"Excel");
    auto std = project->addComponentText(u"basFuzz", host::vbext_ct_StdModule, text);
    if (control & 1) project->addComponentText(u"clsFuzz", host::vbext_ct_ClassModule, text);
    auto target = (control & 2) && (control & 1) ? project->component(u"clsFuzz") : std;
    auto pane = vbe->openPane(target);
    long count = target->CodeModule()->CountOfLines();
    long line = count > 0 ? 1 + (control >> 2) % count : 1;
    pane->SetSelection(line, 1, line, 1);
    vbe->setSelectedComponent(target);

    ProjectScanState state;
    ScanEnv env{*vbe, state, [](const basic::VbError&, const Str&) {}};
    try {
        clsScanProject(env).init();
        clsScanModule(env).init();
        clsScanProc(env).init(true);
        ModuleRemove(state, u"basFuzz");
    } catch (...) {
        std::abort();  // the scans report their failures; none may escape
    }
    return 0;
}
