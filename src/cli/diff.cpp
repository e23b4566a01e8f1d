#include "cli/diff.h"

#include <algorithm>

namespace quillet::cli {

namespace {

enum class Op { Keep, Remove, Add };

struct Edit {
    Op op;
    size_t oldIndex;  // the line of the old text (Keep, Remove) or the old position (Add)
    size_t newIndex;
};

// Largest table the exact comparison of the changed middle uses; past it, the middle is
// shown as removed and added whole (still a correct diff, only not the shortest).
constexpr size_t kMaxTable = 4'000'000;

void diffMiddle(const std::vector<Str>& a, const std::vector<Str>& b, size_t lo, size_t aHi, size_t bHi,
                std::vector<Edit>& edits) {
    size_t n = aHi - lo, m = bHi - lo;
    if (n * m > kMaxTable || n == 0 || m == 0) {
        for (size_t i = 0; i < n; ++i) edits.push_back({Op::Remove, lo + i, lo});
        for (size_t j = 0; j < m; ++j) edits.push_back({Op::Add, aHi, lo + j});
        return;
    }
    // Longest common subsequence lengths of the suffixes.
    std::vector<unsigned> table((n + 1) * (m + 1), 0);
    auto at = [&](size_t i, size_t j) -> unsigned& { return table[i * (m + 1) + j]; };
    for (size_t i = n; i-- > 0;) {
        for (size_t j = m; j-- > 0;) {
            at(i, j) = a[lo + i] == b[lo + j] ? at(i + 1, j + 1) + 1 : std::max(at(i + 1, j), at(i, j + 1));
        }
    }
    size_t i = 0, j = 0;
    while (i < n || j < m) {
        if (i < n && j < m && a[lo + i] == b[lo + j]) {
            edits.push_back({Op::Keep, lo + i++, lo + j++});
        } else if (i < n && (j == m || at(i + 1, j) >= at(i, j + 1))) {
            edits.push_back({Op::Remove, lo + i++, lo + j});
        } else {
            edits.push_back({Op::Add, lo + i, lo + j++});
        }
    }
}

std::vector<Edit> editScript(const std::vector<Str>& a, const std::vector<Str>& b) {
    size_t prefix = 0;
    while (prefix < a.size() && prefix < b.size() && a[prefix] == b[prefix]) ++prefix;
    size_t suffix = 0;
    while (suffix < a.size() - prefix && suffix < b.size() - prefix &&
           a[a.size() - 1 - suffix] == b[b.size() - 1 - suffix]) {
        ++suffix;
    }
    std::vector<Edit> edits;
    for (size_t i = 0; i < prefix; ++i) edits.push_back({Op::Keep, i, i});
    diffMiddle(a, b, prefix, a.size() - suffix, b.size() - suffix, edits);
    for (size_t k = suffix; k > 0; --k) edits.push_back({Op::Keep, a.size() - k, b.size() - k});
    return edits;
}

std::string range(size_t start, size_t count) {
    // Lines are numbered from 1; an empty range names the line before it.
    size_t first = count == 0 ? start : start + 1;
    return count == 1 ? std::to_string(first) : std::to_string(first) + "," + std::to_string(count);
}

void writeHunk(const std::vector<Edit>& edits, size_t from, size_t to, const std::vector<Str>& a,
               const std::vector<Str>& b, std::string& out) {
    size_t oldStart = edits[from].oldIndex, newStart = edits[from].newIndex;
    size_t oldCount = 0, newCount = 0;
    std::string body;
    for (size_t k = from; k < to; ++k) {
        const Edit& edit = edits[k];
        if (edit.op != Op::Add) ++oldCount;
        if (edit.op != Op::Remove) ++newCount;
        char mark = edit.op == Op::Keep ? ' ' : edit.op == Op::Remove ? '-' : '+';
        body += mark + basic::toUtf8(edit.op == Op::Add ? b[edit.newIndex] : a[edit.oldIndex]) + "\n";
    }
    out += "@@ -" + range(oldStart, oldCount) + " +" + range(newStart, newCount) + " @@\n" + body;
}

}  // namespace

std::string unifiedDiff(const std::vector<Str>& oldLines, const std::vector<Str>& newLines, const DiffNames& names,
                        size_t context) {
    if (oldLines == newLines) return {};
    std::vector<Edit> edits = editScript(oldLines, newLines);
    std::string out = "--- " + names.oldName + "\n+++ " + names.newName + "\n";
    size_t k = 0;
    while (k < edits.size()) {
        while (k < edits.size() && edits[k].op == Op::Keep) ++k;
        if (k == edits.size()) break;
        size_t from = k >= context ? k - context : 0;
        // Extend over changes closer than two contexts apart.
        size_t end = k;
        while (true) {
            while (end < edits.size() && edits[end].op != Op::Keep) ++end;
            size_t keep = end;
            while (keep < edits.size() && edits[keep].op == Op::Keep) ++keep;
            if (keep == edits.size() || keep - end > 2 * context) {
                end = std::min(end + context, keep);
                break;
            }
            end = keep;
        }
        writeHunk(edits, from, end, oldLines, newLines, out);
        k = end;
    }
    return out;
}

}  // namespace quillet::cli
