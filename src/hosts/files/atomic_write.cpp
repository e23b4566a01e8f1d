#include "hosts/files/atomic_write.h"

#include <cstdio>
#include <random>

#include "hosts/files/project_error.h"
#include "hosts/files/text_file.h"

#ifndef _WIN32
#include <unistd.h>
#endif

namespace quillet::hosts::files {

namespace {

std::filesystem::path temporaryNameFor(const std::filesystem::path& target) {
    std::random_device random;
    std::filesystem::path temporary = target;
    temporary += ".quillet-" + std::to_string(random() % 1000000000u) + ".tmp";
    return temporary;
}

// Writes and flushes to the disk; false on any failure.
bool writeAndFlush(const std::filesystem::path& path, std::string_view bytes) {
#ifdef _WIN32
    std::FILE* file = ::_wfopen(path.c_str(), L"wb");
#else
    std::FILE* file = std::fopen(path.c_str(), "wb");
#endif
    if (!file) return false;
    bool ok = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    ok = std::fflush(file) == 0 && ok;
#ifndef _WIN32
    ok = ::fsync(::fileno(file)) == 0 && ok;
#endif
    return std::fclose(file) == 0 && ok;
}

}  // namespace

void writeFileAtomically(const std::filesystem::path& target, std::string_view bytes) {
    std::filesystem::path temporary = temporaryNameFor(target);
    std::error_code ec;
    if (!writeAndFlush(temporary, bytes)) {
        std::filesystem::remove(temporary, ec);
        throw ProjectError(displayPath(target) + ": cannot be written");
    }
    std::filesystem::rename(temporary, target, ec);
    if (ec) {
        std::string reason = ec.message();
        std::filesystem::remove(temporary, ec);
        throw ProjectError(displayPath(target) + ": cannot be replaced (" + reason + ")");
    }
}

}  // namespace quillet::hosts::files
