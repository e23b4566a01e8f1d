#pragma once
// The add-in fixture for the source tools: their commands registered, golden files read from
// tests/tools/golden, and a module loaded from one.

#include <filesystem>
#include <fstream>
#include <sstream>

#include "../addin/addin_fixture.h"
#include "addin/project_commands.h"
#include "tools/tools_install.h"

namespace quillet::testing {

// The bytes of tests/tools/golden/NAME.
inline std::string goldenBytes(const std::string& name) {
    std::ifstream in(std::filesystem::path(QUILLET_SOURCE_DIR) / "tests" / "tools" / "golden" / name, std::ios::binary);
    EXPECT_TRUE(in.good()) << "no golden file " << name;
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

// The lines of a golden module file (CRLF line ends, the last line ended too).
inline std::vector<Str> goldenLines(const std::string& name) {
    Str text = basic::fromUtf8(goldenBytes(name));
    if (text.size() >= 2 && text.compare(text.size() - 2, 2, u"\r\n") == 0) text.resize(text.size() - 2);
    return basic::Split(text, u"\r\n");
}

class ToolsFixture : public AddinFixture {
protected:
    ToolsFixture() {
        addin::RegisterScanCommands(*ctx);
        tools::ToolsInstall(*ctx);
    }

    void select(long startLine, long startCol, long endLine, long endCol) {
        vbe->ActiveCodePane()->SetSelection(startLine, startCol, endLine, endCol);
    }
    std::vector<long> selection() {
        long a = 0, b = 0, c = 0, d = 0;
        vbe->ActiveCodePane()->GetSelection(a, b, c, d);
        return {a, b, c, d};
    }
    // The module's bytes as its exported file would hold them: lines ended by CRLF.
    std::string moduleBytes() { return basic::toUtf8(moduleText()) + "\r\n"; }
};

}  // namespace quillet::testing
