#pragma once
// The add-in fixture with the scan commands registered and the settings in a folder of the
// test's own, where error handler templates can be written.

#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "addin/project_commands.h"
#include "addin_fixture.h"
#include "settings/code_folders.h"

namespace quillet::testing {

class ScanCommandFixture : public AddinFixture {
protected:
    ScanCommandFixture() {
        home = std::filesystem::temp_directory_path() /
               ("quillet-scan-" + std::to_string(::getpid()) + "-" +
                ::testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::remove_all(home);
        std::filesystem::create_directories(home);
        ctx->IniSettings->SettingsFolder = home.string();
        ctx->IniSettings->Environment = [](const std::string&) { return std::nullopt; };
        addin::RegisterScanCommands(*ctx);
    }
    ~ScanCommandFixture() override {
        std::error_code ec;
        std::filesystem::remove_all(home, ec);
    }

    // Writes a file below a folder given in the system's form.
    void writeFile(const Str& systemFolder, const std::string& name, const Str& text) {
        auto folder = *ctx->IniSettings->Files.machinePath(systemFolder);
        std::filesystem::create_directories(folder);
        std::ofstream(folder / name, std::ios::binary) << basic::toUtf8(text);
    }
    void writeErrorHandler(const std::string& name, const Str& text) {
        writeFile(settings::ErrorHandlersFolder(*ctx->IniSettings), name, text);
    }

    std::filesystem::path home;
};

}  // namespace quillet::testing
