// The Wine harness: plays the editor for Quillet.dll. It registers the DLL, finds it under the
// editor's add-in key, creates it through its ProgID, connects it to an in-memory editor
// wrapped as COM objects, disconnects it, proves every object it was handed was released, and
// unregisters it, leaving the registry as it found it.
//
//     quillet_wine_harness.exe Z:\path\to\Quillet.dll [--scripts DIR] [--pictures DIR]
//     quillet_wine_harness.exe Z:\path\to\Quillet.dll --pictures-only --pictures DIR
//     quillet_wine_harness.exe Z:\path\to\Quillet.dll --bench-dialog
//     quillet_wine_harness.exe C:\...\Quillet.dll --installed
//
// --scripts plays the builders' UI scripts of DIR on the real dialog windows; --pictures takes
// pictures of the builders into DIR; --bench-dialog only times the opening of the Procedure
// Builder on a large project. With --installed the DLL was registered by the installer: the
// harness checks that registration and connects the add-in through it, and leaves the
// registration alone.

#include <windows.h>

#include <cstdio>

#include "addin_loader.h"
#include "box_answerer.h"
#include "dialog_scenarios.h"
#include "fake_editor.h"
#include "harness.h"
#include "hosts/memory/memory_host.h"
#include "registry_snapshot.h"
#include "scenarios.h"

using namespace quillet;
using namespace quillet::wine;

namespace {

RegistrySnapshot registryPicture() {
    RegistrySnapshot all = snapshot(HKEY_CURRENT_USER, L"HKCU", L"Software\\Microsoft");
    all.merge(snapshot(HKEY_CURRENT_USER, L"HKCU", L"Software\\Classes"));
    all.merge(snapshot(HKEY_LOCAL_MACHINE, L"HKLM", L"Software\\Classes"));
    return all;
}

void checkRegistration(Checks& c) {
    auto addins = readAddins(editorAddinsKey());
    const AddinListing* quillet = nullptr;
    for (const auto& a : addins) {
        if (a.progId == L"Quillet.Connect") quillet = &a;
    }
    c.check(quillet != nullptr, "the editor's add-in key lists Quillet.Connect", narrow(editorAddinsKey()));
    if (!quillet) return;
    c.check(quillet->friendlyName == L"Quillet", "FriendlyName is \"Quillet\"", narrow(quillet->friendlyName));
    c.check(quillet->loadBehavior == 3, "LoadBehavior is 3", std::to_string(quillet->loadBehavior));
    c.check(!quillet->description.empty() && quillet->description.find(L'\n') == std::wstring::npos,
            "Description is one line", narrow(quillet->description));
    if (sizeof(void*) == 4) {
        auto vb6 = readAddins(L"Software\\Microsoft\\Visual Basic\\6.0\\Addins");
        bool listed = false;
        for (const auto& a : vb6) listed = listed || (a.progId == L"Quillet.Connect" && a.loadBehavior == 3);
        c.check(listed, "the VB6 IDE's add-in key lists Quillet.Connect");
    }
    const wchar_t* connectors[][2] = {{L"Excel", L"Quillet2Excel"}, {L"Word", L"Quillet2Word"}, {L"Access", L"Quillet2Access"}};
    for (auto& [app, name] : connectors) {
        bool listed = false;
        for (const auto& a : readAddins(std::wstring(L"Software\\Microsoft\\Office\\") + app + L"\\Addins")) {
            listed = listed || (a.friendlyName == name && a.description == L"Add-In Project Template" && a.loadBehavior == 3);
        }
        c.check(listed, narrow(std::wstring(app)) + "'s add-in key lists " + narrow(std::wstring(name)));
    }
}

struct Options {
    bool installed = false;
    bool benchDialog = false;
    bool picturesOnly = false;
    std::wstring scripts;
    std::wstring pictures;
};

Options parseOptions(int argc, wchar_t** argv) {
    Options options;
    for (int i = 2; i < argc; ++i) {
        std::wstring arg = argv[i];
        if (arg == L"--installed") options.installed = true;
        else if (arg == L"--bench-dialog") options.benchDialog = true;
        else if (arg == L"--pictures-only") options.picturesOnly = true;
        else if (arg == L"--scripts" && i + 1 < argc) options.scripts = argv[++i];
        else if (arg == L"--pictures" && i + 1 < argc) options.pictures = argv[++i];
    }
    return options;
}

}  // namespace

