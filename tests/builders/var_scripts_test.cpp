// The declaration builders driven by the UI scripts of their folders, each paired with the module
// text it must leave, compared byte for byte. A script's comment "# at MODULE:LINE:COL" puts the
// caret before it plays, as `quillet play --at` does.

#include <algorithm>
#include <filesystem>

#include "var_fixture.h"

namespace quillet::builders {
namespace {

const std::vector<Str> kScriptModule = {u"Option Explicit",
                                        u"",
                                        u"Private mlngCount As Long",
                                        u"",
                                        u"Public Sub Save(ByVal strPath As String, _",
                                        u"                lngMode As Long)",
                                        u"    Debug.Print strPath",
                                        u"End Sub"};

class DeclarationScripts : public testing::VariableFixture, public ::testing::WithParamInterface<std::string> {
protected:
    // The caret of the "# at" comment: module, line and column.
    static bool caretOf(const std::string& script, std::string& module, long& line, long& col) {
        size_t at = script.find("# at ");
        if (at == std::string::npos) return false;
        size_t end = script.find('\n', at);
        std::string spec = script.substr(at + 5, end - at - 5);
        if (!spec.empty() && spec.back() == '\r') spec.pop_back();
        size_t first = spec.find(':'), second = spec.find(':', first + 1);
        module = spec.substr(0, first);
        line = std::stol(spec.substr(first + 1, second - first - 1));
        col = second == std::string::npos ? 1 : std::stol(spec.substr(second + 1));
        return true;
    }
};

std::vector<std::string> scriptNames() {
    std::vector<std::string> names;
    for (const char* folder : {"variable", "constant"}) {
        auto path = std::filesystem::path(QUILLET_SOURCE_DIR) / "tests/builders/scripts" / folder;
        for (const auto& entry : std::filesystem::directory_iterator(path))
            if (entry.path().extension() == ".uis") names.push_back(std::string(folder) + "/" + entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

TEST_P(DeclarationScripts, LeaveTheExpectedModuleText) {
    std::string script = scriptFile(GetParam());
    ASSERT_FALSE(script.empty()) << GetParam();
    std::string module;
    long line = 1, col = 1;
    ASSERT_TRUE(caretOf(script, module, line, col)) << GetParam() << ": no \"# at\" line";
    openModule(kScriptModule, line, col, basic::fromUtf8(module));
    auto outcome = play(script);
    EXPECT_TRUE(outcome.passed()) << GetParam() << ": " << basic::toUtf8(outcome.describe()) << "\n"
                                  << basic::toUtf8(moduleText(basic::fromUtf8(module)));
}

INSTANTIATE_TEST_SUITE_P(Scripts, DeclarationScripts, ::testing::ValuesIn(scriptNames()),
                         testing::scriptTestName);

}  // namespace
}  // namespace quillet::builders
