#include "hosts/memory/project.h"

#include <gtest/gtest.h>

#include "hosts/memory/memory_host.h"
#include "hosts/memory/support.h"

namespace quillet::hosts::memory {
namespace {

using testing::errorOf;

class MemoryProjectTest : public ::testing::Test {
protected:
    std::shared_ptr<MemoryVBE> vbe_ = MemoryVBE::create();
    std::shared_ptr<MemoryProject> project_ = vbe_->addProject(u"VBAProject", u"", u"Excel");
    host::VBComponentsPtr components() { return vbe_->ActiveVBProject()->VBComponents(); }
};

TEST_F(MemoryProjectTest, AddGeneratesTheNextFreeName) {
    project_->addComponent(u"Module1", host::vbext_ct_StdModule);
    project_->addComponent(u"module3", host::vbext_ct_StdModule);
    EXPECT_EQ(components()->Add(host::vbext_ct_StdModule)->Name(), u"Module2");
    EXPECT_EQ(components()->Add(host::vbext_ct_StdModule)->Name(), u"Module4");
    EXPECT_EQ(components()->Add(host::vbext_ct_ClassModule)->Name(), u"Class1");
    EXPECT_EQ(components()->Add(host::vbext_ct_MSForm)->Name(), u"UserForm1");
}

TEST_F(MemoryProjectTest, AddOfOtherTypesRaises5) {
    EXPECT_EQ(errorOf([&] { components()->Add(host::vbext_ct_Document); }), 5);
    EXPECT_EQ(errorOf([&] { components()->Add(host::vbext_ct_ActiveXDesigner); }), 5);
    EXPECT_EQ(errorOf([&] { components()->Add(0); }), 5);
}

TEST_F(MemoryProjectTest, NewModulesStartWithTheConfiguredLines) {
    vbe_->options().newModuleLines = {u"Option Compare Database", u"Option Explicit"};
    auto added = components()->Add(host::vbext_ct_StdModule);
    EXPECT_EQ(added->CodeModule()->Lines(1, 2), u"Option Compare Database\r\nOption Explicit");
    EXPECT_EQ(added->CodeModule()->CountOfDeclarationLines(), 2);
}

TEST_F(MemoryProjectTest, RenameChecksNames) {
    auto a = project_->addComponent(u"basA", host::vbext_ct_StdModule);
    project_->addComponent(u"basB", host::vbext_ct_StdModule);
    try {
        a->Name(u"BASB");
        FAIL();
    } catch (const basic::VbError& e) {
        EXPECT_EQ(e.Number(), 32813);
        EXPECT_EQ(e.Description(), u"Name conflicts with existing module, project, or object library");
    }
    EXPECT_EQ(errorOf([&] { a->Name(u"1bas"); }), 5);
    EXPECT_EQ(errorOf([&] { a->Name(u"bas A"); }), 5);
    EXPECT_EQ(errorOf([&] { a->Name(u""); }), 5);
    EXPECT_EQ(errorOf([&] { a->Name(Str(32, u'a')); }), 5);
    a->Name(u"BASA");
    EXPECT_EQ(a->Name(), u"BASA");
    a->Name(u"bas_A2");
    EXPECT_EQ(components()->Item(u"bas_a2")->Name(), u"bas_A2");
    EXPECT_EQ(errorOf([&] { project_->addComponent(u"BASB", host::vbext_ct_StdModule); }), 32813);
}

TEST_F(MemoryProjectTest, DocumentModulesCannotBeRemoved) {
    auto sheet = project_->addComponent(u"Sheet1", host::vbext_ct_Document, {u"Option Explicit"});
    EXPECT_EQ(errorOf([&] { components()->Remove(sheet); }), 5);
    EXPECT_EQ(components()->Count(), 1);
    EXPECT_EQ(sheet->Type(), host::vbext_ct_Document);
}

TEST_F(MemoryProjectTest, RemoveClosesThePane) {
    auto a = project_->addComponent(u"basA", host::vbext_ct_StdModule, {u"x"});
    vbe_->openPane(a);
    components()->Remove(components()->Item(u"basA"));
    EXPECT_EQ(vbe_->CodePanes()->Count(), 0);
    EXPECT_EQ(vbe_->SelectedVBComponent(), nullptr);
    EXPECT_EQ(a->CodeModule()->Lines(1, 1), u"x");  // still usable by whoever holds it
}

TEST_F(MemoryProjectTest, ImportAndExportGoThroughTheInjectedFunctions) {
    auto a = project_->addComponent(u"basA", host::vbext_ct_StdModule);
    EXPECT_EQ(errorOf([&] { components()->Import(u"C:\\x.bas"); }), 53);
    EXPECT_EQ(errorOf([&] { a->Export(u"C:\\x.bas"); }), 75);
    Str importedFrom, exportedTo;
    vbe_->setImporter([&](MemoryProject& project, const Str& path) {
        importedFrom = path;
        return project.addComponent(u"basImported", host::vbext_ct_StdModule, {u"' imported"});
    });
    vbe_->setExporter([&](MemoryComponent& component, const Str& path) { exportedTo = component.name() + u"@" + path; });
    auto imported = components()->Import(u"C:\\lib\\basImported.bas");
    EXPECT_EQ(imported->Name(), u"basImported");
    EXPECT_EQ(importedFrom, u"C:\\lib\\basImported.bas");
    a->Export(u"C:\\out\\basA.bas");
    EXPECT_EQ(exportedTo, u"basA@C:\\out\\basA.bas");
}

TEST_F(MemoryProjectTest, LockedProjectKeepsItsComponentsOutOfReach) {
    project_->setProtection(host::vbext_pp_locked);
    EXPECT_EQ(vbe_->ActiveVBProject()->Protection(), 1);
    try {
        vbe_->ActiveVBProject()->VBComponents();
        FAIL();
    } catch (const basic::VbError& e) {
        EXPECT_EQ(e.Number(), 50289);
    }
}

TEST_F(MemoryProjectTest, FileNameOfAProjectNeverSaved) {
    EXPECT_EQ(vbe_->ActiveVBProject()->FileName(), u"");
    vbe_->options().unsavedFileNameError = 76;
    EXPECT_EQ(errorOf([&] { vbe_->ActiveVBProject()->FileName(); }), 76);
    project_->setFileName(u"C:\\Book1.xlsm");
    EXPECT_EQ(vbe_->ActiveVBProject()->FileName(), u"C:\\Book1.xlsm");
}

TEST_F(MemoryProjectTest, ReferencesOfEachHost) {
    for (const char16_t* host : {u"Excel", u"Word", u"Access", u"Outlook", u"PowerPoint", u"VBRUN", u"Visio"}) {
        auto references = standardReferences(host);
        ASSERT_EQ(references.size(), 2u);
        EXPECT_EQ(references[0].name, u"VBA");
        EXPECT_EQ(references[1].name, host);
        EXPECT_TRUE(references[1].builtIn);
        EXPECT_EQ(references[1].guid.size(), 38u);
    }
    project_->references().push_back({u"ADODB", u"C:\\msado15.dll", u"{guid}", 6, 1, u"ADO", false, true});
    auto refs = vbe_->ActiveVBProject()->References();
    EXPECT_EQ(refs->Count(), 3);
    EXPECT_TRUE(refs->Item(3)->IsBroken());
    EXPECT_FALSE(refs->Item(3)->BuiltIn());
    EXPECT_EQ(refs->Item(1)->FullPath().substr(refs->Item(1)->FullPath().size() - 8), u"VBE7.DLL");
    EXPECT_EQ(errorOf([&] { refs->Item(4); }), 9);
}

TEST_F(MemoryProjectTest, ProjectNameChecksSyntax) {
    vbe_->ActiveVBProject()->Name(u"MyTools");
    EXPECT_EQ(vbe_->ActiveVBProject()->Name(), u"MyTools");
    EXPECT_EQ(errorOf([&] { vbe_->ActiveVBProject()->Name(u"My Tools"); }), 5);
}

TEST_F(MemoryProjectTest, FormsHaveADesignerAndModulesDoNot) {
    auto form = project_->addComponent(u"frmA", host::vbext_ct_MSForm);
    auto module = project_->addComponent(u"basA", host::vbext_ct_StdModule);
    EXPECT_NE(form->Designer(), nullptr);
    EXPECT_EQ(form->Designer(), form->Designer());
    EXPECT_EQ(form->DesignerWindow()->Type(), host::vbext_wt_Designer);
    EXPECT_EQ(module->Designer(), nullptr);
    EXPECT_EQ(errorOf([&] { module->DesignerWindow(); }), 5);
    EXPECT_NE(module->Properties(), nullptr);
    EXPECT_NE(form->CodeModule(), nullptr);
}

TEST_F(MemoryProjectTest, ActivateShowsTheComponent) {
    auto module = project_->addComponent(u"basA", host::vbext_ct_StdModule);
    auto form = project_->addComponent(u"frmA", host::vbext_ct_MSForm);
    module->Activate();
    EXPECT_EQ(vbe_->ActiveCodePane()->CodeModule()->Name(), u"basA");
    EXPECT_EQ(vbe_->ActiveWindow()->Type(), host::vbext_wt_CodeWindow);
    form->Activate();
    EXPECT_EQ(vbe_->ActiveWindow()->Type(), host::vbext_wt_Designer);
    EXPECT_EQ(vbe_->SelectedVBComponent()->Name(), u"frmA");
}

TEST_F(MemoryProjectTest, MetadataStaysOutOfTheCode) {
    auto cls = project_->addComponent(u"clsA", host::vbext_ct_ClassModule, {u"Option Explicit", u"Sub A()", u"End Sub"});
    cls->metadata().header = {u"VERSION 1.0 CLASS", u"BEGIN", u"  MultiUse = -1  'True", u"END"};
    cls->metadata().moduleAttributes = {u"Attribute VB_Name = \"clsA\""};
    cls->metadata().memberAttributes.push_back({u"A", host::vbext_pk_Proc, {u"Attribute A.VB_UserMemId = 0"}});
    EXPECT_EQ(cls->CodeModule()->CountOfLines(), 3);
    EXPECT_EQ(cls->CodeModule()->ProcBodyLine(u"A", 0), 2);
    EXPECT_EQ(cls->metadata().memberAttributes[0].lines[0], u"Attribute A.VB_UserMemId = 0");
}

}  // namespace
}  // namespace quillet::hosts::memory
