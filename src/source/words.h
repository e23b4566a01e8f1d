#pragma once
// Words of the source: the word at the caret and the name a declaration keyword introduces.

#include "host/objects.h"

namespace quillet::source {

using basic::Str;

// The characters a picked-up word loses: " `~!@#$%^&*()-+={}[]?<>,." and the double quote.
inline constexpr char16_t kWordRemovedChars[] = u" `~!@#$%^&*()-+={}[]?<>,.\"";

// The word at the caret of the active pane: the text between the blanks (or tabs, or line ends)
// round the caret, or the selected text when a part of one line is selected, less the characters
// of kWordRemovedChars; "" when what remains has 32 characters or more, or without a pane.
Str CurrentWordGet(host::VBE& vbe);
// The text selected on one line of the active pane as it stands (blanks and quotes kept); the
// word at the caret (CurrentWordGet) when nothing is selected.
Str SelectedTextGet(host::VBE& vbe);
// The same on a line of text with the selection given (columns 1-based, end exclusive).
Str WordAtColumns(const Str& line, long startCol, long endCol);

// The name declared after the keyword `kind` ("Enum", "Type", "Sub" ...) in the line: the word
// that follows the keyword, up to a blank, "(", ":" or "'". "" when the keyword is not there as a
// word of its own.
Str KindNameGet(const Str& kind, const Str& line);

}  // namespace quillet::source
