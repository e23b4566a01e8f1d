#pragma once
// Placeholders in the texts the add-in writes into modules (headers, fragments, templates): the
// fixed ones ({AUTHOR}, {MODULENAME}, {INCLUDE path} ...) replaced in a fixed order, ignoring
// case; the run of four blanks that stands for the editor's indentation; and the variable ones
// ({STRING1}, {LONG:count}, {EXCEL.RANGE:rng=Selection}) that the user fills in.

#include <optional>
#include <string>
#include <vector>

#include "core/context.h"

namespace quillet::fragments {

using basic::Str;

// Header kinds of ExpandHeader.
constexpr long kProcedureHeader = 10005;
constexpr long kModuleHeader = 10008;

// Every run of four blanks becomes the indent unit (as many blanks as the editor's tab width).
Str TabStopsReplace(core::Context& ctx, const Str& text);

// Replaces the fixed placeholders in place; an empty name is looked up when its placeholder
// occurs (the active module, the procedure at the caret, its kind) and handed back.
void Substitute(core::Context& ctx, Str& text, Str& moduleName, Str& procedureName, Str& procedureType);
// Replaces each {INCLUDE path} whose file (below the root folder) has content by that content,
// itself substituted; a missing or empty file, or an include without "}", stays as it stands.
void FileSubstitute(core::Context& ctx, Str& text, Str& moduleName, Str& procedureName, Str& procedureType);

// The procedure (kProcedureHeader) or module (kModuleHeader) header file, expanded for `name`,
// with CRLF behind; empty when the file is missing or empty.
Str ExpandHeader(core::Context& ctx, long headerKind, const Str& name, const Str& description);

// A free text as comment lines ("'   " in front, CRLF behind), lines over 50 characters wrapped
// at the first blank from position 50 on.
Str FormatDescription(const Str& text);

// A placeholder the user fills in: {TYPE}, {TYPE:name} or {TYPE:name=default}.
struct VariablePlaceholder {
    Str text;           // the whole placeholder, braces included
    Str type;           // "STRING1", "EXCEL.RANGE"
    Str baseType;       // the type without the digits and other non-letters at its end: "STRING"
    Str name;           // behind ":"
    Str defaultValue;   // behind "="
    bool hasName = false;
    bool hasDefault = false;
};

// True for a fixed placeholder ({AUTHOR} ...; "{INCLUDE " followed by a path and "}"), ignoring case.
bool IsFixedPlaceholder(const Str& text);
// The text as a variable placeholder: like "{?*}" and not a fixed one.
std::optional<VariablePlaceholder> ParseVariablePlaceholder(const Str& text);
// The variable placeholders of a text, in order, each once (compared binary).
std::vector<VariablePlaceholder> VariablePlaceholders(const Str& text);

}  // namespace quillet::fragments
