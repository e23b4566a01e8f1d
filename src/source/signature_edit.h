#pragma once
// Adds one argument to the text of a procedure's header, which may run over several lines
// joined by " _" and CRLF: the argument list is found outside strings and comments, and the new
// argument goes before a chosen one or behind the last.

#include <optional>

#include "basic/strings.h"

namespace quillet::source {

using basic::Str;

// The header `definition` (its lines joined by CRLF) with `argument` put in: before the argument
// numbered `before` (from 1), or behind the last when `before` is 0 or past the end. Behind the
// last, a header of several lines takes the argument on a line of its own when blnNewLine is set;
// before an argument that begins its line, the new one takes a line of its own too, with that
// line's indent. Nothing when the header has no argument list.
std::optional<Str> SignatureArgumentInsert(const Str& definition, const Str& argument, long before, bool blnNewLine);

}  // namespace quillet::source
