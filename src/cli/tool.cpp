#include "cli/tool.h"

#include "basic/vb_error.h"
#include "cli/fragments_command.h"
#include "cli/help.h"
#include "cli/html_command.h"
#include "cli/options.h"
#include "cli/play_command.h"
#include "cli/run_command.h"
#include "cli/scan_command.h"
#include "cli/settings_command.h"
#include "cli/typelib_command.h"
#include "hosts/files/project_error.h"

namespace quillet::cli {

namespace {

std::string helpHint(const std::vector<std::string>& args) {
    bool verb = !args.empty() && (args[0] == "run" || args[0] == "list" || args[0] == "play" || args[0] == "settings" ||
                             args[0] == "scan" || args[0] == "typelib" || args[0] == "html" ||
                             args[0] == "fragments");
    return verb ? "Try 'quillet " + args[0] + " --help'." : "Try 'quillet --help'.";
}

int dispatch(const ToolOptions& options, std::ostream& out, std::ostream& err) {
    if (options.help || options.verb == Verb::Help) {
        out << helpText(options.verb);
        return kExitOk;
    }
    if (options.verb == Verb::Run || options.verb == Verb::List || options.verb == Verb::Play)
        prepareSettingsFiles(options, err);
    switch (options.verb) {
        case Verb::Version: out << versionText(); return kExitOk;
        case Verb::Run: return runCommand(options, out, err);
        case Verb::List: return listModules(options, out);
        case Verb::Play: return playScript(options, out, err);
        case Verb::Settings: return settingsCommand(options, out, err);
        case Verb::Scan: return scanProject(options, out, err);
        case Verb::Typelib: return typelibCommand(options, out, err);
        case Verb::Html: return htmlPage(options, out, err);
        case Verb::Fragments: return fragmentsCommand(options, out, err);
        default: return kExitOk;
    }
}

}  // namespace

int runTool(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    ToolOptions options;
    try {
        options = parseArguments(args);
    } catch (const UsageError& error) {
        err << "quillet: " << error.what() << "\n" << helpHint(args) << "\n";
        return kExitUsage;
    }
    try {
        return dispatch(options, out, err);
    } catch (const hosts::files::ProjectError& error) {
        err << "quillet: " << error.what() << "\n";
    } catch (const basic::VbError& error) {
        err << "quillet: error " << error.Number() << ": " << basic::toUtf8(error.Description()) << "\n";
    } catch (const std::exception& error) {
        err << "quillet: " << error.what() << "\n";
    }
    return kExitProject;
}

}  // namespace quillet::cli
