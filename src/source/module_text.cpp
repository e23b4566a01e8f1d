#include "source/module_text.h"

#include <algorithm>

#include "basic/strings.h"

namespace quillet::source {

namespace {
const Str kEmpty;
}

ModuleText::ModuleText(host::CodeModule& module) {
    long count = module.CountOfLines();
    if (count <= 0) return;
    lines_ = basic::Split(module.Lines(1, count), u"\r\n");
    if (static_cast<long>(lines_.size()) == count) return;
    lines_.clear();
    lines_.reserve(count);
    for (long n = 1; n <= count; ++n) lines_.push_back(module.Lines(n, 1));
}

ModuleText ModuleText::fromText(const Str& text) {
    ModuleText out;
    out.lines_ = basic::Split(text, u"\r\n");
    return out;
}

const Str& ModuleText::line(long n) const {
    return n >= 1 && n <= CountOfLines() ? lines_[n - 1] : kEmpty;
}

Str ModuleText::lines(long start, long count) const {
    Str out;
    long first = std::max(start, 1L);
    long last = std::min(start + count - 1, CountOfLines());
    for (long n = first; n <= last; ++n) {
        if (n > first) out += u"\r\n";
        out += lines_[n - 1];
    }
    return out;
}

}  // namespace quillet::source
