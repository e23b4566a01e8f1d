#include "hosts/files/file_project.h"

#include <gtest/gtest.h>

#include "hosts/files/project_error.h"
#include "hosts/files/samples.h"
#include "hosts/files/temp_dir.h"
#include "hosts/memory/code_module.h"
#include "hosts/memory/components.h"
#include "hosts/memory/project.h"

namespace quillet::hosts::files {
namespace {

using testing::TempDir;

const std::string kFrx("\x10\x00\xFF\x42 binary \x00\x01", 14);

class FilesProject : public ::testing::Test {
protected:
    void writeFolder() {
        dir.write("basMain.bas", samples::kStandardModule);
        dir.write("clsItem.cls", samples::kClassModule);
        dir.write("ThisWorkbook.doccls", samples::kDocumentModule);
        dir.write("frmEdit.frm", samples::kUserForm);
        dir.write("frmEdit.frx", kFrx);
    }
    std::unique_ptr<FileProject> load(const std::filesystem::path& path, LoadOptions options = {}) {
        return FileProject::load(vbe, path, options);
    }
    std::string errorOf(const std::filesystem::path& path, LoadOptions options = {}) {
        try {
            load(path, options);
        } catch (const ProjectError& error) {
            EXPECT_TRUE(vbe->projects().empty()) << "a failed load leaves no project behind";
            return error.what();
        }
        return "no error";
    }
    std::string p(const std::string& name) const { return displayPath(dir / name); }

