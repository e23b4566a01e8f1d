#pragma once
// The tool's help texts.

#include <string>

#include "cli/options.h"

namespace quillet::cli {

std::string helpText(Verb verb);
std::string versionText();

}  // namespace quillet::cli
