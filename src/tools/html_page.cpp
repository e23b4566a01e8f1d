#include "tools/html_page.h"

#include "core/err_handler.h"
#include "basic/unicode.h"
#include "settings/ansi_text.h"

namespace quillet::tools {

namespace {

constexpr char16_t kWhere[] = u"modVB2HTML.WriteHtmlPage";

bool isUtf8(const Str& charset) {
    return basic::StrComp(charset, u"utf-8", basic::Compare::Text) == 0 ||
           basic::StrComp(charset, u"utf8", basic::Compare::Text) == 0;
}

}  // namespace

std::optional<Str> HtmlTemplateIn(const settings::FileSystem& files, const Str& folder) {
    Str path = folder + kHtmlTemplateFile;
    if (!files.FileExists(path)) return std::nullopt;
    std::string bytes;
    if (files.ReadAll(path, bytes) != settings::fserr::None) return std::nullopt;
    return settings::fromAnsi(bytes);
}

std::string HtmlPageBytes(const Str& page, const Str& charset) {
    if (isUtf8(charset)) return basic::toUtf8(page);
    std::string out;
    out.reserve(page.size());
    for (size_t n = 0; n < page.size(); ++n) {
        char16_t c = page[n];
        std::string byte = settings::toAnsi(std::u16string_view(&page[n], 1));
        if (c < 0x80 || byte != "?") {
            out += byte;
            continue;
        }
        // A character outside the code page, a pair of surrogates as one.
        char32_t code = c;
        if (c >= 0xD800 && c <= 0xDBFF && n + 1 < page.size() && page[n + 1] >= 0xDC00 && page[n + 1] <= 0xDFFF) {
            code = 0x10000 + ((static_cast<char32_t>(c) - 0xD800) << 10) + (page[n + 1] - 0xDC00);
            ++n;
        }
        out += "&#" + std::to_string(static_cast<unsigned long>(code)) + ";";
    }
    return out;
}

std::optional<Str> WriteHtmlPage(core::Context& ctx, const Str& moduleName, const Str& procedureName,
                                 const Str& code) {
    std::optional<Str> written;
    core::guarded(ctx, kWhere, [&] {
        auto& platform = ctx.Platform();
        const auto& files = ctx.IniSettings->Files;
        HtmlPageFields fields{moduleName, procedureName, u"windows-1252", code};
        Str page = HtmlPageFill(HtmlTemplateIn(files, platform.AddinFolder()).value_or(kDefaultHtmlPage), fields);
        Str path = platform.TempFolder() + kHtmlPageFile;
        if (int error = files.WriteAll(path, HtmlPageBytes(page, fields.charset)); error != settings::fserr::None)
            throw basic::VbError(75, u"Path/File access error: " + path);
        written = path;
        platform.ShellOpen(path);
    });
    return written;
}

}  // namespace quillet::tools
