// The quick block commands: what they write, where, and where the caret ends up.

#include "addin/block_commands.h"

#include "core/caret.h"
#include "addin/quillet_handle.h"
#include "addin_fixture.h"

namespace quillet::testing {
namespace {

using addin::QuilletHandle;

class BlockCommands : public AddinFixture {
protected:
    // Option Explicit / blank / Public Sub Main() / Dim / indented blank / End Sub
    std::vector<Str> procModule() {
        return {u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long", u"    ", u"End Sub"};
    }
    void expectCaret(long line, long col) {
        long l = 0, c = 0;
        caret(l, c);
        EXPECT_EQ(l, line);
        EXPECT_EQ(c, col);
    }
};

TEST_F(BlockCommands, EndIfBlockReplacesBlankLineAtItsIndent) {
    openModule(procModule(), 5, 5);
    QuilletHandle(*ctx, u"End If", u"");
    EXPECT_EQ(moduleText(), joinLines({u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long",
                                       u"    If  Then", u"        ", u"    End If", u"End Sub"}));
    expectCaret(5, 8);
    EXPECT_TRUE(reports.empty());
}

TEST_F(BlockCommands, IfThenOnUsedLineGoesBelowWithCaretInNewLine) {
    openModule(procModule(), 4, 10);
    QuilletHandle(*ctx, u"If Then", u"");
    EXPECT_EQ(moduleText(), joinLines({u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long",
                                       u"    If  Then", u"    ", u"End Sub"}));
    expectCaret(5, 8);
}

TEST_F(BlockCommands, IfThenElse) {
    openModule(procModule(), 5, 5);
    QuilletHandle(*ctx, u"If Then Else", u"");
    EXPECT_EQ(moduleText(), joinLines({u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long",
                                       u"    If  Then", u"        ", u"    Else", u"        ", u"    End If",
                                       u"End Sub"}));
    expectCaret(5, 8);
}

TEST_F(BlockCommands, ElseIfCountComesFromTheInputBox) {
    openModule(procModule(), 5, 5);
    platform->queueAnswer(u"2");
    QuilletHandle(*ctx, u"If Then ElseIf Else", u"");
    EXPECT_EQ(moduleText(), joinLines({u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long",
                                       u"    If  Then", u"        ", u"    ElseIf Then", u"        ",
                                       u"    ElseIf Then", u"        ", u"    Else", u"        ", u"    End If",
                                       u"End Sub"}));
    ASSERT_EQ(platform->shownBoxes().size(), 1u);
    EXPECT_EQ(platform->shownBoxes()[0].prompt, u"Number of 'ElseIf'");
    EXPECT_EQ(platform->shownBoxes()[0].title, u"If Then ElseIf Else");
}

TEST_F(BlockCommands, ElseIfWithoutElse) {
    openModule(procModule(), 5, 5);
    platform->queueAnswer(u"1");
    QuilletHandle(*ctx, u"If Then Else If", u"");
    EXPECT_EQ(moduleText(), joinLines({u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long",
                                       u"    If  Then", u"        ", u"    ElseIf Then", u"        ", u"    End If",
                                       u"End Sub"}));
}

TEST_F(BlockCommands, CancellingElseIfCountInsertsNothing) {
    auto lines = procModule();
    openModule(lines, 5, 5);
    platform->queueAnswer(u"cancel");
    QuilletHandle(*ctx, u"If Then Else If", u"");
    EXPECT_EQ(moduleText(), joinLines(lines));
    platform->queueAnswer(u"");
    QuilletHandle(*ctx, u"If Then ElseIf Else", u"");
    EXPECT_EQ(moduleText(), joinLines(lines));
    QuilletHandle(*ctx, u"If Then ElseIf Else", u"");  // no answer left: Cancel
    EXPECT_EQ(moduleText(), joinLines(lines));
    EXPECT_EQ(platform->shownBoxes().size(), 3u);
}

TEST_F(BlockCommands, LoopShapes) {
    struct Case {
        const char16_t* command;
        const char16_t* first;
        const char16_t* last;
        long caretCol;
    };
    const Case cases[] = {
        {u"IfDoLoopWhile", u"    Do While ", u"    Loop", 14},
        {u"IfDoLoopUntil", u"    Do Until ", u"    Loop", 14},
        {u"ForEachNext", u"    For Each  In", u"    Next", 14},
        {u"ForNext", u"    For  To", u"    Next", 9},
        {u"While", u"    While ", u"    Wend", 11},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(basic::toUtf8(c.command));
        vbe = memory::MemoryVBE::create();
        wirePlatform(*platform, vbe);
        ctx = std::make_unique<core::Context>(vbe, platform);
        project.reset();
        openModule(procModule(), 5, 5);
        QuilletHandle(*ctx, c.command, u"");
        EXPECT_EQ(moduleText(), joinLines({u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long",
                                           c.first, u"        ", c.last, u"End Sub"}));
        expectCaret(5, c.caretCol);
    }
}

TEST_F(BlockCommands, BlankLineHoldingOnlyIndentationStartsTheBlockAtTheCaretColumn) {
    openModule({u"Sub Main()", u"    If a Then", u"        ", u"    End If", u"End Sub"}, 3, 9);
    QuilletHandle(*ctx, u"ForNext", u"");
    EXPECT_EQ(moduleText(), joinLines({u"Sub Main()", u"    If a Then", u"        For  To", u"            ",
                                       u"        Next", u"    End If", u"End Sub"}));
    expectCaret(3, 13);
}

TEST_F(BlockCommands, TabWidthAbsentGivesFourSpaces) {
    openModule(procModule(), 5, 5);
    EXPECT_EQ(core::TabSpaces(*ctx), u"    ");
    platform->setRegistryValue(u"Software\\Microsoft\\VBA\\6.0\\Common", u"TabWidth", u"2");
    EXPECT_EQ(core::TabSpaces(*ctx), u"  ");
    QuilletHandle(*ctx, u"While", u"");
    EXPECT_EQ(project->component(u"basMain")->CodeModule()->Lines(5, 3), joinLines({u"    While ", u"      ", u"    Wend"}));
}

TEST_F(BlockCommands, InsideAProcedureAtColumnOneIndentsOneStep) {
    openModule({u"Sub Main()", u"", u"End Sub"}, 2, 1);
    QuilletHandle(*ctx, u"End If", u"");
    EXPECT_EQ(moduleText(), joinLines({u"Sub Main()", u"    If  Then", u"        ", u"    End If", u"End Sub"}));
}

TEST_F(BlockCommands, EmptyModuleGetsTheBlockOnLineOne) {
    openModule({}, 1, 1);
    QuilletHandle(*ctx, u"End If", u"");
    EXPECT_EQ(moduleText(), joinLines({u"If  Then", u"    ", u"End If"}));
    expectCaret(1, 4);
}

TEST_F(BlockCommands, WithBlockPushesAUsedLineDown) {
    openModule(procModule(), 4, 5);
    addin::WithCodeInsert(*ctx, u"wksData");
    EXPECT_EQ(moduleText(), joinLines({u"Option Explicit", u"", u"Public Sub Main()", u"    With wksData",
                                       u"        ", u"    End With", u"    Dim x As Long", u"    ", u"End Sub"}));
    expectCaret(5, 9);
}

TEST_F(BlockCommands, WithBlockReplacesABlankLine) {
    openModule(procModule(), 5, 5);
    addin::WithCodeInsert(*ctx, u"wksData");
    EXPECT_EQ(moduleText(), joinLines({u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long",
                                       u"    With wksData", u"        ", u"    End With", u"End Sub"}));
}

TEST_F(BlockCommands, StatementOnBlankLineAtTheCaretColumn) {
    openModule(procModule(), 5, 5);
    QuilletHandle(*ctx, u"On Error Resume Next", u"");
    EXPECT_EQ(project->component(u"basMain")->CodeModule()->Lines(5, 1), u"    On Error Resume Next");
    expectCaret(5, 25);
}

TEST_F(BlockCommands, StatementBelowAUsedLine) {
    openModule(procModule(), 4, 3);
    QuilletHandle(*ctx, u"Exit For", u"");
    EXPECT_EQ(moduleText(), joinLines({u"Option Explicit", u"", u"Public Sub Main()", u"    Dim x As Long",
                                       u"    Exit For", u"    ", u"End Sub"}));
    expectCaret(5, 13);
}

TEST_F(BlockCommands, ExitNamesTheProcedureKind) {
    openModule({u"Private Function Total() As Long", u"    ", u"End Function", u"",
                u"Public Property Get Name() As String", u"    ", u"End Property"},
               2, 5);
    QuilletHandle(*ctx, u"Exit", u"");
    EXPECT_EQ(project->component(u"basMain")->CodeModule()->Lines(2, 1), u"    Exit Function");
    vbe->ActiveCodePane()->SetSelection(6, 5, 6, 5);
    QuilletHandle(*ctx, u"Exit", u"");
    EXPECT_EQ(project->component(u"basMain")->CodeModule()->Lines(6, 1), u"    Exit Property");
}

TEST_F(BlockCommands, ExitInLineWhenNothingStandsRightOfTheCaret) {
    openModule({u"Sub Main()", u"    If done Then", u"End Sub"}, 2, 17);
    QuilletHandle(*ctx, u"Exit", u"");
    EXPECT_EQ(project->component(u"basMain")->CodeModule()->Lines(2, 1), u"    If done Then Exit Sub");
    expectCaret(2, 26);
}

TEST_F(BlockCommands, ExitOutsideAProcedureDoesNothing) {
    auto lines = procModule();
    openModule(lines, 1, 1);
    QuilletHandle(*ctx, u"Exit", u"");
    EXPECT_EQ(moduleText(), joinLines(lines));
    vbe->ActiveCodePane()->SetSelection(2, 1, 2, 1);  // the blank line above the procedure
    QuilletHandle(*ctx, u"Exit", u"");
    EXPECT_EQ(moduleText(), joinLines(lines));
    EXPECT_TRUE(reports.empty());
}

TEST_F(BlockCommands, DebugPrintGoesIntoALineEndingInAColon) {
    openModule({u"Sub Main()", u"    x = 1: ", u"End Sub"}, 2, 12);
    ctx->Quick.Command = u"Debug.Print ";
    addin::CodeInsert(*ctx, u"Debug.Print ");
    EXPECT_EQ(project->component(u"basMain")->CodeModule()->Lines(2, 1), u"    x = 1: Debug.Print ");
}

TEST_F(BlockCommands, NothingOutsideACodeWindow) {
    auto lines = procModule();
    openModule(lines, 5, 5);
    vbe->setActiveWindow(memory::ActiveWindowKind::Immediate);
    QuilletHandle(*ctx, u"End If", u"");
    EXPECT_EQ(moduleText(), joinLines(lines));
    EXPECT_TRUE(reports.empty());
}

TEST_F(BlockCommands, CommandsNotBuiltYetLeaveTheCodeAlone) {
    auto lines = procModule();
    openModule(lines, 5, 5);
    for (const char16_t* command : {u"Dim", u"With", u"Select Case", u"GoTo", u"ErrorHandling", u"Insert Objectname"})
        QuilletHandle(*ctx, command, u"");
    QuilletHandle(*ctx, u"No Such Command", u"");
    EXPECT_EQ(moduleText(), joinLines(lines));
    EXPECT_TRUE(addin::isQuickCommand(u"Debug.Print "));
    EXPECT_FALSE(addin::isQuickCommand(u"Debug.Print"));
}

TEST_F(BlockCommands, CurrentCommandNamesTheReport) {
    openModule(procModule(), 5, 5);
    QuilletHandle(*ctx, u"While", u"");
    EXPECT_EQ(ctx->CurrentCommand, u"While.");
}

TEST_F(BlockCommands, LineIndentLooksUpPastBlankLines) {
    openModule({u"Sub Main()", u"      x = 1", u"", u"   ", u"End Sub"}, 4, 1);
    EXPECT_EQ(core::LineIndentGet(*ctx, 4), 6);
    EXPECT_EQ(core::LineIndentGet(*ctx, 1), 0);
    EXPECT_EQ(core::CursorIndentGet(*ctx), 6);
}

}  // namespace
}  // namespace quillet::testing
