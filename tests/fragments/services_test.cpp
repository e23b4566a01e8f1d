// Error handling added to the procedure at the caret, from the command to the module's text.

#include "fragments/services.h"

#include "../addin/scan_fixture.h"
#include "addin/quillet_handle.h"
#include "settings/catalogue.h"

namespace quillet::fragments {
namespace {

using basic::Str;

class FragmentServices : public testing::ScanCommandFixture {
protected:
    FragmentServices() {
        FragmentServicesInstall(*ctx);
        auto& values = ctx->IniSettings->IniItemValue;
        if (values.size() < static_cast<size_t>(settings::IniItemCount)) values.resize(settings::IniItemCount);
        values[settings::iiExitHandler] = Str(u"HandleExit");
        values[settings::iiErrorHandler] = Str(u"HandleError");
        // No name constants: the handler keeps the names as text.
    }
};

const Str kHandler = u"    On Error GoTo {HANDLEERRORLABEL}\r\n<end_of_top><begin_of_bottom>\r\n\r\n{HANDLEEXITLABEL}:\r\n"
                     u"    Exit {PROCEDURETYPE}\r\n\r\n{HANDLEERRORLABEL}:\r\n"
                     u"    MsgBox Err.Description, , \"{MODULENAME}.{PROCEDURENAME}\"\r\n    Resume {HANDLEEXITLABEL}\r\n";

TEST_F(FragmentServices, ErrorHandlingGoesRoundTheProcedure) {
    writeErrorHandler("Plain.bas", kHandler);
    openModule({u"Option Explicit", u"", u"Function Total(n As Long) As Long", u"    Dim i As Long", u"    Total = n",
                u"End Function"},
               5, 5);
    addin::QuilletHandle(*ctx, u"ErrorHandling", u"Plain");
    EXPECT_EQ(moduleText(),
              u"Option Explicit\r\n\r\n"
              u"Function Total(n As Long) As Long\r\n    Dim i As Long\r\n"
              u"    On Error GoTo HandleError\r\n    Total = n\r\n\r\nHandleExit:\r\n    Exit Function\r\n\r\n"
              u"HandleError:\r\n    MsgBox Err.Description, , \"basMain.Total\"\r\n"
              u"    Resume HandleExit\r\nEnd Function");
    EXPECT_TRUE(reports.empty());
}

TEST_F(FragmentServices, TheServicesAreInstalled) {
    EXPECT_TRUE(ctx->Fragments.ExpandHeader);
    EXPECT_TRUE(ctx->Fragments.ErrorHandleModuleAdd);
    EXPECT_TRUE(ctx->Fragments.NormalizeErrorHandlerCode);
    EXPECT_TRUE(ctx->Fragments.FragmentToProcedureAdd);
}

}  // namespace
}  // namespace quillet::fragments
