#pragma once
// Golden texts: the expected output of a generator, kept as files (CRLF, byte for byte) in
// tests/generators/golden. With QUILLET_UPDATE_GOLDEN set in the environment a missing file is
// written from the output, to be read through before it is committed.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "basic/strings.h"
#include "basic/unicode.h"

namespace quillet::testing {

inline std::filesystem::path goldenPath(const std::string& name) {
    return std::filesystem::path(QUILLET_SOURCE_DIR) / "tests" / "generators" / "golden" / name;
}

// Whether `text` is the golden file's text, byte for byte (UTF-8 on disk).
inline ::testing::AssertionResult matchesGolden(const basic::Str& text, const std::string& name) {
    auto path = goldenPath(name);
    std::string actual = basic::toUtf8(text);
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        if (std::getenv("QUILLET_UPDATE_GOLDEN")) {
            std::filesystem::create_directories(path.parent_path());
            std::ofstream(path, std::ios::binary) << actual;
            return ::testing::AssertionFailure() << "wrote the missing golden file " << name;
        }
        return ::testing::AssertionFailure() << "no golden file " << name;
    }
    std::ostringstream bytes;
    bytes << in.rdbuf();
    if (bytes.str() == actual) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << name << " differs:\n--- expected\n" << bytes.str() << "\n--- actual\n" << actual;
}

}  // namespace quillet::testing
