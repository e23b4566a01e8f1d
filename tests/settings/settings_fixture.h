#pragma once
// A settings environment on a fresh temporary folder: drive T: of the system's paths is that
// folder, and the root folder is T:\root.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "basic/unicode.h"
#include "platform/scripted_platform.h"
#include "settings/settings.h"

namespace quillet::settings::testing {

using basic::Str;

class SettingsTest : public ::testing::Test {
protected:
    SettingsTest() : settings(platform) {
        std::random_device rd;
        dir = std::filesystem::temp_directory_path() /
              ("quillet-settings-" + std::to_string(rd()) + "-" + std::to_string(rd()));
        std::filesystem::create_directories(dir / "root");
        settings.Files.mapDrive(u'T', dir);
        settings.SettingsFolder = (dir / "root").string();
        settings.Environment = [](const std::string&) { return std::nullopt; };
    }
    ~SettingsTest() override {
        std::error_code ec;
        std::filesystem::permissions(dir, std::filesystem::perms::owner_all, std::filesystem::perm_options::add, ec);
        std::filesystem::remove_all(dir, ec);
    }

    // Machine path of a file below the temporary folder ("root/qltusr.ini").
    std::filesystem::path machine(const std::string& relative) const { return dir / relative; }
    void writeBytes(const std::string& relative, const std::string& bytes) const {
        std::filesystem::create_directories(machine(relative).parent_path());
        std::ofstream out(machine(relative), std::ios::binary);
        out << bytes;
    }
    std::string readBytes(const std::string& relative) const {
        std::ifstream in(machine(relative), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    bool exists(const std::string& relative) const { return std::filesystem::exists(machine(relative)); }

    std::filesystem::path dir;
    platform::ScriptedPlatform platform;
    Settings settings;
};

inline std::string bytes(const Str& text) { return basic::toUtf8(text); }

}  // namespace quillet::settings::testing
