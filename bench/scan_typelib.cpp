// Reading and scanning type libraries: the largest library found (by file size) and the five
// largest together, as a project with those references would scan them at its load. Each is
// read afresh (a new reader) and scanned with clsScanTLI; prints the minimum and median time.
// Libraries come from the folders given on the command line, else from Wine's system folder.
// Not a test.
//
//   build/bench/scan_typelib [FOLDER]...

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "basic/unicode.h"
#include "typelib/cls_scan_tli.h"
#include "typelib/msft_file.h"
#include "typelib/msft_reader.h"
#include "typelib/pe_resource.h"

using namespace quillet;
namespace fs = std::filesystem;

namespace {

constexpr int kRuns = 11;

struct Library {
    std::string path;
    std::uintmax_t size;
};

// The library files of the folders that read, the largest type library first.
std::vector<Library> librariesIn(const std::vector<std::string>& folders) {
    std::vector<Library> found;
    for (const std::string& folder : folders) {
        std::error_code ec;
        for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
            std::string ext = it->path().extension().string();
            if (ext != ".tlb" && ext != ".olb" && ext != ".dll" && ext != ".ocx" && ext != ".exe") continue;
            try {
                long number = 0;
                std::string file;
                std::vector<std::uint8_t> bytes = typelib::ReadLibraryFile(it->path().string(), number, file);
                typelib::ByteView view(bytes.data(), bytes.size());
                if (typelib::LooksLikePeFile(view)) view = typelib::TypeLibResource(view, 0);
                typelib::ParseMsft(view);
                found.push_back({it->path().string(), view.size()});
            } catch (const typelib::TypeLibError&) {
            }
        }
    }
    std::sort(found.begin(), found.end(), [](const Library& a, const Library& b) { return a.size > b.size; });
    return found;
}

// Milliseconds of one scan of the libraries with a fresh reader; the procedures it found.
double scanOnce(const std::vector<Library>& libraries, const std::vector<std::string>& folders, long& procedures) {
    auto start = std::chrono::steady_clock::now();
    typelib::MsftReader reader(folders);
    typelib::clsScanTLI scan(reader);
    typelib::LibraryLists lists;
    for (const Library& library : libraries) {
        std::string name = fs::path(library.path).stem().string();
        scan.TLI_Get(basic::fromUtf8(name), basic::fromUtf8(library.path), lists);
    }
    procedures = lists.Procedures.Count() + lists.Classes.Count() + lists.Enums.Count();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

void report(const char* title, const std::vector<Library>& libraries, const std::vector<std::string>& folders) {
    std::vector<double> times;
    long items = 0;
    for (int i = 0; i < kRuns; ++i) times.push_back(scanOnce(libraries, folders, items));
    std::sort(times.begin(), times.end());
    std::uintmax_t bytes = 0;
    for (const Library& library : libraries) bytes += library.size;
    std::printf("%s: %zu file(s), %.0f KB of type library, %ld records: min %.1f ms, median %.1f ms\n", title, libraries.size(),
                static_cast<double>(bytes) / 1024.0, items, times.front(), times[times.size() / 2]);
    for (const Library& library : libraries) std::printf("  %s\n", library.path.c_str());
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> folders(argv + 1, argv + argc);
    if (folders.empty()) folders = {"/usr/lib/x86_64-linux-gnu/wine/x86_64-windows"};
    std::vector<Library> libraries = librariesIn(folders);
    if (libraries.empty()) {
        std::printf("no type libraries in the folders given\n");
        return 1;
    }
    report("largest library", {libraries.front()}, folders);
    std::vector<Library> five(libraries.begin(), libraries.begin() + std::min<std::size_t>(5, libraries.size()));
    report("five largest libraries", five, folders);
    return 0;
}
