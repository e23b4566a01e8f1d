#pragma once
// The page of "Con&vert to HTML": the user's template beside the add-in, or the default page,
// filled in and written to "vb2html.htm" in the temporary folder, then opened.

#include <optional>
#include <string>

#include "core/context.h"
#include "tools/vb2html.h"

namespace quillet::tools {

// The template "vb2htmltemplate.htm" of the folder (Windows-1252 text, as the editor's files),
// or none when the folder has no such file or it cannot be read.
std::optional<Str> HtmlTemplateIn(const settings::FileSystem& files, const Str& folder);

// The page's bytes in its character set: UTF-8 for "utf-8"; otherwise Windows-1252, a character
// that has no byte there written as a numeric reference (Ж as "&#1046;").
std::string HtmlPageBytes(const Str& page, const Str& charset);

// WriteHtmlPage(moduleName, procedureName, code): the page filled in (the template beside the
// add-in, else the default page; the character set "windows-1252"), written atomically to
// "vb2html.htm" in the temporary folder over any old one, and opened. The path written, or none
// when it could not be written (reported through HandleError).
std::optional<Str> WriteHtmlPage(core::Context& ctx, const Str& moduleName, const Str& procedureName,
                                 const Str& code);

}  // namespace quillet::tools
