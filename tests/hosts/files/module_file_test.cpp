#include "hosts/files/module_file.h"

#include <gtest/gtest.h>

#include "hosts/files/project_error.h"
#include "hosts/files/samples.h"

namespace quillet::hosts::files {
namespace {

ModuleFile parse(const std::string& bytes) {
    return parseModuleFile(readTextLines(bytes, CodePage::Windows1252, "m"), "m");
}

std::string roundTrip(const std::string& bytes) {
    ModuleFile file = parse(bytes);
    return writeTextLines(moduleFileLines(file.metadata, file.code), file.layout);
}

TEST(FilesModuleFile, EveryShapeRoundTripsByteForByte) {
    for (const std::string& sample : {samples::kStandardModule, samples::kClassModule, samples::kDocumentModule,
                                      samples::kUserForm, samples::kVb6Form}) {
        EXPECT_EQ(roundTrip(sample), sample);
    }
}

TEST(FilesModuleFile, StandardModuleHidesAttributes) {
    ModuleFile file = parse(samples::kStandardModule);
    EXPECT_TRUE(file.metadata.header.empty());
    EXPECT_EQ(file.metadata.moduleAttributes, (std::vector<Str>{u"Attribute VB_Name = \"basMain\""}));
    EXPECT_EQ(moduleNameOf(file.metadata), u"basMain");
    EXPECT_EQ(componentTypeOf(file.metadata), host::vbext_ct_StdModule);
    ASSERT_EQ(file.code.size(), 11u);
    EXPECT_EQ(file.code[0], u"Option Explicit");
    EXPECT_EQ(file.code[2], u"' Caf\u00E9 prices");
    EXPECT_EQ(file.code[4], u"    MsgBox \"Hi\"");
    ASSERT_EQ(file.metadata.memberAttributes.size(), 2u);
    EXPECT_EQ(file.metadata.memberAttributes[0].member, u"Macro1");
    EXPECT_EQ(file.metadata.memberAttributes[0].kind, host::vbext_pk_Proc);
    EXPECT_EQ(file.metadata.memberAttributes[0].lines.size(), 2u);
    EXPECT_EQ(file.metadata.memberAttributes[1].member, u"Total");
}

TEST(FilesModuleFile, ClassKeepsPropertyAndVariableAttributes) {
    ModuleFile file = parse(samples::kClassModule);
    EXPECT_EQ(file.metadata.header.size(), 4u);
    EXPECT_EQ(file.metadata.moduleAttributes.size(), 5u);
    EXPECT_EQ(componentTypeOf(file.metadata), host::vbext_ct_ClassModule);
    ASSERT_EQ(file.metadata.memberAttributes.size(), 2u);
    EXPECT_EQ(file.metadata.memberAttributes[0].kind, memory::kVariableMember);
    EXPECT_EQ(file.metadata.memberAttributes[1].kind, host::vbext_pk_Get);
    EXPECT_EQ(file.code[0], u"Option Explicit");
}

TEST(FilesModuleFile, FormTypesComeFromTheHeader) {
    EXPECT_EQ(componentTypeOf(parse(samples::kUserForm).metadata), host::vbext_ct_MSForm);
    ModuleFile vb6 = parse(samples::kVb6Form);
    EXPECT_EQ(componentTypeOf(vb6.metadata), host::vbext_ct_VBForm);
    EXPECT_EQ(vb6.metadata.header.size(), 11u);
    EXPECT_EQ(vb6.code[0], u"Option Explicit");
}

TEST(FilesModuleFile, MemberAttributesFollowTheirMemberWhenCodeMoves) {
    ModuleFile file = parse(samples::kStandardModule);
    // A block inserted in the first procedure, and the declarations grown by a line.
    file.code.insert(file.code.begin() + 5, u"    If True Then");
    file.code.insert(file.code.begin() + 1, u"Private mCount As Long");
    std::vector<Str> lines = moduleFileLines(file.metadata, file.code);
    std::vector<Str> expected = {u"Attribute VB_Name = \"basMain\"", u"Option Explicit", u"Private mCount As Long", u"",
                                 u"' Caf\u00E9 prices", u"Public Sub Macro1()",
                                 u"Attribute Macro1.VB_Description = \"Runs the macro\"",
                                 u"Attribute Macro1.VB_ProcData.VB_Invoke_Func = \" \\n14\"",
                                 u"    MsgBox \"Hi\"", u"    If True Then", u"End Sub", u"",
                                 u"Public Function Total(ByVal a As Long, _",
                                 u"                      ByVal b As Long) As Long",
                                 u"Attribute Total.VB_Description = \"Adds\"", u"    Total = a + b",
                                 u"End Function"};
    EXPECT_EQ(lines, expected);
}

TEST(FilesModuleFile, AttributesOfADeletedMemberAreDropped) {
    ModuleFile file = parse(samples::kStandardModule);
    file.code.erase(file.code.begin() + 3, file.code.begin() + 6);  // Sub Macro1 ... End Sub
    std::vector<Str> lines = moduleFileLines(file.metadata, file.code);
    for (const Str& line : lines) EXPECT_EQ(line.find(u"Macro1"), Str::npos);
    EXPECT_EQ(lines.size(), 1u + 8u + 1u);
}

TEST(FilesModuleFile, LocalVariableDoesNotTakeAModuleVariablesAttributes) {
    ModuleFile file = parse(
        "Attribute VB_Name = \"m\"\r\n"
        "Sub A()\r\n"
        "    Dim x As Object\r\n"
        "End Sub\r\n"
        "Public WithEvents x As Object\r\n"
        "Attribute x.VB_VarHelpID = -1\r\n");
    ASSERT_EQ(file.metadata.memberAttributes.size(), 1u);
    EXPECT_EQ(moduleFileLines(file.metadata, file.code).back(), u"Attribute x.VB_VarHelpID = -1");
    EXPECT_EQ(moduleFileLines(file.metadata, file.code)[2], u"    Dim x As Object");
}

TEST(FilesModuleFile, StrayAttributeLineStaysInTheCode) {
    ModuleFile file = parse("Attribute VB_Name = \"m\"\r\nSub A()\r\nAttribute B.VB_Description = \"x\"\r\nEnd Sub\r\n");
    EXPECT_TRUE(file.metadata.memberAttributes.empty());
    EXPECT_EQ(file.code.size(), 3u);
}

TEST(FilesModuleFile, HeaderThatNeverEndsIsAnError) {
    EXPECT_THROW(parse("VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1\r\n"), ProjectError);
    EXPECT_THROW(parse("VERSION 5.00\r\nBegin VB.Form F\r\nBegin VB.Label L\r\nEnd\r\n"), ProjectError);
    try {
        parse("VERSION 1.0 CLASS\r\n");
    } catch (const ProjectError& error) {
        EXPECT_STREQ(error.what(), "m: is not Basic source: the header that starts with VERSION on line 1 never ends");
    }
}

TEST(FilesModuleFile, StandardMetadataOfNewComponents) {
    std::string cls = writeTextLines(moduleFileLines(standardMetadata(host::vbext_ct_ClassModule, u"Class1"), {}), {});
    EXPECT_EQ(cls,
              "VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1  'True\r\nEND\r\nAttribute VB_Name = \"Class1\"\r\n"
              "Attribute VB_GlobalNameSpace = False\r\nAttribute VB_Creatable = False\r\n"
              "Attribute VB_PredeclaredId = False\r\nAttribute VB_Exposed = False\r\n");
    EXPECT_EQ(standardMetadata(host::vbext_ct_StdModule, u"Module1").moduleAttributes,
              (std::vector<Str>{u"Attribute VB_Name = \"Module1\""}));
    EXPECT_EQ(componentTypeOf(standardMetadata(host::vbext_ct_MSForm, u"UserForm1")), host::vbext_ct_MSForm);
    EXPECT_EQ(extensionFor(host::vbext_ct_MSForm), ".frm");
}

TEST(FilesModuleFile, RenamingRewritesVbName) {
    std::vector<Str> attributes = {u"Attribute VB_Name = \"Old\"", u"Attribute VB_Exposed = False"};
    EXPECT_EQ(withModuleName(attributes, u"New")[0], u"Attribute VB_Name = \"New\"");
    EXPECT_EQ(withModuleName({}, u"New"), (std::vector<Str>{u"Attribute VB_Name = \"New\""}));
}

}  // namespace
}  // namespace quillet::hosts::files
