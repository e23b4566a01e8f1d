// The fragments verb: the library as text and as JSON, folders tied to libraries the project does
// or does not refer to, shortcuts, broken shortcuts, and its usage errors.

#include "cli/fragments_command.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "cli/tool.h"
#include "fragments/shell_link.h"
#include "hosts/files/temp_dir.h"
#include "settings/file_system.h"

namespace quillet::cli {
namespace {

using hosts::files::testing::TempDir;
namespace fs = std::filesystem;

const fs::path kData = fs::path(QUILLET_SOURCE_DIR) / "data";
const fs::path kInvoicing = fs::path(QUILLET_SOURCE_DIR) / "examples" / "Invoicing";

class CliFragments : public ::testing::Test {
protected:
    CliFragments() { run({"fragments"}); }

    int run(std::vector<std::string> args) {
        out.str("");
        err.str("");
        args.insert(args.end(), {"--settings", dir.path().string(), "--data", kData.string()});
        return runTool(args, out, err);
    }
    void write(const std::string& name, const std::string& bytes) const {
        fs::create_directories((dir.path() / name).parent_path());
        std::ofstream(dir.path() / name, std::ios::binary) << bytes;
    }
    Str systemPath(const std::string& relative) const {
        return settings::FileSystem().systemPath(dir.path() / relative);
    }
    void shortcut(const std::string& link, const std::string& target) {
        std::string folder = link.substr(0, link.rfind('/'));
        write(link, fragments::WriteShellLink(fragments::ShellLinkTo(systemPath(target), systemPath(folder))));
    }

