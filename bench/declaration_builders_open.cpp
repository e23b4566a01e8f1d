// The declaration builders' models opening at volume: 500 generated modules of 100 lines in the
// in-memory editor, the add-in started on them as the quillet tool starts it, the caret in a
// procedure of the first module; each builder (and the quick input box) opened and cancelled
// several times. Prints the
// minimum and median time of an opening and the editor calls it makes. Not a test.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "generated_project.h"
#include "core/context.h"
#include "addin/lifecycle.h"
#include "basic/unicode.h"
#include "hosts/fault/fault_plan.h"
#include "hosts/memory/memory_host.h"
#include "platform/scripted_platform.h"

using namespace quillet;
namespace memory = hosts::memory;

namespace {

constexpr int kModules = 500;
constexpr int kLinesPerModule = 100;
constexpr int kRuns = 9;

// A line of the module that belongs to a procedure's body, 1 when there is none.
long lineInAProcedure(host::CodeModule& module) {
    for (long line = module.CountOfLines(); line >= 1; --line) {
        long kind = 0;
        basic::Str name = module.ProcOfLine(line, kind);
        if (!name.empty() && line > module.ProcBodyLine(name, kind)) return line;
    }
    return 1;
}

}  // namespace

int main() {
    auto folder = std::filesystem::temp_directory_path() / "quillet-bench-declarations";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    auto vbe = memory::MemoryVBE::create();
    auto project = vbe->addProject(u"Bench", u"C:\\Bench\\Bench.xlsm", u"Excel");
    auto first = bench::addGeneratedModules(*project, kModules, kLinesPerModule);
    auto pane = vbe->openPane(first);
    long line = lineInAProcedure(*first->CodeModule());
    pane->SetSelection(line, 5, line, 5);
    auto plan = std::make_shared<hosts::fault::FaultPlan>();
    auto counted = hosts::fault::wrapVBE(vbe, plan);
    core::Context ctx(counted, std::make_shared<platform::ScriptedPlatform>());
    ctx.IniSettings->SettingsFolder = folder.string();
    addin::AddInInitialize(ctx, false);
    addin::ProjectInitialize(ctx, true);

    std::printf("Declaration builders' model opening, %d modules x %d lines, caret at line %ld:\n", kModules,
                kLinesPerModule, line);
    struct Opening {
        const char16_t* form;
        std::vector<basic::Str> args;
    };
    const std::vector<Opening> openings = {
        {u"frmVar", {}}, {u"frmConst", {}}, {u"frmInputBox", {u"Dim", u"Long"}}, {u"frmEnumOrType", {u"Enum"}}};
    for (const auto& [form, args] : openings) {
        std::vector<double> times;
        long calls = 0;
        for (int run = 0; run < kRuns; ++run) {
            plan->reset();
            long before = plan->calls();
            auto start = std::chrono::steady_clock::now();
            bool opened = ctx.Forms->Open(form, args);
            times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
            calls = plan->calls() - before;
            if (!opened || !ctx.Forms->Top()) {
                std::printf("%s did not open\n", basic::toUtf8(form).c_str());
                return 1;
            }
            ctx.Forms->Raise([&] { ctx.Forms->Top()->Controls(u"cmdCancel").Click(); });
        }
        std::sort(times.begin(), times.end());
        std::printf("  %-18s min %.2f ms  median %.2f ms  %ld editor calls\n", basic::toUtf8(form).c_str(), times.front(),
                    times[times.size() / 2], calls);
    }
    std::filesystem::remove_all(folder);
    return 0;
}
