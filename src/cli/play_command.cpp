#include "cli/play_command.h"

#include <fstream>
#include <sstream>

#include "core/context.h"
#include "addin/lifecycle.h"
#include "basic/strings.h"
#include "cli/project_session.h"
#include "cli/tool.h"
#include "dialogs/ui_player.h"
#include "hosts/memory/components.h"

namespace quillet::cli {

namespace {

std::optional<std::string> readFile(const std::string& path) {
    std::ifstream in(std::filesystem::path(std::u8string(path.begin(), path.end())), std::ios::binary);
    if (!in) return std::nullopt;
    std::ostringstream bytes;
    bytes << in.rdbuf();
    std::string text = bytes.str();
    if (text.compare(0, 3, "\xEF\xBB\xBF") == 0) text.erase(0, 3);
    return text;
}

void report(std::ostream& err, const std::string& script, long line, const Str& message) {
    err << "quillet: " << script << ":" << line << ": " << basic::toUtf8(message) << "\n";
}

dialogs::UiScriptHooks hooksOf(ProjectSession& session) {
    dialogs::UiScriptHooks hooks;
    auto platform = session.platform;
    hooks.answer = [platform](const Str& answer) { platform->queueAnswer(answer); };
    auto project = session.project->project();
    hooks.moduleText = [project](const Str& module) -> std::optional<Str> {
        auto component = project->component(module);
        if (!component) return std::nullopt;
        return basic::Join(component->lines(), u"\r\n");
    };
    return hooks;
}

}  // namespace

int playScript(const ToolOptions& options, std::ostream& out, std::ostream& err) {
    std::optional<std::string> text = readFile(*options.script);
    if (!text) {
        err << "quillet: cannot read the script " << *options.script << "\n";
        return kExitUsage;
    }
    std::vector<dialogs::UiCommand> commands;
    try {
        commands = dialogs::parseUiScript(basic::fromUtf8(*text));
    } catch (const dialogs::UiScriptSyntaxError& error) {
        report(err, *options.script, error.line(), error.message());
        return kExitUsage;
    }

    ProjectSession session = openSession(options);
    core::Context ctx(session.vbe, session.platform);
    startAddin(ctx, options, err);
    dialogs::UiScriptOutcome outcome = dialogs::playUiCommands(commands, *ctx.Forms, hooksOf(session));
    if (!outcome.passed()) {
        report(err, *options.script, outcome.line, outcome.message);
        return kExitScript;
    }
    finishSession(session, options, out);
    return kExitOk;
}

}  // namespace quillet::cli
