// Error reports: their text, their way into the Immediate window, and their retry.

#include "core/err_handler.h"

#include "core/frm_timer.h"
#include "addin_fixture.h"

namespace quillet::testing {
namespace {

using core::HandleError;
using basic::VbError;

class ErrorReports : public AddinFixture {
protected:
    ErrorReports() {
        ctx->TimerForm = std::make_unique<core::frmTimer>(*ctx);
        ctx->CurrentCommand = u"If Then.";
    }
    const Str header = u"[please report to support@quillet.dev]\r\nVersion: 0.1.0\r\n";
};

TEST_F(ErrorReports, TextOfAReport) {
    HandleError(*ctx, VbError(5, u"Invalid procedure call or argument"), 12, u"basQuillet.CodeInsert", u"basQuillet",
                u".CodeInsert");
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0],
              u"Quillet.If Then. Error - 5: Invalid procedure call or argument\r\nin basQuillet.CodeInsert line "
              u"12\r\nbasQuillet.CodeInsert");
}

TEST_F(ErrorReports, NoLocationLineWithoutModuleMemberOrLine) {
    HandleError(*ctx, VbError(91, u"Object variable or With block variable not set"), 0, u"basQuillet.QuilletHandle");
    EXPECT_EQ(reports[0],
              u"Quillet.If Then. Error - 91: Object variable or With block variable not set\r\nbasQuillet.QuilletHandle");
}

TEST_F(ErrorReports, PastedIntoTheImmediateWindowWithoutADialog) {
    HandleError(*ctx, VbError(9, u"Subscript out of range"), 0, u"basX.Y");
    EXPECT_EQ(vbe->immediateText(),
              header + u"Quillet.If Then. Error - 9: Subscript out of range\r\nbasX.Y\r\n");
    EXPECT_TRUE(ctx->PendingReport.empty());
    EXPECT_TRUE(platform->shownBoxes().empty());
    EXPECT_EQ(platform->sentKeys(), std::vector<Str>{u"^v"});
    EXPECT_FALSE(ctx->ImmediateActive);
    EXPECT_FALSE(platform->hourglassOn());
}

TEST_F(ErrorReports, ClosedImmediateWindowIsOpenedAndGetsThePaste) {
    vbe->immediateWindow()->Visible(false);
    HandleError(*ctx, VbError(9, u"Subscript out of range"), 0, u"basX.Y");
    EXPECT_TRUE(vbe->immediateWindow()->Visible());
    EXPECT_NE(vbe->immediateText().find(u"Subscript out of range"), Str::npos);
}

TEST_F(ErrorReports, FocusGoesBackWhereItWas) {
    openModule({u"Sub Main()", u"End Sub"});
    auto before = vbe->focusedWindow();
    HandleError(*ctx, VbError(9, u"Subscript out of range"), 0, u"basX.Y");
    EXPECT_EQ(vbe->focusedWindow(), before);
}

TEST_F(ErrorReports, TestingModeShowsAMessageBoxToo) {
    ctx->TestingMode = true;
    HandleError(*ctx, VbError(13, u"Type mismatch"), 0, u"basX.Y");
    ASSERT_EQ(platform->shownBoxes().size(), 1u);
    EXPECT_EQ(platform->shownBoxes()[0].buttons, 48);
    EXPECT_EQ(platform->shownBoxes()[0].title, u"Quillet.If Then. Error");
    EXPECT_EQ(platform->shownBoxes()[0].prompt, u"13: Type mismatch\r\nbasX.Y");
    EXPECT_NE(vbe->immediateText().find(u"Type mismatch"), Str::npos);
}

TEST_F(ErrorReports, ModalDialogHoldingTheFocusMakesTimer3RetryUntilThePasteSucceeds) {
    ctx->ImmediateWindowHandle = core::FindImmediateWindowHandle(*ctx);
    vbe->setModalDialog(true);
    HandleError(*ctx, VbError(9, u"Subscript out of range"), 0, u"first");
    HandleError(*ctx, VbError(13, u"Type mismatch"), 0, u"second");
    EXPECT_TRUE(vbe->immediateText().empty());
    EXPECT_EQ(ctx->TimerForm->Timer3.Interval, 1000);
    EXPECT_EQ(ctx->PendingReport, header + u"Quillet.If Then. Error - 9: Subscript out of range\r\nfirst\r\n" +
                                      u"Quillet.If Then. Error - 13: Type mismatch\r\nsecond\r\n");

    ctx->TimerForm->Timer3_Timer();  // still blocked
    EXPECT_EQ(ctx->TimerForm->Timer3.Interval, 1000);
    EXPECT_TRUE(vbe->immediateText().empty());

    vbe->setModalDialog(false);
    ctx->TimerForm->Timer3_Timer();
    EXPECT_EQ(ctx->TimerForm->Timer3.Interval, 0);
    EXPECT_TRUE(ctx->PendingReport.empty());
    EXPECT_NE(vbe->immediateText().find(u"first"), Str::npos);
    EXPECT_NE(vbe->immediateText().find(u"second"), Str::npos);
}

TEST_F(ErrorReports, ExceptionsOfAnyKindBecomeErrors) {
    EXPECT_EQ(core::errorOf(std::make_exception_ptr(VbError(35, u"x"))).Number(), 35);
    EXPECT_EQ(core::errorOf(std::make_exception_ptr(std::bad_alloc())).Number(), 7);
    auto other = core::errorOf(std::make_exception_ptr(std::runtime_error("disk full")));
    EXPECT_EQ(other.Number(), 1004);
    EXPECT_EQ(other.Description(), u"disk full");
    EXPECT_EQ(core::errorOf(std::make_exception_ptr(42)).Number(), 1004);
}

TEST_F(ErrorReports, GuardedStatementReportsAndGoesOn) {
    bool after = false;
    bool ran = core::guarded(*ctx, u"basX.Y", [] { throw VbError(5, u"Invalid procedure call or argument"); });
    after = true;
    EXPECT_FALSE(ran);
    EXPECT_TRUE(after);
    EXPECT_EQ(reports.size(), 1u);
}

}  // namespace
}  // namespace quillet::testing
