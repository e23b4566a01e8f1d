// libFuzzer target for the source tools' text layer: the Basic tokenizer that VB2HTML and
// Colorize share (with and without the marks of fragments), VB2HTML itself, and the rules of line
// numbers and comment lines. Any input must end in a result, never a crash, a hang or an
// out-of-bounds read; the tokens must cover the text exactly, in order, none empty, and the
// numbering must take off again what it put on (indented lines aside).
//
// Built and run by scripts/fuzz.sh. The input is read as UTF-8 (ill-formed parts become U+FFFD),
// so that the seed corpus can be plain Basic source.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "basic/unicode.h"
#include "tools/basic_tokens.h"
#include "tools/numbering_text.h"
#include "tools/vb2html.h"

using namespace quillet;
using namespace quillet::tools;

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

void checkCover(const Str& text, const TokenizerOptions& options) {
    size_t at = 0;
    for (const BasicToken& token : TokenizeBasic(text, options)) {
        require(token.start == at && token.length > 0 && token.start + token.length <= text.size());
        require(token.wordClass == WordClass::Plain || token.kind == TokenKind::Word);
        at += token.length;
    }
    require(at == text.size());
}

void checkNumbering(const Str& text) {
    std::vector<Str> lines = basic::Split(text, u"\r\n");
    long last = static_cast<long>(lines.size());
    std::vector<Str> plain = lines;
    RemoveLineNumbers(plain, {1, last, 0});
    std::vector<Str> numbered = plain;
    AddLineNumbers(numbered, {1, last, 1}, 0);
    std::vector<Str> again = numbered;
    RemoveLineNumbers(again, {1, last, 0});
    require(again.size() == plain.size());
    for (size_t n = 0; n < plain.size(); ++n) {
        // A numbered line comes back as it was, but for the single blank of a line indented by one
        // (a number and one blank are cut as one); an indented line keeps its four more blanks. A
        // line that still begins with digits (a number cut at a colon: "10:20x") loses them again.
        const Str& was = plain[n];
        if (!was.empty() && was[0] >= u'0' && was[0] <= u'9') continue;
        bool oneBlankIndent = was.size() >= 2 && was[0] == u' ' && was[1] != u' ';
        require(again[n] == was || again[n] == u"    " + was || (oneBlankIndent && again[n] == was.substr(1)));
        long removedAt = 0;
        Str uncommented = UncommentedLine(u"'" + plain[n], removedAt);
        require(uncommented == plain[n] && removedAt == 1);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Str text = basic::fromUtf8(std::string_view(reinterpret_cast<const char*>(data), size));
    checkCover(text, TokenizerOptions{});
    checkCover(text, TokenizerOptions{true});
    Str html = VB2HTML(text);
    require(html.size() >= 6 && html.compare(html.size() - 6, 6, u"<br>\r\n") == 0);
    checkNumbering(text);
    return 0;
}
