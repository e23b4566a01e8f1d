#pragma once
// The behaviours of the in-memory editor that the real editor leaves uncertain. The defaults are
// what the editor most probably does; tests that depend on one of these set it explicitly.

#include <functional>
#include <string>
#include <vector>

#include "basic/vb_error.h"

namespace quillet::hosts::memory {

using basic::Str;

struct MemoryOptions {
    // Lines(start, count): start < 1 raises 5.
    bool linesStartBelowOneRaises = true;
    // Lines(start, count) with start > CountOfLines raises 5 (otherwise "").
    bool linesStartPastEndRaises = false;
    // Lines(start, 0) raises 5 (otherwise "").
    bool linesZeroCountRaises = false;

    // ProcOfLine with line < 1 or > CountOfLines raises this number; 0 returns "" with kind 0.
    long procOfLineOutOfRangeError = basic::err::SubscriptOutOfRange;

    // InsertLines past CountOfLines + 1 appends; otherwise raises 5.
    bool insertPastEndAppends = true;
    // A line break at the end of the text of InsertLines/ReplaceLine gives one more empty line.
    bool insertTrailingBreakAddsLine = true;
    // A line break at the end of the text of AddFromString gives one more empty line.
    bool addFromStringTrailingBreakAddsLine = false;
    // Applied to every line written through the code module (the editor's pretty lister); none
    // by default.
    std::function<Str(const Str&)> normaliseLine;

    // A #Const just before the first procedure belongs to the declarations (otherwise to the
    // procedure, with the comments).
    bool constBeforeProcIsDeclaration = false;
    // The #End If of a block holding declarations belongs to the declarations.
    bool endIfClosingDeclarationsIsDeclaration = true;

    // SetSelection out of range raises 5; otherwise the values are clamped to the text.
    bool selectionOutOfRangeRaises = false;
    long countOfVisibleLines = 40;

    // VBProject.FileName of a project never saved raises this number; 0 returns "".
    long unsavedFileNameError = 0;
    // Lines a module made by VBComponents.Add starts with ("Option Explicit" when the editor
    // requires variable declaration).
    std::vector<Str> newModuleLines;

    // An old Office: CommandBarControl.Picture and Mask raise 438.
    bool oldOfficeFaces = false;

    Str version = u"7.01";
    Str mainWindowCaption = u"Microsoft Visual Basic for Applications";
};

}  // namespace quillet::hosts::memory
