#pragma once
// Where the procedures of a module lie, computed from its visible lines the way the editor
// computes it: the declarations section ends at its last real declaration; a procedure starts
// on the line after the End of the one before (so comments and blank lines above a header
// belong to it), its body line is the first physical line of its header, and the last
// procedure takes every line to the end of the module.

#include <string>
#include <vector>

#include "basic/strings.h"
#include "hosts/memory/options.h"

namespace quillet::hosts::memory {

struct ProcInfo {
    Str name;
    long kind = 0;        // vbext_ProcKind
    long startLine = 0;   // ProcStartLine
    long bodyLine = 0;    // ProcBodyLine
    long headerEnd = 0;   // last physical line of the header
    long endLine = 0;     // last line covered (ProcStartLine + ProcCountLines - 1)
    long countLines() const { return endLine - startLine + 1; }
};

struct ProcLayout {
    long countOfLines = 0;
    long countOfDeclarationLines = 0;
    std::vector<ProcInfo> procs;

    // The procedure of that name (ignoring case) and kind, or none.
    const ProcInfo* find(const Str& name, long kind) const;
    // The procedure covering the line, or none (declarations, or out of range).
    const ProcInfo* ofLine(long line) const;
};

struct LayoutRules {
    bool constBeforeProcIsDeclaration = false;
    bool endIfClosingDeclarationsIsDeclaration = true;
};

ProcLayout computeProcLayout(const std::vector<Str>& lines, const LayoutRules& rules = {});

// What one logical line of Basic is, as far as procedure boundaries go.
enum class LineRole { Blank, Comment, Directive, ConstDirective, IfDirective, EndIfDirective, Header, End, Code };

struct Classified {
    LineRole role = LineRole::Code;
    Str name;            // Header: the procedure's name
    long kind = 0;       // Header: its kind
    bool closesOnSameLine = false;  // Header: "Sub X(): End Sub"
};

// Classifies a logical line (continuations already joined).
Classified classifyLogicalLine(const Str& text);

// A physical line ending in a continuation (" _").
bool continuesOnNextLine(const Str& line);

}  // namespace quillet::hosts::memory
