#include "cli/html_command.h"

#include <cstdlib>

#include "cli/project_session.h"
#include "cli/settings_command.h"
#include "cli/tool.h"
#include "hosts/files/atomic_write.h"
#include "hosts/files/project_error.h"
#include "hosts/memory/memory_host.h"
#include "settings/file_system.h"
#include "tools/html_page.h"

namespace quillet::cli {

namespace files = hosts::files;
namespace memory = hosts::memory;

namespace {

constexpr char16_t kCharset[] = u"utf-8";

Str moduleText(memory::MemoryProject& project, const Str& name) {
    auto component = project.component(name);
    if (!component) throw files::ProjectError("the project has no module named " + basic::toUtf8(name));
    auto module = component->CodeModule();
    if (!module) throw files::ProjectError(basic::toUtf8(name) + " has no code module");
    long count = module->CountOfLines();
    return count > 0 ? module->Lines(1, count) : Str();
}

// The user's template in the data folder, else the default page.
Str pageTemplate(const ToolOptions& options) {
    auto data = findDataFolder(options, [](const std::string& name) -> std::optional<std::string> {
        const char* value = std::getenv(name.c_str());
        return value ? std::optional<std::string>(value) : std::nullopt;
    });
    if (!data) return tools::kDefaultHtmlPage;
    settings::FileSystem files;
    Str folder = files.systemPath(*data);
    if (!folder.empty() && folder.back() != u'\\') folder += u'\\';
    return tools::HtmlTemplateIn(files, folder).value_or(tools::kDefaultHtmlPage);
}

}  // namespace

int htmlPage(const ToolOptions& options, std::ostream& out, std::ostream&) {
    auto project = loadProjectFiles(options, memory::MemoryVBE::create());
    Str code = tools::VB2HTML(moduleText(*project->project(), *options.scanModule));
    tools::HtmlPageFields fields{*options.scanModule, {}, kCharset, code};
    std::string bytes = tools::HtmlPageBytes(tools::HtmlPageFill(pageTemplate(options), fields), kCharset);
    if (!options.output) {
        out << bytes;
        return kExitOk;
    }
    const std::string& path = *options.output;
    files::writeFileAtomically(std::filesystem::path(std::u8string(path.begin(), path.end())), bytes);
    return kExitOk;
}

}  // namespace quillet::cli
