// The error-handling module, imported from its template when a handler first needs it.

#include "fragments/error_module.h"

#include "fragments/placeholders.h"
#include "fragments_fixture.h"

namespace quillet::fragments {
namespace {

class ErrorModule : public testing::FragmentsFixture {
protected:
    ErrorModule() {
        openModule({u"Public Sub Foo()", u"    ", u"End Sub"}, 2, 5);
        std::filesystem::create_directories(dir / "tmp");
        platform->setTempFolder(settings().Files.systemPath(dir / "tmp") + u"\\");
        set(settings::iiErrorHandleFile, u"ErrorHandlers\\basErrorHandle.bas");
        set(settings::iiModuleHeaderFile, u"ModuleHeader.bas");
        write("ModuleHeader.bas", "' {MODULENAME} by {AUTHOR}");
        write("ErrorHandlers/basErrorHandle.bas",
              "Attribute VB_Name = \"{MODULENAME}\"\r\n{MODULEHEADER}Option Explicit\r\n"
              "Public Sub {PROCEDURENAME}(ByVal Source As String)\r\n    Debug.Print \"{PROJECTNAME} \" & Source\r\n"
              "End Sub\r\n");
        vbe->setImporter([this](hosts::memory::MemoryProject& target, const Str& path) {
            imported.push_back(path);
            std::string bytes;
            EXPECT_EQ(settings().Files.ReadAll(path, bytes), 0);
            Str text = basic::fromUtf8(bytes);
            Str code = basic::Mid(text, basic::InStr(text, u"\r\n") + 2);
            return target.addComponentText(u"basErrorHandle", host::vbext_ct_StdModule, code);
        });
    }
    std::vector<Str> imported;
};

TEST_F(ErrorModule, TheTemplateIsImportedOnceWithItsNamesAndHeader) {
    tabWidth(u"2");
    ErrorHandleModuleAdd(*ctx);
    ASSERT_EQ(imported.size(), 1u);
    EXPECT_EQ(basic::Right(imported[0], 19), u"\\basErrorHandle.bas");
    EXPECT_FALSE(std::filesystem::exists(dir / "tmp" / "basErrorHandle.bas"));
    EXPECT_EQ(moduleText(u"basErrorHandle"),
              u"' basErrorHandle by Ann Smith\r\nOption Explicit\r\nPublic Sub ErrorReport(ByVal Source As String)\r\n"
              u"  Debug.Print \"VBAProject \" & Source\r\nEnd Sub");
    ASSERT_TRUE(ctx->Scan.ProjectProcs);
    EXPECT_TRUE(ctx->Scan.ProjectProcs->Exists(u"ErrorReport"));
    ErrorHandleModuleAdd(*ctx);
    EXPECT_EQ(imported.size(), 1u);
    EXPECT_TRUE(reports.empty());
}

TEST_F(ErrorModule, TheHandlerProcedurePlaceholderBringsTheModuleIn) {
    Str text = u"{ERRORHANDLEPROCEDURE} \"{MODULENAME}.{PROCEDURENAME}\"", module, procedure, type;
    Substitute(*ctx, text, module, procedure, type);
    EXPECT_EQ(text, u"ErrorReport \"basMain.Foo\"");
    EXPECT_EQ(imported.size(), 1u);
}

TEST_F(ErrorModule, AMissingTemplateDoesNothing) {
    set(settings::iiErrorHandleFile, u"ErrorHandlers\\Missing.bas");
    ErrorHandleModuleAdd(*ctx);
    EXPECT_TRUE(imported.empty());
    EXPECT_TRUE(reports.empty());
}

}  // namespace
}  // namespace quillet::fragments
