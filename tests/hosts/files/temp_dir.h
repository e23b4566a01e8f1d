#pragma once
// A fresh folder under the system's temporary folder, removed with everything in it at the end
// of the test; and small file helpers for the file host's and the tool's tests.

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

#include <unistd.h>

namespace quillet::hosts::files::testing {

class TempDir {
public:
    TempDir() {
        static std::atomic<int> counter{0};
        auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
        path_ = std::filesystem::temp_directory_path() /
                ("quillet-test-" + std::to_string(::getpid()) + "-" + std::to_string(stamp) + "-" +
                 std::to_string(counter++));
        std::filesystem::create_directories(path_);
    }
    ~TempDir() {
        std::error_code ec;
        std::filesystem::remove_all(path_, ec);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

    void write(const std::string& name, const std::string& bytes) const {
        std::ofstream out(path_ / name, std::ios::binary);
        out << bytes;
    }
    std::string read(const std::string& name) const {
        std::ifstream in(path_ / name, std::ios::binary);
        std::ostringstream content;
        content << in.rdbuf();
        return content.str();
    }
    bool exists(const std::string& name) const { return std::filesystem::exists(path_ / name); }
    // Every file name in the folder, sorted.
    std::string listing() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_)) names.insert(entry.path().filename().string());
        std::string out;
        for (const auto& name : names) out += name + "\n";
        return out;
    }
    // Sets every file's modification time far in the past, so that a rewrite shows.
    void ageFiles() const {
        for (const auto& entry : std::filesystem::directory_iterator(path_)) {
            std::filesystem::last_write_time(entry.path(), std::filesystem::file_time_type::clock::now() -
                                                                 std::chrono::hours(24));
        }
    }
    std::filesystem::file_time_type mtime(const std::string& name) const {
        return std::filesystem::last_write_time(path_ / name);
    }

private:
    std::filesystem::path path_;
};

}  // namespace quillet::hosts::files::testing
