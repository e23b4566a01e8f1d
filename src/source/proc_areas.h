#pragma once
// The parts of a procedure the builders place code by: the declaration area behind the header,
// the line before which an exit label goes, and the kind word of the header. Each works on a
// module (start line above 0) or on a text (start line 0).

#include <vector>

#include "host/objects.h"
#include "source/module_text.h"

namespace quillet::source {

// A line of declarations: it begins with "Const ", "Dim " or "Static " (ignoring case), or is
// blank, or the line before it ends in " _".
bool IsDeclarationLine(const Str& line, const Str& previous);

// True when the trimmed line at `index` is like "If *": only a one-line If makes an exit inside
// an If.
bool LineInsideIf(const std::vector<Str>& lines, long index);

// "Function", "Property" or "Sub": the word the statement holds before the procedure's name
// and its "(" (the whole statement when that is not found), ignoring case.
Str ProcedureTypeGet(const Str& vstrName, const Str& vstrStatement);

// The line of the procedure's last "Exit <type>" that is no comment (the text's last line when it
// has none, or when a one-line If holds the exit and fCheckIf is set). With vlngStart above 0 the
// lines vlngStart to vlngEnd come from the module (or `text`) into rstrCode; with 0, rstrCode is
// the text, and a hit comes back as its 0-based index.
long ProcExitLineGet(long vlngStart, long vlngEnd, const Str& vstrProcType, Str& rstrCode, bool fCheckIf,
                     host::CodeModule* module = nullptr, const ModuleText* text = nullptr);

// The declaration area of the procedure whose header begins at vlngLine (in the module, or in
// rstrCode when vlngLine is below 1): rDefLines the header's lines, rStart the first line behind
// the header and the comments under it, rEnd the last line of the declarations (behind an
// "On Error" line too, which counts itself with fWithOnError), trailing blank lines left out.
// With vlngLine above 0 the procedure's text comes back in rstrCode.
void ProcDeclAreaGet(long& rStart, long& rEnd, long vlngLine, long& rDefLines, bool fWithOnError, Str& rstrCode,
                     host::CodeModule* module = nullptr, const ModuleText* text = nullptr);

}  // namespace quillet::source
