// The Property and Class Builders' models opening at volume: the 500-module generated project
// in the in-memory editor, the add-in started on it, each builder opened and cancelled several
// times ("Add Property..." with the caret on a word, so that the name is picked up too). Prints
// the minimum and median time of an opening and its editor calls. Not a test.

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
#include "hosts/fault/fault_plan.h"
#include "platform/scripted_platform.h"

using namespace quillet;

namespace {

constexpr int kModules = 500;
constexpr int kLinesPerModule = 100;
constexpr int kRuns = 9;

struct Opening {
    double minimum = 0, median = 0;
    long calls = 0;
    bool opened = true;
    // The editor members the last opening called most, with their counts.
    std::vector<std::pair<long, std::string>> busiest;
};

Opening timeOpening(core::Context& ctx, hosts::fault::FaultPlan& plan, const basic::Str& form) {
    Opening result;
    std::vector<double> times;
    for (int run = 0; run < kRuns && result.opened; ++run) {
        plan.reset();
        long before = plan.calls();
        auto start = std::chrono::steady_clock::now();
        result.opened = ctx.Forms->Open(form) && ctx.Forms->Top();
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
        result.calls = plan.calls() - before;
        std::map<std::string, long> members;
        for (const auto& member : plan.log()) ++members[member];
        result.busiest.clear();
        for (const auto& [member, count] : members) result.busiest.push_back({count, member});
        // The Class Builder asks before it drops what was entered; an empty one closes at once.
        if (result.opened) ctx.Forms->Raise([&] { ctx.Forms->Top()->Controls(u"cmdCancel").Click(); });
    }
    std::sort(result.busiest.rbegin(), result.busiest.rend());
    if (result.busiest.size() > 4) result.busiest.resize(4);
    std::sort(times.begin(), times.end());
    result.minimum = times.front();
    result.median = times[times.size() / 2];
    return result;
}

}  // namespace

int main() {
    auto folder = std::filesystem::temp_directory_path() / "quillet-bench-property-class";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    auto vbe = hosts::memory::MemoryVBE::create();
    auto project = vbe->addProject(u"Bench", u"C:\\Bench\\Bench.xlsm", u"Excel");
    auto first = bench::addGeneratedModules(*project, kModules, kLinesPerModule);
    // The caret on a word of the first module's third line.
    vbe->openPane(first)->SetSelection(3, 5, 3, 5);
    auto plan = std::make_shared<hosts::fault::FaultPlan>();
    core::Context ctx(hosts::fault::wrapVBE(vbe, plan), std::make_shared<platform::ScriptedPlatform>());
    ctx.IniSettings->SettingsFolder = folder.string();
    addin::AddInInitialize(ctx, false);
    addin::ProjectInitialize(ctx, true);

    int status = 0;
    std::printf("Builder model opening, %d modules x %d lines:\n", kModules, kLinesPerModule);
    for (const char16_t* form : {u"frmProperty", u"frmClass"}) {
        Opening o = timeOpening(ctx, *plan, form);
        std::string name = basic::toUtf8(form);
        if (!o.opened) {
            std::printf("  %s did not open\n", name.c_str());
            status = 1;
            continue;
        }
        std::printf("  %-12s min %.2f ms  median %.2f ms  %ld editor calls\n", name.c_str(), o.minimum, o.median, o.calls);
        for (const auto& [count, member] : o.busiest) std::printf("    %6ld  %s\n", count, member.c_str());
    }
    std::filesystem::remove_all(folder);
    return status;
}
