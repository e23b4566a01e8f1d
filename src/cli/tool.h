#pragma once
// The quillet tool, whole: runTool is main() without the process around it, so tests run it
// with their own arguments and streams.
//
// Exit codes: 0 success, 1 a usage error, 2 a project that cannot be read or written, or a
// caret (--at, --select) naming a module or a line that does not exist, 3 a UI script that stopped
// (a failed expect; nothing is written).

#include <ostream>
#include <string>
#include <vector>

namespace quillet::cli {

constexpr int kExitOk = 0;
constexpr int kExitUsage = 1;
constexpr int kExitProject = 2;
constexpr int kExitScript = 3;

// `args` are the arguments after the program's name, in UTF-8.
int runTool(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace quillet::cli