// The add-in as an installer left it: registered, found and connected.
int runInstalled(Checks& c) {
    checkRegistration(c);
    runConnectionScenarios(c);
    std::printf("%s: %d passed, %d failed\n", c.failed() ? "FAILED" : "PASSED", c.passed(), c.failed());
    return c.failed() ? 1 : 0;
}

int wmain(int argc, wchar_t** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: quillet_wine_harness Quillet.dll\n");
        return 2;
    }
    std::printf("Quillet Wine harness, %d-bit\n", static_cast<int>(sizeof(void*) * 8));
    Checks c;
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    {
        BoxAnswerer boxes;
        AddinDll dll(argv[1]);
        c.check(dll.loaded(), "Quillet.dll loads", narrow(std::wstring(argv[1])));
        if (!dll.loaded()) return 1;
        Options options = parseOptions(argc, argv);
        if (options.installed) return runInstalled(c);
        // A run that stopped half-way leaves its registration behind: start from a clean state.
        if (!readAddins(editorAddinsKey()).empty()) {
            c.note("removing the registration an earlier run left behind");
            dll.unregisterServer();
        }
        RegistrySnapshot before = registryPicture();
        for (const char* name : {"DllRegisterServer", "DllUnregisterServer", "DllGetClassObject", "DllCanUnloadNow"}) {
            c.check(dll.exports(name), std::string("exports ") + name);
        }
        HRESULT hr = dll.registerServer();
        c.check(hr == S_OK, "DllRegisterServer succeeds", hex(hr));
        checkRegistration(c);

        auto timed = [&c](const char* what, void (*run)(Checks&)) {
            ULONGLONG start = GetTickCount64();
            run(c);
            c.note(std::string(what) + " scenarios took " + std::to_string((GetTickCount64() - start) / 1000.0) + " s");
        };
        if (options.benchDialog) {
            benchDialogOpen(c, boxes, 9, 5);
            benchDialogOpen(c, boxes, 9, 500);
        } else if (options.picturesOnly) {
            takeDialogPictures(c, boxes, options.pictures);
        } else {
            timed("connection", runConnectionScenarios);
            timed("timer", runTimerScenarios);
            timed("bar", runBarScenarios);
            timed("fault", runFaultScenarios);
            timed("view", runViewScenarios);
            ULONGLONG start = GetTickCount64();
            if (!options.scripts.empty()) runDialogScenarios(c, boxes, options.scripts);
            if (!options.pictures.empty()) takeDialogPictures(c, boxes, options.pictures);
            c.note("dialog scenarios took " + std::to_string((GetTickCount64() - start) / 1000.0) + " s");
        }

        CoFreeUnusedLibraries();
        c.check(dll.canUnloadNow() == S_OK, "DllCanUnloadNow once everything is released");
        hr = dll.unregisterServer();
        c.check(hr == S_OK, "DllUnregisterServer succeeds", hex(hr));
        auto diff = difference(before, registryPicture());
        c.check(diff.empty(), "the registry is as before registration", std::to_string(diff.size()) + " lines differ");
        for (size_t i = 0; i < diff.size() && i < 20; ++i) c.note(narrow(diff[i]));
        c.note(std::to_string(boxes.answered().size()) + " message boxes answered");
        for (size_t i = 0; i < boxes.answered().size() && i < 3; ++i) c.note(narrow(boxes.answered()[i]));
    }
    CoUninitialize();
    std::printf("%s: %d passed, %d failed\n", c.failed() ? "FAILED" : "PASSED", c.passed(), c.failed());
    return c.failed() ? 1 : 0;
}
