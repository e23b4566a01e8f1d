#pragma once
// The text of one code module, read through the host in one call (Lines(1, CountOfLines) split
// at "\r\n") and handed out line by line as Lines(n, 1) would give it. When the split does not
// give CountOfLines lines (a line holding a line break of its own), the lines are read one call
// each instead, so that the answers are the host's in every case.

#include <vector>

#include "host/objects.h"

namespace quillet::source {

using basic::Str;

class ModuleText {
public:
    explicit ModuleText(host::CodeModule& module);
    // A text that is not read from a module (lines joined by "\r\n").
    static ModuleText fromText(const Str& text);

    long CountOfLines() const { return static_cast<long>(lines_.size()); }
    // Lines(n, 1): "" outside 1 to CountOfLines.
    const Str& line(long n) const;
    // Lines(start, count): the lines that exist in the range, joined by "\r\n".
    Str lines(long start, long count) const;

private:
    ModuleText() = default;
    std::vector<Str> lines_;
};

}  // namespace quillet::source
