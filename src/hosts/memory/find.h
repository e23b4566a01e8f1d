#pragma once
// CodeModule.Find over a list of lines: the search range is inclusive (-1 meaning the end, all
// four 0 the whole module), the hit's end column is exclusive, matches never span lines.

#include <optional>
#include <vector>

#include "basic/strings.h"

namespace quillet::hosts::memory {

using basic::Str;

struct FindRange {
    long startLine = 0;
    long startCol = 0;
    long endLine = 0;
    long endCol = 0;
};

struct FindFlags {
    bool wholeWord = false;
    bool matchCase = false;
    bool patternSearch = false;  // basic::Like patterns; the longest match at the first place
};

// The first hit in the range, or none. matchCase with patternSearch raises 5.
std::optional<FindRange> findInLines(const std::vector<Str>& lines, const Str& target, const FindRange& range,
                                     const FindFlags& flags);

}  // namespace quillet::hosts::memory
