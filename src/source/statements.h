#pragma once
// Cutting Basic source text into its pieces: continued lines, statements of one line, the items
// of a comma list, and the type-suffix characters.

#include <string>
#include <vector>

#include "basic/strings.h"

namespace quillet::source {

using basic::Str;

// The suffix characters that name a type: ! # $ % & @.
inline constexpr char16_t kTypeSuffixChars[] = u"!#$%&@";

// True when the line, trimmed, ends in "_": the statement goes on on the next line.
bool LineContinues(const Str& line);

// The pieces of a comma list: a "," outside a string ends a piece; each piece is trimmed; an
// empty last piece is not kept.
std::vector<Str> SplitArguments(const Str& text);

// The statements of a line joined from its continuation lines, trimmed. Without ": " in the text
// the whole text is the one statement (a trailing comment stays on it). Otherwise ":" outside
// quotes ends a statement and "'" outside quotes ends the scan, dropping the comment.
std::vector<Str> LineDisjunction(const Str& text);

// Whether c is one of the type-suffix characters.
bool IsTypeSuffix(char16_t c);
// "Single", "Double", "String", "Integer", "Long" or "Currency" for a suffix; "" otherwise.
Str TypeCharToName(const Str& suffix);

// Removes every character of `chars` from the text.
Str RemoveChars(const Str& text, const Str& chars);

// The characters up to, not including, the first "(", blank, tab, carriage return or line feed:
// the name at the start of a declaration item.
size_t nameEnd(const Str& text);

}  // namespace quillet::source
