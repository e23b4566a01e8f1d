// The Procedure Builder's model opening at volume: 500 generated modules of 100 lines in the
// in-memory editor, the add-in started on them as the quillet tool starts it (settings in a
// scratch folder), then "Add Procedure" opened and cancelled several times. Prints the minimum
// and median time of an opening and the editor calls it makes. The window's part is timed under
// Wine by the harness (quillet_wine_harness --bench-dialog). Not a test.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <map>
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

std::shared_ptr<memory::MemoryVBE> generatedEditor() {
    auto vbe = memory::MemoryVBE::create();
    auto project = vbe->addProject(u"Bench", u"C:\\Bench\\Bench.xlsm", u"Excel");
    auto first = bench::addGeneratedModules(*project, kModules, kLinesPerModule);
    vbe->openPane(first)->SetSelection(1, 1, 1, 1);
    return vbe;
}

}  // namespace

int main() {
    auto folder = std::filesystem::temp_directory_path() / "quillet-bench-builder";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    auto vbe = generatedEditor();
    auto plan = std::make_shared<hosts::fault::FaultPlan>();
    auto counted = hosts::fault::wrapVBE(vbe, plan);
    core::Context ctx(counted, std::make_shared<platform::ScriptedPlatform>());
    ctx.IniSettings->SettingsFolder = folder.string();
    addin::AddInInitialize(ctx, false);
    addin::ProjectInitialize(ctx, true);

    std::vector<double> times;
    long calls = 0;
    std::map<std::string, long> members;
    for (int run = 0; run < kRuns; ++run) {
        plan->reset();
        long before = plan->calls();
        auto start = std::chrono::steady_clock::now();
        bool opened = ctx.Forms->Open(u"frmProcedure");
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
        calls = plan->calls() - before;
        members.clear();
        for (const auto& member : plan->log()) ++members[member];
        if (!opened || !ctx.Forms->Top()) {
            std::printf("the Procedure Builder did not open\n");
            return 1;
        }
        ctx.Forms->Raise([&] { ctx.Forms->Top()->Controls(u"cmdCancel").Click(); });
    }
    std::sort(times.begin(), times.end());
    std::printf("Procedure Builder model opening, %d modules x %d lines:\n", kModules, kLinesPerModule);
    std::printf("  min %.2f ms  median %.2f ms  %ld editor calls\n", times.front(), times[times.size() / 2], calls);
    std::vector<std::pair<long, std::string>> busiest;
    for (const auto& [member, count] : members) busiest.push_back({count, member});
    std::sort(busiest.rbegin(), busiest.rend());
    for (size_t i = 0; i < busiest.size() && i < 8; ++i)
        std::printf("  %6ld  %s\n", busiest[i].first, busiest[i].second.c_str());
    std::filesystem::remove_all(folder);
    return 0;
}
