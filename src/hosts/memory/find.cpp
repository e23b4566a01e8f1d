#include "hosts/memory/find.h"

#include "hosts/memory/text.h"

namespace quillet::hosts::memory {

namespace {

using basic::Compare;

struct Span {
    long start = 0;  // 1-based first column
    long end = 0;    // exclusive
};

bool isWordAt(const Str& line, long col) {
    return col >= 1 && col <= static_cast<long>(line.size()) && isIdentifierChar(line[col - 1]);
}

bool acceptable(const Str& line, const Span& span, const FindFlags& flags) {
    if (!flags.wholeWord) return true;
    return !isWordAt(line, span.start - 1) && !isWordAt(line, span.end);
}

// The first match in line that starts at or after fromCol and ends (inclusive) by lastCol.
std::optional<Span> plainMatch(const Str& line, const Str& target, long fromCol, long lastCol,
                               const FindFlags& flags) {
    Compare compare = flags.matchCase ? Compare::Binary : Compare::Text;
    long length = static_cast<long>(target.size());
    for (long col = fromCol; col + length - 1 <= lastCol;) {
        long hit = basic::InStr(col, line, target, compare);
        if (hit == 0 || hit + length - 1 > lastCol) return std::nullopt;
        Span span{hit, hit + length};
        if (acceptable(line, span, flags)) return span;
        col = hit + 1;
    }
    return std::nullopt;
}

// The longest match of the pattern at the first column where one starts.
std::optional<Span> patternMatch(const Str& line, const Str& pattern, long fromCol, long lastCol,
                                 const FindFlags& flags) {
    for (long start = fromCol; start <= lastCol; ++start) {
        for (long end = lastCol; end >= start; --end) {
            Str piece = line.substr(start - 1, end - start + 1);
            Span span{start, end + 1};
            if (basic::Like(piece, pattern, Compare::Text) && acceptable(line, span, flags)) return span;
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<FindRange> findInLines(const std::vector<Str>& lines, const Str& target, const FindRange& range,
                                     const FindFlags& flags) {
    if (flags.matchCase && flags.patternSearch) throw basic::VbError::standard(basic::err::InvalidCall);
    long count = static_cast<long>(lines.size());
    if (target.empty() || count == 0) return std::nullopt;
    long firstLine = range.startLine < 1 ? 1 : range.startLine;
    long lastLine = (range.endLine < 1 || range.endLine > count) ? count : range.endLine;
    for (long lineNo = firstLine; lineNo <= lastLine; ++lineNo) {
        const Str& line = lines[lineNo - 1];
        long len = static_cast<long>(line.size());
        long fromCol = (lineNo == firstLine && range.startCol > 1) ? range.startCol : 1;
        long lastCol = (lineNo == lastLine && range.endCol >= 1 && range.endCol < len) ? range.endCol : len;
        std::optional<Span> span = flags.patternSearch ? patternMatch(line, target, fromCol, lastCol, flags)
                                                       : plainMatch(line, target, fromCol, lastCol, flags);
        if (span) return FindRange{lineNo, span->start, lineNo, span->end};
    }
    return std::nullopt;
}

}  // namespace quillet::hosts::memory
