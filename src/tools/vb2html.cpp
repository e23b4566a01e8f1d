#include "tools/vb2html.h"

#include "tools/basic_tokens.h"

namespace quillet::tools {

const char16_t kDefaultHtmlPage[] =
    u"<html><head><META HTTP-EQUIV='Content-Type' CONTENT='text/html; charset=[charset]'><style>body "
    u"{font-family:'Courier New';font-size:'10pt';}</style><title>[title]</title></head><body>[code]</body></html>";

namespace {

constexpr char16_t kBreak[] = u"<br>";

// The text with the characters HTML gives a meaning escaped, and blanks kept as blanks the
// browser does not fold.
void appendEscaped(Str& out, std::u16string_view text) {
    for (char16_t c : text) {
        switch (c) {
            case u'<': out += u"&lt;"; break;
            case u'>': out += u"&gt;"; break;
            case u'&': out += u"&amp;"; break;
            case u' ': out += u"&nbsp;"; break;
            default: out += c;
        }
    }
}

void appendColoured(Str& out, const char16_t* colour, std::u16string_view text) {
    out += u"<font color=";
    out += colour;
    out += u">";
    appendEscaped(out, text);
    out += u"</font>";
}

}  // namespace

Str VB2HTML(const Str& text) {
    Str out;
    out.reserve(text.size() * 2);
    bool afterComment = false;
    for (const BasicToken& token : TokenizeBasic(text)) {
        auto piece = token.text(text);
        bool breakOfComment = afterComment && (token.kind == TokenKind::LineBreak || token.kind == TokenKind::LoneLineFeed);
        afterComment = false;
        if (breakOfComment) continue;
        switch (token.kind) {
            case TokenKind::Word:
                if (token.wordClass == WordClass::Keyword)
                    appendColoured(out, u"#000080", piece);
                else if (token.wordClass == WordClass::Function)
                    appendColoured(out, u"#000000", piece);
                else
                    appendEscaped(out, piece);
                break;
            case TokenKind::Comment:
                // A comment closes its own line: the line break behind it is taken with it.
                appendColoured(out, u"#008000", piece);
                out += kBreak;
                afterComment = true;
                break;
            case TokenKind::LineBreak: out += kBreak; break;
            case TokenKind::LoneLineFeed: break;
            default: appendEscaped(out, piece); break;
        }
    }
    out += kBreak;
    out += u"\r\n";
    return out;
}

Str HtmlPageFill(const Str& pageTemplate, const HtmlPageFields& fields) {
    Str title = fields.moduleName;
    if (!fields.procedureName.empty()) title += u"." + fields.procedureName;
    Str page = basic::Replace(pageTemplate, u"[modulename]", fields.moduleName);
    page = basic::Replace(page, u"[procedurename]", fields.procedureName);
    page = basic::Replace(page, u"[title]", title);
    page = basic::Replace(page, u"[charset]", fields.charset.empty() ? Str(u"windows-1252") : fields.charset);
    return basic::Replace(page, u"[code]", fields.code);
}

}  // namespace quillet::tools
