#include "tools/line_range_write.h"

#include <algorithm>

#include "basic/strings.h"

namespace quillet::tools {

bool ReplaceLineRange(host::CodeModule& module, long first, const std::vector<Str>& oldLines,
                      const std::vector<Str>& newLines) {
    size_t count = std::min(oldLines.size(), newLines.size());
    size_t lo = 0;
    while (lo < count && oldLines[lo] == newLines[lo]) ++lo;
    if (lo == count) return false;
    size_t hi = count - 1;
    while (hi > lo && oldLines[hi] == newLines[hi]) --hi;
    long at = first + static_cast<long>(lo);
    if (lo == hi) {
        module.ReplaceLine(at, newLines[lo]);
        return true;
    }
    long span = static_cast<long>(hi - lo + 1);
    std::vector<Str> changed(newLines.begin() + static_cast<long>(lo), newLines.begin() + static_cast<long>(hi) + 1);
    module.InsertLines(at, basic::Join(changed, u"\r\n"));
    try {
        module.DeleteLines(at + span, span);
    } catch (...) {
        try {
            module.DeleteLines(at, span);
        } catch (...) {
        }
        throw;
    }
    return true;
}

}  // namespace quillet::tools
