// The quillet tool: the process around cli::runTool.

#include <iostream>
#include <string>
#include <vector>

#include "basic/unicode.h"
#include "cli/tool.h"

#ifdef _WIN32
// Arguments arrive as UTF-16 on Windows; the tool reads UTF-8.
int wmain(int argc, wchar_t** argv) {
    std::vector<std::string> args;
    for (int i = 1; i < argc; ++i) {
        std::wstring wide(argv[i]);
        args.push_back(quillet::basic::toUtf8(std::u16string(wide.begin(), wide.end())));
    }
    return quillet::cli::runTool(args, std::cout, std::cerr);
}
#else
int main(int argc, char** argv) {
    return quillet::cli::runTool(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr);
}
#endif
