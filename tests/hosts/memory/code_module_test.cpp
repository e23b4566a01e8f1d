#include "hosts/memory/code_module.h"

#include <gtest/gtest.h>

#include "hosts/memory/memory_host.h"
#include "hosts/memory/support.h"

namespace quillet::hosts::memory {
namespace {

using testing::errorOf;

class MemoryCodeModuleTest : public ::testing::Test {
protected:
    std::shared_ptr<MemoryCodeModule> module(const std::vector<Str>& lines) {
        component_ = vbe_->addProject(u"VBAProject")->addComponent(u"Module1", host::vbext_ct_StdModule, lines);
        return component_->codeModule();
    }
    std::shared_ptr<MemoryVBE> vbe_ = MemoryVBE::create();
    std::shared_ptr<MemoryComponent> component_;
};


TEST_F(MemoryCodeModuleTest, LinesArgumentErrorsByDefault) {
    auto m = module({u"a", u"b"});
    EXPECT_EQ(errorOf([&] { m->Lines(0, 1); }), 5);
    EXPECT_EQ(errorOf([&] { m->Lines(1, -1); }), 5);
    EXPECT_EQ(m->Lines(1, 0), u"");
    EXPECT_EQ(m->Lines(3, 1), u"");
    auto empty = vbe_->activeProject()->addComponent(u"Module2", host::vbext_ct_StdModule)->codeModule();
    EXPECT_EQ(empty->Lines(1, 0), u"");
    EXPECT_EQ(empty->Lines(1, 1), u"");
}

TEST_F(MemoryCodeModuleTest, LinesOptions) {
    vbe_->options().linesZeroCountRaises = true;
    vbe_->options().linesStartPastEndRaises = true;
    vbe_->options().linesStartBelowOneRaises = false;
    auto m = module({u"a", u"b"});
    EXPECT_EQ(errorOf([&] { m->Lines(1, 0); }), 5);
    EXPECT_EQ(errorOf([&] { m->Lines(3, 1); }), 5);
    EXPECT_EQ(m->Lines(0, 1), u"a");
}

TEST_F(MemoryCodeModuleTest, ProcOfLineOutOfRange) {
    auto m = module({u"Sub A()", u"End Sub"});
    long kind = 3;
    EXPECT_EQ(errorOf([&] { m->ProcOfLine(0, kind); }), 9);
    EXPECT_EQ(errorOf([&] { m->ProcOfLine(3, kind); }), 9);
    vbe_->options().procOfLineOutOfRangeError = 0;
    EXPECT_EQ(m->ProcOfLine(3, kind), u"");
    EXPECT_EQ(kind, 0);
}

TEST_F(MemoryCodeModuleTest, ProcOfLineInDeclarationsGivesKindZero) {
    auto m = module({u"Dim a", u"Property Get P()", u"End Property"});
    long kind = 3;
    EXPECT_EQ(m->ProcOfLine(1, kind), u"");
    EXPECT_EQ(kind, 0);
}

TEST_F(MemoryCodeModuleTest, UnknownProcedureRaises35WithItsText) {
    auto m = module({u"Sub A()", u"End Sub"});
    try {
        m->ProcStartLine(u"B", 0);
        FAIL();
    } catch (const basic::VbError& e) {
        EXPECT_EQ(e.Number(), 35);
        EXPECT_EQ(e.Description(), u"Sub or Function not defined");
    }
}

TEST_F(MemoryCodeModuleTest, LayoutFollowsEdits) {
    auto m = module({u"Option Explicit", u"Sub A()", u"End Sub"});
    EXPECT_EQ(m->ProcBodyLine(u"A", 0), 2);
    m->InsertLines(2, u"Dim x As Long");
    EXPECT_EQ(m->ProcBodyLine(u"A", 0), 3);
    EXPECT_EQ(m->CountOfDeclarationLines(), 2);
    m->DeleteLines(1, 2);
    EXPECT_EQ(m->CountOfDeclarationLines(), 0);
    m->ReplaceLine(1, u"Sub B()");
    EXPECT_EQ(errorOf([&] { m->ProcBodyLine(u"A", 0); }), 35);
    EXPECT_EQ(m->ProcBodyLine(u"B", 0), 1);
}

TEST_F(MemoryCodeModuleTest, InsertSplitsAtCrLfCrAndLf) {
    auto m = module({});
    m->InsertLines(1, u"a\r\nb\rc\nd");
    EXPECT_EQ(m->lines(), (std::vector<Str>{u"a", u"b", u"c", u"d"}));
}

TEST_F(MemoryCodeModuleTest, TrailingBreakOfInsertGivesAnEmptyLine) {
    auto m = module({u"x"});
    m->InsertLines(1, u"a\r\n");
    EXPECT_EQ(m->lines(), (std::vector<Str>{u"a", u"", u"x"}));
    vbe_->options().insertTrailingBreakAddsLine = false;
    m->InsertLines(1, u"b\r\n");
    EXPECT_EQ(m->lines(), (std::vector<Str>{u"b", u"a", u"", u"x"}));
}

TEST_F(MemoryCodeModuleTest, InsertPastTheEnd) {
    auto m = module({u"x"});
    m->InsertLines(10, u"y");
    EXPECT_EQ(m->lines(), (std::vector<Str>{u"x", u"y"}));
    EXPECT_EQ(errorOf([&] { m->InsertLines(0, u"z"); }), 5);
    vbe_->options().insertPastEndAppends = false;
    EXPECT_EQ(errorOf([&] { m->InsertLines(10, u"z"); }), 5);
    m->InsertLines(3, u"z");
    EXPECT_EQ(m->CountOfLines(), 3);
}

TEST_F(MemoryCodeModuleTest, ReplaceLineSplitsAndChecksRange) {
    auto m = module({u"a", u"b"});
    m->ReplaceLine(2, u"c\nd\re");
    EXPECT_EQ(m->lines(), (std::vector<Str>{u"a", u"c", u"d", u"e"}));
    EXPECT_EQ(errorOf([&] { m->ReplaceLine(0, u"x"); }), 5);
    EXPECT_EQ(errorOf([&] { m->ReplaceLine(5, u"x"); }), 5);
    auto empty = vbe_->activeProject()->addComponent(u"Module2", host::vbext_ct_StdModule)->codeModule();
    EXPECT_EQ(errorOf([&] { empty->ReplaceLine(1, u"x"); }), 5);
}

TEST_F(MemoryCodeModuleTest, DeleteLinesErrors) {
    auto m = module({u"a", u"b"});
    EXPECT_EQ(errorOf([&] { m->DeleteLines(0, 1); }), 5);
    EXPECT_EQ(errorOf([&] { m->DeleteLines(1, -1); }), 5);
    EXPECT_EQ(errorOf([&] { m->DeleteLines(3, 1); }), 5);
    m->DeleteLines(2);
    EXPECT_EQ(m->lines(), (std::vector<Str>{u"a"}));
}

TEST_F(MemoryCodeModuleTest, AddFromStringPlacement) {
    auto m = module({u"Option Explicit", u"", u"' about A", u"Sub A()", u"End Sub"});
    m->AddFromString(u"Dim x As Long\r\n");
    EXPECT_EQ(m->lines(),
              (std::vector<Str>{u"Option Explicit", u"Dim x As Long", u"", u"' about A", u"Sub A()", u"End Sub"}));
}

TEST_F(MemoryCodeModuleTest, AddFromStringWithOnlyCommentsAboveTheFirstProcedure) {
    auto m = module({u"' header", u"Sub A()", u"End Sub"});
    m->AddFromString(u"Option Explicit");
    EXPECT_EQ(m->lines(), (std::vector<Str>{u"Option Explicit", u"' header", u"Sub A()", u"End Sub"}));
}

TEST_F(MemoryCodeModuleTest, AddFromStringIntoEmptyAndCommentOnlyModules) {
    auto m = module({});
    m->AddFromString(u"Sub A()\r\nEnd Sub\r\n");
    EXPECT_EQ(m->lines(), (std::vector<Str>{u"Sub A()", u"End Sub"}));
    auto c = vbe_->activeProject()->addComponent(u"Module2", host::vbext_ct_StdModule, {u"' only"})->codeModule();
    c->AddFromString(u"Dim a");
    EXPECT_EQ(c->lines(), (std::vector<Str>{u"' only", u"Dim a"}));
    c->AddFromString(u"");
    EXPECT_EQ(c->CountOfLines(), 2);
}

TEST_F(MemoryCodeModuleTest, NormaliserSeesEveryWrittenLine) {
    vbe_->options().normaliseLine = [](const Str& line) { return basic::Replace(line, u"\t", u"    "); };
    auto m = module({});
    m->InsertLines(1, u"\tx = 1\r\n\ty = 2");
    m->ReplaceLine(1, u"\tz = 3");
    EXPECT_EQ(m->lines(), (std::vector<Str>{u"    z = 3", u"    y = 2"}));
}

TEST_F(MemoryCodeModuleTest, ChangeCountGrowsWithEveryWrite) {
    auto m = module({u"a"});
    long before = component_->changeCount();
    m->InsertLines(1, u"b");
    m->ReplaceLine(1, u"c");
    m->DeleteLines(1);
    EXPECT_EQ(component_->changeCount(), before + 3);
    m->Lines(1, 1);
    EXPECT_EQ(component_->changeCount(), before + 3);
}

TEST_F(MemoryCodeModuleTest, ComponentTextRoundTrip) {
    module({});
    component_->setText(u"a\r\nb\r\n");
    EXPECT_EQ(component_->lines(), (std::vector<Str>{u"a", u"b"}));
    EXPECT_EQ(component_->text(), u"a\r\nb");
    component_->setText(u"");
    EXPECT_EQ(component_->codeModule()->CountOfLines(), 0);
}

}  // namespace
}  // namespace quillet::hosts::memory