    TempDir dir;
    std::ostringstream out, err;
};

TEST_F(CliFragments, ListsTheShippedLibraryInOrder) {
    ASSERT_EQ(run({"fragments"}), kExitOk) << err.str();
    EXPECT_EQ(err.str(), "");
    EXPECT_EQ(out.str(), "Fragment library: " + (dir.path() / "quillet" / "Fragments").string() +
                             "\n"
                             "References: none known, every folder is shown\n"
                             "\n"
                             "ErrorHandlers\\\n"
                             "  On Error GoTo ExitLabel\n"
                             "  On Error GoTo HandleError\n"
                             "Headers And Comments\\\n"
                             "  ModuleHeader\n"
                             "  ProcedureHeader\n");
}

TEST_F(CliFragments, ShortcutsShowTheirTargetAndBrokenOnesAreMarked) {
    write("quillet/Fragments/Loops/For Each.bas", "For Each x In y\r\nNext\r\n");
    shortcut("quillet/Fragments/Mine/Each.lnk", "quillet/Fragments/Loops/For Each.bas");
    shortcut("quillet/Fragments/Mine/Gone.lnk", "quillet/Fragments/Loops/Gone.bas");
    ASSERT_EQ(run({"fragments"}), kExitOk) << err.str();
    EXPECT_NE(out.str().find("Loops\\\n  For Each\nMine\\\n  Each -> Loops\\For Each.bas\n"
                             "  Gone  [broken shortcut: The shortcut's target does not exist.]\n"),
              std::string::npos)
        << out.str();
}

// A listing writes nothing: a shortcut made before its library moved shows its fragment at the
// new place and keeps its bytes (the Fragment Builder mends it).
TEST_F(CliFragments, AShortcutOfAMovedLibraryIsShownAtItsNewPlaceAndLeftAsItIs) {
    write("quillet/Fragments/Loops/For Each.bas", "For Each x In y\r\nNext\r\n");
    const std::string bytes = fragments::WriteShellLink(fragments::ShellLinkTo(
        u"D:\\Users\\old\\quillet\\Fragments\\Loops\\For Each.bas", systemPath("quillet/Fragments/Mine")));
    write("quillet/Fragments/Mine/Each.lnk", bytes);
    ASSERT_EQ(run({"fragments"}), kExitOk) << err.str();
    EXPECT_NE(out.str().find("Mine\\\n  Each -> Loops\\For Each.bas (library moved: the Fragment Builder mends the link)\n"),
              std::string::npos)
        << out.str();
    std::ifstream in(dir.path() / "quillet/Fragments/Mine/Each.lnk", std::ios::binary);
    std::ostringstream after;
    after << in.rdbuf();
    EXPECT_EQ(after.str(), bytes);
}

TEST_F(CliFragments, AFolderTiedToALibraryShowsOnlyWhenTheProjectRefersToIt) {
    write("quillet/Fragments/Scripting/Dictionary.bas", "Dim d As New Dictionary\r\n");
    write("quillet/Fragments/Access/Recordset.bas", "Dim rs As Recordset\r\n");
    write("qltrefra.ini", "[fragments/reference]\r\nScripting=Scripting\r\nAccess=Access\r\n");
    ASSERT_EQ(run({"fragments", "--project", kInvoicing.string()}), kExitOk) << err.str();
    EXPECT_NE(out.str().find("Scripting\\\n  Dictionary\n"), std::string::npos) << out.str();
    EXPECT_EQ(out.str().find("Recordset"), std::string::npos) << out.str();
    EXPECT_NE(out.str().find("Access\\  [hidden: its library is not referred to]\n"), std::string::npos) << out.str();
    EXPECT_NE(out.str().find("References: VBA, Excel, "), std::string::npos) << out.str();
    // Without a project every folder shows.
    ASSERT_EQ(run({"fragments"}), kExitOk) << err.str();
    EXPECT_NE(out.str().find("Access\\\n  Recordset\n"), std::string::npos) << out.str();
}

TEST_F(CliFragments, JsonHoldsTheTree) {
    write("quillet/Fragments/Loops/For.bas", "For\r\n");
    shortcut("quillet/Fragments/Loops/Again.lnk", "quillet/Fragments/Loops/For.bas");
    write("quillet/Fragments/Loops/bad.lnk", "x");
    ASSERT_EQ(run({"fragments", "--json"}), kExitOk) << err.str();
    const std::string json = out.str();
    EXPECT_NE(json.find("\"exists\": true"), std::string::npos) << json;
    EXPECT_NE(json.find("\"referencesKnown\": false"), std::string::npos) << json;
    EXPECT_NE(json.find("\"name\": \"Loops\",\n"), std::string::npos) << json;
    EXPECT_NE(json.find("\"name\": \"Again\",\n"), std::string::npos) << json;
    EXPECT_NE(json.find("\"kind\": \"shortcut\",\n"), std::string::npos) << json;
    EXPECT_NE(json.find("\"file\": \"Loops\\\\Again.lnk\",\n"), std::string::npos) << json;
    EXPECT_NE(json.find("\"target\": \"Loops\\\\For.bas\",\n"), std::string::npos) << json;
    EXPECT_NE(json.find("\"kind\": \"broken shortcut\""), std::string::npos) << json;
    EXPECT_NE(json.find("\"problem\": \"The file is not a shortcut: it is shorter than a shortcut's header.\""),
              std::string::npos)
        << json;
}

TEST_F(CliFragments, AMissingLibraryIsAnEmptyTree) {
    fs::remove_all(dir.path() / "quillet" / "Fragments");
    ASSERT_EQ(run({"fragments"}), kExitOk) << err.str();
    EXPECT_NE(out.str().find("Fragments (missing)\n"), std::string::npos) << out.str();
}

TEST_F(CliFragments, UsageErrors) {
    EXPECT_EQ(run({"fragments", "extra"}), kExitUsage);
    EXPECT_NE(err.str().find("fragments takes no arguments"), std::string::npos);
    EXPECT_EQ(run({"fragments", "--at", "basMain:1"}), kExitUsage);
    EXPECT_EQ(run({"fragments", "--project", (dir.path() / "nothing").string()}), kExitProject);
    EXPECT_EQ(run({"fragments", "--help"}), kExitOk);
    EXPECT_NE(out.str().find("Usage: quillet fragments"), std::string::npos);
}

}  // namespace
}  // namespace quillet::cli
