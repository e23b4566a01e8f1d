#pragma once
// The text rules of modNumbering, on lines held in memory: which lines of a selection get a line
// number, which get four blanks instead, which stay as they are, how a number is cut off again,
// and how a comment's apostrophe comes off. The commands (line_numbers.h, comment_lines.h) read
// the module once, apply these rules and write the result back in one change.

#include <vector>

#include "basic/strings.h"

namespace quillet::tools {

using basic::Str;

// Lines that get no number and no change: "Dim,Const,Static,End Function".
extern const std::vector<Str> kNoNumberWords;
// Lines that get no number but four blanks more, for a number is not allowed before them:
// "Case,Else,End If,End Select,End With,Wend,Next,Exit,End,Resume,GoTo,GoSub,Return,With,Doevents".
extern const std::vector<Str> kIndentWords;

// Whether the trimmed line begins with one of the words, compared without regard to case over
// exactly the word's length: no word boundary is asked for, so "Dimension = 1" begins with "Dim".
bool BeginsWithWordOf(const Str& trimmed, const std::vector<Str>& words);

// FindISFunction: whether the line declares a Sub, Function or Property, with or without
// "Private ", "Global ", "Public " or "Friend " (and then "Static ") in front.
bool FindISFunction(const Str& text);
// A label line: it ends in ":" and holds no blank ("ErrHandler:").
bool IsLabelLine(const Str& text);
// BeginComment: the line's first character outside a string literal, blanks aside, is "'".
bool BeginComment(const Str& text);

// GetLineWithoutNumber: the line less the digits it begins with; after digits, one ":" and then
// one blank go too, unless that blank is the first of several (the line's own indentation).
Str GetLineWithoutNumber(const Str& text);

// The lines of a module (index 0 is line 1) and the range of a selection in it.
struct NumberingRange {
    long first = 1;  // first line of the selection
    long last = 0;   // last line of the selection, not past the module's end
    // Lines 1 to declarationLines are the module's declarations: no number is allowed there.
    long declarationLines = 0;
};

// UnReplaceLines on the lines first..last: each loses its line number, except a continuation
// line (the line above ends in "_"), whose leading digits are part of the statement.
void RemoveLineNumbers(std::vector<Str>& lines, const NumberingRange& range);

// ReplaceLines on the lines first..last, which hold no numbers: line L gets the number base + L,
// or four blanks, or stays, by the rules above. base 0 is taken as 1000.
void AddLineNumbers(std::vector<Str>& lines, const NumberingRange& range, long base);

// The line less its first apostrophe when, blanks aside, it begins with one; otherwise as it is.
// `removedAt` gets the apostrophe's column, 0 when none went.
Str UncommentedLine(const Str& line, long& removedAt);

}  // namespace quillet::tools
