#include "cli/help.h"

#include <string>

#include "core/version.h"
#include "cli/fragments_command.h"
#include "cli/settings_command.h"

namespace quillet::cli {

namespace {

constexpr const char* kToolHelp =
    "Usage: quillet COMMAND [OPTIONS]\n"
    "\n"
    "Runs Quillet's commands on a Basic project kept as files: a folder of exported\n"
    "modules (.bas, .cls, .frm) or a VB6 project (.vbp). Only the files that change\n"
    "are written, each in its own code page and line ends.\n"
    "\n"
    "Commands:\n"
    "  run      run a quick command at a place in a module\n"
    "  list     list the modules of a project\n"
    "  play     drive a builder's dialog with a UI script, then write the code\n"
    "  settings show the settings, or change one (quillet settings set ...)\n"
    "  scan     show what the scans see of a project, a module or a procedure\n"
    "  typelib  show what a type library offers: groups, procedures, enums, classes\n"
    "  html     write a module as a page of coloured HTML\n"
    "  fragments list the fragment library as the Fragment Builder shows it\n"
    "  help     show the help of a command (quillet help run)\n"
    "  version  show the version\n"
    "\n"
    "Options of every command:\n"
    "  --project PATH     the project: a folder, or a .vbp file\n"
    "  --code-page CP     the code page of module files: 1252 (the default) or 65001\n"
    "  --help             show the help\n"
    "\n"
    "A folder may hold one project file (*.vbp). A VB6 project lists its members; in an\n"
    "Office project's file, Name=, Host= (Excel, Word, Access, Outlook ...),\n"
    "Reference= and Document= lines describe the project, and every module file of the\n"
    "folder is loaded unless Module=, Class= or Form= lines list them.\n"
    "\n"
    "Exit codes: 0 success, 1 usage error, 2 the project cannot be read or written, or\n"
    "the place given does not exist, 3 a UI script stopped (play).\n";

constexpr const char* kRunHelp =
    "Usage: quillet run COMMAND [TYPE] --project PATH (--at PLACE | --select RANGE) [OPTIONS]\n"
    "\n"
    "Runs a quick command (\"If Then\", \"If Then Else\", \"ForNext\", \"On Error Resume Next\"\n"
    "...) with the caret at PLACE, as if typed in the editor, then writes the changed files\n"
    "and prints their names, one a line. \"Line Numbers Add\", \"Line Numbers Remove\",\n"
    "\"Comment Lines Add\" and \"Comment Lines Remove\" work on the selected lines.\n"
    "A word that is no quick command is a usage error that lists the known ones; the\n"
    "commands that ask in a dialog of their own (\"Property\", \"With\", \"Select Case\"\n"
    "...) are played with quillet play instead.\n"
    "\n"
    "Options:\n"
    "  --project PATH        the project: a folder, or a .vbp file\n"
    "  --at MODULE:LINE[:COL]\n"
    "                        the caret (column 1 when left out)\n"
    "  --select MODULE:L1:C1-L2:C2\n"
    "                        a selection instead of a caret (the end column is exclusive)\n"
    "  --answer VALUE        the answer to the next message or input box: ok, cancel,\n"
    "                        yes, no, abort, retry, ignore, or the text typed; repeatable.\n"
    "                        A message box with no answer left takes its default button,\n"
    "                        an input box counts as Cancel\n"
    "  --dry-run             print a unified diff of the changes and write nothing\n"
    "  --settings DIR        the settings folder\n"
    "  --code-page CP        the code page of module files: 1252 (the default) or 65001\n"
    "\n"
    "Errors the command reports go to standard error.\n"
    "\n"
    "Example:\n"
    "  quillet run \"If Then Else\" --project examples/Invoicing --at basMain:12:5 --dry-run\n";

constexpr const char* kPlayHelp =
    "Usage: quillet play SCRIPT --project PATH (--at PLACE | --select RANGE) [OPTIONS]\n"
    "\n"
    "Plays the UI script SCRIPT with the caret at PLACE: it opens a builder as its command\n"
    "does, fills in the dialog, clicks its buttons and checks what the dialogs show and what\n"
    "the modules hold (docs/ui-scripts.md). Then writes the changed files and prints their\n"
    "names, one a line.\n"
    "\n"
    "Options:\n"
    "  --project PATH        the project: a folder, or a .vbp file\n"
    "  --at MODULE:LINE[:COL]\n"
    "                        the caret (column 1 when left out)\n"
    "  --select MODULE:L1:C1-L2:C2\n"
    "                        a selection instead of a caret (the end column is exclusive)\n"
    "  --answer VALUE        an answer for a message or input box, used before the script's\n"
    "                        own answer lines; repeatable (see quillet run --help)\n"
    "  --dry-run             print a unified diff of the changes and write nothing\n"
    "  --settings DIR        the settings folder\n"
    "  --code-page CP        the code page of module files: 1252 (the default) or 65001\n"
    "\n"
    "A script that cannot be read exits with 1; a script that stops (an expect that does\n"
    "not hold, a control that is missing or disabled) prints SCRIPT:LINE: and the reason,\n"
    "writes nothing and exits with 3.\n"
    "\n"
    "Example:\n"
    "  quillet play tests/ui/new_function.ui --project examples/Invoicing --at basMain:3\n";

constexpr const char* kListHelp =
    "Usage: quillet list --project PATH [--code-page CP]\n"
    "\n"
    "Lists the modules of the project: name, type and number of lines.\n";

constexpr const char* kScanHelp =
    "Usage: quillet scan --project PATH [--module NAME] [--at MODULE:LINE] [--json] [--code-page CP]\n"
    "\n"
    "Shows what Quillet's scans see of the project: the project-wide collections\n"
    "(ProjectProcs, ProjectVars, ProjectConsts, ProjectEnums, ProjectTypes); with\n"
    "--module, that module's scan instead (ModuleVars, ModuleConsts, ModuleEnums,\n"
    "ModuleTypes, ModuleProcs); with --at, the scan of the procedure at that line too\n"
    "(ProcVars, ProcConsts, ProcLabels and its line numbers).\n"
    "\n"
    "Options:\n"
    "  --module NAME         a module's scan instead of the project's\n"
    "  --at MODULE:LINE      the procedure at that line as well\n"
    "  --json                one JSON object: each collection an array of its records\n"
    "\n"
    "Example:\n"
    "  quillet scan --project examples/Invoicing --at basMain:3 --json\n";

constexpr const char* kTypelibHelp =
    "Usage: quillet typelib FILE [--typelib-path DIR]... [--json]\n"
    "\n"
    "Shows what the library scan makes of one type library: its groups of procedures\n"
    "that are called without a qualifier (modules and the application object) with\n"
    "each procedure's arguments, its enums with their constants, and its classes.\n"
    "FILE is a .tlb or .olb file, or a .dll, .ocx or .exe with a type library resource\n"
    "(FILE\\2 for the resource number 2).\n"
    "\n"
    "Options:\n"
    "  --typelib-path DIR    a folder where the libraries this one imports are looked\n"
    "                        for (by file name, then by GUID); may be repeated\n"
    "  --json                one JSON object: library, groups, enums, classes\n"
    "\n"
    "Example:\n"
    "  quillet typelib /usr/lib/x86_64-linux-gnu/wine/x86_64-windows/stdole2.tlb\n";
constexpr const char* kHtmlHelp =
    "Usage: quillet html --project PATH --module NAME [--output FILE] [--data DIR] [--code-page CP]\n"
    "\n"
    "Writes the module as an HTML page (UTF-8): keywords dark blue, functions black,\n"
    "comments green, in Courier New. The page is vb2htmltemplate.htm of the data folder\n"
    "when there is one, its [modulename], [procedurename], [title], [charset] and [code]\n"
    "filled in; otherwise a plain page.\n"
    "\n"
    "Options:\n"
    "  --module NAME         the module\n"
    "  --output FILE         the page's file, written whole or not at all (else standard\n"
    "                        output)\n"
    "  --data DIR            the folder of the template (else the data folder found near\n"
    "                        the tool)\n"
    "\n"
    "Example:\n"
    "  quillet html --project examples/Invoicing --module basMain --output basMain.htm\n";

}  // namespace

std::string helpText(Verb verb) {
    switch (verb) {
        case Verb::Run: return kRunHelp;
        case Verb::List: return kListHelp;
        case Verb::Play: return kPlayHelp;
        case Verb::Settings: return settingsHelpText();
        case Verb::Scan: return kScanHelp;
        case Verb::Typelib: return kTypelibHelp;
        case Verb::Html: return kHtmlHelp;
        case Verb::Fragments: return fragmentsHelpText();
        default: return kToolHelp;
    }
}

std::string versionText() {
    return "quillet " + std::to_string(core::kVersionMajor) + "." + std::to_string(core::kVersionMinor) + "." +
           std::to_string(core::kVersionRevision) + "\n";
}

}  // namespace quillet::cli
