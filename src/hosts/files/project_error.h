#pragma once
// The one error of projects on disk: a project or module file that cannot be read as the editor's
// text. The message names the file and says what is wrong; the quillet tool prints it and exits 2.

#include <stdexcept>
#include <string>

namespace quillet::hosts::files {

class ProjectError : public std::runtime_error {
public:
    explicit ProjectError(const std::string& message) : std::runtime_error(message) {}
};

}  // namespace quillet::hosts::files
