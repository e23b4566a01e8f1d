// Line numbers over one generated module of 5,000 lines, the whole module selected: the time of
// the numbering rules alone (our own time: old numbers off, new numbers on, over the lines in
// memory), and of the commands "Line Numbers Add" and "Line Numbers Remove" through the editor in
// memory (reading the module, the rules, the one change written back, the selection), with the
// editor calls each makes. Minimum and median of several runs. Not a test.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "core/context.h"
#include "generated_project.h"
#include "hosts/fault/fault_plan.h"
#include "platform/scripted_platform.h"
#include "source/module_text.h"
#include "tools/line_numbers.h"
#include "tools/numbering_text.h"

using namespace quillet;
namespace memory = hosts::memory;

namespace {

constexpr int kLines = 5000;
constexpr int kRuns = 9;

double milliseconds(const std::function<void()>& work) {
    auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

void report(const char* what, std::vector<double> times, const std::string& extra = {}) {
    std::sort(times.begin(), times.end());
    std::printf("  %-40s min %8.2f ms  median %8.2f ms%s\n", what, times.front(), times[times.size() / 2],
                extra.c_str());
}

struct Bench {
    std::shared_ptr<memory::MemoryVBE> vbe = memory::MemoryVBE::create();
    std::shared_ptr<memory::MemoryComponent> component;
    std::vector<basic::Str> original;

    Bench() {
        auto project = vbe->addProject(u"Bench", u"C:\\Bench\\Bench.xlsm", u"Excel");
        component = bench::addGeneratedModules(*project, 1, kLines);
        if (!component) component = project->components().front();  // the module came out a class
        auto module = component->CodeModule();
        source::ModuleText text(*module);
        for (long n = 1; n <= text.CountOfLines(); ++n) original.push_back(text.line(n));
        vbe->openPane(component);
        selectAll();
    }
    void selectAll() { vbe->ActiveCodePane()->SetSelection(1, 1, kLines, 1); }
    void restore() {
        auto module = component->CodeModule();
        module->DeleteLines(1, module->CountOfLines());
        module->InsertLines(1, basic::Join(original, u"\r\n"));
        selectAll();
    }
};

// Runs the command kRuns times on the original module, and once more through the fault host to
// count its editor calls.
void measureCommand(Bench& bench, const char* what, const std::function<void(core::Context&)>& command,
                    bool numberedFirst) {
    auto platform = std::make_shared<platform::ScriptedPlatform>();
    std::vector<double> times;
    for (int run = 0; run <= kRuns; ++run) {
        bench.restore();
        auto plan = std::make_shared<hosts::fault::FaultPlan>();
        bool counting = run == kRuns;
        core::Context ctx(counting ? hosts::fault::wrapVBE(bench.vbe, plan) : host::VBEPtr(bench.vbe), platform);
        if (numberedFirst) {
            long base = 0;
            tools::ReplaceLines(ctx, base);
        }
        plan->reset();
        double ms = milliseconds([&] { command(ctx); });
        if (!counting) {
            times.push_back(ms);
            continue;
        }
        report(what, times, "  " + std::to_string(plan->calls()) + " editor calls");
    }
}

}  // namespace

int main() {
    Bench bench;
    std::printf("Line numbers: one module of %d lines, all selected, %d runs each\n", kLines, kRuns);
    long declarations = bench.component->CodeModule()->CountOfDeclarationLines();
    std::vector<double> rules;
    for (int run = 0; run < kRuns; ++run) {
        std::vector<basic::Str> lines = bench.original;
        rules.push_back(milliseconds([&] {
            tools::NumberingRange range{1, kLines, declarations};
            tools::RemoveLineNumbers(lines, range);
            tools::AddLineNumbers(lines, range, 0);
        }));
    }
    report("numbering rules alone (our own time)", rules);
    measureCommand(bench, "Line Numbers Add, editor in memory", [](core::Context& ctx) {
        long base = 0;
        tools::ReplaceLines(ctx, base);
    }, false);
    measureCommand(bench, "Line Numbers Remove, editor in memory", [](core::Context& ctx) { tools::UnReplaceLines(ctx); },
                   true);
    return 0;
}
