#include "cli/options.h"

#include <charconv>
#include <functional>
#include <map>
#include <set>

#include "addin/quillet_handle.h"
#include "basic/strings.h"

namespace quillet::cli {

namespace {

long positiveNumber(const std::string& text, const std::string& what, const std::string& whole) {
    long value = 0;
    auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size() || value < 1) {
        throw UsageError("bad " + what + " in \"" + whole + "\": \"" + text + "\" is not a number of 1 or more");
    }
    return value;
}

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts(1);
    for (char c : text) {
        if (c == separator) {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

// The module before the first ":", and what follows.
std::pair<Str, std::string> modulePart(const std::string& text, const std::string& form) {
    size_t colon = text.find(':');
    if (colon == std::string::npos || colon == 0) throw UsageError("expected " + form + ", got \"" + text + "\"");
    return {basic::fromUtf8(text.substr(0, colon)), text.substr(colon + 1)};
}

Verb verbNamed(const std::string& word) {
    static const std::map<std::string, Verb> verbs = {
        {"run", Verb::Run}, {"list", Verb::List}, {"play", Verb::Play}, {"help", Verb::Help}, {"version", Verb::Version},
        {"settings", Verb::Settings}, {"scan", Verb::Scan}, {"typelib", Verb::Typelib}, {"html", Verb::Html},
        {"fragments", Verb::Fragments}};
    auto found = verbs.find(word);
    if (found == verbs.end()) throw UsageError("unknown command \"" + word + "\"");
    return found->second;
}

// Reads options and positional arguments after the verb.
class ArgumentReader {
public:
    ArgumentReader(const std::vector<std::string>& args, ToolOptions& options) : args_(args), options_(options) {}

    std::vector<std::string> read(size_t from) {
        std::vector<std::string> positionals;
        bool optionsEnded = false;
        for (index_ = from; index_ < args_.size(); ++index_) {
            const std::string& arg = args_[index_];
            if (optionsEnded || arg.size() < 2 || arg.compare(0, 2, "--") != 0) {
                positionals.push_back(arg);
            } else if (arg == "--") {
                optionsEnded = true;
            } else {
                option(arg);
            }
        }
        return positionals;
    }

private:
    void option(const std::string& arg) {
        size_t equals = arg.find('=');
        std::string name = arg.substr(0, equals);
        std::optional<std::string> inlineValue;
        if (equals != std::string::npos) inlineValue = arg.substr(equals + 1);
        if (name == "--help" || name == "--dry-run" || name == "--json") {
            if (inlineValue) throw UsageError(name + " takes no value");
            (name == "--help" ? options_.help : name == "--json" ? options_.json : options_.dryRun) = true;
            return;
        }
        static const std::set<std::string> valued = {"--project",  "--at",        "--select", "--answer",
                                                     "--settings", "--code-page", "--data",
                                                     "--module", "--output",
                                                     "--typelib-path"};
        if (!valued.count(name)) throw UsageError("unknown option " + name);
        std::string value = inlineValue ? *inlineValue : next(name);
        if (name == "--project") {
            options_.project = value;
        } else if (name == "--at") {
            options_.at = parseLocation(value);
        } else if (name == "--select") {
            options_.select = parseSelection(value);
        } else if (name == "--answer") {
            options_.answers.push_back(basic::fromUtf8(value));
        } else if (name == "--settings") {
            options_.settings = value;
        } else if (name == "--data") {
            options_.data = value;
        } else if (name == "--module") {
            options_.scanModule = basic::fromUtf8(value);
        } else if (name == "--typelib-path") {
            options_.typelibPath.push_back(value);
        } else if (name == "--output") {
            options_.output = value;
        } else if (name == "--code-page") {
            options_.codePage = hosts::files::codePageNamed(value);
            if (!options_.codePage) throw UsageError("unknown code page \"" + value + "\" (use 1252 or 65001)");
        }
    }

    std::string next(const std::string& name) {
        if (index_ + 1 >= args_.size()) throw UsageError(name + " needs a value");
        return args_[++index_];
    }

    const std::vector<std::string>& args_;
    ToolOptions& options_;
    size_t index_ = 0;
};

// The words run knows, each in double quotes so that a trailing blank shows.
std::string knownCommandWords() {
    std::string list;
    for (const Str& word : addin::quickCommandWords()) list += (list.empty() ? "\"" : ", \"") + basic::toUtf8(word) + "\"";
    return list;
}

void checkRun(ToolOptions& options, const std::vector<std::string>& positionals) {
    if (positionals.empty()) throw UsageError("run needs a COMMAND (for example \"If Then\")");
    if (positionals.size() > 2) throw UsageError("run takes a COMMAND and an optional TYPE; unexpected \"" + positionals[2] + "\"");
    options.command = basic::fromUtf8(positionals[0]);
    if (positionals.size() == 2) options.type = basic::fromUtf8(positionals[1]);
    if (!addin::isQuickCommand(options.command))
        throw UsageError("unknown quick command \"" + positionals[0] + "\"; the known ones are " + knownCommandWords());
    if (!addin::quickCommandAvailable(options.command))
        throw UsageError("the quick command \"" + positionals[0] +
                         "\" asks its question in a dialog that this version does not have yet; nothing was changed");
    if (!options.project) throw UsageError("run needs --project PATH");
    if (!options.at && !options.select) throw UsageError("run needs --at MODULE:LINE[:COL] or --select MODULE:L1:C1-L2:C2");
    if (options.at && options.select) throw UsageError("give --at or --select, not both");
}

void checkPlay(ToolOptions& options, const std::vector<std::string>& positionals) {
    if (positionals.empty()) throw UsageError("play needs a SCRIPT (a UI script file)");
    if (positionals.size() > 1) throw UsageError("play takes one SCRIPT; unexpected \"" + positionals[1] + "\"");
    options.script = positionals[0];
    if (!options.project) throw UsageError("play needs --project PATH");
    if (!options.at && !options.select) throw UsageError("play needs --at MODULE:LINE[:COL] or --select MODULE:L1:C1-L2:C2");
    if (options.at && options.select) throw UsageError("give --at or --select, not both");
}

void checkSettings(ToolOptions& options, const std::vector<std::string>& positionals) {
    if (options.project || options.at || options.select || !options.answers.empty() || options.dryRun ||
        options.codePage) {
        throw UsageError("settings takes only --settings, --data and --json");
    }
    if (positionals.empty()) return;
    if (positionals[0] != "set") throw UsageError("unknown settings command \"" + positionals[0] + "\" (use set)");
    if (positionals.size() != 4) throw UsageError("settings set needs SECTION KEY VALUE");
    if (options.json) throw UsageError("settings set takes no --json");
    for (size_t i = 1; i < 4; ++i) options.settingChange.push_back(basic::fromUtf8(positionals[i]));
}

void checkScan(const ToolOptions& options, const std::vector<std::string>& positionals) {
    if (!positionals.empty()) throw UsageError("scan takes no arguments; unexpected \"" + positionals[0] + "\"");
    if (!options.project) throw UsageError("scan needs --project PATH");
    if (options.select || !options.answers.empty() || options.dryRun) {
        throw UsageError("scan takes only --project, --module, --at, --json and --code-page");
    }
    if (options.at && options.scanModule &&
        basic::StrComp(*options.scanModule, options.at->module, basic::Compare::Text) != 0) {
        throw UsageError("--at and --module name different modules");
    }
}

void checkTypelib(ToolOptions& options, const std::vector<std::string>& positionals) {
    if (positionals.size() != 1) throw UsageError("typelib needs one FILE (a .tlb, .olb, .dll, .ocx or .exe)");
    if (options.project || options.at || options.select || !options.answers.empty() || options.dryRun ||
        options.scanModule || options.codePage) {
        throw UsageError("typelib takes only --json and --typelib-path");
    }
    options.typelibFile = positionals[0];
}

void checkList(const ToolOptions& options, const std::vector<std::string>& positionals) {
    if (!positionals.empty()) throw UsageError("list takes no arguments; unexpected \"" + positionals[0] + "\"");
    if (!options.project) throw UsageError("list needs --project PATH");
    if (options.at || options.select || !options.answers.empty() || options.dryRun) {
        throw UsageError("list takes only --project and --code-page");
    }
}

void checkHtml(const ToolOptions& options, const std::vector<std::string>& positionals) {
    if (!positionals.empty()) throw UsageError("html takes no arguments; unexpected \"" + positionals[0] + "\"");
    if (!options.project) throw UsageError("html needs --project PATH");
    if (!options.scanModule) throw UsageError("html needs --module NAME");
    if (options.at || options.select || !options.answers.empty() || options.dryRun || options.json) {
        throw UsageError("html takes only --project, --module, --output, --data and --code-page");
    }
}

void checkFragments(const ToolOptions& options, const std::vector<std::string>& positionals) {
    if (!positionals.empty()) throw UsageError("fragments takes no arguments; unexpected \"" + positionals[0] + "\"");
    if (options.at || options.select || !options.answers.empty() || options.dryRun || options.scanModule ||
        options.output) {
        throw UsageError("fragments takes only --project, --json, --settings, --data and --code-page");
    }
}

}  // namespace

Location parseLocation(const std::string& text) {
    const std::string form = "MODULE:LINE[:COL]";
    auto [module, rest] = modulePart(text, form);
    std::vector<std::string> parts = split(rest, ':');
    if (parts.size() > 2) throw UsageError("expected " + form + ", got \"" + text + "\"");
    Location location{module, positiveNumber(parts[0], "line", text), 1};
    if (parts.size() == 2) location.column = positiveNumber(parts[1], "column", text);
    return location;
}

SelectionSpec parseSelection(const std::string& text) {
    const std::string form = "MODULE:L1:C1-L2:C2";
    auto [module, rest] = modulePart(text, form);
    std::vector<std::string> ends = split(rest, '-');
    if (ends.size() != 2) throw UsageError("expected " + form + ", got \"" + text + "\"");
    std::vector<std::string> start = split(ends[0], ':');
    std::vector<std::string> end = split(ends[1], ':');
    if (start.size() != 2 || end.size() != 2) throw UsageError("expected " + form + ", got \"" + text + "\"");
    SelectionSpec selection{module,
                            positiveNumber(start[0], "line", text), positiveNumber(start[1], "column", text),
                            positiveNumber(end[0], "line", text), positiveNumber(end[1], "column", text)};
    bool backwards = selection.endLine < selection.startLine ||
                     (selection.endLine == selection.startLine && selection.endColumn < selection.startColumn);
    if (backwards) throw UsageError("the selection \"" + text + "\" ends before it starts");
    return selection;
}

ToolOptions parseArguments(const std::vector<std::string>& args) {
    ToolOptions options;
    if (args.empty()) return options;
    size_t from = 1;
    if (args[0] == "--help" || args[0] == "-h") {
        options.help = true;
        from = 1;
    } else if (args[0] == "--version") {
        options.verb = Verb::Version;
    } else {
        options.verb = verbNamed(args[0]);
    }
    std::vector<std::string> positionals = ArgumentReader(args, options).read(from);
    if (options.help) return options;
    switch (options.verb) {
        case Verb::Run: checkRun(options, positionals); break;
        case Verb::List: checkList(options, positionals); break;
        case Verb::Play: checkPlay(options, positionals); break;
        case Verb::Settings: checkSettings(options, positionals); break;
        case Verb::Scan: checkScan(options, positionals); break;
        case Verb::Typelib: checkTypelib(options, positionals); break;
        case Verb::Html: checkHtml(options, positionals); break;
        case Verb::Fragments: checkFragments(options, positionals); break;
        case Verb::Help:
            // "quillet help run" is "quillet run --help".
            if (!positionals.empty()) {
                options.verb = verbNamed(positionals[0]);
                options.help = true;
            }
            break;
        case Verb::Version: break;
    }
    return options;
}

}  // namespace quillet::cli
