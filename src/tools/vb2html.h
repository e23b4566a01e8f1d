#pragma once
// Code to HTML: VB2HTML colours Basic source with <font color=...> tags (functions black,
// keywords dark blue, comments green) for a page, and the page around it: the default page or
// the user's template "vb2htmltemplate.htm", with its placeholders filled in.

#include "basic/strings.h"

namespace quillet::tools {

using basic::Str;

// The HTML body for the text: "<", ">" and "&" as entities, each blank as "&nbsp;", each line
// end as "<br>", ending in "<br>" and CRLF.
Str VB2HTML(const Str& text);

// The page used when no template file is there.
extern const char16_t kDefaultHtmlPage[];
// The template's name, looked for in the add-in's own folder.
inline constexpr char16_t kHtmlTemplateFile[] = u"vb2htmltemplate.htm";
// The page's name in the temporary folder.
inline constexpr char16_t kHtmlPageFile[] = u"vb2html.htm";

struct HtmlPageFields {
    Str moduleName;
    Str procedureName;  // empty for a whole module
    Str charset;        // "windows-1252" when empty
    Str code;           // the body, from VB2HTML
};

// The template with, in this order and every time they occur, "[modulename]", "[procedurename]",
// "[title]" (the module's name, or module "." procedure), "[charset]" and "[code]" replaced.
Str HtmlPageFill(const Str& pageTemplate, const HtmlPageFields& fields);

}  // namespace quillet::tools
