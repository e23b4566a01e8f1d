#include <gtest/gtest.h>

#include <sstream>

#include "cli/tool.h"
#include "../typelib/typelib_fixture.h"

namespace quillet::cli {
namespace {

using typelib::testing::fixturePath;
using typelib::testing::stdoleDir;

struct ToolRun {
    int code;
    std::string out, err;
};

ToolRun tool(const std::vector<std::string>& args) {
    std::ostringstream out, err;
    int code = runTool(args, out, err);
    return {code, out.str(), err.str()};
}

TEST(CliTypelib, PrintsGroupsProceduresEnumsAndClasses) {
    ToolRun run = tool({"typelib", fixturePath("qltshapes.tlb"), "--typelib-path", stdoleDir()});
    EXPECT_EQ(run.code, kExitOk) << run.err;
    EXPECT_EQ(run.out.substr(0, run.out.find("\nGroup ShapeFunctions")),
              "Library QltShapes\n"
              "\n"
              "Group QltShapes_Unqualified (CoClass)\n"
              "  Function Join(ByVal parts() As Variant) As String\n"
              "  Function Sum([ParamArray values() As Variant]) As Double\n"
              "  Function NewShape() As IShape\n"
              "  Sub Beep()\n"
              "  Function Version() As Long\n"
              "  Function Pick([ByVal color As ShapeColor = scGreen]) As ShapeColor\n"
              "  Function WithLcid(ByVal a As Long) As Long\n"
              "  Function Format$(ByVal value) As String\n"
              "  Function Format(ByVal value) As Variant\n"
              "  Function Outline() As stdole.IFontDisp\n"
              "  Sub Fields(Points() As ShapePoint, color As ShapeColor)\n");
    EXPECT_NE(run.out.find("\nGroup ShapeFunctions (Module)\n"
                           "  Function Distance(a As ShapePoint, b As ShapePoint) As Double\n"
                           "  Sub Reset()\n"
                           "  Function Fill(values As Long, ByVal count As Long) As Long\n"),
              std::string::npos)
        << run.out;
    EXPECT_NE(run.out.find("\nEnum ShapeColor\n  scNone = 0\n  scRed = 1\n  scGreen = 2\n  scBlue = -4\n"), std::string::npos);
    EXPECT_NE(run.out.find("\nClasses\n  ShapePoint (Record)\n"), std::string::npos);
    EXPECT_NE(run.out.find("  Circle (CoClass)\n"), std::string::npos);
}

TEST(CliTypelib, JsonAndResourceNumbers) {
    std::string dll = fixturePath("shapes_x86_64.dll");
    if (!std::filesystem::exists(dll)) GTEST_SKIP() << "no mingw tools";
    ToolRun run = tool({"typelib", dll + "\\2", "--json"});
    EXPECT_EQ(run.code, kExitOk) << run.err;
    EXPECT_EQ(run.out.substr(0, 121),
              "{\n  \"Library\": \"QltUse\",\n  \"Groups\": [\n    {\n      \"Name\": \"QltUse_Unqualified\",\n"
              "      \"TypeKindStr\": \"CoClass\",\n      \"H");
    EXPECT_NE(run.out.find("\"Arguments\": \"shape As Unknown, [ByVal color As Unknown = -4]\""), std::string::npos);
    EXPECT_NE(run.out.find("\"ShortArguments\": \"shape, [color]\""), std::string::npos);
}

TEST(CliTypelib, ErrorsAreClear) {
    ToolRun missing = tool({"typelib", "/no/such.tlb"});
    EXPECT_EQ(missing.code, kExitProject);
    EXPECT_EQ(missing.err, "quillet: /no/such.tlb: no such library file: /no/such.tlb\n");
    ToolRun none = tool({"typelib"});
    EXPECT_EQ(none.code, kExitUsage);
    EXPECT_NE(none.err.find("typelib needs one FILE"), std::string::npos);
    ToolRun extra = tool({"typelib", "a.tlb", "--project", "x"});
    EXPECT_EQ(extra.code, kExitUsage);
    EXPECT_NE(tool({"typelib", "--help"}).out.find("Usage: quillet typelib FILE"), std::string::npos);
}

}  // namespace
}  // namespace quillet::cli
