// Opening the fragment library: the model of the Fragment Builder's tree (folders, fragments,
// shortcuts with their targets read and checked, the folders tied to libraries in qltrefra.ini)
// built over a generated library of 2,000 fragments in 100 folders, then the same library with
// 200 shortcuts more. The target is under 100 ms. Minimum and median of several runs, and the
// first (cold) run. Not a test.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <unistd.h>

#include "basic/unicode.h"
#include "fragments/fragment_library.h"
#include "fragments/shell_link.h"
#include "platform/scripted_platform.h"
#include "settings/code_folders.h"
#include "settings/ini_vars.h"

using namespace quillet;
namespace fs = std::filesystem;
using basic::Str;

namespace {

constexpr int kFolders = 100;
constexpr int kFragmentsPerFolder = 20;
constexpr int kShortcutsPerFolder = 2;
constexpr int kRuns = 11;

void writeFile(const fs::path& path, const std::string& bytes) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string folderName(int f) { return "Category " + std::to_string(f); }

// Fragments, and with shortcuts each folder's links to two fragments of the folder before it.
void generate(settings::Settings& settings, const fs::path& library, bool shortcuts) {
    Str systemLibrary = settings::FragmentsFolder(settings);
    for (int f = 0; f < kFolders; ++f) {
        for (int n = 0; n < kFragmentsPerFolder; ++n)
            writeFile(library / folderName(f) / ("Fragment " + std::to_string(n) + ".bas"),
                      "Dim {STRING:strName}\r\nstrName = \"x\"\r\n");
        if (!shortcuts) continue;
        Str folder = systemLibrary + u"\\" + basic::fromUtf8(folderName(f));
        for (int s = 0; s < kShortcutsPerFolder; ++s) {
            Str target = systemLibrary + u"\\" + basic::fromUtf8(folderName((f + kFolders - 1) % kFolders)) +
                         u"\\Fragment " + basic::fromUtf8(std::to_string(s)) + u".bas";
            writeFile(library / folderName(f) / ("Link " + std::to_string(s) + ".lnk"),
                      fragments::WriteShellLink(fragments::ShellLinkTo(target, folder)));
        }
    }
}

void measure(const char* what, settings::Settings& settings, const std::vector<Str>& references) {
    std::vector<double> times;
    size_t entries = 0;
    for (int run = 0; run < kRuns; ++run) {
        auto start = std::chrono::steady_clock::now();
        fragments::FragmentLibrary library = fragments::OpenFragmentLibrary(settings, references);
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
        entries = 0;
        for (const auto& folder : library.Root.Folders) entries += folder.Entries.size();
    }
    double cold = times.front();
    std::sort(times.begin(), times.end());
    std::printf("  %-34s %5zu entries  cold %7.2f ms  min %7.2f ms  median %7.2f ms\n", what, entries, cold,
                times.front(), times[times.size() / 2]);
}

}  // namespace

int main() {
    fs::path root = fs::temp_directory_path() / ("quillet-bench-fragments-" + std::to_string(::getpid()));
    platform::ScriptedPlatform platform;
    settings::Settings settings(platform);
    settings.SettingsFolder = root.string();
    settings.Environment = [](const std::string&) { return std::nullopt; };
    settings::SetDefaults(settings);
    fs::path library = root / "quillet" / "Fragments";
    // Ten folders tied to libraries; the project refers to half of them.
    std::string ties = "[fragments/reference]\r\n";
    for (int f = 0; f < 10; ++f) ties += folderName(f * 10) + "=Lib" + std::to_string(f) + "\r\n";
    writeFile(root / "qltrefra.ini", ties);
    std::vector<Str> references = {u"VBA", u"Excel", u"Lib0", u"Lib2", u"Lib4", u"Lib6", u"Lib8"};

    std::printf("fragment_library_open: %d folders of %d fragments\n", kFolders, kFragmentsPerFolder);
    generate(settings, library, false);
    measure("fragments only", settings, references);
    generate(settings, library, true);
    measure("with 200 shortcuts", settings, references);
    std::error_code ec;
    fs::remove_all(root, ec);
    return 0;
}
