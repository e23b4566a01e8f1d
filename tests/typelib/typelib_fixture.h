#pragma once
// The type libraries the tests build from tests/typelib/idl, and helpers to find what they hold.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "basic/unicode.h"
#include "typelib/msft_reader.h"

namespace quillet::typelib::testing {

inline std::string fixturePath(const std::string& name) { return std::string(QUILLET_TYPELIB_DIR) + "/" + name; }
inline std::string stdoleDir() { return QUILLET_STDOLE_DIR; }

inline std::vector<std::uint8_t> fileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline TypeInfoPtr typeNamed(TypeLibrary& library, const Str& name) {
    for (long i = 0; i < library.TypeInfoCount(); ++i)
        if (library.TypeInfoAt(i)->Name() == name) return library.TypeInfoAt(i);
    return nullptr;
}

inline const MemberInfo* memberNamed(const std::vector<MemberInfo>& members, const Str& name, int invokeKind = 1) {
    for (const MemberInfo& m : members)
        if (m.Name == name && m.InvokeKind == invokeKind) return &m;
    return nullptr;
}

// A scratch folder below the system's temporary folder, removed at the end of the test.
struct ScratchFolder {
    std::filesystem::path path;
    explicit ScratchFolder(const std::string& name)
        : path(std::filesystem::temp_directory_path() /
               (name + "-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + "-" +
                ::testing::UnitTest::GetInstance()->current_test_info()->name())) {
        std::filesystem::remove_all(path);
        std::filesystem::create_directories(path);
    }
    ~ScratchFolder() {
        std::error_code ec;
        std::filesystem::remove_all(path, ec);
    }
};

}  // namespace quillet::typelib::testing
