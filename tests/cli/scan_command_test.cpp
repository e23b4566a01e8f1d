#include <gtest/gtest.h>

#include <sstream>

#include "../source/basic_generator.h"
#include "cli/tool.h"
#include "hosts/files/temp_dir.h"

namespace quillet::cli {
namespace {

using hosts::files::testing::TempDir;

class CliScan : public ::testing::Test {
protected:
    CliScan() {
        dir.write("basMain.bas", "Attribute VB_Name = \"basMain\"\r\n"
                                 "Option Explicit\r\n"
                                 "Public gTotal As Currency, gNames() As String\r\n"
                                 "Public Const APP_NAME As String = \"Ledger, 2: \"\"\"\" \" & \"x\"\r\n"
                                 "Public Enum Colour\r\n"
                                 "    Red = 1\r\n"
                                 "End Enum\r\n"
                                 "Public Type Point\r\n"
                                 "    X As Long\r\n"
                                 "End Type\r\n"
                                 "Private mCount As Long\r\n"
                                 "\r\n"
                                 "Public Function Twice(ByVal n As Long, Optional s$ = \"a\") As Long\r\n"
                                 "    Dim result As Long\r\n"
                                 "    Const cstrProcedure = \"Twice\"\r\n"
                                 "    result = n * 2\r\n"
                                 "Again:\r\n"
                                 "    Return\r\n"
                                 "    Twice = result\r\n"
                                 "End Function\r\n");
        project = dir.path().string();
    }
    int run(const std::vector<std::string>& args) {
        out.str("");
        err.str("");
        return runTool(args, out, err);
    }

    TempDir dir;
    std::string project;
    std::ostringstream out, err;
};

TEST_F(CliScan, ProjectCollectionsAsJson) {
    ASSERT_EQ(run({"scan", "--project", project, "--json"}), kExitOk) << err.str();
    std::string json = out.str();
    EXPECT_EQ(err.str(), "");
    for (const char* key : {"\"ProjectProcs\": [", "\"ProjectVars\": [", "\"ProjectConsts\": [", "\"ProjectEnums\": [",
                            "\"ProjectTypes\": ["})
        EXPECT_NE(json.find(key), std::string::npos) << key;
    EXPECT_NE(json.find("\"Name\": \"gNames\",\n      \"Type_\": \"String\",\n      \"IsArray\": true,\n      \"Bounds\": \"\""),
              std::string::npos);
    EXPECT_NE(json.find("\"Name\": \"APP_NAME\""), std::string::npos);
    EXPECT_NE(json.find("\"EnumName\": \"Colour\""), std::string::npos);
    EXPECT_NE(json.find("\"OneLineProcDef\": \"Public Function Twice(ByVal n As Long, Optional s$ = \\\"a\\\") As Long\""),
              std::string::npos);
    EXPECT_NE(json.find("\"Name\": \"s$\",\n          \"Type_\": \"Variant\",\n          \"IsOptional\": true"),
              std::string::npos);
    EXPECT_EQ(json.find("mCount"), std::string::npos);
    EXPECT_EQ(json.front(), '{');
    EXPECT_EQ(json.substr(json.size() - 2), "}\n");
}

TEST_F(CliScan, AModuleAndAProcedure) {
    ASSERT_EQ(run({"scan", "--project", project, "--module", "basMain", "--at", "basMain:16", "--json"}), kExitOk)
        << err.str();
    std::string json = out.str();
    EXPECT_EQ(json.find("ProjectVars"), std::string::npos);
    EXPECT_NE(json.find("\"ModuleVars\": [\n    {\n      \"Name\": \"mCount\""), std::string::npos);
    EXPECT_NE(json.find("\"ProcVars\": [\n    {\n      \"Name\": \"result\""), std::string::npos);
    EXPECT_NE(json.find("\"ProcConsts\": [\n    {\n      \"Name\": \"cstrProcedure\""), std::string::npos);
    EXPECT_NE(json.find("\"Name\": \"Again\",\n      \"HasReturn\": true"), std::string::npos);
    EXPECT_NE(json.find("\"ProcName\": \"Twice\""), std::string::npos);
    EXPECT_NE(json.find("\"ProcTypeStr\": \"Function\""), std::string::npos);
    EXPECT_NE(json.find("\"ProcRealStartLine\": 12"), std::string::npos);
    EXPECT_NE(json.find("\"ProcDefLineCount\": \"1\""), std::string::npos);
}

TEST_F(CliScan, TextForReading) {
    ASSERT_EQ(run({"scan", "--project", project}), kExitOk) << err.str();
    std::string text = out.str();
    EXPECT_NE(text.find("ProjectVars:\n  Name=gTotal  Type_=Currency  ModuleName=basMain\n"), std::string::npos) << text;
    EXPECT_NE(text.find("ProjectTypes:\n  Name=Point"), std::string::npos) << text;
}

TEST_F(CliScan, BadPlacesAndOptions) {
    EXPECT_EQ(run({"scan", "--project", project, "--module", "basNone"}), kExitProject);
    EXPECT_NE(err.str().find("basNone"), std::string::npos);
    EXPECT_EQ(run({"scan", "--project", project, "--at", "basMain:99"}), kExitProject);
    EXPECT_EQ(run({"scan"}), kExitUsage);
    EXPECT_EQ(run({"scan", "--project", project, "--select", "basMain:1:1-1:2"}), kExitUsage);
    EXPECT_EQ(run({"scan", "--project", project, "extra"}), kExitUsage);
    EXPECT_EQ(run({"scan", "--project", project, "--help"}), kExitOk);
    EXPECT_NE(out.str().find("Usage: quillet scan"), std::string::npos);
}

TEST_F(CliScan, ModuleAndPlaceMustAgree) {
    dir.write("basOther.bas", "Attribute VB_Name = \"basOther\"\r\nOption Explicit\r\n");
    EXPECT_EQ(run({"scan", "--project", project, "--module", "basOther", "--at", "basMain:14"}), kExitUsage);
}

TEST_F(CliScan, HundredsOfGeneratedModulesScanCleanly) {
    TempDir generated;
    testing::BasicGenerator generator(99);
    for (int i = 0; i < 250; ++i) {
        auto m = generator.module(i, 80);
        std::string text = "Attribute VB_Name = \"" + m.name + "\"\r\n";
        if (m.isClass) {
            text = "VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1  'True\r\nEND\r\n" + text +
                   "Attribute VB_GlobalNameSpace = False\r\nAttribute VB_Creatable = False\r\n"
                   "Attribute VB_PredeclaredId = False\r\nAttribute VB_Exposed = False\r\n";
        }
        for (const auto& line : m.lines) text += line + "\r\n";
        generated.write(m.name + (m.isClass ? ".cls" : ".bas"), text);
    }
    ASSERT_EQ(run({"scan", "--project", generated.path().string(), "--json"}), kExitOk) << err.str();
    EXPECT_EQ(err.str(), "");
    EXPECT_GT(out.str().size(), 10000u);
    ASSERT_EQ(run({"scan", "--project", generated.path().string(), "--module", "basModule1", "--at", "basModule1:30"}),
              kExitOk);
    EXPECT_EQ(err.str(), "");
}

}  // namespace
}  // namespace quillet::cli
