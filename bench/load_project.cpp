// Loads a generated project of 500 modules and 50,000 lines from disk into the in-memory
// editor, runs one quick command in it and writes back what changed; prints the times
// (minimum and median of several runs) and the peak memory. Not a test.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include <unistd.h>

#include "core/context.h"
#include "addin/quillet_handle.h"
#include "hosts/files/file_project.h"
#include "hosts/memory/code_pane.h"
#include "hosts/memory/components.h"
#include "hosts/memory/vbe.h"
#include "platform/scripted_platform.h"

namespace fs = std::filesystem;
using namespace quillet;

namespace {

constexpr int kModules = 500;
constexpr int kProceduresPerModule = 10;  // 10 lines each: 100 lines a module, 50,000 in all
constexpr int kRuns = 7;

std::string moduleText(int index) {
    std::string text = "Attribute VB_Name = \"basModule" + std::to_string(index) + "\"\r\n";
    for (int p = 0; p < kProceduresPerModule; ++p) {
        std::string name = "Procedure" + std::to_string(p);
        text += "Public Function " + name + "(ByVal amount As Double) As Double\r\n";
        text += "Attribute " + name + ".VB_Description = \"Computes a figure\"\r\n";
        text += "    ' Caf\xE9 total for the module\r\n";
        text += "    ' Rounded as the ledger rounds\r\n";
        text += "    Dim result As Double\r\n";
        text += "\r\n";
        text += "    result = amount * 1.2\r\n";
        text += "    If result > 100 Then result = 100\r\n";
        text += "    " + name + " = result\r\n";
        text += "End Function\r\n";
        text += "\r\n";
    }
    return text;
}

void writeModule(const fs::path& folder, int index) {
    std::ofstream(folder / ("basModule" + std::to_string(index) + ".bas"), std::ios::binary) << moduleText(index);
}

double milliseconds(const std::function<void()>& work) {
    auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

struct Figures {
    std::vector<double> load, command, save;
};

void report(const char* what, std::vector<double> times) {
    std::sort(times.begin(), times.end());
    std::printf("  %-28s min %8.2f ms   median %8.2f ms\n", what, times.front(), times[times.size() / 2]);
}

std::string peakMemory() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.rfind("VmHWM:", 0) == 0) return line.substr(6);
    }
    return " unknown";
}

}  // namespace

int main() {
    fs::path folder = fs::temp_directory_path() / ("quillet-bench-" + std::to_string(::getpid()));
    fs::create_directories(folder);
    for (int i = 0; i < kModules; ++i) writeModule(folder, i);

    Figures figures;
    long lines = 0;
    for (int run = 0; run < kRuns; ++run) {
        auto vbe = hosts::memory::MemoryVBE::create();
        std::unique_ptr<hosts::files::FileProject> project;
        figures.load.push_back(milliseconds([&] { project = hosts::files::FileProject::load(vbe, folder); }));
        lines = 0;
        for (const auto& component : project->project()->components()) lines += static_cast<long>(component->lines().size());

        auto platform = std::make_shared<platform::ScriptedPlatform>();
        core::Context ctx(vbe, platform);
        auto module = project->project()->component(u"basModule250");
        vbe->openPane(module)->SetSelection(55, 5, 55, 5);  // the blank line of Procedure5
        vbe->setSelectedComponent(module);
        figures.command.push_back(milliseconds([&] { addin::QuilletHandle(ctx, u"If Then", u""); }));

        size_t written = 0;
        figures.save.push_back(milliseconds([&] { written = project->save().size(); }));
        if (written != 1) std::fprintf(stderr, "expected one file written, got %zu\n", written);
        writeModule(folder, 250);
    }
    fs::remove_all(folder);

    std::printf("Project: %d modules, %ld lines (%d runs)\n", kModules, lines, kRuns);
    report("load from disk", figures.load);
    report("QuilletHandle \"If Then\"", figures.command);
    report("write back (1 file changed)", figures.save);
    std::printf("  peak resident memory (VmHWM):%s\n", peakMemory().c_str());
    return 0;
}
