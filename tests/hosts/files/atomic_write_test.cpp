#include "hosts/files/atomic_write.h"

#include <gtest/gtest.h>

#include "hosts/files/project_error.h"
#include "hosts/files/temp_dir.h"

namespace quillet::hosts::files {
namespace {

using testing::TempDir;

TEST(FilesAtomicWrite, ReplacesTheFileAndLeavesNoTemporaryFile) {
    TempDir dir;
    dir.write("m.bas", "old");
    writeFileAtomically(dir / "m.bas", std::string("new\r\n\0x", 7));
    EXPECT_EQ(dir.read("m.bas"), std::string("new\r\n\0x", 7));
    EXPECT_EQ(dir.listing(), "m.bas\n");
}

TEST(FilesAtomicWrite, FailureLeavesTheTargetAlone) {
    TempDir dir;
    EXPECT_THROW(writeFileAtomically(dir / "missing" / "m.bas", "x"), ProjectError);
    std::filesystem::create_directory(dir / "m.bas");  // a folder where the file should go
    try {
        writeFileAtomically(dir / "m.bas", "x");
        FAIL() << "no error";
    } catch (const ProjectError& error) {
        EXPECT_NE(std::string(error.what()).find("m.bas: cannot be replaced"), std::string::npos) << error.what();
    }
    EXPECT_EQ(dir.listing(), "m.bas\n");
}

}  // namespace
}  // namespace quillet::hosts::files
