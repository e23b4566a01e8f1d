// The Property and Class Builders through the tool: "run Property TYPE" says that the dialog needs
// a script; "play" writes the property into its module file and the new class and collection
// class as new module files, the collection class with the template's attributes.

#include <gtest/gtest.h>

#include <sstream>

#include "cli/tool.h"
#include "hosts/files/temp_dir.h"

namespace quillet::cli {
namespace {

using hosts::files::testing::TempDir;
namespace fs = std::filesystem;

class PropertyClassTool : public ::testing::Test {
protected:
    PropertyClassTool() {
        for (const auto& entry : fs::directory_iterator(fs::path(QUILLET_SOURCE_DIR) / "examples" / "Invoicing"))
            fs::copy_file(entry.path(), dir / entry.path().filename().string());
        fs::create_directories(scripts / "settings" / "quillet");
        fs::copy(fs::path(QUILLET_SOURCE_DIR) / "data" / "quillet" / "Templates", scripts / "settings" / "quillet" / "Templates",
                 fs::copy_options::recursive);
        for (const auto& entry : fs::directory_iterator(dir.path())) before[entry.path().filename().string()] = dir.read(entry.path().filename().string());
    }
    std::vector<std::string> common() {
        return {"--project", dir.path().string(), "--at", "basMain:3", "--settings", (scripts / "settings").string()};
    }
    int run(std::vector<std::string> args) {
        auto rest = common();
        args.insert(args.end(), rest.begin(), rest.end());
        return runTool(args, out, err);
    }
    int play(const std::string& script) {
        scripts.write("test.uis", script);
        return run({"play", (scripts / "test.uis").string()});
    }
    // The files that are not as they were.
    std::vector<std::string> changedFiles() {
        std::vector<std::string> changed;
        for (const auto& entry : fs::directory_iterator(dir.path())) {
            std::string name = entry.path().filename().string();
            if (!before.count(name) || dir.read(name) != before[name]) changed.push_back(name);
        }
        std::sort(changed.begin(), changed.end());
        return changed;
    }

    TempDir dir, scripts;
    std::map<std::string, std::string> before;
    std::ostringstream out, err;
};

TEST_F(PropertyClassTool, RunPropertySaysTheDialogNeedsPlay) {
    EXPECT_EQ(run({"run", "Property", "Long"}), kExitUsage);
    EXPECT_NE(err.str().find("frmProperty"), std::string::npos) << err.str();
    EXPECT_NE(err.str().find("quillet play"), std::string::npos) << err.str();
    EXPECT_TRUE(changedFiles().empty());
}

TEST_F(PropertyClassTool, PlayWritesThePropertyIntoTheClassModuleFile) {
    ASSERT_EQ(play("open frmProperty Long\nset txtName Discount\nselect cboModule clsInvoice\ncheck chkSet 0\n"
                   "check chkAddProcedureConstant 0\ncheck chkAddModuleConstant 0\nselect cboAddErrorHandler #0\n"
                   "click cmdOK\nexpect-form frmProperty closed\n"),
              kExitOk)
        << err.str();
    EXPECT_EQ(changedFiles(), std::vector<std::string>{"clsInvoice.cls"});
    std::string written = dir.read("clsInvoice.cls");
    // The settings folder has no prefix standards: the name stays, the variable gets "var".
    EXPECT_NE(written.find("Private mvarDiscount As Long\r\n"), std::string::npos) << written;
    EXPECT_NE(written.find("Public Property Get Discount() As Long\r\n    Discount = mvarDiscount\r\nEnd Property\r\n"),
              std::string::npos)
        << written;
    // The module's attributes and header are kept.
    EXPECT_EQ(written.substr(0, 200), before["clsInvoice.cls"].substr(0, 200));
}

TEST_F(PropertyClassTool, PlayMakesTheClassAndItsCollectionClassAsNewFiles) {
    ASSERT_EQ(play("open frmClass\nset txtClassName clsPayment\ncheck chkMakeColClass 1\nselect TabMain Properties\n"
                   "click cmdNewProp\nset txtName Amount\nselect cboDataType Currency\nclick cmdOK\nclick cmdCreate\n"
                   "expect-form frmClass closed\n"),
              kExitOk)
        << err.str();
    EXPECT_EQ(changedFiles(), (std::vector<std::string>{"clsPayment.cls", "clsPayments.cls"}));
    std::string collection = dir.read("clsPayments.cls");
    EXPECT_EQ(collection.rfind("VERSION 1.0 CLASS\r\n", 0), 0u) << collection;
    EXPECT_NE(collection.find("Attribute VB_Name = \"clsPayments\"\r\n"), std::string::npos) << collection;
    EXPECT_NE(collection.find("Attribute Item.VB_UserMemId = 0\r\n"), std::string::npos) << collection;
    EXPECT_NE(collection.find("Attribute NewEnum.VB_UserMemId = -4\r\n"), std::string::npos) << collection;
    EXPECT_NE(collection.find("Public Function Add(ByVal Item As clsPayment"), std::string::npos) << collection;
    std::string payment = dir.read("clsPayment.cls");
    EXPECT_NE(payment.find("Public Property Get Amount() As Currency\r\n"), std::string::npos) << payment;
}

}  // namespace
}  // namespace quillet::cli
