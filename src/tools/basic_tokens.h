#pragma once
// The one-pass tokenizer of Basic source that both colourings share: VB2HTML (the page of a
// module) and Colorize (the fragment preview). It cuts a text into words, string literals,
// comments, line breaks, blanks and single other characters, and tells for each word whether it
// stands in the functions list (drawn black) or the keywords list (drawn dark blue), with the
// spelling of its list entry. A renderer walks the tokens once and writes its own output:
//
//     for (const BasicToken& token : TokenizeBasic(text, TokenizerOptions{})) {
//         std::u16string_view piece = token.text(text);
//         switch (token.kind) { ... }
//     }
//
// Colorize sets TokenizerOptions::fragmentMarks, so that a placeholder "{...}" comes as one
// Placeholder token and "<cursor>", "<end_of_top>", "<begin_of_bottom>" as Marker tokens; it
// recolours each token's span and, for a listed word, writes `canonical` over it (so a typed
// "DIM" shows "Dim"), and for a Comment token that begins with Rem writes "rem" over those three
// letters.

#include <string_view>
#include <vector>

#include "basic/strings.h"

namespace quillet::tools {

using basic::Str;

enum class TokenKind {
    Word,         // letters, "_" and "#"; digits are not word characters ("Int2" is "Int" and "2")
    String,       // from a double quote to the next one, or to the line's end when none follows
    Comment,      // from "'" or the word Rem to the line's end, line break excluded
    LineBreak,    // CR, or CR LF
    LoneLineFeed, // an LF that follows no CR
    Blank,        // one blank
    Other,        // any other single character (digits, operators, "(", tabs ...)
    Placeholder,  // with fragmentMarks: "{" to the matching "}" or to the line's end
    Marker,       // with fragmentMarks: "<cursor>", "<end_of_top>" or "<begin_of_bottom>"
};

// The list a word stands in. A word in both lists counts as a keyword.
enum class WordClass { Plain, Function, Keyword };

struct BasicToken {
    TokenKind kind = TokenKind::Other;
    size_t start = 0;   // index into the text (0-based)
    size_t length = 0;  // in UTF-16 units
    WordClass wordClass = WordClass::Plain;
    // For a listed word, the spelling of its list entry ("Dim" for "DIM"); empty otherwise.
    std::u16string_view canonical;

    std::u16string_view text(const Str& source) const { return std::u16string_view(source).substr(start, length); }
};

struct TokenizerOptions {
    bool fragmentMarks = false;  // placeholders and markers of fragments (Colorize)
};

// The two lists, as the colourings keep them: each word with "*" before and after it.
extern const char16_t kFunctionsList[];
extern const char16_t kKeywordsList[];

// The class of a word and the spelling of its entry; matched without regard to case.
WordClass ClassifyWord(std::u16string_view word, std::u16string_view* canonical = nullptr);

// The tokens of the text, in order, covering it whole.
std::vector<BasicToken> TokenizeBasic(const Str& text, const TokenizerOptions& options = {});

}  // namespace quillet::tools
