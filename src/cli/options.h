#pragma once
// The quillet tool's command line, parsed: a verb, its arguments and its options. Options take
// their value as the next argument or after "=" (--project=Book). Arguments are UTF-8.

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "basic/unicode.h"
#include "hosts/files/code_page.h"

namespace quillet::cli {

using basic::Str;

// A command line the tool cannot run; the message says what is wrong. Exit code 1.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// MODULE:LINE[:COL], the column 1 when left out.
struct Location {
    Str module;
    long line = 1;
    long column = 1;
};

// MODULE:L1:C1-L2:C2
struct SelectionSpec {
    Str module;
    long startLine = 1, startColumn = 1, endLine = 1, endColumn = 1;
};

enum class Verb { Help, Version, Run, List, Play, Settings, Scan, Typelib, Html, Fragments };

struct ToolOptions {
    Verb verb = Verb::Help;
    bool help = false;          // --help after a verb: that verb's help
    Str command;                // run: the command word
    Str type;                   // run: its optional type
    std::optional<std::string> script;  // play: the UI script's path
    std::optional<std::string> project;
    std::optional<Location> at;
    std::optional<SelectionSpec> select;
    std::vector<Str> answers;
    bool dryRun = false;
    std::optional<std::string> settings;  // the settings folder
    std::optional<std::string> data;      // the folder of the files a fresh installation needs
    bool json = false;                    // settings, scan: print JSON
    std::optional<Str> scanModule;        // scan: --module NAME
    std::vector<Str> settingChange;       // settings set: SECTION, KEY and VALUE; empty to print
    std::optional<hosts::files::CodePage> codePage;
    std::optional<std::string> typelibFile;   // typelib: the library file
    std::vector<std::string> typelibPath;     // --typelib-path DIR: where imported libraries are looked for
    std::optional<std::string> output;    // html: --output FILE (standard output without)
};

// The arguments after the program's name. Throws UsageError.
ToolOptions parseArguments(const std::vector<std::string>& args);

Location parseLocation(const std::string& text);
SelectionSpec parseSelection(const std::string& text);

}  // namespace quillet::cli
