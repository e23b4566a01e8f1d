#include "core/command_env.h"

#include "addin/quillet_handle.h"
#include "scan_fixture.h"
#include "source/name_checks.h"

namespace quillet::addin {
namespace {

using testing::joinLines;
using testing::ScanCommandFixture;

class ScanCommands : public ScanCommandFixture {};

TEST_F(ScanCommands, InitializeTakesTheScansOfTheCaret) {
    openModule({u"Private mlngCount As Long", u"", u"Sub A()", u"    Dim x As Long", u"    total = 1", u"End Sub"}, 5,
               6);
    initialize(*ctx, u"Dim", u"Long");
    ASSERT_TRUE(ctx->Quick.ModuleScan);
    EXPECT_TRUE(ctx->Quick.ModuleScan->ModuleVars.Exists(u"mlngCount"));
    ASSERT_TRUE(ctx->Quick.ProcScan);
    EXPECT_TRUE(ctx->Quick.ProcScan->ProcVars.Exists(u"x"));
    EXPECT_TRUE(ctx->Quick.ModuleProcs.Exists(u"A"));
    EXPECT_EQ(ctx->Quick.CurrentWord, u"total");
    EXPECT_EQ(ctx->Quick.Command, u"Dim");
    EXPECT_TRUE(ctx->Scan.ProjectProcs->Exists(u"A"));
}

TEST_F(ScanCommands, InitializeOutsideAProcedureHasNoProcedureScan) {
    openModule({u"Private mlngCount As Long", u"", u"Sub A()", u"End Sub"}, 2, 1);
    initialize(*ctx, u"Exit", u"");
    EXPECT_FALSE(ctx->Quick.ProcScan);
    EXPECT_TRUE(ctx->Quick.CurrentWord.empty());
}

TEST_F(ScanCommands, InitializeSuggestsAPrefixedName) {
    ctx->Prefixes = source::PrefixesCollectionsCreate(source::PrefixSettings{},
                                                      {{u"Long", u"lng", u"", u"", u""}, {u"String", u"str", u"", u"", u""}});
    openModule({u"Sub A()", u"    Count", u"End Sub"}, 2, 6);
    initialize(*ctx, u"Dim", u"Long");
    EXPECT_EQ(ctx->Quick.CurrentWord, u"Count");
    EXPECT_EQ(ctx->Quick.SuggestedName, u"lngCount");
    initialize(*ctx, u"Const", u"String");
    EXPECT_EQ(ctx->Quick.SuggestedName, u"cstrCount");
    initialize(*ctx, u"Enum", u"Long");
    EXPECT_TRUE(ctx->Quick.SuggestedName.empty());
}

TEST_F(ScanCommands, NewNameIsOKLooksAtTheProjectModuleAndProcedure) {
    openModule({u"Public gTotal As Long", u"Private mCount As Long", u"", u"Sub A()", u"    Dim x", u"    x = 1",
                u"End Sub"},
               6, 5);
    initialize(*ctx, u"Dim", u"");
    EXPECT_EQ(NewNameIsOK(*ctx, u"fresh", source::KindVariable), 0);
    for (const char16_t* used : {u"gTotal", u"mCount", u"x", u"A"}) {
        platform->queueAnswer(u"no");
        EXPECT_EQ(NewNameIsOK(*ctx, used, source::KindVariable), 7) << basic::toUtf8(used);
    }
    platform->queueAnswer(u"yes");
    EXPECT_EQ(NewNameIsOK(*ctx, u"x", source::KindConstant), 0);
    // Another kind is checked for its form only.
    EXPECT_EQ(NewNameIsOK(*ctx, u"x", source::KindEnum), 0);
    EXPECT_EQ(NewNameIsOK(*ctx, u"", source::KindEnum), source::kNameEmpty);
    platform->queueAnswer(u"cancel");
    EXPECT_EQ(NewNameIsOK(*ctx, u"9lives", source::KindEnum), 2);
}

TEST_F(ScanCommands, AddCodeLineGoesIntoTheProcedureAtTheCaret) {
    openModule({u"Sub A()", u"    A = 1", u"End Sub"}, 2, 1);
    EXPECT_TRUE(AddCodeLine(*ctx, u"Dim b As Long"));
    EXPECT_EQ(moduleText(), joinLines({u"Sub A()", u"    Dim b As Long", u"    A = 1", u"End Sub"}));
}

TEST_F(ScanCommands, AddCodeLineOutsideProceduresGoesToTheDeclarations) {
    openModule({u"Option Explicit", u"Dim a", u"", u"Sub A()", u"End Sub"}, 2, 1);
    EXPECT_TRUE(AddCodeLine(*ctx, u"Enum Colour\r\n    Red\r\nEnd Enum"));
    EXPECT_EQ(moduleText(), joinLines({u"Option Explicit", u"Dim a", u"Enum Colour", u"    Red", u"End Enum", u"",
                                       u"Sub A()", u"End Sub"}));
}

TEST_F(ScanCommands, AddCodeLineAsksForANewModuleAndCancelWritesNothing) {
    openModule({u"Sub A()", u"End Sub"}, 1, 1);
    platform->queueAnswer(u"cancel");
    EXPECT_FALSE(AddCodeLine(*ctx, u"Dim a", u"<New Module>"));
    EXPECT_EQ(platform->shownBoxes().back().prompt, u"Name of Module");
    EXPECT_EQ(platform->shownBoxes().back().title, u"Quillet");
    platform->queueAnswer(u"cancel");
    EXPECT_FALSE(AddCodeLine(*ctx, u"Dim a", u"basOther"));
    EXPECT_EQ(platform->shownBoxes().back().prompt, u"Create module basOther?");
    EXPECT_EQ(project->VBComponents()->Count(), 1);
}

TEST_F(ScanCommands, AddCodeLineIntoABlock) {
    openModule({u"Enum Colour", u"    Red", u"End Enum"}, 1, 1);
    EXPECT_TRUE(AddCodeLine(*ctx, u"Green", u"basMain", 2));
    EXPECT_EQ(moduleText(), joinLines({u"Enum Colour", u"    Red", u"    Green", u"End Enum"}));
}

TEST_F(ScanCommands, ExitThroughTheProcedureScan) {
    openModule({u"Function F() As Long", u"    If F > 1 Then ", u"    ", u"End Function"}, 2, 19);
    QuilletHandle(*ctx, u"Exit", u"");
    EXPECT_EQ(moduleText(), joinLines({u"Function F() As Long", u"    If F > 1 Then Exit Function", u"    ", u"End Function"}));
    vbe->ActiveCodePane()->SetSelection(3, 5, 3, 5);
    QuilletHandle(*ctx, u"Exit", u"");
    EXPECT_EQ(moduleText(),
              joinLines({u"Function F() As Long", u"    If F > 1 Then Exit Function", u"    Exit Function", u"End Function"}));
}

TEST_F(ScanCommands, ExitOutsideAProcedureDoesNothing) {
    openModule({u"Dim a", u"", u"Sub A()", u"End Sub"}, 2, 1);
    QuilletHandle(*ctx, u"Exit", u"");
    EXPECT_EQ(moduleText(), joinLines({u"Dim a", u"", u"Sub A()", u"End Sub"}));
}

}  // namespace
}  // namespace quillet::addin