    TempDir dir;
    std::shared_ptr<memory::MemoryVBE> vbe = memory::MemoryVBE::create();
};

TEST_F(FilesProject, LoadsAFolderOfExportedModules) {
    writeFolder();
    auto project = load(dir.path());
    auto& components = project->project()->components();
    ASSERT_EQ(components.size(), 4u);
    EXPECT_EQ(components[0]->name(), u"ThisWorkbook");
    EXPECT_EQ(components[0]->Type(), host::vbext_ct_Document);
    EXPECT_EQ(components[1]->name(), u"basMain");
    EXPECT_EQ(components[1]->Type(), host::vbext_ct_StdModule);
    EXPECT_EQ(components[2]->Type(), host::vbext_ct_ClassModule);
    EXPECT_EQ(components[3]->name(), u"frmEdit");
    EXPECT_EQ(components[3]->Type(), host::vbext_ct_MSForm);
    EXPECT_EQ(components[1]->lines()[2], u"' Caf\u00E9 prices");
    EXPECT_EQ(vbe->activeProject(), project->project());
    EXPECT_EQ(project->project()->Name(), u"VBAProject");
    auto references = project->project()->References();
    ASSERT_GE(references->Count(), 2);
    EXPECT_EQ(references->Item(1)->Name(), u"VBA");
    EXPECT_EQ(references->Item(2)->Name(), u"Excel");
}

TEST_F(FilesProject, NothingChangedWritesNothing) {
    writeFolder();
    dir.ageFiles();
    auto before = dir.mtime("basMain.bas");
    auto project = load(dir.path());
    EXPECT_TRUE(project->changes().empty());
    EXPECT_TRUE(project->save().empty());
    EXPECT_EQ(dir.read("basMain.bas"), samples::kStandardModule);
    EXPECT_EQ(dir.read("frmEdit.frx"), kFrx);
    EXPECT_EQ(dir.mtime("basMain.bas"), before);
}

TEST_F(FilesProject, OnlyTheChangedFileIsRewritten) {
    writeFolder();
    dir.ageFiles();
    auto untouched = dir.mtime("clsItem.cls");
    auto untouchedForm = dir.mtime("frmEdit.frx");
    auto project = load(dir.path());
    project->project()->component(u"basMain")->codeModule()->InsertLines(5, u"    Beep");
    auto written = project->save();
    ASSERT_EQ(written.size(), 1u);
    EXPECT_EQ(written[0].path, dir / "basMain.bas");
    std::string expected = samples::kStandardModule;
    expected.insert(expected.find("    MsgBox"), "    Beep\r\n");
    EXPECT_EQ(dir.read("basMain.bas"), expected);
    EXPECT_EQ(dir.mtime("clsItem.cls"), untouched);
    EXPECT_EQ(dir.mtime("frmEdit.frx"), untouchedForm);
    EXPECT_EQ(dir.read("frmEdit.frm"), samples::kUserForm);
    EXPECT_EQ(dir.listing(), "ThisWorkbook.doccls\nbasMain.bas\nclsItem.cls\nfrmEdit.frm\nfrmEdit.frx\n");
    EXPECT_TRUE(project->changes().empty()) << "after a save, the disk is the new starting point";
}

TEST_F(FilesProject, ChangedFileKeepsItsLineEndsAndCodePage) {
    dir.write("lf.bas", "Attribute VB_Name = \"Lf\"\n' na\xEFve\nSub A()\nEnd Sub");
    auto project = load(dir.path());
    auto module = project->project()->component(u"Lf");
    EXPECT_EQ(module->lines()[0], u"' na\u00EFve");
    module->codeModule()->InsertLines(3, u"    ' d\u00E9j\u00E0 vu");
    project->save();
    EXPECT_EQ(dir.read("lf.bas"), "Attribute VB_Name = \"Lf\"\n' na\xEFve\nSub A()\n    ' d\xE9j\xE0 vu\nEnd Sub");
}

TEST_F(FilesProject, Utf8CodePageFromTheProjectFile) {
    dir.write("Book.vbp", "Name=\"Book\"\r\nHost=Word\r\nCodePage=65001\r\n");
    dir.write("m.bas", "Attribute VB_Name = \"m\"\r\n' caf\xC3\xA9\r\n");
    auto project = load(dir.path());
    EXPECT_EQ(project->project()->component(u"m")->lines()[0], u"' caf\u00E9");
    EXPECT_EQ(project->project()->References()->Item(2)->Name(), u"Word");
    dir.write("m.bas", "Attribute VB_Name = \"m\"\r\n' caf\xE9\r\n");
    vbe = memory::MemoryVBE::create();
    EXPECT_EQ(errorOf(dir.path()), p("m.bas") + ": cannot be decoded as UTF-8 (invalid byte at offset 30)");
}

TEST_F(FilesProject, Vb6ProjectRoundTripAndReferences) {
    const std::string vbp =
        "Type=Exe\r\n"
        "Reference=*\\G{00020430-0000-0000-C000-000000000046}#2.0#0#..\\..\\Windows\\SysWOW64\\stdole2.tlb#OLE Automation\r\n"
        "Object={831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0; MSCOMCTL.OCX\r\n"
        "Form=Form1.frm\r\n"
        "Module=basMain; src\\basMain.bas\r\n"
        "Class=clsItem; clsItem.cls\r\n"
        "Startup=\"Form1\"\r\n"
        "Name=\"Tally\"\r\n"
        "\r\n"
        "[MS Transaction Server]\r\n"
        "AutoRefresh=1\r\n";
    dir.write("Tally.vbp", vbp);
    dir.write("Form1.frm", samples::kVb6Form);
    std::filesystem::create_directory(dir / "src");
    dir.write("src/basMain.bas", samples::kStandardModule);
    dir.write("clsItem.cls", samples::kClassModule);
    dir.write("stray.bas", "Attribute VB_Name = \"Stray\"\r\n");
    auto project = load(dir / "Tally.vbp");
    EXPECT_EQ(project->project()->Name(), u"Tally");
    auto& components = project->project()->components();
    ASSERT_EQ(components.size(), 3u) << "only the listed members";
    EXPECT_EQ(components[0]->Type(), host::vbext_ct_VBForm);
    auto references = project->project()->References();
    ASSERT_EQ(references->Count(), 4);
    EXPECT_EQ(references->Item(1)->Name(), u"VBA");
    EXPECT_EQ(references->Item(2)->Name(), u"VBRUN");
    EXPECT_EQ(references->Item(3)->Name(), u"VB");
    EXPECT_EQ(references->Item(4)->Name(), u"stdole");
    EXPECT_EQ(references->Item(4)->Major(), 2);
    EXPECT_EQ(references->Item(4)->Description(), u"OLE Automation");
    EXPECT_TRUE(project->changes().empty());

    // A new module gets a file and a member line after the last one; a removed one loses both.
    auto added = project->project()->addComponent(u"basNew", host::vbext_ct_StdModule, {u"Option Explicit"});
    project->project()->removeComponent(project->project()->component(u"clsItem"));
    auto written = project->save();
    ASSERT_EQ(written.size(), 3u);
    EXPECT_EQ(dir.read("basNew.bas"), "Attribute VB_Name = \"basNew\"\r\nOption Explicit\r\n");
    EXPECT_FALSE(dir.exists("clsItem.cls"));
    std::string expected = vbp;
    expected.replace(expected.find("Class=clsItem; clsItem.cls\r\n"), 28, "Module=basNew; basNew.bas\r\n");
    EXPECT_EQ(dir.read("Tally.vbp"), expected);
    EXPECT_EQ(dir.read("src/basMain.bas"), samples::kStandardModule);
}

TEST_F(FilesProject, ManifestNamesHostReferencesAndDocuments) {
    dir.write("Report.vbp",
              "Name=\"Report\"\r\nHost=Word\r\nDocument=ThisDocument\r\n"
              "Reference=*\\G{420B2830-E718-11CF-893D-00A0C9054228}#1.0#0#C:\\Windows\\System32\\scrrun.dll#Microsoft Scripting Runtime\r\n"
              "Reference=*\\G{000204EF-0000-0000-C000-000000000046}#4.2#0#VBE7.DLL#Visual Basic For Applications\r\n");
    std::string document = samples::kDocumentModule;
    document.replace(document.find("ThisWorkbook"), 12, "ThisDocument");
    dir.write("ThisDocument.cls", document);
    dir.write("basMain.bas", samples::kStandardModule);
    auto project = load(dir.path());
    EXPECT_EQ(project->project()->Name(), u"Report");
    EXPECT_EQ(project->project()->component(u"ThisDocument")->Type(), host::vbext_ct_Document);
    EXPECT_EQ(project->project()->components()[0]->name(), u"ThisDocument");
    auto references = project->project()->References();
    ASSERT_EQ(references->Count(), 3) << "VBA is not listed twice";
    EXPECT_EQ(references->Item(2)->Name(), u"Word");
    EXPECT_EQ(references->Item(3)->Name(), u"Scripting");

    // A new class in a folder project: a new file; the manifest lists no members, so it is left as it was.
    project->project()->addComponent(u"Class1", host::vbext_ct_ClassModule, {});
    auto written = project->save();
    ASSERT_EQ(written.size(), 1u);
    EXPECT_EQ(written[0].kind, FileChange::Kind::Created);
    EXPECT_EQ(dir.read("Class1.cls").substr(0, 19), "VERSION 1.0 CLASS\r\n");
}

TEST_F(FilesProject, RenameKeepsTheFileAndRewritesVbName) {
    writeFolder();
    auto project = load(dir.path());
    project->project()->component(u"basMain")->Name(u"basStart");
    project->save();
    EXPECT_EQ(dir.read("basMain.bas").substr(0, 32), "Attribute VB_Name = \"basStart\"\r\n");
}

TEST_F(FilesProject, NewModuleWhoseFileIsTakenIsAnError) {
    writeFolder();
    dir.write("Module1.bas.txt", "");
    auto project = load(dir.path());
    dir.write("Module1.bas", "Attribute VB_Name = \"Other\"\r\n");
    project->project()->addComponent(u"Module1", host::vbext_ct_StdModule, {});
    project->project()->component(u"basMain")->codeModule()->InsertLines(1, u"' x");
    EXPECT_THROW(project->save(), ProjectError);
    EXPECT_EQ(dir.read("basMain.bas"), samples::kStandardModule) << "nothing written";
}

TEST_F(FilesProject, BadInputGivesClearErrors) {
    EXPECT_EQ(errorOf(dir / "nowhere"), p("nowhere") + ": no such project file or folder");
    EXPECT_EQ(errorOf(dir.path()), displayPath(dir.path()) + ": the project has no modules (no .bas, .cls or .frm files)");
    dir.write("a.vbp", "Type=Exe\r\nModule=basGone; basGone.bas\r\n");
    EXPECT_EQ(errorOf(dir / "a.vbp"), p("a.vbp") + ": names basGone.bas, which does not exist");
    dir.write("b.vbp", "Type=Exe\r\n");
    EXPECT_EQ(errorOf(dir.path()), displayPath(dir.path()) + ": holds several project files (.vbp); name the one to use");
}

TEST_F(FilesProject, FilesThatAreNotBasicSource) {
    dir.write("good.bas", "Attribute VB_Name = \"Good\"\r\n");
    dir.write("image.bas", std::string("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16));
    EXPECT_EQ(errorOf(dir.path()), p("image.bas") + ": is not Basic source: binary data (byte 0x0 at offset 8)");
    std::filesystem::remove(dir / "image.bas");
    dir.write("broken.cls", "VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1  'True\r\n");
    EXPECT_EQ(errorOf(dir.path()),
              p("broken.cls") + ": is not Basic source: the header that starts with VERSION on line 1 never ends");
    std::filesystem::remove(dir / "broken.cls");
    dir.write("twin.bas", "Attribute VB_Name = \"GOOD\"\r\n");
    EXPECT_EQ(errorOf(dir.path()), p("twin.bas") + ": holds the module GOOD, which " + p("good.bas") + " holds already");
    std::filesystem::remove(dir / "twin.bas");
    dir.write("x.vbp", "CodePage=437\r\n");
    EXPECT_EQ(errorOf(dir.path()), p("x.vbp") + ": unknown code page \"437\" (use 1252 or 65001)");
}

TEST_F(FilesProject, ImportAndExportThroughTheEditor) {
    writeFolder();
    auto project = load(dir.path());
    installFileImportExport(*vbe);
    auto components = project->project()->VBComponents();
    auto imported = components->Import(pathText(dir / "basMain.bas"));
    EXPECT_EQ(imported->Name(), u"basMain1");
    imported->Export(pathText(dir / "exported.bas"));
    std::string expected = samples::kStandardModule;
    expected.replace(expected.find("basMain"), 7, "basMain1");
    EXPECT_EQ(dir.read("exported.bas"), expected);
}

}  // namespace
}  // namespace quillet::hosts::files
