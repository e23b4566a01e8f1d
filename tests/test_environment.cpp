// Every test of this program keeps its settings in a folder of its own, never in the user's.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace {

class SettingsHomeEnvironment : public ::testing::Environment {
public:
    void SetUp() override {
        home_ = std::filesystem::temp_directory_path() / ("quillet-tests-" + std::to_string(::getpid()));
        std::filesystem::create_directories(home_);
        ::setenv("QUILLET_HOME", home_.string().c_str(), 1);
    }
    void TearDown() override {
        std::error_code ignored;
        std::filesystem::remove_all(home_, ignored);
    }

private:
    std::filesystem::path home_;
};

[[maybe_unused]] ::testing::Environment* const kSettingsHome =
    ::testing::AddGlobalTestEnvironment(new SettingsHomeEnvironment);

}  // namespace
