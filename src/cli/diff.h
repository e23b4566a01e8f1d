#pragma once
// A unified diff of two texts given as lines, as `diff -u` writes it: "--- a/NAME" and
// "+++ b/NAME" headers (/dev/null for a file that is created or removed), then @@ hunks with
// three lines of context. Lines are written in UTF-8, each ended by "\n".

#include <string>
#include <vector>

#include "basic/unicode.h"

namespace quillet::cli {

using basic::Str;

struct DiffNames {
    std::string oldName;  // "a/path", or "/dev/null"
    std::string newName;  // "b/path", or "/dev/null"
};

// "" when the texts are equal.
std::string unifiedDiff(const std::vector<Str>& oldLines, const std::vector<Str>& newLines, const DiffNames& names,
                        size_t context = 3);

}  // namespace quillet::cli
