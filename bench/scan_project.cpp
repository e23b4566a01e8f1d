// The project scan at volume: 500 generated modules of 100 lines (50,000 lines) in the in-memory
// editor. Times (minimum and median of several runs) of merely reading and splitting every
// module's text, of a full project scan, of a ProjectRefresh when nothing changed and when one
// module changed; and the editor calls each makes, counted through the fault host's plan. Not a
// test.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "generated_project.h"
#include "basic/strings.h"
#include "basic/unicode.h"
#include "hosts/fault/fault_plan.h"
#include "hosts/memory/memory_host.h"
#include "platform/scripted_platform.h"
#include "settings/settings.h"
#include "source/project_refresh.h"
#include "source/scan_project.h"

using namespace quillet;
namespace memory = hosts::memory;

namespace {

constexpr int kModules = 500;
constexpr int kLinesPerModule = 100;
constexpr int kRuns = 7;

double milliseconds(const std::function<void()>& work) {
    auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

void report(const char* what, std::vector<double> times, long calls, const std::string& extra = {}) {
    std::sort(times.begin(), times.end());
    std::printf("  %-34s min %8.2f ms  median %8.2f ms  %7ld editor calls%s\n", what, times.front(),
                times[times.size() / 2], calls, extra.c_str());
}

struct Bench {
    std::shared_ptr<memory::MemoryVBE> vbe = memory::MemoryVBE::create();
    std::shared_ptr<memory::MemoryProject> project;
    platform::ScriptedPlatform platform;
    settings::Settings settings{platform};
    source::ProjectScanState state;
    long lines = 0;

    Bench() {
        project = vbe->addProject(u"Bench", u"C:\\Bench\\Bench.xlsm", u"Excel");
        bench::addGeneratedModules(*project, kModules, kLinesPerModule);
        lines = static_cast<long>(kModules) * kLinesPerModule;
    }

    source::ScanEnv scanEnv(host::VBE& editor) {
        return source::ScanEnv{editor, state, [](const basic::VbError&, const basic::Str&) {}};
    }
    source::CodeEnv codeEnv(host::VBE& editor) {
        return source::CodeEnv{editor, platform, settings, state, scanEnv(editor).report, {}, {}, {}, {}, {}};
    }

    // What merely reading and splitting the text costs: one Lines call per module and its split.
    void readAndSplit(host::VBE& editor) {
        auto components = editor.ActiveVBProject()->VBComponents();
        size_t total = 0;
        for (long i = 1; i <= components->Count(); ++i) {
            auto module = components->Item(i)->CodeModule();
            total += basic::Split(module->Lines(1, module->CountOfLines()), u"\r\n").size();
        }
        if (total != static_cast<size_t>(lines)) std::printf("  (read %zu lines)\n", total);
    }
    void fullScan(host::VBE& editor) {
        state.ProjectProcs = source::newCollection<source::C4_ProcDef>();
        source::clsScanProject(scanEnv(editor)).init({}, true);
    }
    long refresh(host::VBE& editor) {
        auto env = codeEnv(editor);
        return source::ProjectRefresh(env);
    }
    void touchOneModule(int run) {
        auto module = project->components().front()->CodeModule();
        module->ReplaceLine(1, u"Option Explicit ' run " + basic::fromUtf8(std::to_string(run)));
    }
};

// Times `work` kRuns times, and counts the editor calls of one more run through the fault host.
template <class F>
void measure(Bench& bench, const char* what, F&& work, const std::function<void()>& before = {}) {
    std::vector<double> times;
    for (int run = 0; run < kRuns; ++run) {
        if (before) before();
        times.push_back(milliseconds([&] { work(*bench.vbe); }));
    }
    auto plan = std::make_shared<hosts::fault::FaultPlan>();
    auto counted = hosts::fault::wrapVBE(bench.vbe, plan);
    if (before) before();
    plan->reset();
    work(*counted);
    std::map<std::string, long> byMember;
    for (const auto& call : plan->log()) ++byMember[call];
    std::string lines = "\n";
    for (const auto& [member, count] : byMember) lines += "      " + member + " " + std::to_string(count) + "\n";
    report(what, times, plan->calls(), lines);
}

}  // namespace

int main() {
    Bench bench;
    std::printf("Project scan: %d modules, %ld lines, %d runs each\n", kModules, bench.lines, kRuns);
    measure(bench, "read and split every module", [&](host::VBE& e) { bench.readAndSplit(e); });
    measure(bench, "full project scan", [&](host::VBE& e) { bench.fullScan(e); });
    bench.fullScan(*bench.vbe);
    measure(bench, "ProjectRefresh, nothing changed", [&](host::VBE& e) {
        long scanned = bench.refresh(e);
        if (scanned != 0) std::printf("  (rescanned %ld modules)\n", scanned);
    });
    int run = 0;
    measure(
        bench, "ProjectRefresh, one module changed",
        [&](host::VBE& e) {
            long scanned = bench.refresh(e);
            if (scanned != 1) std::printf("  (rescanned %ld modules)\n", scanned);
        },
        [&] { bench.touchOneModule(++run); });
    std::printf("  ProjectVars %ld, ProjectConsts %ld, ProjectEnums %ld, ProjectTypes %ld, ProjectProcs %ld\n",
                bench.state.ProjectVars->Count(), bench.state.ProjectConsts->Count(), bench.state.ProjectEnums->Count(),
                bench.state.ProjectTypes->Count(), bench.state.ProjectProcs->Count());
    return 0;
}
